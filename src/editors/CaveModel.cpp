#include "editors/CaveModel.h"

#include <algorithm>
#include <utility>

#include "data/Result.h"
#include "editors/ToolTable.h"

namespace zorik {
namespace {

constexpr char kUnnumberedDog = 'H';

template <class Visit>
void ForEachCell(int width, int height, Visit visit) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) visit(x, y);
  }
}

// The sides that opening has changed.
std::vector<Correction> SizesCut(const CaveRecord& before, const CaveRecord& after) {
  std::vector<Correction> report;
  for (const CaveNumber side : {CaveNumber::Width, CaveNumber::Height}) {
    const int was = FormalityOf(before).Number(side);
    const int now = FormalityOf(after).Number(side);
    if (was == now) continue;
    const TextId label = kNumberRows[static_cast<std::size_t>(side)].label;
    report.push_back({.label = label, .limit = now, .was = std::to_string(was)});
  }
  return report;
}

// A correction together with what stood in the cave before, and what stands there now if that is a text.
Correction WithOld(Correction line, const CaveRecord& cave, const Formality& now) {
  const Formality before = FormalityOf(cave);
  for (const NumberRow& row : kNumberRows) {
    if (row.label == line.label) line.was = std::to_string(before.Number(row.number));
  }
  if (line.label == TextId::Name) {
    line.was = before.Name;
    line.text = now.Name;
  }
  if (line.label == TextId::Description) {
    line.was = before.Description;
    line.text = now.Description;
  }
  return line;
}

}  // namespace

// Opening

Result<std::vector<Correction>> CaveModel::OpenCave(std::string_view text) {
  const Result<CaveRecord> cave = ParseCaveText(text);
  if (!cave) return Failure{cave.Message()};
  text_ = text;
  undo_.clear();
  redo_.clear();
  stroke_.reset();
  return Enter(*cave);
}

std::vector<Correction> CaveModel::Restore() {
  std::vector<Correction> report;
  AsStep(EditStep::Restore, [&] { report = Enter(*ParseCaveText(text_)); });
  return report;
}

std::vector<Correction> CaveModel::Enter(const CaveRecord& cave) {
  state_ = {cave, 0};
  SetRozm();
  Formality formality = FormalityOf(state_.cave);
  std::vector<Correction> report = SizesCut(cave, state_.cave);
  for (Correction& line : Correct(formality)) report.push_back(WithOld(std::move(line), cave, formality));
  const int firstDogs = NumberDogs();
  if (firstDogs > 1) report.push_back({.label = TextId::Dog, .limit = 1, .was = std::to_string(firstDogs)});
  const auto& alike = kColourings[formality.Colouring].alike;
  if (std::find(alike.begin(), alike.end(), cave.Colouring) == alike.end()) {
    report.push_back({.label = TextId::Colouring, .entry = kColourings[formality.Colouring].caption});
    report.back().wasEntry = CaptionOfColouring(cave.Colouring);
  }
  TakeProperties(formality);
  state_.amoebas = NuOfOb(kAmoebaLetter);
  PaintAll();
  opened_ = state_;
  intact_ = report.empty() ? text_ : *Untouched(cave, report);
  return report;
}

// A dog without a number is the first one. Where that one then stands several times, the last stays, which is
// the one that the game steers. The answer is how many there were.
int CaveModel::NumberDogs() {
  const auto& cells = state_.cave.Cells;
  const bool unnumbered = std::any_of(cells.begin(), cells.end(), [](const auto& column) {
    return std::find(column.begin(), column.end(), kUnnumberedDog) != column.end();
  });
  if (!unnumbered) return 0;
  int count = 0;
  int lastX = -1;
  int lastY = -1;
  ForEachCell(CaveRecord::kColumns, CaveRecord::kRows, [&](int x, int y) {
    if (DogNumber(At(x, y)) != 1) return;
    ++count;
    Cell(x, y) = kEmpty;
    if (!Inside(x, y) && Inside(lastX, lastY)) return;
    lastX = x;
    lastY = y;
  });
  Cell(lastX, lastY) = '1';
  return count;
}

// What nobody was told of stays as it was in the text.
Result<std::string> CaveModel::Untouched(const CaveRecord& cave,
                                         const std::vector<Correction>& report) const {
  const auto told = [&](TextId label) {
    return std::any_of(report.begin(), report.end(), [=](const auto& line) { return line.label == label; });
  };
  CaveRecord untouched = state_.cave;
  if (!told(TextId::Colouring)) untouched.Colouring = cave.Colouring;
  const int width = told(TextId::Dog) ? 0 : std::min(cave.Width, untouched.Width);
  ForEachCell(width, std::min(cave.Height, untouched.Height), [&](int x, int y) {
    untouched.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] = Letter(cave, x, y);
  });
  return BuildCaveText(untouched);
}

// Column by column: what has no tile is painted like the cell before.
void CaveModel::PaintAll() {
  char look = kEmpty;
  for (auto& column : looks_) column.fill(look);
  for (int x = 0; x < Width(); ++x) {
    for (int y = 0; y < Height(); ++y) {
      if (ToolOfLetter(At(x, y)) >= 0) look = At(x, y);
      looks_[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] = look;
    }
  }
}

char CaveModel::LookAt(int x, int y) const {
  const char letter = At(x, y);
  return ToolOfLetter(letter) >= 0 ? letter
                                   : looks_[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
}

// What is cut off stays as it is, and comes back when the cave grows again.
void CaveModel::SetRozm() {
  CaveRecord& cave = state_.cave;
  cave.Width = static_cast<std::uint8_t>(std::clamp<int>(cave.Width, kLeastSide, kMostWidth));
  cave.Height = static_cast<std::uint8_t>(std::clamp<int>(cave.Height, kLeastSide, kMostHeight));
  FillUnset(cave);
}

Result<std::string> CaveModel::Text() const {
  if (state_ == opened_) return intact_;
  return BuildCaveText(state_.cave);
}

// Counting

int CaveModel::NuOfOb(char letter) const {
  int count = 0;
  ForEachCell(Width(), Height(), [&](int x, int y) { count += At(x, y) == letter ? 1 : 0; });
  return count;
}

std::optional<int> CaveModel::MissingDog() const {
  std::array<bool, 10> occurs{};
  int top = 0;
  ForEachCell(Width(), Height(), [&](int x, int y) {
    const int dog = ValueOf(At(x, y));
    occurs[static_cast<std::size_t>(dog)] = true;
    top = std::max(top, dog);
  });
  if (top == 0) return 0;
  for (int dog = 1; dog <= top; ++dog) {
    if (!occurs[static_cast<std::size_t>(dog)]) return dog;
  }
  return std::nullopt;
}

// Drawing

void CaveModel::Put(int x, int y, char letter) {
  if (At(x, y) == kAmoebaLetter) --state_.amoebas;
  Cell(x, y) = letter;
  if (letter == kAmoebaLetter) ++state_.amoebas;
}

// A dog's number stands once in a cave, what was cut off included: it may come back.
bool CaveModel::TakeDogAway(int x, int y, char letter) {
  bool away = false;
  ForEachCell(CaveRecord::kColumns, CaveRecord::kRows, [&](int otherX, int otherY) {
    if (At(otherX, otherY) != letter || (otherX == x && otherY == y)) return;
    Cell(otherX, otherY) = kEmpty;
    away = true;
  });
  return away;
}

bool CaveModel::Draw(int x, int y, char letter) {
  if (!Inside(x, y)) return false;
  const bool single = !stroke_;
  if (single) BeginStroke();
  bool changed = DogNumber(letter) != 0 && TakeDogAway(x, y, letter);
  if (At(x, y) != letter) {
    Put(x, y, letter);
    changed = true;
  }
  if (single) EndStroke();
  return changed;
}

void CaveModel::BeginStroke(EditStep step) {
  EndStroke();
  stroke_ = Change{step, state_};
}

void CaveModel::EndStroke() {
  if (!stroke_) return;
  Change change = *std::move(stroke_);
  stroke_.reset();
  Step(std::move(change));
}

void CaveModel::DropStroke() {
  if (!stroke_) return;
  state_ = std::move(stroke_->state);
  stroke_.reset();
}

// Replacing

void CaveModel::ReplaceO(char p, char l, int n) {
  int found = 0;
  AsStep(EditStep::ReplaceEvery, [&] {
    ForEachCell(Width(), Height(), [&](int x, int y) {
      if (At(x, y) == p && ++found % n == 0) Put(x, y, l);
    });
  });
}

void CaveModel::ReplaceRandom(char p, char l, int wanted, Chance& rnd) {
  AsStep(EditStep::ReplaceRandom, [&] {
    const int count = NuOfOb(p);
    int left = std::min(wanted == 0 ? count / 2 : wanted, count);
    while (left > 0) {
      const int x = static_cast<int>(rnd.Below(static_cast<std::uint32_t>(Width())));
      const int y = static_cast<int>(rnd.Below(static_cast<std::uint32_t>(Height())));
      if (At(x, y) != p) continue;
      Put(x, y, l);
      --left;
    }
  });
}

void CaveModel::MakeFrame(char l) {
  AsStep(EditStep::Frame, [&] {
    for (int x = 0; x < Width(); ++x) Cell(x, 0) = Cell(x, Height() - 1) = l;
    for (int y = 0; y < Height(); ++y) Cell(0, y) = Cell(Width() - 1, y) = l;
  });
}

// Properties

void CaveModel::TakeProperties(const Formality& formality) {
  const int before = NuOfOb(kAmoebaLetter);
  TakeFormality(formality, state_.cave);
  SetRozm();
  state_.amoebas += NuOfOb(kAmoebaLetter) - before;
}

void CaveModel::SetProperties(const Formality& formality) {
  AsStep(EditStep::Properties, [&] { TakeProperties(formality); });
}

void CaveModel::SaveScript(const std::string& script) {
  AsStep(EditStep::Script, [&] { state_.cave.Script = script; });
}

// Undoing

// The state before the last change stays whatever it takes, since a single step back is what is wanted most.
bool CaveModel::Step(Change change) {
  if (state_ == change.state) return false;
  redo_.clear();
  undo_.push_back(std::move(change));
  std::size_t bytes = UndoBytes();
  while (undo_.size() > kMostSteps || (bytes > kMostUndoBytes && undo_.size() > 1)) {
    bytes -= BytesOf(undo_.front());
    undo_.pop_front();
  }
  return true;
}

void CaveModel::Undo() {
  EndStroke();
  if (undo_.empty()) return;
  redo_.push_back({undo_.back().step, std::exchange(state_, std::move(undo_.back().state))});
  undo_.pop_back();
}

void CaveModel::Redo() {
  EndStroke();
  if (redo_.empty()) return;
  undo_.push_back({redo_.back().step, std::exchange(state_, std::move(redo_.back().state))});
  redo_.pop_back();
}

std::vector<EditStep> CaveModel::UndoSteps() const {
  std::vector<EditStep> steps;
  for (const Change& change : undo_) steps.push_back(change.step);
  return steps;
}

std::vector<EditStep> CaveModel::RedoSteps() const {
  std::vector<EditStep> steps;
  for (auto change = redo_.rbegin(); change != redo_.rend(); ++change) steps.push_back(change->step);
  return steps;
}

void CaveModel::UndoTo(std::size_t steps) {
  EndStroke();
  while (undo_.size() > steps) Undo();
  while (undo_.size() < steps && CanRedo()) Redo();
}

std::size_t CaveModel::BytesOf(const Change& change) {
  const CaveRecord& cave = change.state.cave;
  return sizeof(Change) + cave.Name.capacity() + cave.Description.capacity() + cave.Script.capacity();
}

std::size_t CaveModel::UndoBytes() const {
  std::size_t bytes = 0;
  for (const auto* const changes : {&undo_, &redo_}) {
    for (const Change& change : *changes) bytes += BytesOf(change);
  }
  return bytes;
}

}  // namespace zorik
