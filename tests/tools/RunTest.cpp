#include <gtest/gtest.h>

#include "data/Lines.h"
#include "data/RecordFile.h"
#include "support/Scene.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

class Run : public ::testing::Test {
 protected:
  Told Start(const std::vector<std::string>& more) {
    std::vector<std::string> arguments{"run", "--cave", cave, "--keys", keys};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Zktool(arguments);
  }

  Folder folder;
  std::string cave = folder.Write("cave", ShortCave());
  std::string keys = folder.Write("keys", kShortKeys);
  std::string record = folder.In("out.zkr");
};

TEST_F(Run, EndsInTheTickInWhichItIsWon) {
  const Told told = Start({"--ticks", "50"});
  EXPECT_EQ(told.exit, Exit::Fine);
  const std::vector<std::string> lines = LinesOf(told.out);
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[0], "cave name=\"Test\" size=6x3");
  EXPECT_EQ(lines[1].substr(0, 76),
            "tick=1 time=1 shown=99 gems=0 score=0 value=7 exit=0 magic=0 amoeba=0 unit=1");
  EXPECT_EQ(lines[5], "end reason=win score=106 base=106");
}

TEST_F(Run, WritesTheRecordOfAWinAndItReplaysToTheSameTrace) {
  const Told told = Start({"--record", record, "--grid"});
  ASSERT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(Zktool({"replay", record, "--grid"}).out, told.out);
  RecordLines lines(BytesOf(record));
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.CollectionName, "sada");
  EXPECT_EQ(head.Player, "hrac");
  EXPECT_EQ(head.Score, kShortScore);
  EXPECT_EQ(head.CaveText, ShortCave());
  EXPECT_NE(BytesOf(record).back(), '\n');
}

TEST_F(Run, ThatIsNotWonLeavesTheRecordFileAsItWas) {
  folder.Write("out.zkr", "old");
  const Told told = Start({"--ticks", "3", "--record", record});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(BytesOf(record), "old");
  EXPECT_EQ(told.err, "zktool: the run was not won, so " + record + " was not written\n");
}

TEST_F(Run, ThatIsNotWonIsRecordedWithScoreNoughtWhenAlwaysAskedFor) {
  const Told told = Start({"--ticks", "3", "--record", record, "--record-always"});
  EXPECT_EQ(told.exit, Exit::Fine);
  const std::string bytes = BytesOf(record);
  EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
  RecordLines lines(bytes);
  EXPECT_EQ(ReadRecordHead(lines).Score, 0);
  std::vector<std::string> live = LinesOf(told.out);
  std::vector<std::string> replayed = LinesOf(Zktool({"replay", record}).out);
  EXPECT_EQ(live.back(), "end reason=ticks score=0 base=0");
  EXPECT_EQ(replayed.back(), "end reason=eof score=0 base=0");
  live.pop_back();
  replayed.pop_back();
  EXPECT_EQ(live, replayed);
}

TEST_F(Run, WithoutANumberOfTicksIsAsLongAsItsKeys) {
  keys = folder.Write("keys", ".\n\n.");
  EXPECT_EQ(LinesOf(Start({}).out).size(), 1U + 3U + 1U);
}

TEST_F(Run, HoldsNothingBehindTheEndOfItsKeys) {
  keys = folder.Write("keys", "R");
  const std::vector<std::string> lines = LinesOf(Start({"--ticks", "3"}).out);
  ASSERT_EQ(lines.size(), 5U);
  for (std::size_t tick = 1; tick <= 3; ++tick) {
    EXPECT_NE(lines[tick].find(" dogs=1:2,1,1 "), std::string::npos);
  }
}

TEST_F(Run, WithTheSameSeedIsTheSameAndWithAnotherIsNot) {
  cave = folder.Write("cave", CaveTextOf({"WWWWWWW", "W1....W", "WS.S.SW", "W.....W", "W..L..W", "WWWWWWW"},
                                         {.permeability = 4}));
  const auto traceOf = [this](const std::string& seed) {
    return Start({"--ticks", "60", "--seed", seed}).out;
  };
  EXPECT_EQ(traceOf("5"), traceOf("5"));
  EXPECT_NE(traceOf("5"), traceOf("6"));
  EXPECT_EQ(traceOf("0"), Start({"--ticks", "60"}).out);
}

TEST_F(Run, TellsWhatIsWrongWithItsFiles) {
  keys = folder.Write("keys", "R\nx\n");
  Told told = Start({});
  EXPECT_EQ(told.exit, Exit::BadKeys);
  EXPECT_EQ(told.err, "zktool: bad-keys: " + keys + ": line 2: 'x' is no key\n");
  keys = folder.In("none");
  EXPECT_EQ(Start({}).exit, Exit::CannotRead);
  keys = folder.Write("keys", "");
  cave = folder.Write("cave", "rubbish");
  told = Start({});
  EXPECT_EQ(told.exit, Exit::BadCave);
  EXPECT_NE(told.err.find(cave), std::string::npos);
  cave = folder.In("none");
  EXPECT_EQ(Start({}).exit, Exit::CannotRead);
}

TEST_F(Run, TellsOfARecordThatCannotBeWritten) {
  const Told told = Start({"--record", folder.In("no/such/folder/out.zkr")});
  EXPECT_EQ(told.exit, Exit::CannotWrite);
  EXPECT_NE(told.err.find("no/such/folder/out.zkr"), std::string::npos);
}

TEST_F(Run, NeedsNumbersThatAreNumbers) {
  EXPECT_EQ(Start({"--ticks", "-1"}).exit, Exit::Usage);
  EXPECT_EQ(Start({"--ticks", "3x"}).exit, Exit::Usage);
  EXPECT_EQ(Start({"--ticks", "99999999999"}).exit, Exit::Usage);
  EXPECT_EQ(Start({"--seed", ""}).exit, Exit::Usage);
  EXPECT_EQ(Start({"--seed", "18446744073709551615"}).exit, Exit::Fine);
  EXPECT_EQ(Start({"--record-always"}).exit, Exit::Usage);
}

}  // namespace
}  // namespace zorik::test
