#include <gtest/gtest.h>

#include "data/Chance.h"
#include "data/Lines.h"
#include "data/Postcard.h"
#include "data/RecordFile.h"
#include "data/Scramble.h"
#include "support/Scene.h"
#include "tools/Tool.h"
#include "zktool/PostcardText.h"

namespace zorik::test {
namespace {

constexpr std::string_view kLetters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ+-./:";

// The form as docs/formats.md tells it, written once more: bytes that are not deflated but stand in blocks as
// they are, which zlib's form allows.
std::string Adler(const std::string& content) {
  unsigned a = 1, b = 0;
  for (const char c : content) {
    a = (a + static_cast<unsigned char>(c)) % 65521;
    b = (b + a) % 65521;
  }
  std::string sum;
  for (const unsigned byte : {b >> 8, b & 255U, a >> 8, a & 255U}) sum += static_cast<char>(byte);
  return sum;
}

std::string InBlocks(const std::string& content) {
  std::string bytes = "\x78\x01";
  for (std::size_t at = 0; at == 0 || at < content.size(); at += 0xFFFF) {
    const std::string block = content.substr(at, 0xFFFF);
    const auto length = static_cast<unsigned>(block.size());
    bytes += at + 0xFFFF < content.size() ? '\0' : '\1';
    for (const unsigned n : {length, ~length}) {
      bytes += static_cast<char>(n & 255U);
      bytes += static_cast<char>(n >> 8U & 255U);
    }
    bytes += block;
  }
  return bytes + Adler(content);
}

std::string WordOfBytes(const std::string& bytes) {
  std::string word(kPostcardStart);
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    unsigned value = 0;
    const std::string pair = bytes.substr(i, 2);
    for (const char c : pair) value = value * 256 + static_cast<unsigned char>(c);
    for (std::size_t letter = 0; letter <= pair.size(); ++letter, value /= 41) word += kLetters[value % 41];
  }
  return word;
}

// The plain form of the lines of a record's head.
std::vector<std::string> HeadOf(const std::string& record) {
  RecordLines lines(record);
  std::vector<std::string> head;
  for (int line = 0; line < 3; ++line) head.push_back(UnscrambleText(lines.Next()));
  return head;
}

class Postcard : public ::testing::Test {
 protected:
  std::string record = ShortRecord();
  Folder folder;
};

TEST_F(Postcard, IsReadBackAsARecordOfTheSameRun) {
  const std::string path = folder.Write("short.zkr", record), back = folder.In("back.zkr");
  const Told card = Zktool({"postcard", path});
  ASSERT_EQ(card.exit, Exit::Fine) << card.err;
  const Told read = Zktool({"postcard", "--read", folder.Write("word.txt", card.out), "-o", back});
  ASSERT_EQ(read.exit, Exit::Fine) << read.err;
  EXPECT_EQ(MovesOf(BytesOf(back)), MovesOf(record));
  EXPECT_EQ(HeadOf(BytesOf(back)), HeadOf(record));
  EXPECT_EQ(Zktool({"verify", back}).exit, Exit::Fine);
}

TEST_F(Postcard, IsReadFromTheCommandLineToo) {
  const Result<std::string> word = PostcardOf(record);
  ASSERT_TRUE(word);
  const std::string back = folder.In("back.zkr");
  EXPECT_EQ(Zktool({"postcard", "--read", *word, "-o", back}).exit, Exit::Fine);
  EXPECT_EQ(MovesOf(BytesOf(back)), MovesOf(record));
}

TEST_F(Postcard, IsMadeOfLettersThatNoLetterBreaks) {
  const Result<std::string> word = PostcardOf(record);
  ASSERT_TRUE(word);
  EXPECT_TRUE(word->starts_with("ZORIK1:"));
  EXPECT_EQ(word->find_first_not_of(kLetters), std::string::npos);
  std::string broken;
  for (const char c : *word) broken.append(1, c).append(" \r\n\t");
  const Result<std::string> back = RecordOnPostcard(broken);
  ASSERT_TRUE(back) << back.Message();
  EXPECT_EQ(MovesOf(*back), MovesOf(record));
}

TEST_F(Postcard, HoldsTheLengthsAndTheMovesAsTheyAre) {
  const std::vector<std::string> head = HeadOf(record);
  std::string content;
  for (const std::string& line : head) content += std::to_string(line.size()) + ":" + line;
  const Result<std::string> back = RecordOnPostcard(WordOfBytes(InBlocks(content + MovesOf(record))));
  ASSERT_TRUE(back) << back.Message();
  EXPECT_EQ(HeadOf(*back), head);
  EXPECT_EQ(MovesOf(*back), MovesOf(record));
}

TEST_F(Postcard, KeepsEveryByte) {
  std::string bytes;
  for (int c = 0; c < 256; ++c) bytes += static_cast<char>(c);
  Chance decoration;
  std::string odd = BuildRecordHead(bytes, 12345, bytes, decoration);
  odd += ScrambleText("a cave\r\nof two lines", decoration) + "\r\n" + bytes + "\r\n" + bytes;
  const Result<std::string> word = PostcardOf(odd);
  ASSERT_TRUE(word) << word.Message();
  const Result<std::string> back = RecordOnPostcard(*word);
  ASSERT_TRUE(back) << back.Message();
  EXPECT_EQ(HeadOf(*back), HeadOf(odd));
  EXPECT_EQ(MovesOf(*back), MovesOf(odd));
}

TEST_F(Postcard, ThatIsDamagedIsNeverReadAsAnotherRun) {
  const Result<std::string> word = PostcardOf(record);
  ASSERT_TRUE(word);
  for (std::size_t length = 0; length < word->size(); ++length)
    EXPECT_FALSE(RecordOnPostcard(word->substr(0, length))) << length;
  int refused = 0;
  for (std::size_t place = 0; place < word->size(); ++place) {
    for (const char letter : {'0', 'Z', ':', 'x'}) {
      std::string damaged = *word;
      if (damaged[place] == letter) continue;
      damaged[place] = letter;
      const Result<std::string> back = RecordOnPostcard(damaged);
      if (back) {
        EXPECT_EQ(MovesOf(*back), MovesOf(record));
        EXPECT_EQ(HeadOf(*back), HeadOf(record));
      } else {
        ++refused;
      }
    }
  }
  EXPECT_GT(refused, static_cast<int>(word->size()));
}

TEST_F(Postcard, ThatIsNoneIsRefusedWithAWord) {
  const std::string out = folder.In("none.zkr");
  const Told told = Zktool({"postcard", "--read", folder.Write("letter.txt", "Dear Zorik"), "-o", out});
  EXPECT_EQ(told.exit, Exit::BadText);
  EXPECT_EQ(told.err, "zktool: bad-text: it is no word of a postcard, or a damaged one\n");
  EXPECT_EQ(BytesOf(out), "(no file)");
  EXPECT_EQ(Zktool({"postcard", "--read", folder.In("none"), "-o", out}).exit, Exit::CannotRead);
  EXPECT_EQ(Zktool({"postcard", "--read", "ZORIK1:"}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"postcard", folder.Write("no.zkr", "no record")}).exit, Exit::BadCave);
}

TEST_F(Postcard, WithoutACaveThatCanBePlayedIsRefused) {
  for (const char* content : {"", "1:", "3:ab", "1:a2:bc", "1:a1:b1:c", "99999999999999999999:a"}) {
    const std::string out = folder.In("none.zkr");
    const Told told = Zktool({"postcard", "--read", WordOfBytes(InBlocks(content)), "-o", out});
    EXPECT_EQ(told.exit, content == std::string("1:a1:b1:c") ? Exit::BadCave : Exit::BadText) << content;
    EXPECT_EQ(BytesOf(out), "(no file)");
  }
}

// A small word must not fill the memory.
TEST_F(Postcard, HoldsAMillionBytesAtMost) {
  const std::string head = "1:a1:b1:c";
  const auto word = [&](std::size_t size) {
    return WordOfBytes(InBlocks(head + std::string(size - head.size(), 'A')));
  };
  EXPECT_TRUE(RecordOnPostcard(word(1'048'576)));
  EXPECT_FALSE(RecordOnPostcard(word(1'048'577)));
}

std::uint32_t NumberAt(const std::string& png, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < 4; ++i) number = number << 8U | static_cast<unsigned char>(png.at(place + i));
  return number;
}

// A code has 17 modules and four for each version, 1 to 40, and four that stay white on each side.
TEST_F(Postcard, IsASquarePicture) {
  const std::string out = folder.In("card.png");
  ASSERT_EQ(Zktool({"postcard", folder.Write("short.zkr", record), "-o", out}).exit, Exit::Fine);
  const std::string png = BytesOf(out);
  EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1A\n");
  EXPECT_EQ(png.substr(12, 4), "IHDR");
  const std::uint32_t width = NumberAt(png, 16);
  EXPECT_EQ(width, NumberAt(png, 20));
  ASSERT_EQ(width % 6, 0U);
  EXPECT_EQ((width / 6 - 8 - 17) % 4, 0U);
  EXPECT_LE(width / 6 - 8, 177U);
}

// Noise cannot be deflated: a byte of it takes one and a half letters.
TEST_F(Postcard, SaysWhenTheRunIsTooLong) {
  Chance noise(7);
  std::string long_ = record + "\r\n";
  for (int i = 0; i < 3000; ++i) long_ += static_cast<char>(33 + noise.Below(200));
  const std::string path = folder.Write("long.zkr", long_), out = folder.In("card.png");
  const Told told = Zktool({"postcard", path, "-o", out});
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_NE(told.err.find("letters, and a postcard holds 4296"), std::string::npos) << told.err;
  EXPECT_EQ(BytesOf(out), "(no file)");
  EXPECT_EQ(Zktool({"postcard", path}).exit, Exit::Fine);
}

}  // namespace
}  // namespace zorik::test
