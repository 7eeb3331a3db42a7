// What seldom comes: screens that are asked for what they cannot have, and those that are there already.
#include "app/GameScreens.h"
#include "data/Result.h"
#include "editors/ProofDesk.h"

namespace zorik::test {
namespace {

class GameSeldom : public GameTest {
 protected:
  // Another window has the keys.
  void LookAway() {
    other_.show();
    other_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other_));
  }

 private:
  QWidget other_;
};

TEST_F(GameSeldom, HasTheStartBackWhereACollectionCannotBeOpened) {
  folder.File("Caves/rubbish.zk", "rubbish");
  Screen<FrmStart2>()->hide();
  const BoxReader reader;
  const QString path = QString::fromStdString(folder.Root() + "/Caves/rubbish.zk");
  emit Screen<FrmStart2>()->OpenCollection(path, "Ada");
  EXPECT_EQ(reader.said.size(), 1);
  EXPECT_EQ(reader.owners, QWidgetList{Screen<FrmStart2>()});
  EXPECT_TRUE(Shows<FrmStart2>());
  EXPECT_FALSE(Shows<FrmPoSt>());
}

TEST_F(GameSeldom, GivesTheKeysToTheScreenThatThePlayerIsLedTo) {
  LookAway();
  emit Screen<FrmPoSt>()->Back();
  EXPECT_TRUE(QTest::qWaitForWindowActive(Screen<FrmStart2>()));
  PlayCave();
  Screen<FrmPoSt>()->show();
  LookAway();
  Close(Screen<HraWindow>());
  EXPECT_TRUE(QTest::qWaitForWindowActive(Screen<FrmPoSt>()));
}

TEST_F(GameSeldom, TellsThatTwoRecordsTakeAWinFirst) {
  OpenCollection();
  const BoxReader reader;
  emit Screen<FrmPoSt>()->PairWanted(QPoint(10, 10));
  EXPECT_EQ(reader.said.size(), 1);
  EXPECT_EQ(reader.owners, QWidgetList{Screen<FrmPoSt>()});
}

class GameEditorsSeldom : public GameEditors {};

TEST_F(GameEditorsSeldom, SayThatARunCannotBeTriedAndAreThereAgain) {
  for (const bool run : {true, false}) {
    const BoxReader reader;
    ProofDesk& proof = Screen<FrmMain>()->Proof();
    run ? emit proof.TryRun("rubbish", 3) : emit proof.TryCave("rubbish");
    EXPECT_EQ(reader.said, QStringList{"Komnatu nelze otevřít."});
    EXPECT_EQ(reader.owners, QWidgetList{Screen<FrmMain>()});
    EXPECT_TRUE(Shows<FrmMain>());
    EXPECT_FALSE(Shows<HraWindow>());
  }
  Leave();
}

TEST_F(GameEditorsSeldom, SayThatACaveCannotBeEditedAndLeaveItAsItIs) {
  Command(Screen<FrmMain>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  const BoxReader reader;
  emit Screen<FrmSada>()->EditCave("rubbish", CaveOrigin{folder.Root() + "/Caves/a.zk", "Alfa", 1});
  EXPECT_EQ(reader.said, QStringList{"Komnatu nelze otevřít."});
  EXPECT_EQ(reader.owners, QWidgetList{Screen<FrmSada>()});
  EXPECT_TRUE(Shows<FrmSada>());
  EXPECT_FALSE(Shows<FrmMain>());
}

}  // namespace
}  // namespace zorik::test
