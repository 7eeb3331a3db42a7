#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "data/Result.h"
#include "platform/Paths.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

// A folder of its own for each test, gone when the test is over.
class PathsTest : public testing::Test {
 protected:
  void File(const fs::path& path) const {
    fs::create_directories((root_ / path).parent_path());
    std::ofstream(root_ / path) << "x";
  }

  std::string At(const fs::path& path) const { return (root_ / path).string(); }

  Environment Around(const std::string& zorikHome = {}) const {
    return {At("opt/games"), zorikHome, At("data"), At("home"), {}};
  }

  test::TempFolder temp_{"paths"};
  const fs::path root_ = temp_.Path();
};

TEST_F(PathsTest, TheProgramsFolderIsTheGamesIfItHoldsSkins) {
  File("opt/games/Skins/error.bmp");
  const auto paths = FindPaths(Around());
  ASSERT_TRUE(paths);
  EXPECT_EQ(paths->AppPath, At("opt/games"));
  EXPECT_EQ(paths->SkinsPath, At("opt/games/Skins"));
  EXPECT_EQ(paths->PlayersPath, At("opt/games/Players"));
}

TEST_F(PathsTest, AnInstalledGameKeepsItsFilesInTheUsersDataFolder) {
  File("opt/share/games/zorik/Skins/error.bmp");
  const auto paths = FindPaths(Around());
  ASSERT_TRUE(paths);
  EXPECT_EQ(paths->AppPath, At("data/zorik"));
  EXPECT_EQ(paths->ShippedSkins, At("opt/share/games/zorik/Skins"));
  EXPECT_EQ(paths->ShippedReplays, At("opt/share/games/zorik/Replays"));
  EXPECT_TRUE(fs::is_directory(At("data/zorik")));
}

TEST_F(PathsTest, TheDataFolderIsBelowHomeWhenNothingElseIsSaid) {
  Environment around = Around();
  around.DataHome.clear();
  auto paths = FindPaths(around);
  ASSERT_TRUE(paths);
  EXPECT_EQ(paths->AppPath, At("home/.local/share/zorik"));
  around.DataHome = "relative";
  paths = FindPaths(around);
  ASSERT_TRUE(paths);
  EXPECT_EQ(paths->AppPath, At("home/.local/share/zorik"));
}

TEST_F(PathsTest, WithoutAVariableTheHomeIsTheOneThatTheSystemKnows) {
  const char* const variable = std::getenv("HOME");
  const std::string before = variable == nullptr ? "" : variable;
  const std::string known = getpwuid(getuid())->pw_dir;
  ASSERT_TRUE(fs::path(known).is_absolute());
  for (const char* home : {"", ".", "relative/home"}) {
    setenv("HOME", home, 1);
    EXPECT_EQ(ReadEnvironment("/opt").Home, known) << home;
  }
  unsetenv("HOME");
  EXPECT_EQ(ReadEnvironment("/opt").Home, known);
  setenv("HOME", "/somewhere", 1);
  EXPECT_EQ(ReadEnvironment("/opt").Home, "/somewhere");
  setenv("HOME", before.c_str(), 1);
}

TEST_F(PathsTest, AUserWithoutAHomeGetsNoFolderInTheOneHeStandsIn) {
  Environment around = Around();
  around.DataHome.clear();
  around.Home.clear();
  const fs::path before = fs::current_path();
  fs::current_path(root_);
  EXPECT_FALSE(FindPaths(around));
  fs::current_path(before);
  EXPECT_TRUE(fs::is_empty(root_));
}

TEST_F(PathsTest, ZorikHomeOverridesBoth) {
  File("opt/games/Skins/error.bmp");
  const auto paths = FindPaths(Around(At("mine")));
  ASSERT_TRUE(paths);
  EXPECT_EQ(paths->AppPath, At("mine"));
  EXPECT_EQ(paths->SkinsPath, At("mine/Skins"));
  EXPECT_EQ(paths->ShippedSkins, At("opt/games/Skins")) << "those that came with the program";
}

TEST_F(PathsTest, ZorikHomeMayBeNamedFromWhereOneStands) {
  const fs::path before = fs::current_path();
  fs::current_path(root_);
  const auto paths = FindPaths(Around("mine"));
  fs::current_path(before);
  EXPECT_TRUE(paths);
  EXPECT_TRUE(fs::is_directory(At("mine")));
}

TEST_F(PathsTest, SkinsAndHelpAreThePlayersOwnAndThoseOfTheInstallation) {
  for (const bool own : {false, true}) {
    SCOPED_TRACE(own ? "with folders of the player's own" : "without");
    if (own) File("data/zorik/Skins/Moje/Menu/ok.bmp");
    if (own) File("data/zorik/Help/help.html");
    const auto paths = FindPaths(Around());
    ASSERT_TRUE(paths);
    EXPECT_EQ(paths->SkinsPath, At("data/zorik/Skins"));
    EXPECT_EQ(paths->ShippedSkins, At("opt/share/games/zorik/Skins"));
    EXPECT_EQ(paths->HelpPath, At("data/zorik/Help"));
    EXPECT_EQ(paths->ShippedHelp, At("opt/share/games/zorik/Help"));
  }
}

TEST_F(PathsTest, TheFirstStartCopiesTheShippedCaves) {
  File("opt/share/games/zorik/Caves/one.zk");
  ASSERT_TRUE(FindPaths(Around()));
  EXPECT_TRUE(fs::exists(At("data/zorik/Caves/one.zk")));
}

TEST_F(PathsTest, LaterStartsLeaveThePlayersCavesAlone) {
  File("opt/share/games/zorik/Caves/one.zk");
  File("data/zorik/Caves/two.zk");
  const auto paths = FindPaths(Around());
  ASSERT_TRUE(paths);
  EXPECT_FALSE(fs::exists(At("data/zorik/Caves/one.zk")));
  EXPECT_EQ(paths->CavesPath, At("data/zorik/Caves"));
}

TEST_F(PathsTest, AFolderWithoutEntriesGivesWayToTheGamesFolder) {
  File("opt/games/Skins/error.bmp");
  fs::create_directories(At("opt/games/Caves"));
  const auto paths = FindPaths(Around());
  ASSERT_TRUE(paths);
  EXPECT_EQ(paths->CavesPath, At("opt/games"));
  EXPECT_EQ(paths->RecordsPath, At("opt/games"));
}

TEST_F(PathsTest, TestRunsAreNotLeftInTheGamesFolder) {
  File("opt/games/Skins/error.bmp");
  const auto paths = FindPaths(Around());
  ASSERT_TRUE(paths);
  EXPECT_EQ(paths->TestRecordsPath, At("opt/games/Replays"));
  EXPECT_FALSE(fs::exists(At("opt/games/Replays"))) << "it is made with the first of them";
}

TEST_F(PathsTest, AFolderThatCannotBeMadeIsNamed) {
  File("blocked");
  const auto paths = FindPaths(Around(At("blocked/below")));
  ASSERT_FALSE(paths);
  EXPECT_EQ(paths.Message(), At("blocked/below"));
}

}  // namespace
}  // namespace zorik
