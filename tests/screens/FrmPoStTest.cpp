#include <gtest/gtest.h>

#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTextEdit>

#include "data/Result.h"
#include "screens/CaveList.h"
#include "screens/DialogScript.h"
#include "screens/FrmPoSt.h"
#include "screens/PostScreen.h"

namespace zorik {
namespace {

using test::DialogScript;
using test::InDialog;

class FrmPoStTest : public testing::Test, public test::PostScreen {
 protected:
  CaveList& List() const { return *window->findChild<CaveList*>(); }
  QString Row(int number) const { return List().Rows()[static_cast<std::size_t>(number - 1)].name; }
  int Score(int number) const { return List().Rows()[static_cast<std::size_t>(number - 1)].score; }
  QColor Key(const std::string& key) const { return skin.Colour("select.caves." + key, Qt::transparent); }

  void ClickRow(int number) {
    QTest::mouseClick(&List(), Qt::LeftButton, {}, QPoint(50, 1 + List().Top() + 14 * (number - 1) + 7));
  }

  // The text of the message box that an action opens.
  template <class Action>
  QString Message(Action action) {
    QString text;
    const InDialog dialog([&](QWidget& box) {
      text = box.findChild<QLabel*>("lblText")->text();
      QTest::keyClick(&box, Qt::Key_Return);
    });
    action();
    QCoreApplication::processEvents();
    EXPECT_TRUE(dialog.Opened());
    return text.simplified();
  }
};

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
  EXPECT_EQ(window->CollectionName(), "Sada");
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
  window->Prosel(window->Slot(), 5, false);
  ClickRow(2);
  EXPECT_TRUE(Shown("imgBonus"));
  ClickRow(3);
  EXPECT_FALSE(Shown("imgBonus"));
}

TEST_F(FrmPoStTest, SolvesAWonCaveOpensTheNextAndSelectsIt) {
  Caves(3);
  Open();
  window->Prosel(window->Slot(), 150, false);
  EXPECT_EQ(List().TextColour(1), Key("solvcolor"));
  EXPECT_EQ(Score(1), 150);
  EXPECT_EQ(Row(2), "c2");
  EXPECT_EQ(Row(3), "(zamčeno)");
  EXPECT_EQ(List().Selected(), 2);
  EXPECT_EQ(List().TextColour(2), Key("selection.textcolor"));
  EXPECT_EQ(Text("lblTotal"), "00150");
  EXPECT_EQ(Text("lblRest"), "Zbývá projít: 2 komnaty.");
  EXPECT_EQ(Text("lblCaveName"), "c2");
}

TEST_F(FrmPoStTest, CongratulatesWhenTheLastCaveIsSolved) {
  Caves(1);
  Open();
  EXPECT_FALSE(Shown("congratulation"));
  window->Prosel(window->Slot(), 42, false);
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
    EXPECT_EQ(text, "Skvělé!\nBody: 00042");
  }
}

TEST_F(FrmPoStTest, CongratulatesWithoutALastBonusCaveOnceThatIsOpen) {
  Collection({"a", "bonus"});
  Open();
  EXPECT_FALSE(Shown("congratulation"));
  window->Prosel(window->Slot(), 1, false);
  EXPECT_TRUE(Shown("congratulation"));
}

TEST_F(FrmPoStTest, HasNoCongratulationKeyBeforeTheEnd) {
  Caves(2);
  Open();
  const InDialog dialog([](QWidget&) {});
  Press(Qt::Key_G);
  QCoreApplication::processEvents();
  EXPECT_FALSE(dialog.Opened());
}

TEST_F(FrmPoStTest, PlaysTheSelectedCaveByButtonKeysAndDoubleClick) {
  Caves(2);
  Record(1, 10);
  Open();
  QSignalSpy played(window.get(), &FrmPoSt::PlayCave);
  ClickRow(2);
  Click("play");
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) Press(key);
  QTest::mouseDClick(&List(), Qt::LeftButton, {}, QPoint(50, 1 + 14 + 7));
  window->ClickedStart();
  ASSERT_EQ(played.size(), 6);
  for (const auto& arguments : played) {
    EXPECT_EQ(arguments.front().toByteArray().toStdString(), caves[1] + "---02");
  }
}

TEST_F(FrmPoStTest, PlaysNoClosedCave) {
  Caves(2);
  Open();
  QSignalSpy played(window.get(), &FrmPoSt::PlayCave);
  ClickRow(2);
  Press(Qt::Key_Space);
  Press(Qt::Key_Return);
  QTest::mouseDClick(&List(), Qt::LeftButton, {}, QPoint(50, 1 + 14 + 7));
  window->ClickedStart();
  EXPECT_EQ(played.size(), 0);
}

TEST_F(FrmPoStTest, PlaysTheRecordOfASolvedCaveByButtonAndKeys) {
  Caves(2);
  Record(1, 10, "Jiný");
  Open();
  QSignalSpy played(window.get(), &FrmPoSt::PlayRecord);
  Click("replay");
  Press(Qt::Key_Z);
  Press(Qt::Key_R);
  ASSERT_EQ(played.size(), 3);
  for (const auto& arguments : played) EXPECT_EQ(arguments.front().toString().toStdString(), RecordPath(1));
  ClickRow(2);
  Press(Qt::Key_Z);
  Press(Qt::Key_R);
  EXPECT_EQ(played.size(), 3) << "an open cave has no record";
}

TEST_F(FrmPoStTest, TakesNoKeyAsACommandWhileCtrlOrAltIsHeld) {
  Caves(1);
  Record(1, 10);
  Open();
  QSignalSpy replayed(window.get(), &FrmPoSt::PlayRecord);
  QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
  QTest::keyClick(window.get(), Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(replayed.size(), 0);
  EXPECT_TRUE(openedFiles.isEmpty());
}

TEST_F(FrmPoStTest, WritesALetterAndOpensItByButtonAndKeys) {
  Caves(2);
  Record(1, 10);
  Open();
  Click("send");
  Press(Qt::Key_E);
  Button("send").hide();
  Press(Qt::Key_S);
  const QString path = QString::fromStdString(PlayerFolder() + "/temp.eml");
  EXPECT_EQ(openedFiles, QStringList({path, path, path}));
  const auto letter = ReadWhole(path.toStdString());
  ASSERT_TRUE(letter);
  EXPECT_NE(letter->find("Sada_-_c1.zkr"), std::string::npos);
}

TEST_F(FrmPoStTest, TellsWhenNoProgramTakesTheLetter) {
  Caves(1);
  Open();
  nothingOpens = true;
  QString said = Message([&] { Click("send"); });
  EXPECT_TRUE(said.startsWith("Program pro tento soubor nebyl nalezen:")) << said.toStdString();
  EXPECT_TRUE(said.remove(' ').endsWith("temp.eml")) << said.toStdString();
}

TEST_F(FrmPoStTest, TellsWhenTheLetterCannotBeWritten) {
  Caves(1);
  Open();
  std::filesystem::remove_all(PlayerFolder());
  ASSERT_TRUE(WriteWhole(PlayerFolder(), "no folder"));
  const QString said = Message([&] { Click("send"); });
  EXPECT_TRUE(said.startsWith("Soubor se nepodařilo uložit.")) << said.toStdString();
  EXPECT_TRUE(openedFiles.isEmpty());
  Press(Qt::Key_Space);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmPoStTest, MakesALinkOfAnAuthorWithAnAddress) {
  Caves(1);
  Open();
  SkinLabel& author = Label("Label3");
  EXPECT_EQ(author.toolTip(), "\"jara@x.cz\": napište autorovi");
  EXPECT_EQ(author.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(author.Colour(), skin.Colour("select.collauthor.linkcolor"));
  QTest::mouseClick(&author, Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(openedLinks.join(' ').toStdString(),
            "mailto:jara@x.cz?subject=Sada%20%27Sada%27%20ze%20hry%20Zor%C3%ADk");
  Press(Qt::Key_M);
  ASSERT_EQ(openedLinks.size(), 2);
  EXPECT_EQ(openedLinks[1], openedLinks[0]) << "by the key";
}

TEST_F(FrmPoStTest, MakesNoLinkOfAnAuthorWithoutAnAddress) {
  for (const char* mail : {"", "jara", "a@b.c"}) {
    Collection({"a"}, mail);
    Open();
    SkinLabel& author = Label("Label3");
    EXPECT_EQ(author.toolTip(), "") << mail;
    EXPECT_EQ(author.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(author.Colour(), skin.Colour("select.collauthor.textcolor"));
    QTest::mouseClick(&author, Qt::LeftButton, {}, QPoint(5, 5));
    Press(Qt::Key_M);
  }
  EXPECT_TRUE(openedLinks.isEmpty());
}

TEST_F(FrmPoStTest, StepsThroughTheCavesAndStopsAtTheEnds) {
  Caves(3);
  Open();
  Press(Qt::Key_Up);
  EXPECT_EQ(List().Selected(), 1);
  Press(Qt::Key_Down);
  EXPECT_EQ(List().Selected(), 2);
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  EXPECT_EQ(List().Selected(), 3);
  Press(Qt::Key_Home);
  EXPECT_EQ(List().Selected(), 1);
  Press(Qt::Key_End);
  EXPECT_EQ(List().Selected(), 3);
}

TEST_F(FrmPoStTest, MovesByPages) {
  Caves(60);
  Open();
  Press(Qt::Key_PageDown);
  EXPECT_EQ(List().Selected(), 27);
  Press(Qt::Key_PageDown);
  Press(Qt::Key_PageDown);
  EXPECT_EQ(List().Selected(), 60);
  Press(Qt::Key_PageUp);
  EXPECT_EQ(List().Selected(), 34);
}

TEST_F(FrmPoStTest, HasAScrollButtonOnlyWhenTheListIsTooLong) {
  Caves(26);
  Open();
  EXPECT_FALSE(Shown("vscroll"));
  Caves(27);
  Open();
  EXPECT_TRUE(Shown("vscroll"));
}

TEST_F(FrmPoStTest, ScrollsByTheHalvesOfTheScrollButton) {
  Caves(40);
  Open();
  SkinButton& button = Button("vscroll");
  const QPoint lower(button.width() / 2, button.height() - 3);
  const QPoint upper(button.width() / 2, 3);
  QTest::mouseClick(&button, Qt::LeftButton, {}, lower);
  QTest::mouseClick(&button, Qt::LeftButton, {}, lower);
  EXPECT_EQ(List().Top(), -28);
  QTest::mouseClick(&button, Qt::LeftButton, {}, upper);
  EXPECT_EQ(List().Top(), -14);
}

TEST_F(FrmPoStTest, GoesBackByEscTheCloseButtonAndTheWindowsClosing) {
  Caves(1);
  Open();
  QSignalSpy back(window.get(), &FrmPoSt::Back);
  Press(Qt::Key_Escape);
  Click("close");
  EXPECT_FALSE(window->close());
  EXPECT_EQ(back.size(), 3);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmPoStTest, AsksForHelp) {
  Caves(1);
  Open();
  QSignalSpy help(window.get(), &FrmPoSt::HelpWanted);
  Click("help");
  Press(Qt::Key_F1);
  EXPECT_EQ(help.size(), 2);
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
  EXPECT_EQ(played.front().front().toByteArray().toStdString(), caves[0] + "---01");
  window->Prosel(window->Slot(), 5, false);
  EXPECT_EQ(List().Selected(), 2);
}

TEST_F(FrmPoStTest, StaysHiddenWhenItsFirstCollectionCannotBeOpened) {
  window = std::make_unique<FrmPoSt>(skin, folder.Paths(), unstored);
  EXPECT_FALSE(window->LoadColl("/nowhere/a.zk", "Žofie"));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(FrmPoStTest, ReadsTheRecordsAnewWhenACollectionIsOpenedAgain) {
  Caves(2);
  Open();
  window->Prosel(window->Slot(), 70, false);
  EXPECT_EQ(Score(1), 70);
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EXPECT_EQ(Score(1), 0) << "there is no record of that win";
  EXPECT_EQ(List().Selected(), 1);
}

// The desktop may find out only when a cave is played.
TEST_F(FrmPoStTest, TellsThatNoProgramTookTheLetterAsSoonAsItShowsAgain) {
  Caves(1);
  Open();
  OpenFailed failed;
  LetterOpeners openers;
  openers.file = [&](const QString&, const OpenFailed& told) { failed = told; };
  window = std::make_unique<FrmPoSt>(skin, folder.Paths(), unstored, openers);
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  Press(Qt::Key_S);
  window->hide();
  {
    const DialogScript nothing = {};
    failed();
    QTest::qWait(400);
  }
  window->show();
  const DialogScript script = {test::Press(Qt::Key_Return)};
  QTest::qWait(700);
}

TEST_F(FrmPoStTest, CountsAWinThatCouldNotBeStoredAndMarksIt) {
  Caves(3);
  Open();
  unstored.Keep({window->Slot(), 70, "the record"});
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
  unstored.Keep({window->Slot(), 70, "the record"});
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Adam"));
  EXPECT_EQ(Score(1), 0);
  EXPECT_TRUE(List().Rows()[0].stored);
}

TEST_F(FrmPoStTest, TakesNoWinOfACaveThatItDoesNotHave) {
  Caves(2);
  Open();
  const RecordSlot slot = window->Slot();
  Collection({"a", "b"});
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  window->Prosel(slot, 70, false);
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
  EXPECT_EQ(window->Slot().Path, folder.Root() + "/Players/Adam/Sada - c1.zkr");
}

TEST_F(FrmPoStTest, SpeaksTheLanguageOfTheSkin) {
  Caves(3);
  Open();
  ASSERT_TRUE(skin.Wear({folder.Root() + "/Skins", "English"}));
  window->SetLWPost();
  EXPECT_EQ(window->windowTitle(), "Cave selection");
  EXPECT_EQ(Text("lblRest"), "Still to solve: 3 caves.");
  EXPECT_EQ(Row(2), "(locked)");
  EXPECT_EQ(Button("play").toolTip(), "Play this cave");
  EXPECT_EQ(Button("replay").toolTip(), "Play the record");
  EXPECT_EQ(Button("congratulation").toolTip(), "Read the congratulation");
  EXPECT_EQ(Button("send").toolTip(), "Send the records by e-mail");
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
