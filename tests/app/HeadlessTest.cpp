#include <gtest/gtest.h>

#include <QImage>
#include <array>
#include <cstdlib>
#include <optional>
#include <set>

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
    if (!pictures.empty()) paths.AppPath = pictures;
    testing::internal::CaptureStdout();
    const int code = PlayHeadless(paths);
    said = testing::internal::GetCapturedStdout();
    return code;
  }

  bool HasPicture() const { return std::filesystem::exists(folder.Root() + "/posledni-okamzik.png"); }

  static std::string Won(const std::string& cave) {
    Hra run(1);
    EXPECT_TRUE(PaintCave(run, OneStepCave(cave) + "---01", RunKind::Play));
    StepToWin(run);
    return SaveRecord(run, run.Win->Score);
  }
  QImage Picture() const { return QImage(QString::fromStdString(folder.Root() + "/posledni-okamzik.png")); }

  Folder folder;
  std::string pictures;  // where the picture is to go, if not beside the game
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

TEST_F(HeadlessTest, SaysFirstWhyItHasNoWindow) {
  Play();
  EXPECT_TRUE(
      said.starts_with("Není tu žádná obrazovka, Zorík proto přehraje záznam první komnaty bez okna.\n"))
      << said;
}

TEST_F(HeadlessTest, PlaysTheFirstCollectionThatHasARecord) {
  folder.File("Replays/Alfa/02.zkr", Won("Dva"));
  folder.File("Replays/Beta/01.zkr", Won("Beta"));
  folder.File("Replays/Gama/01.zkr", Won("Gama"));
  EXPECT_EQ(Play(), 0);
  EXPECT_NE(said.find("„Beta“"), std::string::npos) << said;
  EXPECT_EQ(said.find("„Gama“"), std::string::npos) << said;
}

TEST_F(HeadlessTest, SpeaksTheLanguageOfTheDesktop) {
  setenv("LC_ALL", "en_GB.UTF-8", 1);
  RecordIs(Won("Jedna"));
  EXPECT_EQ(Play(), 0);
  EXPECT_NE(said.find("Cave “Jedna”: the record led Zorík to the finish, score 50.\n"), std::string::npos)
      << said;
  EXPECT_TRUE(std::filesystem::exists(folder.Root() + "/last-moment.png"));
}

TEST_F(HeadlessTest, NamesACaveAsItIsCalled) {
  RecordIs(Won("?2? ?1? x?"));
  EXPECT_EQ(Play(), 0);
  EXPECT_NE(said.find("Komnata „?2? ?1? x?“: záznam dovedl Zoríka do cíle, skóre 50.\n"), std::string::npos)
      << said;
}

TEST_F(HeadlessTest, SaysThatThePictureCannotBeStored) {
  RecordIs(Won("Jedna"));
  pictures = folder.Root() + "/nowhere";
  EXPECT_EQ(Play(), 0) << "the record wins all the same";
  EXPECT_NE(said.find("Soubor se nepodařilo uložit.\n"), std::string::npos) << said;
  EXPECT_EQ(said.find("Poslední okamžik"), std::string::npos) << said;
}

// The two runs differ in where the dog stands at their ends.
TEST_F(HeadlessTest, ShowsTheLastMomentOfTheRunAndNotItsBeginning) {
  RecordIs(RecordOf({"WWWWW", "W1TWW", "WWWWW"}, std::vector<RecordTick>(2), {.needed = 0}));
  EXPECT_EQ(Play(), 1);
  const QImage stayed = Picture();
  EXPECT_EQ(stayed.width(), 1560) << "as wide as a whole view";
  EXPECT_LE(stayed.height(), 920);
  RecordIs(Won("Jedna"));
  EXPECT_EQ(Play(), 0);
  const QImage went = Picture();
  EXPECT_EQ(went.size(), stayed.size());
  EXPECT_NE(went, stayed);
  std::set<QRgb> colours;
  for (int x = 0; x < went.width(); x += 3) {
    for (int y = 0; y < went.height(); y += 3) colours.insert(went.pixel(x, y));
  }
  EXPECT_GT(colours.size(), 20U) << "a cave is to be seen";
}

// The desktop's variables, as they are for one test.
class DisplayTest : public testing::Test {
 protected:
  DisplayTest() {
    for (const char* const name : kNames) {
      const char* const value = std::getenv(name);
      before_.push_back(value == nullptr ? std::nullopt : std::optional<std::string>(value));
      unsetenv(name);
    }
  }
  ~DisplayTest() override {
    for (std::size_t i = 0; i < kNames.size(); ++i) {
      unsetenv(kNames[i]);
      if (before_[i]) setenv(kNames[i], before_[i]->c_str(), 1);
    }
  }

  static constexpr std::array kNames{"ZORIK_NO_DISPLAY", "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};

 private:
  std::vector<std::optional<std::string>> before_;
};

TEST_F(DisplayTest, IsNamedByAnyOfTheDesktopsVariables) {
  EXPECT_FALSE(DisplayNamed());
  for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    setenv(name, "", 1);
    EXPECT_FALSE(DisplayNamed()) << name;
    setenv(name, ":0", 1);
    EXPECT_TRUE(DisplayNamed()) << name;
    unsetenv(name);
  }
}

TEST_F(DisplayTest, IsNoneOnceItCouldNotBeOpened) {
  setenv("DISPLAY", ":0", 1);
  setenv("ZORIK_NO_DISPLAY", "", 1);
  EXPECT_TRUE(DisplayNamed());
  setenv("ZORIK_NO_DISPLAY", "1", 1);
  EXPECT_FALSE(DisplayNamed());
}

TEST_F(DisplayTest, AMessageThatIsNotTheEndBeginsNothingAnew) {
  const QtMessageHandler before = qInstallMessageHandler(nullptr);
  const QtMessageHandler plain = qInstallMessageHandler(nullptr);
  {
    const AnewWithoutDisplay anew;
    qWarning("this is said of a display");
    EXPECT_EQ(std::getenv("ZORIK_NO_DISPLAY"), nullptr);
    const QtMessageHandler own = qInstallMessageHandler(nullptr);
    EXPECT_NE(own, plain);
    qInstallMessageHandler(own);
  }
  EXPECT_EQ(qInstallMessageHandler(before), plain);
}

}  // namespace
}  // namespace zorik::test
