#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "editors/CatEditing.h"

namespace zorik {
namespace {

using Lines = std::vector<std::string>;

const std::vector<CatCommand> kCommands = {{"*A", "start"}, {"*B", "open"}, {"-A", "left"},
                                           {"-B", "right"}, {"/D", "flit"}, {"/Z", "end"}};

class CatEditingTest : public testing::Test {
 protected:
  const std::string& Program() const { return cat_.Script().Program(); }
  const Lines& Shown() const { return cat_.Script().Lines(); }
  int Selected() const { return cat_.Script().Selected(); }

  CatEditing cat_{kCommands};
};

// Moving lines

TEST_F(CatEditingTest, MovesALineWithItsTokenUpAndDownAndKeepsItSelected) {
  cat_.Load("*A-A-B/D/Z");
  cat_.Select(3);
  cat_.MoveUp();
  EXPECT_EQ(Program(), "*A-A/D-B/Z");
  EXPECT_EQ(Shown(), (Lines{"start", "left", "flit", "right", "end"}));
  EXPECT_EQ(Selected(), 2);
  cat_.MoveUp();
  EXPECT_EQ(Program(), "*A/D-A-B/Z");
  EXPECT_EQ(Selected(), 1);
  cat_.MoveDown();
  cat_.MoveDown();
  EXPECT_EQ(Program(), "*A-A-B/D/Z");
  EXPECT_EQ(Shown(), (Lines{"start", "left", "right", "flit", "end"}));
  EXPECT_EQ(Selected(), 3);
}

TEST_F(CatEditingTest, MovesNothingPastTheHeadAndTheEnd) {
  cat_.Load("*A-A-B/Z");
  for (const int line : {0, 1, 2, 3}) {
    cat_.Select(line);
    EXPECT_EQ(cat_.Script().CanMoveUp(), line == 2) << line;
    EXPECT_EQ(cat_.Script().CanMoveDown(), line == 1) << line;
    if (line != 2) cat_.MoveUp();
    if (line != 1) cat_.MoveDown();
    EXPECT_EQ(Program(), "*A-A-B/Z");
    EXPECT_EQ(Shown(), (Lines{"start", "left", "right", "end"}));
    EXPECT_EQ(Selected(), line);
  }
  EXPECT_EQ(cat_.Steps(), 0U);
}

TEST_F(CatEditingTest, MovesTheLineThatIsSeenAndTheTokenOfItsPlaceAfterAnExchange) {
  cat_.Load("*A-A-B/D/Z");
  cat_.Select(1);
  cat_.Swap();
  EXPECT_EQ(Shown(), (Lines{"start", "right", "left", "flit", "end"}));
  cat_.Select(3);
  cat_.MoveUp();
  EXPECT_EQ(Shown(), (Lines{"start", "right", "flit", "left", "end"}));
  EXPECT_EQ(Program(), "*A-A/D-B/Z");
}

// Steps

TEST_F(CatEditingTest, TakesBackEveryKindOfStepAndDoesItAgain) {
  const std::vector<void (*)(CatEditing&)> acts = {
      [](CatEditing& cat) { cat.Insert(1); }, [](CatEditing& cat) { cat.Delete(); },
      [](CatEditing& cat) { cat.Swap(); }, [](CatEditing& cat) { cat.MoveUp(); },
      [](CatEditing& cat) { cat.MoveDown(); }};
  const std::vector<CatStep> told = {{CatAct::Insert, "open"},
                                     {CatAct::Delete, "right"},
                                     {CatAct::Swap, "right"},
                                     {CatAct::MoveUp, "right"},
                                     {CatAct::MoveDown, "right"}};
  for (std::size_t i = 0; i < acts.size(); ++i) {
    cat_.Load("*A-A-B/D/Z");
    cat_.Select(2);
    acts[i](cat_);
    ASSERT_EQ(cat_.Steps(), 1U) << i;
    EXPECT_EQ(cat_.Step(0), told[i]) << i;
    const std::string program = Program();
    const Lines lines = Shown();
    const int selected = Selected();
    EXPECT_NE(lines, (Lines{"start", "left", "right", "flit", "end"})) << i;
    cat_.Undo();
    EXPECT_EQ(Program(), "*A-A-B/D/Z") << i;
    EXPECT_EQ(Shown(), (Lines{"start", "left", "right", "flit", "end"})) << i;
    EXPECT_EQ(Selected(), 2) << i;
    cat_.Redo();
    EXPECT_EQ(Program(), program) << i;
    EXPECT_EQ(Shown(), lines) << i;
    EXPECT_EQ(Selected(), selected) << i;
  }
}

TEST_F(CatEditingTest, GoesBackAndForwardSeveralStepsAtOnce) {
  cat_.Load("");
  for (const std::size_t command : {2U, 3U, 4U}) cat_.Insert(command);
  EXPECT_EQ(Program(), "*A-A-B/D/Z");
  cat_.GoTo(1);
  EXPECT_EQ(Program(), "*A-A/Z");
  EXPECT_EQ(cat_.Done(), 1U);
  EXPECT_EQ(cat_.Steps(), 3U);
  cat_.GoTo(100);
  EXPECT_EQ(Program(), "*A-A-B/D/Z");
  cat_.GoTo(0);
  EXPECT_EQ(Program(), "*A/Z");
}

TEST_F(CatEditingTest, ForgetsWhatWasTakenBackWhenSomethingElseIsDone) {
  cat_.Load("");
  cat_.Insert(2);
  cat_.Insert(3);
  cat_.Undo();
  cat_.Insert(4);
  EXPECT_EQ(cat_.Steps(), 2U);
  cat_.Redo();
  EXPECT_EQ(Program(), "*A-A/D/Z");
}

TEST_F(CatEditingTest, CountsNoStepThatChangesNothing) {
  cat_.Load("*A-A-A/Z");
  cat_.Insert(2);
  cat_.Undo();
  cat_.Insert(kCommands.size());
  cat_.Select(0);
  cat_.Delete();
  cat_.Insert(2);
  cat_.Select(1);
  cat_.Swap();
  EXPECT_EQ(Selected(), 0) << "the exchange of two lines alike selects the line before all the same";
  EXPECT_EQ(cat_.Steps(), 1U);
  cat_.Redo();
  EXPECT_EQ(Program(), "*A-A-A-A/Z") << "what was taken back can still be done again";
}

TEST_F(CatEditingTest, BeginsWithoutStepsWhenAProgramIsLoaded) {
  cat_.Load("");
  cat_.Insert(2);
  cat_.Load("*A-B/Z");
  cat_.Undo();
  EXPECT_EQ(Program(), "*A-B/Z");
  EXPECT_EQ(cat_.Steps(), 0U);
}

TEST_F(CatEditingTest, KeepsOnlySoManySteps) {
  cat_.Load("*A-A-B/Z");
  cat_.Select(1);
  for (std::size_t i = 0; i < CatEditing::kMostSteps + 7; ++i) i % 2 == 0 ? cat_.MoveDown() : cat_.MoveUp();
  const std::string last = Program();
  EXPECT_EQ(cat_.Steps(), CatEditing::kMostSteps);
  cat_.GoTo(0);
  EXPECT_EQ(Program(), "*A-B-A/Z") << "seven steps remain done";
  cat_.GoTo(cat_.Steps());
  EXPECT_EQ(Program(), last);
}

// Any steps in any order

struct Moment {
  std::string program;
  Lines lines;

  bool operator==(const Moment&) const = default;
};

// Programs that the table does not match line by token are edited by the same rules.
class CatEditingAtRandomTest : public testing::TestWithParam<const char*> {
 protected:
  CatEditingAtRandomTest() { cat_.Load(GetParam()); }

  Moment Now() const { return {cat_.Script().Program(), cat_.Script().Lines()}; }
  int Chance(int below) { return std::uniform_int_distribution(0, below - 1)(random_); }

  void Act() {
    cat_.Select(Chance(static_cast<int>(cat_.Script().Lines().size())));
    const std::vector<std::function<void()>> acts = {
        [this] { cat_.Insert(static_cast<std::size_t>(Chance(6))); },
        [this] { cat_.Delete(); },
        [this] { cat_.Swap(); },
        [this] { cat_.MoveUp(); },
        [this] { cat_.MoveDown(); },
    };
    acts[static_cast<std::size_t>(Chance(5))]();
  }

  // Does something, and keeps what is known of the moments between the steps.
  void DoSomething(std::vector<Moment>& moments) {
    const Moment before = Now();
    Act();
    const Moment after = Now();
    if (after == before) return;
    moments.resize(cat_.Done());
    moments.push_back(after);
  }

  void GoSomewhere(const std::vector<Moment>& moments) {
    const int steps = static_cast<int>(cat_.Steps());
    const int done = static_cast<int>(cat_.Done());
    const int place = Chance(30) == 0 ? Chance(steps + 1) : std::clamp(done + Chance(5) - 2, 0, steps);
    cat_.GoTo(static_cast<std::size_t>(place));
    ASSERT_EQ(cat_.Done(), static_cast<std::size_t>(place));
    ASSERT_EQ(Now(), moments[static_cast<std::size_t>(place)]);
  }

  std::mt19937 random_{20};
  CatEditing cat_{
      {{"*A", "start"}, {"*B", "open"}, {"-A", "left"}, {"-B", "right"}, {"-B", "again"}, {"/Z", "end"}}};
};

TEST_P(CatEditingAtRandomTest, GivesBackEveryProgramOnTheWayBackAndAgain) {
  std::vector<Moment> moments{Now()};
  for (int i = 0; i < 4000; ++i) {
    Chance(4) == 0 ? GoSomewhere(moments) : DoSomething(moments);
    ASSERT_FALSE(HasFatalFailure()) << i;
    ASSERT_EQ(moments.size(), cat_.Steps() + 1) << i;
  }
  EXPECT_GT(cat_.Steps(), 30U);
  cat_.GoTo(0);
  EXPECT_EQ(cat_.Script().Program(), TestScript(GetParam()));
  for (std::size_t done = 0; done <= cat_.Steps(); ++done) {
    cat_.GoTo(done);
    ASSERT_EQ(Now(), moments[done]) << done;
  }
}

INSTANTIATE_TEST_SUITE_P(Programs, CatEditingAtRandomTest,
                         testing::Values("", "*A-A-B*B-A/Z", "*A-C-A-C-A/Z", "xy", "*A-B-B-B-B/Z", "*A-A-AX"));

}  // namespace
}  // namespace zorik
