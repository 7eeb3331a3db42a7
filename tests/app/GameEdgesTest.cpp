// The whole program where a window is not as it usually is: minimised, hidden, without a cave or without
// sound.
#include "app/GameScreens.h"
#include "screens/HideAway.h"

namespace zorik::test {
namespace {

class GameEdges : public GameTest {
 protected:
  // How the program ends when the desktop's session does.
  static int EndSession() {
    constexpr int kStillThere = 7;
    QTimer::singleShot(0, qApp, [] {
      QEvent end(QEvent::Quit);
      QApplication::sendEvent(qApp, &end);
    });
    QTimer patience;
    patience.callOnTimeout([] { QCoreApplication::exit(kStillThere); });
    patience.start(2000);
    return QApplication::exec();
  }
};

TEST_F(GameEdges, SaysWhySoundCannotBeOpenedAndEnds) {
  const BoxReader reader;
  QTimer::singleShot(0, qApp, [] { emit Screen<HraWindow>()->NoSound("Unable to initialize DirectSound."); });
  EXPECT_EQ(QApplication::exec(), EXIT_FAILURE);
  EXPECT_EQ(reader.said, QStringList{"Unable to initialize DirectSound."});
}

TEST_F(GameEdges, EndsWithTheDesktopsSessionWhileTheGameIsHidden) {
  PlayCave();
  Press(Screen<HraWindow>(), Qt::Key_F12);
  ASSERT_TRUE(Wait(Shows<HideAway>));
  EXPECT_EQ(EndSession(), 0);
  EXPECT_FALSE(Shows<HideAway>() || Shows<HraWindow>() || Shows<FrmPoSt>() || Shows<FrmStart2>());
}

TEST_F(GameEdges, OpensTheNextCaveToBeSeenWhenTheOneBeforeWasLeftMinimised) {
  PlayCave();
  Screen<HraWindow>()->showMinimized();
  Close(Screen<HraWindow>());
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  Press(Screen<FrmPoSt>(), Qt::Key_Return);
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  EXPECT_FALSE(Screen<HraWindow>()->isMinimized());
  EXPECT_TRUE(Screen<HraWindow>()->Ticking());
}

TEST_F(GameEdges, StoresThatTheGameWindowFillsTheScreenUnlessItWasLeftMinimised) {
  StoreMaximized(true);
  PlayCave();
  Screen<HraWindow>()->showMinimized();
  Close(Screen<HraWindow>());
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  Press(Screen<FrmPoSt>(), Qt::Key_Escape);
  ASSERT_TRUE(Wait(Shows<FrmStart2>));
  Click(Screen<FrmStart2>(), "close");
  QSettings now(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik");
  now.sync();
  EXPECT_EQ(now.value("Maximized").toInt(), 0);
}

TEST_F(GameEdges, GivesTheKeysToTheGameEachTimeItShows) {
  for (int time = 0; time < 2; ++time) {
    time == 0 ? PlayCave() : Press(Screen<FrmPoSt>(), Qt::Key_Return);
    ASSERT_TRUE(Wait(Shows<HraWindow>));
    EXPECT_TRUE(Wait([] { return QApplication::focusWidget() == Screen<HraWindow>(); }));
    Close(Screen<HraWindow>());
    ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  }
}

TEST_F(GameEdges, HasTheStartBackWhereARecordCannotBePlayed) {
  folder.File("x.zkr", "rubbish");
  Screen<FrmStart2>()->hide();
  const BoxReader reader;
  emit Screen<FrmStart2>()->PlayRecord(QString::fromStdString(folder.Root() + "/x.zkr"));
  EXPECT_EQ(reader.said.size(), 1);
  EXPECT_TRUE(Shows<FrmStart2>());
  EXPECT_FALSE(Shows<HraWindow>());
}

TEST_F(GameEdges, AsksForTheGhostOfTheNextRunFromTheCaves) {
  OpenCollection();
  QStringList opened;
  QTimer reader;
  reader.callOnTimeout([&opened] {
    QWidget* const menu = QApplication::activePopupWidget();
    if (menu == nullptr) return;
    opened.append(menu->objectName());
    menu->close();
  });
  reader.start(10);
  emit Screen<FrmPoSt>()->GhostWanted(QPoint(10, 10));
  EXPECT_EQ(opened, QStringList{"ghostMenu"});
}

class GameEditorsEdges : public GameEditors {};

TEST_F(GameEditorsEdges, SayThatACaveCannotBeTriedAndAreThereAgain) {
  Screen<FrmMain>()->hide();
  {
    const BoxReader reader;
    emit Screen<FrmMain>()->TestRun("rubbish");
    EXPECT_EQ(reader.said, QStringList{"Komnatu nelze otevřít."});
  }
  EXPECT_TRUE(Shows<FrmMain>());
  EXPECT_FALSE(Shows<HraWindow>());
  Leave();
}

}  // namespace
}  // namespace zorik::test
