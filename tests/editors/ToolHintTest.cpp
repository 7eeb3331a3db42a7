// What the three mouse buttons draw, as the status bar shows it: a mouse and a tile for each.
#include "editors/EditTiles.h"
#include "editors/EditorScreen.h"
#include "editors/Formality.h"
#include "editors/Paints.h"
#include "editors/ToolHint.h"

namespace zorik {
namespace {

class ToolHintTest : public testing::Test, public test::EditorScreen {
 protected:
  ToolHintTest() { Open({"WWWWW", "W1..W", "W...W", "W...W", "WWWWW"}); }

  // One of the three parts, from the left: those of the left, the middle and the right button.
  QImage Part(int place) const {
    auto& hint = Child<ToolHint>("ToolHint");
    hint.resize(hint.sizeHint());
    const int width = hint.width() / 3;
    return hint.grab(QRect(place * width, 0, width, hint.height()))
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
  }
  std::array<QImage, 3> Parts() const { return {Part(0), Part(1), Part(2)}; }

  // Picks a tile with a button; which parts of the picture change by it, as a letter each.
  std::string ChangedBy(int palette, Qt::MouseButton button) const {
    const auto before = Parts();
    Pick(palette, button);
    const auto now = Parts();
    std::string changed;
    for (std::size_t i = 0; i < 3; ++i) changed += before[i] == now[i] ? '-' : 'x';
    return changed;
  }

  static int Pixels(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
  }
};

TEST_F(ToolHintTest, ShowsTheToolOfEachButtonInItsPlace) {
  EXPECT_EQ(ChangedBy(8, Qt::LeftButton), "x--");
  EXPECT_EQ(ChangedBy(8, Qt::MiddleButton), "-x-");
  EXPECT_EQ(ChangedBy(8, Qt::RightButton), "--x");
}

TEST_F(ToolHintTest, ShowsTheCurrentDog) {
  Pick(kDogTool, Qt::LeftButton);
  const auto first = Parts();
  Action("Dog(2)").trigger();
  const auto second = Parts();
  EXPECT_NE(second[0], first[0]);
  EXPECT_EQ(second[1], first[1]);
  EXPECT_EQ(second[2], first[2]);
}

TEST_F(ToolHintTest, IsPaintedAnewWhenADogOrAToolIsChosen) {
  QCoreApplication::processEvents();
  test::Paints paints(Child<ToolHint>("ToolHint"));
  Pick(kDogTool, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
  paints.count = 0;
  Action("Dog(3)").trigger();
  EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
}

// Each mouse has its button in the colour that the frame in the palette has.
TEST_F(ToolHintTest, PaintsTheButtonOfEachMouse) {
  const std::array buttons{ToolButton::Left, ToolButton::Middle, ToolButton::Right};
  const auto parts = Parts();
  for (std::size_t part = 0; part < 3; ++part) {
    const QImage mouse = parts[part].copy(0, 0, 13, 20);
    for (std::size_t button = 0; button < 3; ++button) {
      const int pixels = Pixels(mouse, ColourOfTool(buttons[button]));
      EXPECT_EQ(pixels > 0, part == button) << part << ' ' << button;
    }
  }
  // On a mouse the left button is on its left side, the right one on its right.
  const auto side = [&](std::size_t part, int left) {
    return Pixels(parts[part].copy(left, 0, 6, 20), ColourOfTool(buttons[part]));
  };
  EXPECT_GT(side(0, 0), 0);
  EXPECT_EQ(side(0, 7), 0);
  EXPECT_EQ(side(2, 0), 0);
  EXPECT_GT(side(2, 7), 0);
}

// The mice stand in the middle of their height, each with its tile beside it and with twice as much room
// before the next mouse as between the two.
TEST_F(ToolHintTest, ShowsEachTileBesideItsMouse) {
  Pick(8, Qt::LeftButton);
  Pick(9, Qt::MiddleButton);
  Pick(10, Qt::RightButton);
  auto& hint = Child<ToolHint>("ToolHint");
  EXPECT_EQ(hint.sizeHint().height(), 20);
  EXPECT_EQ(hint.sizeHint().width() % 3, 0);
  EditTiles tiles;
  tiles.Load(skin.Places(), kColourings[EntryOfColouring(window->Model().Cave().Colouring)].scheme);
  const auto parts = Parts();
  constexpr std::array kPicked{8, 9, 10};
  for (std::size_t i = 0; i < 3; ++i) {
    const QImage& part = parts[i];
    const QColor ground = part.pixelColor(0, 0);
    const auto bare = [&](int x) {
      for (int y = 0; y < part.height(); ++y) {
        if (part.pixelColor(x, y) != ground) return false;
      }
      return true;
    };
    EXPECT_FALSE(bare(0)) << "the mouse begins at once";
    int mouse = 0;
    while (!bare(mouse)) ++mouse;
    EXPECT_EQ(mouse, 13);
    int tile = mouse;
    while (tile < part.width() && bare(tile)) ++tile;
    const QImage expected = tiles.Tile(kPicked[i], 1, 20).convertToFormat(part.format());
    EXPECT_EQ(part.copy(tile, 0, 20, 20), expected) << i;
    EXPECT_EQ(part.width() - tile - 20, 2 * (tile - mouse)) << i;
    for (int x = tile + 20; x < part.width(); ++x) EXPECT_TRUE(bare(x)) << x;
  }
}

// All colours of the buttons as one.
QImage Plain(QImage image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      for (const ToolButton button : {ToolButton::Left, ToolButton::Middle, ToolButton::Right}) {
        if (image.pixelColor(x, y) == ColourOfTool(button)) image.setPixelColor(x, y, Qt::red);
      }
    }
  }
  return image;
}

int Difference(const QImage& one, const QImage& other) {
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      count += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 40 ? 1 : 0;
    }
  }
  return count;
}

TEST_F(ToolHintTest, DrawsMiceThatAreTheSameOnBothSides) {
  const auto parts = Parts();
  const auto mouse = [&](std::size_t part) { return parts[part].copy(0, 0, 13, 20); };
  EXPECT_EQ(Difference(mouse(1), mouse(1).mirrored(true, false)), 0);
  // The smooth edges of two colours are not alike.
  EXPECT_LE(Difference(Plain(mouse(0)), Plain(mouse(2)).mirrored(true, false)), 8);
  // The body alone, below the buttons, and its rounded ends.
  const QImage body = mouse(1);
  const QColor ground = body.pixelColor(0, 0);
  for (int x = 0; x < 13; ++x) {
    int above = 0;
    int below = 0;
    while (above < 20 && body.pixelColor(x, above) == ground) ++above;
    while (below < 20 && body.pixelColor(x, 19 - below) == ground) ++below;
    EXPECT_EQ(above, below) << x;
  }
  EXPECT_EQ(body.pixelColor(6, 14), QColor(Qt::white));
  const QColor line = Child<ToolHint>("ToolHint").palette().color(QPalette::WindowText);
  for (const int edge : {0, 12})
    EXPECT_EQ(body.pixelColor(edge, 11), line) << "the line is a whole pixel wide";
}

TEST_F(ToolHintTest, PartsTheButtonsOfAMouseByLines) {
  const auto parts = Parts();
  const auto mouse = [&](std::size_t part) { return parts[part].copy(0, 0, 13, 20); };
  // The line between the buttons is that of the outer ones only, and they end at the line below them.
  for (const std::size_t part : {std::size_t{0}, std::size_t{2}}) {
    EXPECT_LT(qGray(mouse(part).pixel(6, 5)), 130) << part;
    const int side = part == 0 ? 3 : 9;
    const QColor colour = ColourOfTool(part == 0 ? ToolButton::Left : ToolButton::Right);
    EXPECT_EQ(mouse(part).pixelColor(side, 8), colour);
    EXPECT_LT(qGray(mouse(part).pixel(side, 9)), 130) << part;
    EXPECT_EQ(mouse(part).pixelColor(side, 11), QColor(Qt::white));
  }
  EXPECT_EQ(mouse(1).pixelColor(6, 5), ColourOfTool(ToolButton::Middle));
  const int left = Pixels(mouse(0), ColourOfTool(ToolButton::Left));
  EXPECT_NEAR(left, Pixels(mouse(2), ColourOfTool(ToolButton::Right)), 2) << "both buttons are equally large";
  EXPECT_GT(left, Pixels(mouse(1), ColourOfTool(ToolButton::Middle)));
}

TEST_F(ToolHintTest, HasAColourOfItsOwnForEachButton) {
  EXPECT_NE(ColourOfTool(ToolButton::Left), ColourOfTool(ToolButton::Right));
  EXPECT_NE(ColourOfTool(ToolButton::Left), ColourOfTool(ToolButton::Middle));
  EXPECT_NE(ColourOfTool(ToolButton::Right), ColourOfTool(ToolButton::Middle));
}

}  // namespace
}  // namespace zorik
