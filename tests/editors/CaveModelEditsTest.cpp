// Thousands of edits by lot, with undoing and redoing between them.
#include <algorithm>
#include <array>
#include <deque>
#include <iterator>

#include "data/Result.h"
#include "editors/Letters.h"
#include "editors/ToolTable.h"

namespace zorik {
namespace {

using test::Picture;

// All that there is to a cave, what is cut off included.
struct Sight {
  CaveRecord cave;
  int amoebas = 0;
  std::string text;

  bool operator==(const Sight&) const = default;
};

Sight SightOf(const CaveModel& model) {
  const Result<std::string> text = model.Text();
  EXPECT_TRUE(text) << text.Message();
  return {model.Cave(), model.Amoebas(), text ? *text : std::string()};
}

// What somebody draws by lot, and where: also beyond the borders.
struct Lot {
  Chance rnd;
  CaveBlock block{};  // was copied

  int Draw(std::size_t range) { return static_cast<int>(rnd.Below(static_cast<std::uint32_t>(range))); }
  CavePlace Place(const CaveModel& model) {
    const int x = Draw(static_cast<std::size_t>(model.Width() + 8)) - 4;
    return {x, Draw(static_cast<std::size_t>(model.Height() + 8)) - 4};
  }
  CaveArea Area(const CaveModel& model) {
    const CavePlace corner = Place(model);
    return AreaOf(corner, {corner.x + Draw(12), corner.y + Draw(9)});
  }
  char Letter() {
    const int tool = kTools[static_cast<std::size_t>(Draw(kToolCount))];
    return LetterOfTool(tool, Draw(kDogs) + 1);
  }
  char NoDog() {
    const char letter = Letter();
    return DogNumber(letter) == 0 ? letter : 'A';
  }
  std::string Text(std::size_t length) {
    return std::string(static_cast<std::size_t>(Draw(length)), static_cast<char>('A' + Draw(26)));
  }
};

void Stroke(Lot& lot, CaveModel& model) {
  model.BeginStroke();
  CavePlace from = lot.Place(model);
  const char letter = lot.Letter();
  for (int i = lot.Draw(4); i >= 0; --i) {
    const CavePlace to = lot.Place(model);
    model.DrawShape(StrokeOf(from, to, AreaOf(model.Cave())), letter, EditStep::Line);
    from = to;
  }
  model.EndStroke();
}

void Shape(Lot& lot, CaveModel& model) {
  const CavePlace from = lot.Place(model);
  const CavePlace to = lot.Place(model);
  const CaveArea cave = AreaOf(model.Cave());
  const int kind = lot.Draw(3);
  if (kind == 0) model.DrawShape(LineOf(from, to, cave), lot.Letter(), EditStep::Line);
  if (kind == 1) model.DrawShape(FrameOf(from, to, cave), lot.Letter(), EditStep::Rectangle);
  if (kind == 2) model.DrawShape(BoxOf(from, to, cave), lot.Letter(), EditStep::FilledRectangle);
}

void Paste(Lot& lot, CaveModel& model) {
  if (lot.block.IsEmpty()) return;
  const auto read = ReadBlock(WriteBlock(lot.block));
  ASSERT_TRUE(read && *read == lot.block);
  model.Paste(*read, lot.Place(model));
}

void Sides(Lot& lot, CaveModel& model) {
  CaveSides sides;
  for (int* side : {&sides.left, &sides.top, &sides.right, &sides.bottom}) *side = lot.Draw(9) - 4;
  model.Resize(sides);
}

void Properties(Lot& lot, CaveModel& model) {
  Formality formality = FormalityOf(model.Cave());
  formality.Numbers[static_cast<std::size_t>(lot.Draw(kCaveNumbers))] = lot.Draw(130);
  formality.Name = lot.Text(40);
  formality.Colouring = static_cast<std::size_t>(lot.Draw(kColourings.size()));
  Correct(formality);
  model.SetProperties(formality);
}

void Replace(Lot& lot, CaveModel& model) {
  const char p = lot.NoDog();
  if (lot.Draw(2) == 0) return model.ReplaceO(p, lot.NoDog(), lot.Draw(2) + 1);
  model.ReplaceRandom(p, lot.NoDog(), lot.Draw(12), lot.rnd);
}

// Each is one step at most.
void (*const kEdits[])(Lot& lot, CaveModel& model) = {
    Stroke,
    Shape,
    Paste,
    Sides,
    Properties,
    Replace,
    [](Lot& lot, CaveModel& model) {
      const auto [x, y] = lot.Place(model);
      model.Draw(x, y, lot.Letter());
    },
    [](Lot& lot, CaveModel& model) {
      model.DrawShape(RegionOf(model.Cave(), lot.Place(model)), lot.Letter(), EditStep::Fill);
    },
    [](Lot& lot, CaveModel& model) { lot.block = model.Copy(lot.Area(model)); },
    [](Lot& lot, CaveModel& model) { lot.block = model.Cut(lot.Area(model)); },
    [](Lot& lot, CaveModel& model) { model.Clear(lot.Area(model)); },
    [](Lot& lot, CaveModel& model) { model.Move(lot.Area(model), lot.Place(model)); },
    [](Lot& lot, CaveModel& model) { model.Turn(lot.Area(model), static_cast<CaveTurn>(lot.Draw(4))); },
    [](Lot& lot, CaveModel& model) { model.InsertRow(lot.Place(model).y); },
    [](Lot& lot, CaveModel& model) { model.InsertColumn(lot.Place(model).x); },
    [](Lot& lot, CaveModel& model) { model.DeleteRow(lot.Place(model).y); },
    [](Lot& lot, CaveModel& model) { model.DeleteColumn(lot.Place(model).x); },
    [](Lot& lot, CaveModel& model) { model.SaveScript(lot.Text(3000)); },
    [](Lot& lot, CaveModel& model) { model.MakeFrame(lot.NoDog()); },
    [](Lot& lot, CaveModel& model) {
      if (lot.Draw(20) == 0) model.Restore();
    },
};

// A cave with letters of all kinds, some without a tile, in which each dog stands once.
CaveModel AnyCave(Lot& lot) {
  Picture picture = test::Full(20 + lot.Draw(60), 15 + lot.Draw(35), ';');
  for (std::string& row : picture) {
    for (char& letter : row) letter = lot.Draw(20) == 0 ? "$Cx~"[lot.Draw(4)] : lot.NoDog();
  }
  picture[3].replace(3, kDogs, "123456789");
  return test::Opened(picture);
}

// No dog stands twice, cut off or not.
void ExpectSingleDogs(const CaveModel& model) {
  std::array<int, kDogs + 1> count{};
  for (const auto& column : model.Cave().Cells) {
    for (const char letter : column) ++count[static_cast<std::size_t>(DogNumber(letter))];
  }
  for (std::size_t dog = 1; dog < count.size(); ++dog) EXPECT_LE(count[dog], 1) << dog;
}

// Somebody edits a cave, and remembers what it was like at each step that can be undone or done again.
class Session {
 public:
  explicit Session(std::uint64_t seed) : lot_{Chance(seed)}, model_(AnyCave(lot_)), seen_{SightOf(model_)} {}

  // How much the amoeba counter is off is changed by two things only: the frame does not count, and opening
  // counts anew.
  void Edit() {
    const int off = model_.Amoebas() - model_.NuOfOb('A');
    const int amoebas = model_.Amoebas();
    kEdits[lot_.Draw(std::size(kEdits))](lot_, model_);
    const Sight sight = SightOf(model_);
    const bool changed = sight != seen_[at_];
    if (changed) Remember(sight);
    const EditStep step = changed ? model_.UndoSteps().back() : EditStep::Stroke;
    if (step == EditStep::Frame) {
      EXPECT_EQ(model_.Amoebas(), amoebas);
    } else {
      EXPECT_EQ(model_.Amoebas() - model_.NuOfOb('A'), step == EditStep::Restore ? 0 : off);
    }
    ExpectSingleDogs(model_);
    mostBytes_ = std::max(mostBytes_, model_.UndoBytes());
  }

  void GoTo(std::size_t step) {
    model_.UndoTo(step);
    at_ = step;
    EXPECT_EQ(SightOf(model_), seen_[at_]) << at_;
  }

  // Some steps back, and some of them forth again.
  void Waver(std::size_t steps) {
    for (int i = lot_.Draw(steps); i > 0 && model_.CanUndo(); --i) GoBy(-1);
    for (int i = lot_.Draw(steps / 2); i > 0 && model_.CanRedo(); --i) GoBy(1);
  }

  // All the way back and forth, step by step.
  void WalkAll() {
    while (model_.CanUndo()) GoBy(-1);
    EXPECT_EQ(at_, 0U);
    while (model_.CanRedo()) GoBy(1);
    EXPECT_EQ(at_ + 1, seen_.size());
  }

  const CaveModel& Model() const { return model_; }
  const std::deque<Sight>& Seen() const { return seen_; }
  std::size_t MostBytes() const { return mostBytes_; }

 private:
  void Remember(const Sight& sight) {
    seen_.resize(at_ + 1);
    seen_.push_back(sight);
    ASSERT_LE(model_.UndoSteps().size() + 1, seen_.size()) << "an edit was more than a step";
    while (seen_.size() > model_.UndoSteps().size() + 1) seen_.pop_front();
    at_ = seen_.size() - 1;
  }

  void GoBy(int way) {
    way < 0 ? model_.Undo() : model_.Redo();
    at_ = way < 0 ? at_ - 1 : at_ + 1;
    ASSERT_EQ(SightOf(model_), seen_.at(at_)) << at_;
  }

  Lot lot_;
  CaveModel model_;
  std::deque<Sight> seen_;
  std::size_t at_ = 0;
  std::size_t mostBytes_ = 0;
};

constexpr int kManyEdits = 10000;

TEST(CaveModelEdits, AreUndoneBackToTheOpenedCaveAndDoneAgainByteForByte) {
  for (const std::uint64_t seed : {1U, 2U, 3U}) {
    Session session(seed);
    const Sight opened = session.Seen().front();
    for (int i = 0; i < kManyEdits; ++i) {
      session.Edit();
      if (i % 2 == 0) session.Waver(7);
      if (i % 1000 == 999) session.WalkAll();
    }
    const Sight last = SightOf(session.Model());
    session.WalkAll();
    EXPECT_EQ(SightOf(session.Model()), last) << seed;
    session.GoTo(0);
    EXPECT_EQ(SightOf(session.Model()), opened) << seed << ": fewer steps than are kept";
  }
}

TEST(CaveModelEdits, TakeBoundedMemoryAndLoseNoStepThatIsKept) {
  Session session(4);
  for (int i = 0; i < kManyEdits; ++i) {
    session.Edit();
    if (i % 100 == 99) session.Waver(20);
  }
  EXPECT_LE(session.Seen().size(), CaveModel::kMostSteps + 1);
  EXPECT_GE(session.Seen().size(), 500U);
  EXPECT_LE(session.MostBytes(), CaveModel::kMostUndoBytes);
  session.WalkAll();
  RecordProperty("bytes", std::to_string(session.MostBytes()));
}

}  // namespace
}  // namespace zorik
