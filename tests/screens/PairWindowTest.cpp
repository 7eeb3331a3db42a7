#include <QLabel>
#include <QTest>

#include "screens/BarButton.h"
#include "screens/GameScreen.h"
#include "screens/PairWindow.h"
#include "screens/Ram.h"
#include "screens/RunView.h"
#include "screens/SeekLine.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// A window on two records, in the words of the default skin.
class PairWindowTest : public testing::Test {
 protected:
  PairWindowTest() {
    for (const std::string file : {"cestina.txt", "skindata.txt"}) {
      const auto text = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/" + file);
      folder_.File("Skins/Default/Menu/" + file, *FromUtf8(*text));
    }
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
    for (const QLabel* const label : window->findChildren<QLabel*>())
      texts.push_back(label->text().replace(QChar(0xA0), ' '));  // numbers stay with their words
    return texts;
  }

  BarButton* Button(const char* name) const { return window->findChild<BarButton*>(name); }

  // How many labels that are not hidden say this.
  int ShownLabel(const QString& words) const {
    int shown = 0;
    for (const QLabel* const label : window->findChildren<QLabel*>())
      shown += label->text() == words && !label->isHidden() ? 1 : 0;
    return shown;
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

// The cave is 8 cells wide and 3 high.
TEST_F(PairWindowTest, ShowsCellsAsWideAsHigh) {
  OpenTwo();
  for (const QSize size : {QSize(900, 700), QSize(1100, 480)}) {
    window->resize(size);
    for (const RunView* const view : window->findChildren<RunView*>()) {
      const QRect frame = view->findChild<Ram*>()->geometry();
      EXPECT_NEAR(frame.width() / 8.0, frame.height() / 3.0, 1) << size.width();
      EXPECT_TRUE(view->rect().contains(frame)) << size.width();
      EXPECT_TRUE(frame.width() == view->width() || frame.height() == view->height()) << size.width();
    }
  }
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
  auto* const line = window->findChild<SeekLine*>();
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
  auto* const line = window->findChild<SeekLine*>();
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
  EXPECT_TRUE(Texts().contains("Čas: 0:00,5    Tiky: 5    Drahokamy: 1    Body: 109"));
  EXPECT_TRUE(Texts().contains("Čas: 0:00,6    Tiky: 6    Drahokamy: 1    Body: 109"));
}

TEST_F(PairWindowTest, GivesNoPointsToARunThatDoesNotWin) {
  ASSERT_TRUE(window->Open(RecordOfKeys("RR", "Ada"), RecordOfKeys("RR.", "Bob")));
  EXPECT_TRUE(Texts().contains("Čas: 0:00,2    Tiky: 2    Drahokamy: 1    Body: \u2013"));
}

TEST_F(PairWindowTest, SaysThatTwoRecordsAreTheSame) {
  const std::string record = RecordOfKeys("RRRRR", "Ada");
  ASSERT_TRUE(window->Open(record, record));
  EXPECT_TRUE(Button("difference")->isHidden());
  EXPECT_EQ(ShownLabel("Oba záznamy jsou stejné"), 1);
  window->ShowTick(2);
  Press(Qt::Key_D);
  EXPECT_EQ(window->Tick(), 2);
  OpenTwo();
  EXPECT_FALSE(Button("difference")->isHidden());
  EXPECT_EQ(ShownLabel("Oba záznamy jsou stejné"), 0);
}

TEST_F(PairWindowTest, GoesWhereItsButtonsLead) {
  OpenTwo();
  const std::vector<std::pair<const char*, int>> ways{
      {"end", 6}, {"back", 5}, {"start", 0}, {"forward", 1}, {"difference", 3}};
  for (const auto& [name, tick] : ways) {
    QTest::mouseClick(Button(name), Qt::LeftButton);
    EXPECT_EQ(window->Tick(), tick) << name;
  }
  QTest::mouseClick(Button("play"), Qt::LeftButton);
  EXPECT_TRUE(window->Plays());
  QTest::mouseClick(Button("play"), Qt::LeftButton);
  EXPECT_FALSE(window->Plays());
}

// The mark of the difference, the gems of both runs and the knob, from the top of the line to its bottom.
TEST_F(PairWindowTest, DrawsTheGemsOfBothRunsAsCurvesInTheirColours) {
  ASSERT_TRUE(window->Open(RecordOfKeys("RRRRR", "Ada"), RecordOfKeys("..RRRRR", "Bob")));
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  auto* const line = window->findChild<SeekLine*>();
  const QImage image = line->grab().toImage();
  const auto curves = [&](int x) {
    std::set<QRgb> seen;
    for (int y = 0; y < line->Rail().top() - 4; ++y) seen.insert(image.pixel(x, y));
    return std::pair(seen.contains(qRgb(0xF2, 0xB8, 0x3C)), seen.contains(qRgb(0x5C, 0xB8, 0xF2)));
  };
  const auto between = [&](int tick) { return (line->PlaceOf(tick) + line->PlaceOf(tick + 1)) / 2; };
  EXPECT_EQ(curves(between(1)), std::pair(false, false)) << "nobody has a gem";
  EXPECT_EQ(curves(between(2)), std::pair(true, false)) << "Ada has taken hers";
  EXPECT_EQ(curves(between(3)), std::pair(true, false));
  EXPECT_EQ(line->Length(), 7);
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

TEST_F(PairWindowTest, GivesBothRunsTheSameRoomAndTheirColours) {
  OpenTwo();
  const auto views = window->findChildren<RunView*>();
  ASSERT_EQ(views.size(), 2);
  for (const QSize size : {QSize(900, 700), QSize(1201, 480)}) {
    window->resize(size);
    QCoreApplication::processEvents();
    EXPECT_LE(std::abs(views[0]->width() - views[1]->width()), 1);
    EXPECT_EQ(views[0]->height(), views[1]->height());
    EXPECT_EQ(views[0]->y(), views[1]->y());
    EXPECT_GT(views[1]->x(), views[0]->geometry().right());
    EXPECT_GT(views[0]->height(), window->height() / 2) << "what is to be seen has the room";
  }
  const auto colourOf = [&](const QString& words) {
    for (const QLabel* const label : window->findChildren<QLabel*>()) {
      if (label->text().replace(QChar(0xA0), ' ').startsWith(words))
        return label->palette().color(QPalette::WindowText);
    }
    return QColor();
  };
  EXPECT_EQ(colourOf("Ada"), QColor(0xF2, 0xB8, 0x3C));
  EXPECT_EQ(colourOf("Bob"), QColor(0x5C, 0xB8, 0xF2));
  EXPECT_EQ(colourOf("Čas: 0:00,5"), colourOf("Ada"));
  EXPECT_EQ(colourOf("Čas: 0:00,6"), colourOf("Bob"));
}

TEST_F(PairWindowTest, HasItsButtonsInOneRowEachWithItsHint) {
  OpenTwo();
  const std::vector<const char*> names{"start", "back", "play", "forward", "end"};
  QStringList hints;
  int right = -1;
  for (const char* name : names) {
    const QRect place = Button(name)->geometry();
    EXPECT_EQ(place.size(), QSize(28, 28)) << name;
    EXPECT_GT(place.left(), right) << name;
    EXPECT_EQ(place.top(), Button("start")->y()) << name;
    EXPECT_NE(Button(name)->toolTip(), "") << name;
    hints << Button(name)->toolTip();
    right = place.right();
  }
  EXPECT_EQ(hints.removeDuplicates(), 0);
  EXPECT_NE(window->findChild<SeekLine*>()->toolTip(), "");
  const BarButton& difference = *Button("difference");
  EXPECT_NE(difference.Caption(), "");
  EXPECT_EQ(difference.width(), difference.CaptionWidth(28) + 20) << "room on both sides of its words";
  EXPECT_EQ(difference.height(), 28);
  const auto* const line = window->findChild<SeekLine*>();
  EXPECT_GE(line->height(), SeekLine::kHeightWithCurves);
  EXPECT_LE(line->height(), 84);
  EXPECT_GT(Button("start")->y(), line->geometry().bottom());
}

TEST_F(PairWindowTest, SaysWhereItIsInSecondsAndTicks) {
  OpenTwo();
  for (const int tick : {0, 3, 6}) {
    window->ShowTick(tick);
    EXPECT_TRUE(Texts().contains(QString("0:00,%1 (%1)").arg(tick))) << tick;
    EXPECT_EQ(window->findChild<SeekLine*>()->Tick(), tick);
  }
  window->ShowTick(-3);
  EXPECT_EQ(window->Tick(), 0);
  EXPECT_EQ(window->windowTitle().isEmpty(), false);
}

TEST_F(PairWindowTest, ShowsOnItsButtonWhetherItPlays) {
  OpenTwo();
  const auto face = [&] { return Button("play")->grab().toImage(); };
  const QImage still = face();
  Press(Qt::Key_Space);
  EXPECT_NE(face(), still);
  Press(Qt::Key_Space);
  EXPECT_EQ(face(), still);
  EXPECT_NE(face(), Button("forward")->grab().toImage());
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, {}, " ", true);
  QApplication::sendEvent(window.get(), &held);
  EXPECT_FALSE(window->Plays()) << "a key that is held does not start it again and again";
}

TEST_F(PairWindowTest, GivesALongNameNoMoreRoom) {
  const std::string name(40, 'W');
  ASSERT_TRUE(window->Open(RecordOfKeys("RR", name), RecordOfKeys("RR.", "Bob")));
  window->resize(1101, 480);
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  const auto views = window->findChildren<RunView*>();
  EXPECT_LE(std::abs(views[0]->width() - views[1]->width()), 1);
  int hinted = 0;
  for (const QLabel* const label : window->findChildren<QLabel*>())
    hinted += label->toolTip() == QString::fromStdString(name) ? 1 : 0;
  EXPECT_EQ(hinted, 1) << "the whole name is to be read somewhere";
}

TEST_F(PairWindowTest, PlaysAtThePaceItWasMadeFor) {
  PairWindow slow(skin_, 3'600'000);
  ASSERT_TRUE(slow.Open(RecordOfKeys("RRRRR", "Ada"), RecordOfKeys("RR.RRR", "Bob")));
  QTest::keyClick(&slow, Qt::Key_Space);
  QTest::qWait(50);
  EXPECT_TRUE(slow.Plays());
  EXPECT_EQ(slow.Tick(), 0);
}

TEST_F(PairWindowTest, BreaksWhatTheRunsHaveComeToInANarrowWindow) {
  OpenTwo();
  window->resize(window->minimumSizeHint());
  int narrowest = window->width();
  for (const QLabel* const label : window->findChildren<QLabel*>()) {
    if (label->text().contains(QChar(0xA0)))
      narrowest = std::min(narrowest, label->fontMetrics().horizontalAdvance(label->text()));
  }
  EXPECT_LT(window->width(), 2 * narrowest);
}

// What one run has come to is longer to write than that of the other.
TEST_F(PairWindowTest, GivesALongRunNoMoreRoomInANarrowWindow) {
  const std::string late = std::string(700, '.') + "RRRRR";
  ASSERT_TRUE(window->Open(RecordOfKeys(late, "Ada"), RecordOfKeys("R", "Bob")));
  window->resize(window->minimumSizeHint());
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  const auto views = window->findChildren<RunView*>();
  EXPECT_LE(std::abs(views[0]->width() - views[1]->width()), 1);
}

TEST_F(PairWindowTest, ShowsAllOfACaveHoweverWideItIs) {
  const std::string wall(64, 'W');
  const auto record = [&](const std::string& keys) {
    auto run = std::make_unique<Hra>(1);
    EXPECT_TRUE(PaintCave(*run, CaveTextOf({wall, "W1" + std::string(61, '.') + "W", wall}), RunKind::Play));
    for (const char key : keys) Tick(*run, Keys(std::string(1, key)));
    return SaveRecord(*run, 0);
  };
  ASSERT_TRUE(window->Open(record("RRR"), record("RR.")));
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  for (const RunView* const view : window->findChildren<RunView*>()) {
    const QRect frame = view->findChild<Ram*>()->geometry();
    EXPECT_NEAR(frame.width() / 64.0, frame.height() / 3.0, 1);
  }
}

TEST_F(PairWindowTest, HasItsLineBetweenTheRunsAndTheButtonsFromEdgeToEdge) {
  OpenTwo();
  const QRect line = window->findChild<SeekLine*>()->geometry();
  EXPECT_EQ(line.left(), 10);
  EXPECT_EQ(window->width() - 1 - line.right(), 10);
  for (const RunView* const view : window->findChildren<RunView*>())
    EXPECT_LT(view->mapTo(window.get(), view->rect().bottomLeft()).y(), line.top());
  for (const char* name : {"start", "play", "end", "difference"}) {
    EXPECT_GT(Button(name)->y(), line.bottom()) << name;
    EXPECT_LT(Button(name)->geometry().bottom(), window->height()) << name;
  }
}

}  // namespace
}  // namespace zorik::test
