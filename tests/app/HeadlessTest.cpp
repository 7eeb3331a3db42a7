#include <gtest/gtest.h>

#include <cstdlib>

#include "app/Headless.h"
#include "core/Hra.h"
#include "data/Result.h"
#include "screens/Folder.h"

namespace zorik::test {
namespace {

// The game on a desktop without a display, with a record of its own.
class HeadlessTest : public testing::Test {
 protected:
  HeadlessTest() { setenv("LC_ALL", "cs_CZ.UTF-8", 1); }
  ~HeadlessTest() override { unsetenv("LC_ALL"); }

  void RecordIs(const std::string& bytes) const { folder.File("Replays/Alfa/01.zkr", bytes); }

  // Answers the exit code, and keeps what was said.
  int Play() {
    Paths paths = folder.Paths();
    paths.ShippedSkins = ZORIK_BUILT_SKINS;
    testing::internal::CaptureStdout();
    const int code = PlayHeadless(paths);
    said = testing::internal::GetCapturedStdout();
    return code;
  }

  bool HasPicture() const { return std::filesystem::exists(folder.Root() + "/posledni-okamzik.png"); }

  Folder folder;
  std::string said;
};

// The one step of that cave, with 50 seconds left, is worth 50 points.
TEST_F(HeadlessTest, TellsTheCaveAndTheScoreOfARecordThatWins) {
  Hra run(1);
  ASSERT_TRUE(PaintCave(run, OneStepCave("Jedna") + "---01", RunKind::Play));
  StepToWin(run);
  RecordIs(SaveRecord(run, run.Win->Score));
  EXPECT_EQ(Play(), 0);
  EXPECT_NE(said.find("Komnata „Jedna“: záznam dovedl Zoríka do cíle, skóre 50."), std::string::npos) << said;
  EXPECT_NE(said.find(folder.Root() + "/posledni-okamzik.png"), std::string::npos) << said;
  EXPECT_TRUE(HasPicture());
}

TEST_F(HeadlessTest, FailsWhereTheRecordDoesNotWin) {
  RecordIs(RecordOf({"1.."}, std::vector<RecordTick>(3)));
  EXPECT_EQ(Play(), 1);
  EXPECT_NE(said.find("Komnata „Test“: záznam skončil, aniž Zorík došel do cíle."), std::string::npos)
      << said;
  EXPECT_TRUE(HasPicture());
}

TEST_F(HeadlessTest, FailsWithoutARecord) {
  EXPECT_EQ(Play(), 1);
  EXPECT_NE(said.find("Záznam první komnaty chybí."), std::string::npos) << said;
  EXPECT_FALSE(HasPicture());
}

TEST_F(HeadlessTest, FailsWhereTheRecordHasNoCave) {
  RecordIs("rubbish\r\nrubbish\r\n");
  EXPECT_EQ(Play(), 1);
  EXPECT_NE(said.find("Komnatu nelze otevřít."), std::string::npos) << said;
  EXPECT_FALSE(HasPicture());
}

}  // namespace
}  // namespace zorik::test
