#include <gtest/gtest.h>

#include "screens/WinFlow.h"
#include "screens/WinScreens.h"
#include "support/Spoiled.h"

namespace zorik {
namespace {

using test::Bytes;
using test::InDialog;
using test::kPoints;

using WinFlowTest = test::WinScreens;

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
  EXPECT_EQ(events_, QStringList({"hide"}));
  EXPECT_EQ(Text("lblTotal").toInt(), kPoints);
  EXPECT_EQ(Text("lblCaveName"), "b");
  EXPECT_FALSE(flow.Busy());
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
  EXPECT_EQ(head.Score, kPoints);
  ASSERT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EXPECT_EQ(Text("lblTotal").toInt(), kPoints);
  EXPECT_EQ(Text("lblRest"), "Zbývá projít: 1 komnata.");
}

TEST_F(WinFlowTest, ShowsTheBreakdownWithoutTheBonusButStoresItsPoints) {
  Start({"Bonus", "b"});
  Win(1);
  EXPECT_EQ(analyze_->findChild<QLabel*>("Label3")->text().toInt(), kPoints);
  EXPECT_TRUE(analyze_->findChild<QWidget*>("Image1")->isVisible());
  EXPECT_TRUE(analyze_->findChild<QLabel*>("Label2")->text().endsWith(
      QString(" = %1").arg(kPoints, 5, 10, QChar('0'))));
  CloseScore();
  CloseScore();
  EXPECT_EQ(Head(RecordPath(1)).Score, kPoints + 500);
  EXPECT_EQ(Text("lblTotal").toInt(), kPoints + 500);
}

TEST_F(WinFlowTest, ReplacesARecordOfEqualScoreWithoutAQuestion) {
  Collection({"a"});
  Record(1, kPoints);
  Begin();
  const std::string old = *ReadWhole(RecordPath(1));
  Win(1);
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
    EXPECT_EQ(Text("lblTotal").toInt(), kPoints) << "the list shows the new score in either case";
    EXPECT_FALSE(flow.Busy());
  }
}

TEST_F(WinFlowTest, AsksBeforeItReplacesABetterRecordThatAnotherGameHasStoredMeanwhile) {
  Start({"a"});
  Record(1, 700);
  Win(1);
  const InDialog question([](QWidget& box) { QTest::keyClick(&box, Qt::Key_N); });
  CloseScore();
  EXPECT_TRUE(question.Opened());
  EXPECT_EQ(Head(RecordPath(1)).Score, 700);
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
    EXPECT_EQ(Head(RecordPath(1)).Score, kPoints);
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
  EXPECT_EQ(Head(RecordPath(1)).Score, 700);
}

TEST_F(WinFlowTest, TellsWhenTheRecordCannotBeWrittenAndGoesOn) {
  Start({"a", "b"});
  test::Spoil(PlayerFolder());
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
  EXPECT_EQ(Text("lblTotal").toInt(), kPoints);
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
  EXPECT_EQ(Head(RecordPath(1)).CaveText, caves[0] + "---01");
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
  EXPECT_EQ(Head(RecordPath(1)).CaveText, caves[1] + "---00");
}

TEST_F(WinFlowTest, StoresAWinInTheCaveThatItWasStartedIn) {
  Start({"a", "b"});
  ASSERT_TRUE(flow.Start());
  const std::string path = RecordPath(1);
  Collection({"c", "d"});
  EXPECT_TRUE(window->LoadColl(CollectionPath(), "Žofie"));
  EndTheRun();
  CloseScore();
  CloseScore();
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_FALSE(Stored(1)) << "of the collection that is open by now";
  EXPECT_EQ(Text("lblTotal"), "00000");
}

TEST_F(WinFlowTest, ShowsTheScoreOfAReplayOnceAndStoresNothing) {
  Start({"a", "b"});
  const std::string record = RecordOf(1, "Jiný");
  ASSERT_TRUE(WriteWhole(RecordPath(1), record));
  ASSERT_TRUE(flow.ReplayChosen());
  EndTheRun();
  EXPECT_EQ(Seconds(), "");
  CloseScore();
  EXPECT_FALSE(analyze_->isVisible());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(events_, QStringList({"hide"}));
  EXPECT_EQ(*ReadWhole(RecordPath(1)), record);
  EXPECT_FALSE(flow.Busy());
  EXPECT_EQ(Text("lblTotal"), "00000");
  EXPECT_EQ(Text("lblCaveName"), "a");
}

TEST_F(WinFlowTest, OffersARecordAgainAndNothingElse) {
  Start({"a", "b"});
  ASSERT_TRUE(WriteWhole(RecordPath(1), RecordOf(1, "Jiný")));
  const auto* const again = analyze_->findChild<SkinLabel*>("again");
  for (const Qt::Key key : {Qt::Key_R, Qt::Key_Z}) {
    events_.clear();
    ASSERT_TRUE(flow.ReplayChosen());
    EndTheRun();
    EXPECT_TRUE(again->isVisible());
    EXPECT_EQ(again->Text(), "Znovu, rychlostí hry (R)");
    QTest::keyClick(analyze_.get(), key);
    EXPECT_FALSE(analyze_->isVisible());
    EXPECT_FALSE(flow.Busy());
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(events_, QStringList({"hide", "again"}));
  }
  Win(1);
  EXPECT_FALSE(again->isVisible());
  QTest::keyClick(analyze_.get(), Qt::Key_R);
  EXPECT_TRUE(analyze_->isVisible());
  CloseScore();
  CloseScore();
}

TEST_F(WinFlowTest, LeadsFromARecordFromOutsideToTheStartScreen) {
  Start({"a"});
  folder.File("x.zkr", RecordOf(1, "Jiný"));
  ASSERT_TRUE(flow.ReplayFile(folder.Root() + "/x.zkr"));
  EndTheRun();
  CloseScore();
  EXPECT_EQ(events_, QStringList({"hide", "start"}));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(WinFlowTest, StoresATestAmongTheRecordsOfNoPlayerAndLeadsToTheEditor) {
  Start({"a/b"});
  WinTest(1);
  EXPECT_EQ(Seconds(), "");
  const std::string path = folder.Root() + "/Replays/Editor - ab.zkr";
  EXPECT_FALSE(std::filesystem::exists(path));
  CloseScore();
  EXPECT_EQ(events_, QStringList({"hide", "editor"}));
  EXPECT_FALSE(window->isVisible());
  ASSERT_TRUE(std::filesystem::exists(path));
  RecordLines lines(*ReadWhole(path));
  const RecordHead head = ReadRecordHead(lines);
  EXPECT_EQ(head.Player, "");
  EXPECT_EQ(head.Score, kPoints);
  EXPECT_FALSE(Stored(1));
}

TEST_F(WinFlowTest, TellsWhenATestCannotBeStored) {
  Start({"a"});
  test::Spoil(folder.Root() + "/Replays");
  WinTest(1);
  QString text;
  const InDialog message([&](QWidget& box) {
    text = box.findChild<QLabel*>("lblText")->text().simplified();
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  CloseScore();
  EXPECT_TRUE(message.Opened());
  EXPECT_TRUE(text.startsWith("Soubor se nepodařilo uložit.")) << text.toStdString();
  EXPECT_EQ(events_, QStringList({"hide", "editor"}));
}

TEST_F(WinFlowTest, MakesTheFolderOfTestsAnew) {
  Start({"a"});
  std::filesystem::remove_all(folder.Root() + "/Replays");
  WinTest(1);
  const InDialog message([](QWidget& box) { box.close(); });
  CloseScore();
  EXPECT_FALSE(message.Opened());
  EXPECT_TRUE(std::filesystem::exists(folder.Root() + "/Replays/Editor - a.zkr"));
  EXPECT_EQ(events_, QStringList({"hide", "editor"}));
}

TEST_F(WinFlowTest, NeedsTheMachineNoLongerOnceItHasStarted) {
  Start({"a", "b"});
  Win(1);
  ASSERT_TRUE(PaintCave(hra, caves[1] + "---02", RunKind::Play));
  CloseScore();
  EXPECT_EQ(Head(RecordPath(1)).CaveText, caves[0] + "---01");
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

TEST_F(WinFlowTest, DoesNothingForAScoreThatBelongsToNoWin) {
  Start({"a", "b"});
  Win(1);
  CloseScore();
  CloseScore();
  ASSERT_TRUE(Stored(1));
  window->hide();
  std::filesystem::remove(RecordPath(1));
  analyze_->Open();
  CloseScore();
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(Stored(1));
}

}  // namespace
}  // namespace zorik
