#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QStandardPaths>
#include <QTest>

#include "app/Game.h"
#include "data/Files.h"
#include "screens/Folder.h"
#include "screens/SkinButton.h"

namespace zorik {
namespace {

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
    QTest::keyClick(box, Qt::Key_Return);
  }
};

// The whole program on a folder with a collection of two caves and a player, walked through by keys.
class GameTest : public testing::Test {
 protected:
  void SetUp() override {
    folder.Collection("a.zk", "Alfa", {OneStepCave("Jedna"), OneStepCave("Druha")});
    std::filesystem::create_directories(folder.Root() + "/Players/Ada");
    qunsetenv("ZORIK_OPEN");
    Paths paths = folder.Paths();
    paths.SkinsPath = ZORIK_BUILT_SKINS;
    game = std::make_unique<Game>(paths, settings);
    ASSERT_EQ(game->Begin(), std::nullopt);
    ASSERT_TRUE(Wait(Shows<FrmStart2>));
  }

  // What is pressed while the busy notice is there is lost, so that has to go first.
  static void Press(QWidget* window, Qt::Key key) {
    QTest::qWait(1);
    QTest::keyClick(window, key);
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
  Settings settings{.Speed = 2, .Sound = false};
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

}  // namespace
}  // namespace zorik

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("SDL_AUDIODRIVER", "dummy");
  QStandardPaths::setTestModeEnabled(true);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
