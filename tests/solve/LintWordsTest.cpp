#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "data/Result.h"
#include "solve/Lint.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sentences = std::vector<std::string>;

CaveRecord CaveOf(const Picture& picture, const Numbers& numbers = {.needed = 1}) {
  return *ParseCaveText(CaveTextOf(picture, numbers));
}

// What is told of a cave: "key: sentence", and the cell behind it in brackets. Small caves are often their
// own mirror; that is left out.
Sentences Said(const CaveRecord& cave) {
  Sentences said;
  for (const Doubt& doubt : DoubtsAboutCave(cave)) {
    if (doubt.kind == DoubtKind::Mirror) continue;
    std::string line = std::string(doubt.key) + ": " + doubt.sentence;
    if (doubt.cell) line += " (" + std::to_string(doubt.cell->x) + "," + std::to_string(doubt.cell->y) + ")";
    said.push_back(line);
  }
  return said;
}
Sentences Said(const Picture& picture, const Numbers& numbers = {.needed = 1}) {
  return Said(CaveOf(picture, numbers));
}
bool Tells(const Picture& picture, const Numbers& numbers, const std::string& start) {
  const Sentences said = Said(picture, numbers);
  return std::any_of(said.begin(), said.end(),
                     [&](const std::string& line) { return line.starts_with(start); });
}

const Picture kFine{"W1;DT", "W;;X;"};

TEST(LintWords, OfNumbersNameTheirBounds) {
  EXPECT_EQ(Said(kFine, {.time = 4, .needed = 1}),
            Sentences{"time: time is 4, it should be from 5 to " + std::to_string(kHighestPair)});
  EXPECT_EQ(Said(kFine, {.needed = 1, .permeability = 9}),
            Sentences{"slime: slime is 9, it should be from 0 to 8"});
  EXPECT_EQ(Said(kFine, {.needed = 1, .colouring = 15}),
            Sentences{"colouring: colouring is 15, it should be from 0 to 14"});
}

TEST(LintWords, OfNumbersAreForThoseBeyondTheBoundsOnly) {
  EXPECT_EQ(Said(kFine, {.time = 5, .needed = 1}), Sentences{});
  EXPECT_EQ(Said(kFine, {.needed = 1, .permeability = 8}), Sentences{});
  EXPECT_EQ(Said(kFine, {.needed = 1, .permeability = 0}), Sentences{});
  EXPECT_EQ(Said(kFine, {.needed = 1, .colouring = 14}), Sentences{});
}

// The times of the magic wall and of the amoeba matter only where there is one.
TEST(LintWords, OfTimesAreForCavesInWhichTheyMatter) {
  EXPECT_EQ(Said(kFine, {.needed = 1, .magicTime = 0, .amoebaTime = 151}), Sentences{});
  const std::string magic = "magic-wall-time: magic-wall-time is ", amoeba = "amoeba-time: amoeba-time is ";
  const Picture wall{"W1;DT", "W;;M;"}, cells{"W1;DT", "W;;A;"};
  EXPECT_TRUE(Tells(wall, {.needed = 1, .magicTime = 0}, magic + "0, it should be from 1 to 150"));
  EXPECT_TRUE(Tells(wall, {.needed = 1, .magicTime = 151}, magic + "151"));
  EXPECT_FALSE(Tells(wall, {.needed = 1, .magicTime = 1}, magic));
  EXPECT_FALSE(Tells(wall, {.needed = 1, .magicTime = 150}, magic));
  EXPECT_TRUE(Tells(cells, {.needed = 1, .amoebaTime = 0}, amoeba + "0, it should be from 1 to 150"));
  EXPECT_TRUE(Tells(cells, {.needed = 1, .amoebaTime = 151}, amoeba + "151"));
  EXPECT_FALSE(Tells(cells, {.needed = 1, .magicTime = 0, .amoebaTime = 150}, "magic"));
}

TEST(LintWords, NameTheSizeOfACaveThatIsTooLarge) {
  const std::string row = "1DT" + std::string(98, ';');
  EXPECT_EQ(Said({row, std::string(101, ';')}),
            Sentences{"cells: a cave of 101 x 2 cells cannot be played, the largest has 100 x 60"});
  EXPECT_TRUE(Tells(Picture(61, "1DT;"), {.needed = 1}, "cells: a cave of 4 x 61 cells cannot be played"));
  EXPECT_FALSE(Tells(Picture(60, ";DT;"), {.needed = 1}, "cells: a cave of"));
}

TEST(LintWords, NameACaveWithoutCells) {
  for (const bool wide : {false, true}) {
    CaveRecord cave = CaveOf(kFine);
    (wide ? cave.Height : cave.Width) = 0;
    const Sentences said = Said(cave);
    ASSERT_FALSE(said.empty());
    EXPECT_EQ(said[0].substr(0, 16), "cells: a cave of") << said[0];
  }
}

TEST(LintWords, NameWhatTheEditorWouldLeave) {
  const std::string cut = "cells: the cave editor would cut the cave to ";
  const auto rows = [](std::size_t height, std::size_t width) {
    Picture picture(height, std::string(width, ';'));
    picture[0].replace(0, 3, "1DT");
    return picture;
  };
  EXPECT_TRUE(Tells(rows(3, 81), {.needed = 1}, cut + "80 x 3 cells"));
  EXPECT_TRUE(Tells(rows(51, 70), {.needed = 1}, cut + "70 x 50 cells"));
  EXPECT_TRUE(Tells(rows(60, 100), {.needed = 1}, cut + "80 x 50 cells"));
  EXPECT_FALSE(Tells(rows(50, 80), {.needed = 1}, cut));
}

TEST(LintWords, NameEachUnknownLetterOnce) {
  EXPECT_EQ(Said({"W1;DT", "W;x;;"}), Sentences{"cells: the letter \"x\" means no object (2,1)"});
  EXPECT_EQ(Said({"W1;DT", "Wx;x;"}),
            Sentences{"cells: the letter \"x\" means no object, it stands there 2 times (1,1)"});
  EXPECT_EQ(Said({"W1;DT", "Wxyx;"}),
            (Sentences{"cells: the letter \"x\" means no object, it stands there 2 times (1,1)",
                       "cells: the letter \"y\" means no object (2,1)"}));
}

TEST(LintWords, NameTheDogs) {
  EXPECT_EQ(Said({"W;;DT", "W;;N;"}), Sentences{"cells: there is no dog"});
  EXPECT_EQ(Said({"W5;DT", "W1;3;"}), (Sentences{"cells: dog 2 is missing, the highest is dog 5",
                                                 "cells: dog 4 is missing, the highest is dog 5"}));
  EXPECT_EQ(Said({"W1;DT", "W2112"}),
            (Sentences{"cells: dog 1 stands there 3 times", "cells: dog 2 stands there 2 times"}));
}

TEST(LintWords, NameTheFinish) {
  EXPECT_EQ(Said({"W1;D;"}), Sentences{"cells: there is no finish"});
  EXPECT_EQ(Said({"1;DWT", ";;;W;"}), Sentences{"cells: no dog can ever come to the finish (4,0)"});
}

TEST(LintWords, NameTheKeyThatNobodyTakes) {
  EXPECT_EQ(Said({"1;DTW#", ";;;;W;"}), Sentences{"cells: nobody can ever take the key (5,0)"});
  EXPECT_EQ(Said({"1;DTW#J", ";;;;W;;"}), Sentences{});
  EXPECT_TRUE(Tells({"1;DTW$", ";;;;W;"}, {.needed = 1}, "cells: nobody can ever take the key (5,0)"));
}

TEST(LintWords, NameTheHalfOfATeleport) {
  const std::string emptied = "; the game empties it";
  EXPECT_EQ(Said({"W;;;;;;", "W1;DS;T", "W;;;W;W", "WWWWWWW"}),
            Sentences{"cells: slime on steel is the entrance of a teleport, but there is no exit" + emptied +
                      " (4,1)"});
  EXPECT_EQ(Said({"WWWWWWW", "W1;D;;T", "W;;;W;W", "W;;;S;W", "W;;;;;W", "WWWWWWW"}),
            Sentences{"cells: slime under steel is the exit of a teleport, but there is no entrance" +
                      emptied + " (4,3)"});
}

// In each side of the ring, and not beside it.
TEST(LintWords, NameTheHoleInTheRing) {
  const std::string hole = "cells: the lone pad leaves a hole in the ring around the cave ";
  const Numbers one{.needed = 1};
  EXPECT_TRUE(Tells({"WWWWWWW", "W1;D;;T", "WWWWWWW", "WWWWWSW"}, one, hole + "(5,3)"));
  EXPECT_TRUE(Tells({"WWWWWWW", "W;;D;;T", "S1;;X;W", ";;;;;;W", "WWWWWWW"}, one, hole + "(0,2)"));
  EXPECT_TRUE(Tells({"WWWWWWW", "T;;D;;W", "W1;;X;S", "W;;;;;;", "WWWWWWW"}, one, hole + "(6,2)"));
  EXPECT_FALSE(Tells({"WWWWWWW", "W1;D;;T", "W;;;S;W", "WWWWWWW"}, one, hole));
  EXPECT_FALSE(Tells({"W;;;;;;", "W1;DS;T", "W;;;W;W", "WWWWWWW"}, one, hole));
}

TEST(LintWords, NameSlimeThatIsNoPad) {
  EXPECT_EQ(Said({"W;;;;;;;;", "W1;DS;S;T", "W;;;W;W;W", "W;;;S;;RW", "W;;;;;;;W", "WWWWWWWWW"}),
            Sentences{"cells: slime on steel that is no pad of a teleport lets nothing through (6,1)"});
  EXPECT_EQ(Said({"W;;;;;;", "W1;DS;T", "W;;;X;W", "WWWWWWW"}), Sentences{});
}

TEST(LintWords, NameASensorBesideWhichNothingStirs) {
  const std::string said = "cells: nothing can ever stir beside the sensor ";
  const auto tells = [&](const char* left, const char* right, const char* above, const char* below) {
    return Tells(
        {"WWWWWWW", std::string("WW") + above + "WWWW", std::string("W") + left + "G" + right + "W;W",
         std::string("WW") + below + "W1DT", "WWWWWWW"},
        {.needed = 1}, said + "(2,2)");
  };
  EXPECT_TRUE(tells("W", "W", "W", "W"));
  EXPECT_TRUE(tells("X", "C", "W", "X"));
  EXPECT_FALSE(tells(";", "W", "W", "W"));
  EXPECT_FALSE(tells("W", ";", "W", "W"));
  EXPECT_FALSE(tells("W", "W", ";", "W"));
  EXPECT_FALSE(tells("W", "W", "W", ";"));
  // Sensors do not stir each other.
  EXPECT_TRUE(tells("G", "W", "W", "W"));
}

TEST(LintWords, CountTheGems) {
  EXPECT_EQ(Said({"1;DDT"}, {.needed = 3}),
            Sentences{"gems: the finish opens at 3 gems, but the cave has 2 and nothing that makes more"});
  EXPECT_EQ(
      Said({"1;DTWD", ";;;;W;"}, {.needed = 2}),
      (Sentences{
          "cells: no dog can ever come to the gem (5,0)",
          "gems: the finish opens at 2 gems, but the cave has 1 that a dog can come to and nothing that "
          "makes more"}));
  EXPECT_EQ(
      Said({"1;DT", ";;;;", "XXXX", "X..U"}, {.needed = 11}),
      Sentences{"gems: the finish opens at 11 gems, but the cave has 1, and no more than 10 can come to be"});
}

// A cat does not fetch gems for the dogs.
TEST(LintWords, NameAGemToWhichOnlyTheCatCanCome) {
  EXPECT_TRUE(Tells({"1;DTWDJ", ";;;;W;;"}, {.needed = 1}, "cells: no dog can ever come to the gem (5,0)"));
}

TEST(LintWords, CountTheTicks) {
  const std::string row = "1D" + std::string(50, '.') + "T";
  EXPECT_TRUE(Tells({row, "R" + std::string(52, ';')}, {.time = 5, .needed = 1},
                    "time: the time is up after 50 ticks, and no way to the finish is shorter than 52"));
  const std::string just = "1D" + std::string(48, '.') + "T";
  EXPECT_FALSE(Tells({just, "R" + std::string(50, ';')}, {.time = 5, .needed = 1}, "time:"));
}

// A boulder falls a cell a tick; what comes after the first second is no unfair start.
TEST(LintWords, NameTheTickInWhichADogDies) {
  std::vector<int> told;
  for (std::size_t height = 1; height < 15; ++height) {
    Picture picture{"WWWWWW", "WWRWWW"};
    for (std::size_t i = 0; i < height; ++i) picture.emplace_back("WW.WWW");
    picture.insert(picture.end(), {"WW1D;T", "WWWWWW"});
    int tick = 0;
    for (const std::string& line : Said(picture))
      std::sscanf(line.c_str(), "cells: a dog dies in tick %d if no key is pressed", &tick);
    told.push_back(tick);
  }
  ASSERT_GT(told.front(), 0);
  for (std::size_t i = 1; i < told.size(); ++i) {
    const int next = told.front() + static_cast<int>(i);
    EXPECT_EQ(told[i], next <= 10 ? next : 0) << i;
  }
}

TEST(LintWords, OfTwoRecordsInOneFileNameTheFirst) {
  const std::vector<std::string> caves{"x", "One", "two", "ONE"};
  const std::vector<NameDoubt> doubts = DoubtsAboutNames("Set", caves);
  ASSERT_EQ(doubts.size(), 1U);
  EXPECT_EQ(doubts[0].cave, 3U);
  EXPECT_EQ(doubts[0].doubt.key, "name");
  EXPECT_EQ(doubts[0].doubt.sentence,
            "its record has the file name of cave 2, so one win replaces the other");
}

// Exactly as much as a disk takes is fine.
TEST(LintWords, OfANameThatIsTooLongCountItsBytes) {
  std::size_t told = 0;
  for (std::size_t length = 150; length < 300; ++length) {
    const std::vector<NameDoubt> doubts =
        DoubtsAboutNames("Set", std::vector<std::string>{std::string(length, 'x')});
    if (doubts.empty()) continue;
    ASSERT_EQ(doubts.size(), 1U);
    const std::string bytes = std::to_string(256 + told);
    EXPECT_EQ(doubts[0].doubt.sentence,
              "the name of the record's file would have " + bytes + " bytes, a disk takes 255");
    ++told;
  }
  EXPECT_GT(told, 0U);
}

TEST(LintWords, OfTheMirrorAreForMoreThanFourFifths) {
  // Five rows of two: four pairs equal their mirror, then all of them; top and bottom differ.
  const auto hint = [](const Picture& picture) -> std::string {
    for (const Doubt& doubt : DoubtsAboutCave(CaveOf(picture))) {
      if (doubt.kind == DoubtKind::Mirror) return doubt.sentence;
    }
    return "";
  };
  EXPECT_EQ(hint({"1D", "DD", "RR", "XX", ";;"}), "");
  EXPECT_EQ(hint({"1D", "DD", "RR", "XX", ";;", "KK"}), "0.83 of the cells equal their mirror");
  EXPECT_EQ(hint({"1DRXK;", "1DRXKA"}), "0.83 of the cells equal their mirror");
}

// Nineteen of 23 pairs, 0.826.
TEST(LintWords, OfTheMirrorAndTheirValueAreRoundedAlike) {
  const std::string alike(18, ';');
  const Picture picture{"1" + alike + "RRRRKKKK" + alike + "1"};
  for (const Doubt& doubt : DoubtsAboutCave(CaveOf(picture))) {
    if (doubt.kind != DoubtKind::Mirror) continue;
    EXPECT_EQ(doubt.sentence, "0.83 of the cells equal their mirror");
    EXPECT_EQ(doubt.values, std::vector<std::string>{"83"});
    return;
  }
  FAIL();
}

TEST(Doubts, AreInTheOrderOfTheirKinds) {
  for (std::size_t i = 0; i < DoubtRows().size(); ++i) {
    const DoubtRow& row = DoubtRows()[i];
    EXPECT_EQ(static_cast<std::size_t>(row.kind), i);
    EXPECT_EQ(&RowOf(row.kind), &row);
    EXPECT_FALSE(row.meaning.empty());
  }
}

TEST(LintWords, TellWhatCanComeToBeBesideGemsThatAreShut) {
  EXPECT_TRUE(
      Tells({"WWWWWWWWW", "W1DM;TWWW", "WRWWWWDWD", "WWWWWWWWW"}, {.needed = 5},
            "gems: the finish opens at 5 gems, but the cave has 1 that a dog can come to, and no more "
            "than 2 can come to be"));
}

}  // namespace
}  // namespace zorik::test
