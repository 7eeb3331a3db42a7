// What the selection screen does at keys, buttons and links.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <filesystem>

#include "data/Files.h"
#include "data/Result.h"
#include "data/WebPage.h"
#include "platform/UserFolders.h"
#include "screens/PageOffer.h"
#include "screens/PostList.h"
#include "support/Spoiled.h"

namespace zorik {
namespace {

using test::DialogScript;
using test::InDialog;

using FrmPoStCommands = test::PostList;

TEST_F(FrmPoStCommands, HasNoCongratulationKeyBeforeTheEnd) {
  Caves(2);
  Open();
  const InDialog dialog([](QWidget&) {});
  Press(Qt::Key_G);
  QCoreApplication::processEvents();
  EXPECT_FALSE(dialog.Opened());
}

TEST_F(FrmPoStCommands, PlaysTheSelectedCaveByButtonKeysAndDoubleClick) {
  Caves(2);
  Record(1, 10);
  Open();
  std::vector<std::string> played;
  QObject::connect(window.get(), &FrmPoSt::PlayCave, [&] {
    ASSERT_TRUE(flow.Start());
    played.push_back(hra.CaveText);
  });
  ClickRow(2);
  Click("play");
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) Press(key);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, QPoint(50, 1 + 14 + 7));
  window->ClickedStart();
  EXPECT_EQ(played, std::vector<std::string>(6, caves[1] + "---02"));
}

TEST_F(FrmPoStCommands, PlaysNoClosedCave) {
  Caves(2);
  Open();
  QSignalSpy played(window.get(), &FrmPoSt::PlayCave);
  ClickRow(2);
  Press(Qt::Key_Space);
  Press(Qt::Key_Return);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, QPoint(50, 1 + 14 + 7));
  window->ClickedStart();
  EXPECT_EQ(played.size(), 0);
}

TEST_F(FrmPoStCommands, LetsAnOpenCaveBePractisedByButtonAndKey) {
  Caves(2);
  Open();
  QSignalSpy practised(window.get(), &FrmPoSt::PracticeWanted);
  EXPECT_TRUE(Button("practice").isVisible());
  EXPECT_TRUE(Button("practice").toolTip().startsWith("Trénink"));
  Click("practice");
  Press(Qt::Key_T);
  EXPECT_EQ(practised.size(), 2);
  ClickRow(2);
  EXPECT_FALSE(Button("practice").isVisible());
  Press(Qt::Key_T);
  EXPECT_EQ(practised.size(), 2) << "a closed cave";
}

TEST_F(FrmPoStCommands, LetsACaveBePractisedByKeyInASkinWithoutTheButton) {
  auto table = *ReadWhole(folder.Root() + "/Skins/Default/Menu/skindata.txt");
  const std::string key = "practice.image=";
  ASSERT_NE(table.find(key), std::string::npos);
  table.erase(table.find(key), table.find("vscroll.image=", table.find(key)) - table.find(key));
  folder.File("Skins/Default/Menu/skindata.txt", table);
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins"}));
  Caves(1);
  Open();
  EXPECT_FALSE(Button("practice").isVisible());
  QSignalSpy practised(window.get(), &FrmPoSt::PracticeWanted);
  Press(Qt::Key_T);
  EXPECT_EQ(practised.size(), 1);
}

TEST_F(FrmPoStCommands, PlaysTheRecordOfASolvedCaveByButtonAndKeys) {
  Caves(2);
  Record(1, 10, "Jiný");
  Open();
  QSignalSpy played(window.get(), &FrmPoSt::PlayRecord);
  Click("replay");
  Press(Qt::Key_Z);
  Press(Qt::Key_R);
  EXPECT_EQ(played.size(), 3);
  EXPECT_EQ(flow.Caves().RecordPath(), RecordPath(1));
  ClickRow(2);
  Press(Qt::Key_Z);
  Press(Qt::Key_R);
  EXPECT_EQ(played.size(), 3) << "an open cave has no record";
}

TEST_F(FrmPoStCommands, TakesNoKeyAsACommandWhileCtrlOrAltIsHeld) {
  Caves(1);
  Record(1, 10);
  Open();
  QSignalSpy replayed(window.get(), &FrmPoSt::PlayRecord);
  QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
  QTest::keyClick(window.get(), Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(replayed.size(), 0);
  EXPECT_TRUE(openedFiles.isEmpty());
}

TEST_F(FrmPoStCommands, WritesALetterAndOpensItByButtonAndKeys) {
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

TEST_F(FrmPoStCommands, SaysThatItCannotMakeAPageOfARecordWithoutATemplate) {
  Caves(1);
  Open();
  const QString said =
      Message([&] { OfferPage(skin, window.get(), "record", "c1", folder.Root() + "/nowhere"); });
  EXPECT_TRUE(said.startsWith("Hra tu nemá předlohu stránky (page.html)")) << said.toStdString();
}

TEST_F(FrmPoStCommands, RefusesToMakeAPageOfWhatIsNoRecord) {
  Caves(1);
  Open();
  std::filesystem::create_directories(folder.Root() + "/program");
  ASSERT_TRUE(WriteWhole(folder.Root() + "/program/page.html", "<!--given-->"));
  const QString said =
      Message([&] { OfferPage(skin, window.get(), "record", "c1", folder.Root() + "/program"); });
  EXPECT_EQ(said, "Záznam nelze přehrát");
}

TEST_F(FrmPoStCommands, WritesARecordAsAPageWhereverTheCavesNameWouldLead) {
  Caves(1);
  Record(1, 10);
  Open();
  const std::string program = folder.Root() + "/program", page = folder.Root() + "/page.html";
  std::filesystem::create_directories(program);
  ASSERT_TRUE(WriteWhole(program + "/page.html", "<p><!--given--></p>"));
  QString proposed;
  const DialogScript script = {[&](QWidget& dialog) {
    auto& box = static_cast<QFileDialog&>(dialog);
    proposed = box.selectedFiles().constFirst();
    box.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(page));
    static_cast<QDialog&>(box).accept();
  }};
  const std::string record = *ReadWhole(RecordPath(1));
  OfferPage(skin, window.get(), record, "../c/1", program);
  EXPECT_EQ(proposed, HomeText() + "/..c1.html");
  const Result<std::string> written = ReadWhole(page);
  ASSERT_TRUE(written);
  EXPECT_NE(written->find(Base64(record)), std::string::npos);
}

TEST_F(FrmPoStCommands, OffersNoPageOfACaveThatIsNotWon) {
  Caves(1);
  Open();
  Press(Qt::Key_W);  // a box would wait here for ever
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FrmPoStCommands, TellsWhenNoProgramTakesTheLetter) {
  Caves(1);
  Open();
  nothingOpens = true;
  QString said = Message([&] { Click("send"); });
  EXPECT_TRUE(said.startsWith("Program pro tento soubor nebyl nalezen:")) << said.toStdString();
  EXPECT_TRUE(said.remove(' ').endsWith("temp.eml")) << said.toStdString();
}

TEST_F(FrmPoStCommands, TellsWhenTheLetterCannotBeWritten) {
  Caves(1);
  Open();
  test::Spoil(PlayerFolder());
  const QString said = Message([&] { Click("send"); });
  EXPECT_TRUE(said.startsWith("Soubor se nepodařilo uložit.")) << said.toStdString();
  EXPECT_TRUE(openedFiles.isEmpty());
  Press(Qt::Key_Space);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmPoStCommands, MakesALinkOfAnAuthorWithAnAddress) {
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

TEST_F(FrmPoStCommands, MakesNoLinkOfAnAuthorWithoutAnAddress) {
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

TEST_F(FrmPoStCommands, MakesNoLinkOfTheNextAuthorBecauseOneHadAnAddress) {
  Caves(1);
  Open();
  ASSERT_EQ(Label("Label3").cursor().shape(), Qt::PointingHandCursor);
  Collection({"a"}, "");
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EXPECT_EQ(Label("Label3").toolTip(), "");
  EXPECT_EQ(Label("Label3").cursor().shape(), Qt::ArrowCursor);
  QTest::mouseClick(&Label("Label3"), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_TRUE(openedLinks.isEmpty());
}

TEST_F(FrmPoStCommands, StepsThroughTheCavesAndStopsAtTheEnds) {
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

TEST_F(FrmPoStCommands, SelectsACaveByALetterThatIsNoCommand) {
  Caves(3);
  Open();
  std::vector<CaveList::Row> rows = List().Rows();
  rows[2].name = "Bouda";
  List().SetRows(rows);
  QTest::keyClicks(window.get(), "b");
  EXPECT_EQ(List().Selected(), 3);
}

TEST_F(FrmPoStCommands, SelectsNoCaveByACommandThatHasNothingToDo) {
  Caves(3);
  Open();
  std::vector<CaveList::Row> rows = List().Rows();
  for (const char* const name : {"Zeď", "Ruda", "Gong", "Ucho"}) {
    rows[1].name = name;
    List().SetRows(rows);
    QTest::keyClicks(window.get(), QString(QChar(name[0])));
    EXPECT_EQ(List().Selected(), 1) << name;
  }
}

TEST_F(FrmPoStCommands, MovesByPages) {
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

TEST_F(FrmPoStCommands, HasAScrollButtonOnlyWhenTheListIsTooLong) {
  Caves(26);
  Open();
  EXPECT_FALSE(Shown("vscroll"));
  Caves(27);
  Open();
  EXPECT_TRUE(Shown("vscroll"));
}

TEST_F(FrmPoStCommands, ScrollsByTheHalvesOfTheScrollButton) {
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

TEST_F(FrmPoStCommands, GoesBackByEscTheCloseButtonAndTheWindowsClosing) {
  Caves(1);
  Open();
  QSignalSpy back(window.get(), &FrmPoSt::Back);
  Press(Qt::Key_Escape);
  Click("close");
  EXPECT_FALSE(window->close());
  EXPECT_EQ(back.size(), 3);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmPoStCommands, AsksForHelp) {
  Caves(1);
  Open();
  QSignalSpy help(window.get(), &FrmPoSt::HelpWanted);
  Click("help");
  Press(Qt::Key_F1);
  EXPECT_EQ(help.size(), 2);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_F1, {}, {}, true);
  QApplication::sendEvent(window.get(), &held);
  EXPECT_EQ(help.size(), 2) << "a key that is held asks once";
}

// The desktop may find out only when a cave is played.
TEST_F(FrmPoStCommands, TellsThatNoProgramTookTheLetterAsSoonAsItShowsAgain) {
  Caves(1);
  Open();
  OpenFailed failed;
  LetterOpeners openers;
  openers.file = [&](const QString&, const OpenFailed& told) { failed = told; };
  window = std::make_unique<FrmPoSt>(skin, flow, openers);
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
  EXPECT_TRUE(QTest::qWaitFor([&] { return script.Done(); }));
}

}  // namespace
}  // namespace zorik
