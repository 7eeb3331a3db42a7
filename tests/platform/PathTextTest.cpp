#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "platform/PathText.h"

namespace zorik {
namespace {

TEST(PathText, OfUtf8IsThatText) {
  EXPECT_EQ(PathText("/home/Kůň/😀.zk"), QString("/home/Kůň/😀.zk"));
  EXPECT_EQ(PathBytes("/home/Kůň/😀.zk"), "/home/Kůň/😀.zk");
  EXPECT_EQ(PathText(""), QString());
}

TEST(PathText, LeadsBackToTheSameBytes) {
  std::vector<std::string> paths{"/Hr\xE1\xE8",          "\xF0\x9F\x98",     "\xED\xB2\x80",
                                 "\xF0\x9F\x98\x80\xE1", "\xC3\xA1\xE1\xFF", "\xF0\x90\x92\x80",
                                 "a\xF0\x90\x92\x80"};
  std::mt19937 chance(1);
  for (int i = 0; i < 2000; ++i) {
    std::string path;
    for (int k = 0; k < 12; ++k) path += static_cast<char>(1 + chance() % 255);
    paths.push_back(path);
  }
  for (const std::string& path : paths) EXPECT_EQ(PathBytes(PathText(path)), path);
}

TEST(PathText, DiffersWhereTheBytesDiffer) {
  EXPECT_NE(PathText("Hr\xE1\xE8"), PathText("Hráč"));
  EXPECT_NE(PathText("\xE1"), PathText("\xE2"));
}

TEST(ShownPath, ReadsWhatIsNoUtf8AsWindows1250NameByName) {
  EXPECT_EQ(ShownPath(PathText("/Kůň/Hr\xE1\xE8/\x8At\xECn\xEC.zk")), QString("/Kůň/Hráč/Štěně.zk"));
  EXPECT_EQ(ShownPath(std::string_view("/Kůň/Hr\xE1\xE8")), QString("/Kůň/Hráč"));
}

TEST(ShownPath, HasNoControlCharacters) {
  EXPECT_EQ(ShownPath(PathText("/a\nb\x1B\x7F/c\xC2\x85\td/\x81\xE1")), QString("/ab/cd/á"));
}

}  // namespace
}  // namespace zorik
