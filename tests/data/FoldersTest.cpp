#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "data/Files.h"
#include "data/Folders.h"
#include "data/Result.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

class FoldersTest : public testing::Test {
 protected:
  void File(const std::string& name) const { ASSERT_TRUE(WriteWhole(root_ + "/" + name, "x")); }

  test::TempFolder temp_{"folders"};
  const std::string root_ = temp_.Path();
};

TEST_F(FoldersTest, FilesAreListedByTheirExtensionInWhateverCaseAndEncoding) {
  for (const char* name : {"b.zk", "A.ZK", "k\xF9\xF2.zk", "kůň.Zk", "c.zkr", "zk", "d.zk~"}) File(name);
  EXPECT_EQ(FilesIn(root_, ".zk"), (Names{"A.ZK", "b.zk", "k\xC5\xAF\xC5\x88.Zk", "k\xF9\xF2.zk"}));
}

TEST_F(FoldersTest, OnlyRegularFilesAndLinksToThemAreFiles) {
  File("a.zk");
  fs::create_symlink("a.zk", root_ + "/link.zk");
  fs::create_symlink("nowhere", root_ + "/broken.zk");
  fs::create_directory(root_ + "/folder.zk");
  ASSERT_EQ(mkfifo((root_ + "/pipe.zk").c_str(), 0666), 0);
  fs::create_symlink("/dev/zero", root_ + "/device.zk");
  File(".hidden.zk");
  EXPECT_EQ(FilesIn(root_, ".zk"), (Names{"a.zk", "link.zk"}));
}

TEST_F(FoldersTest, FoldersAreListedWhateverTheirEncoding) {
  for (const char* name : {"Ada", "Hr\xE1\xE8", ".hidden"}) fs::create_directory(root_ + "/" + name);
  fs::create_directory_symlink("Ada", root_ + "/link");
  fs::create_symlink("nowhere", root_ + "/broken");
  File("file");
  EXPECT_EQ(FoldersIn(root_), (Names{"Ada", "Hr\xE1\xE8", "link"}));
}

TEST_F(FoldersTest, WhatIsNoFolderIsEmpty) {
  File("file");
  EXPECT_TRUE(FilesIn(root_ + "/none", ".zk").empty());
  EXPECT_TRUE(FoldersIn(root_ + "/file").empty());
}

}  // namespace
}  // namespace zorik
