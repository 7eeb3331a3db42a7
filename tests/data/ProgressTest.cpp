#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "data/Files.h"
#include "data/Progress.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Samples.h"
#include "data/Scramble.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

using samples::CaveText;

constexpr const char* kPlayer = "Morvek";

// A collection "Sada" of caves with these names, of which the first alone is open from the start.
PlayedCollection CollectionOf(const std::vector<std::string>& names, std::string_view open = "A") {
  std::vector<std::string> body;
  for (std::size_t i = 0; i < names.size(); ++i) {
    body.push_back(CaveText(names[i]) + "---" + MarkerDigits(static_cast<int>(i + 1)));
  }
  body.emplace_back("Konec");
  return *ReadForPlay(samples::CollectionFile(body, open));
}

// The record files of a player's folder.
using Records = std::map<std::string, std::string>;

std::string RecordOf(const std::string& caveText, int score, std::string_view player = kPlayer) {
  Chance chance(3);
  return BuildRecordHead("Sada", score, player, chance) + ScrambleText(caveText, chance) + "\r\nAAA\r\n";
}

void Add(Records& records, const std::string& cave, int score, std::string_view player = kPlayer) {
  records[RecordFileName("Sada", cave)] = RecordOf(CaveText(cave) + "---01", score, player);
}

Progress Of(const PlayedCollection& collection, const Records& records, std::string_view player = kPlayer) {
  return ReadProgress(collection, player, [&](const std::string& name) -> std::optional<std::string> {
    const auto file = records.find(name);
    return file == records.end() ? std::nullopt : std::optional<std::string>(file->second);
  });
}

// The states of caves 1 to n as digits.
std::string States(const Progress& progress, std::size_t n) {
  std::string digits;
  for (std::size_t i = 1; i <= n; ++i)
    digits += static_cast<char>('0' + static_cast<int>(progress.CaveStates[i]));
  return digits;
}

TEST(Progress, OfOneCaveWithoutARecordHasThatCaveOpenWithScoreZeroAndOneRemaining) {
  const Progress progress = Of(CollectionOf({"jedna"}), {});
  EXPECT_EQ(progress.CaveStates[1], CaveState::Open);
  EXPECT_EQ(progress.Scores[1], 0);
  EXPECT_EQ(progress.Total, 0);
  EXPECT_EQ(progress.Done, 0);
  EXPECT_EQ(progress.Rest, 1);
}

TEST(Progress, OpensTheCavesThatTheCollectionNames) {
  EXPECT_EQ(States(Of(CollectionOf({"a", "b", "c"}, "AC"), {}), 3), "101");
}

TEST(Progress, HasNothingOpenThatNothingOpens) {
  EXPECT_EQ(States(Of(CollectionOf({"a", "b"}, ""), {}), 2), "00");
}

TEST(Progress, SolvesACaveWithARecordAndOpensTheNext) {
  Records records;
  Add(records, "a", 123);
  const Progress progress = Of(CollectionOf({"a", "b", "c"}), records);
  EXPECT_EQ(States(progress, 3), "210");
  EXPECT_EQ(progress.Scores[1], 123);
  EXPECT_EQ(progress.Total, 123);
  EXPECT_EQ(progress.Done, 1);
  EXPECT_EQ(progress.Rest, 2);
}

TEST(Progress, CountsARecordOfACaveThatWasNotOpen) {
  Records records;
  Add(records, "b", 50);
  EXPECT_EQ(States(Of(CollectionOf({"a", "b", "c"}), records), 3), "121");
}

TEST(Progress, AddsAllScoresUp) {
  Records records;
  Add(records, "a", 100);
  Add(records, "b", 20);
  Add(records, "c", 3);
  const Progress progress = Of(CollectionOf({"a", "b", "c"}), records);
  EXPECT_EQ(progress.Total, 123);
  EXPECT_EQ(progress.Done, 3);
  EXPECT_EQ(progress.Rest, 0);
}

TEST(Progress, OpensTheNextCaveByAnotherPlayersRecordButDoesNotCountItAsDone) {
  Records records;
  Add(records, "a", 123, "Jin\xFD");
  const Progress progress = Of(CollectionOf({"a", "b"}), records);
  EXPECT_EQ(States(progress, 2), "31");
  EXPECT_EQ(progress.Scores[1], 123);
  EXPECT_EQ(progress.Total, 123);
  EXPECT_EQ(progress.Done, 0);
  EXPECT_EQ(progress.Rest, 2);
}

TEST(Progress, ComparesPlayersWithoutRegardToCaseAndOuterBlanks) {
  Records records;
  Add(records, "a", 1, "  \x8AT\xCCN\xCC ");
  EXPECT_EQ(States(Of(CollectionOf({"a"}), records, "\x9At\xECn\xEC"), 1), "2");
  EXPECT_EQ(States(Of(CollectionOf({"a"}), records, "\x9At\xECn\xEC  "), 1), "2");
  EXPECT_EQ(States(Of(CollectionOf({"a"}), records, "\x9At\xEC n\xEC"), 1), "3");
}

TEST(Progress, TakesARecordWithoutPlayerForAnotherPlayers) {
  Records records;
  Add(records, "a", 1, "");
  EXPECT_EQ(States(Of(CollectionOf({"a"}), records), 1), "3");
}

TEST(Progress, OpensBothBonusCavesBehindASolvedCaveAndTheCaveBehindThem) {
  Records records;
  Add(records, "a", 10);
  const auto collection = CollectionOf({"a", "Bonus 1", "bonus 2", "b", "c"});
  EXPECT_EQ(States(Of(collection, {}), 5), "10000");
  EXPECT_EQ(States(Of(collection, records), 5), "21110");
}

TEST(Progress, DoesNotOpenACaveBehindAClosedBonusCave) {
  EXPECT_EQ(States(Of(CollectionOf({"a", "b", "BONUS", "c"}), {}), 4), "1000");
}

TEST(Progress, OpensACaveBehindABonusCaveThatIsOpenFromTheStart) {
  EXPECT_EQ(States(Of(CollectionOf({"a", "b", "BONUS", "c", "d"}, "AC"), {}), 5), "10110");
  EXPECT_EQ(States(Of(CollectionOf({"BONUS", "c", "d"}), {}), 3), "110");
}

TEST(Progress, LeavesASolvedCaveBehindABonusCaveSolved) {
  Records records;
  Add(records, "c", 10);
  EXPECT_EQ(States(Of(CollectionOf({"BONUS", "c", "d"}), records), 3), "121");
}

TEST(Progress, CountsABonusCaveAsDoneAsSoonAsItIsOpen) {
  Records records;
  Add(records, "a", 10);
  const auto collection = CollectionOf({"a", "BONUS"});
  EXPECT_EQ(Of(collection, {}).Done, 0);
  const Progress progress = Of(collection, records);
  EXPECT_EQ(States(progress, 2), "21");
  EXPECT_EQ(progress.Done, 2);
  EXPECT_EQ(progress.Rest, 0);
}

TEST(Progress, CountsASolvedBonusCaveOnceAndAnotherPlayersNotAtAll) {
  Records own;
  Add(own, "BONUS", 500);
  EXPECT_EQ(Of(CollectionOf({"BONUS"}), own).Done, 1);
  Records others;
  Add(others, "BONUS", 500, "Jin\xFD");
  EXPECT_EQ(Of(CollectionOf({"BONUS"}), others).Done, 0);
}

TEST(Progress, TakesNoRecordOfACaveThatHasChanged) {
  Records records;
  records[RecordFileName("Sada", "b")] = RecordOf(CaveText("b", "W1;DT;") + "---02", 77);
  const Progress progress = Of(CollectionOf({"a", "b", "c"}, "AB"), records);
  EXPECT_EQ(States(progress, 3), "110");
  EXPECT_EQ(progress.Scores[2], 0);
  EXPECT_EQ(States(Of(CollectionOf({"a", "b", "c"}), records), 3), "100");
}

TEST(Progress, TakesARecordOfACaveThatHasMovedWithinItsCollection) {
  Records records;
  records[RecordFileName("Sada", "b")] = RecordOf(CaveText("b") + "---77", 9);
  EXPECT_EQ(States(Of(CollectionOf({"a", "b"}), records), 2), "12");
}

// Whatever they are: the record of a cave without marker has lost what its script ends in.
TEST(Progress, DisregardsTheLastFiveCharactersOfTheCaveInARecord) {
  const auto of = [](const std::string& caveText) {
    return States(Of(CollectionOf({"a", "b"}), {{RecordFileName("Sada", "a"), RecordOf(caveText, 9)}}), 2);
  };
  EXPECT_EQ(of(CaveText("a") + "abcde"), "21");
  EXPECT_EQ(of(CaveText("a")), "10");
  EXPECT_EQ(of(CaveText("a") + "----01"), "10");
}

TEST(Progress, SetsCavesThatShareARecordFileApartByTheirText) {
  const auto collection = CollectionOf({"Kam?", "K:am"});
  Records records;
  Add(records, "K:am", 8);
  EXPECT_EQ(States(Of(collection, records), 2), "12");
  Add(records, "Kam?", 9);  // the same file
  EXPECT_EQ(records.size(), 1U);
  EXPECT_EQ(States(Of(collection, records), 2), "21");
}

TEST(Progress, LosesTheRecordsOfACollectionThatGetsANewName) {
  Records records;
  Add(records, "a", 10);
  auto collection = CollectionOf({"a"});
  collection.Name = "Nov\xE1 sada";
  EXPECT_EQ(States(Of(collection, records), 1), "1");
}

TEST(Progress, LosesTheRecordOfACaveThatGetsANewName) {
  Records records;
  Add(records, "a", 10);
  EXPECT_EQ(States(Of(CollectionOf({"Nov\xE1", "b"}), records), 2), "10");
}

TEST(Progress, TakesARecordWithoutACarriageReturnInItsFirstLineWithScoreZero) {
  Records records;
  records[RecordFileName("Sada", "a")] = samples::Scrambled({"Sada 00123", kPlayer, CaveText("a") + "---01"});
  const Progress progress = Of(CollectionOf({"a", "b"}), records);
  EXPECT_EQ(States(progress, 2), "21");
  EXPECT_EQ(progress.Scores[1], 0);
}

TEST(Progress, PassesOverRecordsThatCannotBeRead) {
  for (const std::string bytes : {"", "AAA", "\r\n\r\n\r\n", "not a record"}) {
    EXPECT_EQ(States(Of(CollectionOf({"a", "b"}), {{RecordFileName("Sada", "a"), bytes}}), 2), "10") << bytes;
  }
}

TEST(Progress, ReadsARecordThatWasCutBehindItsHead) {
  const std::string whole = RecordOf(CaveText("a") + "---01", 5);
  const std::string head = whole.substr(0, whole.size() - 7);  // without "\r\nAAA\r\n"
  EXPECT_EQ(States(Of(CollectionOf({"a"}), {{RecordFileName("Sada", "a"), head}}), 1), "2");
}

TEST(Progress, OfCave99DoesNotTouchACave100) {
  std::vector<std::string> names;
  for (int i = 1; i <= 99; ++i) names.push_back("c" + std::to_string(i));
  Records records;
  Add(records, "c98", 1);
  EXPECT_EQ(Of(CollectionOf(names), records).CaveStates[99], CaveState::Open);
  Add(records, "c99", 1);
  const Progress progress = Of(CollectionOf(names), records);
  EXPECT_EQ(progress.CaveStates[99], CaveState::Solved);
  EXPECT_EQ(progress.CaveStates.size(), 100U);
  EXPECT_EQ(progress.Rest, 97);
}

TEST(Progress, OfASolvedLastCaveOpensNothingElse) {
  Records records;
  Add(records, "b", 1);
  const Progress progress = Of(CollectionOf({"a", "b"}), records);
  EXPECT_EQ(States(progress, 2), "12");
  EXPECT_EQ(progress.Done, 1);
}

TEST(Progress, OfACollectionWithoutCavesIsDone) {
  const Progress progress = Of(*ReadForPlay(samples::CollectionFile({})), {});
  EXPECT_EQ(progress.Total, 0);
  EXPECT_EQ(progress.Done, 0);
  EXPECT_EQ(progress.Rest, 0);
}

TEST(CelkSkore, AddsUpAnewAfterAChange) {
  const auto collection = CollectionOf({"a", "b", "BONUS"});
  Records records;
  Add(records, "a", 1000);
  Progress progress = Of(collection, records);
  progress.CaveStates[1] = CaveState::Solved;
  progress.Scores[1] = 300;
  progress.CaveStates[2] = CaveState::SolvedByOther;
  progress.Scores[2] = 20;
  progress.CaveStates[3] = CaveState::Open;
  CelkSkore(collection, progress);
  EXPECT_EQ(progress.Total, 320);
  EXPECT_EQ(progress.Done, 2);
  EXPECT_EQ(progress.Rest, 1);
}

TEST(RecordsInFolder, AreFoundWithoutRegardToCase) {
  const test::TempFolder temp("progress");
  const std::string& folder = temp.Path();
  ASSERT_TRUE(WriteWhole(folder + "/SADA - ŠEDÁ.ZKR", RecordOf(CaveText("\x8A\x65\x64\xE1") + "---01", 42)));
  const Progress progress =
      ReadProgress(CollectionOf({"\x8A\x65\x64\xE1", "b"}), kPlayer, RecordsInFolder(folder));
  EXPECT_EQ(States(progress, 2), "21");
  EXPECT_EQ(progress.Scores[1], 42);
}

TEST(RecordsInFolder, AreFoundUnderNamesThatAreTooLongForTheFileSystem) {
  const test::TempFolder temp("progress");
  const std::string& folder = temp.Path();
  const std::string cave(190, '\xE1');
  const std::string name = FileSystemName(RecordFileName("Sada", cave));
  ASSERT_TRUE(WriteWhole(folder + "/" + name, RecordOf(CaveText(cave) + "---01", 42)));
  const Progress progress = ReadProgress(CollectionOf({cave, "b"}), kPlayer, RecordsInFolder(folder));
  EXPECT_EQ(States(progress, 2), "21");
}

TEST(RecordsInFolder, ThatIsNotThereAreNone) {
  const Progress progress = ReadProgress(CollectionOf({"a"}), kPlayer,
                                         RecordsInFolder(testing::TempDir() + "zorik-no-such-folder"));
  EXPECT_EQ(States(progress, 1), "1");
}

}  // namespace
}  // namespace zorik
