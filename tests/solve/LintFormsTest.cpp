#include <gtest/gtest.h>

#include "data/Result.h"
#include "solve/Lint.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// The doubt of this kind about a cave, the first of several.
Doubt DoubtOf(DoubtKind kind, const Picture& picture, const Numbers& numbers = {.needed = 1}) {
  for (Doubt& doubt : DoubtsAboutCave(*ParseCaveText(CaveTextOf(picture, numbers)))) {
    if (doubt.kind == kind) return doubt;
  }
  ADD_FAILURE() << RowOf(kind).word;
  return {};
}

// Who tells a doubt in other words needs to know which of the sentences it is, and what it names.
TEST(LintForms, TellTheTwoHalvesOfATeleportApart) {
  const Doubt entrance = DoubtOf(DoubtKind::TeleportHalf, {"W;;;;;;", "W1;DS;T", "W;;;W;W", "WWWWWWW"});
  EXPECT_EQ(entrance.form, 0);
  EXPECT_NE(entrance.sentence.find("is the entrance"), std::string::npos);
  const Doubt exit =
      DoubtOf(DoubtKind::TeleportHalf, {"WWWWWWW", "W1;D;;T", "W;;;W;W", "W;;;S;W", "W;;;;;W", "WWWWWWW"});
  EXPECT_EQ(exit.form, 1);
  EXPECT_NE(exit.sentence.find("is the exit"), std::string::npos);
}

TEST(LintForms, TellTheFaultsOfACatsCommandsApart) {
  const auto token = [](const std::string& script) {
    return DoubtOf(DoubtKind::CatToken, {"WWWWWWWW", "W1;D;J;T", "W;;;;;;W"},
                   {.needed = 1, .script = script});
  };
  const Doubt passed = token("-A-B/Z"), nothing = token("*A-A?A/Z"), never = token("*A-A-M-B/Z");
  EXPECT_EQ(passed.form, 0);
  EXPECT_EQ(passed.values, std::vector<std::string>{"1"});
  EXPECT_EQ(nothing.form, 1);
  EXPECT_EQ(nothing.values, std::vector<std::string>{"3"});
  EXPECT_EQ(never.form, 2);
  EXPECT_EQ(never.values, std::vector<std::string>{"4"});
}

TEST(LintForms, TellOfEachTokenThatMeansNothing) {
  const Picture picture{"WWWWWWWW", "W1;D;J;T", "W;;;;;;W"};
  for (const auto& [script, place] : {std::pair("*A?A/Z", "2"), {"*A-A?A/Z", "3"}}) {
    std::vector<std::string> told;
    for (const Doubt& doubt :
         DoubtsAboutCave(*ParseCaveText(CaveTextOf(picture, {.needed = 1, .script = script})))) {
      if (doubt.kind == DoubtKind::CatToken && doubt.form == 1) told = doubt.values;
    }
    EXPECT_EQ(told, std::vector<std::string>{place}) << script;
  }
}

TEST(LintForms, NameWhatTheSentencesName) {
  EXPECT_EQ(DoubtOf(DoubtKind::Mirror, {"WWWWWWWW", "W1;;;;DT", "W;;;;;;W", "WWWWWWWW"}).values,
            std::vector<std::string>{"88"})
      << "28 of 32 cells equal those on the other side, left and right";
  EXPECT_EQ(DoubtOf(DoubtKind::UnknownLetter, {"W1;DT", "W;x;x"}).values,
            (std::vector<std::string>{"x", "2"}));
  EXPECT_EQ(DoubtOf(DoubtKind::UnknownLetter, {"W1;DT", "W;x;;"}).values,
            (std::vector<std::string>{"x", "1"}));
  EXPECT_EQ(DoubtOf(DoubtKind::UnknownLetter, {"W1;DT", "W;x;;"}).sentence.find("times"), std::string::npos);
  EXPECT_NE(DoubtOf(DoubtKind::UnknownLetter, {"W1;DT", "W;x;x"}).sentence.find("2 times"),
            std::string::npos);
}

}  // namespace
}  // namespace zorik::test
