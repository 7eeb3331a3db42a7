// The windows of the whole game, again and again: whatever is opened is given back.
#include <QPixmapCache>

#include "app/GameScreens.h"
#include "endurance/Endurance.h"
#include "screens/BarButton.h"
#include "support/Scene.h"

// The toolkit tells whoever asks of every object that is made and destroyed, for tools that look into
// programs. What its private header calls them.
extern Q_CORE_EXPORT quintptr qtHookData[];
constexpr int kObjectAdded = 3;
constexpr int kObjectRemoved = 4;

namespace zorik::test {
namespace {

std::atomic<long> objects = 0;

void CountObjects() {
  qtHookData[kObjectAdded] = reinterpret_cast<quintptr>(+[](QObject*) { ++objects; });
  qtHookData[kObjectRemoved] = reinterpret_cast<quintptr>(+[](QObject*) { --objects; });
}

// Closes every dialog as soon as it shows, and the question that one of them asks then.
class Closer : public QObject {
 public:
  Closer() { startTimer(2); }
  int closed = 0;

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) {
      closing_ = nullptr;
    } else if (dialog != closing_) {
      closing_ = dialog;
      ++closed;
      // From without, so that this goes on looking meanwhile.
      QTimer::singleShot(0, dialog, &QWidget::close);
    }
  }

 private:
  QPointer<QWidget> closing_;
};

// A game with all that a cave may have, which is played with sound.
class EnduringWindows : public GameTest {
 protected:
  void SetUp() override {
    CountObjects();
    // The toolkit's own store of pictures grows to some megabytes, and no further.
    QPixmapCache::setCacheLimit(0);
    settings.Sound = true;
    settings.Speed = 1;
    const Picture cave = {"WWWWWWWWWWWWWWWWWWWWWWWW", "W1;;;R;;;D;;;F....;;U..W", "W;;R;;;;;MMM;;;;;;A;;;.W",
                          "W;;;D;;L;;;;;N;;;;;;;;;W", "W;2;;;K;;;;;;;;I;;R;;;;W", "W;;SSS;;E;;V;;@;;%;;;;TW",
                          "WWWWWWWWWWWWWWWWWWWWWWWW"};
    folder.Collection("a.zk", "Alfa", {CaveTextOf(cave, {}), OneStepCave("Druha")});
    std::filesystem::create_directories(folder.Root() + "/Players/Ada");
    folder.File("x.zkr", "rubbish");
    Begin();
  }

  virtual Growth& Grown() { return growth_; }

  void Look() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    Grown().Look({objects});
  }

  // Lets the run go on for so many ticks.
  static void TicksPass(int ticks) {
    const Hra& hra = Screen<HraWindow>()->Machine();
    const int end = hra.Ticks + ticks;
    EXPECT_TRUE(Wait([&] { return hra.Ticks >= end; }));
  }

  Growth growth_{{"objects"}};
};

TEST_F(EnduringWindows, RestartACaveWithoutGrowing) {
  constexpr int kRounds = 60;
  constexpr int kTickEach = 10;
  PlayCave();
  HraWindow& window = *Screen<HraWindow>();
  Patience patience(kRounds);
  while (!HasFailure() && patience.Lasts()) {
    if (patience.Rounds() % kTickEach == 0) TicksPass(3);
    const int ticks = window.Machine().Ticks;
    QTest::mouseClick(window.findChild<BarButton*>("picRestart"), Qt::LeftButton);
    if (ticks > 0) {
      EXPECT_LT(window.Machine().Ticks, ticks);
    }
    Look();
  }
  Grown().ExpectNone();
  Count(patience.Rounds(), "restarts");
}

// One round through all windows that a player comes by.
class EnduringWays : public EnduringWindows {
 protected:
  template <class Window, class Act>
  void Through(Act act) {
    act();
    ASSERT_TRUE(Wait(Shows<Window>));
    ++opened_;
  }

  // A key that opens a dialog, which closes by itself.
  void Dialog(QWidget* over, Qt::Key key) {
    const int before = closer_.closed;
    Press(over, key);
    EXPECT_GT(closer_.closed, before) << over->windowTitle().toStdString() << ", key " << key;
  }

  // A command of a menu that does so.
  void Dialog(QWidget* over, const char* action) {
    const int before = closer_.closed;
    QTest::qWait(1);
    over->findChild<QAction*>(action)->trigger();
    EXPECT_GT(closer_.closed, before) << action;
  }

  void GoThroughTheGame() {
    auto* const start = Screen<FrmStart2>();
    Dialog(start, Qt::Key_Insert);
    Dialog(start, Qt::Key_F2);
    const int before = closer_.closed;
    start->AnotherRepl(QString::fromStdString(folder.Root() + "/x.zkr"));
    EXPECT_GT(closer_.closed, before) << "a message";
    Press(start, Qt::Key_1);
    Through<FrmPoSt>([&] { Press(start, Qt::Key_Return); });
    Through<HraWindow>([] { Press(Screen<FrmPoSt>(), Qt::Key_Return); });
    Dialog(Screen<HraWindow>(), Qt::Key_F2);
    Through<FrmPoSt>([] { Close(Screen<HraWindow>()); });
    Through<FrmStart2>([] { Press(Screen<FrmPoSt>(), Qt::Key_Escape); });
  }

  void GoThroughTheEditors() {
    Press(Screen<FrmStart2>(), Qt::Key_3);
    Through<FrmSada>([] { Press(Screen<FrmStart2>(), Qt::Key_Return); });
    auto* const sada = Screen<FrmSada>();
    Dialog(sada, "mnuGratulace");
    Dialog(sada, "mnuAbout");
    Through<FrmMain>([&] { sada->findChild<QAction*>("mnuEdit")->trigger(); });
    for (const char* action : {"mnuProps", "mnuStats", "mnuCat"}) Dialog(Screen<FrmMain>(), action);
    Through<FrmSada>([] { Close(Screen<FrmMain>()); });
    Through<FrmStart2>([&] { Close(sada); });
  }

  void GoThrough() {
    GoThroughTheGame();
    if (!HasFailure()) GoThroughTheEditors();
  }

  // Of a dialog that comes again the toolkit keeps a hundred bytes each time: how it is told which box has
  // the keys. There is one such dialog on the way; the others are made anew.
  Growth& Grown() override { return ways_; }

  Growth ways_{{"objects"}, 256};
  Closer closer_;
  int opened_ = 0;
};

TEST_F(EnduringWays, OpenAndCloseAllWindowsWithoutGrowing) {
  // In the first rounds all is met for the first time. The others are so many that a part of them has more
  // than the noise where each round keeps but a thousand bytes.
  constexpr int kFirstRounds = 3;
  constexpr int kRounds = 20;
  for (int round = 0; round < kFirstRounds && !HasFailure(); ++round) GoThrough();
  Patience patience(kRounds);
  while (!HasFailure() && patience.Lasts()) {
    GoThrough();
    Look();
  }
  Grown().ExpectNone();
  Count(opened_ + closer_.closed, "windows opened and closed");
}

TEST_F(EnduringWindows, AreDraggedThroughAllSizesWhileTheGameIsPlayed) {
  constexpr int kRounds = 40;
  constexpr int kWidest = 2600;
  constexpr int kHighest = 1500;
  PlayCave();
  HraWindow& window = *Screen<HraWindow>();
  Chance chance = ChanceOfNow();
  const auto any = [&](int most) { return static_cast<int>(chance.Below(static_cast<std::uint32_t>(most))); };
  QSize size = window.size();
  QSize step;
  int ticks = 0;
  Patience patience(kRounds);
  while (!HasFailure() && patience.Lasts()) {
    if (patience.Rounds() % 20 == 0) step = {any(61) - 30, any(61) - 30};
    size = (size + step).expandedTo({1, 1}).boundedTo({kWidest, kHighest});
    if (patience.Rounds() % 200 == 199) size = {1 + any(kWidest), 1 + any(kHighest)};
    window.resize(size);
    QTest::keyClick(&window, patience.Rounds() % 2 == 0 ? Qt::Key_Right : Qt::Key_Down);
    QTest::qWait(1);
    const QRect cave = window.PlayArea().geometry();
    EXPECT_TRUE(cave.isEmpty() || window.rect().contains(cave)) << size.width() << " x " << size.height();
    if (patience.Rounds() % 100 == 0)
      QTest::mouseClick(window.findChild<BarButton*>("picRestart"), Qt::LeftButton);
    ticks = std::max(ticks, window.Machine().Ticks);
    Look();
  }
  EXPECT_GT(ticks, 0);
  Grown().ExpectNone();
  Count(patience.Rounds(), "sizes of a window while playing");
}

}  // namespace
}  // namespace zorik::test
