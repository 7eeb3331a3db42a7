#include <gtest/gtest.h>

#include "core/Machine.h"
#include "solve/Walks.h"

namespace zorik::test {
namespace {

// The words of things, one behind another.
std::string WordsOf(std::uint64_t things) {
  std::string words;
  for (std::size_t i = 0; i < kThings.size(); ++i) {
    if ((things >> i & 1U) != 0) words += (words.empty() ? "" : ", ") + std::string(kThings[i].word);
  }
  return words;
}

TEST(Things, AreNamedByTheirLetters) {
  for (const Thing& thing : kThings) {
    for (const char letter : thing.letters) {
      std::string row = ";1;?;";
      row[3] = letter;
      const std::string words = WordsOf(ThingsIn(Play({";;;;;", row, ";;;;;"})));
      EXPECT_EQ(words, letter >= '3' && letter <= '9' ? "dogs" : thing.word) << letter;
    }
  }
  EXPECT_EQ(WordsOf(ThingsIn(Play({";;;;;", ";1;W;", ";;;;T"}))), "");
}

TEST(Things, AreAlsoThoseOfSeveralCells) {
  EXPECT_EQ(WordsOf(ThingsIn(Play({";;;;;", ";;WEW", ";1;;;"}))), "splitter");
  EXPECT_EQ(WordsOf(ThingsIn(Play({";;;;;W;", ";1;S;S;", ";;;W;;;"}))), "teleport");
}

TEST(Deeds, TellWhatWasDoneToWhat) {
  const Review review = ReviewOf({{"WWWWW", "WD;;W", "W1;;W", "W;;;T", "WWWWW"}, {.needed = 1}, "u.DRRR"});
  ASSERT_GE(review.deeds.size(), 4U);
  const Deed& reach = review.deeds[0];
  EXPECT_EQ(reach.tick, 0);
  EXPECT_EQ(reach.unit, 1);
  EXPECT_EQ(reach.direction, 1);
  EXPECT_TRUE(reach.action);
  EXPECT_FALSE(reach.moved);
  EXPECT_TRUE(reach.changed);
  EXPECT_EQ(reach.from, Cell(1, 2));
  EXPECT_EQ(reach.target, Cell(1, 1));
  EXPECT_EQ(reach.found, kGem);
  const Deed& down = review.deeds[1];
  EXPECT_EQ(down.tick, 2);
  EXPECT_EQ(down.direction, 3);
  EXPECT_FALSE(down.action);
  EXPECT_TRUE(down.moved);
  EXPECT_EQ(down.target, Cell(1, 3));
  EXPECT_EQ(down.found, kDirt);
}

TEST(Deeds, AreStepsUpAndDownAlsoThroughSpace) {
  const Review review = ReviewOf({{"WWWW", "W.WW", "W1WW", "W.DT", "WWWW"}, {.needed = 1}, "UDDURDRR"});
  int up = 0, down = 0;
  for (const Deed& deed : review.deeds) {
    up += deed.moved && deed.direction == 1 ? 1 : 0;
    down += deed.moved && deed.direction == 3 ? 1 : 0;
  }
  EXPECT_EQ(up, 2);
  EXPECT_EQ(down, 3);
}

// The dog takes away at arm's length what the boulder lies upon, and steps out of the way of the blast.
const Picture kTrap{"WWWWWWWWWWW", "WWWWRWWWWWW", "W;;1;;D;;;T", "WWWW.WWWWWW",
                    "WWWW.WWWWWW", "WWWWFWWWWWW", "WWWWWWWWWWW"};
const std::string kDrop = "rLL" + std::string(12, '.') + "RRRRRRRRR";

TEST(Deeds, KnowTheMonsterThatWhatTheyLetFallHits) {
  const Review review = ReviewOf({kTrap, {.needed = 1}, kDrop});
  ASSERT_TRUE(Uses(review, "firefly"));
  ASSERT_FALSE(review.deeds.empty());
  const Deed& drop = review.deeds[0];
  EXPECT_EQ(drop.prey, std::optional(Cell(4, 5)));
  EXPECT_EQ(drop.preyKind, kFireFly);
  for (std::size_t i = 1; i < review.deeds.size(); ++i) EXPECT_EQ(review.deeds[i].prey, std::nullopt) << i;
}

TEST(Deeds, AreMeantForNoMonsterThatLivesOn) {
  Picture picture = kTrap;
  picture[5] = "WWWWWWFWWWW";
  const Review review = ReviewOf({picture, {.needed = 1}, kDrop});
  ASSERT_FALSE(review.deeds.empty());
  EXPECT_TRUE(review.deeds[0].changed) << "the boulder falls here, too";
  EXPECT_TRUE(review.touched[Cell(4, 4).place()]);
  EXPECT_EQ(review.deeds[0].prey, std::nullopt);
}

TEST(Deeds, OfTheSwarmAreItsSteps) {
  const Review review =
      ReviewOf({{"WWWWWWW", "WN..;;W", "WWWWWWW", "W1D;;;T", "WWWWWWW"}, {.needed = 1}, "0RL1RRRRR"});
  ASSERT_GE(review.deeds.size(), 2U);
  EXPECT_EQ(review.deeds[0].unit, 0);
  EXPECT_EQ(review.deeds[0].direction, 2);
  EXPECT_EQ(review.deeds[0].tick, 1);
  EXPECT_EQ(review.deeds[1].unit, 0);
  EXPECT_TRUE(Uses(review, "fleas"));
  EXPECT_FALSE(Uses(review, "dogs"));
}

TEST(Review, TakesTheChoiceOfADogForDoingSomething) {
  const Review review = ReviewOf({{"WWWWWWW", "W1D;;;T", "W2;;;;W", "WWWWWWW"}, {.needed = 1}, "2R1RRRRR"});
  EXPECT_EQ(review.idleTicks, 0);
  EXPECT_TRUE(Uses(review, "dogs"));
  EXPECT_FALSE(Uses(review, "fleas"));
}

const Picture kFour{"WWWWWWWWW", "W1;DDDD;T", "WWWWWWWWW"};

TEST(Review, TakesWhatIsDoneToOneKindOfThingInARowForOneDecision) {
  // The gems in a row, and the finish.
  EXPECT_EQ(ReviewOf({kFour, {.needed = 4}, "RRRRRRR"}).decisions, 2);
  // A gem, a key, a gem, the finish.
  EXPECT_EQ(ReviewOf({{"WWWWWWWWW", "W1;D#D;;T", "WWWWWWWWW"}, {.needed = 2}, "RRRRRRR"}).decisions, 4);
}

// So long after the one before it is another decision; the rest itself is one.
TEST(Review, TakesARestOfMoreThanASecondForADecision) {
  const auto decisions = [](int waits) {
    return ReviewOf(
               {kFour, {.needed = 4}, "RRR" + std::string(static_cast<std::size_t>(waits), '.') + "RRRR"})
        .decisions;
  };
  EXPECT_EQ(decisions(9), 2);
  EXPECT_EQ(decisions(10), 4);
}

TEST(Review, TakesAChangeOfTheDogForADecision) {
  const Picture picture{"WWWWWWW", "W1D;;;T", "W2;;;;W", "WWWWWWW"};
  EXPECT_EQ(ReviewOf({picture, {.needed = 1}, "RRRRR"}).decisions, 2);
  EXPECT_EQ(ReviewOf({picture, {.needed = 1}, "2R1RRRRR"}).decisions, 4);
}

// A monster that is met is one that comes within two cells.
TEST(Review, MeetsMonstersWithinTwoCells) {
  const auto meets = [](int rows) {
    Picture picture{"WWWWWWW", "W1D;;;T"};
    for (int i = 1; i < rows; ++i) picture.emplace_back("WWWWWWW");
    picture.emplace_back("WWWFWWW");
    picture.emplace_back("WWWWWWW");
    return Uses(ReviewOf({picture, {.needed = 1}, "RRRRR"}), "firefly");
  };
  EXPECT_TRUE(meets(2));
  EXPECT_FALSE(meets(3));
  const auto beside = [](const char* row) {
    return Uses(ReviewOf({{"WWWWWWWWWW", row, "WWWWWWWWWW"}, {.needed = 1}, ".RRR"}), "firefly");
  };
  EXPECT_TRUE(beside("WFW1D;TWWW"));
  EXPECT_FALSE(beside("FWW1D;TWWW"));
}

TEST(Review, TellsTheMonstersApart) {
  const std::vector<std::pair<char, std::string>> monsters{
      {'F', "firefly"}, {'U', "butterfly"}, {'L', "fly"}, {':', "dragonfly"}};
  for (const auto& [letter, word] : monsters) {
    std::string row = "WWW?WWW";
    row[3] = letter;
    const Review review =
        ReviewOf({{"WWWWWWW", "W1D;;;T", "WWWWWWW", row, "WWWWWWW"}, {.needed = 1}, "RRRRR"});
    for (const auto& monster : monsters)
      EXPECT_EQ(Uses(review, monster.second), monster.first == letter) << row;
  }
}

TEST(Review, DoesNotTouchTheCellsInWhichMonstersFly) {
  const Review review =
      ReviewOf({{"WWWWWWWWW", "W1D;;;;;T", "WWWWWWWWW", "WWWW..WWW", "WWWWF.WWW", "WWWWWWWWW"},
                {.needed = 1},
                "RRRRRRR"});
  for (int x = 4; x < 6; ++x) {
    for (int y = 3; y < 5; ++y) EXPECT_FALSE(review.touched[Cell(x, y).place()]) << x << ' ' << y;
  }
}

TEST(Review, TakesWhatFellThroughSlimeForTheUseOfIt) {
  const Picture picture{"WWWWWWW", "WWWRWWW", "XXXSXXX", "WWW.WWW", "W1D.;;T", "WWW.WWW", "WWWWWWW"};
  const Review through = ReviewOf({picture, {.needed = 1, .permeability = 8}, "R........RRRR"});
  EXPECT_TRUE(Uses(through, "slime"));
  EXPECT_TRUE(through.touched[Cell(3, 2).place()]);
  const Review stays = ReviewOf({picture, {.needed = 1, .permeability = 0}, "RRRRR"});
  EXPECT_FALSE(Uses(stays, "slime"));
  EXPECT_FALSE(stays.touched[Cell(3, 2).place()]);
}

TEST(Review, TakesWhatFellThroughASplitterForTheUseOfIt) {
  Picture picture{"WWWWWWWWW", "WWWWDWWWW", "WWWW.WWWW", "WWWWEWWWW", "WWW.W.WWW", "W1D;;;;;T", "WWWWWWWWW"};
  const Review falls = ReviewOf({picture, {.needed = 1}, "....RRRRRRR"});
  EXPECT_TRUE(Uses(falls, "splitter"));
  EXPECT_TRUE(falls.touched[Cell(4, 3).place()]);
  picture[1] = "WWWWWWWWW";
  EXPECT_FALSE(Uses(ReviewOf({picture, {.needed = 1}, "....RRRRRRR"}), "splitter"));
}

TEST(Review, TakesASensorThatIsArmedForUsed) {
  const auto uses = [](const char* row) {
    return Uses(ReviewOf({{"WWWWWWW", "W1D;;;T", row, "WWWWWWW"}, {.needed = 1}, "RRRRR"}), "sensor");
  };
  EXPECT_TRUE(uses("WWWWGWW"));
  EXPECT_FALSE(uses("GWWWWWW"));
}

// A boulder falls a cell a tick: one cell higher, and death comes a tick later, until it is farther than a
// second.
TEST(Review, KnowsADangerOfUpToASecond) {
  const auto review = [](std::size_t height) {
    Picture picture{"WWWWW", "WWRWW"};
    for (std::size_t i = 0; i < height; ++i) picture.emplace_back("WW.WW");
    picture.emplace_back("W1.DT");
    picture.emplace_back("WWWWW");
    return ReviewOf({picture, {.needed = 1}, "RRR"});
  };
  std::vector<int> margins;
  for (std::size_t height = 4; height < 16; ++height) margins.push_back(review(height).margin);
  for (std::size_t i = 1; i < margins.size(); ++i)
    EXPECT_EQ(margins[i], std::min(margins[i - 1] + 1, Review::kNoDanger)) << i;
  EXPECT_EQ(margins.back(), Review::kNoDanger);
  EXPECT_LT(margins.front(), Review::kNoDanger);
  EXPECT_EQ(review(15).closeCalls, 0);
}

TEST(Review, TakesADangerThatLastsForOneCloseCall) {
  const Review review =
      ReviewOf({{"WWWWW", "WWRWW", "WW.WW", "WW.WW", "WW.WW", "WW.WW", "WW.WW", "WW.WW", "W1.DT", "WWWWW"},
                {.needed = 1},
                "R...RR"});
  EXPECT_EQ(review.closeCalls, 1);
}

}  // namespace
}  // namespace zorik::test
