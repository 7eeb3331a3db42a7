#include <gtest/gtest.h>

#include <sstream>

#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Scramble.h"
#include "support/Scene.h"
#include "tools/Tool.h"
#include "zktool/Json.h"
#include "zktool/Verdict.h"

namespace zorik::test {
namespace {

// How a line of verify names what the short record holds, and how one that is no record.
const std::string kNames = "collection=\"sada\" cave=\"Test\" player=\"hrac\" ";
const std::string kNoNames = "collection=\"\" cave=\"\" player=\"\" ";

// The record with another score in its head.
std::string WithScore(const std::string& record, int score) {
  RecordLines lines(record);
  const RecordHead head = ReadRecordHead(lines);
  Chance decoration;
  const std::size_t headEnd = record.find("\r\n", record.find("\r\n") + 2) + 2;
  return BuildRecordHead(head.CollectionName, score, head.Player, decoration) + record.substr(headEnd);
}

std::string RecordOfCave(const std::string& caveText) {
  Chance decoration;
  return BuildRecordHead("sada", 0, "hrac", decoration) + ScrambleText(caveText, decoration) + "\r\n";
}

Verdict VerdictOf(const std::string& bytes) {
  Hra hra;
  return Judge(hra, bytes).verdict;
}

TEST(Verdict, IsWonWhenTheRunReachesItsStoredScore) {
  Hra hra;
  const Judgement judgement = Judge(hra, ShortRecord());
  EXPECT_EQ(judgement.verdict, Verdict::Won);
  EXPECT_EQ(judgement.score, kShortScore);
  EXPECT_EQ(judgement.stored, kShortScore);
  EXPECT_EQ(judgement.ticks, 4);
}

TEST(Verdict, IsScoreDiffersWhenTheRunIsWonWithAnother) {
  Hra hra;
  const Judgement judgement = Judge(hra, WithScore(ShortRecord(), kShortScore + 1));
  EXPECT_EQ(judgement.verdict, Verdict::ScoreDiffers);
  EXPECT_EQ(judgement.score, kShortScore);
  EXPECT_EQ(judgement.stored, kShortScore + 1);
}

TEST(Verdict, IsNotWonWhenTheRecordEndsTooEarly) {
  const std::string record = ShortRecord();
  Hra hra;
  const Judgement judgement = Judge(hra, record.substr(0, record.rfind("\r\n") + 2));
  EXPECT_EQ(judgement.verdict, Verdict::NotWon);
  EXPECT_EQ(judgement.score, 0);
  EXPECT_EQ(judgement.ticks, 3);
}

TEST(Verdict, IsNotWonWhenAnEmptyLineRestartsTheReplay) {
  std::string record = ShortRecord();
  record.insert(record.rfind("\r\n"), "\r\n");
  Hra hra;
  const Judgement judgement = Judge(hra, record);
  EXPECT_EQ(judgement.verdict, Verdict::NotWon);
  EXPECT_EQ(judgement.ticks, 3);
}

TEST(Verdict, IsRanDryWhenALineLacksTheDrawOfAStep) {
  EXPECT_EQ(VerdictOf(RecordOf({"1.."}, {{.before = {1}, .direction = kKeyRight, .after = {}}})),
            Verdict::RanDry);
  EXPECT_EQ(VerdictOf(RecordOf({"1.."}, {{.before = {1}, .direction = kKeyRight, .after = {2}}})),
            Verdict::NotWon);
}

TEST(Verdict, IsRanDryEvenIfTheDamagedRunWouldWin) {
  std::string record = ShortRecord();
  record.pop_back();
  Hra hra;
  const Judgement judgement = Judge(hra, record);
  EXPECT_EQ(judgement.verdict, Verdict::RanDry);
  EXPECT_EQ(judgement.score, kShortScore);
}

TEST(Verdict, IsRanDryEvenIfARestartFollows) {
  const std::string dry = LineOf({.before = {1}, .direction = kKeyRight, .after = {}});
  EXPECT_EQ(VerdictOf(RecordOfLines({"1.."}, {dry, ""})), Verdict::RanDry);
}

TEST(Verdict, IsBadCaveWhenThereIsNoneThatCanBePlayed) {
  EXPECT_EQ(VerdictOf(""), Verdict::BadCave);
  EXPECT_EQ(VerdictOf("rubbish\r\nrubbish\r\nrubbish\r\n"), Verdict::BadCave);
  const auto cave = [](std::size_t width) { return CaveTextOf({std::string(width, '.')}); };
  EXPECT_EQ(VerdictOf(RecordOfCave(cave(100))), Verdict::NotWon);
  EXPECT_EQ(VerdictOf(RecordOfCave(cave(101))), Verdict::BadCave);
}

TEST(Verdict, DoesNotDependOnWhatTheGameHasPlayedBefore) {
  const std::string record = ShortRecord();
  Hra hra;
  EXPECT_EQ(Judge(hra, record.substr(0, record.size() - 1)).verdict, Verdict::RanDry);
  EXPECT_EQ(Judge(hra, "").verdict, Verdict::BadCave);
  EXPECT_EQ(Judge(hra, record).verdict, Verdict::Won);
  EXPECT_EQ(Judge(hra, record).verdict, Verdict::Won);
}

class Verify : public ::testing::Test {
 protected:
  std::string won = ShortRecord();
  Folder folder;
};

TEST_F(Verify, PrintsALineForEachRecordAndCountsTheVerdicts) {
  const std::string a = folder.Write("a.zkr", won);
  const std::string b = folder.Write("b.zkr", WithScore(won, 5));
  const std::string c = folder.Write("c.zkr", won.substr(0, won.rfind("\r\n") + 2));
  const std::string d = folder.Write("d.zkr", won.substr(0, won.size() - 1));
  const std::string e = folder.Write("e.zkr", "x");
  const std::string f = folder.In("f.zkr");
  const Told told = Zktool({"verify", a, b, c, d, e, f});
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_EQ(told.out, "won score=106 stored=106 ticks=4 " + kNames + a + "\n" +              //
                          "score-differs score=106 stored=5 ticks=4 " + kNames + b + "\n" +  //
                          "not-won score=0 stored=106 ticks=3 " + kNames + c + "\n" +        //
                          "ran-dry score=106 stored=106 ticks=4 " + kNames + d + "\n" +      //
                          "bad-cave score=0 stored=0 ticks=0 " + kNoNames + e + "\n" +       //
                          "unreadable score=0 stored=0 ticks=0 " + kNoNames + f + "\n" +     //
                          "total=6 won=1 score-differs=1 not-won=1 ran-dry=1 bad-cave=1 unreadable=1\n");
  EXPECT_NE(told.err.find(e), std::string::npos);
  EXPECT_NE(told.err.find(f), std::string::npos);
}

TEST_F(Verify, IsFineOnlyIfAllAreWon) {
  folder.Write("a.zkr", won);
  folder.Write("b.zkr", won);
  EXPECT_EQ(Zktool({"verify", folder.path()}).exit, Exit::Fine);
  folder.Write("c.zkr", WithScore(won, 0));
  EXPECT_EQ(Zktool({"verify", folder.path()}).exit, Exit::No);
}

TEST_F(Verify, TakesAllRecordsBelowAFolderInTheOrderOfTheirPaths) {
  for (const char* name : {"b.zkr", "a/z.zkr", "a/deep/er/x.ZKR", "c.zkr"}) folder.Write(name, won);
  folder.Write("a/notes.txt", "x");
  const Told told = Zktool({"verify", folder.path()});
  const std::string start = "won score=106 stored=106 ticks=4 " + kNames;
  EXPECT_EQ(LinesOf(told.out),
            (std::vector<std::string>{
                start + folder.In("a/deep/er/x.ZKR"), start + folder.In("a/z.zkr"),
                start + folder.In("b.zkr"), start + folder.In("c.zkr"),
                "total=4 won=4 score-differs=0 not-won=0 ran-dry=0 bad-cave=0 unreadable=0"}));
}

TEST_F(Verify, KeepsTheOrderOfManyRecords) {
  for (int i = 100; i < 300; ++i) {
    folder.Write(std::to_string(i) + ".zkr", i % 3 == 0 ? won : WithScore(won, i));
  }
  const std::vector<std::string> lines = LinesOf(Zktool({"verify", folder.path()}).out);
  ASSERT_EQ(lines.size(), 201U);
  for (int i = 100; i < 300; ++i) {
    std::ostringstream expected;
    expected << (i % 3 == 0 || i == kShortScore ? "won" : "score-differs")
             << " score=106 stored=" << (i % 3 == 0 ? kShortScore : i) << " ticks=4 " << kNames
             << folder.In(std::to_string(i) + ".zkr");
    EXPECT_EQ(lines[static_cast<std::size_t>(i - 100)], expected.str());
  }
}

TEST_F(Verify, SaysNoToAFolderWithoutRecords) {
  const Told told = Zktool({"verify", folder.path()});
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_EQ(told.err, "zktool: no: there is no record in " + folder.path() + "\n");
}

TEST_F(Verify, PrintsTheSameAsJson) {
  const std::string a = folder.Write("a \"1\".zkr", won);
  const Told told = Zktool({"verify", "--json", a});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.out, "{\"records\": [\n  {\"file\": " + JsonText(a) +
                          ", \"verdict\": \"won\", \"score\": 106, \"stored\": 106, \"ticks\": 4, "
                          "\"collection\": \"sada\", \"cave\": \"Test\", \"player\": \"hrac\", "
                          "\"message\": \"\"}\n], \"summary\": {\"total\": 1, \"won\": 1, "
                          "\"score-differs\": 0, \"not-won\": 0, \"ran-dry\": 0, \"bad-cave\": 0, "
                          "\"unreadable\": 0}}\n");
}

TEST(JsonText, KeepsCharactersAndEscapesTheRest) {
  EXPECT_EQ(JsonText("Zor\xC3\xADk \xE2\x82\xAC \xF0\x9F\x90\x95"),
            "\"Zor\xC3\xADk \xE2\x82\xAC \xF0\x9F\x90\x95\"");
  EXPECT_EQ(JsonText("a\"b\\c\n"), R"("a\u0022b\u005cc\u000a")");
  EXPECT_EQ(JsonText("\xED"), R"("\udced")");
  EXPECT_EQ(JsonText("\xC0\x80"), R"("\udcc0\udc80")");
  EXPECT_EQ(JsonText("\xED\xA0\x80"), R"("\udced\udca0\udc80")");
}

TEST_F(Verify, JudgesARecordCutAnywhere) {
  for (std::size_t length = 0; length <= won.size(); ++length) {
    Hra hra;
    const Judgement judgement = Judge(hra, won.substr(0, length));
    EXPECT_EQ(judgement.verdict == Verdict::Won, length == won.size()) << length;
    EXPECT_LE(judgement.ticks, 4);
  }
}

}  // namespace
}  // namespace zorik::test
