#include "app/GameScreens.h"
#include "data/Lines.h"
#include "data/Result.h"
#include "support/DesktopStandIn.h"
#include "support/Scene.h"
#include "support/TempFolder.h"

namespace zorik::test {
namespace {

TEST_F(GameTest, BeginsWithTheStartScreenAlone) {
  EXPECT_TRUE(Shows<FrmStart2>());
  EXPECT_FALSE(Shows<FrmPoSt>());
  EXPECT_FALSE(Shows<HraWindow>());
  EXPECT_FALSE(Shows<FrmLoading>());
}

TEST_F(GameTest, MakesItsEditorsWhenTheyOpenFirst) {
  EXPECT_EQ(Screen<FrmSada>(), nullptr);
  EXPECT_EQ(Screen<FrmMain>(), nullptr);
  Press(Screen<FrmStart2>(), Qt::Key_3);
  Press(Screen<FrmStart2>(), Qt::Key_Return);
  ASSERT_TRUE(Wait(Shows<FrmSada>));
  EXPECT_EQ(Screen<FrmMain>(), nullptr);
}

TEST_F(GameTest, LoadsSoundForItsFirstCave) {
  PlayCave();
  const auto maps = ReadStream("/proc/self/maps");
  ASSERT_TRUE(maps);
  EXPECT_NE(maps->find("libSDL2"), std::string::npos);
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

TEST_F(GameTest, SaysThatACaveCannotBePlayedAndLeadsBackToTheCaves) {
  folder.Collection("a.zk", "Alfa", {CaveTextOf({std::string(101, 'W'), "W1T" + std::string(98, 'W')}, {})});
  OpenCollection();
  const BoxReader reader;
  Press(Screen<FrmPoSt>(), Qt::Key_Return);
  ASSERT_TRUE(Wait([&] { return reader.said.size() == 1; }));
  EXPECT_TRUE(Shows<FrmPoSt>());
  EXPECT_FALSE(Shows<HraWindow>());
}

TEST_F(GameTest, LeavesARecordWithEscAndNoOtherKey) {
  WinCave();
  Press(Screen<FrmPoSt>(), Qt::Key_Up);
  folder.File("Players/Ada/Alfa - Jedna.zkr", RecordOf({"1.T"}, std::vector<RecordTick>(500)));
  {
    const DialogScript script = {test::Press(Qt::Key_Return)};  // which says whose it is
    Screen<FrmStart2>()->AnotherRepl(QString::fromStdString(RecordPath()));
  }
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  Press(Screen<HraWindow>(), Qt::Key_F5);
  EXPECT_TRUE(Shows<HraWindow>());
  Press(Screen<HraWindow>(), Qt::Key_Escape);
  EXPECT_FALSE(Shows<HraWindow>());
  EXPECT_FALSE(Screen<HraWindow>()->Ticking());
  EXPECT_TRUE(Shows<FrmStart2>());
}

TEST_F(GameTest, OpensTheHelpFromTheCaves) {
  folder.File("Help/help.html", "<p>");
  folder.File("Help/about.html", "<p>");
  OpenCollection();
  const DesktopStandIn desktop(0);
  Press(Screen<FrmPoSt>(), Qt::Key_F1);
  EXPECT_TRUE(desktop.Opened().endsWith("/help.html")) << desktop.Opened().toStdString();
}

TEST_F(GameTest, OpensACollectionAndPlaysACaveByDoubleClicks) {
  auto* const colls = Screen<FrmStart2>()->findChild<LabelList*>("lblCColl");
  QTest::qWait(1);
  QTest::mouseClick(colls->viewport(), Qt::LeftButton, {}, colls->PlaceOf(0).center());
  QTest::mouseDClick(colls->viewport(), Qt::LeftButton, {}, colls->PlaceOf(0).center());
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  QTest::qWait(1);
  QTest::mouseDClick(Screen<FrmPoSt>()->findChild<CaveList*>()->viewport(), Qt::LeftButton, {},
                     QPoint(50, 8));
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

// In a language that calls the program otherwise.
class GameInOtherWords : public GameTest {
 protected:
  void SetUp() override {
    const auto shipped = ReadWhole(ZORIK_BUILT_SKINS "/Default/Menu/cestina.txt");
    ASSERT_TRUE(shipped);
    constexpr int kHead = 2;
    QList<QByteArray> lines = QByteArray::fromStdString(*shipped).split('\n');
    lines[kHead + static_cast<int>(TextId::Program)] = "Pejsek\r";
    folder.File("Skins/Default/Menu/cestina.txt", lines.join('\n').toStdString());
    GameTest::SetUp();
  }
};

TEST_F(GameInOtherWords, HasItsNameAboveWhatCannotBeOpened) {
  folder.File("Caves/b.zk", "rubbish");
  folder.Collection("c.zk", "Gama", {CaveTextOf({std::string(101, 'W'), "W1T" + std::string(98, 'W')}, {})});
  folder.File("x.zkr", "rubbish");
  Screen<FrmStart2>()->FindColls();
  const BoxReader reader;
  Press(Screen<FrmStart2>(), Qt::Key_Down);
  Press(Screen<FrmStart2>(), Qt::Key_Return);
  ASSERT_TRUE(Wait([&] { return reader.titles.size() == 1; }));
  Screen<FrmStart2>()->AnotherRepl(QString::fromStdString(folder.Root() + "/x.zkr"));
  ASSERT_TRUE(Wait([&] { return reader.titles.size() == 2; }));
  Press(Screen<FrmStart2>(), Qt::Key_Down);
  Press(Screen<FrmStart2>(), Qt::Key_Return);
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  Press(Screen<FrmPoSt>(), Qt::Key_Return);
  ASSERT_TRUE(Wait([&] { return reader.titles.size() == 3; }));
  EXPECT_EQ(reader.titles, QStringList({"Pejsek", "Pejsek", "Pejsek"}));
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
  EXPECT_TRUE(Screen<HraWindow>()->Machine().ReplayPlaying());
  EXPECT_EQ(Screen<HraWindow>()->windowTitle().section("...", 1), "záznam pro hráče Hráč");
}

TEST_F(GameTest, OffersTheCavesThatCameWithTheGameAndListsThemAtOnce) {
  Folder shipped;
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
}  // namespace zorik::test

// What it stores, and the place where it takes files from the desktop, are its own.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir place;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("SDL_AUDIODRIVER", "dummy");
  const zorik::test::TempFolder sockets("run", zorik::test::TempFolder::kShort);
  qputenv("XDG_RUNTIME_DIR", sockets.Path().c_str());
  qunsetenv(zorik::kOpenVariable);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, place.path());
  QStandardPaths::setTestModeEnabled(true);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
