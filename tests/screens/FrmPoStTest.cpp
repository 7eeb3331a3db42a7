#include <gtest/gtest.h>

#include <QScreen>
#include <QSignalSpy>
#include <QTextEdit>

#include "data/Result.h"
#include "screens/PostList.h"

namespace zorik {
namespace {

using test::InDialog;

using FrmPoStTest = test::PostList;

TEST_F(FrmPoStTest, ShowsANewPlayerOneOpenCaveAndTheOthersLocked) {
  Caves(4);
  Open();
  EXPECT_EQ(Row(1), "c1");
  for (int i = 2; i <= 4; ++i) {
    EXPECT_EQ(Row(i), "(zamčeno)");
    EXPECT_EQ(List().TextColour(i), Key("cantcolor"));
  }
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(Score(i), 0);
  EXPECT_EQ(List().Selected(), 1);
  EXPECT_TRUE(Shown("play"));
  EXPECT_FALSE(Shown("replay"));
  EXPECT_FALSE(Shown("congratulation"));
  EXPECT_TRUE(Shown("send"));
}

TEST_F(FrmPoStTest, TellsOfTheCollection) {
  Caves(1);
  Open();
  EXPECT_EQ(Text("Label4"), "Sada");
  EXPECT_EQ(Text("lblDescription"), "Popis sady");
  EXPECT_EQ(Text("Label3"), "© Jára");
  EXPECT_EQ(Text("lblTotal"), "00000");
  EXPECT_EQ(Text("lblRest"), "Zbývá projít: 1 komnata.");
  EXPECT_EQ(window->windowTitle(), "Výběr komnaty");
  EXPECT_EQ(flow.Caves().Collection().Name, "Sada");
}

TEST_F(FrmPoStTest, HasTheSizeThatTheSkinTells) {
  Caves(1);
  Open();
  EXPECT_EQ(window->size(), QSize(760, 540));
  EXPECT_EQ(List().geometry(), QRect(24, 128, 356, 366));
  EXPECT_EQ(Button("play").pos(), QPoint(502, 472));
}

TEST_F(FrmPoStTest, StandsInTheMiddleOfTheScreenUntilItIsMoved) {
  Caves(1);
  Open();
  EXPECT_EQ(window->geometry().center(), window->screen()->availableGeometry().center());
  window->move(3, 4);
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EXPECT_EQ(window->pos(), QPoint(3, 4));
}

TEST_F(FrmPoStTest, CountsTheRemainingCavesInCzech) {
  const std::vector<std::pair<int, QString>> words = {{1, "Zbývá projít: 1 komnata."},
                                                      {2, "Zbývá projít: 2 komnaty."},
                                                      {4, "Zbývá projít: 4 komnaty."},
                                                      {5, "Zbývá projít: 5 komnat."},
                                                      {12, "Zbývá projít: 12 komnat."}};
  for (const auto& [count, expected] : words) {
    Caves(count);
    Open();
    EXPECT_EQ(Text("lblRest"), expected);
  }
}

TEST_F(FrmPoStTest, HasNoWordForNoRemainingCave) {
  Caves(1);
  Record(1, 5);
  Open();
  EXPECT_EQ(Text("lblRest"), "Zbývá projít: 0 .");
}

TEST_F(FrmPoStTest, ColoursRowsByTheirStates) {
  Caves(4);
  Record(1, 10);
  Record(2, 20, "Jiný");
  Open();
  ClickRow(4);
  EXPECT_EQ(List().TextColour(1), Key("solvcolor"));
  EXPECT_EQ(List().TextColour(2), Key("elsecolor"));
  EXPECT_EQ(List().TextColour(3), Key("textcolor"));
  EXPECT_EQ(List().TextColour(4), Key("selection.cantcolor"));
  ClickRow(1);
  EXPECT_EQ(List().TextColour(1), Key("selection.solvcolor"));
  ClickRow(2);
  EXPECT_EQ(List().TextColour(2), Key("selection.elsecolor"));
  ClickRow(3);
  EXPECT_EQ(List().TextColour(3), Key("selection.textcolor"));
  EXPECT_EQ(List().TextColour(4), Key("cantcolor"));
}

TEST_F(FrmPoStTest, CountsAnotherPlayersScoreButNotTheCaveAsDone) {
  Caves(2);
  Record(1, 123, "Jiný");
  Record(2, 200);
  Open();
  EXPECT_EQ(Text("lblTotal"), "00323");
  EXPECT_EQ(Text("lblRest"), "Zbývá projít: 1 komnata.");
  EXPECT_FALSE(Shown("congratulation"));
}

TEST_F(FrmPoStTest, SendsThePlayerOfAClosedCaveToTheLastOpenOne) {
  Caves(4);
  Record(1, 10);
  Open();
  ClickRow(4);
  EXPECT_EQ(Text("lblCaveName"), "(zamčeno)");
  EXPECT_EQ(Text("lblCaveDescription"), "Nejdříve musíš projít komnatu:\r\nc2");
  EXPECT_FALSE(Shown("play"));
  EXPECT_FALSE(Shown("replay"));
  EXPECT_EQ(Text("lblRecord"), "");
}

TEST_F(FrmPoStTest, NamesTheRecordOfASolvedCaveAndOfNoOther) {
  Caves(2);
  Record(1, 10);
  Open();
  EXPECT_EQ(Text("lblRecord"), "Sada - c1.zkr");
  EXPECT_EQ(Label("lblRecord").toolTip().toStdString(), RecordPath(1));
  EXPECT_TRUE(Shown("replay"));
  ClickRow(2);
  EXPECT_EQ(Text("lblRecord"), "");
  EXPECT_EQ(Label("lblRecord").toolTip(), "");
  EXPECT_FALSE(Shown("replay"));
  EXPECT_TRUE(Shown("play"));
}

TEST_F(FrmPoStTest, ShowsTheBonusSignOfABonusCaveThatIsOpen) {
  Collection({"a", "Bonus: poklad", "b", "BONUS"});
  Open();
  EXPECT_FALSE(Shown("imgBonus"));
  ClickRow(2);
  EXPECT_FALSE(Shown("imgBonus")) << "its name is not shown yet";
  ClickRow(1);
  Prosel();
  ClickRow(2);
  EXPECT_TRUE(Shown("imgBonus"));
  ClickRow(3);
  EXPECT_FALSE(Shown("imgBonus"));
}

TEST_F(FrmPoStTest, SolvesAWonCaveOpensTheNextAndSelectsIt) {
  Caves(3);
  Open();
  Prosel();
  EXPECT_EQ(List().TextColour(1), Key("solvcolor"));
  EXPECT_EQ(Score(1), 50);
  EXPECT_EQ(Row(2), "c2");
  EXPECT_EQ(Row(3), "(zamčeno)");
  EXPECT_EQ(List().Selected(), 2);
  EXPECT_EQ(List().TextColour(2), Key("selection.textcolor"));
  EXPECT_EQ(Text("lblTotal"), "00050");
  EXPECT_EQ(Text("lblRest"), "Zbývá projít: 2 komnaty.");
  EXPECT_EQ(Text("lblCaveName"), "c2");
}

TEST_F(FrmPoStTest, CongratulatesWhenTheLastCaveIsSolved) {
  Caves(1);
  Open();
  EXPECT_FALSE(Shown("congratulation"));
  Prosel();
  EXPECT_TRUE(Shown("congratulation"));
  EXPECT_EQ(List().Selected(), 1);
  for (const bool byKey : {false, true}) {
    QString text;
    const InDialog dialog([&](QWidget& box) {
      text = box.findChild<QTextEdit*>("picText")->toPlainText();
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    if (byKey) {
      Press(Qt::Key_G);
    } else {
      Click("congratulation");
    }
    EXPECT_TRUE(dialog.Opened());
    EXPECT_FALSE(dialog.Stayed());
    EXPECT_EQ(text, "Skvělé!\nBody: 00050");
  }
}

TEST_F(FrmPoStTest, CongratulatesWithoutALastBonusCaveOnceThatIsOpen) {
  Collection({"a", "bonus"});
  Open();
  EXPECT_FALSE(Shown("congratulation"));
  Prosel();
  EXPECT_TRUE(Shown("congratulation"));
}

TEST_F(FrmPoStTest, SaysSoWhenTheCollectionCannotBeOpenedAndKeepsTheOldOne) {
  Caves(2);
  Open();
  Press(Qt::Key_Down);
  const auto missing = window->LoadColl("/nowhere/pryč.zk", "Žofie");
  ASSERT_FALSE(missing);
  EXPECT_EQ(QString::fromStdString(missing.Message()), "Soubor nelze otevřít:\r\n/nowhere/pryč.zk");
  folder.File("Caves/bad.zk", "garbage");
  EXPECT_FALSE(window->LoadColl(QString::fromStdString(folder.Root() + "/Caves/bad.zk"), "Žofie"));
  EXPECT_EQ(List().Selected(), 2);
  EXPECT_EQ(Text("Label4"), "Sada");
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmPoStTest, GoesOnWithACollectionThatVanishes) {
  Caves(2);
  Open();
  std::filesystem::remove(CollectionPath().toStdString());
  QSignalSpy played(window.get(), &FrmPoSt::PlayCave);
  Press(Qt::Key_Space);
  ASSERT_EQ(played.size(), 1);
  Prosel();
  EXPECT_EQ(hra.CaveText, caves[0] + "---01");
  EXPECT_EQ(List().Selected(), 2);
}

TEST_F(FrmPoStTest, StaysHiddenWhenItsFirstCollectionCannotBeOpened) {
  window = std::make_unique<FrmPoSt>(skin, flow);
  EXPECT_FALSE(window->LoadColl("/nowhere/a.zk", "Žofie"));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(FrmPoStTest, ReadsTheRecordsAnewWhenACollectionIsOpenedAgain) {
  Caves(2);
  Open();
  Prosel();
  EXPECT_EQ(Score(1), 50);
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EXPECT_EQ(Score(1), 0) << "there is no record of that win";
  EXPECT_EQ(List().Selected(), 1);
}

TEST_F(FrmPoStTest, CountsAWinThatCouldNotBeStoredAndMarksIt) {
  Caves(3);
  Open();
  Spoil();
  flow.Unstored().Keep({flow.ChosenSlot(), 70, "the record"});
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EXPECT_EQ(Score(1), 70);
  EXPECT_EQ(Text("lblTotal"), "00070");
  EXPECT_EQ(Row(2), "c2") << "it is open";
  EXPECT_FALSE(List().Rows()[0].stored);
  EXPECT_TRUE(List().Rows()[1].stored);
  EXPECT_EQ(Text("lblRecord"), "Sada - c1.zkr\nZáznam není uložen (U)");

  QSignalSpy wanted(window.get(), &FrmPoSt::StoreWanted);
  Press(Qt::Key_U);
  QTest::mouseClick(&Label("lblRecord"), Qt::LeftButton);
  EXPECT_EQ(wanted.size(), 2);
  ClickRow(2);
  Press(Qt::Key_U);
  EXPECT_EQ(wanted.size(), 2) << "there is nothing to be stored";
}

TEST_F(FrmPoStTest, CountsAnotherPlayersUnstoredWinForNobodyElse) {
  Caves(2);
  Open();
  Spoil();
  flow.Unstored().Keep({flow.ChosenSlot(), 70, "the record"});
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Adam"));
  EXPECT_EQ(Score(1), 0);
  EXPECT_TRUE(List().Rows()[0].stored);
}

TEST_F(FrmPoStTest, TakesNoWinOfACaveThatItDoesNotHave) {
  Caves(2);
  Open();
  ASSERT_TRUE(flow.Start());
  Collection({"a", "b"});
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  FinishRun();
  EXPECT_EQ(Score(1), 0);
  EXPECT_EQ(List().Selected(), 1);
}

TEST_F(FrmPoStTest, KeepsEachPlayersRecordsApart) {
  Caves(2);
  Record(1, 10);
  Open();
  EXPECT_EQ(Score(1), 10);
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Adam"));
  EXPECT_EQ(Score(1), 0);
  EXPECT_EQ(flow.ChosenSlot().Path, folder.Root() + "/Players/Adam/Sada - c1.zkr");
}

TEST_F(FrmPoStTest, SpeaksTheLanguageOfTheSkin) {
  Caves(3);
  Open();
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins", "English"}));
  window->SetLWPost();
  EXPECT_EQ(window->windowTitle(), "Cave selection");
  EXPECT_EQ(Text("lblRest"), "Still to solve: 3 caves.");
  EXPECT_EQ(Row(2), "(locked)");
  EXPECT_EQ(Button("play").toolTip(), "Play this cave");
  EXPECT_EQ(Button("replay").toolTip(), "Play the record");
  EXPECT_EQ(Button("congratulation").toolTip(), "Read the congratulation");
  EXPECT_EQ(Button("send").toolTip(), "Send the records by e-mail\nThe record as a page for a browser (W)");
  ClickRow(3);
  EXPECT_EQ(Text("lblCaveDescription"), "First you have to solve this cave:\r\nc1");
}

TEST_F(FrmPoStTest, ShowsOddLettersAsTheyAre) {
  Collection({"Žluť & 100% \\ <b>"});
  Open();
  EXPECT_EQ(Row(1), "Žluť & 100% \\ <b>");
  EXPECT_EQ(Text("lblCaveName"), "Žluť & 100% \\ <b>");
}

}  // namespace
}  // namespace zorik
