#include <gtest/gtest.h>

#include <filesystem>

#include "data/Files.h"
#include "data/ProofFile.h"
#include "data/Result.h"
#include "support/TempFolder.h"

namespace zorik::test {
namespace {

TEST(ProofFile, LiesBesideTheCollectionUnderTheNamesOfBoth) {
  const TempFolder folder("ProofFile");
  EXPECT_EQ(ProofPath(folder.Path() + "/moje.zk", "Kost"), folder.Path() + "/moje - Kost.zkr");
  EXPECT_EQ(ProofPath(folder.Path() + "/moje.zk", "A/B: \"C\"?"), folder.Path() + "/moje - AB C.zkr");
  EXPECT_EQ(ProofPath(folder.Path() + "/\xC5\x99\xC3\xA1\x64.zk", "\xF8\xE1\x64"),
            folder.Path() + "/\xC5\x99\xC3\xA1\x64 - \xC5\x99\xC3\xA1\x64.zkr");
  EXPECT_EQ(ProofPath(folder.Path() + "/moje.zk", "Kost", 12), folder.Path() + "/moje - Kost (12).zkr");
}

TEST(ProofFile, KeepsWhatItHeldBeside) {
  const TempFolder folder("ProofFile");
  const std::string path = folder.Path() + "/moje - Kost.zkr";
  EXPECT_EQ(*StoreProof(path, "one"), "");
  EXPECT_EQ(*StoreProof(path, "one"), "") << "the very same";
  EXPECT_EQ(*StoreProof(path, "two"), path + "~1");
  EXPECT_EQ(*StoreProof(path, "three"), path + "~2");
  EXPECT_EQ(*ReadWhole(path), "three");
  EXPECT_EQ(*ReadWhole(path + "~1"), "one");
  EXPECT_EQ(*ReadWhole(path + "~2"), "two");
}

TEST(ProofFile, TellsWhenItCannotBeWritten) {
  const TempFolder folder("ProofFile");
  const auto stored = StoreProof(folder.Path() + "/nowhere/moje - Kost.zkr", "one");
  ASSERT_FALSE(stored);
  EXPECT_EQ(stored.Why().Trouble, FileTrouble::NoFolder);
}

}  // namespace
}  // namespace zorik::test
