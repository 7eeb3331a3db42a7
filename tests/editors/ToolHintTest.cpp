// What the three mouse buttons draw, as the status bar shows it: a mouse and a tile for each.
#include "editors/EditorScreen.h"
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
  class Paints : public QObject {
   public:
    int count = 0;
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
      count += event->type() == QEvent::Paint ? 1 : 0;
      return false;
    }
  } paints;
  QCoreApplication::processEvents();
  Child<ToolHint>("ToolHint").installEventFilter(&paints);
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

TEST_F(ToolHintTest, HasAColourOfItsOwnForEachButton) {
  EXPECT_NE(ColourOfTool(ToolButton::Left), ColourOfTool(ToolButton::Right));
  EXPECT_NE(ColourOfTool(ToolButton::Left), ColourOfTool(ToolButton::Middle));
  EXPECT_NE(ColourOfTool(ToolButton::Right), ColourOfTool(ToolButton::Middle));
}

}  // namespace
}  // namespace zorik
