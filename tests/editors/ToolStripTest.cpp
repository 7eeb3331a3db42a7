// The column of tools beside the picture.
#include <QToolButton>

#include "editors/EditorScreen.h"
#include "editors/ToolStrip.h"

namespace zorik {
namespace {

class ToolStripTest : public testing::Test {
 protected:
  ToolStripTest() {
    for (const char* const name : {"mnuA", "mnuB", "mnuC"}) Add(name);
    strip_.AddGap();
    Add("mnuD");
    strip_.show();
  }

  void Add(const char* name) {
    auto* const action = new QAction(&strip_);
    action->setObjectName(name);
    strip_.Add(*action);
  }
  QRect At(const char* name) const { return strip_.findChild<QToolButton*>(name)->geometry(); }

  ToolStrip strip_{nullptr};
};

TEST_F(ToolStripTest, HasItsButtonsBelowEachOtherWhereThereIsRoom) {
  strip_.resize(strip_.sizeHint());
  EXPECT_EQ(At("btnA").left(), At("btnB").left());
  EXPECT_GT(At("btnB").top(), At("btnA").bottom());
  EXPECT_GT(At("btnD").top() - At("btnC").bottom(), At("btnB").top() - At("btnA").bottom()) << "a gap";
}

TEST_F(ToolStripTest, LaysNoButtonOverAnotherInTwoColumns) {
  strip_.resize(strip_.width(), strip_.minimumSizeHint().height());
  EXPECT_EQ(At("btnA").top(), At("btnB").top());
  EXPECT_GT(At("btnC").top(), At("btnA").bottom());
  EXPECT_GT(At("btnD").top(), At("btnC").bottom()) << "the next group begins below the last row";
}

// One column as long as everything fits into it, two else, with no pixel of width to spare.
TEST_F(ToolStripTest, GoesToTwoColumnsOnlyWhereOneIsTooLong) {
  const int button = At("btnA").width();
  const QSize one = strip_.sizeHint();
  EXPECT_EQ(one.width(), button);
  strip_.resize(one);
  EXPECT_EQ(strip_.width(), button);
  EXPECT_EQ(At("btnD").bottom() + 1, one.height()) << "the last button ends where the strip does";
  const int space = At("btnB").top() - At("btnA").bottom() - 1;
  EXPECT_EQ(At("btnC").top() - At("btnB").bottom() - 1, space);
  strip_.resize(strip_.width(), one.height() - 1);
  EXPECT_EQ(At("btnB").left() - At("btnA").right() - 1, space) << "as far aside as below";
  EXPECT_EQ(At("btnC").topLeft(), QPoint(0, At("btnA").bottom() + 1 + space));
  EXPECT_EQ(At("btnD").left(), 0);
  EXPECT_EQ(strip_.width(), 2 * button + space);
  EXPECT_EQ(strip_.minimumSizeHint(), QSize(2 * button + space, At("btnD").bottom() + 1));
  strip_.resize(strip_.width(), one.height());
  EXPECT_EQ(strip_.width(), button) << "and back";
}

TEST_F(ToolStripTest, IsArrangedByAHintAsItIsMeasured) {
  strip_.resize(strip_.sizeHint());
  const QRect before = At("btnB");
  strip_.minimumSizeHint();
  EXPECT_EQ(At("btnB"), before) << "to measure moves nothing";
}

TEST_F(ToolStripTest, GivesEachButtonItsActionWithAPictureAlone) {
  for (const char* const name : {"A", "B", "C", "D"}) {
    const auto* const button = strip_.findChild<QToolButton*>(QString("btn") + name);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->defaultAction()->objectName(), QString("mnu") + name);
    EXPECT_EQ(button->focusPolicy(), Qt::NoFocus) << "the keys stay with the picture";
    EXPECT_EQ(button->iconSize(), QSize(22, 22));
    EXPECT_EQ(button->toolButtonStyle(), Qt::ToolButtonIconOnly);
  }
}

// The tool in use is framed in the colour that the desktop marks with.
TEST_F(ToolStripTest, FramesTheButtonThatIsChecked) {
  strip_.resize(strip_.sizeHint());
  auto& button = *strip_.findChild<QToolButton*>("btnB");
  QAction& action = *button.defaultAction();
  action.setCheckable(true);
  QPixmap dot(22, 22);
  dot.fill(Qt::green);
  action.setIcon(QIcon(dot));
  const QColor colour = button.palette().color(QPalette::Highlight);
  for (const bool checked : {true, false}) {
    action.setChecked(checked);
    const QImage image = button.grab().toImage();
    EXPECT_EQ(image.pixelColor(image.rect().center()), QColor(Qt::green)) << "its picture is seen";
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const bool corner = (x == 0 || x == image.width() - 1) && (y == 0 || y == image.height() - 1);
        if (corner) continue;
        const bool edge = !image.rect().adjusted(2, 2, -2, -2).contains(x, y);
        ASSERT_EQ(image.pixelColor(x, y) == colour, checked && edge) << x << ' ' << y;
      }
    }
  }
}

TEST_F(ToolStripTest, IsArrangedAnewForAnotherStyle) {
  strip_.resize(strip_.sizeHint());
  auto& button = *strip_.findChild<QToolButton*>("btnA");
  const QRect before = button.geometry();
  button.setGeometry(3, 3, 5, 5);
  QEvent change(QEvent::StyleChange);
  QApplication::sendEvent(&strip_, &change);
  EXPECT_EQ(At("btnA"), before);
  button.setGeometry(3, 3, 5, 5);
  QEvent letters(QEvent::FontChange);
  QApplication::sendEvent(&strip_, &letters);
  EXPECT_EQ(At("btnA"), before);
  button.setGeometry(3, 3, 5, 5);
  QEvent other(QEvent::LanguageChange);
  QApplication::sendEvent(&strip_, &other);
  EXPECT_EQ(button.geometry(), QRect(3, 3, 5, 5)) << "other changes leave it as it is";
}

}  // namespace
}  // namespace zorik
