#include "app/GameScreens.h"
#include "data/Lines.h"
#include "data/Result.h"
#include "support/DesktopStandIn.h"

namespace zorik::test {
namespace {

TEST_F(GameEditors, SpeakAnotherLanguageAlsoWhenTheyHaveBeenOpenBefore) {
  Leave();
  const DialogScript script = {[](QWidget& dialog) {
    dialog.findChild<QComboBox*>("Combo1")->setCurrentText("English");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }};
  Click(Screen<FrmStart2>(), "changeskin");
  EXPECT_TRUE(Screen<FrmSada>()->windowTitle().startsWith("Zorík's collection editor"));
  EXPECT_EQ(Screen<FrmMain>()->windowTitle(), "Zorík's cave editor");
}

TEST_F(GameEditors, OpenThePageOnEditingByF1) {
  folder.File("Help/editovat.html", "<p>");
  const DesktopStandIn desktop(0);
  Command(Screen<FrmMain>(), Qt::Key_F1);
  EXPECT_TRUE(desktop.Opened().endsWith("/editovat.html")) << desktop.Opened().toStdString();
}

TEST_F(GameEditors, LeadBackToTheStartByTheWayThatTheyCame) {
  Leave();
}

TEST_F(GameEditors, HaveTheCollectionThatWasSavedSelectedAtTheStart) {
  Command(Screen<FrmMain>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  FrmSada& editor = *Screen<FrmSada>();
  editor.findChild<QAction*>("mnuNew")->trigger();
  const DialogScript script = {[](QWidget& dialog) {
    auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setText("zcela-nova");
    QTest::keyClick(name, Qt::Key_Return);
  }};
  editor.findChild<QAction*>("mnuSave")->trigger();
  Close(&editor);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  const auto* const list = Screen<FrmStart2>()->findChild<LabelList*>("lblCColl");
  ASSERT_EQ(list->Count(), 2);
  EXPECT_EQ(list->Selected(), 1);
}

TEST_F(GameEditors, LeaveACaveAsItIsThatTheAuthorWillNotHaveChanged) {
  Leave();
  Click(Screen<FrmStart2>(), "play");
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  const DialogScript script = {test::Press(Qt::Key_N), test::Press(Qt::Key_N)};
  Command(Screen<FrmSada>(), Qt::Key_F4);
  EXPECT_TRUE(Shows<FrmSada>());
  EXPECT_FALSE(Shows<FrmMain>());
  EXPECT_EQ(Screen<FrmSada>()->Sada().Cave(1), OneStepCave("Jedna"));
  Close(Screen<FrmSada>());
  EXPECT_TRUE(Wait(Shows<FrmStart2>));
}

TEST_F(GameEditors, TryACaveThatEscDoesNotLeave) {
  TestRun();
  Press(Screen<HraWindow>(), Qt::Key_Escape);
  QTest::qWait(100);
  EXPECT_TRUE(Shows<HraWindow>() && !Shows<FrmMain>());
  EXPECT_TRUE(Screen<HraWindow>()->Ticking());
}

TEST_F(GameEditors, TryACaveAndComeBackWhenTheGameWindowIsClosed) {
  TestRun();
  EXPECT_TRUE(Screen<HraWindow>()->Machine().EditorRun());
  EXPECT_EQ(Screen<HraWindow>()->windowTitle(), "Zorík - Jedna   ...zkouší Ada");
  Close(Screen<HraWindow>());
  EXPECT_TRUE(Wait(Shows<FrmMain>));
  EXPECT_FALSE(Shows<HraWindow>());
  Leave();
}

TEST_F(GameEditors, ComeBackFromATryThatWasWonWhenItsScoreIsRead) {
  TestRun();
  Press(Screen<HraWindow>(), Qt::Key_Right);
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  Press(Screen<FrmAnalyze>(), Qt::Key_Return);
  EXPECT_TRUE(Wait([] { return !Shows<FrmAnalyze>() && Shows<FrmMain>(); }));
  EXPECT_FALSE(Shows<HraWindow>() || Shows<FrmPoSt>());

  const auto record = ReadWhole(folder.Root() + "/Replays/" + TestRecordFileName("Jedna"));
  ASSERT_TRUE(record);
  RecordLines lines(*record);
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.CollectionName, "Alfa");
  EXPECT_EQ(head.Player, "");
}

}  // namespace
}  // namespace zorik::test
