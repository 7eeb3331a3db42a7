#include <gtest/gtest.h>

#include "solve/Followed.h"

namespace zorik::test {
namespace {

// A corridor of ten ticks with a shaft across it, in which a boulder falls.
Picture CorridorWithShaft(std::size_t x, std::size_t y) {
  Picture picture(14, "WWWWWWWW");
  for (std::string& row : picture) row[x] = '.';
  picture[9] = "W1....TW";
  picture[13] = "WWWWWWWW";
  picture[y][x] = 'R';
  return picture;
}

// Whether the dog steps to the place where the boulder was in the tick before: he finds it closed.
bool StepsBehind(const std::string& keys, std::size_t x, std::size_t y) {
  std::size_t steps = 0, tick = 0;
  while (steps < x - 1) steps += keys[tick++] == 'R' ? 1U : 0U;
  return tick == 10 - y;
}

// In each of these the dog rests for five ticks somewhere and has then no tick to spare. What is to be feared
// has passed by then or comes when he is gone, so it must not keep him.
TEST(OddsAlone, AreCertainWhereWhatFallsMeetsNobody) {
  int tried = 0;
  for (std::size_t rest = 0; rest < 5; ++rest) {
    const std::string keys = std::string(rest, 'R') + "....." + std::string(5 - rest, 'R');
    for (std::size_t x = 2; x < 6; ++x) {
      for (std::size_t y = 0; y < 9; ++y) {
        const Walk walk{CorridorWithShaft(x, y), {.time = 1, .needed = 0}, keys};
        const Result<Review> review = ReviewRecord(RecordOf(walk));
        if (!review || StepsBehind(keys, x, y)) continue;
        ++tried;
        EXPECT_TRUE(Alone(walk.picture, review->deeds, walk.numbers)) << keys << " " << x << "," << y;
      }
    }
  }
  EXPECT_GT(tried, 90);
}

// The dog digs away what bears a column of boulders, and rests until they have come down. Without that rest
// they would hit it, so it must be reckoned with, however long it is.
TEST(OddsAlone, RestAsLongAsWasRested) {
  int tried = 0;
  for (const std::size_t boulders : {1U, 2U, 3U, 4U}) {
    for (std::size_t rest = 0; rest < 12; ++rest) {
      Picture picture(16, "WWW.WWW");
      picture[0] = picture[15] = "WWWWWWW";
      picture[6] = "W1.;.TW";
      for (std::size_t i = 0; i < boulders; ++i) picture[5 - i][3] = 'R';
      const Walk walk{picture, {.needed = 0}, "Rr" + std::string(rest, '.') + "RRR"};
      const Result<Review> review = ReviewRecord(RecordOf(walk));
      if (!review) continue;
      ++tried;
      EXPECT_TRUE(Alone(picture, review->deeds)) << boulders << " " << rest;
    }
  }
  EXPECT_GT(tried, 20);
}

TEST(OddsAlone, DoNothingBeforeItsTick) {
  const Picture picture{"WWWWW", "W1.TW", "WWWWW"};
  for (const int tick : {10, 19, 20}) {
    const std::vector<Deed> deeds{Did('R', {1, 1}, kSpace), Did('R', {2, 1}, kFinish, tick)};
    EXPECT_EQ(Alone(picture, deeds, {.time = 2, .needed = 0}), tick < 20) << tick;
    EXPECT_FALSE(Alone(picture, deeds, {.time = 1, .needed = 0})) << tick;
  }
}

// To choose the swarm takes a tick, so does its step, and to choose the dog again.
TEST(OddsAlone, LetTheSwarmWaitForItsTick) {
  const Picture picture{"WWWWW", "W1TWW", "WWWWW", "WN.WW", "WWWWW"};
  for (const int tick : {0, 17, 18}) {
    Deed swarm;
    swarm.unit = 0;
    swarm.direction = 2;
    swarm.tick = tick;
    const std::vector<Deed> deeds{swarm, Did('R', {1, 1}, kFinish)};
    EXPECT_EQ(Alone(picture, deeds, {.time = 2, .needed = 0}), tick < 18) << tick;
    EXPECT_EQ(Alone(picture, deeds, {.time = 1, .needed = 0}), tick == 0) << tick;
  }
}

// The swarm makes room when it is its turn, and the dog, who has nowhere to go before, waits for that.
TEST(OddsAlone, LetTheSwarmMakeRoom) {
  const Picture picture{"WWWWWW", "W1N.TW", "WWW.WW", "WWW.WW", "WWWWWW"};
  std::vector<Deed> deeds(3);
  for (Deed& deed : deeds) deed.unit = 0;
  deeds[0].direction = 2;
  deeds[1].direction = deeds[2].direction = 3;
  for (const Deed& deed : {Did('R', {1, 1}, kSpace), Did('R', {2, 1}, kSpace), Did('R', {3, 1}, kFinish)})
    deeds.push_back(deed);
  // Two to choose, three steps of the swarm and three of the dog.
  EXPECT_TRUE(Alone(picture, deeds, {.time = 1, .needed = 0}));
  // Without a swarm nothing of that can be done.
  Picture empty = picture;
  empty[1][2] = '.';
  EXPECT_FALSE(Alone(empty, deeds));
  EXPECT_TRUE(Alone(empty, {deeds.begin() + 3, deeds.end()}));
}

// Something lies at the top of a shaft, the dog stands beside its bottom, and behind that is the finish.
Picture BesideShaft(std::size_t height, char thing, std::string below) {
  Picture picture(height, "WWW.WW");
  picture[0][3] = thing;
  picture.push_back("W1..TW");
  picture.push_back(std::move(below));
  picture.push_back("WWWWWW");
  return picture;
}
std::vector<Deed> TakeBesideShaft(int row, std::uint16_t code) {
  return {Did('R', {1, row}, kSpace), Did('R', {2, row}, code), Did('R', {3, row}, kFinish)};
}

// It could go through before that has come down, which is after 18 ticks.
TEST(OddsAlone, WaitForAnythingThatIsTakenToComeDown) {
  const std::string letters = "D!@#$";
  const std::array<std::uint16_t, 5> codes{kGem, kKeyRed, kKeyGreen, kKeyBlue, kCatKey};
  for (std::size_t i = 0; i < codes.size(); ++i) {
    const Picture picture = BesideShaft(18, letters[i], "WWWWWW");
    EXPECT_TRUE(Alone(picture, TakeBesideShaft(18, codes[i]), {.time = 3, .needed = 0})) << letters[i];
    EXPECT_FALSE(Alone(picture, TakeBesideShaft(18, codes[i]), {.time = 1, .needed = 0})) << letters[i];
  }
  EXPECT_TRUE(Alone(BesideShaft(18, 'R', "WWWWWW"), TakeBesideShaft(18, kSpace), {.time = 1, .needed = 0}));
}

TEST(OddsAlone, WaitLongForAGem) {
  EXPECT_TRUE(Alone(BesideShaft(54, 'D', "WWWWWW"), TakeBesideShaft(54, kGem), {.needed = 1}));
}

// The first gem falls past the cell; the second one comes to rest there, on the first.
TEST(OddsAlone, TakeNoGemThatStillFalls) {
  for (std::size_t row = 3; row < 14; ++row) {
    Picture picture = BesideShaft(18, 'D', "WWW.WW");
    picture[row][3] = 'D';
    EXPECT_TRUE(Alone(picture, TakeBesideShaft(18, kGem), {.needed = 1})) << row;
  }
}

// A boulder comes down to where one was pushed aside; it falls into the hole behind.
TEST(OddsAlone, WaitForTheBoulderThatWasPushed) {
  Picture picture(12, "WWW.WWWW");
  picture[0][3] = 'R';
  picture.insert(picture.end(), {"W1....TW", "WWWW.WWW", "WWWWWWWW"});
  const std::vector<Deed> deeds{Did('R', {1, 12}, kSpace), Did('R', {2, 12}, kBoulder),
                                Did('R', {5, 12}, kFinish)};
  for (std::uint64_t seed = 1; seed < 9; ++seed) {
    EXPECT_TRUE(Alone(picture, deeds, {.needed = 0}, seed)) << seed;
    EXPECT_FALSE(Alone(picture, deeds, {.time = 1, .needed = 0}, seed)) << seed;
  }
}

// At arm's length too: what was pushed there is waited for, though the cell is free now.
TEST(OddsAlone, WaitForWhatIsPushedAtArmsLength) {
  Picture picture(12, "WWW.WWWW");
  picture[0][3] = 'R';
  picture.insert(picture.end(), {"W1....TW", "WWWW.WWW", "WWWWWWWW"});
  const std::vector<Deed> deeds{Did('r', {2, 12}, kBoulder), Did('R', {5, 12}, kFinish)};
  EXPECT_TRUE(Alone(picture, deeds, {.time = 10, .needed = 0}));
  EXPECT_FALSE(Alone(picture, deeds, {.time = 1, .needed = 0}));
}

// The boulder falls away in the first tick, which is what the deed was about.
TEST(OddsAlone, PushWhatCannotMoveAsideIfItWasNotMoved) {
  const Picture picture{"WWWWWW", "W1RWTW", "WW...W", "WWWWWW"};
  const std::vector<Deed> deeds{Did('r', {1, 1}, kBoulder), Did('R', {1, 1}, kSpace),
                                Did('U', {4, 2}, kFinish)};
  EXPECT_FALSE(Alone(picture, deeds));
  const Picture deep{"WWWWWW", "W1RWTW", "WW...W", "WW.WWW", "WWWWWW"};
  EXPECT_TRUE(Alone(deep, deeds));
}

TEST(OddsAlone, PushABoulderAndABoxOutOfTheWay) {
  const Picture boulder{"WWWWWWWW", "W1R...TW", "WWW.WWWW", "WWWWWWWW"};
  for (std::uint64_t seed = 1; seed < 12; ++seed) {
    EXPECT_TRUE(Alone(boulder, {Did('R', {1, 1}, kBoulder), Did('R', {5, 1}, kFinish)}, {.needed = 0}, seed));
    EXPECT_TRUE(Alone({"WWWWWWW", "WTK1.WW", "WWWWWWW"},
                      {Did('R', {3, 1}, kSpace), Did('L', {4, 1}, kSpace), Did('L', {3, 1}, kBox),
                       Did('L', {2, 1}, kFinish)},
                      {.needed = 0}, seed));
  }
  EXPECT_TRUE(Alone(
      {"WWWWWWWW", "W1K...WW", "WWWWTWWW", "WWWWWWWW"},
      {Did('R', {1, 1}, kBox), Did('R', {2, 1}, kBox), Did('R', {3, 1}, kBox), Did('D', {4, 1}, kFinish)},
      {.time = 1, .needed = 0}));
}

TEST(OddsAlone, PassOverWhatIsDoneAlready) {
  const Picture picture{"WWWWWWWW", "W..W1.TW", "W;.WWWWW", "WWWWWWWW"};
  const std::vector<Deed> rest{Did('R', {4, 1}, kSpace), Did('R', {5, 1}, kFinish)};
  const auto with = [&rest](const Deed& first) {
    std::vector<Deed> deeds{first};
    deeds.insert(deeds.end(), rest.begin(), rest.end());
    return deeds;
  };
  EXPECT_TRUE(Alone(picture, rest));
  // Nobody comes to where these were done from.
  EXPECT_TRUE(Alone(picture, with(Did('r', {1, 1}, kDirt))));
  EXPECT_TRUE(Alone(picture, with(Did('r', {1, 1}, kGem))));
  EXPECT_FALSE(Alone(picture, with(Did('d', {1, 1}, kDirt))));
  EXPECT_FALSE(Alone(picture, with(Did('r', {1, 1}, kBoulder))));
  EXPECT_FALSE(Alone(picture, with(Did('r', {1, 1}, kBox))));
  EXPECT_FALSE(Alone(picture, with(Did('R', {1, 1}, kSpace))));
  EXPECT_FALSE(Alone(picture, with(Did('R', {1, 1}, kGem))));
  // What changed nothing and moved nobody was tried in vain.
  Deed vain = Did('R', {1, 1}, kBoulder);
  vain.moved = vain.changed = false;
  EXPECT_TRUE(Alone(picture, with(vain)));
  vain.moved = true;
  EXPECT_FALSE(Alone(picture, with(vain)));
}

// A step to where a monster had just been changes the dog's cell only.
TEST(OddsAlone, TakeEveryStepForADeed) {
  Deed last = Did('R', {1, 1}, kFinish);
  last.changed = false;
  EXPECT_TRUE(Alone({"WWWW", "W1TW", "WWWW"}, {last}));
}

// Where it was taken from cannot be come to, but the thing can.
TEST(OddsAlone, TakeFromAnywhereWhatOnlyHasToBeTaken) {
  const std::string letters = "D!@#$";
  const std::array<std::uint16_t, 5> codes{kGem, kKeyRed, kKeyGreen, kKeyBlue, kCatKey};
  for (std::size_t i = 0; i < codes.size(); ++i) {
    Picture picture{"WWWWWWWW", "W1....TW", "WWWWWWWW"};
    picture[1][3] = letters[i];
    const Deed finish = Did('R', {5, 1}, kFinish);
    EXPECT_TRUE(Alone(picture, {Did('D', {3, 0}, codes[i]), finish})) << letters[i];
    EXPECT_FALSE(Alone(picture, {Did('d', {3, 0}, codes[i]), finish})) << letters[i];
    EXPECT_FALSE(Alone(picture, {Did('D', {6, 0}, codes[i]), finish})) << letters[i];
    EXPECT_FALSE(Alone(picture, {Did('D', {3, 0}, kSpace), finish})) << letters[i];
  }
}

TEST(OddsAlone, GoALongWayToADeed) {
  const Picture picture{std::string(90, 'W'), "W1" + std::string(86, ';') + "TW", std::string(90, 'W')};
  EXPECT_TRUE(Alone(picture, {Did('R', {87, 1}, kFinish)}, {.time = 9, .needed = 0}));
}

TEST(OddsAlone, ChooseTheDogOfADeedIfItLives) {
  const Picture picture{"WWWWWWW", "W1W2.TW", "WWWWWWW"};
  EXPECT_TRUE(Alone(picture, {By(2, Did('R', {3, 1}, kSpace)), By(2, Did('R', {4, 1}, kFinish))}));
  EXPECT_FALSE(Alone(picture, {Did('R', {3, 1}, kSpace), Did('R', {4, 1}, kFinish)}));
  // There is no third, and nobody does what he did.
  const Picture one{"WWWWWWW", "W2W1.TW", "WWWWWWW"};
  EXPECT_TRUE(Alone(one, {Did('R', {3, 1}, kSpace), Did('R', {4, 1}, kFinish)}));
  EXPECT_FALSE(Alone(one, {By(3, Did('R', {3, 1}, kSpace)), Did('R', {4, 1}, kFinish)}));
}

}  // namespace
}  // namespace zorik::test
