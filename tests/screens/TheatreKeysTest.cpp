// The keys of a record that are held, or pressed with others; and how long its bar stays.
#include <QSignalSpy>

#include "screens/PracticeScreen.h"

namespace zorik {
namespace {

using test::LongWay;
using test::RecordOfKeys;
using test::Wait;

constexpr int kLongerThanABarStays = 3400;  // milliseconds

class TheatreKeys : public test::PracticeScreen {
 protected:
  // In the middle of a record of 400 ticks, which stands.
  void Stand(int tick = 3) {
    settings.Speed = 5;
    settings.SpeedR = 3;
    StandAt(RecordOfKeys(LongWay(), std::string(60, 'R') + std::string(340, '.')), tick);
  }

  void Hold(int key) {
    QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
    QApplication::sendEvent(window.get(), &held);
  }
};

TEST_F(TheatreKeys, GoOnAsLongAsTheyAreHeldWhereTheyLeadToAnotherMoment) {
  Stand();
  Hold(Qt::Key_Period);
  Hold(Qt::Key_Period);
  EXPECT_EQ(Tick(), 5);
  Hold(Qt::Key_Comma);
  EXPECT_EQ(Tick(), 4);
  Hold(Qt::Key_Right);
  Hold(Qt::Key_Right);
  EXPECT_EQ(Tick(), 104);
  Hold(Qt::Key_Left);
  EXPECT_EQ(Tick(), 54);
}

TEST_F(TheatreKeys, ActOnceWhereTheyDoSomethingElse) {
  Stand();
  QSignalSpy takenOver(&Theatre(), &Theatre::TakeOverWanted);
  QSignalSpy other(window.get(), &HraWindow::OtherKey);
  const QString speed = Bar().SpeedText();
  for (const int key : {Qt::Key_Space, Qt::Key_Up, Qt::Key_Down, Qt::Key_F7, Qt::Key_W, Qt::Key_Return,
                        Qt::Key_Enter, Qt::Key_Home, Qt::Key_End}) {
    Hold(key);
    EXPECT_TRUE(Theatre().Stands()) << key;
    EXPECT_EQ(Tick(), 3) << key;
    EXPECT_EQ(Bar().SpeedText(), speed) << key;
  }
  EXPECT_EQ(takenOver.count(), 0);
  EXPECT_EQ(other.count(), 0) << "they are the record's all the same";
  EXPECT_FALSE(window->Message().isVisible());
}

TEST_F(TheatreKeys, AreNotMeantTogetherWithCtrlAltOrMeta) {
  Stand();
  for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
    for (const int key : {Qt::Key_Space, Qt::Key_Period, Qt::Key_Right, Qt::Key_End, Qt::Key_Return}) {
      Press(key, modifier);
      EXPECT_EQ(Tick(), 3) << key;
      EXPECT_TRUE(Theatre().Stands()) << key;
      EXPECT_TRUE(window->Machine().ReplayPlaying()) << key;
    }
  }
  Press(Qt::Key_Right, Qt::KeypadModifier);
  EXPECT_EQ(Tick(), 53) << "an arrow of the keypad is an arrow";
  Press(Qt::Key_Period, Qt::ShiftModifier);
  EXPECT_EQ(Tick(), 54);
}

TEST_F(TheatreKeys, LetTheRecordStandAtItsLastTickBeforeItPlaysAnew) {
  Stand();
  Press(Qt::Key_End);
  Press(Qt::Key_Comma);
  for (int slower = 0; slower < 6; ++slower) Press(Qt::Key_Down);  // time enough to see the last tick
  Press(Qt::Key_Space);
  ASSERT_FALSE(Theatre().Stands());
  ASSERT_TRUE(Wait([&] { return Tick() == 400; }));
  ASSERT_FALSE(Theatre().Stands());
  Press(Qt::Key_Space);
  EXPECT_TRUE(Theatre().Stands());
  EXPECT_EQ(Tick(), 400);
  Press(Qt::Key_Space);
  EXPECT_FALSE(Theatre().Stands());
  EXPECT_EQ(Tick(), 0);
}

// The bar

TEST_F(TheatreKeys, FindTheBarThereAsLongAsTheRecordStands) {
  Stand();
  QTest::qWait(kLongerThanABarStays);
  EXPECT_TRUE(Bar().isVisible());
  Press(Qt::Key_Space);
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_TRUE(Wait([&] { return !Bar().isVisible(); }));
}

// Whoever holds the knob may be anywhere with the pointer.
TEST_F(TheatreKeys, FindTheBarThereAsLongAsTheKnobIsHeld) {
  Stand();
  Press(Qt::Key_Space);
  SeekLine& line = Bar().Line();
  const QPoint place(line.PlaceOf(100), line.Rail().center().y());
  QTest::mousePress(&line, Qt::LeftButton, {}, place);
  auto* const bar = window->findChild<QWidget*>("theatre");
  bar->setAttribute(Qt::WA_UnderMouse, false);
  QTest::qWait(kLongerThanABarStays);
  EXPECT_TRUE(Bar().isVisible());
  bar->setAttribute(Qt::WA_UnderMouse, false);
  QTest::mouseRelease(&line, Qt::LeftButton, {}, place);
  bar->setAttribute(Qt::WA_UnderMouse, false);
  EXPECT_TRUE(Wait([&] { return !Bar().isVisible(); }));
}

TEST_F(TheatreKeys, FindTheBarThereAsLongAsThePointerIsOnIt) {
  Stand();
  Press(Qt::Key_Space);
  auto* const bar = window->findChild<QWidget*>("theatre");
  bar->setAttribute(Qt::WA_UnderMouse);
  QTest::qWait(kLongerThanABarStays);
  EXPECT_TRUE(Bar().isVisible());
  bar->setAttribute(Qt::WA_UnderMouse, false);
  EXPECT_TRUE(Wait([&] { return !Bar().isVisible(); }));
}

}  // namespace
}  // namespace zorik
