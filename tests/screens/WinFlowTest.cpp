#include <gtest/gtest.h>

#include <QLabel>
#include <QSignalSpy>

#include "screens/FrmAnalyze.h"
#include "screens/PostScreen.h"
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
    flow_ = std::make_unique<WinFlow>(skin, folder.Paths(), *window, *analyze_);
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
    EXPECT_FALSE(PaintCave(hra, text, kind == RunKind::Replay ? RunKind::Play : kind));
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
    flow_->RunWon(hra);
  }

  QString Seconds() const { return analyze_->findChild<QLabel*>("Label4")->text(); }
  void CloseScore() { QTest::keyClick(analyze_.get(), Qt::Key_Return); }
  bool Stored(int cave) const { return std::filesystem::exists(RecordPath(cave)); }

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
  ASSERT_FALSE(window->LoadColl(CollectionPath(), "Žofie"));
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

TEST_F(WinFlowTest, ReplacesARecordOfAnotherCaveOrOfGarbageWithoutAQuestion) {
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
    QTest::keyClick(&box, Qt::Key_Return);
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
    QTest::keyClick(&box, Qt::Key_Return);
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
    flow_->RunWon(hra);
    ASSERT_FALSE(PaintCave(hra, caves[1] + "---02", RunKind::Play));
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
