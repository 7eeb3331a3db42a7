#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "data/Files.h"
#include "data/FolderNames.h"
#include "data/Result.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

class FolderOfNames : public testing::Test {
 protected:
  std::string In(const std::string& name) const { return path_ + "/" + name; }
  void Put(const std::string& name) const { ASSERT_TRUE(WriteWhole(In(name), name)); }

  test::TempFolder temp_{"names"};
  const std::string path_ = temp_.Path();
};

TEST_F(FolderOfNames, FindsANameAsItStandsAndElseInAnyLetterCase) {
  Put("Sada. Komnata.zkr");
  Put("SADA. \u010Cern\u00E1.zkr");
  FolderNames names(path_);
  EXPECT_EQ(names.PathOf("Sada. Komnata.zkr"), In("Sada. Komnata.zkr"));
  EXPECT_EQ(names.PathOf("sada. KOMNATA.ZKR"), In("Sada. Komnata.zkr"));
  EXPECT_EQ(names.PathOf("Sada. \u010DERN\u00C1.zkr"), In("SADA. \u010Cern\u00E1.zkr"));
  EXPECT_EQ(names.PathOf("Sada. Jin\u00E1.zkr"), In("Sada. Jin\u00E1.zkr"));
}

TEST_F(FolderOfNames, FindsWhatResolvePathFinds) {
  for (const char* name : {"b.zkr", "B.zkr", "A.ZKR", "a\tb.zkr", "x", "X.zkr", "\xE1.zkr"}) Put(name);
  FolderNames names(path_);
  for (const char* name :
       {"b.zkr", "B.zkr", "B.ZKR", "a.zkr", "AB.zkr", "X", "x.zkr", "\u00C1.zkr", "none", ""}) {
    EXPECT_EQ(names.PathOf(name), ResolvePath(path_ + "/" + name)) << name;
  }
}

TEST_F(FolderOfNames, SeesWhatComesAndGoesLater) {
  FolderNames names(path_);
  EXPECT_EQ(names.PathOf("a.zkr"), In("a.zkr"));
  Put("A.zkr");
  EXPECT_EQ(names.PathOf("a.zkr"), In("A.zkr"));
  fs::remove(In("A.zkr"));
  EXPECT_EQ(names.PathOf("a.zkr"), In("a.zkr"));
}

TEST_F(FolderOfNames, FindsAFolderInAnyLetterCaseAndOneThatComesLater) {
  fs::create_directories(In("Ada"));
  Put("Ada/Zaznam.zkr");
  EXPECT_EQ(FolderNames(In("aDA")).PathOf("ZAZNAM.zkr"), In("Ada/Zaznam.zkr"));
  FolderNames later(In("Eva"));
  EXPECT_EQ(later.PathOf("a.zkr"), In("Eva/a.zkr"));
  fs::create_directories(In("Eva"));
  Put("Eva/A.zkr");
  EXPECT_EQ(later.PathOf("a.zkr"), In("Eva/A.zkr"));
}

}  // namespace
}  // namespace zorik
