#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "support/Scene.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

// A cell as diff prints it.
std::string CellOf(const Hra& hra, Cell c) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%04x/%x/%02x", unsigned{hra.Field(c)}, unsigned{hra.FieldState(c)},
                unsigned{hra.FieldMark(c)});
  return text.data();
}

class Diff : public ::testing::Test {
 protected:
  // The trace of a record, kept in a file.
  std::string Trace(const std::string& name, const std::string& record, bool grid = false) {
    std::vector<std::string> arguments{"replay", record};
    if (grid) arguments.emplace_back("--grid");
    return folder.Write(name, Zktool(arguments).out);
  }

  Told Of(const std::string& a, const std::string& b) { return Zktool({"diff", a, b}); }

  // A record of a dog that steps so: 37 left, 39 right, 0 not.
  std::string Steps(const std::string& name, const std::vector<int>& directions, const std::string& row) {
    std::vector<RecordTick> ticks;
    for (const int direction : directions) {
      ticks.push_back({.before = {1}, .direction = direction, .after = {}});
      if (direction != 0) ticks.back().after = {2};
    }
    return folder.Write(name, RecordOf({row}, ticks));
  }

  Folder folder;
  std::string short1 = folder.Write("short.zkr", ShortRecord());
};

TEST_F(Diff, FindsARecordEqualToItselfAndToItsTraces) {
  const Told told = Of(short1, short1);
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.out, "equal ticks=4\n");
  EXPECT_EQ(Of(short1, Trace("t", short1)).out, "equal ticks=4\n");
  EXPECT_EQ(Of(Trace("g", short1, true), short1).out, "equal ticks=4\n");
  EXPECT_EQ(Of(Trace("g", short1, true), Trace("t", short1)).out, "equal ticks=4\n");
}

TEST_F(Diff, OfTwoRecordsNamesTheFirstTickCounterAndCell) {
  const Told told = Of(Steps("a", {0, kKeyRight, 0}, ".1.D"), Steps("b", {0, kKeyLeft, 0}, ".1.D"));
  EXPECT_EQ(told.exit, Exit::No);
  const std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], "tick=2 counter=dogs a=1:2,0,1 b=1:0,0,1");
  Hra left = PlayBack({".1.D"}, {{.before = {1}, .direction = 0, .after = {}},
                                 {.before = {1}, .direction = kKeyLeft, .after = {2}}});
  Pass(left, 2);
  EXPECT_EQ(left.Field({0, 0}), kDog);
  EXPECT_EQ(lines[1], "tick=2 cell=0,0 a=0000/0/00 b=" + CellOf(left, {0, 0}));
}

TEST_F(Diff, NamesTheCellWithItsValuesInBothRuns) {
  const Told told = Of(Steps("a", {0}, "1W"), Steps("b", {0}, "1."));
  const std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].substr(0, 20), "tick=1 counter=hash ");
  const Hra steel = PlayBack({"1W"}, {});
  EXPECT_EQ(lines[1], "tick=1 cell=1,0 a=" + CellOf(steel, {1, 0}) + " b=0000/0/00");
}

TEST_F(Diff, OfTracesWithoutGridsNamesTickAndCounterAlone) {
  const std::string a = Trace("ta", Steps("a", {0, kKeyRight}, ".1.D"));
  const std::string b = Trace("tb", Steps("b", {0, kKeyLeft}, ".1.D"));
  EXPECT_EQ(Of(a, b).out, "tick=2 counter=dogs a=1:2,0,1 b=1:0,0,1\n");
}

TEST_F(Diff, OfTracesWithGridsNamesTheCellToo) {
  const std::string a = Trace("ga", Steps("a", {0, kKeyRight}, ".1.D"), true);
  const std::string b = Trace("gb", Steps("b", {0, kKeyLeft}, ".1.D"), true);
  EXPECT_EQ(Of(a, b).out, Of(folder.In("a"), folder.In("b")).out);
  EXPECT_EQ(Of(a, folder.In("b")).out, Of(folder.In("a"), b).out);
}

// A monster has just left a cell when the run is won; the end of the tick makes it free.
TEST_F(Diff, ComparesTheMomentOfAWinAndNotTheEndOfItsTick) {
  const std::string cave = folder.Write(
      "cave", CaveTextOf({"WWWWWW", "W1;D;T", "WWWWWW", "WF...W", "WWWWWW"}, {.needed = 1, .before = 7}));
  const std::string record = folder.In("monster.zkr");
  Zktool({"run", "--cave", cave, "--keys", folder.Write("keys", kShortKeys), "--record", record});
  std::string text = BytesOf(Trace("g", record, true));
  const std::size_t lastTick = text.rfind("tick=");
  ASSERT_NE(text.find(" ffff/", lastTick), std::string::npos);
  text.replace(text.find("hash=", lastTick) + 5, 4, "0000");
  const Told told = Of(record, folder.Write("changed", text));
  EXPECT_EQ(told.exit, Exit::No);
  const std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 1U) << "the cells are the same";
  EXPECT_EQ(lines[0].substr(0, 20), "tick=4 counter=hash ");
}

TEST_F(Diff, FindsAChangedCellOfASavedGridEvenIfTheHashIsTheSame) {
  const std::string a = Trace("a", short1, true);
  std::string text = BytesOf(a);
  const std::size_t row = text.find("row=1", text.find("tick=3"));
  text.replace(row + 6, 4, "00ff");
  const Told told = Of(a, folder.Write("b", text));
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_EQ(LinesOf(told.out).size(), 1U);
  EXPECT_EQ(told.out.substr(0, 18), "tick=3 cell=0,1 a=");
}

TEST_F(Diff, TellsWhichRunEndsEarlierAndHow) {
  EXPECT_EQ(Of(Steps("a", {0, 0}, "1"), Steps("b", {0, 0, 0}, "1")).out, "tick=3 counter=end a=eof b=none\n");
  const std::string whole = Trace("t", short1);
  const std::string text = BytesOf(whole);
  const std::string cut = folder.Write("cut", text.substr(0, text.rfind("end ")));
  EXPECT_EQ(Of(whole, cut).out, "tick=5 counter=end a=win b=cut\n");
}

TEST_F(Diff, ComparesTheScoresInTheEnd) {
  const std::string a = Trace("a", short1);
  std::string text = BytesOf(a);
  text.replace(text.rfind("score=106"), 9, "score=606");
  EXPECT_EQ(Of(a, folder.Write("b", text)).out, "tick=5 counter=score a=106 b=606\n");
}

TEST_F(Diff, ComparesNameAndSizeFirst) {
  EXPECT_EQ(Of(Steps("a", {0}, "1"), Steps("b", {0}, "1.")).out, "tick=0 counter=size a=1x1 b=2x1\n");
  const std::string other = folder.Write("c", RecordOf({"1"}, {{.before = {1}}}, {.name = "A \" b"}));
  EXPECT_EQ(Of(folder.In("a"), other).out, "tick=0 counter=name a=\"Test\" b=\"A \" b\"\n");
}

TEST_F(Diff, ReadsTracesWithLineEndsOfAnyKindAndNamesOfSeveralLines) {
  const std::string record =
      folder.Write("n.zkr", RecordOf({"1"}, {{.before = {1}}}, {.name = "two\nlines"}));
  EXPECT_EQ(Of(record, Trace("n", record)).out, "equal ticks=1\n");
  std::string text;
  for (const std::string& line : LinesOf(BytesOf(Trace("t", short1)))) text += line + "\r\n";
  EXPECT_EQ(Of(short1, folder.Write("crlf", text)).out, "equal ticks=4\n");
}

TEST_F(Diff, TellsOfFilesThatAreNeitherRecordNorTrace) {
  const std::string odd = folder.Write("odd", BytesOf(Trace("t", short1)) + "what is this\n");
  const Told told = Of(short1, odd);
  EXPECT_EQ(told.exit, Exit::BadTrace);
  EXPECT_EQ(told.err, "zktool: bad-trace: " + odd + ": line 7 is none of a trace\n");
  EXPECT_EQ(Of(short1, folder.Write("rubbish", "rubbish")).exit, Exit::BadCave);
  EXPECT_EQ(Of(folder.In("none"), short1).exit, Exit::CannotRead);
}

TEST_F(Diff, NeverFindsATraceThatIsCutEqual) {
  const std::string whole = Trace("g", short1, true);
  const std::string text = BytesOf(whole);
  for (std::size_t length = 0; length + 1 < text.size(); length += 3) {
    const Exit exit = Of(whole, folder.Write("cut", text.substr(0, length))).exit;
    EXPECT_TRUE(exit == Exit::No || exit == Exit::BadTrace || exit == Exit::BadCave) << length;
  }
}

}  // namespace
}  // namespace zorik::test
