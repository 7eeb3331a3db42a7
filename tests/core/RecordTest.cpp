#include <gtest/gtest.h>

#include "data/Result.h"
#include "data/Scramble.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  RecordLines rest{bytes};
  while (!rest.AtEnd()) lines.emplace_back(rest.Next());
  return lines;
}

TEST(TheRecordFile, HoldsCollectionAndScoreThenPlayerThenCaveThenALineForEachTick) {
  Hra hra = Play({"1.."});
  Pass(hra, 1, "R");
  Pass(hra, 2);
  const std::vector<std::string> lines = LinesOf(SaveRecord(hra, 42));
  ASSERT_EQ(lines.size(), 3U + 3U);
  EXPECT_EQ(UnscrambleText(lines[0]), "sada\r00042");
  EXPECT_EQ(UnscrambleText(lines[1]), "hrac");
  EXPECT_EQ(UnscrambleText(lines[2]), CaveTextOf({"1.."}));
  EXPECT_EQ(lines[3].substr(1, 3), "hAB");
  EXPECT_EQ(lines[3].size(), 5U);
  EXPECT_EQ(lines[4].substr(1), "AAB");
  EXPECT_EQ(lines[5].substr(1), "AAB");
}

TEST(TheRecordFile, EndsEachLineOfAnUnfinishedRunWithCarriageReturnAndLineFeed) {
  Hra hra = Play({"1"});
  Pass(hra, 3);
  const std::string bytes = SaveRecord(hra, 0);
  int ends = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n') {
      ++ends;
      EXPECT_EQ(bytes[i - 1], '\r');
    }
  }
  EXPECT_EQ(ends, 6);
  EXPECT_EQ(bytes.back(), '\n');
}

TEST(TheRecordFile, OfATestRunNamesNoPlayer) {
  Hra hra;
  hra.PlayerName = "hrac";
  ASSERT_TRUE(PaintCave(hra, CaveTextOf({"1"}), RunKind::Test));
  const std::vector<std::string> lines = LinesOf(SaveRecord(hra, 5));
  EXPECT_EQ(lines[1], "");
  EXPECT_EQ(UnscrambleText(lines[0]), "\r00005");
}

TEST(NothingIsSaved, InAReplayNorWhenNothingIsRecorded) {
  Hra hra;
  ASSERT_TRUE(Replay(hra, RecordOf({"1"}, {{.before = {9}}})));
  EXPECT_EQ(SaveRecord(hra, 5), "");
  hra.Recording = true;
  EXPECT_EQ(SaveRecord(hra, 5), "");
  ASSERT_TRUE(PaintCave(hra, CaveTextOf({"1"}), RunKind::Play));
  hra.Recording = false;
  EXPECT_EQ(SaveRecord(hra, 5), "");
}

TEST(AReplay, TakesCollectionPlayerAndCaveFromTheRecord) {
  Hra hra;
  hra.PlayerName = "divak";
  hra.CollectionName = "jina";
  hra.Score = 77;
  ASSERT_TRUE(Replay(hra, RecordOf({"1.D"}, {{.before = {9}}}, {.name = "Jmeno"})));
  EXPECT_TRUE(hra.ReplayPlaying());
  EXPECT_EQ(hra.CollectionName, "sada");
  EXPECT_EQ(hra.RecordPlayer, "hrac");
  EXPECT_EQ(hra.PlayerName, "divak");
  EXPECT_EQ(hra.CaveName, "Jmeno");
  EXPECT_EQ(hra.Score, 0);
}

TEST(AReplayOfATestRun, TakesThePlayerWhoWatchesForTheOneWhoPlayed) {
  Hra tested;
  ASSERT_TRUE(PaintCave(tested, CaveTextOf({"1"}), RunKind::Test));
  Pass(tested);
  Hra hra;
  hra.PlayerName = "divak";
  ASSERT_TRUE(Replay(hra, SaveRecord(tested, 0)));
  EXPECT_EQ(hra.RecordPlayer, "divak");
}

TEST(AReplay, LeavesACollectionNameWithoutAScoreAsItIs) {
  Chance decoration;
  for (const char* name : {"sada", "sada12345", "\r1234", ""}) {
    const std::string record = ScrambleText(name, decoration) + "\r\n" + ScrambleText("x", decoration) +
                               "\r\n" + ScrambleText(CaveTextOf({"1"}), decoration) + "\r\n";
    Hra hra;
    ASSERT_TRUE(Replay(hra, record));
    EXPECT_EQ(hra.CollectionName, name);
  }
}

TEST(AReplay, OfARecordWhoseCaveDoesNotParseFailsAndChangesNothing) {
  Hra hra = Play({"1.."});
  Pass(hra, 1, "R");
  for (const std::string& bytes :
       {std::string(), std::string("\r\n\r\n\r\n"), std::string("abc\r\nabc\r\n@@@\r\nAAA")}) {
    const auto started = Replay(hra, bytes);
    ASSERT_FALSE(started);
    EXPECT_FALSE(started.Message().empty());
    EXPECT_FALSE(hra.ReplayPlaying());
    EXPECT_EQ(Drawn(hra)[0], ".1.");
    EXPECT_EQ(hra.CollectionName, "sada");
  }
}

TEST(AReplay, FeedsOneLineToEachTickInTheOrderOfTheDraws) {
  Hra hra = PlayBack(
      {"D1.", "SW.", ".W."},
      {{.before = {2, 9}, .direction = 39, .after = {3}}, {.before = {1, 9}, .direction = 40, .after = {2}}},
      {.permeability = 7});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"D.1", "SW.", ".W."}));
  EXPECT_TRUE(Drained(hra));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"...", "SW1", "dW."}));
  EXPECT_TRUE(Drained(hra));
}

TEST(AReplay, CountsAnUnterminatedLastLineButNoEmptyOneBehindATerminatedLine) {
  const std::string record = RecordOfLines({"1..."}, {"JhABC", "JhABC"});
  for (const std::string& bytes : {record, record.substr(0, record.size() - 2)}) {
    Hra hra;
    ASSERT_TRUE(Replay(hra, bytes));
    EXPECT_EQ(Pass(hra, 2), TickEnd::Running);
    EXPECT_EQ(Drawn(hra)[0], "..1.");
    EXPECT_EQ(Pass(hra), TickEnd::RecordOver);
  }
}

TEST(AReplay, EndsALineAtCarriageReturnAndLineFeedTogetherOnly) {
  Chance decoration;
  Hra hra;
  ASSERT_TRUE(Replay(hra, RecordOfLines({"1..."}, {"JAAB\n\rXX", "JhABC"})));
  Pass(hra);
  EXPECT_EQ(hra.RecordLine, "\n\rXX");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], ".1..");
}

TEST(AReplay, RestartsFromItsTopWithCtrlAndR) {
  Hra hra = PlayBack({"1D..", "WWWW"}, {{.before = {9}, .direction = 39, .after = {3}}, {.before = {9}}});
  Pass(hra);
  ASSERT_EQ(hra.Score, 10);
  KeySnapshot keys;
  keys.down.set(kKeyR).set(kKeyCtrl);
  EXPECT_EQ(Tick(hra, keys), TickEnd::Restarted);
  EXPECT_TRUE(hra.ReplayPlaying());
  EXPECT_EQ(hra.Score, 0);
  EXPECT_EQ(hra.RecordPlayer, "hrac");
  Pass(hra);
  EXPECT_EQ(Drawn(hra)[0], ".1..");
  EXPECT_EQ(hra.Score, 10);
}

TEST(AReplayWhoseLineIsTooShort, GoesOnAndTellsThatItRanDry) {
  Hra hra(1);
  ASSERT_TRUE(Replay(hra, RecordOfLines({"1..", "WWW"}, {"JhAB", "JhABC"})));
  Pass(hra);
  EXPECT_TRUE(hra.RanDry);
  EXPECT_EQ(Drawn(hra)[0], ".1.");
  EXPECT_EQ(Pass(hra), TickEnd::Running);
  EXPECT_EQ(Drawn(hra)[0], "..1");
}

// A fly between two ways draws until it names a free one. That an earlier line was too short is no reason to
// give up on a line that holds the answer.
TEST(AReplayThatRanDryOnce, StillReadsTheLaterLinesToTheirEnd) {
  const Picture picture{"1W...", "WW.L.", "WW..."};
  const auto heading = [&](const std::string& first) {
    Hra hra(1);
    EXPECT_TRUE(Replay(hra, RecordOfLines(picture, {first, "CDJAAB"})));
    Pass(hra);
    hra.SetField({3, 1}, kFly);
    hra.SetField({4, 1}, kSteel);
    hra.SetFieldMark({3, 1}, 2);
    Pass(hra);
    return hra.FieldMark({3, 1});
  };
  EXPECT_EQ(heading("CJAAB"), 3);
  EXPECT_EQ(heading("CJhAB"), 3);
}

TEST(ARunInPlay, RestartsWithAFreshRecordAndKeepsItsScore) {
  Hra hra = Play({"1D.", "WWW"});
  Pass(hra, 2, "R");
  const std::string text = hra.CaveText;
  RestartCave(hra);
  EXPECT_EQ(hra.CaveText, text);
  EXPECT_EQ(hra.Ticks, 0);
  EXPECT_EQ(hra.Score, 10);
  EXPECT_EQ(LinesOf(hra.RecordText).size(), 1U);
  EXPECT_FALSE(hra.ReplayPlaying());
  EXPECT_FALSE(hra.EditorRun());
}

TEST(ATestRun, RestartsAsATestRun) {
  Hra hra;
  ASSERT_TRUE(PaintCave(hra, CaveTextOf({"1.."}), RunKind::Test));
  Pass(hra, 2, "R");
  RestartCave(hra);
  EXPECT_TRUE(hra.EditorRun());
  EXPECT_EQ(Drawn(hra)[0], "1..");
}

TEST(ARestart, StopsTheSounds) {
  Diary diary;
  Hra hra = Play({"1A."}, {}, &diary);
  diary.Clear();
  RestartCave(hra);
  EXPECT_EQ(diary.Count("stopall"), 1);
  EXPECT_LT(diary.Place("stopall"), diary.Place("sound 13"));
}

TEST(SavingARecord, LeavesTheRunAsItIs) {
  Hra hra = Play({"1..."});
  Pass(hra, 1, "R");
  const std::string text = hra.RecordText;
  const std::string bytes = SaveRecord(hra, 123);
  EXPECT_EQ(hra.RecordText, text);
  EXPECT_EQ(bytes.substr(bytes.size() - text.size()), text);
  Pass(hra, 1, "R");
  EXPECT_EQ(Drawn(hra)[0], "..1.");
}

}  // namespace
}  // namespace zorik::test
