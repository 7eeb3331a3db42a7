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

// The window as a stage, but for the seeds that it takes from the clock: the same keys make the same record.
class FixedChance final : public Stage {
 public:
  explicit FixedChance(Stage& window) : window_(window) {}

  void CaveOpens() override { window_.CaveOpens(); }
  void CellChanged(int x, int y) override { window_.CellChanged(x, y); }
  void Moved(Cell from, Cell to) override { window_.Moved(from, to); }
  void Label(LabelId label, int value) override { window_.Label(label, value); }
  void MoveView(bool jump) override { window_.MoveView(jump); }
  void Flash() override { window_.Flash(); }
  void Post(Request request) override { window_.Post(request); }
  void Won(const WinResult& win) override { window_.Won(win); }

 private:
  Stage& window_;
};

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

// The dog stands, so nothing but the ghost is on its way.
TEST_F(HraWindowGhostTest, ShowsTheGhostBetweenTwoCellsWithSmoothMotion) {
  settings.Speed = 10;
  const auto between = [this] {
    const QImage shown = const_cast<Ram&>(window->PlayArea()).grab().toImage();
    // In quarters of a cell.
    const auto ghost = [&](int x) {
      const QColor colour = shown.pixelColor(x * shown.width() / 48, 3 * shown.height() / 8);
      return colour.red() > 60 && colour.red() < 200 && colour.green() < 30 && colour.blue() < 30;
    };
    for (int wall = 8; wall < 44; wall += 4) {
      if (ghost(wall - 1) && ghost(wall + 1)) return true;
    }
    return false;
  };
  Begin(RecordOfHall());
  while (window->Machine().Ticks < 6) {
    EXPECT_FALSE(between());
    QTest::qWait(15);
  }
  window->Stop();
  settings.SmoothMotion = true;
  Begin(RecordOfHall());
  EXPECT_TRUE(Wait([&] { return between(); }));
}

// The whole record of a run that is won, with the same keys, but for its head, in which the time is.
TEST_F(HraWindowGhostTest,
       LeavesTheRecordAsItWouldBeWithoutItWithoutSmoothMotionAndWithoutARecordSeenBefore) {
  Show();
  FixedChance stage(window->Machine().stage());
  window->Machine().SetStage(stage);
  std::set<std::string> records;
  const auto win = [&](bool ghost, bool smooth) {
    settings.Ghost = ghost;
    settings.SmoothMotion = smooth;
    Begin(RecordOfHall());
    QTest::keyPress(window.get(), Qt::Key_Right);
    ASSERT_TRUE(Wait([this] { return window->Machine().Win.has_value(); }));
    QTest::keyRelease(window.get(), Qt::Key_Right);
    const std::string& record = window->Machine().RecordText;
    records.insert(record.substr(record.find("\r\n")));
  };
  win(false, false);
  win(true, false);
  win(false, true);
  win(true, true);
  ASSERT_TRUE(window->StartRecord(RecordOfHall()));
  QTest::keyClick(window.get(), Qt::Key_Space);
  QTest::keyClick(window.get(), Qt::Key_End);
  QTest::keyClick(window.get(), Qt::Key_Comma);
  window->Stop();
  win(false, false);
  ASSERT_EQ(records.size(), 1U);
  EXPECT_GT(records.begin()->size(), 40U);
}

}  // namespace
}  // namespace zorik
