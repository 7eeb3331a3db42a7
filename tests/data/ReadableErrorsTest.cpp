#include <gtest/gtest.h>

#include <string>

#include "data/Readable.h"
#include "data/Result.h"

namespace zorik {
namespace {

const std::string kCollection =
    "name: Sada\n"
    "open: 1\n"
    "author: Autor\n"
    "description: Popis\n"
    "mail: a@b.cz\n"
    "flag: 0\n"
    "cave: a.txt\n";

const std::string kCave =
    "name: A\n"
    "description: B\n"
    "time: 60\n"
    "gems: 1\n"
    "points-before: 10\n"
    "points-after: 15\n"
    "magic-wall-time: 20\n"
    "amoeba-time: 30\n"
    "colouring: 4\n"
    "slime: 4\n"
    "cells:\n"
    "| W1\n"
    "| TW\n";

// What packing these files says.
std::string Complaint(const TextFiles& files) {
  Chance chance(5);
  const auto packed = PackCollection(files, chance);
  return packed ? "nothing" : packed.Message();
}

// The same with one piece of a file replaced.
std::string Replaced(std::string text, const std::string& old, const std::string& other) {
  const std::size_t place = text.find(old);
  EXPECT_NE(place, std::string::npos) << old;
  return text.replace(place, old.size(), other);
}

std::string ComplaintWithCollection(const std::string& old, const std::string& other) {
  return Complaint({{"collection.txt", Replaced(kCollection, old, other)}, {"a.txt", kCave}});
}

std::string ComplaintWithCave(const std::string& old, const std::string& other) {
  return Complaint({{"collection.txt", kCollection}, {"a.txt", Replaced(kCave, old, other)}});
}

TEST(PackFailure, IsNoneForTheFilesThatTheOtherTestsDamage) {
  EXPECT_EQ(Complaint({{"collection.txt", kCollection}, {"a.txt", kCave}}), "nothing");
}

TEST(PackFailure, NamesAMissingCollectionFile) {
  EXPECT_EQ(Complaint({{"a.txt", kCave}}), "there is no file \"collection.txt\"");
}

TEST(PackFailure, NamesAMissingCaveFileAndTheLine) {
  EXPECT_EQ(ComplaintWithCollection("a.txt", "jeskyně.txt"),
            "collection.txt, line 7: there is no file \"jeskyně.txt\"");
  EXPECT_EQ(ComplaintWithCollection("a.txt", "../a.txt"),
            "collection.txt, line 7: there is no file \"../a.txt\"");
}

TEST(PackFailure, NamesAnUnknownEntry) {
  EXPECT_EQ(ComplaintWithCollection("flag:", "flags:"), "collection.txt, line 6: unknown entry \"flags\"");
  EXPECT_EQ(ComplaintWithCave("slime:", "Slime:"), "a.txt, line 10: unknown entry \"Slime\"");
}

TEST(PackFailure, NamesASecondEntry) {
  EXPECT_EQ(ComplaintWithCollection("flag:", "mail:"), "collection.txt, line 6: a second entry \"mail\"");
  EXPECT_EQ(ComplaintWithCave("gems:", "time:"), "a.txt, line 4: a second entry \"time\"");
}

TEST(PackFailure, NamesAMissingEntry) {
  EXPECT_EQ(ComplaintWithCollection("author: Autor\ndescription: Popis\n", ""),
            "collection.txt: the entry \"author\" is missing");
  EXPECT_EQ(ComplaintWithCollection("author: Autor\n", ""),
            "collection.txt: the entry \"author\" is missing");
  EXPECT_EQ(ComplaintWithCollection("name: Sada\n", ""), "collection.txt: the entry \"name\" is missing");
  EXPECT_EQ(ComplaintWithCave("name: A\n", ""), "a.txt: the entry \"name\" is missing");
  EXPECT_EQ(ComplaintWithCave("slime: 4\n", ""), "a.txt: the entry \"slime\" is missing");
  EXPECT_EQ(ComplaintWithCave("cells:\n| W1\n| TW\n", ""), "a.txt: the entry \"cells\" is missing");
}

TEST(PackFailure, AsksForTheFirstLinesOfACollectionThatHasLaterOnes) {
  EXPECT_EQ(Complaint({{"collection.txt", "mail: x\n"}}), "collection.txt: the entry \"name\" is missing");
  EXPECT_EQ(Complaint({{"collection.txt", "line: x\n"}}), "collection.txt: the entry \"name\" is missing");
  EXPECT_EQ(Complaint({{"collection.txt", "name: x\n"}}), "nothing");
}

TEST(PackFailure, NamesALineThatIsToldTwice) {
  EXPECT_EQ(ComplaintWithCollection("flag: 0", "line-3: x"),
            "collection.txt, line 6: \"line-3\" and \"mail\" tell the same line");
}

TEST(PackFailure, NamesALineThatIsNoEntry) {
  EXPECT_EQ(ComplaintWithCollection("flag: 0", "flag"),
            "collection.txt, line 6: neither an entry (key: text) nor a line of text (| text)");
}

TEST(PackFailure, NamesALineOfTextThatBelongsNowhere) {
  EXPECT_EQ(Complaint({{"collection.txt", "# a comment\n| text\n"}}),
            "collection.txt, line 2: a line of text that stands below no entry");
  EXPECT_EQ(ComplaintWithCollection("flag: 0", "| text"),
            "collection.txt, line 6: a line of text below an entry that has its text behind the key");
}

TEST(PackFailure, NamesACharacterThatTheCodePageLacks) {
  EXPECT_EQ(ComplaintWithCollection("Autor", "Жук"),
            "collection.txt, line 3: a character that Windows-1250 lacks, or no UTF-8");
  EXPECT_EQ(ComplaintWithCave("| TW", "| T\xFF"),
            "a.txt, line 13: a character that Windows-1250 lacks, or no UTF-8");
}

TEST(PackFailure, NamesAnEscapeThatMeansNothing) {
  for (const std::string text : {"\\", "\\n", "\\x", "\\x4", "\\x4G", "\\xG4", "a\\\\\\"}) {
    EXPECT_EQ(
        ComplaintWithCollection("Autor", text),
        "collection.txt, line 3: a backslash that begins neither \\\\ nor \\x and two hexadecimal digits")
        << text;
  }
  EXPECT_EQ(
      ComplaintWithCollection("Autor", "\\x4a\\X"),
      "collection.txt, line 3: a backslash that begins neither \\\\ nor \\x and two hexadecimal digits");
  EXPECT_EQ(ComplaintWithCollection("Autor", "\\x4a\\x4B\\\\"), "nothing");
}

TEST(PackFailure, NamesATextAbove190Characters) {
  const std::string text(191, 'x');
  EXPECT_EQ(ComplaintWithCollection("Sada", text),
            "collection.txt, line 1: the name has 191 characters, it may have 190");
  EXPECT_EQ(ComplaintWithCollection("Autor", text),
            "collection.txt, line 3: the author has 191 characters, it may have 190");
  EXPECT_EQ(ComplaintWithCave("name: A", "name: " + text),
            "a.txt, line 1: the name has 191 characters, it may have 190");
  EXPECT_EQ(ComplaintWithCave("description: B", "description: " + text),
            "a.txt, line 2: the description has 191 characters, it may have 190");
  EXPECT_EQ(ComplaintWithCollection("Popis", text), "nothing");
}

TEST(PackFailure, NamesANumberOfNoCave) {
  for (const std::string number : {"x", "0", "192", "-1", "1x", "99999999999"}) {
    EXPECT_EQ(ComplaintWithCollection("open: 1", "open: 1 " + number),
              "collection.txt, line 2: \"" + number + "\" is no number of a cave");
  }
  EXPECT_EQ(ComplaintWithCollection("open: 1", "open:  1   191"), "nothing");
}

TEST(PackFailure, NamesAFlagThatIsNotOneCharacter) {
  EXPECT_EQ(ComplaintWithCollection("flag: 0", "flag: 00"),
            "collection.txt, line 6: the flag is not one character");
  EXPECT_EQ(ComplaintWithCollection("flag: 0", "flag:"),
            "collection.txt, line 6: the flag is not one character");
}

TEST(PackFailure, NamesANumberOutOfItsRange) {
  for (const std::string number : {"", "x", "-1", "1910", "1 2", "6.0", "99999999999"}) {
    EXPECT_EQ(ComplaintWithCave("time: 60", "time: " + number),
              "a.txt, line 3: the entry is no number from 0 to 1909")
        << number;
  }
  EXPECT_EQ(ComplaintWithCave("gems: 1", "gems: 1910"),
            "a.txt, line 4: the entry is no number from 0 to 1909");
  EXPECT_EQ(ComplaintWithCave("slime: 4", "slime: 191"),
            "a.txt, line 10: the entry is no number from 0 to 190");
  EXPECT_EQ(ComplaintWithCave("time: 60", "time: 1909"), "nothing");
}

TEST(PackFailure, NamesARowOfAnotherWidth) {
  EXPECT_EQ(ComplaintWithCave("| TW", "| TWW"), "a.txt, line 13: a row of 3 cells, the first row has 2");
  EXPECT_EQ(ComplaintWithCave("| W1", "|"), "a.txt, line 13: a row of 2 cells, the first row has 0");
}

TEST(PackFailure, NamesACaveThatIsTooLarge) {
  EXPECT_EQ(ComplaintWithCave("| W1", "| " + std::string(103, 'W')),
            "a.txt, line 12: a row of 103 cells, there may be 102");
  std::string rows;
  for (int i = 0; i < 61; ++i) rows += "| W1\n";
  EXPECT_EQ(ComplaintWithCave("| W1\n", rows), "nothing");
  EXPECT_EQ(ComplaintWithCave("| W1\n", rows + "| W1\n"), "a.txt, line 74: a row too many, there may be 62");
}

TEST(PackFailure, NamesACommandThatHasNotTwoCharacters) {
  EXPECT_EQ(ComplaintWithCave("cells:", "cat:\n| *A -E\n| -Žx /Z\ncells:"),
            "a.txt, line 13: the command \"-Žx\" has not two characters");
}

TEST(PackFailure, NamesASecondProgram) {
  EXPECT_EQ(ComplaintWithCave("cells:", "cat: *A\ncat-text: *A\ncells:"),
            "a.txt, line 12: the cat has two programs");
}

TEST(PackFailure, NamesAMarkerThatHasNotTwoCharacters) {
  EXPECT_EQ(ComplaintWithCave("cells:", "marker: 1\ncells:"),
            "a.txt, line 11: the marker has not two characters");
  EXPECT_EQ(ComplaintWithCave("cells:", "marker: ab\ncells:"), "nothing");
}

TEST(PackFailure, NamesTheCaveThatHasNoNumberLeft) {
  std::string caves;
  for (int i = 0; i < 98; ++i) caves += "cave: a.txt\n";
  EXPECT_EQ(ComplaintWithCollection("cave: a.txt\n", "cave: a.txt\n" + caves), "nothing");
  EXPECT_EQ(ComplaintWithCollection("cave: a.txt\n", "cave: a.txt\ncave: a.txt\n" + caves),
            "a.txt: the collection has more than 99 caves");
}

TEST(PackFailure, RefusesACongratulationThatWouldBeReadAsACave) {
  for (const char* like : {"Hura---04", "Hura---ab"}) {
    EXPECT_EQ(
        ComplaintWithCollection("cave: a.txt\n", "cave: a.txt\ncongratulation: " + std::string(like) + "\n"),
        "collection.txt, line 8: the congratulation ends like a cave, the game would read it as one");
    EXPECT_EQ(ComplaintWithCollection("cave: a.txt\n", "cave: a.txt\nline: " + std::string(like) + "\n"),
              "nothing");
  }
}

}  // namespace
}  // namespace zorik
