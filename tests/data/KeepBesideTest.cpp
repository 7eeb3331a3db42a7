#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "data/Files.h"
#include "data/KeepBeside.h"
#include "data/Result.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

class KeepBesideTest : public testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& bytes) const {
    const std::string path = folder_ + "/" + name;
    EXPECT_TRUE(WriteWhole(path, bytes));
    return path;
  }

  test::TempFolder temp_{"beside"};
  const std::string folder_ = temp_.Path();
};

TEST_F(KeepBesideTest, CopiesAFileUnderTheNextFreeNumber) {
  const std::string path = Write("a.zk", "prvni");
  EXPECT_EQ(*KeepBeside(path), path + "~1");
  Write("a.zk", "druhy");
  Write("a.zk~3", "cizi");
  EXPECT_EQ(*KeepBeside(path), path + "~2");
  EXPECT_EQ(*KeepBeside(path), path + "~4");
  EXPECT_EQ(*ReadWhole(path), "druhy");
  EXPECT_EQ(*ReadWhole(path + "~1"), "prvni");
  EXPECT_EQ(*ReadWhole(path + "~2"), "druhy");
  EXPECT_EQ(*ReadWhole(path + "~3"), "cizi");
}

TEST_F(KeepBesideTest, TakesALinkThatLeadsNowhereForATakenName) {
  const std::string path = Write("a.zk", "x");
  fs::create_symlink(folder_ + "/neni", path + "~1");
  EXPECT_EQ(*KeepBeside(path), path + "~2");
}

TEST_F(KeepBesideTest, KeepsNothingWhereNothingIs) {
  EXPECT_EQ(*KeepBeside(folder_ + "/neni.zk"), "");
}

TEST_F(KeepBesideTest, FailsAtWhatCannotBeRead) {
  EXPECT_FALSE(KeepBeside(folder_));
}

TEST_F(KeepBesideTest, ShortensANameThatLeavesNoRoomForANumber) {
  const std::string name = std::string(250, 'x') + "\xC3\xA1.zk";  // 255 bytes
  const std::string path = Write(name, "dlouhy");
  EXPECT_EQ(*KeepBeside(path), folder_ + "/" + name.substr(0, 253) + "~1");
  const std::string inside = std::string(252, 'y') + "\xC3\xA1y";
  EXPECT_EQ(*KeepBeside(Write(inside, "dlouhy")), folder_ + "/" + std::string(252, 'y') + "~1");
}

}  // namespace
}  // namespace zorik
