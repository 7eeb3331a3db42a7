#include <gtest/gtest.h>

#include "tools/Tool.h"

namespace zorik::test {
namespace {

const std::string kAttic = std::string(ZORIK_TEST_CAVES) + "/attic.txt";
const std::string kAtticProof = std::string(ZORIK_TEST_CAVES) + "/attic.zkr";

class Rate : public ::testing::Test {
 protected:
  Folder folder;
};

TEST_F(Rate, TellsWhatTheProofOfACaveIsWorth) {
  const std::string cave = folder.Write("cave", ShortCave());
  const std::string record = folder.Write("win.zkr", ShortRecord());
  const Told told = Zktool({"rate", cave, "--proofs", record, "--seconds", "2", "--retries", "5"});
  EXPECT_EQ(told.exit, Exit::Fine) << told.err;
  EXPECT_NE(told.out.find("  length      0.4 s, 4 ticks; the limit is 250.0 times that\n"), std::string::npos)
      << told.out;
  EXPECT_NE(told.out.find("  odds        5 of 5 other seeds\n"), std::string::npos) << told.out;
  EXPECT_NE(told.out.find("  used        gem\n  not used    nothing\n"), std::string::npos) << told.out;
  EXPECT_NE(told.out.find("  paws        1\n"), std::string::npos);
}

TEST_F(Rate, SearchesAProofWhereNoneIsGiven) {
  const Told told = Zktool({"rate", folder.Write("cave", ShortCave()), "--seconds", "2", "--json"});
  EXPECT_EQ(told.exit, Exit::Fine) << told.err;
  EXPECT_NE(told.out.find("\"rated\": true, \"ticks\": 4, \"limitRatio\": 250"), std::string::npos)
      << told.out;
}

// The roof of the shed is full of gems, and the way to the finish passes below.
TEST_F(Rate, FindsAnAtticThatNobodyNeeds) {
  const Told told = Zktool({"rate", kAttic, "--proofs", kAtticProof, "--seconds", "40", "--retries", "0"});
  EXPECT_EQ(told.exit, Exit::Fine) << told.err;
  EXPECT_NE(told.out.find("  skippable   8,5,4x2 DDRR\n"), std::string::npos) << told.out;
}

TEST_F(Rate, SaysThatAProofIsOfAnotherCaveOrIsNotThere) {
  const std::string cave = folder.Write("cave", ShortCave());
  const Told other = Zktool({"rate", cave, "--proofs", kAtticProof});
  EXPECT_EQ(other.exit, Exit::No);
  EXPECT_NE(other.out.find("is a record of another cave"), std::string::npos) << other.out;
  EXPECT_EQ(Zktool({"rate", cave, "--proofs", folder.In("none.zkr")}).exit, Exit::No);
}

TEST_F(Rate, RefusesWhatIsNoCaveAndNumbersThatMakeNoSense) {
  EXPECT_EQ(Zktool({"rate", folder.Write("cave", "rubbish")}).exit, Exit::BadCave);
  const std::string cave = folder.Write("cave", ShortCave());
  EXPECT_EQ(Zktool({"rate", cave, "--retries", "-1"}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"rate", cave, "--jobs", "0"}).exit, Exit::Usage);
}

TEST_F(Rate, GivesLintTheHintsOfTheProof) {
  const std::string cave = folder.Write("cave", ShortCave());
  const std::string record = folder.Write("win.zkr", ShortRecord());
  EXPECT_EQ(Zktool({"lint", cave}).out.find("loose-limit"), std::string::npos);
  const Told told = Zktool({"lint", cave, "--proofs", record});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_NE(told.out.find("hint loose-limit: the time is 250.0 times that of the proof"), std::string::npos)
      << told.out;
  const Told other = Zktool({"lint", cave, "--proofs", kAtticProof});
  EXPECT_NE(other.out.find("hint proof-fails: "), std::string::npos) << other.out;
}

TEST_F(Rate, LeavesSolveNoWayThroughCellsThatItMustAvoid) {
  const std::string cave = folder.Write("cave", ShortCave());
  EXPECT_EQ(Zktool({"solve", cave, "--seconds", "0.2", "--avoid", "3,1,1x1"}).exit, Exit::No);
  EXPECT_EQ(Zktool({"solve", cave, "--shorten", "0", "--avoid", "3,0,1x1"}).exit, Exit::Fine);
  for (const char* const wrong :
       {"", "3", "3,1", "3,1,1", "3,1,0x1", "-1,1,1x1", "3,1,1x1x", "90,1,20x1", "3,1,1x1 2"})
    EXPECT_EQ(Zktool({"solve", cave, "--avoid", wrong}).exit, Exit::Usage) << wrong;
}

TEST_F(Rate, WritesAPageAboutAllCaves) {
  folder.Write("caves/set/collection.txt",
               "name: Set_\nopen: 1\nauthor:\nmail:\ncave: a.txt\ncongratulation: Well dug!\n");
  folder.Write("caves/set/a.txt",
               "name: A *star*\ntime: 60\ngems: 1\npoints-before: 10\npoints-after: 15\nmagic-wall-time: 20\n"
               "amoeba-time: 30\ncolouring: 4\nslime: 4\ncells:\n| W1D;\n| R;;T\n");
  folder.Write("caves/set/notes.txt", "cave: a.txt\nidea: Dig.\ntrial: More <dirt>.\n");
  const std::string page = folder.In("caves.md");
  ASSERT_EQ(Zktool({"solve", folder.In("caves/set"), "--record", folder.In("caves/set/records"), "--shorten",
                    "0.1"})
                .exit,
            Exit::Fine);
  const Told told = Zktool({"table", folder.In("caves"), page, "--retries", "3", "--seeds", "2"});
  ASSERT_EQ(told.exit, Exit::Fine) << told.err;
  const std::string text = BytesOf(page);
  EXPECT_NE(text.find("\n## Set\\_\n"), std::string::npos) << text;
  EXPECT_NE(
      text.find(
          "\n| 1 | A \\*star\\* | 4 x 2 | 3 | 200.0 | 0 % | 0.0 s | 3/3 | 1 | Dig. | More \\<dirt\\>. |\n"),
      std::string::npos)
      << text;
  EXPECT_NE(text.find("\n| gem | **1** |\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\n| boulder | 1 |\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\nFound: 2 of 2.\n"), std::string::npos) << text;
  folder.Write("caves/set/notes.txt", "idea: Dig.\n");
  EXPECT_EQ(Zktool({"table", folder.In("caves"), page, "--seeds", "0"}).exit, Exit::BadText);
  EXPECT_EQ(Zktool({"table", folder.In("none"), page}).exit, Exit::CannotRead);
}

}  // namespace
}  // namespace zorik::test
