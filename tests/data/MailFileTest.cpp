#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/MailFile.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Samples.h"
#include "support/AsNobody.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

using samples::CaveText;

constexpr const char* kHead =
    "Subject: Zor\xEDk\r\n"
    "Content-Type: multipart/mixed;  boundary = \"----=NP\"\r\n"
    "X-Unsent: 1\r\n"
    "\r\n"
    "This is a multi-part message in MIME format.\r\n";

// The collection "Sada" with these caves.
PlayedCollection CollectionOf(const std::vector<std::string>& names) {
  std::vector<std::string> body;
  for (const std::string& name : names) body.push_back(CaveText(name) + "---01");
  body.emplace_back("Konec");
  return *ReadForPlay(samples::CollectionFile(body));
}

std::string MailOf(const std::vector<std::string>& names, const std::map<std::string, std::string>& files) {
  return BuildMail(CollectionOf(names), [&](const std::string& name) -> std::optional<std::string> {
    const auto file = files.find(name);
    return file == files.end() ? std::nullopt : std::optional<std::string>(file->second);
  });
}

// The mail of one record with these bytes, without what stands before them.
std::string Folded(const std::string& bytes) {
  const std::string mail = MailOf({"a"}, {{"Sada - a.zkr", bytes}});
  constexpr std::string_view kLast = "filename=\"=?iso-8859-2?Q?Sada_-_a.zkr?=\"\r\n\r\n";
  return mail.substr(mail.find(kLast) + kLast.size());
}

TEST(MailFile, EncodesABlankAsAnUnderscore) {
  EXPECT_EQ(URLEncode("A b"), "=?iso-8859-2?Q?A_b?=");
}

TEST(MailFile, EncodesCzechLettersByTheirCode) {
  EXPECT_EQ(URLEncode("\xE8"), "=?iso-8859-2?Q?=E8?=");
}

TEST(MailFile, EncodesNothingAsAnEmptyWord) {
  EXPECT_EQ(URLEncode(""),
            "=?iso-8859-2?Q?"
            "?=");
}

TEST(MailFile, EncodesEveryOtherCodeByItsRange) {
  for (int code = 0; code < 256; ++code) {
    if (code == 32) continue;
    const bool plain = (code >= 33 && code <= 90) || (code >= 97 && code <= 122);
    char hexadecimal[8];
    std::snprintf(hexadecimal, sizeof hexadecimal, "=%X", code);
    const std::string character(1, static_cast<char>(code));
    const std::string expected = plain ? character : hexadecimal;
    EXPECT_EQ(URLEncode(character), "=?iso-8859-2?Q?" + expected + "?=") << code;
  }
}

TEST(MailFile, WithoutARecordIsTheHeadAlone) {
  EXPECT_EQ(MailOf({"a", "b"}, {}), kHead);
}

TEST(MailFile, HoldsAPartForEachRecordInTheOrderOfTheCaves) {
  const std::string mail = MailOf({"Z\xE1mek", "chyb\xED", "b"},
                                  {{"Sada - b.zkr", "BB\r\n"}, {"Sada - Z\xE1mek.zkr", "AA\r\nC\r\n"}});
  const std::string expected = std::string(kHead) +
                               "\r\n"
                               "------=NP\r\n"
                               "Content-Type: application/octet-stream; "
                               "name=\"=?iso-8859-2?Q?Sada_-_Z=E1mek.zkr?=\"\r\n"
                               "Content-Disposition: attachment; "
                               "filename=\"=?iso-8859-2?Q?Sada_-_Z=E1mek.zkr?=\"\r\n"
                               "\r\n"
                               "AA\r\n"
                               "C\r\n"
                               "\r\n"
                               "------=NP\r\n"
                               "Content-Type: application/octet-stream; "
                               "name=\"=?iso-8859-2?Q?Sada_-_b.zkr?=\"\r\n"
                               "Content-Disposition: attachment; "
                               "filename=\"=?iso-8859-2?Q?Sada_-_b.zkr?=\"\r\n"
                               "\r\n"
                               "BB\r\n";
  EXPECT_EQ(mail, expected);
}

TEST(MailFile, CleansTheNameAsTheFileHasIt) {
  const std::string mail = MailOf({"a/b: \"c\"?"}, {{"Sada - ab c.zkr", "X\r\n"}});
  EXPECT_NE(mail.find("name=\"=?iso-8859-2?Q?Sada_-_ab_c.zkr?=\""), std::string::npos);
}

TEST(MailFile, LeavesALineOf73CharactersWhole) {
  const std::string line(73, 'A');
  EXPECT_EQ(Folded(line + "\r\n"), line + "\r\n");
}

TEST(MailFile, FoldsALineOf74Characters) {
  EXPECT_EQ(Folded(std::string(73, 'A') + "B\r\n"), std::string(73, 'A') + "=\r\nB\r\n");
}

TEST(MailFile, FoldsALineOf146CharactersIntoTwoAndAnEmptyOne) {
  const std::string piece(73, 'A');
  EXPECT_EQ(Folded(piece + piece + "\r\n"), piece + "=\r\n" + piece + "=\r\n\r\n");
}

TEST(MailFile, FoldsALineOf150CharactersIntoThree) {
  const std::string piece(73, 'A');
  EXPECT_EQ(Folded(piece + piece + "BCDE\r\n"), piece + "=\r\n" + piece + "=\r\nBCDE\r\n");
}

// Full lengths have a piece each, and the rest has one of its own though it may be empty.
TEST(MailFile, FoldsALineOfAnyLengthByFullLengthsAndTheRest) {
  const std::vector<std::vector<std::size_t>> pieces = {{0},
                                                        {1},
                                                        {72},
                                                        {73},
                                                        {73, 1},
                                                        {73, 72},
                                                        {73, 73, 0},
                                                        {73, 73, 1},
                                                        {73, 73, 72},
                                                        {73, 73, 73, 0},
                                                        {73, 73, 73, 1}};
  for (const auto& lengths : pieces) {
    std::string line, folded;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
      const std::string piece(lengths[i], static_cast<char>('A' + i));
      line += piece;
      folded += piece + (i + 1 < lengths.size() ? "=\r\n" : "\r\n");
    }
    EXPECT_EQ(Folded(line + "\r\n"), folded) << line.size();
    EXPECT_EQ(Folded(line + "\r\nB\r\n"), folded + "B\r\n") << line.size();
  }
}

TEST(MailFile, KeepsTheBytesOfALineAsTheyAre) {
  for (int start = 0; start < 256; start += 64) {
    std::string line;
    for (int code = start; code < start + 64; ++code) line += static_cast<char>(code);
    EXPECT_EQ(Folded(line + "\r\n"), line + "\r\n") << start;
  }
}

TEST(MailFile, HoldsARecordThatTwoCavesShareTwice) {
  const std::string mail = MailOf({"Kam?", "K:am"}, {{"Sada - Kam.zkr", "X\r\n"}});
  const std::size_t first = mail.find("------=NP\r\n");
  ASSERT_NE(first, std::string::npos);
  EXPECT_NE(mail.find("------=NP\r\n", first + 1), std::string::npos);
}

TEST(MailFile, HasNoBoundaryBehindItsLastPart) {
  const std::string mail = MailOf({"a"}, {{"Sada - a.zkr", "X\r\n"}});
  EXPECT_EQ(mail.find("------=NP"), mail.rfind("------=NP"));
  EXPECT_TRUE(mail.ends_with("\r\n\r\nX\r\n"));
}

TEST(MailFile, EndsALastLineThatHasNoEnd) {
  EXPECT_EQ(Folded("AAA\r\nBB"), "AAA\r\nBB\r\n");
}

TEST(MailFile, KeepsEmptyLines) {
  EXPECT_EQ(Folded("A\r\n\r\nB\r\n"), "A\r\n\r\nB\r\n");
}

TEST(MailFile, OfAnEmptyRecordHasAPartWithoutALine) {
  EXPECT_EQ(Folded(""), "");
}

class MailInFolder : public testing::Test {
 protected:
  test::TempFolder temp_{"mail"};
  const std::string root_ = temp_.Path();
};

TEST_F(MailInFolder, IsWrittenIntoThePlayersFolderInPlaceOfTheOldOne) {
  ASSERT_TRUE(WriteWhole(root_ + "/temp.eml", "old"));
  ASSERT_TRUE(WriteWhole(root_ + "/sada - A.ZKR", "AAA\r\n"));
  const auto path = WriteMail(CollectionOf({"a"}), root_);
  ASSERT_TRUE(path);
  EXPECT_EQ(*path, root_ + "/temp.eml");
  const std::string mail = *ReadWhole(*path);
  EXPECT_EQ(mail.find(kHead), 0U);
  EXPECT_TRUE(mail.ends_with("\r\n\r\nAAA\r\n")) << mail;
}

TEST_F(MailInFolder, HasTheWholeNameOfARecordWhoseFileHasAShorterOne) {
  const std::string cave(190, '\xE1');
  const std::string name = RecordFileName("Sada", cave);
  ASSERT_NE(FileSystemName(name), ToUtf8(name));
  ASSERT_TRUE(WriteWhole(root_ + "/" + FileSystemName(name), "AAA\r\n"));
  const auto path = WriteMail(CollectionOf({cave}), root_);
  ASSERT_TRUE(path);
  EXPECT_NE(ReadWhole(*path)->find("filename=\"" + URLEncode(name) + "\"\r\n\r\nAAA\r\n"), std::string::npos);
}

TEST_F(MailInFolder, MakesThePlayersFolderAnew) {
  const auto path = WriteMail(CollectionOf({"a"}), root_ + "/Ada");
  ASSERT_TRUE(path);
  EXPECT_EQ(*ReadWhole(*path), kHead);
}

TEST_F(MailInFolder, LeavesTheOldOneInAFolderThatMayNotBeWritten) {
  ASSERT_TRUE(WriteWhole(root_ + "/temp.eml", "old"));
  fs::permissions(root_, fs::perms(0555));
  {
    const test::AsNobody nobody;
    EXPECT_FALSE(WriteMail(CollectionOf({"a"}), root_));
  }
  fs::permissions(root_, fs::perms(0755));
  EXPECT_EQ(*ReadWhole(root_ + "/temp.eml"), "old");
}

TEST_F(MailInFolder, NamesTheFileWhenItCannotBeWritten) {
  ASSERT_TRUE(WriteWhole(root_ + "/Ada", "no folder"));
  const auto path = WriteMail(CollectionOf({"a"}), root_ + "/Ada");
  ASSERT_FALSE(path);
  EXPECT_NE(path.Message().find("temp.eml"), std::string::npos);
}

}  // namespace
}  // namespace zorik
