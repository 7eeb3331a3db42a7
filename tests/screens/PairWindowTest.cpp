#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "screens/GameScreen.h"
#include "screens/PairLine.h"
#include "screens/PairWindow.h"
#include "screens/RunView.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// A window on two records, in the words of the default skin.
class PairWindowTest : public testing::Test {
 protected:
  PairWindowTest() {
    const auto language = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/cestina.txt");
    folder_.File("Skins/Default/Menu/cestina.txt", *FromUtf8(*language));
    EXPECT_TRUE(skin_.Apply(SkinPlaces{folder_.Root() + "/Skins"}));
    window = std::make_unique<PairWindow>(skin_, 1);
  }

  // The record of a run with these keys, a letter a tick.
  static std::string RecordOfKeys(const std::string& keys, const std::string& player,
                                  const std::string& row = "W1;D;;TW") {
    auto run = std::make_unique<Hra>(1);
    run->PlayerName = player;
    EXPECT_TRUE(PaintCave(*run, CaveTextOf({"WWWWWWWW", row, "WWWWWWWW"}, {.needed = 1}), RunKind::Play));
    for (const char key : keys) Tick(*run, Keys(std::string(1, key)));
    return SaveRecord(*run, 0);
  }

  void OpenTwo() {
    ASSERT_TRUE(window->Open(RecordOfKeys("RRRRR", "Ada"), RecordOfKeys("RR.RRR", "Bob")));
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  void Press(Qt::Key key) { QTest::keyClick(window.get(), key); }

  std::vector<int> Dogs() const {
    std::vector<int> places;
    for (const RunView* const view : window->findChildren<RunView*>()) places.push_back(view->Run().Dog[1].x);
    return places;
  }

  QStringList Texts() const {
    QStringList texts;
    for (const QLabel* const label : window->findChildren<QLabel*>()) texts.push_back(label->text());
    return texts;
  }

  Folder folder_;
  Skin skin_;
  std::unique_ptr<PairWindow> window;
};

TEST_F(PairWindowTest, ShowsBothRunsAtOneTick) {
  OpenTwo();
  EXPECT_EQ(Dogs(), (std::vector<int>{1, 1}));
  window->ShowTick(2);
  EXPECT_EQ(Dogs(), (std::vector<int>{3, 3}));
  window->ShowTick(4);
  EXPECT_EQ(Dogs(), (std::vector<int>{5, 4}));
}

TEST_F(PairWindowTest, LeavesTheShorterRunAtItsEnd) {
  OpenTwo();
  window->ShowTick(99);
  EXPECT_EQ(window->Tick(), 6);
  EXPECT_EQ(Dogs(), (std::vector<int>{6, 6}));
}

TEST_F(PairWindowTest, GoesWhereTheKeysLead) {
  OpenTwo();
  Press(Qt::Key_Period);
  Press(Qt::Key_Period);
  EXPECT_EQ(window->Tick(), 2);
  Press(Qt::Key_Comma);
  EXPECT_EQ(window->Tick(), 1);
  Press(Qt::Key_End);
  EXPECT_EQ(window->Tick(), 6);
  Press(Qt::Key_Home);
  EXPECT_EQ(window->Tick(), 0);
  Press(Qt::Key_D);
  EXPECT_EQ(window->Tick(), 3);
  Press(Qt::Key_Left);
  EXPECT_EQ(window->Tick(), 0);
}

TEST_F(PairWindowTest, GoesFiveSecondsAtATime) {
  ASSERT_TRUE(window->Open(RecordOfKeys(std::string(120, '.'), "Ada"), RecordOfKeys("R", "Bob")));
  Press(Qt::Key_Right);
  EXPECT_EQ(window->Tick(), 50);
  Press(Qt::Key_Right);
  Press(Qt::Key_Left);
  EXPECT_EQ(window->Tick(), 50);
}

TEST_F(PairWindowTest, PlaysToTheEndAndFromTheStartAgain) {
  OpenTwo();
  Press(Qt::Key_Space);
  EXPECT_TRUE(window->Plays());
  EXPECT_TRUE(Wait([&] { return !window->Plays(); }));
  EXPECT_EQ(window->Tick(), 6);
  Press(Qt::Key_Space);
  EXPECT_TRUE(window->Plays());
  EXPECT_LT(window->Tick(), 6);
}

TEST_F(PairWindowTest, StandsStillWhereSomebodySeeks) {
  OpenTwo();
  Press(Qt::Key_Space);
  Press(Qt::Key_Period);
  EXPECT_FALSE(window->Plays());
}

TEST_F(PairWindowTest, FollowsTheMouseOnItsLine) {
  OpenTwo();
  auto* const line = window->findChild<PairLine*>();
  const auto at = [&](int tick) { return QPoint(line->PlaceOf(tick), line->height() - 8); };
  QTest::mouseClick(line, Qt::LeftButton, {}, at(3));
  EXPECT_EQ(window->Tick(), 3);
  QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(line->width() - 1, line->height() - 8));
  EXPECT_EQ(window->Tick(), 6);
  QTest::mouseClick(line, Qt::RightButton, {}, at(1));
  EXPECT_EQ(window->Tick(), 6);
}

TEST_F(PairWindowTest, MarksTheFirstDifferenceOnItsLine) {
  OpenTwo();
  auto* const line = window->findChild<PairLine*>();
  const QImage image = line->grab().toImage();
  const auto red = [&](int tick) {
    const QColor colour = image.pixelColor(line->PlaceOf(tick), 6);
    return colour.red() > 200 && colour.green() < 100;
  };
  EXPECT_TRUE(red(3));
  EXPECT_FALSE(red(2));
  EXPECT_FALSE(red(4));
}

TEST_F(PairWindowTest, NamesThePlayersAndWhatTheyHaveComeTo) {
  OpenTwo();
  EXPECT_TRUE(Texts().contains("Ada"));
  EXPECT_TRUE(Texts().contains("Bob"));
  EXPECT_TRUE(Texts().contains("Čas: 0:00.5    Drahokamy: 1    Body: 109"));
  EXPECT_TRUE(Texts().contains("Čas: 0:00.6    Drahokamy: 1    Body: 109"));
}

TEST_F(PairWindowTest, GivesNoPointsToARunThatDoesNotWin) {
  ASSERT_TRUE(window->Open(RecordOfKeys("RR", "Ada"), RecordOfKeys("RR.", "Bob")));
  EXPECT_TRUE(Texts().contains("Čas: 0:00.2    Drahokamy: 1    Body: \u2013"));
}

TEST_F(PairWindowTest, SaysThatTwoRecordsAreTheSame) {
  const std::string record = RecordOfKeys("RRRRR", "Ada");
  ASSERT_TRUE(window->Open(record, record));
  const auto* const button = window->findChild<QPushButton*>("difference");
  EXPECT_FALSE(button->isEnabled());
  EXPECT_EQ(button->text(), "Oba záznamy jsou stejné");
  Press(Qt::Key_D);
  EXPECT_EQ(window->Tick(), 0);
}

TEST_F(PairWindowTest, StaysAsItIsWhereRecordsDoNotGoTogether) {
  OpenTwo();
  window->ShowTick(4);
  EXPECT_FALSE(window->Open(RecordOfKeys("RR", "Ada"), RecordOfKeys("RR", "Bob", "W1D;;;TW")));
  EXPECT_FALSE(window->Open("", ""));
  EXPECT_EQ(window->Tick(), 4);
  EXPECT_TRUE(Texts().contains("Bob"));
}

// What a record holds is shown as it is written.
TEST_F(PairWindowTest, TakesNoNameForMarkup) {
  ASSERT_TRUE(window->Open(RecordOfKeys("RR", "<b>Ada</b>"), RecordOfKeys("RR.", "Bob")));
  EXPECT_TRUE(Texts().contains("<b>Ada</b>"));
  for (const QLabel* const label : window->findChildren<QLabel*>())
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace zorik::test
