#include <QStatusBar>

#include "app/GameScreens.h"
#include "data/Lines.h"
#include "data/ProofFile.h"
#include "data/Result.h"
#include "editors/FrmCat.h"
#include "editors/ProofDesk.h"
#include "screens/RunControls.h"
#include "solve/Win.h"
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
  EXPECT_EQ(Screen<FrmMain>()->windowTitle(), "Zorík's cave editor - 1. Jedna - a.zk[*]");
}

TEST_F(GameEditors, OpenThePageOnEditingByF1) {
  folder.File("Help/editovat.html", "<p>");
  const DesktopStandIn desktop(0);
  Command(Screen<FrmMain>(), Qt::Key_F1);
  EXPECT_TRUE(desktop.Opened().endsWith("/editovat.html")) << desktop.Opened().toStdString();
}

TEST_F(GameEditors, OpenThePageOnTheCatFromItsProgram) {
  folder.File("Help/kocka.html", "<p>");
  const DesktopStandIn desktop(0);
  const DialogScript script = {[](QWidget& dialog) {
    emit dynamic_cast<FrmCat&>(dialog).HelpWanted("kocka.html");
    dynamic_cast<QDialog&>(dialog).done(QDialog::Rejected);
  }};
  Click(Screen<FrmMain>(), "Command1");
  EXPECT_TRUE(desktop.Opened().endsWith("/kocka.html")) << desktop.Opened().toStdString();
}

TEST_F(GameEditors, TellBeforeTheirOwnWindowThatThePageDoesNotOpen) {
  folder.File("Help/editovat.html", "<p>");
  const DesktopStandIn desktop(1);
  const BoxReader reader;
  Command(Screen<FrmMain>(), Qt::Key_F1);
  ASSERT_TRUE(Wait([&reader] { return !reader.owners.isEmpty(); }));
  EXPECT_EQ(reader.owners, QWidgetList({Screen<FrmMain>()}));
  EXPECT_TRUE(reader.said[0].contains("editovat.html")) << reader.said[0].toStdString();
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

TEST_F(GameEditors, StoreTheCollectionByCtrlSInTheCaveEditor) {
  FrmMain& editor = *Screen<FrmMain>();
  const std::string before = *ReadWhole(folder.Root() + "/Caves/a.zk");
  editor.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
  QTest::keyClick(&editor, Qt::Key_B, Qt::ControlModifier);
  EXPECT_TRUE(editor.isWindowModified());
  QTest::keyClick(&editor, Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(Shows<FrmMain>());
  EXPECT_FALSE(editor.isWindowModified());
  EXPECT_EQ(editor.statusBar()->currentMessage(),
            QString::fromStdString("Uloženo: " + folder.Root() + "/Caves/a.zk"));
  const std::string after = *ReadWhole(folder.Root() + "/Caves/a.zk");
  EXPECT_NE(PlainLines(after)[3], PlainLines(before)[3]);
  EXPECT_EQ(PlainLines(after)[3], *editor.Model().Text() + "---01");
  EXPECT_EQ(PlainLines(after)[4], PlainLines(before)[4]);
  Command(&editor, Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  EXPECT_FALSE(Screen<FrmSada>()->isWindowModified());
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

// Wins a try, and takes it for the cave's proof.
class GameProof : public GameEditors {
 protected:
  void WinATry() const {
    TestRun();
    Press(Screen<HraWindow>(), Qt::Key_Right);
    ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
    Press(Screen<FrmAnalyze>(), Qt::Key_Return);
    ASSERT_TRUE(Wait([] { return !Shows<FrmAnalyze>() && Shows<FrmMain>(); }));
  }
  static bool Offered() { return Screen<FrmMain>()->findChild<QWidget*>("proofOffer")->isVisible(); }
  std::string ProofFile() const { return ProofPath(folder.Root() + "/Caves/a.zk", "Jedna"); }
  void TakeProof() const {
    WinATry();
    Click(Screen<FrmMain>(), "btnTake");
    ASSERT_TRUE(Wait([] { return Screen<FrmMain>()->Proof().Watch().Verdict() != nullptr; }));
  }
  bool NothingCounts() const {
    return std::filesystem::is_empty(folder.Root() + "/Players/Ada") &&
           !std::filesystem::exists(folder.Root() + "/Players/Ada/" + RecordFileName("Alfa", "Jedna"));
  }
};

TEST_F(GameProof, IsOfferedAfterATryThatWasWonAndNoOther) {
  TestRun();
  Close(Screen<HraWindow>());
  ASSERT_TRUE(Wait(Shows<FrmMain>));
  EXPECT_FALSE(Offered());
  TakeProof();
  EXPECT_TRUE(Screen<FrmMain>()->Proof().Watch().Verdict()->wins);
  EXPECT_TRUE(std::filesystem::exists(ProofFile()));
  Leave();
}

TEST_F(GameProof, IsTriedFromATickInPracticeThatLeadsBackToTheEditor) {
  TakeProof();
  const auto tests = ReadWhole(folder.Root() + "/Replays/" + TestRecordFileName("Jedna"));
  emit Screen<FrmMain>()->Proof().TryRun(*ReadWhole(ProofFile()), 0);
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  EXPECT_FALSE(Shows<FrmMain>());
  HraWindow& window = *Screen<HraWindow>();
  EXPECT_TRUE(window.Machine().Practising());
  EXPECT_TRUE(window.Controls().Training().Waits());
  const int ticks = window.Machine().Ticks;
  QTest::qWait(300);
  EXPECT_EQ(window.Machine().Ticks, ticks) << "it waits for a key";
  Press(&window, Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return window.Machine().Win.has_value(); }));
  EXPECT_FALSE(Shows<FrmAnalyze>());
  Press(&window, Qt::Key_Escape);
  EXPECT_TRUE(Wait(Shows<FrmMain>));
  EXPECT_FALSE(Offered()) << "practice proves nothing";
  EXPECT_TRUE(NothingCounts());
  EXPECT_EQ(*ReadWhole(folder.Root() + "/Replays/" + TestRecordFileName("Jedna")), *tests);
  Leave();
}

TEST_F(GameProof, OfACollectionWithoutAFileIsStoredWithIt) {
  Command(Screen<FrmMain>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  FrmSada& editor = *Screen<FrmSada>();
  editor.findChild<QAction*>("mnuNew")->trigger();
  Command(&editor, Qt::Key_F4);
  ASSERT_TRUE(Wait(Shows<FrmMain>));
  const std::string name = Screen<FrmMain>()->Model().Cave().Name;
  Screen<FrmMain>()->Proof().Won(RecordOfPlan({OneStepCave("Jedna"), "sada", 0, {}}, {kStepBase + 2}));
  Click(Screen<FrmMain>(), "btnTake");
  Command(Screen<FrmMain>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  const DialogScript script = {[](QWidget& dialog) {
    auto* const file = dialog.findChild<QLineEdit*>("fileNameEdit");
    file->setText("zcela-nova");
    QTest::keyClick(file, Qt::Key_Return);
  }};
  editor.findChild<QAction*>("mnuSave")->trigger();
  EXPECT_TRUE(std::filesystem::exists(ProofPath(folder.Root() + "/Caves/zcela-nova.zk", name)));
  Close(&editor);
  EXPECT_TRUE(Wait(Shows<FrmStart2>));
}

TEST_F(GameProof, AsksForNoneOfACaveThatIsTriedWithItsDogElsewhere) {
  emit Screen<FrmMain>()->Proof().TryCave(OneStepCave("Jedna"));
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  EXPECT_TRUE(Screen<HraWindow>()->Machine().Practising());
  EXPECT_TRUE(Screen<HraWindow>()->Controls().Training().Waits());
  Close(Screen<HraWindow>());
  EXPECT_TRUE(Wait(Shows<FrmMain>));
  EXPECT_TRUE(NothingCounts());
  TestRun();
  EXPECT_TRUE(Screen<HraWindow>()->Machine().EditorRun()) << "a test is a test again";
  Close(Screen<HraWindow>());
  EXPECT_TRUE(Wait(Shows<FrmMain>));
  Leave();
}

}  // namespace
}  // namespace zorik::test
