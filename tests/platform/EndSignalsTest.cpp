// The program is asked to end.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <iterator>

#include "platform/EndSignals.h"

namespace zorik {
namespace {

TEST(EndSignalsTest, TellTheEventLoopWhateverAsks) {
  for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
    int told = 0;
    const EndSignals ending([&] { ++told; });
    raise(number);
    EXPECT_EQ(told, 0) << "nothing is done where the signal strikes";
    EXPECT_TRUE(QTest::qWaitFor([&] { return told > 0; }));
    EXPECT_EQ(told, 1);
  }
}

TEST(EndSignalsTest, EndTheProgramAtOnceWhenTheyAreAskedTwice) {
  const EndSignals ending([] {});
  const pid_t child = fork();
  if (child == 0) {
    raise(SIGTERM);
    raise(SIGTERM);
    _exit(0);
  }
  ASSERT_GT(child, 0);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
}

TEST(EndSignalsTest, LeaveAloneWhatIsIgnored) {
  struct sigaction before = {};
  struct sigaction ignored = {};
  ignored.sa_handler = SIG_IGN;
  sigaction(SIGHUP, &ignored, &before);
  int told = 0;
  {
    const EndSignals ending([&] { ++told; });
    raise(SIGHUP);
    QTest::qWait(20);
  }
  sigaction(SIGHUP, &before, nullptr);
  EXPECT_EQ(told, 0);
}

TEST(EndSignalsTest, LeaveTheSignalsAsTheyWere) {
  struct sigaction before = {};
  struct sigaction after = {};
  sigaction(SIGTERM, nullptr, &before);
  {
    const EndSignals ending([] {});
  }
  sigaction(SIGTERM, nullptr, &after);
  EXPECT_EQ(before.sa_handler, after.sa_handler);
}

std::ptrdiff_t OpenFiles() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(EndSignalsTest, LeaveNoPipeOpen) {
  {
    const EndSignals first([] {});
  }
  const std::ptrdiff_t open = OpenFiles();
  {
    const EndSignals ending([] {});
    EXPECT_EQ(OpenFiles(), open + 2) << "the two ends of its pipe";
  }
  EXPECT_EQ(OpenFiles(), open);
}

}  // namespace
}  // namespace zorik
