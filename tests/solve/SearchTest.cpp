#include <gtest/gtest.h>

#include <algorithm>

#include "core/Machine.h"
#include "solve/Search.h"
#include "solve/Solver.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

constexpr std::uint64_t kPatience = 1'000'000;  // ticks

std::shared_ptr<const CellSet> Only(Cell cell) {
  auto cells = std::make_shared<CellSet>();
  cells->Add(cell);
  return cells;
}

// The run after a plan; the last tick of it won or not.
Hra After(const Hra& begin, const Plan& plan) {
  Hra run = begin;
  for (const Move move : plan) Tick(run, KeysOf(move));
  return run;
}

// Without a finish a search goes on and on.
const Picture kNoFinish{"WWWWWWWWW", "W1;D;D;;W", "W;;;;D;;W", "WWWWWWWWW"};

TEST(Search, GoesOnForAboutSoManyTicks) {
  Search search(Play(kNoFinish, {.needed = 9}), 1, {});
  search.Go(1000);
  EXPECT_GE(search.Ticks(), 1000U);
  EXPECT_LT(search.Ticks(), 1500U);
  const std::uint64_t before = search.Ticks();
  search.Go(1000);
  EXPECT_GE(search.Ticks(), before + 1000);
  EXPECT_LT(search.Ticks(), before + 1500);
}

TEST(Search, DoesNothingInNoTime) {
  Search search(Play(kNoFinish, {.needed = 9}), 1, {});
  EXPECT_FALSE(search.Go(0));
  EXPECT_EQ(search.Ticks(), 0U);
  EXPECT_EQ(search.BestPlan(), Plan());
}

TEST(Search, RemembersTheMostGemsThatItEverHad) {
  Search search(Play(kNoFinish, {.needed = 9}), 1, {});
  int most = 0;
  for (int i = 0; i < 200; ++i) {
    search.Go(100);
    EXPECT_GE(search.MostGems(), most);
    most = search.MostGems();
  }
  EXPECT_EQ(most, 3);
}

// There is nothing to gain, and a dog can be lost.
TEST(Search, TakesTheDeathOfADogForNoGain) {
  const Hra begin = Play({"WWWWWW", "W.R.2W", "W1...W", "W....W", "WWWWWW"});
  Search search(begin, 1, {});
  search.Go(20'000);
  EXPECT_EQ(LiveDogs(After(begin, search.BestPlan())), 2);
}

TEST(Search, KeepsNoMoreMomentsThanThereAre) {
  Search search(Play({"WWWW", "W1.W", "WWWW"}), 1, {});
  search.Go(20'000);
  const std::size_t bytes = search.Bytes();
  EXPECT_GT(bytes, 0U);
  search.Go(100'000);
  EXPECT_EQ(search.Bytes(), bytes);
}

TEST(Search, IsTheSameForTheSameSeed) {
  const Hra begin = Play(kNoFinish, {.needed = 2});
  const auto after = [&begin](std::uint64_t seed) {
    Search search(begin, seed, {});
    search.Go(3000);
    return std::pair(search.Ticks(), search.BestPlan());
  };
  EXPECT_EQ(after(7), after(7));
}

TEST(Search, FindsNoPlanAsLongAsItsBound) {
  // Four steps, and none can be spared.
  const Hra begin = Play({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1});
  for (std::uint64_t seed = 1; seed < 6; ++seed) {
    Search search(begin, seed, {});
    search.SetBound(4);
    EXPECT_FALSE(search.Go(20'000)) << seed;
  }
  Search search(begin, 1, {});
  search.SetBound(5);
  ASSERT_TRUE(search.Go(kPatience));
  EXPECT_EQ(search.Found()->size(), 4U);
}

// Nobody is quick in a wide room, and what was done before it came to the moments that it goes on from
// counts.
TEST(Search, CountsAllOfAPlanToItsBound) {
  Picture picture(10, "W" + std::string(28, ';') + "W");
  picture[0] = picture[9] = std::string(30, 'W');
  picture[1][1] = '1';
  picture[8][29] = 'T';
  for (const auto& [x, y] : {std::pair(27U, 1U), {2U, 8U}, {15U, 4U}}) picture[y][x] = 'D';
  const Hra begin = Play(picture, {.needed = 3});
  std::size_t most = 0;
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    Search search(begin, seed, {});
    search.SetBound(90);
    ASSERT_TRUE(search.Go(kPatience)) << seed;
    EXPECT_LT(search.Found()->size(), 90U) << seed;
    EXPECT_TRUE(After(begin, *search.Found()).Win) << seed;
    most = std::max(most, search.Found()->size());
  }
  EXPECT_GT(most, 75U) << "it gives up sooner than it must";
}

TEST(Search, CountsEachTickThatItTries) {
  const Hra begin = Play({"1" + std::string(67, ';') + "DT"}, {.needed = 1});
  for (std::uint64_t seed = 1; seed <= 10; ++seed) {
    Search search(begin, seed, {});
    ASSERT_TRUE(search.Go(kPatience));
    ASSERT_GE(search.Found()->size(), 69U);
    EXPECT_GE(search.Ticks(), search.Found()->size()) << seed;
  }
}

TEST(Search, LeadsNoDogThroughCellsThatItShallAvoid) {
  const Hra begin = Play({"WWWWWWW", "W1;D;;T", "W;;;;;W", "WWWWWWW"}, {.needed = 1});
  Search search(begin, 1, {});
  search.Avoid(Only({2, 1}));
  ASSERT_TRUE(search.Go(kPatience));
  Hra run = begin;
  for (const Move move : *search.Found()) {
    Tick(run, KeysOf(move));
    EXPECT_NE(UnitCell(run, 1), std::optional(Cell(2, 1)));
  }
  EXPECT_TRUE(run.Win);
}

// The boulder lies on earth at the end of a nook, over a bomb that opens the wall before the finish: there is
// one cell among many to take away, and who stands in it gains nothing. A gem beyond those that are needed
// may lie there as well, or a key.
void ExpectLetFall(char held, bool left) {
  Picture picture{"WWWWWWWWWWWWWWWWWWWWWWWWW", "W1D;;;;;;;;;;;;;;;;;;WWWW", "W;;;;;;;;;;;;;;;;;;;;WWWW",
                  "W;;;;;;;;;;;;;;;;;;;;WRWW", "W;;;;;;;;;;;;;;;;;;;;;;WW", "W;;;;;;;;;;;;;;;;;;;;W.WW",
                  "W;;;;;;;;;;;;;;;;;;;;W.WW", "W;;;;;;;;;;;;;;;;;;;;WIWW", "W;;;;;;;;;;;;;;;;;;;;XXXW",
                  "WWWWWWWWWWWWWWWWWWWWWWTWW", "WWWWWWWWWWWWWWWWWWWWWWWWW"};
  picture[4][22] = held;
  for (std::string& row : picture) {
    if (left) std::reverse(row.begin(), row.end());
  }
  const Hra begin = Play(picture, {.needed = 1});
  std::uint64_t ticks = 0;
  for (std::uint64_t seed = 1; seed < 9; ++seed) {
    Search search(begin, seed, {});
    ASSERT_TRUE(search.Go(kPatience)) << seed;
    ticks += search.Ticks();
  }
  EXPECT_LT(ticks, 10'000U) << held << left << ": by chance alone it takes several times as long";
}

TEST(Search, LetsFallWhatLies) {
  for (const char held : {';', 'D', '#'}) {
    ExpectLetFall(held, false);
    ExpectLetFall(held, true);
  }
}

// The most gems that are had where the boulder can fall on the bomb and open the way to the gem. The finish
// is at this column of the last row, too far off to be reached within the bound.
int MostGemsBesideAFinish(std::size_t column) {
  Picture picture{"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", "WWWWRWWWWWWWWWWWWWWWWWWWWWWWWW",
                  "W1;;;;;;;;;;;;;;;;;;;;;;;;;;;W", "WWWW.WWWWWWWWWWWWWWWWWWWWWWW;W",
                  "WWWW.XWWWWWWWWWWWWWWWWWWWWWW;W", "WWWXIXDWWWWWWWWWWWWWWWWWWWWW;W",
                  "WWWWWWWWWW;;;;;;;;;;;;;;;;;;;W"};
  picture[6].replace(column, 10 - column, std::string(10 - column, ';'));
  picture[6][column] = 'T';
  int most = 0;
  for (std::uint64_t seed = 1; seed < 6; ++seed) {
    Search search(Play(picture, {.needed = 0}), seed, {});
    search.SetBound(40);
    EXPECT_FALSE(search.Go(20'000)) << seed;
    most = std::max(most, search.MostGems());
  }
  return most;
}

TEST(Search, DoesNotGoOnWithWhatIsLost) {
  EXPECT_EQ(MostGemsBesideAFinish(8), 1);
  EXPECT_EQ(MostGemsBesideAFinish(5), 0) << "the bomb burns the only finish";
}

// All of the time counts, to its last tick.
TEST(Search, UsesTheWholeTime) {
  const Hra begin = Play({"1" + std::string(47, ';') + "DT"}, {.time = 5, .needed = 1});
  Search search(begin, 1, {});
  ASSERT_TRUE(search.Go(kPatience));
  EXPECT_LE(search.Found()->size(), 50U);
}

TEST(Solver, GoesOnWhereItStopped) {
  Solver solver(Play(kNoFinish, {.needed = 9}), 1);
  solver.Go(2000);
  EXPECT_GE(solver.Ticks(), 2000U);
  EXPECT_LT(solver.Ticks(), 3000U);
  solver.Go(2000);
  EXPECT_GE(solver.Ticks(), 4000U);
  EXPECT_LT(solver.Ticks(), 6000U);
}

TEST(Solver, RemembersTheMostGemsOfAllItsSearches) {
  Solver solver(Play(kNoFinish, {.needed = 9}), 1);
  int most = 0;
  for (int i = 0; i < 100; ++i) {
    solver.Go(500);
    EXPECT_GE(solver.MostGems(), most);
    most = solver.MostGems();
  }
  EXPECT_EQ(most, 3);
}

TEST(Solver, FindsAlsoWithLittleMemory) {
  const Hra begin = Play({"WWWWWWWW", "W1;D;D;W", "W;;;;;;T", "WWWWWWWW"}, {.needed = 2});
  Solver solver(begin, 1, 1);
  ASSERT_TRUE(solver.Go(kPatience));
  EXPECT_TRUE(After(begin, *solver.Found()).Win);
}

// The amoeba becomes gems when it has filled its room, long after the time is up.
TEST(Search, KeepsNoMomentAfterTheTimeIsUp) {
  const Hra begin = Play({"WWWWWWWWW", "W1;;;;;;W", "WWWWWWWWW", "WA..WWWWW", "WWWWWWWWW"}, {.time = 1});
  Search search(begin, 1, {});
  search.Go(20'000);
  EXPECT_LE(search.BestPlan().size(), 10U);
}

TEST(Search, ChoosesNoDogThatIsSteeredAlready) {
  const Hra begin = Play({"1;D;;W", "WWWWWW", "2;;;;T"}, {.needed = 1});
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    Search search(begin, seed, {});
    ASSERT_TRUE(search.Go(kPatience));
    Hra run = begin;
    for (const Move move : *search.Found()) {
      const bool chosen = move >= kChooseBase && run.ActiveDog == move - kChooseBase;
      EXPECT_FALSE(chosen) << seed;
      Tick(run, KeysOf(move));
    }
  }
}

// The second dies at once, beside a firefly, so that there is nobody to change to.
TEST(Search, ChoosesOnlyUnitsThatLive) {
  const Hra begin = Play(
      {"1;D;;;;;D;;;T", "WWWWWWWWWWWWW", "WWWWWWWWWWWWW", "W2FWWWWWWWWWW", "WWWWWWWWWWWWW"}, {.needed = 2});
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    Search search(begin, seed, {});
    ASSERT_TRUE(search.Go(kPatience));
    Hra run = begin;
    for (const Move move : *search.Found()) {
      if (move >= kChooseBase) {
        EXPECT_TRUE(run.Dog[static_cast<std::size_t>(move - kChooseBase)].Alive) << seed;
      }
      Tick(run, KeysOf(move));
    }
  }
}

}  // namespace
}  // namespace zorik::test
