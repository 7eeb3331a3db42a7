// Practice, and records played again, in the whole program.
#include "app/GameScreens.h"
#include "screens/Practice.h"
#include "screens/PracticeBadge.h"
#include "screens/RunControls.h"

namespace zorik::test {
namespace {

class GamePracticeTest : public GameTest {
 protected:
  void PractiseCave() {
    OpenCollection();
    Press(Screen<FrmPoSt>(), Qt::Key_T);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
    EXPECT_FALSE(Shows<FrmPoSt>());
    ASSERT_EQ(Run().Kind, RunKind::Practice);
  }

  static const Hra& Run() { return Screen<HraWindow>()->Machine(); }

  bool NothingIsStored() const { return std::filesystem::is_empty(folder.Root() + "/Players/Ada"); }
};

TEST_F(GamePracticeTest, GoesFromACaveIntoPracticeAndBackWithEsc) {
  PractiseCave();
  EXPECT_TRUE(Screen<HraWindow>()->windowTitle().startsWith("Zorík - Alfa - Jedna   ...trénuje Ada"));
  Press(Screen<HraWindow>(), Qt::Key_Escape);
  EXPECT_TRUE(Wait(Shows<FrmPoSt>));
  EXPECT_FALSE(Shows<HraWindow>());
}

TEST_F(GamePracticeTest, LeavesNothingOfAWinInPracticeAndPlaysTheCaveInEarnest) {
  PractiseCave();
  Press(Screen<HraWindow>(), Qt::Key_Right);
  ASSERT_TRUE(Wait([] { return Run().Win.has_value(); }));
  QTest::qWait(100);
  EXPECT_TRUE(Shows<HraWindow>());
  EXPECT_FALSE(Shows<FrmAnalyze>());
  EXPECT_TRUE(NothingIsStored());
  Press(Screen<HraWindow>(), Qt::Key_Return);
  ASSERT_TRUE(Wait([] { return Run().Kind == RunKind::Play; }));
  EXPECT_TRUE(Shows<HraWindow>());
  EXPECT_FALSE(Screen<HraWindow>()->Controls().Training().Badge().isVisible());
  Press(Screen<HraWindow>(), Qt::Key_Right);
  ReadScores();
  EXPECT_TRUE(ReadWhole(RecordPath()));
}

TEST_F(GamePracticeTest, OpensNoCaveByAWinInPractice) {
  PractiseCave();
  Press(Screen<HraWindow>(), Qt::Key_Right);
  ASSERT_TRUE(Wait([] { return Run().Win.has_value(); }));
  Press(Screen<HraWindow>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  const auto& rows = Screen<FrmPoSt>()->findChild<CaveList*>()->Rows();
  EXPECT_EQ(rows[0].state, CaveState::Open);
  EXPECT_EQ(rows[0].score, 0);
  EXPECT_EQ(rows[1].state, CaveState::Closed);
  EXPECT_TRUE(NothingIsStored());
}

TEST_F(GamePracticeTest, PlaysAWonRecordAgainAtTheSpeedOfPlay) {
  WinCave();
  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  Press(Screen<FrmPoSt>(), Qt::Key_R);
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  Press(Screen<FrmAnalyze>(), Qt::Key_R);
  ASSERT_TRUE(Wait([] { return Shows<HraWindow>() && !Shows<FrmAnalyze>(); }));
  EXPECT_FALSE(Shows<FrmPoSt>());
  EXPECT_EQ(Run().Kind, RunKind::Replay);
  EXPECT_EQ(Screen<HraWindow>()->Interval(), 21);
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  Press(Screen<FrmAnalyze>(), Qt::Key_Return);
  EXPECT_TRUE(Wait([] { return !Shows<FrmAnalyze>() && Shows<FrmPoSt>(); }));
}

TEST_F(GamePracticeTest, TakesOverNoRecordForEnterThatIsStillHeld) {
  WinCave();
  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, {});
  QApplication::sendEvent(Screen<FrmPoSt>(), &down);
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  Close(Screen<HraWindow>());
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  Press(Screen<FrmPoSt>(), Qt::Key_R);
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
  QApplication::sendEvent(Screen<HraWindow>(), &repeat);
  EXPECT_EQ(Run().Kind, RunKind::Replay);
}

}  // namespace
}  // namespace zorik::test
