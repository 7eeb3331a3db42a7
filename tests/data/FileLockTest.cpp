#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "data/FileLock.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

class FileLockTest : public testing::Test {
 protected:
  test::TempFolder temp_{"lock"};
  const std::string path_ = temp_.Path() + "/a.lock";
};

TEST_F(FileLockTest, OneHasItAtATime) {
  std::optional<FileLock> first = FileLock::Take(path_);
  ASSERT_TRUE(first);
  EXPECT_FALSE(FileLock::Take(path_));
  first.reset();
  EXPECT_TRUE(FileLock::Take(path_));
}

TEST_F(FileLockTest, WhoIsKilledHoldsNothingAnyMore) {
  int told[2];
  ASSERT_EQ(pipe(told), 0);
  const pid_t child = fork();
  if (child == 0) {
    const std::optional<FileLock> lock = FileLock::Take(path_);
    if (write(told[1], "x", 1) != 1) _exit(1);
    for (;;) pause();
  }
  ASSERT_GT(child, 0);
  char held = 0;
  ASSERT_EQ(read(told[0], &held, 1), 1);
  EXPECT_FALSE(FileLock::Take(path_));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_TRUE(FileLock::Take(path_));
  close(told[0]);
  close(told[1]);
}

TEST_F(FileLockTest, OneThatWasTakenAwayIsMadeAnew) {
  std::optional<FileLock> lock = FileLock::Take(path_);
  ASSERT_TRUE(lock);
  lock->Remove();
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_TRUE(FileLock::Take(path_));
  EXPECT_TRUE(std::filesystem::exists(path_));
}

TEST_F(FileLockTest, ThereIsNoneInAFolderThatIsNotThere) {
  EXPECT_FALSE(FileLock::Take(temp_.Path() + "/none/a.lock"));
}

}  // namespace
}  // namespace zorik
