#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/LeftFiles.h"
#include "platform/Paths.h"
#include "support/AsNobody.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

class LeftFilesTest : public testing::Test {
 protected:
  // A file's clock may be ahead of the one that tells the seconds, so what is old is so by far.
  static void MakeOld(const fs::path& path, int seconds = 70) {
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::seconds(seconds));
  }
  void File(const std::string& name, int seconds = 70) const {
    std::ofstream(root_ / name) << "x";
    MakeOld(root_ / name, seconds);
  }
  bool IsThere(const std::string& name) const {
    return fs::symlink_status(root_ / name).type() != fs::file_type::not_found;
  }
  void Sweep() const { SweepLeftFiles(root_.string()); }

  // The number of a process that is no more.
  static std::string Gone() {
    const pid_t child = fork();
    if (child == 0) _exit(0);
    waitpid(child, nullptr, 0);
    return std::to_string(child);
  }

  test::TempFolder temp_{"left"};
  const fs::path root_ = temp_.Path();
};

// A limit on the size of files stops the game in the middle of a save.
TEST_F(LeftFilesTest, WhatAKilledSaveLeftIsSwept) {
  const pid_t child = fork();
  if (child == 0) {
    const rlimit small{4, 4};
    setrlimit(RLIMIT_FSIZE, &small);
    Disregard(WriteWhole((root_ / "a.zk").string(), "more than the limit"));  // it dies of that
    _exit(0);
  }
  waitpid(child, nullptr, 0);
  ASSERT_FALSE(fs::is_empty(root_));
  Sweep();
  EXPECT_FALSE(fs::is_empty(root_)) << "it is not a minute old";
  for (const auto& entry : fs::directory_iterator(root_)) MakeOld(entry.path());
  Sweep();
  EXPECT_TRUE(fs::is_empty(root_));
}

TEST_F(LeftFilesTest, TheFileOfAProcessThatLivesStays) {
  const pid_t child = fork();
  if (child == 0) {
    pause();
    _exit(0);
  }
  ASSERT_GT(child, 0);
  const std::string name = ".zorik-" + std::to_string(child) + "-0.tmp";
  File(name, 3600);
  Sweep();
  EXPECT_TRUE(IsThere(name));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  Sweep();
  EXPECT_FALSE(IsThere(name));
}

// The number of a process that lives and belongs to another user, so that nobody here may even ask for it.
class Stranger {
 public:
  Stranger() {
    if (geteuid() != 0) return;
    child_ = fork();
    if (child_ == 0) {
      if (setuid(kStrangersNumber) != 0) _exit(1);
      for (;;) pause();
    }
    while (child_ > 0 && kill(child_, 0) == 0 && OwnerOf(child_) != kStrangersNumber) usleep(1000);
  }
  ~Stranger() {
    if (child_ <= 0) return;
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }
  Stranger(const Stranger&) = delete;
  Stranger& operator=(const Stranger&) = delete;

  pid_t Number() const { return child_ == 0 ? 1 : child_; }

 private:
  static constexpr uid_t kStrangersNumber = 65533;

  static uid_t OwnerOf(pid_t process) {
    struct stat status = {};
    return stat(("/proc/" + std::to_string(process)).c_str(), &status) == 0 ? status.st_uid
                                                                            : kStrangersNumber;
  }

  pid_t child_ = 0;
};

TEST_F(LeftFilesTest, TheFileOfAnotherUsersProcessStays) {
  const Stranger stranger;
  const std::string name = ".zorik-" + std::to_string(stranger.Number()) + "-0.tmp";
  const std::string gone = ".zorik-" + Gone() + "-0.tmp";
  File(name, 3600);
  File(gone, 3600);
  fs::permissions(root_, fs::perms::all);
  {
    const test::AsNobody nobody;
    ASSERT_TRUE(kill(stranger.Number(), 0) != 0 && errno == EPERM);
    Sweep();
  }
  EXPECT_TRUE(IsThere(name));
  EXPECT_FALSE(IsThere(gone)) << "files can be swept here";
}

TEST_F(LeftFilesTest, AnEarlierProcessMayHaveHadTheNumberOfThisOne) {
  const std::string name = ".zorik-" + std::to_string(getpid()) + "-0.tmp";
  File(name);
  Sweep();
  EXPECT_FALSE(IsThere(name));
}

TEST_F(LeftFilesTest, TheTimeDecidesWhatIsLeft) {
  const std::string gone = Gone();
  File(".zorik-" + gone + "-0.tmp", 50);
  File(".zorik-" + gone + "-1.tmp", 70);
  File(".zorik-" + gone + "-2.tmp", -3600);
  Sweep();
  EXPECT_TRUE(IsThere(".zorik-" + gone + "-0.tmp"));
  EXPECT_FALSE(IsThere(".zorik-" + gone + "-1.tmp"));
  EXPECT_TRUE(IsThere(".zorik-" + gone + "-2.tmp")) << "from the future";
}

TEST_F(LeftFilesTest, OnlyRegularFilesWithANameOfTheGameAreSwept) {
  const std::string gone = Gone();
  const std::string ours = ".zorik-" + gone + "-";
  std::vector<std::string> names{
      "a.zk",       ".zorik-" + gone + ".tmp", ours + "0.tmp~",     ours + "100.tmp",  "x" + ours + "0.tmp",
      "Zorik2.ini", "Zorik2.ini.abcde",        "Zorik2.ini.abcd1f", "Zorik2.ini.lock", "Zorik3.ini.abcdef"};
  for (const std::string& name : names) File(name);
  fs::create_directory(root_ / (ours + "1.tmp"));
  fs::create_symlink(root_ / "a.zk", root_ / (ours + "2.tmp"));
  ASSERT_EQ(mkfifo((root_ / (ours + "3.tmp")).c_str(), 0666), 0);
  for (const char* number : {"1", "3"}) {
    names.push_back(ours + number + ".tmp");
    MakeOld(root_ / names.back());
  }
  names.push_back(ours + "2.tmp");
  Sweep();
  for (const std::string& name : names) EXPECT_TRUE(IsThere(name)) << name;
}

TEST_F(LeftFilesTest, WhatAKilledGameLeftOfItsSettingsIsSwept) {
  for (const char* name : {"Zorik2.ini.AbCdEf", "Zorik.ini.xyzXYZ"}) {
    File(name);
    Sweep();
    EXPECT_FALSE(IsThere(name)) << name;
  }
}

TEST_F(LeftFilesTest, AFolderThatIsNotThereIsNoFault) {
  SweepLeftFiles((root_ / "none").string());
  File("file");
  SweepLeftFiles((root_ / "file").string());
  EXPECT_TRUE(IsThere("file"));
}

TEST_F(LeftFilesTest, TheGameWritesIntoItsFoldersThoseOfThePlayersAndItsPlacesInTheDesktop) {
  fs::create_directories(root_ / "home/Players/Ada");
  fs::create_directories(root_ / "home/Players/Jo");
  std::ofstream(root_ / "home/Players/file") << "x";
  Paths paths;
  paths.AppPath = (root_ / "home").string();
  paths.PlayersPath = paths.AppPath + "/Players";
  Environment around;
  around.Home = "/u";
  around.ConfigHome = "/c";
  around.DataHome = "relative";
  std::vector<std::string> folders = WrittenFolders(paths, around);
  std::sort(folders.begin(), folders.end());
  std::vector<std::string> wanted{paths.AppPath,
                                  paths.AppPath + "/Caves",
                                  paths.AppPath + "/Players/Ada",
                                  paths.AppPath + "/Players/Jo",
                                  paths.AppPath + "/Replays",
                                  paths.AppPath + "/Recovery/Running",
                                  "/c/Ortvan",
                                  "/u/.local/share/applications",
                                  "/u/.local/share/mime/packages"};
  std::sort(wanted.begin(), wanted.end());
  EXPECT_EQ(folders, wanted);
}

}  // namespace
}  // namespace zorik
