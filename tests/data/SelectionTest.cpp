#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <vector>

#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Samples.h"
#include "data/Scramble.h"
#include "data/Selection.h"
#include "support/AsNobody.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

using samples::CaveText;

class SelectionTest : public testing::Test {
 protected:
  SelectionTest() { fs::create_directories(Folder()); }

  std::string Folder() const { return root_ + "/Ada"; }
  std::string File() const { return root_ + "/sada.zk"; }

  // A collection "Sada" of caves with these names.
  void Write(const std::vector<std::string>& names, const std::string& last = "Konec",
             std::string_view open = "A") const {
    std::vector<std::string> body;
    for (std::size_t i = 0; i < names.size(); ++i) {
      body.push_back(CaveText(names[i]) + "---" + MarkerDigits(static_cast<int>(i + 1)));
    }
    body.push_back(last);
    ASSERT_TRUE(WriteWhole(File(), samples::CollectionFile(body, open)));
  }

  static std::string RecordOf(const std::string& cave, int score, std::string_view player = "Ada") {
    Chance chance(3);
    return BuildRecordHead("Sada", score, player, chance) + ScrambleText(CaveText(cave) + "---01", chance) +
           "\r\nAAA\r\n";
  }

  void Record(const std::string& cave, int score, std::string_view player = "Ada") const {
    ASSERT_TRUE(WriteWhole(Folder() + "/" + FileSystemName(RecordFileName("Sada", cave)),
                           RecordOf(cave, score, player)));
  }

  Selection Open() const {
    auto selection = Selection::LoadColl(File(), "Ada", Folder());
    EXPECT_TRUE(selection);
    return *selection;
  }

  // A run of the selected cave.
  static WonRun Run(const Selection& selection, int score, const std::string& bytes = {}) {
    return {selection.Slot(selection.Selected()), score, bytes};
  }
  static bool Beats(const Selection& selection, int score) { return JeLepsi(Run(selection, score), {}); }
  static Result<Done> Store(const Selection& selection, const std::string& bytes) {
    return StoreRun(Run(selection, 0, bytes));
  }
  static void Win(Selection& selection, int score) {
    selection.Prosel(selection.Slot(selection.Selected()), score);
  }

  // The states of all caves as digits.
  static std::string States(const Selection& selection) {
    std::string digits;
    for (int i = 1; i <= selection.CaveCount(); ++i) {
      digits += static_cast<char>('0' + static_cast<int>(selection.State(i)));
    }
    return digits;
  }

  test::TempFolder temp_{"selection"};
  const std::string root_ = temp_.Path();
};

TEST_F(SelectionTest, OpensWithTheFirstCaveSelected) {
  Write({"a", "b"});
  const Selection selection = Open();
  EXPECT_EQ(selection.Selected(), 1);
  EXPECT_EQ(States(selection), "10");
  EXPECT_EQ(selection.Score(1), 0);
  EXPECT_EQ(selection.Rest(), 2);
}

TEST_F(SelectionTest, OfACollectionThatVanishedFails) {
  const auto selection = Selection::LoadColl(File(), "Ada", Folder());
  ASSERT_FALSE(selection);
  EXPECT_NE(selection.Message().find(File()), std::string::npos);
}

TEST_F(SelectionTest, OfGarbageFails) {
  ASSERT_TRUE(WriteWhole(File(), "tohle neni sada\n"));
  EXPECT_FALSE(Selection::LoadColl(File(), "Ada", Folder()));
}

TEST_F(SelectionTest, OfACollectionWithoutACaveFails) {
  Write({});
  EXPECT_FALSE(Selection::LoadColl(File(), "Ada", Folder()));
}

TEST_F(SelectionTest, FindsTheCollectionInAnyLetterCase) {
  Write({"a"});
  EXPECT_TRUE(Selection::LoadColl(root_ + "/SADA.ZK", "Ada", Folder()));
}

TEST_F(SelectionTest, SelectsOnlyCavesThatExist) {
  Write({"a", "b", "c"});
  Selection selection = Open();
  selection.Select(3);
  EXPECT_EQ(selection.Selected(), 3);
  for (const int number : {0, 4, -1, 99, 100}) {
    selection.Select(number);
    EXPECT_EQ(selection.Selected(), 3) << number;
  }
}

TEST_F(SelectionTest, NamesTheLastOpenCaveBeforeAClosedOne) {
  Write({"a", "b", "c", "d", "e"}, "Konec", "ABC");
  Record("c", 5, "Jin\xFD");
  const Selection selection = Open();
  ASSERT_EQ(States(selection), "11310");
  EXPECT_EQ(selection.OpenCaveBefore(5), 4);
  EXPECT_EQ(selection.OpenCaveBefore(4), 2) << "a solved cave does not count";
  EXPECT_EQ(selection.OpenCaveBefore(1), 0);
}

TEST_F(SelectionTest, TakesAScoreForBetterWhenItIsEqual) {
  Write({"a"});
  Record("a", 123);
  const Selection selection = Open();
  EXPECT_FALSE(Beats(selection, 122));
  EXPECT_TRUE(Beats(selection, 123));
  EXPECT_TRUE(Beats(selection, 124));
}

TEST_F(SelectionTest, TakesAnyScoreForBetterThanNone) {
  Write({"a"});
  EXPECT_TRUE(Beats(Open(), 0));
}

TEST_F(SelectionTest, ComparesWithAnotherPlayersRecordToo) {
  Write({"a"});
  Record("a", 50, "Jin\xFD");
  EXPECT_FALSE(Beats(Open(), 49));
}

TEST_F(SelectionTest, SolvesTheWonCaveOpensTheNextAndGoesThere) {
  Write({"a", "b", "c"});
  Selection selection = Open();
  Win(selection, 77);
  EXPECT_EQ(States(selection), "210");
  EXPECT_EQ(selection.Score(1), 77);
  EXPECT_EQ(selection.Total(), 77);
  EXPECT_EQ(selection.Rest(), 2);
  EXPECT_EQ(selection.Selected(), 2);
}

TEST_F(SelectionTest, StaysAtTheLastCave) {
  Write({"a", "b"});
  Selection selection = Open();
  Win(selection, 1);
  Win(selection, 2);
  EXPECT_EQ(selection.Selected(), 2);
  EXPECT_EQ(States(selection), "22");
  EXPECT_EQ(selection.Rest(), 0);
}

TEST_F(SelectionTest, OpensBonusCavesInARowAndTheCaveBehindThem) {
  Write({"a", "Bonus 1", "bonus 2", "d", "e"});
  Selection selection = Open();
  Win(selection, 1);
  EXPECT_EQ(States(selection), "21110");
  EXPECT_EQ(selection.Rest(), 2) << "open bonus caves count as done";
}

TEST_F(SelectionTest, OpensNothingBehindACaveThatIsOpenAlready) {
  Write({"a", "Bonus", "c"}, "Konec", "AB");
  Selection selection = Open();
  ASSERT_EQ(States(selection), "111") << "the open bonus cave opens the next";
  Win(selection, 1);
  EXPECT_EQ(States(selection), "211");
}

TEST_F(SelectionTest, MakesAnotherPlayersCaveOnesOwnByWinningIt) {
  Write({"a", "b"});
  Record("a", 50, "Jin\xFD");
  Selection selection = Open();
  ASSERT_EQ(States(selection), "31");
  Win(selection, 40);
  EXPECT_EQ(States(selection), "21");
  EXPECT_EQ(selection.Score(1), 40);
}

TEST_F(SelectionTest, ManagesNinetyNineCavesToTheEnd) {
  std::vector<std::string> names;
  for (int i = 1; i <= 99; ++i) names.push_back("c" + std::to_string(i));
  Write(names);
  Record("c99", 9);
  Selection selection = Open();
  EXPECT_EQ(selection.State(99), CaveState::Solved);
  selection.Select(99);
  Win(selection, 10);
  EXPECT_EQ(selection.Selected(), 99);
  EXPECT_EQ(selection.Score(99), 10);
}

TEST_F(SelectionTest, KeepsARecordUnderTheNamesOfCollectionAndCave) {
  Write({"Co? To: je/on"});
  const Selection selection = Open();
  EXPECT_EQ(selection.RecordName(), "Sada - Co To jeon.zkr");
  EXPECT_EQ(selection.RecordPath(), Folder() + "/Sada - Co To jeon.zkr");
}

TEST_F(SelectionTest, FindsARecordWhateverItsLetterCase) {
  Write({"Jedna"});
  ASSERT_TRUE(WriteWhole(Folder() + "/sada - jedna.zkr", RecordOf("Jedna", 8)));
  const Selection selection = Open();
  EXPECT_EQ(States(selection), "2");
  EXPECT_EQ(selection.RecordPath(), Folder() + "/sada - jedna.zkr");
}

TEST_F(SelectionTest, FindsTheRecordThatItHasStoredWhenItIsOpenedAgain) {
  Write({"a", "b"});
  Selection selection = Open();
  ASSERT_TRUE(Store(selection, RecordOf("a", 33)));
  const Selection again = Open();
  EXPECT_EQ(States(again), "21");
  EXPECT_EQ(again.Score(1), 33);
}

TEST_F(SelectionTest, MakesThePlayersFolderAnewForARecord) {
  Write({"a"});
  Selection selection = Open();
  fs::remove_all(Folder());
  ASSERT_TRUE(Store(selection, RecordOf("a", 33)));
  EXPECT_TRUE(fs::exists(selection.RecordPath()));
}

TEST_F(SelectionTest, ComparesWithTheStoredRecordAlsoWhenTheListShowsAWorseRun) {
  Write({"a"});
  Record("a", 100);
  Selection selection = Open();
  Win(selection, 60);
  EXPECT_EQ(selection.Score(1), 60);
  EXPECT_FALSE(Beats(selection, 99)) << "the better record is still on the disk";
}

TEST_F(SelectionTest, ComparesWithTheRecordThatWasStoredLast) {
  Write({"a"});
  Record("a", 100);
  Selection selection = Open();
  ASSERT_TRUE(Store(selection, RecordOf("a", 60)));
  EXPECT_TRUE(Beats(selection, 60));
  EXPECT_FALSE(Beats(selection, 59));
}

TEST_F(SelectionTest, ComparesWithTheRecordThatAnotherRunningGameHasStoredMeanwhile) {
  Write({"a", "b"});
  Selection selection = Open();
  Record("a", 500);
  EXPECT_FALSE(Beats(selection, 499));
  EXPECT_TRUE(Beats(selection, 500));
  EXPECT_EQ(States(selection), "10") << "the list stays as it is until the collection is opened again";
}

TEST_F(SelectionTest, LeavesTheOldRecordWhenTheDiskIsFull) {
  Write({"a"});
  Record("a", 10);
  const Selection selection = Open();
  const std::string old = *ReadWhole(selection.RecordPath());
  rlimit before = {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = signal(SIGXFSZ, SIG_IGN);
  rlimit small = before;
  small.rlim_cur = 20;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const Result<Done> stored = Store(selection, RecordOf("a", 20));
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  signal(SIGXFSZ, handler);
  EXPECT_FALSE(stored);
  EXPECT_EQ(*ReadWhole(selection.RecordPath()), old);
  EXPECT_EQ(std::distance(fs::directory_iterator(Folder()), fs::directory_iterator()), 1);
  EXPECT_TRUE(Beats(selection, 10));
  EXPECT_FALSE(Beats(selection, 9));
}

TEST_F(SelectionTest, LeavesTheOldRecordInAFolderThatMayNotBeWritten) {
  Write({"a"});
  Record("a", 10);
  const Selection selection = Open();
  const std::string old = *ReadWhole(selection.RecordPath());
  fs::permissions(root_, fs::perms(0755));
  fs::permissions(Folder(), fs::perms(0555));
  {
    const test::AsNobody nobody;
    EXPECT_FALSE(Store(selection, RecordOf("a", 20)));
  }
  fs::permissions(Folder(), fs::perms(0755));
  EXPECT_EQ(*ReadWhole(selection.RecordPath()), old);
}

TEST_F(SelectionTest, ReplacesARecordThatMayNotBeWritten) {
  Write({"a"});
  Record("a", 10);
  const Selection selection = Open();
  fs::permissions(selection.RecordPath(), fs::perms(0444));
  ASSERT_TRUE(Store(selection, RecordOf("a", 20)));
  EXPECT_EQ(*ReadWhole(selection.RecordPath()), RecordOf("a", 20));
}

TEST_F(SelectionTest, StoresNothingWhereAFileStandsInThePlaceOfTheFolder) {
  Write({"a"});
  const Selection selection = Open();
  fs::remove_all(Folder());
  ASSERT_TRUE(WriteWhole(Folder(), "a file"));
  EXPECT_FALSE(Store(selection, RecordOf("a", 20)));
  EXPECT_EQ(*ReadWhole(Folder()), "a file");
}

TEST_F(SelectionTest, StoresNothingWhereThePathIsTooLong) {
  Write({"a"});
  std::string folder = root_;
  for (int i = 0; i < 30; ++i) folder += "/" + std::string(200, 'x');
  const auto selection = Selection::LoadColl(File(), "Ada", folder);
  ASSERT_TRUE(selection);
  EXPECT_FALSE(Store(*selection, RecordOf("a", 20)));
}

TEST_F(SelectionTest, LeavesTheOldOrTheNewRecordWhenItIsKilled) {
  constexpr int kTries = 30;
  constexpr int kMostTries = 200;  // on a disk that is so slow that nothing has been written by then
  Write({"a", "b"});
  const Selection selection = Open();
  // A run so long that it is killed within its writing, too.
  std::string moves;
  for (int i = 0; i < 40000; ++i) moves += "AAfBAAAA\r\n";
  const auto recordOf = [&](int score) { return RecordOf("a", score) + moves; };
  ASSERT_TRUE(Store(selection, recordOf(0)));
  int last = 0;
  int replaced = 0;
  for (int i = 1; i <= kTries || (replaced == 0 && i <= kMostTries); ++i) {
    const std::string record = recordOf(i);
    const pid_t child = fork();
    if (child == 0) {
      for (;;) Disregard(Store(selection, record));  // it is killed within one of them
    }
    ASSERT_GT(child, 0);
    usleep(static_cast<useconds_t>(500 + i * 500));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string found = *ReadWhole(selection.RecordPath());
    ASSERT_TRUE(found == record || found == recordOf(last)) << i;
    if (found == record) last = i;
    replaced += found == record ? 1 : 0;
  }
  EXPECT_GT(replaced, 0) << "none came to writing";
  const Selection again = Open();
  EXPECT_EQ(States(again), "21");
  EXPECT_EQ(again.Score(1), last);
}

TEST_F(SelectionTest, FindsAWholeRecordWhileTwoGamesStoreTheirs) {
  Write({"a"});
  const Selection selection = Open();
  const std::string moves(200000, 'A');
  const std::string records[] = {RecordOf("a", 1) + moves, RecordOf("a", 2) + moves};
  ASSERT_TRUE(Store(selection, records[0]));
  std::vector<pid_t> games;
  for (const std::string& record : records) {
    games.push_back(fork());
    if (games.back() == 0) {
      for (;;) Disregard(Store(selection, record));  // it is killed within one of them
    }
  }
  for (int i = 0; i < 60; ++i) {
    usleep(3000);
    const std::string found = *ReadWhole(selection.RecordPath());
    EXPECT_TRUE(found == records[0] || found == records[1]) << i;
  }
  for (const pid_t game : games) {
    ASSERT_GT(game, 0);
    kill(game, SIGKILL);
    waitpid(game, nullptr, 0);
  }
}

TEST_F(SelectionTest, PutsThePointsIntoTheCongratulationWhereverItSaysSo) {
  Write({"a"}, "$P bod\xF9, tedy $P.\r\nKonec $");
  Record("a", 42);
  EXPECT_EQ(Open().Congratulation(), "00042 bod\xF9, tedy 00042.\r\nKonec $");
}

TEST_F(SelectionTest, WritesScoresWithFiveDigits) {
  EXPECT_EQ(FiveDigits(0), "00000");
  EXPECT_EQ(FiveDigits(123), "00123");
  EXPECT_EQ(FiveDigits(99999), "99999");
  EXPECT_EQ(FiveDigits(123456), "123456");
}

// Names that lead to one file make each cave the other's other one, and no cave its own.
TEST_F(SelectionTest, KnowsTheOtherCavesOfARecordsFile) {
  Write({"a?b", "c", "a:b"});
  const Selection selection = Open();
  EXPECT_EQ(selection.Slot(1).OtherCaves, std::vector<std::string>{CaveText("a:b")});
  EXPECT_EQ(selection.Slot(2).OtherCaves, std::vector<std::string>{});
  EXPECT_EQ(selection.Slot(3).OtherCaves, std::vector<std::string>{CaveText("a?b")});
}

}  // namespace
}  // namespace zorik
