#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "data/CaveO.h"
#include "data/Chance.h"
#include "data/Collection.h"
#include "data/Files.h"
#include "data/Result.h"
#include "platform/Paths.h"
#include "platform/ShippedCaves.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

// An installation with two collections, and a player's folder.
class ShippedCavesTest : public testing::Test {
 protected:
  ShippedCavesTest() {
    fs::create_directories(root_ / "opt/share/games/zorik/Skins");
    fs::create_directories(root_ / "opt/share/games/zorik/Caves");
    Ship("a.zk", Written(90, 1));
    Ship("b.zk", Written(20, 2));
  }

  // A collection of so many caves, with letters picked by this chance.
  static std::string Written(int caves, std::uint64_t seed, const std::string& end = "Hotovo") {
    EditedCollection collection;
    collection.Name = "Sada";
    collection.CongratulationText = end;
    for (int i = 0; i < caves; ++i) collection.CaveList.push_back(*NewCaveText(NewCaveSize::Large));
    Chance chance(seed);
    return *BuildCollection(collection, chance);
  }

  void Ship(const std::string& name, const std::string& bytes) const {
    ASSERT_TRUE(WriteWhole((root_ / "opt/share/games/zorik/Caves" / name).string(), bytes));
  }
  std::string Shipped(const std::string& name) const {
    return *ReadWhole((root_ / "opt/share/games/zorik/Caves" / name).string());
  }
  std::string OwnPath(const std::string& name) const { return (root_ / "home/Caves" / name).string(); }
  void Own(const std::string& name, const std::string& bytes) const {
    ASSERT_TRUE(WriteWhole(OwnPath(name), bytes));
  }
  Paths Start() const {
    const auto paths = FindPaths({(root_ / "opt/games").string(), (root_ / "home").string(), {}, {}, {}});
    EXPECT_TRUE(paths);
    return *paths;
  }

  test::TempFolder temp_{"shipped"};
  const fs::path root_ = temp_.Path();
};

TEST_F(ShippedCavesTest, TheFirstStartBringsThemAll) {
  const Paths paths = Start();
  for (const char* name : {"a.zk", "b.zk"}) EXPECT_EQ(*ReadWhole(OwnPath(name)), Shipped(name));
  EXPECT_EQ(paths.CavesFailure, "");
  EXPECT_TRUE(LackingCaves(paths).empty());
  EXPECT_EQ(paths.CavesPath, (root_ / "home/Caves").string());
}

TEST_F(ShippedCavesTest, WhatIsMissingIsLackingAndCanBeBrought) {
  Start();
  fs::remove(OwnPath("b.zk"));
  const Paths paths = Start();
  EXPECT_FALSE(fs::exists(OwnPath("b.zk"))) << "the player may have wanted it away";
  EXPECT_EQ(LackingCaves(paths), Names{"b.zk"});
  ASSERT_TRUE(BringCaves(paths, {"b.zk"}));
  EXPECT_EQ(*ReadWhole(OwnPath("b.zk")), Shipped("b.zk"));
  EXPECT_TRUE(LackingCaves(paths).empty());
}

TEST_F(ShippedCavesTest, APartOfACopyIsLackingWhereverItBreaksOff) {
  const Paths paths = Start();
  const std::string whole = Shipped("b.zk");
  const std::size_t lineEnd = whole.find("\r\n", 300) + 2;
  for (const std::size_t length :
       {std::size_t{0}, std::size_t{1}, std::size_t{300}, lineEnd, whole.size() - 2, whole.size() - 1}) {
    Own("b.zk", whole.substr(0, length));
    EXPECT_EQ(LackingCaves(paths), Names{"b.zk"}) << length;
  }
  // What a computer that lost its power has not written yet may read as zeros.
  Own("b.zk", whole.substr(0, 4096) + std::string(whole.size() - 4096, '\0'));
  EXPECT_EQ(LackingCaves(paths), Names{"b.zk"});
}

TEST_F(ShippedCavesTest, APartOfACopyOfAnEarlierVersionIsLackingToo) {
  const Paths paths = Start();
  const std::string earlier = Written(15, 2, "Konec");
  ASSERT_TRUE(earlier.starts_with(Shipped("b.zk").substr(0, 100))) << "they begin with the same line";
  Own("b.zk", earlier);
  EXPECT_TRUE(LackingCaves(paths).empty()) << "it is whole, though not the newest";
  Own("b.zk", earlier.substr(0, earlier.size() - 5));
  EXPECT_EQ(LackingCaves(paths), Names{"b.zk"});
}

TEST_F(ShippedCavesTest, WhatThePlayerHasChangedIsHis) {
  const Paths paths = Start();
  const Names changed = {
      Written(3, 77),                 // fewer caves, saved by the editor
      Written(20, 77),                // saved without a change
      Written(19, 2),                 // packed anew
      Written(20, 2, "Něco jiného"),  // likewise
      Shipped("a.zk"),
      "something else",
  };
  for (const std::string& bytes : changed) {
    Own("b.zk", bytes);
    EXPECT_TRUE(LackingCaves(paths).empty()) << bytes.substr(0, 60);
    Start();
    EXPECT_EQ(*ReadWhole(OwnPath("b.zk")), bytes);
  }
}

TEST_F(ShippedCavesTest, WhatBearsTheNameAndIsNoFileIsLeftAlone) {
  const Paths paths = Start();
  fs::remove(OwnPath("a.zk"));
  fs::create_directory(OwnPath("a.zk"));
  fs::remove(OwnPath("b.zk"));
  fs::create_symlink("nowhere", OwnPath("b.zk"));
  EXPECT_TRUE(LackingCaves(paths).empty());
  fs::remove(OwnPath("b.zk"));
  Own("B.ZK", "of the player's own");
  EXPECT_TRUE(LackingCaves(paths).empty());
}

TEST_F(ShippedCavesTest, WhatWasDeclinedIsNotLackingAnyMore) {
  Start();
  fs::remove(OwnPath("b.zk"));
  const Paths paths = Start();
  ASSERT_TRUE(DeclineCaves(paths, {"b.zk"}));
  EXPECT_TRUE(LackingCaves(Start()).empty());
  fs::remove(OwnPath("a.zk"));
  EXPECT_EQ(LackingCaves(paths), Names{"a.zk"}) << "nobody was asked about this one";
  ASSERT_TRUE(DeclineCaves(paths, {"a.zk"}));
  EXPECT_TRUE(LackingCaves(Start()).empty());
}

TEST_F(ShippedCavesTest, AGameThatPlaysWhatItWasShippedWithLacksNothing) {
  fs::create_directories(root_ / "stick/Skins");
  fs::create_directories(root_ / "stick/Caves");
  const auto paths = FindPaths({(root_ / "stick").string(), {}, {}, {}, {}});
  ASSERT_TRUE(paths);
  EXPECT_TRUE(LackingCaves(*paths).empty());
}

// A limit on the size of files stands for a disk that is full after the smaller collection.
TEST_F(ShippedCavesTest, AFirstStartOnAFullDiskNamesWhatItCouldNotWriteAndLeavesNoPart) {
  rlimit before = {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = signal(SIGXFSZ, SIG_IGN);
  const rlimit small{Shipped("a.zk").size() - 1, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const Paths full = Start();
  setrlimit(RLIMIT_FSIZE, &before);
  signal(SIGXFSZ, handler);
  EXPECT_EQ(full.CavesFailure, OwnPath("a.zk"));
  EXPECT_TRUE(fs::is_empty(root_ / "home/Caves"));
  EXPECT_EQ(full.CavesPath, (root_ / "home").string());

  Paths later = Start();
  EXPECT_EQ(later.CavesFailure, "");
  EXPECT_EQ(LackingCaves(later), (Names{"a.zk", "b.zk"}));
  ASSERT_TRUE(BringCaves(later, LackingCaves(later)));
  FindFolders(later);
  EXPECT_EQ(later.CavesPath, (root_ / "home/Caves").string());
}

TEST_F(ShippedCavesTest, AFolderOfCavesThatCannotBeMadeIsNamed) {
  fs::create_directories(root_ / "home");
  fs::create_symlink("nowhere/at/all", root_ / "home/Caves");
  const Paths paths = Start();
  const auto brought = BringCaves(paths, LackingCaves(paths));
  ASSERT_FALSE(brought);
  EXPECT_EQ(brought.Message(), (root_ / "home/Caves").string());
}

TEST_F(ShippedCavesTest, AreWholeOrNotThereHoweverOftenTheFirstStartIsKilled) {
  constexpr int kTries = 100;
  int parts[3] = {};  // of the tries, by how many collections had come
  for (int i = 0; i < kTries; ++i) {
    fs::remove_all(root_ / "home");
    const pid_t child = fork();
    if (child == 0) {
      Start();
      pause();
    }
    ASSERT_GT(child, 0);
    usleep(static_cast<useconds_t>(i * 200));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::size_t come = 0;
    for (const char* name : {"a.zk", "b.zk"}) {
      if (!fs::exists(OwnPath(name))) continue;
      ++come;
      ASSERT_EQ(*ReadWhole(OwnPath(name)), Shipped(name)) << i;
    }
    ++parts[come];
    const Paths paths = Start();
    ASSERT_TRUE(BringCaves(paths, LackingCaves(paths)));
    for (const char* name : {"a.zk", "b.zk"}) ASSERT_EQ(*ReadWhole(OwnPath(name)), Shipped(name)) << i;
  }
  EXPECT_GT(parts[0] + parts[1], 0) << "none was killed early enough";
}

}  // namespace
}  // namespace zorik
