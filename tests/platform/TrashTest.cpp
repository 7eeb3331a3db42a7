#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/PathText.h"
#include "platform/Trash.h"
#include "support/TempFolder.h"
#include "support/TrashFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

class TrashTest : public testing::Test {
 protected:
  fs::path File(const fs::path& name) const {
    fs::create_directories((root_ / name).parent_path());
    std::ofstream(root_ / name) << "sada";
    return root_ / name;
  }

  const test::TempFolder temp_{"trash"};
  const fs::path root_ = temp_.Path();
  const fs::path trash_ = root_ / "data/Trash";
  const test::TrashFolder home_{PathText(root_.string())};
};

TEST_F(TrashTest, TakesAFileWithTheWayBackToIt) {
  const fs::path path = File("sady/x.zk");
  ASSERT_TRUE(MoveToTrash(PathText(path.string())));
  EXPECT_FALSE(fs::exists(path));
  EXPECT_EQ(*ReadWhole((trash_ / "files/x.zk").string()), "sada");
  const auto info = ReadWhole((trash_ / "info/x.zk.trashinfo").string());
  ASSERT_TRUE(info);
  EXPECT_NE(info->find("sady/x.zk\n"), std::string::npos) << *info;
  EXPECT_EQ(std::distance(fs::directory_iterator(trash_ / "info"), {}), 1);
  EXPECT_EQ(std::distance(fs::directory_iterator(trash_ / "files"), {}), 1);
}

TEST_F(TrashTest, KeepsTwoFilesOfOneName) {
  for (const char* name : {"a/x.zk", "b/x.zk"}) ASSERT_TRUE(MoveToTrash(PathText(File(name).string())));
  EXPECT_EQ(std::distance(fs::directory_iterator(trash_ / "files"), {}), 2);
}

// No file can be made in these folders of the system, not even by the one who may do everything.
TEST_F(TrashTest, TakesNothingWhereItsFoldersTakeNoFiles) {
  for (const char* closed : {"info", "files"}) {
    fs::remove_all(trash_);
    fs::create_directories(trash_);
    fs::create_directory_symlink("/proc/self/fdinfo", trash_ / closed);
    const fs::path path = File("x.zk");
    const Result<Done> moved = MoveToTrash(PathText(path.string()));
    EXPECT_FALSE(moved) << closed;
    EXPECT_NE(moved.Message().find("x.zk"), std::string::npos) << moved.Message();
    EXPECT_TRUE(fs::exists(path)) << closed;
    EXPECT_FALSE(fs::exists(trash_ / "info/x.zk.trashinfo")) << "of what is not in the trash";
  }
}

// A name that is no UTF-8 would be that of another file for the desktop's trash.
TEST_F(TrashTest, TakesNothingWhoseNameIsNoUtf8) {
  const fs::path path = File("x\xE1.zk");
  EXPECT_FALSE(MoveToTrash(PathText(path.string())));
  EXPECT_TRUE(fs::exists(path));
}

TEST_F(TrashTest, TakesNothingThatIsNotThere) {
  EXPECT_FALSE(MoveToTrash(PathText((root_ / "neni.zk").string())));
}

}  // namespace
}  // namespace zorik
