// The ghost beside a run in the game window.

#include "data/RecordFile.h"
#include "screens/HraScreen.h"

namespace zorik {
namespace {

using test::Wait;

test::Numbers OpenFinish() {
  test::Numbers numbers;
  numbers.needed = 0;
  return numbers;
}

test::Picture Hall() {
  return {"WWWWWWWWWWWW", "W1........TW", "W..........W", "WWWWWWWWWWWW"};
}

// A record that walks straight to the finish of the hall.
std::string RecordOfHall() {
  Hra hra(1);
  EXPECT_TRUE(PaintCave(hra, test::CaveTextOf(Hall(), OpenFinish()), RunKind::Play));
  EXPECT_EQ(test::Pass(hra, 9, "R"), TickEnd::Won);
  return SaveRecord(hra, hra.Win->Score);
}

class HraWindowGhostTest : public test::HraScreen {
 protected:
  HraWindowGhostTest() {
    Paint("Space", Qt::black);
    Paint("Dog", Qt::red);
    settings.Ghost = true;
  }

  void Paint(const std::string& name, QColor colour) const {
    QImage picture(80, 80, QImage::Format_RGB32);
    picture.fill(colour);
    const std::string file = folder.Root() + "/Skins/Default/Game/" + name + ".bmp";
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    EXPECT_TRUE(picture.save(QString::fromStdString(file)));
  }

  void Begin(const std::string& record, RunKind kind = RunKind::Play) {
    Show();
    window->Machine().Luck = Chance(5);
    ASSERT_TRUE(PaintCave(window->Machine(), test::CaveTextOf(Hall(), OpenFinish()), kind));
    window->SetGhost(record);
    window->StartTicking();
  }

  // The cells of the hall in which a dog is seen, a whole or a translucent one.
  int Dogs() {
    auto& frame = const_cast<Ram&>(window->PlayArea());
    const QImage shown = frame.grab().toImage();
    int dogs = 0;
    for (int y = 0; y < 4; ++y) {
      for (int x = 0; x < 12; ++x) {
        const QColor colour =
            shown.pixelColor((2 * x + 1) * shown.width() / 24, (2 * y + 1) * shown.height() / 8);
        dogs += colour.red() > 60 && colour.green() < 30 && colour.blue() < 30 ? 1 : 0;
      }
    }
    return dogs;
  }
};

TEST_F(HraWindowGhostTest, ShowsTheGhostBesideTheDog) {
  Begin(RecordOfHall());
  EXPECT_EQ(Dogs(), 1) << "both begin in the same place";
  ASSERT_TRUE(TicksPass(3));
  EXPECT_EQ(Dogs(), 2);
}

TEST_F(HraWindowGhostTest, ShowsNoneUnlessItIsWanted) {
  settings.Ghost = false;
  Begin(RecordOfHall());
  ASSERT_TRUE(TicksPass(3));
  EXPECT_EQ(Dogs(), 1);
  settings.Ghost = true;
  ASSERT_TRUE(TicksPass(1));
  EXPECT_EQ(Dogs(), 2) << "it has been switched on meanwhile";
}

TEST_F(HraWindowGhostTest, ShowsNoneBesideATestRunAndNoneOfAnotherCave) {
  Begin(RecordOfHall(), RunKind::Test);
  ASSERT_TRUE(TicksPass(3));
  EXPECT_EQ(Dogs(), 1);
  test::Numbers other = OpenFinish();
  other.name = "Jina";
  ASSERT_TRUE(window->Start(test::CaveTextOf(Hall(), other), RunKind::Play));
  window->SetGhost(RecordOfHall());
  ASSERT_TRUE(TicksPass(3));
  EXPECT_EQ(Dogs(), 1);
}

TEST_F(HraWindowGhostTest, BeginsTheGhostAgainWithTheCave) {
  Begin(RecordOfHall());
  ASSERT_TRUE(TicksPass(4));
  Click("picRestart");
  EXPECT_EQ(Dogs(), 1);
  ASSERT_TRUE(TicksPass(3));
  EXPECT_EQ(Dogs(), 2);
}

TEST_F(HraWindowGhostTest, LeavesTheRecordAsItWouldBeWithoutIt) {
  std::vector<std::string> records;
  for (const bool ghost : {true, false}) {
    settings.Ghost = ghost;
    Begin(RecordOfHall());
    ASSERT_TRUE(Wait([this] { return window->Machine().Ticks >= 12; }));
    window->Stop();
    records.push_back(window->Machine().RecordText.substr(window->Machine().RecordText.find("\r\n")));
  }
  const std::size_t both = std::min(records[0].size(), records[1].size());
  ASSERT_GT(both, 40U);
  EXPECT_EQ(records[0].substr(0, both), records[1].substr(0, both));
}

}  // namespace
}  // namespace zorik
