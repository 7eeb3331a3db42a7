// What was being edited when the game was ended is offered by the next one.
#include <QSessionManager>

#include "app/GameScreens.h"
#include "data/Folders.h"
#include "data/Result.h"
#include "editors/FrmCat.h"
#include "flow/KeptSada.h"

namespace zorik::test {
namespace {

class GameRecovery : public GameEditors {
 protected:
  // As a game that ends without asking, and the next one; this answer is given to what it offers.
  void EndAndStart(Qt::Key answer) {
    Screen<FrmSada>()->Keeper().KeepForEnd();
    const DialogScript script = {test::Press(answer)};
    Start();
  }
  std::size_t Files(const std::string& part) const {
    return FilesIn(folder.Root() + "/Recovery/" + part, ".recovery").size();
  }
};

TEST_F(GameRecovery, OpensTheCollectionWithTheCaveThatWasBeingDrawn) {
  Click(Screen<FrmMain>(), "EditKom");
  const std::string drawn = *Screen<FrmMain>()->Model().Text();
  ASSERT_NE(drawn, Screen<FrmSada>()->Sada().Cave(1));
  EndAndStart(Qt::Key_Y);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  EXPECT_FALSE(Shows<FrmStart2>());
  const SadaModel& sada = Screen<FrmSada>()->Sada();
  EXPECT_EQ(sada.Cave(1), drawn);
  EXPECT_EQ(sada.FileName(), folder.Root() + "/Caves/a.zk");
  EXPECT_TRUE(sada.Chg());
  EXPECT_EQ(Files("Running"), 1U);
  const DialogScript script = {test::Press(Qt::Key_N)};
  Close(Screen<FrmSada>());
  EXPECT_TRUE(Wait(Shows<FrmStart2>));
  EXPECT_EQ(Files("Running"), 0U);
  EXPECT_EQ(Files("Discarded"), 1U);
}

TEST_F(GameRecovery, KeepsACaveThatWasLeftInNoPlaceButItsOwn) {
  Click(Screen<FrmMain>(), "EditKom");
  Command(Screen<FrmMain>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  QTest::keyClick(Screen<FrmSada>()->findChild<QWidget*>("CaveList"), Qt::Key_Down);
  ASSERT_EQ(Screen<FrmSada>()->Sada().ListSelected(), 2);
  EndAndStart(Qt::Key_Y);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  EXPECT_EQ(Screen<FrmSada>()->Sada().Cave(2), OneStepCave("Druha"));
  const DialogScript script = {test::Press(Qt::Key_N)};
  Close(Screen<FrmSada>());
}

TEST_F(GameRecovery, TriesTheCavesForThePlayerOfTheStart) {
  Click(Screen<FrmMain>(), "EditKom");
  EndAndStart(Qt::Key_Y);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  Command(Screen<FrmSada>(), Qt::Key_F4);
  ASSERT_TRUE(Wait(Shows<FrmMain>));
  TestRun();
  EXPECT_TRUE(Screen<HraWindow>()->windowTitle().endsWith("Ada"));
  Close(Screen<HraWindow>());
  ASSERT_TRUE(Wait(Shows<FrmMain>));
  Leave();
}

// The start screen goes before anybody has seen it.
TEST_F(GameRecovery, HasTheWordsOfTheSkinInTheToolkitsBoxes) {
  EndAndStart(Qt::Key_Y);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Zrušit");
}

TEST_F(GameRecovery, LeadsToTheStartWhenThePlayerDoesNotWantIt) {
  EndAndStart(Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  EXPECT_FALSE(Shows<FrmSada>());
  EXPECT_EQ(Files("Running"), 0U);
  EXPECT_EQ(Files("Discarded"), 1U);
}

TEST_F(GameRecovery, KeepsTheProgramOfTheCatThatIsBeingEdited) {
  bool kept = false;
  const DialogScript script = {[&](QWidget& dialog) {
    QTest::keyClick(dialog.findChild<QWidget*>("lstCmds"), Qt::Key_Return);
    Screen<FrmSada>()->Keeper().Keep();
    const std::string path = folder.Root() + "/Recovery/Running/";
    const auto entries = FilesIn(path, ".recovery");
    ASSERT_EQ(entries.size(), 1U);
    const auto taken = RecoveryStore::Read({path + entries[0], 0, "", "", 0});
    ASSERT_TRUE(taken);
    SadaModel sada({}, 1);
    ASSERT_TRUE(sada.TakeUp(*taken));
    kept = !ParseCaveText(sada.Cave(1))->Script.empty();
    dynamic_cast<QDialog&>(dialog).done(QDialog::Rejected);
  }};
  Click(Screen<FrmMain>(), "Command1");
  EXPECT_TRUE(kept);
}

TEST_F(GameRecovery, AsksNothingAfterAnEndWithoutChanges) {
  Leave();
  const std::size_t discarded = Files("Discarded");
  Screen<FrmSada>()->Keeper().KeepForEnd();
  Begin();
  EXPECT_FALSE(Shows<FrmSada>());
  EXPECT_EQ(Files("Discarded"), discarded);
}

TEST_F(GameRecovery, KeepsWhatIsEditedWhenTheDesktopsSessionIsAboutToEnd) {
  Click(Screen<FrmMain>(), "EditKom");
  const std::string drawn = *Screen<FrmMain>()->Model().Text();
  auto* const session = qApp->findChild<QSessionManager*>();
  ASSERT_NE(session, nullptr);
  emit qApp->commitDataRequest(*session);
  const std::string running = folder.Root() + "/Recovery/Running/";
  ASSERT_EQ(Files("Running"), 1U);
  const auto kept = RecoveryStore::Read({running + FilesIn(running, ".recovery")[0], 0, "", "", 0});
  ASSERT_TRUE(kept);
  SadaModel sada({}, 1);
  ASSERT_TRUE(sada.TakeUp(*kept));
  EXPECT_EQ(sada.Cave(1), drawn);
}

class GameWithoutEditors : public GameTest {};

TEST_F(GameWithoutEditors, KeepsNothingWhenTheDesktopsSessionIsAboutToEnd) {
  auto* const session = qApp->findChild<QSessionManager*>();
  ASSERT_NE(session, nullptr);
  emit qApp->commitDataRequest(*session);
  EXPECT_TRUE(FilesIn(folder.Root() + "/Recovery/Running", ".recovery").empty());
  EXPECT_TRUE(Shows<FrmStart2>());
}

}  // namespace
}  // namespace zorik::test
