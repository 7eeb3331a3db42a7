#include <gtest/gtest.h>

#include "support/Scene.h"

namespace zorik::test {
namespace {

// Writes down what goes from where to where: "R 2,1 > 2,2", with the letter of what is there by then.
class Moves : public Stage {
 public:
  explicit Moves(const Hra*& run) : run_(run) {}

  void Moved(Cell from, Cell to) override {
    const auto name = [](Cell c) { return std::to_string(c.x()) + "," + std::to_string(c.y()); };
    const std::uint16_t code = run_->Field(to) == kFleaInTransit ? +kFlea : run_->Field(to);
    const std::string letter(kObjects[code].forms[0].letters.substr(0, 1));
    told.push_back(letter + " " + name(from) + " > " + name(to));
  }

  std::vector<std::string> told;

 private:
  const Hra*& run_;
};

using Told = std::vector<std::string>;

// What moves in so many ticks of a cave.
class MovedTest : public testing::Test {
 protected:
  Told After(const Picture& picture, int ticks = 1, std::string_view keys = "", const Numbers& numbers = {}) {
    Hra hra = Live(picture, numbers, &moves_);
    run_ = &hra;
    moves_.told.clear();
    Pass(hra, ticks, keys);
    return moves_.told;
  }

  // A step of the dog whose draw has this outcome.
  Told Step(const Picture& picture, int direction, int chance, int action = 0) {
    Hra hra = PlayBack(picture, {}, {}, &moves_);
    run_ = &hra;
    moves_.told.clear();
    StepDog(hra, direction, chance, action);
    return moves_.told;
  }

  const Hra* run_ = nullptr;
  Moves moves_{run_};
};

TEST_F(MovedTest, TellsOfWhatFallsAndRolls) {
  EXPECT_EQ(After({".R.", "...", "WWW"}), Told{"R 1,0 > 1,1"});
  EXPECT_EQ(After({".D.", ".R.", "WWW"}), Told{"D 1,0 > 0,0"});
  EXPECT_EQ(After({".R.", "WWW"}), Told{}) << "it rests";
}

TEST_F(MovedTest, TellsOfNoMoveThroughAWall) {
  const Told told = After({"r..", "M..", "..."});
  EXPECT_EQ(told, Told{}) << "what comes out below is another thing";
}

TEST_F(MovedTest, TellsOfMonstersThatGoAndNotOfThoseThatTurn) {
  EXPECT_EQ(After({"XXXX", ".F.X", "XXXX"}), Told{"F 1,1 > 0,1"});
  EXPECT_EQ(After({"XXX", "XUX", "XXX"}), Told{});
  Hra hra = Live({"L."}, {}, &moves_);
  run_ = &hra;
  hra.SetFieldMark({0, 0}, 2);
  Potvory(hra, {0, 0});
  EXPECT_EQ(moves_.told, Told{"L 0,0 > 1,0"});
}

TEST_F(MovedTest, TellsOfADragonflyThatHunts) {
  EXPECT_EQ(After({":..1", "XXXX"}), Told{": 0,0 > 1,0"});
  EXPECT_EQ(After({":..", "...", "..1"}, 1).size(), 1U) << "to one side or down";
  EXPECT_EQ(After({":X1", "XXX"}), Told{}) << "it cannot go";
}

TEST_F(MovedTest, TellsOfTheDogsSteps) {
  EXPECT_EQ(Step({"1;."}, kKeyRight, 2), Told{"H 0,0 > 1,0"});
  EXPECT_EQ(Step({"1D."}, kKeyRight, 2), Told{"H 0,0 > 1,0"});
  EXPECT_EQ(Step({"1;."}, kKeyRight, 2, 1), Told{}) << "it digs beside itself";
  EXPECT_EQ(Step({"1W."}, kKeyRight, 2), Told{});
}

TEST_F(MovedTest, TellsOfTheStepIntoTheFinish) {
  Hra hra = PlayBack({"1T"}, {}, {}, &moves_);
  run_ = &hra;
  hra.ExitOpen = true;
  StepDog(hra, kKeyRight, 2);
  EXPECT_EQ(moves_.told, Told{"H 0,0 > 1,0"});
}

TEST_F(MovedTest, TellsOfWhatIsPushedBeforeWhoPushes) {
  EXPECT_EQ(Step({"1K.", "WWW"}, kKeyRight, 2), (Told{"K 1,0 > 2,0", "H 0,0 > 1,0"}));
  EXPECT_EQ(Step({"1R.", "WWW"}, kKeyRight, 1), (Told{"R 1,0 > 2,0", "H 0,0 > 1,0"}));
  EXPECT_EQ(Step({"1R.", "WWW"}, kKeyRight, 2), Told{}) << "it does not give way";
}

TEST_F(MovedTest, TellsOfABoxAndTheDogThatChangePlaces) {
  EXPECT_EQ(Step({"1KW", "WWW"}, kKeyRight, 1), (Told{"K 1,0 > 0,0", "H 0,0 > 1,0"}));
}

TEST_F(MovedTest, TellsOfEachFlea) {
  Hra hra = Live({"NN.", "N.W", "1WW"}, {}, &moves_);
  run_ = &hra;
  hra.KeyDirection = kKeyRight;
  PohybB(hra);
  EXPECT_EQ(moves_.told, (Told{"N 1,0 > 2,0", "N 0,0 > 1,0", "N 0,1 > 1,1"}));
}

TEST_F(MovedTest, TellsOfTheCat) {
  EXPECT_EQ(After({"J..", "WWW", "1WW"}, 1, "", {.script = "*A-B"}), Told{"J 0,0 > 1,0"});
  EXPECT_EQ(After({"JW.", "WWW", "1WW"}, 1, "", {.script = "*A-B"}), Told{}) << "there is a wall";
}

// The teleport takes the passenger away and sets it down elsewhere: it falls onto the entrance and off the
// exit.
TEST_F(MovedTest, TellsOfNoRide) {
  Hra hra = Live({"R.W.", "S.S.", "W..1"}, {}, &moves_);
  run_ = &hra;
  ASSERT_TRUE(hra.TeleportActive);
  moves_.told.clear();
  Pass(hra, 12);
  EXPECT_EQ(hra.Field({2, 2}), kBoulder) << "it has arrived";
  EXPECT_EQ(moves_.told, (Told{"R 0,0 > 0,1", "R 2,1 > 2,2"})) << "each from a cell to its neighbour";
}

}  // namespace
}  // namespace zorik::test
