#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "screens/CaretRest.h"
#include "screens/PaintedParts.h"

namespace zorik {
namespace {

constexpr int kBlink = 200;  // milliseconds

class CaretRestTest : public testing::Test {
 protected:
  CaretRestTest() {
    QApplication::setCursorFlashTime(kBlink);
    auto* const boxes = new QVBoxLayout(&window_);
    for (QWidget* const box : std::initializer_list<QWidget*>{&line_, &text_, &button_})
      boxes->addWidget(box);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    button_.setFocus();
  }
  ~CaretRestTest() override { QApplication::setCursorFlashTime(before_); }

  static bool Blinks() { return QApplication::cursorFlashTime() == kBlink; }
  static bool Rests() {
    return QTest::qWaitFor([] { return QApplication::cursorFlashTime() == 0; });
  }

  int before_ = QApplication::cursorFlashTime();
  QWidget window_;
  QLineEdit line_;
  QPlainTextEdit text_;
  QPushButton button_;
};

TEST_F(CaretRestTest, LetsTheCaretBlinkUntilNobodyWroteForAWhile) {
  const CaretRest rest{std::chrono::milliseconds(kBlink)};
  line_.setFocus();
  EXPECT_TRUE(Blinks());
  EXPECT_TRUE(Rests());
}

TEST_F(CaretRestTest, PaintsNothingOnceTheCaretStandsStill) {
  const CaretRest rest{std::chrono::milliseconds(kBlink)};
  test::PaintedParts painted;
  painted.Watch(line_);
  line_.setFocus();
  ASSERT_TRUE(Rests());
  QTest::qWait(kBlink);
  painted.Settle();
  QTest::qWait(5 * kBlink);
  EXPECT_TRUE(painted.Take().isEmpty());
}

TEST_F(CaretRestTest, BlinksAgainWithEachKeyClickAndBoxThatIsEntered) {
  const CaretRest rest{std::chrono::milliseconds(kBlink)};
  line_.setFocus();
  ASSERT_TRUE(Rests());
  QTest::keyClick(&line_, Qt::Key_A);
  EXPECT_TRUE(Blinks());
  ASSERT_TRUE(Rests());
  QTest::mouseClick(&line_, Qt::LeftButton);
  EXPECT_TRUE(Blinks());
  ASSERT_TRUE(Rests());
  text_.setFocus();
  EXPECT_TRUE(Blinks());
  ASSERT_TRUE(Rests());
  QInputMethodEvent letter;
  letter.setCommitString("\u0159");
  QApplication::sendEvent(&text_, &letter);
  EXPECT_TRUE(Blinks());
}

TEST_F(CaretRestTest, LeavesOtherKeysAlone) {
  const CaretRest rest{std::chrono::milliseconds(kBlink)};
  line_.setFocus();
  ASSERT_TRUE(Rests());
  button_.setFocus();
  QTest::keyClick(&button_, Qt::Key_A);
  QTest::mouseClick(&button_, Qt::LeftButton);
  EXPECT_FALSE(Blinks());
}

TEST_F(CaretRestTest, WakesByNothingElseThatHappensToABox) {
  const CaretRest rest{std::chrono::milliseconds(kBlink)};
  line_.setFocus();
  ASSERT_TRUE(Rests());
  for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave, QEvent::LayoutRequest, QEvent::PaletteChange,
                                  QEvent::StatusTip, QEvent::User}) {
    QEvent event(type);
    QApplication::sendEvent(&line_, &event);
    EXPECT_FALSE(Blinks()) << type;
  }
  QKeyEvent up(QEvent::KeyRelease, Qt::Key_A, {}, "a");
  QApplication::sendEvent(&line_, &up);
  EXPECT_FALSE(Blinks());
  QKeyEvent down(QEvent::KeyPress, Qt::Key_A, {}, "a");
  QApplication::sendEvent(&line_, &down);
  EXPECT_TRUE(Blinks());
}

TEST_F(CaretRestTest, WaitsAnewFromEachKeyOn) {
  const std::chrono::milliseconds patience(1500);
  const CaretRest rest(patience);
  line_.setFocus();
  QElapsedTimer time;
  time.start();
  while (time.elapsed() < patience.count() * 3 / 2) {
    QTest::keyClick(&line_, Qt::Key_A);
    QTest::qWait(kBlink / 2);
    ASSERT_TRUE(Blinks());
  }
}

TEST_F(CaretRestTest, GivesTheDesktopsBlinkBackAtItsEnd) {
  {
    const CaretRest rest(std::chrono::milliseconds(1));
    line_.setFocus();
    ASSERT_TRUE(Rests());
  }
  EXPECT_TRUE(Blinks());
}

}  // namespace
}  // namespace zorik
