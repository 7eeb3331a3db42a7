#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLabel>
#include <QSignalSpy>

#include "data/Lines.h"
#include "data/Result.h"
#include "screens/DialogScript.h"
#include "screens/FrmAnalyze.h"
#include "screens/PostScreen.h"
#include "screens/RecordKeeper.h"
#include "screens/WinFlow.h"
#include "support/Scene.h"

namespace zorik {
namespace {

using test::Bytes;
using test::InDialog;

// A player wins the one step of a cave with 50 seconds and one dog: 50 points.
constexpr int kPoints = 50;

class WinFlowTest : public testing::Test, public test::PostScreen {
 protected:
  void Start(const std::vector<QString>& names) {
    Collection(names);
    Begin();
  }

  // With the collection and the records that are there by now.
  void Begin() {
    flow_.reset();
    analyze_.reset();
    Open();
    analyze_ = std::make_unique<FrmAnalyze>(skin, window.get());
    flow_ = std::make_unique<WinFlow>(folder.Paths(), *window, *analyze_, keeper_);
    for (const auto& [name, signal] : std::initializer_list<std::pair<const char*, void (WinFlow::*)()>>{
             {"hide", &WinFlow::HideGame},
             {"start", &WinFlow::ShowStart},
             {"editor", &WinFlow::ShowEditor},
             {"finished", &WinFlow::Finished}}) {
      QObject::connect(flow_.get(), signal, [this, name = name] { events_ << name; });
    }
    window->hide();
  }

  // A run of a cave that has just been won.
  Hra Won(int cave, RunKind kind = RunKind::Play, const QString& player = "Žofie") const {
    Hra hra(1);
    const std::string text = caves[static_cast<std::size_t>(cave - 1)] + "---00";
    EXPECT_TRUE(PaintCave(hra, text, kind == RunKind::Replay ? RunKind::Play : kind));
    hra.CollectionName = "Sada";
    hra.PlayerName = Bytes(player);
    KeySnapshot keys = test::Keys("R");
    TickEnd end = TickEnd::Running;
    for (int i = 0; i < 5 && end == TickEnd::Running; ++i) end = Tick(hra, keys);
    EXPECT_EQ(end, TickEnd::Won);
    if (kind == RunKind::Replay) hra.ReplayPlaying = true;
    return hra;
  }

  void Win(int cave, RunKind kind = RunKind::Play, const QString& player = "Žofie") {
    Hra hra = Won(cave, kind, player);
    points_ = hra.Win->BaseScore;
    flow_->RunWon(hra, window->Slot());
  }

  QString Seconds() const { return analyze_->findChild<QLabel*>("Label4")->text(); }
  void CloseScore() { QTest::keyClick(analyze_.get(), Qt::Key_Return); }
  bool Stored(int cave) const { return std::filesystem::exists(RecordPath(cave)); }

  RecordKeeper keeper_{skin, unstored};
  std::unique_ptr<FrmAnalyze> analyze_;
  std::unique_ptr<WinFlow> flow_;
  QStringList events_;
  int points_ = 0;
};

TEST_F(WinFlowTest, ShowsTheScoreOfAWinFirstForThreeSecondsThenForAsLongAsThePlayerLikes) {
  Start({"a", "b"});
  Win(1);
  EXPECT_EQ(events_, QStringList({"hide"}));
  EXPECT_TRUE(analyze_->isVisible());
  EXPECT_EQ(Seconds(), "3");
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(Stored(1));

  CloseScore();
  EXPECT_TRUE(analyze_->isVisible());
  EXPECT_EQ(Seconds(), "");
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(Stored(1));
  EXPECT_EQ(Text("lblTotal"), "00000") << "not passed before the last closing";

  CloseScore();
  EXPECT_FALSE(analyze_->isVisible());
  EXPECT_EQ(events_, QStringList({"hide", "finished"}));
  EXPECT_EQ(Text("lblTotal").toInt(), points_);
  EXPECT_EQ(Text("lblCaveName"), "b");
  EXPECT_FALSE(flow_->Busy());
}

TEST_F(WinFlowTest, StoresARecordThatCountsWhenTheCollectionIsOpenedAgain) {
  Start({"a", "b"});
  Win(1);
  CloseScore();
  CloseScore();
  const std::string bytes = *ReadWhole(RecordPath(1));
  RecordLines lines(bytes);
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.CollectionName, "Sada");
  EXPECT_EQ(head.Player, Bytes("Žofie"));
  EXPECT_EQ(head.Score, points_);
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EXPECT_EQ(Text("lblTotal").toInt(), points_);
  EXPECT_EQ(Text("lblRest"), "Zbývá projít: 1 komnata.");
}

TEST_F(WinFlowTest, ShowsTheBreakdownWithoutTheBonusButStoresItsPoints) {
  Start({"Bonus", "b"});
  Win(1);
  EXPECT_EQ(analyze_->Total(), points_);
  EXPECT_TRUE(analyze_->BonusVisible());
  EXPECT_TRUE(analyze_->findChild<QLabel*>("Label2")->text().endsWith(
      QString(" = %1").arg(points_, 5, 10, QChar('0'))));
  CloseScore();
  CloseScore();
  RecordLines lines(*ReadWhole(RecordPath(1)));
  EXPECT_EQ(ReadRecordHead(lines).Score, points_ + 500);
  EXPECT_EQ(Text("lblTotal").toInt(), points_ + 500);
}

TEST_F(WinFlowTest, ReplacesARecordOfEqualScoreWithoutAQuestion) {
  Collection({"a"});
  Record(1, kPoints);
  Begin();
  const std::string old = *ReadWhole(RecordPath(1));
  Win(1);
  ASSERT_EQ(points_, kPoints);
  const InDialog question([](QWidget& box) { box.close(); });
  CloseScore();
  EXPECT_NE(*ReadWhole(RecordPath(1)), old);
  EXPECT_EQ(Seconds(), "");
}

TEST_F(WinFlowTest, AsksBeforeItReplacesABetterRecord) {
  for (const bool yes : {false, true}) {
    Collection({"a"});
    Record(1, 700);
    Begin();
    const std::string old = *ReadWhole(RecordPath(1));
    Win(1);
    QString title, text;
    const InDialog question([&](QWidget& box) {
      title = box.windowTitle();
      text = box.findChild<QLabel*>("lblText")->text().simplified();
      QTest::keyClick(&box, yes ? Qt::Key_Y : Qt::Key_N);
    });
    CloseScore();
    EXPECT_TRUE(question.Opened());
    EXPECT_EQ(title, "Dotaz");
    EXPECT_EQ(text, "Při minulém hraní této komnaty jsi získal více bodů. Přepsat starý záznam novým?");
    EXPECT_EQ(*ReadWhole(RecordPath(1)) != old, yes);
    EXPECT_TRUE(analyze_->isVisible());
    CloseScore();
    EXPECT_EQ(Text("lblTotal").toInt(), points_) << "the list shows the new score in either case";
    EXPECT_FALSE(flow_->Busy());
  }
}

TEST_F(WinFlowTest, AsksBeforeItReplacesABetterRecordThatAnotherGameHasStoredMeanwhile) {
  Start({"a"});
  Record(1, 700);
  Win(1);
  const InDialog question([](QWidget& box) { QTest::keyClick(&box, Qt::Key_N); });
  CloseScore();
  EXPECT_TRUE(question.Opened());
  RecordLines lines(*ReadWhole(RecordPath(1)));
  EXPECT_EQ(ReadRecordHead(lines).Score, 700);
}

TEST_F(WinFlowTest, ReplacesGarbageInThePlaceOfARecordWithoutAQuestion) {
  for (const char* bytes : {"garbage", "", "\r\n\r\n\r\n"}) {
    Collection({"a", "b"});
    ASSERT_TRUE(WriteWhole(RecordPath(1), bytes));
    Begin();
    EXPECT_EQ(Text("lblTotal"), "00000");
    Win(1);
    const InDialog question([](QWidget& box) { box.close(); });
    CloseScore();
    EXPECT_FALSE(question.Opened()) << bytes;
    RecordLines lines(*ReadWhole(RecordPath(1)));
    EXPECT_EQ(ReadRecordHead(lines).Score, points_);
    CloseScore();
  }
}

TEST_F(WinFlowTest, AsksAgainWhileTheBetterRecordStands) {
  Collection({"a"});
  Record(1, 700);
  Begin();
  for (int i = 0; i < 2; ++i) {
    Win(1);
    const InDialog question([](QWidget& box) { QTest::keyClick(&box, Qt::Key_N); });
    CloseScore();
    EXPECT_TRUE(question.Opened()) << i;
    CloseScore();
  }
  RecordLines lines(*ReadWhole(RecordPath(1)));
  EXPECT_EQ(ReadRecordHead(lines).Score, 700);
}

TEST_F(WinFlowTest, TellsWhenTheRecordCannotBeWrittenAndGoesOn) {
  Start({"a", "b"});
  std::filesystem::remove_all(PlayerFolder());
  ASSERT_TRUE(WriteWhole(PlayerFolder(), "no folder"));
  Win(1);
  QString text;
  const InDialog message([&](QWidget& box) {
    text = box.findChild<QLabel*>("lblText")->text().simplified();
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  CloseScore();
  EXPECT_TRUE(message.Opened());
  EXPECT_TRUE(text.startsWith("Soubor se nepodařilo uložit.")) << text.toStdString();
  EXPECT_TRUE(QString(text).remove(' ').endsWith("Sada-a.zkr")) << text.toStdString();
  EXPECT_TRUE(analyze_->isVisible());
  CloseScore();
  EXPECT_EQ(Text("lblTotal").toInt(), points_);
  EXPECT_EQ(Text("lblCaveName"), "b") << "the win is not lost as long as the game runs";
}

TEST_F(WinFlowTest, ReplacesTheRecordOfWhatACaveWasBeforeItWasChangedWithoutAQuestion) {
  Collection({"a"});
  Record(1, 700);
  caves[0] = test::OneStepCave("a", 51);
  folder.Collection("a.zk", "Sada", caves);
  Begin();
  Win(1);
  const InDialog question([](QWidget& box) { box.close(); });
  CloseScore();
  EXPECT_FALSE(question.Opened());
  RecordLines lines(*ReadWhole(RecordPath(1)));
  EXPECT_EQ(ReadRecordHead(lines).CaveText, caves[0] + "---00");
}

// The names of both caves are "ab" as soon as they are those of files.
TEST_F(WinFlowTest, AsksBeforeItReplacesTheRecordOfAnotherCaveThatSharesItsFile) {
  for (const bool yes : {false, true}) {
    Collection({"a?b", "a:b"});
    Record(2, 5);
    Begin();
    const std::string old = *ReadWhole(RecordPath(1));
    Win(1);
    QString text;
    const InDialog question([&](QWidget& box) {
      text = box.findChild<QLabel*>("lblText")->text();
      QTest::keyClick(&box, yes ? Qt::Key_Y : Qt::Key_N);
    });
    CloseScore();
    EXPECT_TRUE(question.Opened());
    EXPECT_EQ(text.simplified(), "Ve stejném souboru je záznam jiné komnaty. Přepsat ho novým? Sada - a:b");
    EXPECT_EQ(*ReadWhole(RecordPath(1)) != old, yes);
    CloseScore();
  }
}

TEST_F(WinFlowTest, AsksBeforeItReplacesTheRecordOfAnotherCaveOfTheSameName) {
  Collection({"a", "a"});
  caves[1] = test::OneStepCave("a", 51);
  folder.Collection("a.zk", "Sada", caves);
  Record(2, 5);
  Begin();
  Win(1);
  const InDialog question([](QWidget& box) { QTest::keyClick(&box, Qt::Key_N); });
  CloseScore();
  EXPECT_TRUE(question.Opened());
  RecordLines lines(*ReadWhole(RecordPath(1)));
  EXPECT_EQ(ReadRecordHead(lines).CaveText, caves[1] + "---00");
}

TEST_F(WinFlowTest, StoresAWinInTheCaveThatItWasStartedIn) {
  Start({"a", "b"});
  Hra hra = Won(1);
  const RecordSlot slot = window->Slot();
  const std::string path = RecordPath(1);
  Collection({"c", "d"});
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  flow_->RunWon(hra, slot);
  CloseScore();
  CloseScore();
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_FALSE(Stored(1)) << "of the collection that is open by now";
  EXPECT_EQ(Text("lblTotal"), "00000");
}

// Wins that cannot be stored, as a file stands in the place of the player's folder.
class WinFlowUnstored : public WinFlowTest {
 protected:
  void SetUp() override {
    Start({"a", "b"});
    Spoil();
  }

  void Spoil() const {
    std::filesystem::remove_all(PlayerFolder());
    ASSERT_TRUE(WriteWhole(PlayerFolder(), "no folder"));
  }
  void Mend() const {
    std::filesystem::remove(PlayerFolder());
    std::filesystem::create_directories(PlayerFolder());
  }

  void WinAndAnswer(const test::DialogScript::Act& answer) {
    Win(1);
    const test::DialogScript script = {answer};
    CloseScore();
  }
};

TEST_F(WinFlowUnstored, AreKeptForLater) {
  WinAndAnswer(test::Press(Qt::Key_L));
  CloseScore();
  ASSERT_EQ(unstored.All().size(), 1U);
  EXPECT_EQ(unstored.All()[0].Run.Score, points_);
  Mend();
  unstored.StoreAll();
  EXPECT_TRUE(Stored(1));
  EXPECT_TRUE(unstored.All().empty());
}

TEST_F(WinFlowUnstored, AreTriedAgainAsOftenAsThePlayerLikes) {
  Win(1);
  const auto again = test::Press(Qt::Key_R);
  const test::DialogScript script = {again, again, [&](QWidget& box) {
                                       Mend();
                                       again(box);
                                     }};
  CloseScore();
  EXPECT_TRUE(Stored(1));
  EXPECT_TRUE(unstored.All().empty());
}

TEST_F(WinFlowUnstored, AreSavedElsewhereAndStillKept) {
  const QString place = QString::fromStdString(folder.Root() + "/jinde.zkr");
  Win(1);
  {
    const test::DialogScript script = {test::Press(Qt::Key_S), [&](QWidget& dialog) {
                                         auto& box = dynamic_cast<QFileDialog&>(dialog);
                                         box.selectFile(place);
                                         static_cast<QDialog&>(box).accept();
                                       }};
    CloseScore();
  }
  CloseScore();
  RecordLines lines(*ReadWhole(place.toStdString()));
  EXPECT_EQ(ReadRecordHead(lines).Score, points_);
  EXPECT_EQ(unstored.All().size(), 1U) << "it is not among the player's records yet";
  EXPECT_TRUE(unstored.AtRisk().empty());
  const InDialog question([](QWidget& box) { box.close(); });
  EXPECT_TRUE(keeper_.MayEnd(window.get()));
  EXPECT_FALSE(question.Opened());
}

TEST_F(WinFlowUnstored, OfTwoCavesAreBothKept) {
  WinAndAnswer(test::Press(Qt::Key_L));
  CloseScore();
  ASSERT_EQ(Text("lblCaveName"), "b");
  Hra hra = Won(2);
  flow_->RunWon(hra, window->Slot());
  {
    const test::DialogScript script = {test::Press(Qt::Key_L)};
    CloseScore();
  }
  CloseScore();
  EXPECT_EQ(unstored.All().size(), 2U);
  Mend();
  EXPECT_TRUE(keeper_.MayEnd(window.get()));
  EXPECT_TRUE(Stored(1));
  EXPECT_TRUE(Stored(2));
}

TEST_F(WinFlowUnstored, AreComparedWithTheNextWinOfTheirCave) {
  WonRun better{window->Slot(), kPoints + 1, "the better record"};
  unstored.Keep(better);
  Win(1);
  {
    const test::DialogScript script = {[](QWidget& box) {
      EXPECT_TRUE(box.findChild<QLabel*>("lblText")->text().startsWith("Při minulém hraní"));
      QTest::keyClick(&box, Qt::Key_N);
    }};
    CloseScore();
  }
  CloseScore();
  ASSERT_EQ(unstored.All().size(), 1U);
  EXPECT_EQ(unstored.All()[0].Run.Bytes, better.Bytes);
}

TEST_F(WinFlowUnstored, AreNamedBeforeTheGameEnds) {
  WinAndAnswer(test::Press(Qt::Key_L));
  CloseScore();
  const auto box = [](Qt::Key key) {
    return [key](QWidget& dialog) {
      EXPECT_TRUE(dialog.findChild<QLabel*>("lblText")->text().endsWith("\nSada - a"));
      QTest::keyClick(&dialog, key);
    };
  };
  {
    const test::DialogScript script = {box(Qt::Key_R), box(Qt::Key_Escape)};
    EXPECT_FALSE(keeper_.MayEnd(window.get())) << "trying again did not help, and Esc stays";
  }
  {
    const test::DialogScript script = {box(Qt::Key_Q)};
    EXPECT_TRUE(keeper_.MayEnd(window.get()));
  }
  const test::DialogScript script = {[&](QWidget& dialog) {
    Mend();
    QTest::keyClick(&dialog, Qt::Key_Return);
  }};
  EXPECT_TRUE(keeper_.MayEnd(window.get()));
  EXPECT_TRUE(Stored(1));
}

TEST_F(WinFlowUnstored, NeverTakeThePlaceOfAnotherCaveUnasked) {
  Mend();
  Collection({"a?b", "a:b"});
  Record(2, 5);
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  unstored.Keep({window->Slot(), 70, "the record"});
  unstored.StoreAll();
  EXPECT_EQ(unstored.All().size(), 1U);
  EXPECT_NE(*ReadWhole(RecordPath(2)), "the record");
}

TEST_F(WinFlowTest, ShowsTheScoreOfAReplayOnceAndStoresNothing) {
  Start({"a", "b"});
  Win(1, RunKind::Replay, "Jiný");
  EXPECT_EQ(Seconds(), "");
  CloseScore();
  EXPECT_FALSE(analyze_->isVisible());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(events_, QStringList({"hide", "finished"}));
  EXPECT_FALSE(Stored(1));
  EXPECT_EQ(Text("lblTotal"), "00000");
  EXPECT_EQ(Text("lblCaveName"), "a");
}

TEST_F(WinFlowTest, LeadsFromARecordFromOutsideToTheStartScreen) {
  Start({"a"});
  Win(1, RunKind::Replay, "/");
  CloseScore();
  EXPECT_EQ(events_, QStringList({"hide", "start", "finished"}));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(WinFlowTest, StoresATestAmongTheRecordsOfNoPlayerAndLeadsToTheEditor) {
  Start({"a/b"});
  Win(1, RunKind::Test);
  EXPECT_EQ(Seconds(), "");
  const std::string path = folder.Root() + "/Replays/Editor - ab.zkr";
  EXPECT_FALSE(std::filesystem::exists(path));
  CloseScore();
  EXPECT_EQ(events_, QStringList({"hide", "editor", "finished"}));
  EXPECT_FALSE(window->isVisible());
  ASSERT_TRUE(std::filesystem::exists(path));
  RecordLines lines(*ReadWhole(path));
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.Player, "");
  EXPECT_EQ(head.Score, points_);
  EXPECT_FALSE(Stored(1));
}

TEST_F(WinFlowTest, TellsWhenATestCannotBeStored) {
  Start({"a"});
  std::filesystem::remove_all(folder.Root() + "/Replays");
  ASSERT_TRUE(WriteWhole(folder.Root() + "/Replays", "no folder"));
  Win(1, RunKind::Test);
  QString text;
  const InDialog message([&](QWidget& box) {
    text = box.findChild<QLabel*>("lblText")->text().simplified();
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  CloseScore();
  EXPECT_TRUE(message.Opened());
  EXPECT_TRUE(text.startsWith("Soubor se nepodařilo uložit.")) << text.toStdString();
  EXPECT_EQ(events_, QStringList({"hide", "editor", "finished"}));
}

TEST_F(WinFlowTest, MakesTheFolderOfTestsAnew) {
  Start({"a"});
  std::filesystem::remove_all(folder.Root() + "/Replays");
  Win(1, RunKind::Test);
  const InDialog message([](QWidget& box) { box.close(); });
  CloseScore();
  EXPECT_FALSE(message.Opened());
  EXPECT_TRUE(std::filesystem::exists(folder.Root() + "/Replays/Editor - a.zkr"));
  EXPECT_EQ(events_, QStringList({"hide", "editor", "finished"}));
}

TEST_F(WinFlowTest, NeedsTheMachineNoLongerOnceItHasStarted) {
  Start({"a", "b"});
  {
    Hra hra = Won(1);
    flow_->RunWon(hra, window->Slot());
    ASSERT_TRUE(PaintCave(hra, caves[1] + "---02", RunKind::Play));
  }
  CloseScore();
  RecordLines lines(*ReadWhole(RecordPath(1)));
  EXPECT_EQ(ReadRecordHead(lines).CaveText, caves[0] + "---00");
}

TEST_F(WinFlowTest, ClosesTheFirstShowingByItselfAndStaysOnAClick) {
  Start({"a"});
  Win(1);
  auto* const timer = analyze_->findChild<QTimer*>("Timer1");
  QTest::mouseClick(analyze_->findChild<QLabel*>("Label4"), Qt::LeftButton);
  EXPECT_FALSE(timer->isActive());
  EXPECT_FALSE(Stored(1));
  CloseScore();
  EXPECT_TRUE(Stored(1));
  CloseScore();

  Win(1);
  for (int i = 0; i < 3; ++i) QMetaObject::invokeMethod(timer, "timeout");
  EXPECT_TRUE(analyze_->isVisible());
  EXPECT_EQ(Seconds(), "");
}

}  // namespace
}  // namespace zorik
