// The question what killed the last unit, when the player does not wait for its answer.
#include "screens/PracticeScreen.h"
#include "screens/StartWords.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::LongWay;
using test::Picture;
using test::RecordOfKeys;
using test::Wait;

// Who goes up twice and down again is struck by the boulder, and could have gone aside.
const Picture kTrap{"WWWWWW", "WWRWWW", "WW;WWW", "WW;;;W", "WW1WWW", "WWWWWW"};

class RunQuestion : public test::PracticeScreen {
 protected:
  RunQuestion() { settings.Speed = 3; }

  void AskInPractice() {
    Practise(kTrap);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down}) {
      const int ticks = Tick();
      Press(key);
      ASSERT_TRUE(Wait([&] { return Tick() > ticks; }));
    }
    ASSERT_TRUE(Wait([&] { return LiveDogs(window->Machine()) == 0; }));
    Press(Qt::Key_F7);
    ASSERT_EQ(Message(), kSearchingWords.In(skin));
    ASSERT_TRUE(window->Message().isVisible());
  }

  void AskInRecord() {
    PlayRecord(RecordOfKeys(kTrap, "UUDD............"));
    Press(Qt::Key_End);
    ASSERT_EQ(LiveDogs(window->Machine()), 0);
    Press(Qt::Key_F7);
    ASSERT_EQ(Message(), kSearchingWords.In(skin));
  }

  // Time enough for an answer that nobody wants any more.
  void ExpectNoAnswer() {
    for (int look = 0; look < 50; ++look) {
      QTest::qWait(20);
      ASSERT_NE(Message(), kCouldBeSavedWords.In(skin));
      ASSERT_FALSE(Training().Waits());
    }
  }
};

TEST_F(RunQuestion, IsForgottenByWhoGoesBackHimself) {
  AskInPractice();
  Press(Qt::Key_Backspace);
  ExpectNoAnswer();
}

TEST_F(RunQuestion, IsForgottenWithTheRun) {
  AskInPractice();
  ASSERT_TRUE(window->Start(CaveTextOf(LongWay()), RunKind::Play));
  ExpectNoAnswer();
  EXPECT_EQ(window->Machine().Kind, RunKind::Play);
  EXPECT_EQ(window->Machine().CaveWidth, 64);
  EXPECT_EQ(Dog(), Cell(1, 1));
}

TEST_F(RunQuestion, IsForgottenWhereARecordIsBroughtToAnotherMoment) {
  AskInRecord();
  Press(Qt::Key_Home);
  ExpectNoAnswer();
}

TEST_F(RunQuestion, IsForgottenWithTheRecord) {
  AskInRecord();
  ASSERT_TRUE(window->Start(CaveTextOf(LongWay()), RunKind::Play));
  ExpectNoAnswer();
  EXPECT_EQ(window->Machine().CaveWidth, 64);
}

TEST_F(RunQuestion, IsAskedAgainAndAnswered) {
  AskInRecord();
  Press(Qt::Key_Home);
  Press(Qt::Key_End);
  Press(Qt::Key_F7);
  ASSERT_TRUE(Wait([&] { return Message() == kCouldBeSavedWords.In(skin); }));
  EXPECT_TRUE(Theatre().Stands());
  EXPECT_EQ(LiveDogs(window->Machine()), 1);
  QTest::qWait(3200);  // longer than any message that goes by itself
  EXPECT_TRUE(window->Message().isVisible());
  EXPECT_TRUE(Bar().isVisible()) << "it stays where the record stands";
}

}  // namespace
}  // namespace zorik
