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

// Each of so many bytes has fifteen ways to be written.
const std::string kLongText(200, 'z');

TEST(ScrambleCommand, WritesOtherLettersAtEveryCall) {
  const Told one = Zktool({"scramble"}, kLongText);
  const Told other = Zktool({"scramble"}, kLongText);
  EXPECT_NE(one.out, other.out);
  EXPECT_EQ(UnscrambleText(one.out), kLongText);
  EXPECT_EQ(UnscrambleText(other.out), kLongText);
}

TEST(ScrambleCommand, WritesTheSameLettersFromTheSameSeed) {
  const std::string seven = Zktool({"scramble", "--seed", "7"}, kLongText).out;
  EXPECT_EQ(UnscrambleText(seven), kLongText);
  EXPECT_EQ(Zktool({"scramble", "--seed", "7"}, kLongText).out, seven);
  EXPECT_NE(Zktool({"scramble", "--seed", "8"}, kLongText).out, seven);
}

TEST(ScrambleCommand, TakesNoSeedThatIsNoNumber) {
  for (const char* seed : {"", "x", "-1", "7x", "18446744073709551616"}) {
    const Told told = Zktool({"scramble", "--seed", seed}, "a");
    EXPECT_EQ(told.exit, Exit::Usage) << seed;
    EXPECT_NE(told.err.find("--seed"), std::string::npos) << told.err;
    EXPECT_EQ(told.out, "") << seed;
  }
  EXPECT_EQ(Zktool({"scramble", "--seed", "18446744073709551615"}, "a").exit, Exit::Fine);
}

TEST(UnscrambleCommand, NeverFails) {
  const Told told = Zktool({"unscramble"}, std::string("not scrambled\0\xFF\nA", 17));
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.err, "");
}

}  // namespace
}  // namespace zorik::test
