// Work beside the windows.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <atomic>

#include "screens/Background.h"

namespace zorik {
namespace {

// Waits until it is wanted no more.
void Endless(const std::atomic<bool>& dropped) {
  while (!dropped) QThread::msleep(1);
}

TEST(Background, WorksInAThreadOfItsOwnAndTellsOfItsEndInThisOne) {
  Background background;
  EXPECT_FALSE(background.Busy());
  std::atomic<QThread*> worker = nullptr;
  QThread* told = nullptr;
  bool busy = true;
  background.Start([&worker](const std::atomic<bool>&) { worker = QThread::currentThread(); },
                   [&] {
                     told = QThread::currentThread();
                     busy = background.Busy();
                   });
  EXPECT_TRUE(background.Busy());
  EXPECT_EQ(told, nullptr) << "not before this thread comes to it";
  ASSERT_TRUE(QTest::qWaitFor([&] { return told != nullptr; }));
  EXPECT_EQ(told, QThread::currentThread());
  EXPECT_NE(worker.load(), nullptr);
  EXPECT_NE(worker.load(), QThread::currentThread());
  EXPECT_FALSE(busy) << "it may be given more work then";
  EXPECT_FALSE(background.Busy());
}

TEST(Background, DropsWhatIsUnderWayForWhatIsAskedForLast) {
  Background background;
  QStringList ended;
  std::atomic<bool> begun = false;
  background.Start(
      [&begun](const std::atomic<bool>& dropped) {
        begun = true;
        Endless(dropped);
      },
      [&ended] { ended << "first"; });
  ASSERT_TRUE(QTest::qWaitFor([&begun] { return begun.load(); }));
  background.Start([](const std::atomic<bool>&) {}, [&ended] { ended << "last"; });
  EXPECT_TRUE(background.Busy());
  ASSERT_TRUE(QTest::qWaitFor([&ended] { return !ended.isEmpty(); }));
  QCoreApplication::processEvents();
  EXPECT_EQ(ended, QStringList{"last"});
}

TEST(Background, DoesNotBeginWhatIsWantedNoMore) {
  std::atomic<bool> worked = false;
  bool ended = false;
  {
    Background background;
    std::atomic<bool> held = true;
    background.Start(
        [&held](const std::atomic<bool>&) {
          while (held) QThread::msleep(1);
        },
        [&ended] { ended = true; });
    background.Start([&worked](const std::atomic<bool>&) { worked = true; }, [&ended] { ended = true; });
    background.Drop();
    EXPECT_FALSE(background.Busy());
    EXPECT_FALSE(worked) << "one piece at a time";
    held = false;
  }
  QCoreApplication::processEvents();
  EXPECT_FALSE(worked);
  EXPECT_FALSE(ended);
}

TEST(Background, TellsNoEndThatIsDroppedBeforeItIsTold) {
  Background background;
  std::atomic<bool> worked = false;
  bool ended = false;
  background.Start([&worked](const std::atomic<bool>&) { worked = true; }, [&ended] { ended = true; });
  // Without looking at what comes from the other thread.
  while (!worked) QThread::msleep(1);
  background.Drop();
  bool last = false;
  background.Start([](const std::atomic<bool>&) {}, [&last] { last = true; });
  ASSERT_TRUE(QTest::qWaitFor([&last] { return last; }));
  EXPECT_FALSE(ended);
}

TEST(Background, EndsWithItsWork) {
  std::atomic<bool> begun = false, left = false;
  {
    Background background;
    background.Start(
        [&begun, &left](const std::atomic<bool>& dropped) {
          begun = true;
          Endless(dropped);
          left = true;
        },
        [] {});
    ASSERT_TRUE(QTest::qWaitFor([&begun] { return begun.load(); }));
  }
  EXPECT_TRUE(left);
}

}  // namespace
}  // namespace zorik
