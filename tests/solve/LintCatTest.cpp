#include <gtest/gtest.h>

#include "data/Result.h"
#include "solve/Lint.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sentences = std::vector<std::string>;

// What is told of a cat with this program at 5,1 of a cave with these things.
std::vector<Doubt> DoubtsOf(const std::string& script, const std::string& things = "") {
  std::string row = "W1;D;J;;;;;T";
  row.replace(6, things.size(), things);
  const Picture picture{"WWWWWWWWWWWW", row, "W;;;;;;;;;;W"};
  const Numbers numbers{.needed = 1, .script = script};
  return DoubtsAboutCat(*ParseCaveText(CaveTextOf(picture, numbers)), Play(picture, numbers));
}
Sentences Said(const std::string& script, const std::string& things = "") {
  Sentences said;
  for (const Doubt& doubt : DoubtsOf(script, things)) {
    said.push_back(doubt.sentence);
    EXPECT_EQ(doubt.key, doubt.kind == DoubtKind::CatKeyIdle ? "cells" : "cat");
  }
  return said;
}

std::string NeverComesTo(const std::string& token, int command) {
  return "the program never comes to \"" + token + "\" (command " + std::to_string(command) + ")";
}

const char* const kStuck = "the program never moves the cat";

TEST(LintCat, KnowsTheCommandsThatGoOn) {
  for (const char* const token :
       {"-A", "-B", "-C", "-D", "-E", "-F", "-G", "-H", "-I", "-J", "-K", "-L", "-N", "-O", "-P", "+A"})
    EXPECT_EQ(Said(std::string("*A") + token + "-A/Z"), Sentences{}) << token;
}

TEST(LintCat, KnowsTheCommandsThatStay) {
  for (const char* const token : {"/D", "/E", "/F", "/G", "/H"})
    EXPECT_EQ(Said(std::string("*A") + token + "-A/Z"), Sentences{NeverComesTo("-A", 3)}) << token;
  for (const char* const token : {"-M", "/Z"})
    EXPECT_EQ(Said(std::string("*A") + token + "-A/Z"), (Sentences{NeverComesTo("-A", 3), kStuck})) << token;
}

TEST(LintCat, KnowsTheCommandsThatMoveTheCat) {
  for (const char* const token : {"-A", "-L", "-P", "+A", "/D", "/E", "/H"})
    EXPECT_EQ(Said(std::string("*A") + token + "/Z"), Sentences{}) << token;
  for (const char* const token : {"-M", "-N", "-O", "/Z"})
    EXPECT_EQ(Said(std::string("*A") + token + "/Z"), Sentences{kStuck}) << token;
}

TEST(LintCat, KnowsWhatIsNoCommand) {
  for (const char* const token : {"-Q", "-@", "/C", "/I", "/A", "+B", "?A", "-a", "a-"}) {
    EXPECT_EQ(Said(std::string("*A-A") + token + "/Z"),
              Sentences{std::string("\"") + token +
                        "\" (command 3) means nothing, the cat stands still there for good"})
        << token;
  }
}

TEST(LintCat, TakesHalfACommandAtTheEndForNeitherALabelNorACommand) {
  EXPECT_EQ(Said("*A-A*"), Sentences{"\"*\" (command 3) means nothing, the cat stands still there for good"});
}

TEST(LintCat, WantsALabelInFrontOfAll) {
  EXPECT_EQ(Said("-A-B/Z"),
            Sentences{"the program begins with \"-A\" (command 1), which is passed over, not with "
                      "\"*A\""});
  EXPECT_EQ(Said("*B-B/Z"),
            Sentences{"the program begins with \"*B\" (command 1), which is passed over, not with "
                      "\"*A\""});
}

// Each event needs what raises it; the finish is always there to be opened.
TEST(LintCat, KnowsWhatRaisesTheEvents) {
  struct Row {
    char event;
    const char* things;
    bool comes;
  };
  for (const Row& row : std::initializer_list<Row>{{'A', "$MA", false},
                                                   {'B', "", true},
                                                   {'C', "M", true},
                                                   {'C', "$A", false},
                                                   {'D', "M", true},
                                                   {'D', "$A", false},
                                                   {'E', "A", true},
                                                   {'E', "$M", false},
                                                   {'F', "A", true},
                                                   {'F', "$M", false},
                                                   {'G', "$MA", false},
                                                   {'H', "$MA", false},
                                                   {'I', "$", true},
                                                   {'I', "MA", false},
                                                   {'J', "$MA", false}}) {
    Sentences expected;
    const std::string label = std::string("*") + row.event;
    if (!row.comes)
      expected.push_back("nothing ever raises the event of the label \"" + label + "\" (command 3)");
    const std::string things = row.things;
    const bool idleKey = things.find('$') != std::string::npos && row.event != 'I';
    if (idleKey) expected.emplace_back("no cat waits for the cat key");
    EXPECT_EQ(Said("*A-A" + label + "-B/Z", things), expected) << label << things;
  }
}

TEST(LintCat, SaysNothingMoreOfWhatStandsBehindALabelThatNeverComes) {
  EXPECT_EQ(Said("*A-A*Q-B-C/Z*B-D/Z"),
            Sentences{"nothing ever raises the event of the label \"*Q\" (command 3)"});
  EXPECT_EQ(Said("*A-A*B-M-C/Z"), Sentences{NeverComesTo("-C", 5)});
}

TEST(LintCat, FollowsTheProgramFromEachLabelThatMayCome) {
  EXPECT_EQ(Said("*A-M*B-A/Z"), Sentences{});
  EXPECT_EQ(Said("*A*B-A/Z"), Sentences{}) << "the second of two labels";
  EXPECT_EQ(Said("*A-M*C-A/Z"),
            (Sentences{"nothing ever raises the event of the label \"*C\" (command 3)", kStuck}));
}

TEST(LintCat, ShowsThePlaceOfTheCat) {
  const std::vector<Doubt> doubts = DoubtsOf("*A-N/Z");
  ASSERT_EQ(doubts.size(), 1U);
  EXPECT_EQ(doubts[0].kind, DoubtKind::CatStuck);
  EXPECT_EQ(doubts[0].cell, (Spot{5, 1}));
}

TEST(LintCat, ShowsTheFirstKeyForWhichNoCatWaits) {
  const std::vector<Doubt> doubts = DoubtsOf("*A-A/Z", ";$;$");
  ASSERT_EQ(doubts.size(), 1U);
  EXPECT_EQ(doubts[0].kind, DoubtKind::CatKeyIdle);
  EXPECT_EQ(doubts[0].cell, (Spot{7, 1}));
  EXPECT_TRUE(DoubtsOf("*A-A*I-B/Z", ";$;$").empty());
}

TEST(LintCat, FindsAProgramOrAKeyWithoutACat) {
  const auto kinds = [](const char* row, const std::string& script) {
    const Picture picture{"WWWWWWWW", row, "WWWWWWWW"};
    const Numbers numbers{.needed = 1, .script = script};
    std::vector<DoubtKind> all;
    for (const Doubt& doubt :
         DoubtsAboutCat(*ParseCaveText(CaveTextOf(picture, numbers)), Play(picture, numbers)))
      all.push_back(doubt.kind);
    return all;
  };
  EXPECT_EQ(kinds("W1;D;;;T", "*A-A*I-B/Z"), std::vector{DoubtKind::CatMissing});
  EXPECT_EQ(kinds("W1;D;$;T", "*A-A*I-B/Z"), (std::vector{DoubtKind::CatMissing, DoubtKind::CatKeyIdle}));
  EXPECT_EQ(kinds("W1;D;$;T", ""), std::vector{DoubtKind::CatKeyIdle});
  EXPECT_EQ(kinds("W1;DJ;;T", ""), std::vector<DoubtKind>{});
}

TEST(LintCat, CountsTheCommandsFromOne) {
  const std::vector<Doubt> doubts = DoubtsOf("*A-A!!/Z");
  ASSERT_FALSE(doubts.empty());
  EXPECT_EQ(doubts[0].kind, DoubtKind::CatToken);
  EXPECT_EQ(doubts[0].values, std::vector<std::string>{"3"});
}

}  // namespace
}  // namespace zorik::test
