#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/Collection.h"
#include "data/Readable.h"
#include "data/ReadableCave.h"
#include "data/Result.h"
#include "data/Samples.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::CollectionFile;
using samples::Letter;
using samples::Measured;
using samples::Properties;
using samples::Scrambled;
using Lines = std::vector<std::string>;

// The plain lines after unpacking and packing.
Lines Repacked(const std::string& bytes) {
  Chance chance(4);
  const auto packed = PackCollection(UnpackCollection(bytes), chance);
  EXPECT_TRUE(packed) << packed.Message();
  return packed ? PlainLines(*packed) : Lines{"not packed"};
}

void ExpectSameAgain(const std::string& bytes) {
  EXPECT_EQ(Repacked(bytes), PlainLines(bytes));
}

std::string CollectionText(const std::string& bytes) {
  return UnpackCollection(bytes).at("collection.txt");
}

// Packs, of which the lines are wanted, not what they are scrambled to.
Lines Packed(const TextFiles& files) {
  Chance chance(4);
  const auto packed = PackCollection(files, chance);
  EXPECT_TRUE(packed) << packed.Message();
  return packed ? PlainLines(*packed) : Lines{"not packed"};
}

TEST(Unpack, WritesACollectionByItsFields) {
  const std::string bytes =
      Scrambled({"ESadaAD", "FAutorPrvn\xED\r\n\r\nt\xF8\x65t\xED", "a@b.cz0", CaveText("Prvn\xED") + "---01",
                 CaveText("Druh\xE1") + "---02", "Sl\xE1va, $P bod\xF9!"});
  EXPECT_EQ(CollectionText(bytes),
            "name: Sada\n"
            "open: 1 4\n"
            "author: Autor\n"
            "description:\n"
            "| První\n"
            "|\n"
            "| třetí\n"
            "mail: a@b.cz\n"
            "flag: 0\n"
            "cave: cave-01.txt\n"
            "cave: cave-02.txt\n"
            "congratulation: Sláva, $P bodů!\n");
  ExpectSameAgain(bytes);
}

TEST(Unpack, WritesACaveByItsFields) {
  const std::string cave =
      Letter(4) + Measured("Prvn\xED") + Measured("Kopej!") + Properties() + "W1;DTW" + "*A-E-N*B-A/Z---01";
  EXPECT_EQ(UnpackCollection(CollectionFile({cave})).at("cave-01.txt"),
            "name: První\n"
            "description: Kopej!\n"
            "time: 255\n"
            "gems: 17\n"
            "points-before: 10\n"
            "points-after: 15\n"
            "magic-wall-time: 20\n"
            "amoeba-time: 30\n"
            "colouring: 4\n"
            "slime: 4\n"
            "cells:\n"
            "| W1;\n"
            "| DTW\n"
            "cat:\n"
            "| *A -E -N\n"
            "| *B -A /Z\n");
  ExpectSameAgain(CollectionFile({cave}));
}

TEST(Unpack, WritesAFileForEachCave) {
  const TextFiles files =
      UnpackCollection(CollectionFile({CaveText("a") + "---01", CaveText("b") + "---02", "K"}));
  EXPECT_EQ(files.size(), 3U);
  EXPECT_TRUE(files.contains("cave-01.txt"));
  EXPECT_TRUE(files.contains("cave-02.txt"));
}

TEST(Unpack, NamesTheFilesOfCavesWithTwoFigures) {
  Lines caves;
  for (int number = 1; number <= 10; ++number)
    caves.push_back(CaveText("A") + (number < 10 ? "---0" : "---") + std::to_string(number));
  const TextFiles files = UnpackCollection(CollectionFile(caves));
  EXPECT_TRUE(files.contains("cave-09.txt"));
  EXPECT_TRUE(files.contains("cave-10.txt"));
  EXPECT_EQ(files.size(), 11U);
}

TEST(Unpack, KeepsAMarkerThatIsNotTheCavesNumber) {
  for (const std::string marker : {"07", "00", "x\r", "--", "  ", "\xFF\x80"}) {
    const std::string bytes = CollectionFile({CaveText("a") + "---" + marker, "K"});
    EXPECT_NE(UnpackCollection(bytes).at("cave-01.txt").find("marker: "), std::string::npos) << marker;
    ExpectSameAgain(bytes);
  }
}

TEST(Unpack, CountsCavesThatDoNotParseInTheNumbersOfTheOthers) {
  const std::string bytes = CollectionFile({"E---01", CaveText("b") + "---02", "K"});
  const TextFiles files = UnpackCollection(bytes);
  EXPECT_EQ(files.at("cave-02.txt").find("marker"), std::string::npos);
  EXPECT_NE(files.at("collection.txt").find("line: E---01\ncave: cave-02.txt\n"), std::string::npos);
  ExpectSameAgain(bytes);
}

TEST(Unpack, TakesALastCaveThatDoesNotParseForNoCongratulation) {
  const std::string bytes = CollectionFile({"E---01"});
  EXPECT_TRUE(CollectionText(bytes).ends_with("line: E---01\n"));
  ExpectSameAgain(bytes);
}

TEST(WriteReadableCave, TakesNoLineWithoutMarker) {
  EXPECT_EQ(WriteReadableCave("", 1), std::nullopt);
  EXPECT_EQ(WriteReadableCave(CaveText("a"), 1), std::nullopt);
  EXPECT_NE(WriteReadableCave(CaveText("a") + "---01", 1), std::nullopt);
}

TEST(Unpack, KeepsLinesBetweenTheCaves) {
  const std::string bytes = CollectionFile(
      {"before", CaveText("a") + "---01", "between\r\nthem", "", CaveText("b") + "---02", "x", "K"});
  EXPECT_NE(CollectionText(bytes).find("line: before\n"
                                       "cave: cave-01.txt\n"
                                       "line:\n| between\n| them\n"
                                       "line:\n"
                                       "cave: cave-02.txt\n"
                                       "line: x\n"
                                       "congratulation: K\n"),
            std::string::npos);
  ExpectSameAgain(bytes);
}

TEST(Unpack, TellsAMissingCongratulationFromAnEmptyOne) {
  const std::string missing = CollectionFile({CaveText("a") + "---01"});
  const std::string empty = CollectionFile({CaveText("a") + "---01", ""});
  EXPECT_EQ(CollectionText(missing).find("congratulation"), std::string::npos);
  EXPECT_NE(CollectionText(empty).find("congratulation:\n"), std::string::npos);
  ExpectSameAgain(missing);
  ExpectSameAgain(empty);
}

TEST(Unpack, KeepsHeadsThatHaveNotTheirForm) {
  for (const std::string first : {"", "@x", "Z", "ESad", "ESada@", "A\x40", "EE"}) {
    const std::string bytes = Scrambled({first, first, first, CaveText("a") + "---01"});
    ExpectSameAgain(bytes);
  }
  EXPECT_NE(CollectionText(Scrambled({"ESad", "A", "0"})).find("line-1: ESad\n"), std::string::npos);
  EXPECT_NE(CollectionText(Scrambled({"A", "", "0"})).find("line-2:\n"), std::string::npos);
  EXPECT_NE(CollectionText(Scrambled({"A", "A", ""})).find("line-3:\n"), std::string::npos);
}

TEST(Unpack, KeepsFilesThatEndEarly) {
  ExpectSameAgain("");
  ExpectSameAgain(Scrambled({"ESadaA"}));
  ExpectSameAgain(Scrambled({"", ""}));
  ExpectSameAgain(Scrambled({"ESadaA", "FAutor", "0"}));
}

TEST(Unpack, KeepsTheOrderOfOpenCavesAndNumbersBeyondTheList) {
  const std::string bytes = CollectionFile({}, "CA\xFF\x41");
  EXPECT_NE(CollectionText(bytes).find("open: 3 1 191 1\n"), std::string::npos);
  ExpectSameAgain(bytes);
}

TEST(Unpack, KeepsLinesThatEndInALineFeedAlone) {
  std::string bytes = CollectionFile({CaveText("a") + "---01", "K"});
  std::erase(bytes, '\r');
  ExpectSameAgain(bytes);
}

TEST(Unpack, KeepsAnUnterminatedLastLine) {
  const std::string bytes = CollectionFile({CaveText("a") + "---01", "K"});
  ExpectSameAgain(bytes.substr(0, bytes.size() - 2));
}

TEST(Unpack, KeepsTextsWithAnyBytes) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  const std::string name = all.substr(0, 190);
  ExpectSameAgain(Scrambled({Measured(name), Measured(name) + all, all + all, all + all, all}));
}

TEST(Unpack, WritesWhatCannotBeSeenByItsCode) {
  const std::string bytes = CollectionFile({"a\tb\x7F\x81\xA0\xAD\\c\rd\n"});
  EXPECT_NE(CollectionText(bytes).find("congratulation: a\\x09b\\x7F\\x81\\xA0\\xAD\\\\c\\x0Dd\\x0A\n"),
            std::string::npos);
  ExpectSameAgain(bytes);
}

TEST(Unpack, WritesOuterBlanksByTheirCode) {
  const std::string bytes = CollectionFile({"  a b  "});
  EXPECT_NE(CollectionText(bytes).find("congratulation: \\x20 a b \\x20\n"), std::string::npos);
  ExpectSameAgain(bytes);
  for (const std::string text :
       {" ", "  ", "\r\n", " \r\n ", "\r\n\r\n", "| x", "#", ":", "a\r\n#b\r\nname: c"}) {
    ExpectSameAgain(CollectionFile({text}));
  }
}

TEST(Unpack, KeepsNamesWithLineBreaks) {
  const std::string bytes = Scrambled(
      {Measured("dva\r\n\xF8\xE1\x64ky") + "A", Measured("a\nb"), "0", CaveText("x\r\ny") + "---01", "K"});
  EXPECT_TRUE(CollectionText(bytes).starts_with("name:\n| dva\n| řádky\nopen: 1\nauthor: a\\x0Ab\n"));
  EXPECT_TRUE(UnpackCollection(bytes).at("cave-01.txt").starts_with("name:\n| x\n| y\n"));
  ExpectSameAgain(bytes);
}

TEST(Unpack, KeepsCellsOfAnyByte) {
  for (int code = 0; code < 256; ++code) {
    ExpectSameAgain(CollectionFile({CaveText("a", std::string(6, static_cast<char>(code))) + "---01"}));
  }
  ExpectSameAgain(CollectionFile({CaveText("a", "\r\n\r\n\r\n") + "---01"}));
}

TEST(Unpack, WritesAProgramThatIsNotMadeOfCommandsAsText) {
  for (const std::string script : {"*A-", "a b c ", "\xE1\xE9", "*A\r\n", " "}) {
    const std::string bytes = CollectionFile({CaveText("a", "W1;DTW", script) + "---01"});
    EXPECT_NE(UnpackCollection(bytes)["cave-01.txt"].find("cat-text:"), std::string::npos) << script;
    ExpectSameAgain(bytes);
  }
  EXPECT_NE(UnpackCollection(CollectionFile({CaveText("a", "W1;DTW", "*A-") + "---01"}))
                .at("cave-01.txt")
                .find("cat-text: *A-\n"),
            std::string::npos);
}

TEST(Unpack, KeepsCavesWhoseTextHasNoRegularForm) {
  const std::string start = Letter(4) + Measured("a") + Measured("");
  std::string oddUnits = start + Properties() + "W1;DTW";
  oddUnits[3 + 1 + 3] = Letter(101);
  for (const std::string& text : {oddUnits,                      // the same time and gems have another form
                                  start + Properties() + "W1;",  // the cells end in the marker
                                  start + Properties(3, 0),      // a width without rows
                                  start + Properties(0, 2),      // rows without width
                                  start + Properties(0, 0) + "*A/Z",   // no cells at all
                                  start + Properties(103, 1) + "WWW",  // too wide
                                  std::string("E"), std::string()}) {
    ExpectSameAgain(CollectionFile({text + "---01", "K"}));
  }
}

TEST(Unpack, KeepsMoreCavesThanACollectionMayHave) {
  Lines caves;
  for (int i = 1; i <= 120; ++i) caves.push_back(CaveText("a") + "---" + MarkerDigits(i % 100));
  const std::string bytes = CollectionFile(caves);
  EXPECT_TRUE(UnpackCollection(bytes).contains("cave-120.txt"));
  ExpectSameAgain(bytes);
}

TEST(Unpack, KeepsAnyBytes) {
  Chance chance(18);
  for (int round = 0; round < 3000; ++round) ExpectSameAgain(samples::OddBytes(chance, 300));
}

// A line of a kind that a collection has, with some bytes of it changed.
std::string RandomLine(Chance& chance) {
  const std::string script = chance.Below(2) == 0 ? "*A-E/Z" : samples::OddBytes(chance, 12);
  const std::string kinds[] = {
      CaveText(samples::OddBytes(chance, 8), "W1;DTW", script) + "---01",
      CaveText("b", samples::OddBytes(chance, 6)) + "---" + samples::OddBytes(chance, 2),
      Measured(samples::OddBytes(chance, 10)) + samples::OddBytes(chance, 10), samples::OddBytes(chance, 30)};
  std::string line = kinds[chance.Below(4)];
  if (!line.empty() && chance.Below(3) == 0) {
    line[chance.Below(static_cast<std::uint32_t>(line.size()))] = static_cast<char>(chance.Below(256));
  }
  return line;
}

TEST(Unpack, KeepsRandomCollections) {
  Chance chance(19);
  for (int round = 0; round < 3000; ++round) {
    Lines lines;
    const std::uint32_t count = chance.Below(9);
    for (std::uint32_t i = 0; i < count; ++i) lines.push_back(RandomLine(chance));
    ExpectSameAgain(Scrambled(lines));
  }
}

// A collection as a person would write it.
TextFiles WrittenByHand() {
  return {{"collection.txt",
           "# my caves\n"
           "name: Sada\n"
           "open: 1\n"
           "\n"
           "author: Já\n"
           "mail: ja@zde.cz\n"
           "cave: first.txt\n"
           "cave: second.txt\n"
           "congratulation: Hotovo\n"},
          {"first.txt",
           "name: První\ntime: 60\ngems: 1\npoints-before: 10\npoints-after: 15\nmagic-wall-time: 20\n"
           "amoeba-time: 30\ncolouring: 4\nslime: 4\ncells:\n| W1;\n| DTW\ncat:\n| *A -E\n| /Z\n"},
          {"second.txt",
           "name: Druhá\ndescription: Popis\ntime: 60\ngems: 1\npoints-before: 10\npoints-after: 15\n"
           "magic-wall-time: 20\namoeba-time: 30\ncolouring: 4\nslime: 4\ncells:\n| T1\n"},
          {"readme.txt", "not an entry"}};
}

// The ten properties of a cave there: time 60, gems 1.
std::string PropertiesByHand(int width, int height) {
  std::string text;
  for (const int number : {width, height, 6, 1, 0, 10, 15, 20, 30, 4}) text += Letter(number);
  return text;
}

TEST(Pack, TakesWhatAPersonWrites) {
  const Lines wanted = {"ESadaA",
                        "CJ\xE1",
                        "ja@zde.cz0",
                        "E" + Measured("Prvn\xED") + "A" + PropertiesByHand(3, 2) + "W1;DTW*A-E/Z---01",
                        "E" + Measured("Druh\xE1") + Measured("Popis") + PropertiesByHand(2, 1) + "T1---02",
                        "Hotovo"};
  EXPECT_EQ(Packed(WrittenByHand()), wanted);
}

TEST(Pack, TakesTheLineEndsOfOtherSystemsAndTheMarkOfUtf8) {
  TextFiles files = WrittenByHand();
  const Lines wanted = Packed(files);
  for (auto& [name, content] : files) {
    std::string other = "\xEF\xBB\xBF";
    for (const char character : content)
      other += character == '\n' ? std::string("\r\n") : std::string(1, character);
    content = other;
  }
  EXPECT_EQ(Packed(files), wanted);
}

TEST(Pack, TakesALastLineWithoutItsEnd) {
  TextFiles files = WrittenByHand();
  const Lines wanted = Packed(files);
  files["collection.txt"].pop_back();
  files["second.txt"].pop_back();
  EXPECT_EQ(Packed(files), wanted);
}

TEST(Pack, TakesTheSameFileTwice) {
  TextFiles files = WrittenByHand();
  files["collection.txt"] += "cave: first.txt\n";
  EXPECT_TRUE(Packed(files)[6].ends_with("---03"));
}

TEST(Pack, NumbersCavesByTheirOrder) {
  TextFiles files = WrittenByHand();
  files["collection.txt"] = "name: \nauthor:\nmail: x\ncave: second.txt\ncave: first.txt\n";
  const Lines lines = Packed(files);
  EXPECT_EQ(lines[0], "A");
  EXPECT_TRUE(lines[3].ends_with("T1---01"));
  EXPECT_TRUE(lines[4].ends_with("/Z---02"));
}

}  // namespace
}  // namespace zorik
