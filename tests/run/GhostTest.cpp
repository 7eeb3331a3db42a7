#include <gtest/gtest.h>

#include <filesystem>

#include "data/Files.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "run/Ghost.h"
#include "support/OneStepCave.h"
#include "support/RandomCave.h"
#include "support/Scene.h"

namespace zorik {
namespace {

using test::Keys;
using test::Picture;

// The dog has three steps to the finish, which is open at once, and room below to go elsewhere.
Picture Hall() {
  return {"WWWWWW", "W1..TW", "W....W", "WWWWWW"};
}

std::string HallText() {
  test::Numbers numbers;
  numbers.needed = 0;
  return test::CaveTextOf(Hall(), numbers);
}

// The record of the run that goes there with so many ticks of waiting in front.
std::string RecordOfHall(int waiting = 0) {
  Hra hra(1);
  hra.PlayerName = "Ada";
  EXPECT_TRUE(PaintCave(hra, HallText(), RunKind::Play));
  test::Pass(hra, waiting);
  EXPECT_EQ(test::Pass(hra, 3, "R"), TickEnd::Won);
  return SaveRecord(hra, hra.Win->Score);
}

Hra PlayHall() {
  Hra hra(2);
  EXPECT_TRUE(PaintCave(hra, HallText(), RunKind::Play));
  return hra;
}

// Where the ghost is seen, as "number at x,y".
std::string Seen(const Ghost& ghost, const Hra& run) {
  std::string seen;
  for (const Ghost::Place& place : ghost.Beside(run)) {
    if (!seen.empty()) seen += "; ";
    seen += std::to_string(place.number) + " at " + std::to_string(place.cell.x()) + "," +
            std::to_string(place.cell.y());
  }
  return seen;
}

TEST(AGhost, GoesBesideTheRunTickByTick) {
  auto ghost = Ghost::Of(RecordOfHall(), HallText());
  ASSERT_TRUE(ghost);
  Hra run = PlayHall();
  ghost->Follow(run);
  EXPECT_EQ(Seen(*ghost, run), "") << "both dogs are in the same place";
  test::Pass(run);
  ghost->Follow(run);
  EXPECT_EQ(Seen(*ghost, run), "1 at 2,1");
  test::Pass(run, 1, "R");
  ghost->Follow(run);
  EXPECT_EQ(Seen(*ghost, run), "1 at 3,1");
  EXPECT_EQ(ghost->Run().Ticks, 2);
}

TEST(AGhost, StandsStillWithTheRunAndCatchesUpWhenItIsLateToLookAtIt) {
  auto ghost = Ghost::Of(RecordOfHall(10), HallText());
  ASSERT_TRUE(ghost);
  Hra run = PlayHall();
  test::Pass(run, 11);
  ghost->Follow(run);
  ghost->Follow(run);
  EXPECT_EQ(ghost->Run().Ticks, 11);
  EXPECT_EQ(Seen(*ghost, run), "1 at 2,1");
}

TEST(AGhost, BeginsAgainWithTheRun) {
  auto ghost = Ghost::Of(RecordOfHall(), HallText());
  ASSERT_TRUE(ghost);
  Hra run = PlayHall();
  test::Pass(run, 3);
  ghost->Follow(run);
  EXPECT_EQ(Seen(*ghost, run), "1 at 4,1");
  RestartCave(run);
  ghost->Follow(run);
  EXPECT_EQ(Seen(*ghost, run), "");
  EXPECT_EQ(ghost->Strength(), 1);
  test::Pass(run);
  ghost->Follow(run);
  EXPECT_EQ(Seen(*ghost, run), "1 at 2,1");
}

TEST(AGhost, StaysInTheFinishAndFades) {
  auto ghost = Ghost::Of(RecordOfHall(), HallText());
  ASSERT_TRUE(ghost);
  Hra run = PlayHall();
  test::Pass(run, 3);
  ghost->Follow(run);
  EXPECT_EQ(ghost->Strength(), 1) << "it has just come there";
  double before = 1;
  for (int i = 0; i < 20; ++i) {
    test::Pass(run);
    ghost->Follow(run);
    EXPECT_EQ(Seen(*ghost, run), "1 at 4,1");
    EXPECT_LT(ghost->Strength(), before);
    before = ghost->Strength();
  }
  EXPECT_EQ(before, 0);
  test::Pass(run, 50);
  ghost->Follow(run);
  EXPECT_EQ(ghost->Strength(), 0);
}

TEST(AGhost, ShowsEveryFleaThatIsElsewhere) {
  test::Numbers numbers;
  numbers.needed = 0;
  for (const std::string dog : {"1", "2"}) {
    const Picture swarm = {"WWWWWWW", "W" + dog + "T...W", "WNN...W", "WWWWWWW"};
    const std::string text = test::CaveTextOf(swarm, numbers);
    Hra recorded(1);
    ASSERT_TRUE(PaintCave(recorded, text, RunKind::Play));
    test::Pass(recorded, 1, "0");
    test::Pass(recorded, 1, "R");
    test::Pass(recorded, 1, dog);
    ASSERT_EQ(test::Pass(recorded, 1, "R"), TickEnd::Won);
    auto ghost = Ghost::Of(SaveRecord(recorded, 0), text);
    ASSERT_TRUE(ghost);
    Hra run(2);
    ASSERT_TRUE(PaintCave(run, text, RunKind::Play));
    test::Pass(run, 2);
    ghost->Follow(run);
    EXPECT_EQ(Seen(*ghost, run), "0 at 3,2") << "the other flea is where one of the run is";
  }
}

TEST(AGhost, IsOfTheSameCaveWithAnyMarker) {
  const std::string text = HallText();
  EXPECT_FALSE(Ghost::Of(RecordOfHall(), text + "---07")) << "the record has none, so its text is another";
  Hra marked(1);
  ASSERT_TRUE(PaintCave(marked, text + "---03", RunKind::Play));
  ASSERT_EQ(test::Pass(marked, 3, "R"), TickEnd::Won);
  const std::string bytes = SaveRecord(marked, 0);
  EXPECT_TRUE(Ghost::Of(bytes, text + "---07"));
  test::Numbers other;
  other.needed = 0;
  other.name = "Jina";
  EXPECT_FALSE(Ghost::Of(bytes, test::CaveTextOf(Hall(), other) + "---03"));
}

TEST(AGhost, IsNoneOfARecordThatDoesNotWin) {
  const std::string whole = RecordOfHall();
  EXPECT_FALSE(Ghost::Of("", HallText()));
  EXPECT_FALSE(Ghost::Of("nothing\r\nof the\r\nkind", HallText()));
  EXPECT_FALSE(Ghost::Of(whole.substr(0, whole.rfind("\r\n")), HallText())) << "its last tick is missing";
  EXPECT_FALSE(Ghost::Of(whole.substr(0, whole.rfind("\r\n")) + "\r\n\r\n", HallText()))
      << "it begins again for ever";
}

// The dog takes a gem and goes into the finish; each step asks for chance.
TEST(AGhost, IsNoneOfARecordThatRunsDry) {
  const Picture picture = {"WWWWW", "W1DTW", "WWWWW"};
  test::Numbers numbers;
  numbers.needed = 0;
  const auto record = [&](const std::vector<int>& first, const std::vector<int>& last) {
    return test::RecordOf(
        picture,
        {{.before = {1}, .direction = 39, .after = first}, {.before = {1}, .direction = 39, .after = last}},
        numbers);
  };
  const std::string text = test::CaveTextOf(picture, numbers);
  EXPECT_TRUE(Ghost::Of(record({1}, {1}), text));
  EXPECT_FALSE(Ghost::Of(record({}, {1}), text));
  EXPECT_FALSE(Ghost::Of(record({1}, {}), text)) << "in the tick of its win";
}

TEST(AGhost, ComesOfNoDamagedRecordToAnyHarm) {
  const std::string whole = RecordOfHall(5);
  Chance chance(9);
  int ghosts = 0;
  for (int i = 0; i < test::HowMany(300); ++i) {
    auto ghost = Ghost::Of(test::Damaged(whole, chance), HallText());
    if (!ghost) continue;
    ++ghosts;
    Hra run = PlayHall();
    for (int tick = 0; tick < 40; ++tick) {
      test::Pass(run);
      ghost->Follow(run);
      EXPECT_LE(ghost->Beside(run).size(), 1U);
    }
  }
  EXPECT_LT(ghosts, 300);
}

// Plays a cave with keys that nobody has thought about, and answers the record so far, which is not won as a
// rule.
std::string PlayedBeside(const std::string& caveText, std::uint64_t seed, Ghost* ghost) {
  Hra run(seed);
  EXPECT_TRUE(PaintCave(run, caveText, RunKind::Play));
  constexpr std::string_view kHeld = "RDLU";
  for (int tick = 0; tick < 120 && !run.Win; ++tick) {
    Tick(run, Keys(kHeld.substr((seed + static_cast<std::size_t>(tick) / 3) % 4, 1)));
    if (ghost == nullptr) continue;
    ghost->Follow(run);
    static_cast<void>(ghost->Beside(run));
  }
  return run.RecordText;
}

TEST(ARunWithAGhost, HasTheSameRecordAsOneWithout) {
  int caves = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZORIK_RECORDS)) {
    if (entry.path().extension() != ".zkr") continue;
    const Result<std::string> bytes = ReadWhole(entry.path().string());
    ASSERT_TRUE(bytes);
    RecordLines lines(*bytes);
    const std::string text = ReadRecordHead(lines).CaveText;
    auto ghost = Ghost::Of(*bytes, text);
    if (!ghost) continue;
    ++caves;
    for (const std::uint64_t seed : {1U, 2U, 3U}) {
      EXPECT_EQ(PlayedBeside(text, seed, &*ghost), PlayedBeside(text, seed, nullptr)) << entry.path();
    }
  }
  EXPECT_GE(caves, 15) << "that many of these records win";
}

// The entrance is above steel, the exit under it.
TEST(AGhost, IsNowhereWhileItIsInTheTeleport) {
  test::Numbers numbers;
  numbers.needed = 0;
  const std::string text = test::CaveTextOf({"WW.WWWWWW", "W1SWWS.TW", "WWWWW.WWW"}, numbers);
  Hra recorded(1);
  ASSERT_TRUE(PaintCave(recorded, text, RunKind::Play));
  for (int tick = 0; tick < 20 && !recorded.Win; ++tick) test::Pass(recorded, 1, "R");
  ASSERT_TRUE(recorded.Win);
  auto ghost = Ghost::Of(SaveRecord(recorded, 0), text);
  ASSERT_TRUE(ghost);
  Hra run(2);
  ASSERT_TRUE(PaintCave(run, text, RunKind::Play));
  int riding = 0;
  while (!ghost->Run().Win) {
    test::Pass(run);
    ghost->Follow(run);
    const bool rides = ghost->Run().TeleportDogBusy;
    riding += rides ? 1 : 0;
    EXPECT_EQ(Seen(*ghost, run).empty(), rides) << run.Ticks;
  }
  EXPECT_GE(riding, 3);
}

// The second dog goes to the firefly, which blows up, and the first one goes its way over that place. In the
// run nobody has moved.
TEST(AGhost, OfADogThatHasDiedIsSeenNoMore) {
  test::Numbers numbers;
  numbers.needed = 0;
  const std::string text =
      test::CaveTextOf({"WWWWWWWWWWW", "W1;;;2;;;TW", "WWWWWWWFWWW", "WWWWWWWWWWW", "WWWWWWWWWWW"}, numbers);
  Hra recorded(1);
  ASSERT_TRUE(PaintCave(recorded, text, RunKind::Play));
  test::Pass(recorded, 1, "2");
  test::Pass(recorded, 2, "R");
  test::Pass(recorded, 10);
  ASSERT_FALSE(recorded.Dog[2].Alive);
  test::Pass(recorded, 1, "1");
  ASSERT_EQ(test::Pass(recorded, 8, "R"), TickEnd::Won);
  auto ghost = Ghost::Of(SaveRecord(recorded, 0), text);
  ASSERT_TRUE(ghost);
  Hra run(2);
  ASSERT_TRUE(PaintCave(run, text, RunKind::Play));
  for (int tick = 1; tick <= 22; ++tick) {
    test::Pass(run);
    ghost->Follow(run);
    if (tick == 2) {
      EXPECT_EQ(Seen(*ghost, run), "2 at 6,1");
    }
    if (tick > 14) {
      EXPECT_EQ(Seen(*ghost, run), "1 at " + std::to_string(tick - 13) + ",1");
    }
  }
}

}  // namespace
}  // namespace zorik
