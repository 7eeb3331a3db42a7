// A cave with everything in it, made as an author makes it: by the palette, the menus and the mouse. Then it
// is saved, loaded, edited once more and started in the machine.
#include <QTemporaryDir>
#include <algorithm>

#include "data/Collection.h"
#include "data/Files.h"
#include "data/Result.h"
#include "editors/EditorScreen.h"

namespace zorik {
namespace {

using test::Full;
using test::LettersOf;
using test::Picture;

// What a tool draws, and what the machine makes of it.
struct PaletteRow {
  int palette;
  char letter;
  int code;
  int state;
  int mark;
};
constexpr PaletteRow kTools[] = {
    {0, '.', 0, 0, 0},   {1, ';', 1, 0, 0},   {2, 'R', 2, 2, 0},   {3, 'D', 3, 2, 0},   {5, 'X', 5, 1, 0},
    {6, '!', 17, 2, 0},  {7, '@', 18, 2, 0},  {8, 'W', 8, 0, 0},   {9, 'T', 9, 0, 0},   {10, 'A', 10, 0, 0},
    {11, 'M', 5, 0, 0},  {12, 'K', 11, 1, 0}, {13, '#', 19, 2, 0}, {14, '%', 20, 1, 0}, {15, 'S', 14, 0, 0},
    {16, 'L', 15, 0, 0}, {17, 'F', 6, 0, 1},  {18, 'O', 6, 0, 2},  {19, 'P', 6, 0, 3},  {20, 'Q', 6, 0, 4},
    {21, 'U', 7, 0, 1},  {22, 'Y', 7, 0, 2},  {23, 'Z', 7, 0, 3},  {24, 'B', 7, 0, 4},  {25, 'E', 12, 0, 0},
    {26, 'V', 13, 0, 0}, {27, '&', 22, 1, 0}, {28, '^', 21, 1, 0}, {30, 'I', 11, 0, 0}, {31, 'N', 24, 0, 0},
    {32, 'G', 25, 0, 0}, {33, 'J', 26, 0, 0}, {34, ':', 27, 0, 0},
};
constexpr int kDogCode = 4;

constexpr int kWidth = 40;
constexpr int kHeight = 14;
constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

// Objects stand apart, so that none makes a pattern with another.
QPoint PlaceOfTool(std::size_t place) {
  const int at = static_cast<int>(place);
  return {2 + 2 * (at % 18), 2 + 2 * (at / 18)};
}
QPoint PlaceOfDog(int n) {
  return {2 * n, 8};
}

class FrmMainWalkTest : public testing::Test, public test::EditorScreen {
 protected:
  int Count(char letter) const { return window->Model().NuOfOb(letter); }

  // All ways to replace, on a cave of dirt.
  void Replace() const {
    Pick(2, Qt::LeftButton);
    Pick(1, Qt::RightButton);
    Action("mnuReplEvery(2)").trigger();
    EXPECT_EQ(Count('R'), 280);
    Pick(3, Qt::LeftButton);
    Action("mnuReplRan(1)").trigger();
    Action("mnuReplRan(5)").trigger();
    Action("mnuReplRan(10)").trigger();
    EXPECT_EQ(Count('D'), 16);
    Action("mnuReplRan(0)").trigger();
    EXPECT_EQ(Count('D'), 16 + 132);
    Pick(0, Qt::LeftButton);
    Pick(2, Qt::RightButton);
    Action("mnuReplEvery(1)").trigger();
    EXPECT_EQ(Count('R'), 0);
    EXPECT_EQ(Count('.'), 280);
  }

  void MakeFrame() const {
    Pick(8, Qt::LeftButton);
    Action("mnuOkraj").trigger();
  }

  // The mouse buttons take turns.
  void DrawTools() const {
    for (std::size_t i = 0; i < std::size(kTools); ++i) {
      const Qt::MouseButton button = kButtons[i % std::size(kButtons)];
      const QPoint place = PlaceOfTool(i);
      Pick(kTools[i].palette, button);
      Click(place.x(), place.y(), button);
      EXPECT_EQ(window->Model().At(place.x(), place.y()), kTools[i].letter);
    }
  }

  void DrawDogs() const {
    for (int n = 1; n <= kDogs; ++n) {
      Action(qPrintable(QString("Dog(%1)").arg(n))).trigger();
      Pick(kDogTool, Qt::LeftButton);
      Click(PlaceOfDog(n).x(), PlaceOfDog(n).y());
    }
  }

  std::string Handed() const {
    window->close();
    return done.empty() ? std::string() : done.back();
  }
};

// The cave text as it comes out of a file that was written with it.
std::string SavedAndLoaded(const std::string& text) {
  const QTemporaryDir folder;
  const std::string path = folder.filePath("a.zk").toStdString();
  EditedCollection collection;
  collection.CaveList = {text};
  Chance chance;
  const auto bytes = BuildCollection(collection, chance);
  EXPECT_TRUE(bytes && WriteWhole(path, *bytes));
  const auto loaded = FetchCaveText(path, 1);
  EXPECT_TRUE(loaded);
  return loaded ? *loaded : std::string();
}

const PaletteRow& ToolOf(char letter) {
  return *std::find_if(std::begin(kTools), std::end(kTools),
                       [letter](const PaletteRow& tool) { return tool.letter == letter; });
}

// A cell of the machine as the letter of the cave promises it.
void ExpectCell(const Hra& hra, Cell cell, char letter) {
  const bool dog = letter >= '1' && letter <= '9';
  EXPECT_EQ(hra.Field(cell), dog ? kDogCode : ToolOf(letter).code) << letter;
  EXPECT_EQ(hra.FieldState(cell), dog ? 0 : ToolOf(letter).state) << letter;
  EXPECT_EQ(hra.FieldMark(cell), dog ? 0 : ToolOf(letter).mark) << letter;
}

TEST_F(FrmMainWalkTest, MakesACaveOfEveryObjectThatIsSavedLoadedAndStarted) {
  Open(Full(kWidth, kHeight, ';'));
  Replace();
  MakeFrame();
  DrawTools();
  DrawDogs();
  const Picture drawn = Letters();

  QTest::mouseClick(&Child<QToolButton>("Label8"), Qt::LeftButton);
  ASSERT_EQ(tested.size(), 1U) << "nothing is missing";
  window->ComeBack();
  const std::string text = SavedAndLoaded(Handed());
  ASSERT_EQ(text, tested.front() + "---01");

  OpenText(text);
  EXPECT_EQ(Letters(), drawn);

  Hra hra(1);
  ASSERT_TRUE(PaintCave(hra, text, RunKind::Test));
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      ExpectCell(hra, Cell(x, y), drawn[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    }
  }
  EXPECT_EQ(hra.DogCount, kDogs);
  for (int n = 1; n <= kDogs; ++n) {
    EXPECT_EQ(QPoint(hra.Dog[static_cast<std::size_t>(n)].x, hra.Dog[static_cast<std::size_t>(n)].y),
              PlaceOfDog(n))
        << n;
  }
  EXPECT_EQ(Tick(hra, test::Keys("")), TickEnd::Running);
}

TEST_F(FrmMainWalkTest, PaintsEachCellAsItsTileInThePalette) {
  const auto part = [](QWidget& widget, const QRect& rect) {
    return widget.grab(rect).toImage().convertToFormat(QImage::Format_RGB32);
  };
  Open(Full(kWidth, kHeight, ';'));
  for (const Qt::MouseButton button : kButtons) Pick(0, button);
  Area().setFocus();
  for (const PaletteRow& row : kTools) {
    if (row.palette == 0) continue;
    Pick(row.palette);
    Click(3, 3);
    Pick(0);
    Move(9, 9, Qt::NoButton);
    EXPECT_EQ(part(Area(), QRect(QPoint(3, 3) * 26, QSize(26, 26))),
              part(Tiles(), Tiles().TileRect(row.palette)))
        << row.letter;
  }
}

}  // namespace
}  // namespace zorik
