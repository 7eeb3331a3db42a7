#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QSet>
#include <QStandardPaths>
#include <QTest>
#include <functional>
#include <memory>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "screens/Folder.h"
#include "screens/HraWindow.h"
#include "support/Scene.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::Folder;
using test::OneStepCave;

constexpr int kPatience = 5000;  // milliseconds

// Answers every dialog and keeps what it said.
class Answers : public QObject {
 public:
  explicit Answers(int button) : button_(button) { startTimer(5); }

  // Looks so often at a value before it answers.
  void Linger(int looks, std::function<int()> value) {
    looks_ = looks;
    value_ = std::move(value);
  }

  QStringList said;
  QSet<int> seen;  // the values while it lingered

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    if (looks_-- > 0) {
      seen.insert(value_());
      return;
    }
    said.push_back(box->text());
    box->buttons().at(std::min<qsizetype>(button_, box->buttons().size() - 1))->click();
  }

 private:
  qsizetype button_;
  int looks_ = 0;
  std::function<int()> value_;
};

class HraWindowTest : public testing::Test {
 protected:
  void Open(const std::vector<std::string>& caves) {
    folder_.Collection("a.zk", "Alfa", caves);
    auto session = Session::OpenFirst(folder_.Paths());
    ASSERT_TRUE(session);
    Texts texts;
    const auto language = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/cestina.txt");
    ASSERT_TRUE(language && texts.LoadTexts(*FromUtf8(*language)));
    Settings settings;
    settings.Speed = 2;
    window_ = std::make_unique<HraWindow>(std::move(*session), std::move(texts),
                                          SkinPlaces{folder_.Root() + "/Skins"}, settings);
    window_->show();
    window_->OpenCave(1);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    window_->setFocus();
  }

  template <class Condition>
  static bool Wait(Condition condition) {
    return QTest::qWaitFor(condition, kPatience);
  }

  // Where the steered dog is.
  Cell Dog() const { return Cell(window_->Machine().Dog[1].x, window_->Machine().Dog[1].y); }

  Folder folder_;
  std::unique_ptr<HraWindow> window_;
};

test::Picture Corridor() {
  return {"WWWWWWWWWWWW", "W1.........W", "WWWWWWWWWWWW"};
}

TEST_F(HraWindowTest, NamesCollectionCaveAndPlayerInItsCaption) {
  Open({OneStepCave("Jedna")});
  EXPECT_TRUE(window_->windowTitle().startsWith("Zorík - Alfa - Jedna   ...hraje Hráč"))
      << window_->windowTitle().toStdString();
}

TEST_F(HraWindowTest, TellsTimeAndGemsInItsCaption) {
  test::Numbers numbers;
  numbers.needed = 3;
  numbers.time = 90;
  numbers.before = 7;
  Open({CaveTextOf({"WWWWW", "W1D.W", "WWWWW"}, numbers)});
  EXPECT_TRUE(Wait([&] { return window_->windowTitle().endsWith("drahokamy 000 / 003 za 07 bodů"); }));
  QTest::keyClick(window_.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return window_->windowTitle().endsWith("drahokamy 001 / 003 za 07 bodů"); }));
  EXPECT_TRUE(Wait([&] { return window_->windowTitle().contains("čas 088"); }));
}

TEST_F(HraWindowTest, MovesTheDogOneCellForATap) {
  Open({CaveTextOf(Corridor())});
  QTest::keyClick(window_.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(2, 1); }));
  const int ticks = window_->Machine().Ticks;
  ASSERT_TRUE(Wait([&] { return window_->Machine().Ticks >= ticks + 5; }));
  EXPECT_EQ(Dog(), Cell(2, 1));
}

TEST_F(HraWindowTest, MovesTheDogForAsLongAsAKeyIsHeld) {
  Open({CaveTextOf(Corridor())});
  QTest::keyPress(window_.get(), Qt::Key_Right);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
}

TEST_F(HraWindowTest, LetsTheDogStandWhenItLosesTheFocus) {
  Open({CaveTextOf(Corridor())});
  QTest::keyPress(window_.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(3, 1); }));
  QFocusEvent lost(QEvent::FocusOut);
  QApplication::sendEvent(window_.get(), &lost);
  const Cell place = Dog();
  const int ticks = window_->Machine().Ticks;
  ASSERT_TRUE(Wait([&] { return window_->Machine().Ticks >= ticks + 5; }));
  EXPECT_EQ(Dog(), place);
}

TEST_F(HraWindowTest, StandsStillWhileThePauseIsOpen) {
  Open({CaveTextOf(Corridor())});
  Answers answers(0);
  answers.Linger(20, [&] { return window_->Machine().Ticks; });
  QTest::keyClick(window_.get(), Qt::Key_P);
  ASSERT_TRUE(Wait([&] { return !answers.said.isEmpty(); }));
  EXPECT_EQ(answers.said, QStringList{"Pauza. Pokračuj stiskem OK."});
  EXPECT_EQ(answers.seen, QSet<int>{*answers.seen.begin()});
  const int ticks = window_->Machine().Ticks;
  EXPECT_TRUE(Wait([&] { return window_->Machine().Ticks > ticks + 2; }));
}

TEST_F(HraWindowTest, RestartsTheCaveWithCtrlAndR) {
  Open({CaveTextOf(Corridor())});
  QTest::keyPress(window_.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return Dog() == Cell(10, 1); }));
  QTest::keyRelease(window_.get(), Qt::Key_Right);
  QTest::keyPress(window_.get(), Qt::Key_Control);
  QTest::keyPress(window_.get(), Qt::Key_R, Qt::ControlModifier);
  EXPECT_TRUE(Wait([&] { return Dog() == Cell(1, 1); }));
}

TEST_F(HraWindowTest, StoresAWinAndGoesOnToTheNextCave) {
  Open({OneStepCave("Jedna"), OneStepCave("Druhá")});
  const Answers answers(0);
  QTest::keyClick(window_.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window_->CaveNumber() == 2; }));
  ASSERT_EQ(answers.said.size(), 1);
  EXPECT_TRUE(answers.said[0].contains("Komnata je vyřešena!")) << answers.said[0].toStdString();
  const std::string path = folder_.Root() + "/Players/Hráč/Alfa - Jedna.zkr";
  EXPECT_TRUE(answers.said[0].endsWith(QString::fromStdString(path))) << answers.said[0].toStdString();
  Hra replay;
  ASSERT_FALSE(Replay(replay, *ReadWhole(path)));
  TickEnd end = TickEnd::Running;
  while (end == TickEnd::Running) end = Tick(replay, {});
  EXPECT_EQ(end, TickEnd::Won);
}

TEST_F(HraWindowTest, ReplaysTheStoredRecordAndTellsItsResult) {
  Open({OneStepCave("Jedna"), OneStepCave("Druhá")});
  Answers answers(0);
  QTest::keyClick(window_.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window_->CaveNumber() == 2; }));
  QTest::keyClick(window_.get(), Qt::Key_PageUp);
  ASSERT_EQ(window_->CaveNumber(), 1);
  answers.said.clear();
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_TRUE(window_->windowTitle().contains("...záznam pro hráče Hráč"));
  ASSERT_TRUE(Wait([&] { return !answers.said.empty(); }));
  EXPECT_TRUE(answers.said[0].startsWith("Záznam dovedl Zoríka do cíle!")) << answers.said[0].toStdString();
  ASSERT_TRUE(Wait([&] { return !window_->Machine().ReplayPlaying; }));
  EXPECT_EQ(window_->CaveNumber(), 1);
}

TEST_F(HraWindowTest, SaysThatThereIsNoRecord) {
  Open({OneStepCave("Jedna")});
  const Answers answers(0);
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(answers.said, QStringList{"Tuto komnatu jsi ještě nevyřešil, nemá tedy žádný záznam."});
  EXPECT_FALSE(window_->Machine().ReplayPlaying);
}

TEST_F(HraWindowTest, AsksBeforeAWorseRunReplacesABetterOne) {
  // The better run had the same way to go, and a record's score is believed.
  Open({OneStepCave("Jedna"), OneStepCave("Druhá")});
  Answers answers(1);  // no
  QTest::keyClick(window_.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window_->CaveNumber() == 2; }));
  const std::string path = folder_.Root() + "/Players/Hráč/Alfa - Jedna.zkr";
  std::string record = *ReadWhole(path);
  Chance chance;
  record.replace(0, record.find("\r\n") + 2, "");
  record.replace(0, record.find("\r\n") + 2, BuildRecordHead("Alfa", 99999, "Hr\xE1\xE8", chance));
  ASSERT_TRUE(WriteWhole(path, record));
  window_->OpenCave(1);
  answers.said.clear();
  QTest::keyClick(window_.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return window_->CaveNumber() == 2; }));
  ASSERT_EQ(answers.said.size(), 2);
  EXPECT_EQ(answers.said[0],
            "Při minulém hraní této komnaty jsi získal více bodů. Přepsat starý záznam novým?");
  EXPECT_TRUE(answers.said[1].endsWith("Zůstal starý záznam."));
  EXPECT_EQ(*ReadWhole(path), record);
}

TEST_F(HraWindowTest, CongratulatesAfterTheLastCave) {
  Open({OneStepCave("Jedna", 50)});
  const Answers answers(0);
  ASSERT_TRUE(Wait([&] { return window_->Machine().Ticks > 0; }));
  QTest::keyClick(window_.get(), Qt::Key_Right);
  ASSERT_TRUE(Wait([&] { return answers.said.size() == 2; }));
  // A second that has begun does not count, and no gem was needed.
  EXPECT_EQ(answers.said[1], "Hotovo, 49");
}

TEST_F(HraWindowTest, ShowsItsPictureCentred) {
  Open({OneStepCave("Jedna")});
  window_->resize(1000, 700);
  ASSERT_TRUE(Wait([&] { return window_->width() == 1000; }));
  const QRect ram = window_->PlayArea().geometry();
  EXPECT_EQ(ram, LayOut({1000, 700}).ram);
  EXPECT_FALSE(window_->PlayArea().Picture().isNull());
}

TEST(PlayLayout, HasTheLargestCellsThatFit) {
  struct Row {
    QSize window;
    int cell;
  };
  // Width / 19.5 on a 4:3 screen, height / 11.5 on a broad one.
  for (const Row& row : {Row{{1024, 768}, 52}, Row{{1280, 1024}, 65}, Row{{1366, 768}, 66},
                         Row{{1920, 1080}, 93}, Row{{2560, 1440}, 125}, Row{{3440, 1440}, 125}}) {
    const PlayLayout layout = LayOut(row.window);
    EXPECT_EQ(layout.cellSize, row.cell) << row.window.width();
    EXPECT_TRUE(QRect(QPoint(), row.window).contains(layout.ram)) << row.window.width();
    EXPECT_EQ(DrawnCell({0, 0, 1560, 920}, layout.ram.size()), QSize(row.cell, row.cell));
  }
}

TEST(PlayLayout, BearsAWindowOfNoSize) {
  EXPECT_EQ(LayOut({0, 0}).cellSize, 0);
  EXPECT_TRUE(LayOut({0, 0}).ram.isEmpty());
}

}  // namespace
}  // namespace zorik

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
