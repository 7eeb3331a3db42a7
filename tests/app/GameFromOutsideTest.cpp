#include "app/GameScreens.h"
#include "data/Result.h"
#include "screens/SkinLabel.h"

namespace zorik::test {
namespace {

// A file that the desktop hands to the running game.
// The windows that were raised.
class RaiseCounter : public QObject {
 public:
  QObjectList windows;

 protected:
  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() == QEvent::ZOrderChange) windows.append(window);
    return false;
  }
};

class GameFromOutside : public GameEditors {
 protected:
  void SetUp() override { GameTest::SetUp(); }

  std::future<bool> HandOverLater(const QString& name) const {
    const QString place = InboxPlace(folder.Root());
    return std::async(std::launch::async, [=] { return static_cast<bool>(HandOver(name, place)); });
  }

  void Beta() const { folder.Collection("b.zk", "Beta", {OneStepCave("Jina")}); }
  QString BetaPath() const { return QString::fromStdString(folder.Root() + "/Caves/b.zk"); }
  static bool IsOpen(const QString& collection) {
    return Screen<FrmPoSt>()->findChild<SkinLabel*>("Label4")->Text() == collection;
  }
  static bool BetaIsOpen() { return Shows<FrmPoSt>() && IsOpen("Beta"); }
  // What is asked after a run about a file that has waited for its end.
  static QString OfferOf(const QString& file) {
    return file + "\nTento soubor čekal, až hra skončí. Otevřít ho?";
  }

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
  EXPECT_TRUE(IsOpen("Beta"));
  EXPECT_FALSE(Shows<FrmStart2>());
}

TEST_F(GameFromOutside, ACollectionMayStartTheGame) {
  game.reset();
  qputenv(kOpenVariable, QByteArray::fromStdString(folder.Root() + "/Caves/a.zk"));
  Begin();
  ASSERT_TRUE(Wait(Shows<FrmPoSt>));
  EXPECT_TRUE(IsOpen("Alfa"));
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
  EXPECT_FALSE(Screen<HraWindow>()->Ticking());
}

TEST_F(GameFromOutside, ACollectionWaitsForTheEndOfARunThatThePlayerGoesOnWith) {
  PlayCave();
  Beta();
  {
    const DialogScript script = {[](QWidget& box) {
      EXPECT_TRUE(
          box.findChild<QLabel*>("lblText")->text().simplified().endsWith("Jinak počká, až hra skončí."));
      QTest::keyClick(&box, Qt::Key_N);
    }};
    ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
    ASSERT_TRUE(Wait([&] { return script.Done(); }));
    QTest::qWait(600);
    EXPECT_EQ(Sign(), nullptr) << "he knows that it waits";
  }
  folder.Collection("c.zk", "Gama", {OneStepCave("Jina")});
  ASSERT_TRUE(HandOverMeanwhile("Caves/c.zk"));
  EXPECT_TRUE(Wait([] { return SignNames("c.zk"); })) << "and is not asked about";
  EXPECT_TRUE(Shows<HraWindow>());
  EXPECT_TRUE(Screen<HraWindow>()->Ticking());
  const BoxReader reader(Qt::Key_Y);
  Close(Screen<HraWindow>());
  EXPECT_TRUE(Wait(BetaIsOpen));
  EXPECT_TRUE(Wait([] { return IsOpen("Gama"); }));
  EXPECT_EQ(reader.said, QStringList({OfferOf("b.zk"), OfferOf("c.zk")}));
}

TEST_F(GameFromOutside, ACollectionThatIsRefusedTwiceLeavesThePlayerAmongHisCaves) {
  PlayCave();
  Beta();
  {
    const DialogScript script = {test::Press(Qt::Key_N)};
    ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
    ASSERT_TRUE(Wait([&] { return script.Done(); }));
  }
  {
    const BoxReader reader(Qt::Key_N);
    Press(Screen<HraWindow>(), Qt::Key_Right);
    ReadScores();
    EXPECT_TRUE(Wait([&] { return !reader.said.isEmpty(); }));
    QTest::qWait(600);
    EXPECT_EQ(reader.said, QStringList({OfferOf("b.zk")}));
    EXPECT_EQ(reader.owners, QWidgetList({Screen<FrmPoSt>()}));
  }
  EXPECT_TRUE(Shows<FrmPoSt>() && !Shows<FrmStart2>() && IsOpen("Alfa"));
  EXPECT_TRUE(ReadWhole(RecordPath()));
  const DialogScript nothing = {};
  Press(Screen<FrmPoSt>(), Qt::Key_Return);
  ASSERT_TRUE(Wait(Shows<HraWindow>));
  QTest::qWait(600);
  EXPECT_TRUE(Screen<HraWindow>()->Ticking()) << "and is never asked about again";
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
      EXPECT_TRUE(IsOpen("Alfa"));
      QTest::keyClick(&box, Qt::Key_Return);
    }};
    Press(Screen<FrmPoSt>(), Qt::Key_F1);  // there is no help here, which is told
  }
  EXPECT_TRUE(Wait(BetaIsOpen));
}

// A menu is as good as a box: what it was opened for is not to go away below it.
TEST_F(GameFromOutside, ACollectionWaitsBehindAMenu) {
  OpenCollection();
  Beta();
  bool stays = false;
  QTimer::singleShot(0, qApp, [&] {
    ASSERT_TRUE(Wait([] { return QApplication::activePopupWidget() != nullptr; }));
    EXPECT_TRUE(HandOverMeanwhile("Caves/b.zk"));
    EXPECT_TRUE(Wait([] { return SignNames("b.zk"); }));
    stays = IsOpen("Alfa") && QApplication::activePopupWidget() != nullptr;
    if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
  });
  emit Screen<FrmPoSt>()->GhostWanted(QPoint(10, 10));
  EXPECT_TRUE(stays);
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
    EXPECT_TRUE(IsOpen("Alfa"));
    ASSERT_TRUE(Wait([&] { return done.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
    ASSERT_TRUE(Wait([&] { return script.Done(); }));
  }
  ASSERT_TRUE(Shows<HraWindow>());
  const BoxReader reader(Qt::Key_Y);
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
  EXPECT_TRUE(Wait([] { return IsOpen("Gama"); }));
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

TEST_F(GameFromOutside, AnotherStartBringsUpTheScreenAndNeitherAHintNorWhatIsHidden) {
  QLabel hint("hint", nullptr, Qt::ToolTip);
  QLabel hidden("hidden", nullptr, Qt::Window);
  hint.show();
  RaiseCounter raised;
  for (QWidget* const window : {static_cast<QWidget*>(&hint), static_cast<QWidget*>(&hidden),
                                static_cast<QWidget*>(Screen<FrmStart2>())}) {
    window->installEventFilter(&raised);
  }
  auto done = HandOverLater(QString());
  ASSERT_TRUE(Wait([&] { return raised.windows.contains(Screen<FrmStart2>()); }));
  EXPECT_EQ(raised.windows, QObjectList({Screen<FrmStart2>()}));
}

TEST_F(GameFromOutside, AnotherStartFindsNothingToBringUpOnceTheGameHasGone) {
  game.reset();
  QLabel other("other", nullptr, Qt::Window);
  other.show();
  RaiseCounter raised;
  other.installEventFilter(&raised);
  auto done = HandOverLater(QString());
  EXPECT_TRUE(Wait([&] { return done.wait_for(std::chrono::milliseconds(0)) == std::future_status::ready; }));
  QCoreApplication::processEvents();
  EXPECT_TRUE(raised.windows.isEmpty());
}

TEST_F(GameFromOutside, ACollectionBringsAMinimisedRunBackToAskAboutIt) {
  PlayCave();
  Beta();
  Screen<HraWindow>()->showMinimized();
  const DialogScript script = {[](QWidget& box) {
    EXPECT_FALSE(Screen<HraWindow>()->isMinimized());
    QTest::keyClick(&box, Qt::Key_N);
  }};
  ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
  ASSERT_TRUE(Wait([&] { return script.Done(); }));
  EXPECT_FALSE(Screen<HraWindow>()->isMinimized());
}

TEST_F(GameFromOutside, AnotherStartBringsAMinimisedBoxBack) {
  PlayCave();
  Beta();
  const DialogScript script = {[this](QWidget& box) {
    box.showMinimized();
    auto done = HandOverLater(QString());
    EXPECT_TRUE(Wait([&box] { return !box.isMinimized(); }));
    QTest::keyClick(&box, Qt::Key_N);
  }};
  ASSERT_TRUE(HandOverMeanwhile("Caves/b.zk"));
  ASSERT_TRUE(Wait([&] { return script.Done(); }));
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
  ASSERT_TRUE(Wait([] { return IsOpen("Beta"); }));
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
  EXPECT_TRUE(IsOpen("Beta"));
}

}  // namespace
}  // namespace zorik::test
