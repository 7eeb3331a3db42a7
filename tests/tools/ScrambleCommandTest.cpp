#include <gtest/gtest.h>

#include "data/Scramble.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

TEST(ScrambleCommand, ScramblesEachLineAndCopiesLineEnds) {
  const Told told = Zktool({"scramble"}, "ab\r\n\nc\n\r\r\nd");
  EXPECT_EQ(told.exit, Exit::Fine);
  const std::string& out = told.out;
  ASSERT_EQ(out.size(), 6U + 2 + 1 + 3 + 1 + 3 + 2 + 3);
  EXPECT_EQ(UnscrambleText(out.substr(0, 6)), "ab");
  EXPECT_EQ(out.substr(6, 3), "\r\n\n");
  EXPECT_EQ(UnscrambleText(out.substr(9, 3)), "c");
  EXPECT_EQ(out[12], '\n');
  EXPECT_EQ(UnscrambleText(out.substr(13, 3)), "\r");
  EXPECT_EQ(out.substr(16, 2), "\r\n");
  EXPECT_EQ(UnscrambleText(out.substr(18)), "d");
}

TEST(ScrambleCommand, IsUndoneByUnscrambleForAnyBytes) {
  std::string bytes;
  for (int i = 0; i < 2000; ++i) bytes += static_cast<char>(i * i % 256 + i / 7);
  bytes += std::string("\0\n\r\n\r\r\n\n\xFF\r", 10);
  for (std::size_t length = 0; length <= bytes.size(); length += 37) {
    const std::string start = bytes.substr(0, length);
    EXPECT_EQ(Zktool({"unscramble"}, Zktool({"scramble"}, start).out).out, start);
  }
  EXPECT_EQ(Zktool({"unscramble"}, Zktool({"scramble"}, bytes).out).out, bytes);
}

TEST(UnscrambleCommand, NeverFails) {
  const Told told = Zktool({"unscramble"}, std::string("not scrambled\0\xFF\nA", 17));
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.err, "");
}

}  // namespace
}  // namespace zorik::test
