#include <gtest/gtest.h>

#include <filesystem>

#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "run/PlayerStatistics.h"
#include "support/Scene.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

using test::LineOf;
using test::Numbers;

constexpr const char* kPlayer = "Ada";
constexpr int kRight = 39;

// A cave in which the dog walks to the right over a gem and into the finish, which is open at once.
std::string WalkedCave(const std::string& name) {
  Numbers numbers;
  numbers.name = name;
  numbers.needed = 0;
  numbers.time = 50;
  numbers.after = 7;
  return test::CaveTextOf({"WWWWWW", "W1DTWW", "WWWWWW"}, numbers);
}

// Its record: so many ticks of waiting, and the two steps. The outcomes of chance that the world asks for in
// a tick are those of the amoeba, which asks always, and of the step.
std::string WalkedLines(int waiting) {
  std::string lines;
  for (int i = 0; i < waiting; ++i) lines += LineOf({.before = {1}}) + "\r\n";
  lines += LineOf({.before = {1}, .direction = kRight, .after = {1}}) + "\r\n";
  return lines + LineOf({.before = {1}, .direction = kRight, .after = {1}});
}

class RecordsOfAPlayer : public testing::Test {
 protected:
  void Record(const std::string& file, const std::string& collection, const std::string& caveText,
              const std::string& lines, const std::string& player = kPlayer) const {
    Chance chance(3);
    const std::string bytes =
        BuildRecordHead(collection, 0, player, chance) + ScrambleText(caveText, chance) + "\r\n" + lines;
    ASSERT_TRUE(WriteWhole(temp_.Path() + "/" + file, bytes));
  }

  PlayerStatistics Read() const {
    PlayerStatistics statistics(temp_.Path(), kPlayer);
    while (!statistics.AtEnd()) statistics.ReadOn(1000);
    return statistics;
  }

  test::TempFolder temp_{"statistics"};
};

TEST_F(RecordsOfAPlayer, AreNoneInAnEmptyFolderOrInNone) {
  EXPECT_EQ(Read().Files(), 0U);
  const PlayerStatistics nowhere(temp_.Path() + "/nowhere", kPlayer);
  EXPECT_TRUE(nowhere.AtEnd());
  EXPECT_TRUE(nowhere.Collections().empty());
}

TEST_F(RecordsOfAPlayer, TellWhatWasWonInWhatTimeWithHowManyGemsAndPoints) {
  Record("a.zkr", "Sada", WalkedCave("prvni") + "---04", WalkedLines(3));
  const PlayerStatistics statistics = Read();
  ASSERT_EQ(statistics.Collections().size(), 1U);
  const CollectionStatistics& sada = statistics.Collections()[0];
  EXPECT_EQ(sada.Name, "Sada");
  EXPECT_EQ(sada.Ticks, 5) << "three of waiting, two steps";
  EXPECT_EQ(sada.Gems, 1);
  EXPECT_EQ(sada.Points, 7 + 49) << "the gem, and the seconds that are left on the clock";
  ASSERT_EQ(sada.Caves.size(), 1U);
  EXPECT_EQ(sada.Caves[0].Number, 4);
  EXPECT_EQ(sada.Caves[0].Name, "prvni");
  EXPECT_EQ(sada.Caves[0].BestTicks, 5);
  EXPECT_EQ(sada.Caves[0].BestScore, 56);
}

TEST_F(RecordsOfAPlayer, AreGatheredByCollectionAndByTheNumbersOfTheirCaves) {
  Record("1.zkr", "Zima", WalkedCave("z"), WalkedLines(0));
  Record("2.zkr", "Jaro", WalkedCave("b") + "---10", WalkedLines(1));
  Record("3.ZKR", "Jaro", WalkedCave("a") + "---02", WalkedLines(2));
  Record("4.zkr", "Jaro", WalkedCave("bez cisla"), WalkedLines(0));
  Record("5.txt", "Jaro", WalkedCave("jinak"), WalkedLines(0));
  const PlayerStatistics statistics = Read();
  EXPECT_EQ(statistics.Files(), 4U) << "the fifth is no record by its name";
  ASSERT_EQ(statistics.Collections().size(), 2U);
  const CollectionStatistics& jaro = statistics.Collections()[0];
  EXPECT_EQ(jaro.Name, "Jaro");
  ASSERT_EQ(jaro.Caves.size(), 3U);
  EXPECT_EQ(jaro.Caves[0].Name, "a");
  EXPECT_EQ(jaro.Caves[1].Name, "b");
  EXPECT_EQ(jaro.Caves[2].Name, "bez cisla");
  EXPECT_EQ(jaro.Caves[2].Number, 0);
  EXPECT_EQ(statistics.Collections()[1].Name, "Zima");
  EXPECT_EQ(statistics.Caves(), 4);
  EXPECT_EQ(statistics.Ticks(), 2 + 3 + 4 + 2);
  EXPECT_EQ(statistics.Gems(), 4);
}

TEST_F(RecordsOfAPlayer, OfTheSameCaveKeepTheQuickestWinAndTheMostPoints) {
  Record("a.zkr", "Sada", WalkedCave("c") + "---01", WalkedLines(30));
  Record("b.zkr", "Sada", WalkedCave("c") + "---01", WalkedLines(0));
  Record("c.zkr", "Sada", WalkedCave("c") + "---01", WalkedLines(0));
  Record("d.zkr", "Sada", WalkedCave("c") + "---01", WalkedLines(20));
  const PlayerStatistics statistics = Read();
  EXPECT_EQ(statistics.Caves(), 1);
  const CollectionStatistics& sada = statistics.Collections()[0];
  EXPECT_EQ(sada.Caves[0].BestTicks, 2);
  EXPECT_EQ(sada.Caves[0].BestScore, 7 + 49);
  EXPECT_EQ(sada.Points, 7 + 49) << "the cave counts once";
  EXPECT_EQ(sada.Ticks, 32 + 2 + 2 + 22) << "all have been played";
}

TEST_F(RecordsOfAPlayer, AreHisUnderAnyLetterCaseAndTheOthersAreCounted) {
  Record("a.zkr", "Sada", WalkedCave("a"), WalkedLines(0), " aDA ");
  Record("b.zkr", "Sada", WalkedCave("b"), WalkedLines(0), "Bara");
  const PlayerStatistics statistics = Read();
  EXPECT_EQ(statistics.Caves(), 1);
  EXPECT_EQ(statistics.OfOthers(), 1);
  EXPECT_EQ(statistics.Faulty(), 0);
}

TEST_F(RecordsOfAPlayer, CountOnlyWhereTheyWin) {
  Record("begins-again.zkr", "Sada", WalkedCave("a"), "\r\n" + WalkedLines(0));
  Record("ends-early.zkr", "Sada", WalkedCave("b"), LineOf({.before = {1}}) + "\r\n");
  const std::string withoutItsDraw = LineOf({.before = {1}, .direction = kRight});
  const std::string whole = LineOf({.before = {1}, .direction = kRight, .after = {1}});
  Record("runs-dry.zkr", "Sada", WalkedCave("c"), withoutItsDraw + "\r\n" + withoutItsDraw);
  Record("runs-dry-first.zkr", "Sada", WalkedCave("d"), withoutItsDraw + "\r\n" + whole);
  Record("runs-dry-last.zkr", "Sada", WalkedCave("e"), whole + "\r\n" + withoutItsDraw);
  ASSERT_TRUE(WriteWhole(temp_.Path() + "/no-record.zkr", "\x01\x02 nothing"));
  std::filesystem::create_directory(temp_.Path() + "/folder.zkr");
  const PlayerStatistics statistics = Read();
  EXPECT_EQ(statistics.Faulty(), 7);
  EXPECT_EQ(statistics.FilesRead(), 7U);
  EXPECT_EQ(statistics.Caves(), 0);
  EXPECT_TRUE(statistics.Collections().empty());
}

TEST_F(RecordsOfAPlayer, CanBeReadInPiecesOfAnySize) {
  for (int i = 0; i < 10; ++i) {
    const std::string name(1, static_cast<char>('a' + i));
    Record(name + ".zkr", "Sada", WalkedCave(name), WalkedLines(40 * i));
  }
  PlayerStatistics statistics(temp_.Path(), kPlayer);
  int pieces = 0;
  for (; !statistics.AtEnd(); ++pieces) {
    EXPECT_LE(statistics.FilesRead(), 10U);
    statistics.ReadOn(60);
  }
  EXPECT_GE(pieces, 1800 / 60) << "no piece is much longer than it was asked to be";
  EXPECT_EQ(statistics.FilesRead(), 10U);
  EXPECT_EQ(statistics.Caves(), 10);
  EXPECT_EQ(statistics.Ticks(), Read().Ticks());
  EXPECT_EQ(statistics.Ticks(), 1800 + 10 * 2);
}

TEST_F(RecordsOfAPlayer, TakeTheNumberOfACaveFromTwoDigitsAndFromNothingElse) {
  struct Case {
    const char* marker;
    int number;
  };
  for (const Case& one : {Case{"---47", 47}, Case{"---99", 99}, Case{"---00", 0}, Case{"---1A", 0},
                          Case{"---A1", 0}, Case{"---1:", 0}, Case{"---:1", 0}, Case{"---1/", 0}}) {
    Record("a.zkr", "Sada", WalkedCave("prvni") + one.marker, WalkedLines(0));
    const PlayerStatistics statistics = Read();
    ASSERT_EQ(statistics.Caves(), 1) << one.marker;
    EXPECT_EQ(statistics.Collections()[0].Caves[0].Number, one.number) << one.marker;
  }
}

// The same cave has stood at several places of its collection.
TEST_F(RecordsOfAPlayer, AreReadByTheNamesOfTheirFilesHoweverTheFolderHoldsThem) {
  for (const int number : {14, 3, 17, 9, 12, 6, 18, 1, 11, 5, 16, 8, 2, 13, 7, 15, 4, 10}) {
    const std::string digits{static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
    Record(digits + ".zkr", "Sada", WalkedCave("c") + "---" + digits, WalkedLines(0));
  }
  const PlayerStatistics statistics = Read();
  ASSERT_EQ(statistics.Caves(), 1);
  EXPECT_EQ(statistics.Collections()[0].Caves[0].Number, 1);
}

TEST_F(RecordsOfAPlayer, CountAfterOneThatRanDry) {
  const std::string withoutItsDraw = LineOf({.before = {1}, .direction = kRight});
  Record("a.zkr", "Sada", WalkedCave("a"), withoutItsDraw + "\r\n" + withoutItsDraw);
  Record("b.zkr", "Sada", WalkedCave("b"), WalkedLines(0));
  const PlayerStatistics statistics = Read();
  EXPECT_EQ(statistics.Faulty(), 1);
  EXPECT_EQ(statistics.Caves(), 1);
}

// To open a file takes its time, too, though nothing is played.
TEST_F(RecordsOfAPlayer, AreReadInPiecesWhereTheyAreThoseOfOthers) {
  for (int i = 0; i < 10; ++i)
    Record(std::string(1, static_cast<char>('a' + i)) + ".zkr", "Sada", WalkedCave("c"), WalkedLines(0),
           "Bara");
  PlayerStatistics statistics(temp_.Path(), kPlayer);
  for (std::size_t piece = 1; piece <= 5; ++piece) {
    statistics.ReadOn(100);
    EXPECT_EQ(statistics.FilesRead(), 2 * piece);
    EXPECT_EQ(statistics.AtEnd(), piece == 5);
  }
  EXPECT_EQ(statistics.OfOthers(), 10);
}

}  // namespace
}  // namespace zorik
