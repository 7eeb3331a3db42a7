#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/Collection.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Samples.h"
#include "data/Scramble.h"
#include "support/Scene.h"

namespace zorik {
namespace {

std::vector<std::string> AllLines(const std::string& bytes, LineEnds ends = LineEnds::CrLf) {
  std::vector<std::string> all;
  for (RecordLines lines(bytes, ends); !lines.AtEnd();) all.emplace_back(lines.Next());
  return all;
}

using Lines = std::vector<std::string>;

TEST(RecordLines, EndAtCarriageReturnAndLineFeed) {
  EXPECT_EQ(AllLines("ab\r\ncd\r\n"), (Lines{"ab", "cd"}));
}

TEST(RecordLines, OfARecordDoNotEndAtOneOfTheTwoAlone) {
  EXPECT_EQ(AllLines("a\nb\rc\n\rd\r\ne"), (Lines{"a\nb\rc\n\rd", "e"}));
}

TEST(RecordLines, OfACollectionEndAtALineFeedAloneToo) {
  EXPECT_EQ(AllLines("a\nb\r\nc\rd\n", LineEnds::CrLfOrLf), (Lines{"a", "b", "c\rd"}));
}

TEST(RecordLines, CountAnUnterminatedLastLine) {
  EXPECT_EQ(AllLines("ab\r\ncd"), (Lines{"ab", "cd"}));
  EXPECT_EQ(AllLines("ab\ncd", LineEnds::CrLfOrLf), (Lines{"ab", "cd"}));
}

TEST(RecordLines, KeepEmptyLines) {
  EXPECT_EQ(AllLines("\r\n\r\na\r\n\r\n"), (Lines{"", "", "a", ""}));
  EXPECT_EQ(AllLines("\n\r\na\n\n", LineEnds::CrLfOrLf), (Lines{"", "", "a", ""}));
}

TEST(RecordLines, AreAtTheirEndWithoutBytes) {
  EXPECT_TRUE(RecordLines().AtEnd());
  EXPECT_TRUE(AllLines("").empty());
}

TEST(RecordLines, AreEmptyBehindTheEnd) {
  RecordLines lines("a");
  lines.Next();
  EXPECT_TRUE(lines.AtEnd());
  EXPECT_EQ(lines.Next(), "");
}

TEST(RecordLines, KeepACarriageReturnThatNoLineFeedFollows) {
  EXPECT_EQ(AllLines("a\r"), Lines{"a\r"});
  EXPECT_EQ(AllLines("a\r\r\n"), Lines{"a\r"});
  EXPECT_EQ(AllLines("a\r\r\n", LineEnds::CrLfOrLf), Lines{"a\r"});
}

TEST(RecordLines, KeepBytesAsTheyAre) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) {
    if (code != '\n') bytes += static_cast<char>(code);
  }
  EXPECT_EQ(AllLines(bytes + "\r\n"), Lines{bytes});
}

TEST(RecordLines, OfACopyGoOnByThemselvesOverTheSameBytes) {
  RecordLines lines("first\r\nsecond\r\nthird");
  const std::string_view first = lines.Next();
  RecordLines copy = lines;
  EXPECT_EQ(lines.Next(), "second");
  EXPECT_EQ(lines.Next(), "third");
  const std::string_view second = copy.Next();
  EXPECT_EQ(second, "second");
  EXPECT_EQ(second.data(), first.data() + 7);
}

std::string HeadOf(const std::string& first, const std::string& second, const std::string& third) {
  return samples::Scrambled({first, second, third}) + "AAAA\r\nBBBB\r\n";
}

TEST(RecordHead, HoldsCollectionScorePlayerAndCave) {
  RecordLines lines(HeadOf("Sada\r00123", "Morvek", "cave---01"));
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.CollectionName, "Sada");
  EXPECT_EQ(head.Score, 123);
  EXPECT_EQ(head.Player, "Morvek");
  EXPECT_EQ(head.CaveText, "cave---01");
}

TEST(RecordHead, EndsBeforeTheFirstTick) {
  RecordLines lines(HeadOf("Sada\r00123", "Morvek", "cave"));
  ReadRecordHead(lines);
  EXPECT_EQ(lines.Next(), "AAAA");
}

TEST(RecordHead, StoresAScoreOf123WithFiveDigits) {
  Chance chance(1);
  RecordLines lines(BuildRecordHead("Sada", 123, "Morvek", chance));
  EXPECT_EQ(UnscrambleText(lines.Next()), "Sada\r00123");
  EXPECT_EQ(UnscrambleText(lines.Next()), "Morvek");
  EXPECT_TRUE(lines.AtEnd());
}

TEST(RecordHead, HoldsTheScoreToFiveDigits) {
  Chance chance(1);
  const auto firstLine = [&](int score) {
    RecordLines lines(BuildRecordHead("", score, "", chance));
    return UnscrambleText(lines.Next());
  };
  EXPECT_EQ(firstLine(0), "\r00000");
  EXPECT_EQ(firstLine(99999), "\r99999");
  EXPECT_EQ(firstLine(100000), "\r99999");
  EXPECT_EQ(firstLine(-1), "\r00000");
}

TEST(RecordHead, HasAnEmptySecondLineInATestRun) {
  Chance chance(1);
  RecordLines lines(BuildRecordHead("Sada", 7, "", chance));
  lines.Next();
  EXPECT_FALSE(lines.AtEnd());
  EXPECT_EQ(lines.Next(), "");
  EXPECT_TRUE(lines.AtEnd());
}

TEST(RecordHead, WithoutACarriageReturnHasScoreZeroAndItsWholeLineAsName) {
  RecordLines lines(HeadOf("Sada 00123", "Morvek", "cave"));
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.Score, 0);
  EXPECT_EQ(head.CollectionName, "Sada 00123");
  EXPECT_EQ(head.Player, "Morvek");
  EXPECT_EQ(head.CaveText, "cave");
}

TEST(RecordHead, TakesOnlyTheCarriageReturnBeforeTheLastFiveCharacters) {
  RecordLines lines(HeadOf("Sada\r1234", "", ""));
  EXPECT_EQ(ReadRecordHead(lines).Score, 0);
  RecordLines twoLines(HeadOf("Sa\rda\r01234", "", ""));
  const RecordHead head = ReadRecordHead(twoLines);
  EXPECT_EQ(head.Score, 1234);
  EXPECT_EQ(head.CollectionName, "Sa\rda");
}

TEST(RecordHead, OfACollectionWithoutANameIsSixCharactersLong) {
  RecordLines lines(HeadOf("\r00042", "", ""));
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.Score, 42);
  EXPECT_EQ(head.CollectionName, "");
}

TEST(RecordHead, OfFiveCharactersAndFewerIsAllName) {
  for (const char* line : {"00042", "\r0042", "Sadka", "\r", ""}) {
    RecordLines lines(HeadOf(line, "", ""));
    const RecordHead head = ReadRecordHead(lines);
    EXPECT_EQ(head.Score, 0);
    EXPECT_EQ(head.CollectionName, line);
  }
}

TEST(RecordHead, CountsAScoreThatIsNoNumberAsZero) {
  RecordLines lines(HeadOf("Sada\r12a45", "", ""));
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.Score, 0);
  EXPECT_EQ(head.CollectionName, "Sada");
}

TEST(RecordHead, IsEmptyWhereLinesAreMissing) {
  RecordLines none;
  const RecordHead head = ReadRecordHead(none);
  EXPECT_EQ(head.CollectionName, "");
  EXPECT_EQ(head.Score, 0);
  EXPECT_EQ(head.Player, "");
  EXPECT_EQ(head.CaveText, "");
  RecordLines one(samples::Scrambled({"Sada\r00005"}));
  EXPECT_EQ(ReadRecordHead(one).Score, 5);
  EXPECT_TRUE(one.AtEnd());
}

TEST(RecordHead, OfAnyBytesIsRead) {
  Chance chance(13);
  for (int round = 0; round < 3000; ++round) {
    RecordLines lines(samples::OddBytes(chance, 120));
    const RecordHead head = ReadRecordHead(lines);
    EXPECT_GE(head.Score, 0);
    EXPECT_LE(head.Score, 99999);
  }
}

TEST(RecordHead, BuiltAndReadAgainIsTheSame) {
  Chance chance(14);
  for (int round = 0; round < 500; ++round) {
    const std::string name = samples::RandomBytes(chance, 50);
    const std::string player = samples::RandomBytes(chance, 50);
    const auto score = static_cast<int>(chance.Below(100000));
    RecordLines lines(BuildRecordHead(name, score, player, chance));
    const RecordHead head = ReadRecordHead(lines);
    EXPECT_EQ(head.CollectionName, name);
    EXPECT_EQ(head.Score, score);
    EXPECT_EQ(head.Player, player);
  }
}

TEST(HoldsRecord, TellsARecordFromACollectionAndFromAnythingElse) {
  Chance decoration;
  const std::string head = BuildRecordHead("Sada", 106, "hrac", decoration);
  const std::string cave = ScrambleText(test::CaveTextOf({"W1TW"}), decoration);
  EXPECT_TRUE(HoldsRecord(head + cave));
  EXPECT_TRUE(HoldsRecord(head + cave + "\r\nAAAB\r\n"));
  EditedCollection collection;
  collection.CaveList = {test::CaveTextOf({"W1TW"}), test::CaveTextOf({"W1TW"})};
  EXPECT_FALSE(HoldsRecord(*BuildCollection(collection, decoration)));
  EXPECT_FALSE(HoldsRecord(head)) << "without its cave";
  EXPECT_FALSE(HoldsRecord(head + ScrambleText("no cave", decoration)));
  EXPECT_FALSE(HoldsRecord(test::CaveTextOf({"W1TW"})));
  EXPECT_FALSE(HoldsRecord(""));
}

TEST(RecordFileName, JoinsCollectionAndCave) {
  EXPECT_EQ(RecordFileName("Sada", "Prvn\xED"), "Sada - Prvn\xED.zkr");
}

TEST(RecordFileName, LosesQuestionMarkColonAndSlashAndKeepsBlanksAndTheDash) {
  EXPECT_EQ(RecordFileName("Kdo: my?", "sem / tam"), "Kdo my - sem  tam.zkr");
}

TEST(RecordFileName, IsSharedByCavesThatDifferOnlyInDroppedCharacters) {
  EXPECT_EQ(RecordFileName("Sada", "Kam?"), RecordFileName("Sada", "Ka:m"));
}

TEST(RecordFileName, ChangesWithTheNameOfTheCollectionAndOfTheCave) {
  EXPECT_NE(RecordFileName("Sada", "Prvn\xED"), RecordFileName("Sada 2", "Prvn\xED"));
  EXPECT_NE(RecordFileName("Sada", "Prvn\xED"), RecordFileName("Sada", "Druh\xE1"));
}

TEST(RecordFileName, OfATestRunStartsWithTheEditor) {
  EXPECT_EQ(TestRecordFileName("Kam: dnes?"), "Editor - Kam dnes.zkr");
}

}  // namespace
}  // namespace zorik
