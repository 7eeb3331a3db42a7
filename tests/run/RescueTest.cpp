#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "data/Result.h"
#include "run/Rescue.h"
#include "support/RandomCave.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

constexpr std::uint64_t kEnough = 400'000;  // ticks

Timeline TimelineOf(Hra run, const std::vector<std::string>& keys) {
  run.Kind = RunKind::Practice;
  Timeline timeline(run);
  for (const std::string& held : keys) {
    Tick(run, Keys(held));
    timeline.Add(run, Keys(held));
  }
  return timeline;
}

std::optional<Escape> RescueOf(const Timeline& timeline) {
  Rescue rescue(timeline);
  EXPECT_TRUE(rescue.Go(kEnough));
  return rescue.Found();
}

std::unique_ptr<Hra> Followed(const Timeline& timeline, const Escape& escape) {
  auto run = timeline.At(escape.tick);
  TakeOver(*run);
  for (const Move move : escape.moves) Tick(*run, KeysOf(move));
  return run;
}

// Whether some of all ways to spend so many ticks leaves a dog alive, and after them so many idle ones.
bool AnyWayOut(const Hra& run, int ticks, int idle) {
  if (ticks == 0) {
    const auto copy = std::make_unique<Hra>(run);
    Pass(*copy, idle);
    return LiveDogs(*copy) > 0;
  }
  for (Move move = kWait; move < kChooseBase; ++move) {
    const auto copy = std::make_unique<Hra>(run);
    Tick(*copy, KeysOf(move));
    if (AnyWayOut(*copy, ticks - 1, idle)) return true;
  }
  return false;
}

// The dog lets a boulder come down on itself.
TEST(Rescue, FindsTheLastTickInWhichSteppingAsideWouldHaveHelped) {
  const Picture picture{"WWWWWW", "WWRWWW", "WW;WWW", "WW;;;W", "WW1WWW", "WWWWWW"};
  const Timeline timeline = TimelineOf(Play(picture), {"U", "U", "D", "D", "", "", "", ""});
  ASSERT_EQ(LiveDogs(*timeline.At(timeline.Length())), 0);
  const auto escape = RescueOf(timeline);
  ASSERT_TRUE(escape);
  EXPECT_GT(LiveDogs(*Followed(timeline, *escape)), 0);
  const int death = timeline.Events().back().tick;
  EXPECT_LT(escape->tick, death);
  const int left = death - escape->tick - 1;
  ASSERT_LE(left, 4);
  EXPECT_FALSE(AnyWayOut(*timeline.At(escape->tick + 1), left, 10));
}

TEST(Rescue, FindsNothingForOneWhoCouldNotMove) {
  const Timeline timeline = TimelineOf(Live({"WrW", "W.W", "W1W", "WWW"}), {"", "", "", "", ""});
  ASSERT_EQ(LiveDogs(*timeline.At(timeline.Length())), 0);
  EXPECT_FALSE(RescueOf(timeline));
}

TEST(Rescue, FindsNothingWhereNobodyHasDied) {
  EXPECT_FALSE(RescueOf(TimelineOf(Play({"1;;;"}), {"R", "R"})));
  EXPECT_FALSE(RescueOf(TimelineOf(Play({"1;;W2", "WWWWW"}), {})));
}

// While another lives nobody asks.
TEST(Rescue, IsOfTheLastUnitAlone) {
  const Timeline timeline = TimelineOf(Live({"WrWWWW", "W.WWWW", "W1W2;W", "WWWWWW"}), {"", "", "", "", ""});
  ASSERT_EQ(LiveDogs(*timeline.At(timeline.Length())), 1);
  EXPECT_FALSE(RescueOf(timeline));
}

TEST(Rescue, ComesToTheSameInSlices) {
  const Picture picture{"WWWWWW", "WWRWWW", "WW;WWW", "WW;;;W", "WW1WWW", "WWWWWW"};
  const Timeline timeline = TimelineOf(Play(picture), {"U", "U", "D", "D", "", "", "", ""});
  Rescue rescue(timeline);
  int slices = 1;
  while (!rescue.Go(1)) ++slices;
  EXPECT_GT(slices, 8) << "from one tick each of the moves of a dog is tried";
  const auto escape = RescueOf(timeline);
  ASSERT_TRUE(rescue.Found() && escape);
  EXPECT_EQ(rescue.Found()->tick, escape->tick);
  EXPECT_EQ(rescue.Found()->moves, escape->moves);
}

// Of a record, too: what is found holds for the run that takes it over there.
TEST(Rescue, KeepsAliveInEveryCaveWhomItSaysItWouldHaveKept) {
  int deaths = 0, saved = 0;
  const int many = HowMany(30);
  for (int i = 0; i < many; ++i) {
    SCOPED_TRACE("random run " + std::to_string(i));
    const RandomRun random = MakeRun(static_cast<std::uint64_t>(i));
    const auto played = std::make_unique<Hra>(random.seed);
    ASSERT_TRUE(PaintCave(*played, random.caveText, RunKind::Play));
    for (const KeySnapshot& keys : random.keys) Tick(*played, keys);
    const auto replay = std::make_unique<Hra>(4);
    ASSERT_TRUE(Replay(*replay, SaveRecord(*played, 0)));
    const Timeline timeline = WholeReplay(*replay);
    Rescue rescue(timeline);
    rescue.Go(10'000);
    const auto last = timeline.At(timeline.Length());
    if (timeline.Events().empty() || LiveDogs(*last) > 0 || last->Win) {
      EXPECT_FALSE(rescue.Found());
      continue;
    }
    ++deaths;
    if (!rescue.Found()) continue;
    ++saved;
    EXPECT_GT(LiveDogs(*Followed(timeline, *rescue.Found())), 0);
  }
  EXPECT_GT(deaths, many / 10);
  EXPECT_GT(saved, deaths / 4);
}

// It runs below a falling boulder out of a wide place, in which it could have spent its time in many ways.
TEST(Rescue, TellsOneWhoNeedOnlyHaveWaitedToWait) {
  const Picture picture{"WWWWWWWW", "WWWWWrWW", "WWWWW.WW", "W;;;W.WW", "W;;;1.WW", "W;;;WWWW", "WWWWWWWW"};
  const Timeline timeline = TimelineOf(Live(picture), {"", "R", "R", "", ""});
  ASSERT_EQ(LiveDogs(*timeline.At(timeline.Length())), 0);
  const auto escape = RescueOf(timeline);
  ASSERT_TRUE(escape);
  EXPECT_EQ(escape->tick, 1);
  EXPECT_EQ(std::count(escape->moves.begin(), escape->moves.end(), kWait),
            static_cast<std::ptrdiff_t>(escape->moves.size()));
}

// Two dogs below falling boulders, of which only that one can step aside that nobody steered.
TEST(Rescue, ChoosesTheUnitThatCanStillBeSaved) {
  struct Case {
    Picture picture;
    const char* steered;
    int saved;
  };
  const std::vector<Case> cases{
      {{"WrWrWWW", "W.W.WWW", "W.W.WWW", "W.W.WWW", "W.W.WWW", "W1W2;;W", "WWWWWWW"}, "", 2},
      {{"WrWrWWW", "W.W.WWW", "W.W.WWW", "W.W.WWW", "W.W.WWW", "W2W1;;W", "WWWWWWW"}, "2", 1},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.saved);
    const Timeline timeline = TimelineOf(Live(one.picture), {one.steered, "", "", "", "", "", "", "", ""});
    ASSERT_EQ(LiveDogs(*timeline.At(timeline.Length())), 0);
    const auto escape = RescueOf(timeline);
    ASSERT_TRUE(escape);
    EXPECT_EQ(std::count(escape->moves.begin(), escape->moves.end(), kChooseBase + one.saved), 1);
    const auto after = Followed(timeline, *escape);
    EXPECT_EQ(LiveDogs(*after), 1);
    EXPECT_TRUE(after->Dog[static_cast<std::size_t>(one.saved)].Alive);
  }
}

TEST(Rescue, LooksBackAsFarAsItIsAskedToAndTwoSecondsBeyondTheDeath) {
  const Picture picture{"WWWWWW", "WWRWWW", "WW;WWW", "WW;;;W", "WW1WWW", "WWWWWW"};
  const Timeline timeline = TimelineOf(Play(picture), {"U", "U", "D", "D", "", "", "", ""});
  const auto escape = RescueOf(timeline);
  ASSERT_TRUE(escape);
  const int death = timeline.Events().back().tick;
  EXPECT_EQ(escape->tick + static_cast<int>(escape->moves.size()), death + 2 * kTicksPerSecond);
  const int back = death - escape->tick;
  for (const int far : {back, back - 1}) {
    Rescue rescue(timeline, far);
    EXPECT_TRUE(rescue.Go(kEnough));
    EXPECT_EQ(rescue.Found().has_value(), far == back) << far;
  }
}

}  // namespace
}  // namespace zorik::test
