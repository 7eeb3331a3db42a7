#include <gtest/gtest.h>

#include <algorithm>

#include "data/Result.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

using Pair = std::pair<int, int>;
using Pairs = std::vector<Pair>;

// What a record holds for cells that were chosen in play: each coordinate is 66 above itself.
std::string LineOfPairs(const Pairs& pairs) {
  std::string line;
  for (const auto& [x, y] : pairs) {
    line += static_cast<char>(x + 66);
    line += static_cast<char>(y + 66);
  }
  return line;
}

Pairs PairsIn(std::string_view line) {
  Pairs pairs;
  for (std::size_t i = 0; i + 1 < line.size(); i += 2) pairs.push_back({line[i] - 66, line[i + 1] - 66});
  return pairs;
}

// Takes what lies in the cell in a run in play; answers what went into the record.
std::string Take(Hra& hra, int x, int y) {
  const std::size_t before = hra.RecordText.size();
  SpapanZamek(hra, {x, y});
  return hra.RecordText.substr(before);
}

void TakeInReplay(Hra& hra, int x, int y, std::string_view line) {
  hra.RecordLine = line;
  SpapanZamek(hra, {x, y});
}

TEST(Keys, OneKeyOfAColourOpensAllThreeLocksEachIntoWhatTheColourHides) {
  struct Colour {
    char key;
    char lock;
    Picture after;
    std::uint8_t state;
  };
  const std::vector<Colour> colours{{'!', '%', {"!R.", ".RR"}, kResting},
                                    {'@', '^', {"@K.", ".KK"}, kRounded},
                                    {'#', '&', {"#..", "..."}, kFlat}};
  for (const Colour& colour : colours) {
    SCOPED_TRACE(colour.key);
    Hra hra = Play({"...", "..."});
    Put(hra, 0, 0, colour.key);
    for (const auto& [x, y] : Pairs{{1, 0}, {1, 1}, {2, 1}}) Put(hra, x, y, colour.lock);
    Take(hra, 0, 0);
    EXPECT_EQ(Drawn(hra), colour.after);
    for (const auto& [x, y] : Pairs{{1, 0}, {1, 1}, {2, 1}}) EXPECT_EQ(hra.FieldState({x, y}), colour.state);
  }
}

TEST(Keys, OfTwoKeysAndThreeLocksTheFirstOpensOneAndTheSecondTheOtherTwo) {
  Hra hra = Play({"#&&", "#.&"});
  Take(hra, 0, 0);
  EXPECT_EQ(std::ranges::count_if(std::array{Cell(1, 0), Cell(2, 0), Cell(2, 1)},
                                  [&](Cell c) { return hra.Field(c) == kLockBlue; }),
            2);
  hra.SetField({0, 0}, kSpace);
  Take(hra, 0, 1);
  EXPECT_EQ(Drawn(hra), (Picture{"...", "#.."}));
}

TEST(Keys, OfThreeKeysAndTwoLocksOnlyTheSecondAndTheThirdOpenOne) {
  Hra hra = Play({"###", "&.&"});
  const auto locks = [&hra] {
    return static_cast<int>(hra.Field({0, 1}) == kLockBlue) +
           static_cast<int>(hra.Field({2, 1}) == kLockBlue);
  };
  const std::array<int, 3> left{2, 1, 0};
  for (int x = 0; x < 3; ++x) {
    Take(hra, x, 0);
    hra.SetField({x, 0}, kSpace);
    EXPECT_EQ(locks(), left[static_cast<std::size_t>(x)]);
  }
}

TEST(Keys, WithAKeyAndNoLockNothingOpensAndTheRecordGetsItsPairOfNoughts) {
  Hra hra = Play({"!^&"});
  EXPECT_EQ(Take(hra, 0, 0), "BB");
  EXPECT_EQ(Drawn(hra), (Picture{"!^&"}));
}

TEST(Keys, ThePairOfNoughtsStandsOnlyWhereNothingWasOpened) {
  Hra hra = Play({"!%"});
  EXPECT_EQ(Take(hra, 0, 0), LineOfPairs({{1, 0}}));
}

TEST(Keys, AKeyLeavesTheLocksAndKeysOfTheOtherColoursAlone) {
  Hra hra = Play({"!@#", "%^&"});
  Take(hra, 1, 0);
  EXPECT_EQ(Drawn(hra), (Picture{"!@#", "%K&"}));
}

TEST(Keys, TheKeyItselfStaysForTheOneWhoTakesIt) {
  Hra hra = Play({"!%"});
  Take(hra, 0, 0);
  EXPECT_EQ(hra.Field({0, 0}), kKeyRed);
}

TEST(Keys, NothingButAKeyOpensLocksOrGoesIntoTheRecord) {
  for (const char letter : std::string_view(".;RDK%^&$J1T")) {
    SCOPED_TRACE(letter);
    Hra hra = Play({"..%^&"});
    Put(hra, 0, 0, letter);
    EXPECT_EQ(Take(hra, 0, 0), "");
    EXPECT_EQ(hra.Field({2, 0}), kLockRed);
    EXPECT_EQ(hra.Field({3, 0}), kLockGreen);
    EXPECT_EQ(hra.Field({4, 0}), kLockBlue);
  }
}

TEST(Keys, TheCatKeyRaisesItsEventAndTheOthersDoNot) {
  for (const char letter : std::string_view("$!@#")) {
    SCOPED_TRACE(letter);
    Hra hra = Play({".J"}, {.script = "*A-M*I-M/Z"});
    Put(hra, 0, 0, letter);
    Take(hra, 0, 0);
    EXPECT_EQ(hra.CatPC, letter == '$' ? 3 : 1);
  }
}

TEST(Keys, TheCatKeyMovesTheProgramOfADeadCatToo) {
  Hra hra = Play({".WWWWJ"}, {.script = "*A-M*I-M/Z"});
  Exploze(hra, {5, 0});
  ASSERT_FALSE(hra.CatPresent);
  Put(hra, 0, 0, '$');
  Take(hra, 0, 0);
  EXPECT_EQ(hra.CatPC, 3);
}

TEST(Keys, AFallingKeyIsNotCollected) {
  Hra hra = Play({"1#&"});
  hra.SetFieldState({1, 0}, kFalling);
  hra.KeyDirection = kKeyRight;
  PohybH(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"1#&"}));
}

TEST(Keys, ChanceCountsTheLocksColumnByColumnAndTheOutcomeGoesIntoTheRecord) {
  const Pairs byColumn{{0, 1}, {1, 2}, {2, 0}};
  for (std::uint64_t seed = 0; seed < 12; ++seed) {
    SCOPED_TRACE(seed);
    Hra hra = Play({
        "#.&",
        "&..",
        "#&.",
    });
    hra.Luck.Seed(seed);
    Chance same(seed);
    const Pair expected = byColumn[same.Below(3)];
    EXPECT_EQ(Take(hra, 0, 0), LineOfPairs({expected}));
    for (const auto& [x, y] : byColumn)
      EXPECT_EQ(hra.Field({x, y}), Pair(x, y) == expected ? kSpace : kLockBlue);
  }
}

TEST(Keys, ChanceDrawsAgainForALockThatIsOpenAlready) {
  const Pairs byColumn{{0, 1}, {1, 2}, {2, 0}, {2, 2}};
  for (std::uint64_t seed = 0; seed < 12; ++seed) {
    SCOPED_TRACE(seed);
    Hra hra = Play({
        "#.&",
        "&..",
        ".&&",
    });
    hra.Luck.Seed(seed);
    Chance same(seed);
    Pairs expected;
    while (expected.size() < byColumn.size()) {
      const Pair drawn = byColumn[same.Below(4)];
      if (std::find(expected.begin(), expected.end(), drawn) == expected.end()) expected.push_back(drawn);
    }
    EXPECT_EQ(PairsIn(Take(hra, 0, 0)), expected);
    EXPECT_EQ(Drawn(hra), (Picture{"#..", "...", "..."}));
  }
}

TEST(Keys, EachOpenedLockIsRepainted) {
  Diary diary;
  Hra hra = Play({"!.%", "..%"}, {}, &diary);
  diary.Clear();
  Take(hra, 0, 0);
  EXPECT_EQ(diary.entries.size(), 2U);
  EXPECT_TRUE(diary.Has("cell 2,0"));
  EXPECT_TRUE(diary.Has("cell 2,1"));
}

// In a replay

TEST(Keys, InAReplayTheRecordPicksTheLocks) {
  const Pairs locks{{2, 0}, {0, 1}, {1, 2}};
  for (const Pair& picked : locks) {
    Hra hra = PlayBack({"#.&", "&..", "#&."}, {});
    const std::string line = LineOfPairs({picked}) + "rest";
    TakeInReplay(hra, 0, 0, line);
    for (const auto& [x, y] : locks) EXPECT_EQ(hra.Field({x, y}), Pair(x, y) == picked ? kSpace : kLockBlue);
    EXPECT_EQ(hra.RecordLine, "rest");
  }
}

TEST(Keys, InAReplayAPairIsReadForEachLockAndTheRestIsLeft) {
  for (const auto& [key, lock, after] : std::vector<std::tuple<char, char, Picture>>{
           {'!', '%', {"!.R", "R.R"}}, {'@', '^', {"@.K", "K.K"}}, {'#', '&', {"#..", "..."}}}) {
    SCOPED_TRACE(key);
    Diary diary;
    Hra hra = PlayBack({"...", "..."}, {}, {}, &diary);
    Put(hra, 0, 0, key);
    for (const auto& [x, y] : Pairs{{2, 0}, {0, 1}, {2, 1}}) Put(hra, x, y, lock);
    const std::string line = LineOfPairs({{2, 1}, {0, 1}, {2, 0}}) + "C";
    diary.Clear();
    TakeInReplay(hra, 0, 0, line);
    EXPECT_EQ(Drawn(hra), after);
    EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 2,1", "cell 0,1", "cell 2,0"}));
    EXPECT_EQ(hra.RecordLine, "C");
  }
}

TEST(Keys, InAReplayAPairThatPointsAtNoLockIsPassedOver) {
  Hra hra = PlayBack({"#.&", "&.%"}, {});
  const std::string line = LineOfPairs({{1, 0}, {2, 1}, {2, 0}, {90, 90}, {2, 0}, {0, 1}}) + "C";
  TakeInReplay(hra, 0, 0, line);
  EXPECT_EQ(Drawn(hra), (Picture{"#..", "..%"}));
  EXPECT_EQ(hra.RecordLine, "C");
}

TEST(Keys, InAReplayWithNothingToOpenOnePairIsReadAlsoWhenALockStandsAtTheTopLeft) {
  Hra hra = PlayBack({"&##"}, {});  // one lock for two keys
  TakeInReplay(hra, 1, 0, "BBC");
  EXPECT_EQ(Drawn(hra), (Picture{"&##"}));
  EXPECT_EQ(hra.RecordLine, "C");
}

TEST(Keys, InAReplayThatHasRunDryTheLocksThatAreLeftStayShut) {
  Hra hra = PlayBack({"#&&&"}, {});
  const std::string line = LineOfPairs({{2, 0}});
  TakeInReplay(hra, 0, 0, line);
  EXPECT_EQ(Drawn(hra), (Picture{"#&.&"}));
  EXPECT_TRUE(hra.RanDry);
}

TEST(Keys, ALineThatRanDryDoesNotShutTheLocksOfALaterLine) {
  // The first line lacks the draw of the dog's step; the second holds all that it needs.
  const std::string quiet(1, 32 + 65);
  const auto pair = [](int x, int y) {
    return std::string{static_cast<char>(x + 66), static_cast<char>(y + 66)};
  };
  Hra hra(1);
  ASSERT_TRUE(Replay(hra, RecordOfLines({"1.#&&&"}, {quiet + "hAB", quiet + "hABC" + pair(3, 0) + pair(4, 0) +
                                                                        pair(5, 0)})));
  Pass(hra, 2);
  EXPECT_EQ(Drawn(hra), (Picture{"..1..."}));
}

TEST(Keys, AReplayOpensTheLocksThatWereOpenedInPlay) {
  const auto locks = [](const Hra& hra) {
    std::string rows;
    for (const std::string& row : Drawn(hra)) rows += row;
    return std::ranges::count(rows, '&');
  };
  const Picture cave{
      "1;#;#;#",
      "WWWWWWW",
      "&..&..&",
      ".&..&..",
  };
  Hra played = Play(cave);
  Pass(played, 4, "R");
  EXPECT_EQ(locks(played), 2);  // one of five, then two of four
  Hra replayed(99);
  ASSERT_TRUE(Replay(replayed, SaveRecord(played, 0)));
  Pass(replayed, 4);
  EXPECT_EQ(Drawn(replayed), Drawn(played));
  Pass(played, 2, "R");
  EXPECT_EQ(locks(played), 0);
}

}  // namespace
}  // namespace zorik::test
