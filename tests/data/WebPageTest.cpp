#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "data/Collection.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "data/WebPage.h"
#include "support/Scene.h"
#include "support/TempFolder.h"

namespace zorik::test {
namespace {

constexpr std::string_view kTemplate = "<p>before</p><!--given--><p>after</p>";

std::string SmallCave() {
  return CaveTextOf({"WWWWWW", "W1;D;T", "WWWWWW"}, {.time = 100, .needed = 1, .before = 7, .name = "Hrab"});
}

std::string SmallRecord() {
  Chance decoration;
  return BuildRecordHead("Sada", 106, "hrac", decoration) + ScrambleText(SmallCave(), decoration) +
         "\r\nAiAB";
}

std::string SmallCollection() {
  EditedCollection collection;
  collection.Name = "Sada";
  collection.CaveList = {SmallCave()};
  Chance decoration;
  return *BuildCollection(collection, decoration);
}

// The examples that the definition of base64 gives.
TEST(WebPage, TellsBytesInBase64) {
  EXPECT_EQ(Base64(""), "");
  EXPECT_EQ(Base64("f"), "Zg==");
  EXPECT_EQ(Base64("fo"), "Zm8=");
  EXPECT_EQ(Base64("foo"), "Zm9v");
  EXPECT_EQ(Base64("foob"), "Zm9vYg==");
  EXPECT_EQ(Base64("fooba"), "Zm9vYmE=");
  EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
  EXPECT_EQ(Base64("\xFF\xFE\xFB"), "//77");
  EXPECT_EQ(Base64(std::string_view("\0\0\0", 3)), "AAAA");
}

TEST(WebPage, HoldsARecordWhereTheTemplateHasItsPlace) {
  const std::string record = SmallRecord();
  const Result<std::string> page = BuildWebPage(kTemplate, record);
  ASSERT_TRUE(page) << page.Message();
  EXPECT_EQ(*page,
            "<p>before</p><script id=\"given\" type=\"application/json\">{\"kind\":\"record\",\"bytes\":\"" +
                Base64(record) + "\"}</script><p>after</p>");
}

TEST(WebPage, HoldsACollection) {
  const Result<std::string> page = BuildWebPage(kTemplate, SmallCollection());
  ASSERT_TRUE(page) << page.Message();
  EXPECT_NE(page->find("\"kind\":\"collection\""), std::string::npos);
}

TEST(WebPage, IsNotMadeOfAnythingElse) {
  for (const std::string& bytes : {std::string(), std::string("no record"), SmallRecord().substr(0, 12)})
    EXPECT_FALSE(BuildWebPage(kTemplate, bytes)) << bytes;
}

TEST(WebPage, NeedsATemplateWithAPlaceForIt) {
  EXPECT_FALSE(BuildWebPage("<p>before and after</p>", SmallRecord()));
}

// The folders of a build, with a program in each place that has one.
class TemplateOfPages : public ::testing::Test {
 protected:
  TemplateOfPages() {
    for (const char* program : {"bin", "build/release/tools", "build/release/src/app"})
      std::filesystem::create_directories(root_ / program);
  }

  std::string Put(const std::string& path) const {
    std::filesystem::create_directories((root_ / path).parent_path());
    std::ofstream(root_ / path) << kTemplate;
    return (root_ / path).string();
  }
  std::optional<std::string> SeenFrom(const std::string& program) const {
    return FindWebPageTemplate((root_ / program).string());
  }

  TempFolder folder_{"template"};
  const std::filesystem::path root_ = folder_.Path();
};

TEST_F(TemplateOfPages, IsFoundInTheDataOfAnInstallation) {
  EXPECT_EQ(SeenFrom("bin"), std::nullopt);
  const std::string file = Put("share/games/zorik/page.html");
  EXPECT_EQ(SeenFrom("bin"), file);
}

TEST_F(TemplateOfPages, IsFoundInTheBuildTreeByTheToolAndByTheGame) {
  const std::string file = Put("build/web/page.html");
  EXPECT_EQ(SeenFrom("build/release/tools"), file);
  EXPECT_EQ(SeenFrom("build/release/src/app"), file);
}

TEST_F(TemplateOfPages, BesideTheProgramGoesFirst) {
  Put("build/web/page.html");
  const std::string file = Put("build/release/tools/page.html");
  EXPECT_EQ(SeenFrom("build/release/tools"), file);
}

}  // namespace
}  // namespace zorik::test
