// What is heard of a run that stands still, or is brought to another moment.
#include "screens/PracticeScreen.h"
#include "support/Waves.h"

namespace zorik {
namespace {

using test::Picture;
using test::RecordOfKeys;
using test::Samples;
using test::Wait;

class RunSound : public test::PracticeScreen {
 protected:
  RunSound() {
    settings.Sound = true;
    for (const char* const name : {"amoeba", "amoeba2"})
      folder.File("Skins/Default/Sound/" + std::string(name) + ".wav",
                  test::WaveFileOf(Samples(2 * 1000, 2000)));
  }

  // An amoeba is heard as long as it is there, and can grow.
  static Picture Cave() { return {"WWWWWWWWWW", "W1.....;AW", "W......;AW", "WWWWWWWWWW"}; }

  void PractiseHere() {
    Practise(Cave());
    GoTo(4);
    ASSERT_TRUE(Heard());
  }

  // A record that plays and is heard, some ticks from its start.
  void PlayHere() {
    PlayRecord(RecordOfKeys(Cave(), std::string(200, '.')));
    ASSERT_TRUE(Wait([&] { return Tick() >= 3; }));
    ASSERT_TRUE(Heard());
  }

  bool Heard() const {
    for (int i = 0; i < DSound::kMostBuffers; ++i) {
      if (sound.StateOf(i) == DSound::State::Playing) return true;
    }
    return false;
  }
};

// Practice

TEST_F(RunSound, IsNotHeardWhileTimeStandsStillInPractice) {
  PractiseHere();
  Press(Qt::Key_H);
  ASSERT_TRUE(Training().Waits());
  EXPECT_FALSE(Heard());
  QTest::qWait(120);  // some looks for keys
  EXPECT_FALSE(Heard());
  Press(Qt::Key_Up);
  EXPECT_FALSE(Training().Waits());
  EXPECT_TRUE(Heard());
}

TEST_F(RunSound, IsNotHeardWhileTimeGoesBack) {
  PractiseHere();
  for (const bool fromStanding : {false, true}) {
    if (fromStanding) Press(Qt::Key_H);
    const int before = Tick();
    QTest::keyPress(window.get(), Qt::Key_Backspace);
    EXPECT_FALSE(Heard());
    ASSERT_TRUE(Wait([&] { return Tick() < before - 1; }));
    EXPECT_FALSE(Heard());
    QTest::keyRelease(window.get(), Qt::Key_Backspace);
    EXPECT_TRUE(Wait([&] { return Heard(); })) << fromStanding;
    EXPECT_FALSE(Training().Waits());
    ASSERT_TRUE(TicksPass(4));
  }
}

TEST_F(RunSound, IsHeardAtTheMarkAgain) {
  PractiseHere();
  Press(Qt::Key_F5);
  EXPECT_TRUE(Heard());
  ASSERT_TRUE(TicksPass(2));
  Press(Qt::Key_F8);
  EXPECT_TRUE(Heard());
  Press(Qt::Key_H);
  EXPECT_FALSE(Heard());
  Press(Qt::Key_F8);
  EXPECT_TRUE(Heard()) << "time does not stand still any more";
  EXPECT_FALSE(Training().Waits());
  EXPECT_FALSE(window->Message().isVisible());
}

TEST_F(RunSound, IsHeardOnceARecordHasBeenTakenOver) {
  PlayHere();
  Press(Qt::Key_Space);
  ASSERT_FALSE(Heard());
  Press(Qt::Key_Return);
  ASSERT_TRUE(window->Machine().Practising());
  EXPECT_TRUE(Heard());
}

TEST_F(RunSound, IsNotHeardOfARecordThatIsTakenOverAndWaits) {
  PlayHere();
  window->Controls().TryFrom(2);
  ASSERT_TRUE(Training().Waits());
  EXPECT_EQ(Tick(), 2);
  EXPECT_FALSE(Heard());
  Press(Qt::Key_Up);
  EXPECT_TRUE(Heard());
}

TEST_F(RunSound, IsOverWithTheRun) {
  PractiseHere();
  window->Stop();
  EXPECT_FALSE(Heard());
  PlayHere();
  window->Stop();
  EXPECT_FALSE(Heard());
}

// Records

TEST_F(RunSound, IsNotHeardWhileARecordStandsStill) {
  PlayHere();
  Press(Qt::Key_Space);
  EXPECT_FALSE(Heard());
  Press(Qt::Key_Period);
  EXPECT_FALSE(Heard());
  Press(Qt::Key_Right);
  EXPECT_FALSE(Heard());
  Press(Qt::Key_Comma);
  EXPECT_FALSE(Heard());
  Press(Qt::Key_Space);
  EXPECT_TRUE(Heard());
  Press(Qt::Key_End);
  EXPECT_FALSE(Heard());
}

TEST_F(RunSound, IsHeardWhereverAPlayingRecordIsBroughtTo) {
  PlayHere();
  for (const int key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Home}) {
    Press(key);
    EXPECT_FALSE(Theatre().Stands());
    EXPECT_TRUE(Heard());
  }
}

TEST_F(RunSound, IsHeardAgainWhenTheKnobIsDropped) {
  PlayHere();
  SeekLine& line = Bar().Line();
  const QPoint place(line.PlaceOf(100), line.Rail().center().y());
  QTest::mousePress(&line, Qt::LeftButton, {}, place);
  EXPECT_FALSE(Heard());
  QTest::mouseRelease(&line, Qt::LeftButton, {}, place);
  EXPECT_TRUE(Heard());
}

}  // namespace
}  // namespace zorik
