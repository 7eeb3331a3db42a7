#include <gtest/gtest.h>

#include "solve/Followed.h"

namespace zorik::test {
namespace {

// Ticks that are waited for a deed beyond its time, and tries at pushing; a few more are asked on the way.
constexpr int kPatience = 150, kTries = 60, kFew = 12;

// Whether somebody alone loses after so long.
void ExpectLost(const Picture& picture, const std::vector<Deed>& deeds, int ticks) {
  const Followed followed = Follow(picture, deeds, {.needed = 0}, 0);
  EXPECT_FALSE(followed.won);
  EXPECT_GE(followed.asked, ticks);
  EXPECT_LE(followed.asked, ticks + kFew);
}

TEST(OddsPatience, EndsWhereADeedCannotBeDone) {
  const Deed finish = Did('R', {3, 1}, kFinish);
  // A gem that does not come.
  ExpectLost({"WWWWWW", "W1..TW", "WWWWWW"}, {Did('R', {1, 1}, kGem), finish}, kPatience);
  // A boulder in its place.
  ExpectLost({"WWWWWW", "W1R.TW", "WWWWWW"}, {Did('R', {1, 1}, kGem), finish}, kPatience);
  // A boulder, and no room behind it.
  ExpectLost({"WWWWWW", "W1R;TW", "WWWWWW"}, {Did('R', {1, 1}, kBoulder), finish}, kPatience);
  // A wall.
  ExpectLost({"WWWWWW", "W1.WTW", "WWWWWW"}, {Did('R', {2, 1}, kSpace), finish}, kPatience);
  // A place where nobody comes to.
  ExpectLost({"WWWWWW", "W1W.TW", "WWWWWW"}, {finish}, 0);
}

TEST(OddsPatience, EndsWithTheSixtiethPushInVain) {
  ExpectLost({"WWWWWW", "WK1TWW", "WWWWWW"}, {Did('l', {2, 1}, kBox), Did('R', {2, 1}, kFinish)}, kTries);
  ExpectLost({"WWWWWW", "WR1TWW", "WWWWWW"}, {Did('l', {2, 1}, kBoulder), Did('R', {2, 1}, kFinish)}, kTries);
}

TEST(OddsPatience, EndsWhereNothingHasEverBeenDone) {
  ExpectLost({"WWWW", "W1TW", "WWWW"}, {}, 0);
}

// Fifty ticks of time, and a deed of the dog or of the swarm that is to come much later.
TEST(OddsPatience, EndsWithTheTime) {
  Deed swarm;
  swarm.unit = 0;
  swarm.tick = 1000;
  const Picture picture{"WWWWWWWW", "W1.TWN.W", "WWWWWWWW"};
  for (const Deed& late : {swarm, Did('R', {1, 1}, kSpace, 1000)}) {
    for (const int rescues : {0, 60}) {
      const Followed followed =
          Follow(picture, {late, Did('R', {2, 1}, kFinish)}, {.time = 5, .needed = 0}, rescues);
      EXPECT_FALSE(followed.won);
      EXPECT_GE(followed.asked, 48);
      EXPECT_LE(followed.asked, 50 + kFew);
    }
  }
}

// A firefly that turns in its pen: whoever comes by is killed.
TEST(OddsPatience, EndsWhereTheWayIsDeadlyAllTheTime) {
  ExpectLost({"WWWWWWWW", "W1.;..TW", "WWWFWWWW", "WWWWWWWW"}, {Did('R', {5, 1}, kFinish)}, 20);
}

// A deed whose prey is told, and behind it the finish.
bool Hunt(std::optional<Cell> prey, std::uint16_t kind, std::uint8_t mark, int time) {
  const Picture picture{"WWWWWWWW", "W1.TWWWW", "WWWWWWWW", "WFWWUWWW", "WWWWWWWW"};
  Deed step = Did('R', {1, 1}, kSpace);
  step.prey = prey;
  step.preyKind = kind;
  step.preyMark = mark;
  return Alone(picture, {step, Did('R', {2, 1}, kFinish)}, {.time = time, .needed = 0});
}

// The monsters turn in their pens, so each heading comes within four ticks.
TEST(OddsPatience, IsForPreyThatDoesNotComeInItsWay) {
  const Cell firefly(1, 3), butterfly(4, 3);
  EXPECT_TRUE(Hunt(std::nullopt, kFireFly, 1, 1));
  for (std::uint8_t mark = 1; mark < 5; ++mark) {
    EXPECT_TRUE(Hunt(firefly, kFireFly, mark, 1)) << int{mark};
    EXPECT_TRUE(Hunt(butterfly, kButterFly, mark, 1)) << int{mark};
  }
  struct Wrong {
    Cell place;
    std::uint16_t kind;
    std::uint8_t mark;
  };
  for (const Wrong& wrong : {Wrong{firefly, kFireFly, 7}, Wrong{firefly, kButterFly, 1},
                             Wrong{{2, 1}, kFireFly, 1}, Wrong{butterfly, kFireFly, 1}}) {
    EXPECT_FALSE(Hunt(wrong.place, wrong.kind, wrong.mark, 14));
    // Whoever has waited long enough does it nevertheless.
    EXPECT_TRUE(Hunt(wrong.place, wrong.kind, wrong.mark, 17));
  }
}

// A boulder falls on the dog, who has nothing to do for long; the deed lies aside.
TEST(OddsDodge, GoesOnEarlyBeforeItIsKilled) {
  for (std::size_t row = 0; row < 9; ++row) {
    Picture picture(10, "WW.WWWW");
    picture[row][2] = 'R';
    picture.insert(picture.end(), {"WW1..TW", "WWWWWWW"});
    EXPECT_TRUE(Alone(picture, {Did('R', {2, 10}, kSpace, 30), Did('R', {3, 10}, kSpace, 31),
                                Did('R', {4, 10}, kFinish, 32)}))
        << row;
  }
}

// Shafts from the first to the fifth column, which the dog's row crosses; in a sixth a gem comes down late.
Picture Shafts() {
  Picture picture(24, "W.....W.WW");
  picture[0] = "WWWWWWWDWW";
  picture.insert(picture.end(), {"W1......TW", "W......WWW", "W.....WWWW", "WWWWWWWWWW"});
  return picture;
}

// It goes to the gem and waits there; what falls through its row on the way and there it lets pass.
TEST(OddsDodge, LetsPassWhatFalls) {
  for (std::size_t x = 2; x < 6; ++x) {
    for (std::size_t y = 1; y < 24; ++y) {
      Picture picture = Shafts();
      picture[y][x] = 'R';
      if (x > 2) picture[y > 12 ? y - 6 : y + 6][x - 1] = 'R';
      EXPECT_TRUE(Alone(picture, {Did('R', {6, 24}, kGem), Did('R', {7, 24}, kFinish)}, {.needed = 1}))
          << x << "," << y;
    }
  }
}

// Round the corner below is the only place to go to. What the dog waits for does not come, so in the end it
// goes to the finish, if it lives.
TEST(OddsDodge, GoesRoundTheCorner) {
  for (const bool left : {true, false}) {
    for (std::size_t y = 4; y < 24; ++y) {
      Picture picture(24, "WWWWWWW.WWWWWWW");
      picture[y][7] = 'R';
      picture.insert(picture.end(), {"WWWWWWW1WWWWWWW", left ? "WT......WWWWWWW" : "WWWWWWW......TW",
                                     "WWWWWWW.WWWWWWW", "WWWWWWW.WWWWWWW", "WWWWWWWWWWWWWWW"});
      EXPECT_TRUE(Follow(picture, {Did('R', {7, 24}, kSpace)}, {.needed = 0}, 60).won) << left << " " << y;
    }
  }
}

TEST(OddsDodge, EndsWithTheLastDog) {
  Picture picture(10, "WW.WWWW");
  picture[1][2] = 'R';
  picture.insert(picture.end(), {"WW1WWWW", "WWWWWTW", "WWWWWWW"});
  for (const int rescues : {0, 60}) {
    const Followed followed = Follow(picture, {Did('R', {2, 10}, kGem)}, {.needed = 0}, rescues);
    EXPECT_FALSE(followed.won);
    EXPECT_LE(followed.asked, 20);
  }
}

// The first dog is hit while it waits, and the second lives on: nobody else does what the first has to do.
TEST(OddsDodge, LosesWithTheDogOfTheDeed) {
  Picture picture(10, "WW.WWWWWW");
  picture[1][2] = 'R';
  picture.insert(picture.end(), {"WW1WW2;TW", "WWWWWWWWW"});
  const Deed gem = Did('R', {2, 10}, kGem), dirt = By(2, Did('R', {5, 10}, kDirt, 40));
  const Deed finish = Did('R', {6, 10}, kFinish);
  EXPECT_FALSE(Alone(picture, {gem, dirt, By(2, finish)}));
  EXPECT_FALSE(Alone(picture, {dirt, finish}));
  EXPECT_TRUE(Alone(picture, {dirt, By(2, finish)}));
}

// A boulder is in the way of a dog on which another one falls: it moves at one try of four, so some get out.
// For those who do not nothing is tried any more.
TEST(OddsDodge, EndsOnTheWayWithTheDog) {
  int died = 0;
  for (std::uint64_t seed = 1; seed < 13; ++seed) {
    Picture picture(6, "WW.WWWWWWW");
    picture[1][2] = 'R';
    picture.insert(picture.end(), {"WW1R...T2W", "WWWW.WWWWW", "WWWWWWWWWW"});
    const std::vector<Deed> deeds{Did('R', {5, 6}, kSpace), By(2, Did('L', {8, 6}, kFinish))};
    const Followed followed = Follow(picture, deeds, {.needed = 0}, 0, seed);
    EXPECT_LE(followed.asked, 20) << seed;
    died += followed.won ? 0 : 1;
  }
  EXPECT_GT(died, 0);
}

// A firefly flies up and down the shaft in the eighth column, wherever it is at the start. Two ways cross it.
TEST(OddsDodge, CrossesTheWayOfAMonster) {
  // Many deeds that are done already come first.
  std::vector<Deed> steps(8, Did('r', {1, 1}, kGem));
  for (int x = 1; x < 9; ++x) steps.push_back(Did('R', {x, 4}, x == 7 ? kSpace : kDirt));
  const std::vector<Deed> rest{Did('R', {9, 4}, kGem), Did('R', {10, 4}, kDirt), Did('R', {11, 4}, kFinish)};
  steps.insert(steps.end(), rest.begin(), rest.end());
  for (const std::size_t row : {1U, 2U, 3U, 7U, 8U}) {
    for (const char firefly : std::string("FOPQ")) {
      Picture picture(10, "WWWWWWWW.WWWW");
      picture[0] = picture[9] = "WWWWWWWWWWWWW";
      picture[1][2] = '.';
      picture[4] = "W1;;;;;;.;D;T";
      picture[5] = "WWWWWWW;.;WWW";
      picture[6] = "WWWWWWW;.;WWW";
      picture[row][8] = firefly;
      EXPECT_TRUE(Alone(picture, steps, {.needed = 1})) << row << firefly;
      EXPECT_TRUE(Alone(picture, rest, {.needed = 1})) << row << firefly;
    }
  }
}

// A firefly circles round a block; it comes by the cell in which the dog waits in vain for the prey of its
// deed, steps back each time and returns.
TEST(OddsDodge, ReturnsToItsPlaceAfterwards) {
  const Picture ring{"WWWWWWWWWWWWWW", "WWWWWWW.....WW", "WWWWWWW.WWW.WW", "WT....1.WWW.WW",
                     "WWWWWWW.WWW.WW", "WWWWWWW.....WW", "WWWWWWWWWWWWWW"};
  Deed back = Did('L', {6, 3}, kSpace);
  back.prey = Cell(1, 1);
  struct Start {
    std::size_t x, y;
    char firefly;
  };
  for (const Start& start : {Start{11, 2, 'O'}, {11, 3, 'O'}, {9, 1, 'F'}, {10, 1, 'F'}, {9, 5, 'P'}}) {
    Picture picture = ring;
    picture[start.y][start.x] = start.firefly;
    const Followed followed =
        Follow(picture, {back, Did('L', {5, 3}, kSpace), Did('L', {2, 3}, kFinish)}, {.needed = 0}, 0);
    EXPECT_TRUE(followed.won) << start.x << "," << start.y;
    EXPECT_GE(followed.asked, kPatience);
  }
}

// A ride takes the dog to the other side, where it goes on at once: two steps, four ticks, three steps.
TEST(OddsRide, IsWaitedFor) {
  const Picture picture{"WWW.WWWWWW", "W1.SWWWWWW", "WWWWWWWWWW", "WWWWWS..TW", "WWWWW.WWWW", "WWWWWWWWWW"};
  const std::vector<Deed> deeds{Did('R', {1, 1}, kSpace), Did('R', {2, 1}, kSpace), Did('R', {5, 3}, kSpace),
                                Did('R', {6, 3}, kSpace), Did('R', {7, 3}, kFinish)};
  EXPECT_TRUE(Alone(picture, deeds, {.time = 1, .needed = 0}));
}

// The dog stepped off the pad again when the other one was taken. It is free now, and the dog is carried
// away: that is as good.
TEST(OddsRide, StandsForTheStepThatItPrevents) {
  const Picture picture{"WWW.WWWWWW", "W1.S.WWWWW", "WWWWWWWTWW", "WWWWWS...W", "WWWWW.WWWW", "WWWWWWWWWW"};
  const std::vector<Deed> deeds{Did('R', {2, 1}, kSpace), Did('R', {3, 1}, kSpace),
                                Did('U', {7, 3}, kFinish)};
  EXPECT_TRUE(Alone(picture, deeds));
}

// The second dog rides, and the first one, who is walled in, gets off in his place and goes on.
TEST(OddsRide, IsWaitedForByWhoGetsOff) {
  const Picture picture{"WWWWWWWWWWWW", "W1WWWWWWWWWW", "WWW.WWWWWWWW",
                        "W2;SWWS;D;TW", "WWWWWW.WWWWW", "WWWWWWWWWWWW"};
  const Review review = ReviewOf({picture, {.needed = 1}, "2RR....RRRR"});
  ASSERT_EQ(review.deeds.size(), 6U);
  EXPECT_TRUE(Alone(picture, review.deeds, {.time = 2, .needed = 1}));
  const std::vector<Deed> deeds{By(2, Did('R', {1, 3}, kDirt)), By(2, Did('R', {2, 3}, kSpace)),
                                Did('R', {6, 3}, kDirt), Did('R', {7, 3}, kGem), Did('R', {9, 3}, kFinish)};
  EXPECT_TRUE(Alone(picture, deeds, {.time = 2, .needed = 1}));
}

// The third dog is walled in; whoever comes from the ride does not do it for him.
TEST(OddsRide, MakesNobodyDoTheDeedOfAnother) {
  const Picture picture{"WWW.WWWWWW", "W2.SWWW3WW", "WWWWWWWWWW", "WWWWWS..TW", "WWWWW.WWWW", "WWWWWWWWWW"};
  for (const int unit : {2, 3}) {
    const std::vector<Deed> deeds{By(2, Did('R', {1, 1}, kSpace)), By(2, Did('R', {2, 1}, kSpace)),
                                  By(unit, Did('R', {7, 3}, kFinish))};
    EXPECT_EQ(Alone(picture, deeds), unit == 2);
  }
}

}  // namespace
}  // namespace zorik::test
