#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <future>
#include <thread>

#include "app/Game.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "screens/CaveList.h"
#include "screens/DialogScript.h"
#include "screens/Folder.h"
#include "screens/SkinButton.h"
#include "screens/StartLists.h"

namespace zorik {
namespace {

using test::DialogScript;
using test::Folder;
using test::OneStepCave;

constexpr int kPatience = 10000;  // milliseconds

template <class Window>
Window* Screen() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (auto* const window = dynamic_cast<Window*>(widget)) return window;
  }
  return nullptr;
}

template <class Window>
bool Shows() {
  const auto* const window = Screen<Window>();
  return window != nullptr && window->isVisible();
}

template <class Condition>
bool Wait(Condition condition) {
  return QTest::qWaitFor(condition, kPatience);
}

// Reads every message box, and closes it with Enter.
class BoxReader : public QObject {
 public:
  BoxReader() { startTimer(10); }

  QStringList said;

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    QWidget* const box = QApplication::activeModalWidget();
    const auto* const text = box == nullptr ? nullptr : box->findChild<QLabel*>("lblText");
    if (text == nullptr) return;
    said.push_back(text->text());
    QTest::keyRelease(box, Qt::Key_Return);  // the finger whose press has opened the box
    QTest::keyClick(box, Qt::Key_Return);
  }
};

// The whole program on a folder with a collection of two caves and a player, walked through by keys.
class GameTest : public testing::Test {
 protected:
  void SetUp() override {
    folder.Collection("a.zk", "Alfa", {OneStepCave("Jedna"), OneStepCave("Druha")});
    std::filesystem::create_directories(folder.Root() + "/Players/Ada");
    Begin();
  }

  void Begin() {
    Paths paths = folder.Paths();
    paths.ShippedSkins = ZORIK_BUILT_SKINS;
    game.reset();
    inbox = std::make_unique<Inbox>(InboxPlace(folder.Root()));
    game = std::make_unique<Game>(paths, settings, *inbox);
    game->Begin();
    ASSERT_TRUE(Wait(Shows<FrmStart2>));
  }

  // What is pressed while the busy notice is there is lost, so that has to go first.
  static void Press(QWidget* window, Qt::Key key) {
    QTest::qWait(1);
    QTest::keyClick(window, key);
  }
  static void Click(QWidget* window, const char* button) {
    QTest::qWait(1);
    QTest::mouseClick(window->findChild<QWidget*>(button), Qt::LeftButton);
  }
  // A key of a menu.
  static void Command(QWidget* window, Qt::Key key) {
    QTest::qWait(1);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, key);
  }
  static void Close(QWidget* window) {
    QTest::qWait(1);
    window->close();
  }

  void OpenCollection() const {
    Press(Screen<FrmStart2>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  }

  void PlayCave() const {
    OpenCollection();
    Press(Screen<FrmPoSt>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
  }

  // Closes the score as often as it comes, until the selection is alone.
  static void ReadScores() {
    ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
    ASSERT_TRUE(Wait([] {
      if (Shows<FrmAnalyze>()) Press(Screen<FrmAnalyze>(), Qt::Key_Return);
      return !Shows<FrmAnalyze>() && Shows<FrmPoSt>();
    }));
  }

  void WinCave() const {
    PlayCave();
    Press(Screen<HraWindow>(), Qt::Key_Right);
    ReadScores();
  }

  std::string RecordPath() const { return folder.Root() + "/Players/Ada/Alfa - Jedna.zkr"; }

  Folder folder;
  Settings settings{.Speed = 2, .SpeedR = 5, .Sound = false};
  std::unique_ptr<Inbox> inbox;
  std::unique_ptr<Game> game;
};

TEST_F(GameTest, BeginsWithTheStartScreenAlone) {
  EXPECT_TRUE(Shows<FrmStart2>());
  EXPECT_FALSE(Shows<FrmPoSt>());
  EXPECT_FALSE(Shows<HraWindow>());
  EXPECT_FALSE(Shows<FrmLoading>());
}

TEST_F(GameTest, GoesFromTheStartToTheCavesOfACollection) {
  OpenCollection();
  EXPECT_FALSE(Shows<FrmStart2>());
}

TEST_F(GameTest, GoesBackFromTheCavesToTheStart) {
  OpenCollection();
  Press(Screen<FrmPoSt>(), Qt::Key_Escape);
  EXPECT_TRUE(Wait(Shows<FrmStart2>));
  EXPECT_FALSE(Shows<FrmPoSt>());
}

TEST_F(GameTest, GoesFromACaveIntoTheGameWindow) {
  PlayCave();
  EXPECT_FALSE(Shows<FrmPoSt>());
  EXPECT_TRUE(Screen<HraWindow>()->windowTitle().startsWith("Zorík - Alfa - Jedna   ...hraje Ada"));
}

TEST_F(GameTest, GoesBackToTheCavesWhenTheGameWindowIsClosed) {
  PlayCave();
  QTest::qWait(1);
  Screen<HraWindow>()->close();
  EXPECT_TRUE(Wait(Shows<FrmPoSt>));
  EXPECT_FALSE(Shows<HraWindow>());
  EXPECT_FALSE(Screen<HraWindow>()->Ticking());
}

TEST_F(GameTest, StoresAWinAndOpensTheNextCave) {
  WinCave();
  EXPECT_TRUE(ReadWhole(RecordPath()));
  EXPECT_FALSE(Shows<HraWindow>());
  Press(Screen<FrmPoSt>(), Qt::Key_Return);
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  EXPECT_TRUE(Screen<HraWindow>()->windowTitle().contains("Druha"));
}

TEST_F(GameTest, ReplaysAWonCaveAndShowsItsScoreOnce) {
  WinCave();
  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  Press(Screen<FrmPoSt>(), Qt::Key_R);
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  EXPECT_TRUE(Screen<HraWindow>()->windowTitle().contains("...záznam pro hráče Ada"));
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  Press(Screen<FrmAnalyze>(), Qt::Key_Return);
  EXPECT_TRUE(Wait([] { return !Shows<FrmAnalyze>() && Shows<FrmPoSt>(); }));
}

TEST_F(GameTest, PlaysARecordFromOutsideForNobodyAndGoesBackToTheStart) {
  WinCave();
  Press(Screen<FrmPoSt>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  // As far as nobody knows somebody else has made it: a message says who.
  const BoxReader reader;
  Screen<FrmStart2>()->AnotherRepl(QString::fromStdString(RecordPath()));
  ASSERT_EQ(reader.said.size(), 1);
  EXPECT_TRUE(reader.said[0].startsWith("Ada  ")) << reader.said[0].toStdString();
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  Press(Screen<FrmAnalyze>(), Qt::Key_Return);
  EXPECT_TRUE(Wait([] { return !Shows<FrmAnalyze>() && Shows<FrmStart2>(); }));
  EXPECT_FALSE(Shows<FrmPoSt>());
  EXPECT_FALSE(Shows<HraWindow>());
}

TEST_F(GameTest, SaysThatARecordCannotBePlayedAndStaysWhereItWas) {
  folder.File("x.zkr", "rubbish");
  const BoxReader reader;
  Screen<FrmStart2>()->AnotherRepl(QString::fromStdString(folder.Root() + "/x.zkr"));
  ASSERT_EQ(reader.said.size(), 1);
  EXPECT_TRUE(reader.said[0].contains("x.zkr")) << reader.said[0].toStdString();
  EXPECT_TRUE(Shows<FrmStart2>());
  EXPECT_FALSE(Shows<HraWindow>());
}

TEST_F(GameTest, OpensACollectionAndPlaysACaveByDoubleClicks) {
  auto* const colls = Screen<FrmStart2>()->findChild<LabelList*>("lblCColl");
  QTest::qWait(1);
  QTest::mouseClick(colls, Qt::LeftButton, {}, colls->PlaceOf(0).center());
  QTest::mouseDClick(colls, Qt::LeftButton, {}, colls->PlaceOf(0).center());
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  QTest::qWait(1);
  QTest::mouseDClick(Screen<FrmPoSt>()->findChild<CaveList*>(), Qt::LeftButton, {}, QPoint(50, 8));
  EXPECT_TRUE(Wait(Shows<HraWindow>));
  EXPECT_FALSE(Shows<FrmStart2>() || Shows<FrmPoSt>());
}

TEST_F(GameTest, MarksAWonCaveAndSelectsTheNext) {
  OpenCollection();
  Click(Screen<FrmPoSt>(), "play");
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  Press(Screen<HraWindow>(), Qt::Key_Right);
  ReadScores();
  const auto* const caves = Screen<FrmPoSt>()->findChild<CaveList*>();
  EXPECT_EQ(caves->Rows()[0].state, CaveState::Solved);
  EXPECT_GT(caves->Rows()[0].score, 0);
  EXPECT_EQ(caves->Rows()[1].state, CaveState::Open);
  EXPECT_EQ(caves->Selected(), 2);
}

TEST_F(GameTest, LeavesAReplayOfThePlayersOwnForTheCaves) {
  WinCave();
  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  Click(Screen<FrmPoSt>(), "replay");
  ASSERT_TRUE(Shows<HraWindow>());
  Close(Screen<HraWindow>());
  EXPECT_TRUE(Shows<FrmPoSt>());
  EXPECT_FALSE(Shows<HraWindow>() || Shows<FrmStart2>());
}

TEST_F(GameTest, PlaysARecordThatIsChosenAndLeavesItForTheStart) {
  WinCave();
  Press(Screen<FrmPoSt>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  {
    const DialogScript script = {[this](QWidget& dialog) {
                                   auto& box = dynamic_cast<QFileDialog&>(dialog);
                                   box.selectFile(QString::fromStdString(RecordPath()));
                                   static_cast<QDialog&>(box).accept();
                                 },
                                 test::Press(Qt::Key_Return)};
    Click(Screen<FrmStart2>(), "fingerRePlay");
    Click(Screen<FrmStart2>(), "play");
  }
  ASSERT_TRUE(Shows<HraWindow>());
  EXPECT_TRUE(Screen<HraWindow>()->windowTitle().endsWith("...přehrávání záznamu"));
  Close(Screen<HraWindow>());
  EXPECT_TRUE(Shows<FrmStart2>());
  EXPECT_FALSE(Shows<HraWindow>() || Shows<FrmPoSt>());
}

TEST_F(GameTest, SaysThatACollectionCannotBeOpenedAndStaysAtTheStart) {
  folder.File("Caves/b.zk", "rubbish");
  Screen<FrmStart2>()->FindColls();
  Press(Screen<FrmStart2>(), Qt::Key_Down);
  const BoxReader reader;
  Press(Screen<FrmStart2>(), Qt::Key_Return);
  ASSERT_EQ(reader.said.size(), 1);
  EXPECT_TRUE(reader.said[0].contains("b.zk")) << reader.said[0].toStdString();
  EXPECT_TRUE(Shows<FrmStart2>());
  EXPECT_FALSE(Shows<FrmPoSt>());
}

TEST_F(GameTest, StoresAtItsEndThatTheGameWindowFillsTheScreen) {
  Click(Screen<FrmStart2>(), "close");
  const QSettings store(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik");
  EXPECT_EQ(store.value("Maximized").toInt(), 1);
}

TEST_F(GameTest, SpeaksAnotherLanguageInAllScreensAtOnce) {
  const DialogScript script = {[](QWidget& dialog) {
    dialog.findChild<QComboBox*>("Combo1")->setCurrentText("English");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }};
  Click(Screen<FrmStart2>(), "changeskin");
  EXPECT_EQ(Screen<FrmStart2>()->findChild<QWidget*>("fingerRePlay")->toolTip(), "Replay");
  EXPECT_TRUE(Screen<FrmSada>()->windowTitle().startsWith("Zorík's collection editor"));
  EXPECT_EQ(Screen<FrmMain>()->windowTitle(), "Zorík's cave editor");
  OpenCollection();
  EXPECT_EQ(Screen<FrmPoSt>()->windowTitle(), "Cave selection");
}

// Everything as an old archive unpacks it, in Windows-1250.
TEST_F(GameTest, PlaysCollectionsForPlayersWhoseNamesAreNoUtf8) {
  const std::string root = folder.Root();
  const std::string player = root + "/Players/Hr\xE1\xE8";
  std::filesystem::rename(root + "/Players/Ada", player);
  std::filesystem::rename(root + "/Caves/a.zk", root + "/Caves/Sk\xE1la.zk");
  game.reset();
  Begin();
  WinCave();
  const std::string record = player + "/Alfa - Jedna.zkr";
  ASSERT_TRUE(std::filesystem::exists(record));
  EXPECT_FALSE(std::filesystem::exists(root + "/Players/Hráč"));
  const auto bytes = ReadWhole(record);
  RecordLines lines(*bytes);
  EXPECT_EQ(ReadRecordHead(lines).Player, "Hr\xE1\xE8");

  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  Press(Screen<FrmPoSt>(), Qt::Key_Z);
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  EXPECT_TRUE(Screen<HraWindow>()->Machine().ReplayPlaying);
  EXPECT_EQ(Screen<HraWindow>()->windowTitle().section("...", 1), "záznam pro hráče Hráč");
}

TEST_F(GameTest, OffersTheCavesThatCameWithTheGameAndListsThemAtOnce) {
  test::Folder shipped;
  shipped.Collection("b.zk", "Beta", {OneStepCave("Jedna")});
  std::filesystem::remove(folder.Root() + "/Caves/a.zk");
  Paths paths = folder.Paths();
  paths.SkinsPath = ZORIK_BUILT_SKINS;
  paths.CavesPath = folder.Root();
  paths.ShippedCaves = shipped.Root() + "/Caves";
  game.reset();
  game = std::make_unique<Game>(paths, settings, *inbox);
  const DialogScript script = {test::Press(Qt::Key_Return)};
  game->Begin();
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  EXPECT_EQ(Screen<FrmStart2>()->findChild<LabelList*>("lblCColl")->Labels(), QStringList{"Beta"});
  OpenCollection();
}

// In the editors, on the first cave of the collection.
class GameEditors : public GameTest {
 protected:
  void SetUp() override {
    GameTest::SetUp();
    Enter();
  }

  static void Enter() {
    Click(Screen<FrmStart2>(), "fingerEditor");
    Click(Screen<FrmStart2>(), "play");
    ASSERT_TRUE(Wait(Shows<FrmSada>));
    EXPECT_FALSE(Shows<FrmStart2>());
    // The cave is lower than the editor takes.
    const DialogScript script = {test::Press(Qt::Key_Y)};
    Command(Screen<FrmSada>(), Qt::Key_F4);
    ASSERT_TRUE(Wait(Shows<FrmMain>));
    EXPECT_FALSE(Shows<FrmSada>());
  }

  void TestRun() const {
    Command(Screen<FrmMain>(), Qt::Key_F5);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
    EXPECT_FALSE(Shows<FrmMain>());
  }

  // Leaves both editors, and keeps nothing.
  void Leave() const {
    Command(Screen<FrmMain>(), Qt::Key_Escape);
    ASSERT_TRUE(Wait(Shows<FrmSada>));
    EXPECT_FALSE(Shows<FrmMain>());
    const DialogScript script = {test::Press(Qt::Key_N)};
    Close(Screen<FrmSada>());
    ASSERT_TRUE(Wait(Shows<FrmStart2>));
    EXPECT_FALSE(Shows<FrmSada>());
  }
};

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

TEST_F(GameEditors, TryACaveAndComeBackWhenTheGameWindowIsClosed) {
  TestRun();
  EXPECT_TRUE(Screen<HraWindow>()->Machine().EditorRun);
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

// A file that the desktop hands to the running game.
class GameFromOutside : public GameEditors {
 protected:
  void SetUp() override { GameTest::SetUp(); }

  std::future<bool> HandOverLater(const QString& name) const {
    const QString place = InboxPlace(folder.Root());
    return std::async(std::launch::async, [=] { return HandOver(name, place); });
  }

  void Beta() const { folder.Collection("b.zk", "Beta", {OneStepCave("Jina")}); }
  QString BetaPath() const { return QString::fromStdString(folder.Root() + "/Caves/b.zk"); }
  static bool BetaIsOpen() { return Shows<FrmPoSt>() && Screen<FrmPoSt>()->CollectionName() == "Beta"; }

  static QWidget* Sign() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == "waitSign" && widget->isVisible()) return widget;
    }
    return nullptr;
  }
  static bool SignNames(const QString& file) {
    const auto* const sign = dynamic_cast<QLabel*>(Sign());
    return sign != nullptr && sign->text().contains(file);
  }

  // From another thread, as the game must be free to take it.
  bool HandOverMeanwhile(const std::string& path) const {
    const QString name = QString::fromStdString(folder.Root() + "/" + path);
    auto done = HandOverLater(name);
    while (done.wait_for(std::chrono::milliseconds(0)) != std::future_status::ready) QTest::qWait(5);
    return done.get();
  }
};

TEST_F(GameFromOutside, ACollectionIsOpenedForThePlayer) {
  folder.Collection("b.zk", "Beta", {OneStepCave("Jedna")});
  ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  EXPECT_EQ(Screen<FrmPoSt>()->CollectionName(), "Beta");
  EXPECT_FALSE(Shows<FrmStart2>());
}

TEST_F(GameFromOutside, ACollectionMayStartTheGame) {
  game.reset();
  qputenv(kOpenVariable, QByteArray::fromStdString(folder.Root() + "/Caves/a.zk"));
  Begin();
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  EXPECT_EQ(Screen<FrmPoSt>()->CollectionName(), "Alfa");
  EXPECT_FALSE(qEnvironmentVariableIsSet(kOpenVariable)) << "what the game starts does not inherit it";
}

TEST_F(GameFromOutside, ACollectionEndsTheRunThatIsPlayedWhenThePlayerLikes) {
  PlayCave();
  Beta();
  const DialogScript script = {[](QWidget& box) {
    EXPECT_TRUE(Shows<HraWindow>() && !Shows<FrmStart2>()) << "the box belongs to the game";
    EXPECT_FALSE(Screen<HraWindow>()->Ticking());
    EXPECT_TRUE(box.findChild<QLabel*>("lblText")->text().startsWith("b.zk\n"));
    QTest::keyClick(&box, Qt::Key_Y);
  }};
  ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
  ASSERT_TRUE(Wait(BetaIsOpen));
  EXPECT_FALSE(Shows<HraWindow>() || Shows<FrmStart2>());
}

TEST_F(GameFromOutside, ACollectionWaitsForTheEndOfARunThatThePlayerGoesOnWith) {
  PlayCave();
  Beta();
  {
    const DialogScript script = {test::Press(Qt::Key_N)};
    ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
    QTest::qWait(600);
  }
  folder.Collection("c.zk", "Gama", {OneStepCave("Jina")});
  ASSERT_TRUE(HandOverMeanwhile("Caves/c.zk"));
  EXPECT_TRUE(Wait([] { return SignNames("c.zk"); })) << "and is not asked about";
  EXPECT_TRUE(Shows<HraWindow>());
  EXPECT_TRUE(Screen<HraWindow>()->Ticking());
  Close(Screen<HraWindow>());
  EXPECT_TRUE(Wait(BetaIsOpen));
  EXPECT_TRUE(Wait([] { return Screen<FrmPoSt>()->CollectionName() == "Gama"; }));
}

TEST_F(GameFromOutside, ACollectionSaysInATestRunThatItWaits) {
  Enter();
  TestRun();
  Beta();
  ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
  EXPECT_TRUE(Wait([] { return SignNames("b.zk"); }));
  EXPECT_TRUE(Shows<HraWindow>());
  EXPECT_TRUE(Screen<HraWindow>()->Ticking());
  EXPECT_FALSE(Shows<FrmStart2>());
  Close(Screen<HraWindow>());
  ASSERT_TRUE(Wait(Shows<FrmMain>));
  Leave();
  EXPECT_TRUE(Wait(BetaIsOpen));
}

TEST_F(GameFromOutside, ACollectionSaysBehindABoxThatItWaits) {
  OpenCollection();
  Beta();
  {
    const DialogScript script = {[this](QWidget& box) {
      ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
      EXPECT_TRUE(Wait([] { return SignNames("b.zk"); }));
      QTest::qWait(300);
      EXPECT_TRUE(Shows<FrmPoSt>() && !Shows<FrmStart2>()) << "the box is over its own screen";
      EXPECT_EQ(Screen<FrmPoSt>()->CollectionName(), "Alfa");
      QTest::keyClick(&box, Qt::Key_Return);
    }};
    Press(Screen<FrmPoSt>(), Qt::Key_F1);  // there is no help here, which is told
  }
  EXPECT_TRUE(Wait(BetaIsOpen));
}

TEST_F(GameFromOutside, ACollectionDoesNotGiveTheHiddenGameAway) {
  PlayCave();
  Press(Screen<HraWindow>(), Qt::Key_F12);
  ASSERT_TRUE(Wait(Shows<HideAway>));
  Beta();
  ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
  QTest::qWait(600);
  EXPECT_TRUE(Shows<HideAway>());
  EXPECT_FALSE(Shows<FrmStart2>() || Shows<FrmPoSt>() || Shows<HraWindow>() || Sign() != nullptr);
  const DialogScript script = {test::Press(Qt::Key_Y)};
  Close(Screen<HideAway>());
  EXPECT_TRUE(Wait(BetaIsOpen));
}

// The busy notice lets in what comes from outside.
TEST_F(GameFromOutside, ACollectionThatComesWhileACaveIsLoadedDoesNotGetItsWin) {
  OpenCollection();
  Beta();
  QTest::qWait(1);
  auto done = HandOverLater(BetaPath());
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  {
    const DialogScript script = {test::Press(Qt::Key_N)};
    QTest::keyClick(Screen<FrmPoSt>(), Qt::Key_Return);
    EXPECT_EQ(Screen<FrmPoSt>()->CollectionName(), "Alfa");
    ASSERT_TRUE(Wait([&] { return done.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
    QTest::qWait(600);
  }
  ASSERT_TRUE(Shows<HraWindow>());
  Press(Screen<HraWindow>(), Qt::Key_Right);
  ReadScores();
  EXPECT_TRUE(ReadWhole(RecordPath()));
  EXPECT_FALSE(ReadWhole(folder.Root() + "/Players/Ada/Beta - Jina.zkr"));
  EXPECT_TRUE(Wait(BetaIsOpen));
}

TEST_F(GameFromOutside, FilesThatComeTogetherAreOpenedOneAfterTheOther) {
  Beta();
  folder.Collection("c.zk", "Gama", {OneStepCave("Jina")});
  const DialogScript script = {[this](QWidget& dialog) {
    ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
    ASSERT_TRUE(HandOverMeanwhile("Caves/c.zk"));
    QTest::qWait(300);
    EXPECT_FALSE(Shows<FrmPoSt>());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }};
  Click(Screen<FrmStart2>(), "addplayer");
  EXPECT_TRUE(Wait(BetaIsOpen));
  EXPECT_TRUE(Wait([] { return Screen<FrmPoSt>()->CollectionName() == "Gama"; }));
}

TEST_F(GameFromOutside, AnotherStartBringsAMinimisedGameBack) {
  PlayCave();
  Screen<HraWindow>()->showMinimized();
  ASSERT_FALSE(Screen<HraWindow>()->Ticking());
  auto done = HandOverLater(QString());
  ASSERT_TRUE(Wait([] { return Screen<HraWindow>()->Ticking(); }));
  EXPECT_FALSE(Screen<HraWindow>()->isMinimized());
  EXPECT_TRUE(Shows<HraWindow>() && !Shows<FrmStart2>());
}

TEST_F(GameFromOutside, ACollectionWaitsUntilTheScoreIsRead) {
  PlayCave();
  Press(Screen<HraWindow>(), Qt::Key_Right);
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  folder.Collection("b.zk", "Beta", {OneStepCave("Jedna")});
  ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
  QTest::qWait(300);
  EXPECT_TRUE(Shows<FrmAnalyze>());
  EXPECT_FALSE(Shows<FrmStart2>());
  ReadScores();
  EXPECT_TRUE(ReadWhole(RecordPath()));
  ASSERT_TRUE(Wait([] { return Screen<FrmPoSt>()->CollectionName() == "Beta"; }));
  EXPECT_TRUE(Shows<FrmPoSt>());
  EXPECT_FALSE(Shows<FrmStart2>() || Shows<HraWindow>());
}

TEST_F(GameFromOutside, ARecordThatCameDuringTheScoreIsPlayedAfterIt) {
  WinCave();
  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  Press(Screen<FrmPoSt>(), Qt::Key_R);
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
  const std::string record = RecordPath().substr(folder.Root().size() + 1);
  ASSERT_TRUE(HandOverMeanwhile(record));
  const BoxReader reader;  // a record from outside says whose it is
  Press(Screen<FrmAnalyze>(), Qt::Key_Return);
  ASSERT_TRUE(Wait([] { return !Shows<FrmAnalyze>(); }));
  ASSERT_TRUE(Wait(Shows<FrmAnalyze>)) << "the score of the record from outside";
  EXPECT_FALSE(Shows<FrmStart2>() || Shows<FrmPoSt>());
  Press(Screen<FrmAnalyze>(), Qt::Key_Return);
  EXPECT_TRUE(Wait([] { return Shows<FrmStart2>() && !Shows<FrmPoSt>(); }));
}

TEST_F(GameFromOutside, ACollectionWaitsUntilTheEditorsAreLeft) {
  Enter();
  folder.Collection("b.zk", "Beta", {OneStepCave("Jedna")});
  ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
  QTest::qWait(500);
  EXPECT_TRUE(Shows<FrmMain>());
  EXPECT_FALSE(Shows<FrmPoSt>() || Shows<FrmStart2>());
  Leave();
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  EXPECT_EQ(Screen<FrmPoSt>()->CollectionName(), "Beta");
}

// Wins that cannot be stored, as a file stands in the place of the player's folder.
class GameUnstored : public GameTest {
 protected:
  std::string PlayerFolder() const { return folder.Root() + "/Players/Ada"; }
  void Spoil() const {
    std::filesystem::remove_all(PlayerFolder());
    ASSERT_TRUE(WriteWhole(PlayerFolder(), "no folder"));
  }
  void Mend() const {
    std::filesystem::remove(PlayerFolder());
    std::filesystem::create_directories(PlayerFolder());
  }
  static bool Stored(std::size_t row) {
    return Screen<FrmPoSt>()->findChild<CaveList*>()->Rows()[row].stored;
  }

  // Wins the selected cave, and leaves its record for later.
  void WinForLater() const {
    Press(Screen<FrmPoSt>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
    Press(Screen<HraWindow>(), Qt::Key_Right);
    ASSERT_TRUE(Wait(Shows<FrmAnalyze>));
    {
      const DialogScript script = {test::Press(Qt::Key_L)};
      Press(Screen<FrmAnalyze>(), Qt::Key_Return);
    }
    ReadScores();
  }
};

TEST_F(GameUnstored, AreMarkedInTheListAndStoredByTheSameQuestion) {
  OpenCollection();
  Spoil();
  WinForLater();
  EXPECT_FALSE(Stored(0));
  EXPECT_TRUE(Stored(1));
  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  const DialogScript script = {[this](QWidget& box) {
    Mend();
    QTest::keyClick(&box, Qt::Key_Return);
  }};
  Press(Screen<FrmPoSt>(), Qt::Key_U);
  EXPECT_TRUE(ReadWhole(RecordPath()));
  EXPECT_TRUE(Stored(0));
}

TEST_F(GameUnstored, OfTwoCavesAreStoredWhenTheListIsOpenedAnew) {
  OpenCollection();
  Spoil();
  WinForLater();
  WinForLater();
  EXPECT_FALSE(Stored(0) || Stored(1));
  Mend();
  Press(Screen<FrmPoSt>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  OpenCollection();
  EXPECT_TRUE(Stored(0) && Stored(1));
  EXPECT_TRUE(ReadWhole(RecordPath()));
  EXPECT_TRUE(ReadWhole(PlayerFolder() + "/Alfa - Druha.zkr"));
}

TEST_F(GameUnstored, KeepTheGameFromEndingUnasked) {
  OpenCollection();
  Spoil();
  WinForLater();
  Press(Screen<FrmPoSt>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  {
    const DialogScript script = {[](QWidget& box) {
      EXPECT_TRUE(box.findChild<QLabel*>("lblText")->text().contains("Alfa - Jedna"));
      QTest::keyClick(&box, Qt::Key_Escape);
    }};
    Close(Screen<FrmStart2>());
  }
  EXPECT_TRUE(Shows<FrmStart2>());
  const DialogScript script = {test::Press(Qt::Key_Q)};
  Close(Screen<FrmStart2>());
  EXPECT_FALSE(Shows<FrmStart2>());
}

TEST_F(GameTest, EndsWithTheDesktopsSessionFromWithinARun) {
  PlayCave();
  constexpr int kStillThere = 7;
  QTimer::singleShot(0, qApp, [] {
    QEvent end(QEvent::Quit);  // that is how the desktop tells it
    QApplication::sendEvent(qApp, &end);
  });
  QTimer patience;
  patience.callOnTimeout([] { QCoreApplication::exit(kStillThere); });
  patience.start(2000);
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_FALSE(Shows<HraWindow>() || Shows<FrmPoSt>() || Shows<FrmStart2>());
}

}  // namespace
}  // namespace zorik

// What it stores, and the place where it takes files from the desktop, are its own.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir place;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("SDL_AUDIODRIVER", "dummy");
  qputenv("XDG_RUNTIME_DIR", place.path().toLocal8Bit());
  qunsetenv(zorik::kOpenVariable);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, place.path());
  QStandardPaths::setTestModeEnabled(true);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
