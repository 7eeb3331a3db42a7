#include <QHelpEvent>
#include <QSignalSpy>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "editors/EditTiles.h"
#include "editors/EditorScreen.h"
#include "editors/Paints.h"
#include "editors/Palette.h"
#include "editors/ToolHint.h"

namespace zorik {
namespace {

class PaletteTest : public testing::Test, public test::EditorScreen {
 protected:
  PaletteTest() { Open({"WWWWW", "W1..W", "W...W", "W...W", "WWWWW"}); }

  QString TooltipOf(int palette) const {
    const QPoint place = Tiles().TileRect(palette).center();
    QHelpEvent help(QEvent::ToolTip, place, Tiles().mapToGlobal(place));
    QApplication::sendEvent(&Tiles(), &help);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
  }
};

TEST_F(PaletteTest, StartsWithBoulderDirtAndGem) {
  EXPECT_EQ(Tool(ToolButton::Left), 2);
  EXPECT_EQ(Tool(ToolButton::Right), 1);
  EXPECT_EQ(Tool(ToolButton::Middle), 3);
}

TEST_F(PaletteTest, HasNoToolsBeforeACaveIsOpened) {
  MakeWindow();
  for (const auto button : {ToolButton::Left, ToolButton::Right, ToolButton::Middle})
    EXPECT_EQ(Tool(button), -1);
}

TEST_F(PaletteTest, TakesEachTileWithEachButton) {
  for (const int palette : kTools) {
    Pick(palette, Qt::LeftButton);
    EXPECT_EQ(Tool(ToolButton::Left), palette);
    Pick(palette, Qt::RightButton);
    EXPECT_EQ(Tool(ToolButton::Right), palette);
    Pick(palette, Qt::MiddleButton);
    EXPECT_EQ(Tool(ToolButton::Middle), palette);
  }
}

TEST_F(PaletteTest, TakesNothingBetweenTheTilesAndWithOtherButtons) {
  QTest::mouseClick(&Tiles(), Qt::LeftButton, {}, QPoint(1, 1));  // no place, or (0, 0), is the middle
  QTest::mouseClick(&Tiles(), Qt::BackButton, {}, Tiles().TileRect(7).center());
  EXPECT_EQ(Tool(ToolButton::Left), 2);
  EXPECT_EQ(Tool(ToolButton::Right), 1);
  EXPECT_EQ(Tool(ToolButton::Middle), 3);
}

TEST_F(PaletteTest, ShowsTilesOf26ThatDoNotOverlap) {
  QRegion tiles;
  for (const int palette : kTools) {
    const QRect tile = Tiles().TileRect(palette);
    EXPECT_EQ(tile.size(), QSize(26, 26));
    EXPECT_TRUE(Tiles().rect().contains(tile));
    EXPECT_FALSE(tiles.intersects(tile));
    tiles += tile;
  }
}

TEST_F(PaletteTest, MarksTheToolsWithThreeFrames) {
  for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) Pick(9, button);
  const QRect tile = Tiles().TileRect(9);
  EXPECT_EQ(Tiles().FrameRect(ToolButton::Left).topLeft(), tile.topLeft());
  EXPECT_EQ(Tiles().FrameRect(ToolButton::Right).right(), tile.right());
  const QRect middle = Tiles().FrameRect(ToolButton::Middle);
  EXPECT_EQ(middle.left() - tile.left(), tile.right() - middle.right());
  EXPECT_EQ(middle.top() - tile.top(), tile.bottom() - middle.bottom());
}

// As much room between two tiles as between the outer ones and the edge.
TEST_F(PaletteTest, KeepsTheTilesApartEvenly) {
  Tiles().resize(Tiles().sizeHint());
  QRect all;
  for (const int palette : kTools) all |= Tiles().TileRect(palette);
  const QRect first = Tiles().TileRect(0);
  const int gap = Tiles().TileRect(1).left() - first.right() - 1;
  EXPECT_GT(gap, 0);
  EXPECT_EQ(all, Tiles().rect().adjusted(gap, gap, -gap, -gap));
  EXPECT_EQ(Tiles().TileRect(17).topLeft(), first.bottomLeft() + QPoint(0, gap + 1)) << "17 in a row";
  for (const auto& [place, chosen] : {std::pair(QPoint(1, 0), 2), std::pair(QPoint(), 0)}) {
    QTest::mouseClick(&Tiles(), Qt::LeftButton, {}, first.bottomRight() + place);
    EXPECT_EQ(Tool(ToolButton::Left), chosen) << "a tile is chosen as far as it goes";
  }
}

// A frame is a line in the colour of its button between two black ones; nothing else of the tile is covered.
TEST_F(PaletteTest, DrawsEachFrameInTheColourOfItsButton) {
  Area().setFocus();
  for (const auto button : {ToolButton::Left, ToolButton::Right, ToolButton::Middle}) {
    for (const auto other : {ToolButton::Left, ToolButton::Right, ToolButton::Middle}) {
      Tiles().SelectTool(other, 8);
    }
    QApplication::processEvents();
    const QRect tile = Tiles().TileRect(9);
    const QImage bare = Tiles().grab().toImage();
    Tiles().SelectTool(button, 9);
    const QImage now = Tiles().grab().toImage();
    const QRect frame = Tiles().FrameRect(button);
    EXPECT_TRUE(tile.contains(frame));
    EXPECT_EQ(frame.size(), QSize(20, 20)) << "smaller than the tile, so that three can be seen on it";
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
      for (int x = tile.left(); x <= tile.right(); ++x) {
        const int inside =
            std::min({x - frame.left(), frame.right() - x, y - frame.top(), frame.bottom() - y});
        QColor expected = bare.pixelColor(x, y);
        if (inside == 0 || inside == 3) expected = Qt::black;
        // The lines' own corners may be round.
        if (inside == 1 && frame.adjusted(2, 2, -2, -2).contains(x, frame.center().y()) ==
                               frame.adjusted(2, 2, -2, -2).contains(frame.center().x(), y)) {
          continue;
        }
        if (inside == 1 || inside == 2) expected = ColourOfTool(button);
        ASSERT_EQ(now.pixelColor(x, y), expected) << x << ' ' << y << ' ' << inside;
      }
    }
  }
}

// The keys' place is framed outside of its tile, and only while the keys go to the palette.
TEST_F(PaletteTest, FramesTheTileOfTheKeys) {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  Area().setFocus();
  QApplication::processEvents();
  const QImage bare = Tiles().grab().toImage();
  Tiles().setFocus();
  QTest::keyClick(&Tiles(), Qt::Key_Home);
  for (int i = 0; i < 4; ++i) QTest::keyClick(&Tiles(), Qt::Key_Right);
  const QImage now = Tiles().grab().toImage();
  const QRect tile = Tiles().TileRect(4);
  const QColor colour = Tiles().palette().color(QPalette::Highlight);
  const QRect outer = tile.adjusted(-2, -2, 2, 2);
  for (int y = 0; y < now.height(); ++y) {
    for (int x = 0; x < now.width(); ++x) {
      const bool round =
          (x == outer.left() || x == outer.right()) && (y == outer.top() || y == outer.bottom());
      if (round) continue;
      const bool around = outer.contains(x, y) && !tile.contains(x, y);
      ASSERT_EQ(now.pixelColor(x, y), around ? colour : bare.pixelColor(x, y)) << x << ' ' << y;
    }
  }
}

TEST_F(PaletteTest, IsPaintedAnewWithEachToolDogAndPlace) {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  Tiles().setFocus();
  QTest::keyClick(&Tiles(), Qt::Key_Home);
  QApplication::processEvents();
  test::Paints paints(Tiles());
  const std::function<void()> changes[] = {
      [this] { Tiles().SelectTool(ToolButton::Left, 12); },
      [this] { Tiles().SetCurrentDog(5); },
      [this] { QTest::keyClick(&Tiles(), Qt::Key_Right); },
      [this] { Pick(12); },
  };
  for (const auto& change : changes) {
    paints.count = 0;
    change();
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; })) << &change - changes;
  }
}

// By itself, where nothing else has it painted.
TEST_F(PaletteTest, ShowsAToolThatIsChosenElsewhere) {
  EditTiles tiles;
  tiles.Load(skin.Places(), "Classic");
  zorik::Palette alone(
      tiles, [](int) { return QString(); }, nullptr);
  alone.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&alone));
  QApplication::processEvents();
  test::Paints paints(alone);
  alone.SelectTool(ToolButton::Left, 3);
  EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
  QApplication::processEvents();
  paints.count = 0;
  alone.SetCurrentDog(4);
  EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
}

TEST_F(PaletteTest, TellsOfAToolOnlyWhenItIsAnotherOne) {
  const QSignalSpy told(&Tiles(), &zorik::Palette::ToolSelected);
  Tiles().SelectTool(ToolButton::Left, 12);
  EXPECT_EQ(told.count(), 1);
  Tiles().SelectTool(ToolButton::Left, 12);
  EXPECT_EQ(told.count(), 1);
  Tiles().SelectTool(ToolButton::Right, 12);
  EXPECT_EQ(told.count(), 2);
}

TEST_F(PaletteTest, DrawsAFrameWhereTheToolIs) {
  const auto picture = [this](int palette) {
    QApplication::processEvents();
    return Tiles().grab(Tiles().TileRect(palette)).toImage();
  };
  const QImage bare = picture(9);
  Pick(9, Qt::RightButton);
  EXPECT_NE(picture(9), bare);
  Pick(8, Qt::RightButton);
  Area().setFocus();
  EXPECT_EQ(picture(9), bare);
}

// The names of the first ones stand in the order of the palette, with room neither for the dog, whose name is
// elsewhere, nor for the number without a tile.
TEST_F(PaletteTest, NamesEachTileByItsPlaceInTheLanguage) {
  for (const char* const language : {"Default", "English"}) {
    Wear(language);
    window->SetLW();
    int place = 10;
    for (const int palette : kTools) {
      if (palette == kDogTool || palette > 34) continue;
      const QString name = skin.Text(static_cast<TextId>(place++));
      ASSERT_FALSE(name.isEmpty());
      EXPECT_EQ(TooltipOf(palette), name) << palette;
    }
    EXPECT_EQ(place, 43);
  }
}

TEST_F(PaletteTest, NamesItsTiles) {
  EXPECT_EQ(TooltipOf(0), "Prázdno");
  EXPECT_EQ(TooltipOf(2), "Balvan");
  EXPECT_EQ(TooltipOf(17), "Světluška vlevo");
  EXPECT_EQ(TooltipOf(28), "Zelený zámek");
  EXPECT_EQ(TooltipOf(30), "Bomba");
  EXPECT_EQ(TooltipOf(34), "Vážka");
}

TEST_F(PaletteTest, NamesTheCurrentDog) {
  EXPECT_EQ(TooltipOf(kDogTool), "Zorík č. 1");
  Action("Dog(7)").trigger();
  EXPECT_EQ(TooltipOf(kDogTool), "Zorík č. 7");
}

TEST_F(PaletteTest, ShowsAPictureForEachDogAndEachObject) {
  Area().setFocus();
  for (const auto button : {ToolButton::Left, ToolButton::Right, ToolButton::Middle}) {
    Tiles().SelectTool(button, 0);
  }
  const QImage tiles = Tiles().grab().toImage();
  std::vector<QImage> pictures;
  for (const int palette : kTools) {
    if (palette != 0) pictures.push_back(tiles.copy(Tiles().TileRect(palette)));
  }
  for (int dog = 2; dog <= kDogs; ++dog) {
    Action(qPrintable(QString("Dog(%1)").arg(dog))).trigger();
    pictures.push_back(Tiles().grab(Tiles().TileRect(kDogTool)).toImage());
  }
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    for (std::size_t j = i + 1; j < pictures.size(); ++j)
      EXPECT_NE(pictures[i], pictures[j]) << i << " " << j;
  }
}

TEST_F(PaletteTest, IsUsedByKeys) {
  Tiles().setFocus();
  QTest::keyClick(&Tiles(), Qt::Key_Home);
  QTest::keyClick(&Tiles(), Qt::Key_Right);
  QTest::keyClick(&Tiles(), Qt::Key_Right);
  QTest::keyClick(&Tiles(), Qt::Key_Down);
  QTest::keyClick(&Tiles(), Qt::Key_Space);
  EXPECT_EQ(Tool(ToolButton::Left), 19) << "17 tiles a row";
  QTest::keyClick(&Tiles(), Qt::Key_Left);
  QTest::keyClick(&Tiles(), Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(Tool(ToolButton::Right), 18);
  QTest::keyClick(&Tiles(), Qt::Key_Up);
  QTest::keyClick(&Tiles(), Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Tool(ToolButton::Middle), 1);
  QTest::keyClick(&Tiles(), Qt::Key_Up);
  EXPECT_EQ(Status(), "Hlína") << "there is nothing above the first row";
  QTest::keyClick(&Tiles(), Qt::Key_End);
  EXPECT_EQ(Status(), TooltipOf(kTools.back()));
  QTest::keyClick(&Tiles(), Qt::Key_Enter);
  EXPECT_EQ(Tool(ToolButton::Left), kTools.back());
}

TEST_F(PaletteTest, LeavesOutTheNumberWithoutATileUnderKeys) {
  Tiles().setFocus();
  Pick(28);
  QTest::keyClick(&Tiles(), Qt::Key_Right);
  QTest::keyClick(&Tiles(), Qt::Key_Space);
  EXPECT_EQ(Tool(ToolButton::Left), 30);
}

TEST_F(PaletteTest, NamesTheNewDogAtOnceWhenThePointerIsOnTheOldOne) {
  for (const int tile : {2, kDogTool}) QTest::mouseMove(&Tiles(), Tiles().TileRect(tile).center());
  EXPECT_EQ(Status(), "Zorík č. 1");
  Action("Dog(7)").trigger();
  EXPECT_EQ(Status(), "Zorík č. 7");
}

TEST_F(PaletteTest, NamesNothingOnceThePointerHasLeftIt) {
  for (const int tile : {3, 2}) QTest::mouseMove(&Tiles(), Tiles().TileRect(tile).center());
  EXPECT_EQ(Status(), "Balvan");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Tiles(), &leave);
  EXPECT_EQ(Status(), "");
}

}  // namespace
}  // namespace zorik
