#include <gtest/gtest.h>

#include "data/WebPage.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

// A record, a template with a place for it, and what is to become the page.
class Page : public ::testing::Test {
 protected:
  Told Of(const std::string& what) const {
    return Zktool({"page", what, "-o", folder.In("out.html"), "--template", shell});
  }

  Folder folder;
  std::string shell = folder.Write("page.html", "<p>a</p><!--given--><p>b</p>");
  std::string record = folder.Write("run.zkr", ShortRecord());
};

TEST_F(Page, HoldsTheWholeRecord) {
  const Told told = Of(record);
  EXPECT_EQ(told.exit, Exit::Fine) << told.err;
  const std::string page = BytesOf(folder.In("out.html"));
  EXPECT_NE(page.find(Base64(ShortRecord())), std::string::npos) << page;
  EXPECT_EQ(page.find("<!--given-->"), std::string::npos) << page;
}

TEST_F(Page, IsNotWrittenForAFileOfAnotherKind) {
  const std::string other = folder.Write("other.zkr", "nothing of the game");
  const Told told = Of(other);
  EXPECT_EQ(told.exit, Exit::BadCollection);
  EXPECT_NE(told.err.find("other.zkr: it is neither a record nor a collection of caves"), std::string::npos)
      << told.err;
  EXPECT_EQ(BytesOf(folder.In("out.html")), "(no file)");
}

TEST_F(Page, TellsOfATemplateThatCannotBeRead) {
  const Told told =
      Zktool({"page", record, "-o", folder.In("out.html"), "--template", folder.In("missing.html")});
  EXPECT_EQ(told.exit, Exit::CannotRead);
  EXPECT_NE(told.err.find("missing.html"), std::string::npos) << told.err;
}

TEST_F(Page, TellsOfATemplateWithoutAPlaceForIt) {
  folder.Write("page.html", "<p>a</p><p>b</p>");
  const Told told = Of(record);
  EXPECT_EQ(told.exit, Exit::BadText);
  EXPECT_NE(told.err.find("page.html: this template has no place"), std::string::npos) << told.err;
  EXPECT_EQ(told.err.find("run.zkr"), std::string::npos) << told.err;
}

TEST_F(Page, LeavesWhatStandsInItsPlaceWhereItFails) {
  folder.Write("out.html", "mine");
  EXPECT_EQ(Of(folder.Write("other.zk", "nothing of the game")).exit, Exit::BadCollection);
  EXPECT_EQ(BytesOf(folder.In("out.html")), "mine");
}

}  // namespace
}  // namespace zorik::test
