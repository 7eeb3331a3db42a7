// The game's way from the choice of a cave to the stored record.
#include <gtest/gtest.h>

#include "core/Stage.h"
#include "data/CaveO.h"
#include "flow/Flow.h"
#include "flow/FlowHome.h"

namespace zorik {
namespace {

using test::CaveTextOf;
using test::FlowHome;
using test::OneStepCave;
using FlowTest = FlowHome;

constexpr int kPoints = 50;

TEST_F(FlowTest, OpensACollectionForThePlayerOfAFolder) {
  EXPECT_FALSE(flow.IsOpen());
  Open({OneStepCave("a"), OneStepCave("b")});
  ASSERT_TRUE(flow.IsOpen());
  EXPECT_EQ(flow.Caves().Collection().Name, "Sada");
  EXPECT_EQ(flow.Caves().Player(), "Ada");
  EXPECT_EQ(flow.Caves().Selected(), 1);
  EXPECT_EQ(flow.ChosenSlot().Path, PlayerFolder() + "/Sada - a.zkr");
}

TEST_F(FlowTest, OpensACollectionForAPlayerWhoseFolderIsNoUtf8) {
  Write({OneStepCave("a")});
  const std::string folder = "Hr\xE1\xE8";
  std::filesystem::create_directories(root + "/Players/" + folder);
  ASSERT_TRUE(flow.OpenCollection(CollectionPath(), folder));
  EXPECT_EQ(flow.Caves().Player(), "Hr\xE1\xE8");
  EXPECT_EQ(flow.Caves().PlayerFolder(), root + "/Players/" + folder);
}

TEST_F(FlowTest, OpensACollectionForThatOfTwoFoldersWhichWasNamed) {
  Write({OneStepCave("a")});
  for (const std::string folder : {"Hr\xE1\xE8", "Hr\xC3\xA1\xC4\x8D"})
    std::filesystem::create_directories(root + "/Players/" + folder);
  for (const std::string folder : {"Hr\xE1\xE8", "Hr\xC3\xA1\xC4\x8D"}) {
    ASSERT_TRUE(flow.OpenCollection(CollectionPath(), folder));
    EXPECT_EQ(flow.Caves().Player(), "Hr\xE1\xE8") << "both are called so";
    EXPECT_EQ(flow.Caves().PlayerFolder(), root + "/Players/" + folder);
  }
}

TEST_F(FlowTest, KeepsTheOpenCollectionWhenAnotherCannotBeOpened) {
  Open({OneStepCave("a"), OneStepCave("b")});
  EXPECT_FALSE(flow.OpenCollection(root + "/none.zk", "Eva"));
  EXPECT_EQ(flow.Caves().Collection().Name, "Sada");
  EXPECT_EQ(flow.Caves().Player(), "Ada");
}

TEST_F(FlowTest, StartsTheChosenCaveAsTheCollectionHoldsIt) {
  Open({OneStepCave("a"), OneStepCave("b", 51)});
  Win(1);
  flow.Choose(2);
  ASSERT_TRUE(flow.Start());
  EXPECT_EQ(hra.CaveText, OneStepCave("b", 51) + "---02") << "with its marker";
  EXPECT_EQ(hra.CaveName, "b");
  EXPECT_EQ(hra.CollectionName, "Sada");
  EXPECT_EQ(hra.PlayerName, "Ada");
  EXPECT_EQ(flow.Kind(), RunKind::Play);
}

TEST_F(FlowTest, StartsACaveThatHasGoneFromTheDisk) {
  Open({OneStepCave("a")});
  std::filesystem::remove(CollectionPath());
  EXPECT_TRUE(flow.Start());
}

TEST_F(FlowTest, StartsNoClosedCave) {
  Open({OneStepCave("a"), OneStepCave("b")});
  ASSERT_TRUE(flow.Start());
  flow.Choose(2);
  EXPECT_FALSE(flow.MayStart());
  EXPECT_FALSE(flow.Start());
  EXPECT_EQ(hra.CaveName, "a");
}

TEST_F(FlowTest, WinsTheRunThatIsOnThoughAnotherCaveCouldNotBeStarted) {
  Open({OneStepCave("a"), OneStepCave("b", 51)});
  Win(1);
  Open({OneStepCave("a"), CaveTextOf({std::string(101, 'W'), "W1T" + std::string(98, 'W')}, {})});
  flow.Choose(1);
  ASSERT_TRUE(flow.Start());
  flow.Choose(2);
  ASSERT_TRUE(flow.MayStart());
  EXPECT_FALSE(flow.Start()) << "it is too large";
  Step();
  EXPECT_EQ(flow.Won().Slot.Path, PlayerFolder() + "/Sada - a.zkr");
}

TEST_F(FlowTest, LeavesARunThatWasNotWonForTheCavesAndStoresNothing) {
  Open({OneStepCave("a")});
  ASSERT_TRUE(flow.Start());
  Tick(hra, {});
  EXPECT_FALSE(flow.Win());
  EXPECT_EQ(flow.Leave(), WayBack::Selection);
  EXPECT_FALSE(flow.Busy());
  EXPECT_FALSE(Exists(PlayerFolder() + "/Sada - a.zkr"));
}

// Counts how often all sounds are stopped.
class Listener : public Stage {
 public:
  void StopSounds() override { ++stops; }

  int stops = 0;
};

TEST_F(FlowTest, LeavesARunInSilence) {
  Listener listener;
  hra.SetStage(listener);
  Open({OneStepCave("a")});
  ASSERT_TRUE(flow.Start());
  listener.stops = 0;
  EXPECT_EQ(flow.Leave(), WayBack::Selection);
  EXPECT_EQ(listener.stops, 1);
}

TEST_F(FlowTest, ShowsTheScoreOfAWinTwiceAndStoresItsRecordInBetween) {
  Open({OneStepCave("a"), OneStepCave("b")});
  Play(1);
  EXPECT_EQ(flow.Score().Line, "000 \xB7 10 + 000 \xB7 20 + 050 \xB7 1 = 00050");
  EXPECT_EQ(flow.Score().Total, kPoints);
  EXPECT_FALSE(flow.Score().Bonus);
  EXPECT_TRUE(flow.Busy());
  EXPECT_TRUE(flow.ShownOnceMore());
  EXPECT_EQ(flow.Due(), Storing::Asked);
  EXPECT_TRUE(flow.Store(flow.Won()));
  flow.ScoreClosed();

  EXPECT_TRUE(flow.Busy());
  EXPECT_FALSE(flow.ShownOnceMore());
  EXPECT_EQ(flow.Due(), Storing::None);
  EXPECT_EQ(flow.Caves().Total(), 0) << "not passed before the last closing";
  EXPECT_EQ(flow.After(), WayBack::Selection);
  flow.ScoreClosed();

  EXPECT_FALSE(flow.Busy());
  EXPECT_EQ(flow.Caves().Total(), kPoints);
  EXPECT_EQ(flow.Caves().State(1), CaveState::Solved);
  EXPECT_EQ(flow.Caves().State(2), CaveState::Open);
  EXPECT_EQ(flow.Caves().Selected(), 2);
}

TEST_F(FlowTest, StoresTheRecordUnderTheNamesOfCollectionAndCave) {
  Open({OneStepCave("a")});
  Win(1);
  const RecordHead head = Head(PlayerFolder() + "/Sada - a.zkr");
  EXPECT_EQ(head.CollectionName, "Sada");
  EXPECT_EQ(head.Player, "Ada");
  EXPECT_EQ(head.Score, kPoints);
  EXPECT_EQ(head.CaveText, OneStepCave("a") + "---01");
}

TEST_F(FlowTest, CountsAStoredWinWhenTheCollectionIsOpenedAgain) {
  Open({OneStepCave("a"), OneStepCave("b")});
  Win(1);
  Open({OneStepCave("a"), OneStepCave("b")});
  EXPECT_EQ(flow.Caves().Score(1), kPoints);
  EXPECT_EQ(flow.Caves().Rest(), 1);
}

TEST_F(FlowTest, StoresThePointsOfABonusCaveButShowsThemAside) {
  Open({OneStepCave("bonus")});
  Play(1);
  EXPECT_EQ(flow.Score().Total, kPoints);
  EXPECT_TRUE(flow.Score().Bonus);
  ReadScore();
  EXPECT_EQ(Head(PlayerFolder() + "/Sada - bonus.zkr").Score, kPoints + 500);
  EXPECT_EQ(flow.Caves().Score(1), kPoints + 500);
}

TEST_F(FlowTest, TakesNoWinBeforeThePlayerHasReadTheLastOne) {
  Open({OneStepCave("a"), OneStepCave("b", 51)});
  Play(1);
  hra.Win->Score = 7;
  EXPECT_FALSE(flow.Win());
  EXPECT_EQ(flow.Won().Score, kPoints);
}

TEST_F(FlowTest, NeedsTheMachineNoLongerOnceTheRunIsWon) {
  Open({OneStepCave("a")});
  Play(1);
  ASSERT_TRUE(PaintCave(hra, OneStepCave("other"), RunKind::Test));
  ReadScore();
  EXPECT_EQ(Head(PlayerFolder() + "/Sada - a.zkr").CaveText, OneStepCave("a") + "---01");
  EXPECT_EQ(flow.Caves().Score(1), kPoints);
}

TEST_F(FlowTest, StoresAWinInTheCaveThatItWasStartedIn) {
  Open({OneStepCave("a"), OneStepCave("b")});
  ASSERT_TRUE(flow.Start());
  Open({OneStepCave("c", 51), OneStepCave("d")});
  Step();
  ReadScore();
  EXPECT_TRUE(Exists(PlayerFolder() + "/Sada - a.zkr"));
  EXPECT_FALSE(Exists(PlayerFolder() + "/Sada - c.zkr"));
  EXPECT_EQ(flow.Caves().Score(1), 0);
}

TEST_F(FlowTest, CountsAWinForItsCaveThoughAnotherIsChosenMeanwhile) {
  Open({OneStepCave("a"), OneStepCave("b", 51), OneStepCave("c", 52)});
  Win(1);
  flow.Choose(1);
  ASSERT_TRUE(flow.Start());
  flow.Choose(2);
  Step();
  ReadScore();
  EXPECT_EQ(flow.Caves().State(2), CaveState::Open);
  EXPECT_EQ(flow.Caves().Selected(), 2) << "the one behind the cave that was won";
}

// The list shows the player's own record, with this score, before he plays.
class FlowBetterScore : public FlowHome {
 protected:
  void SetUp() override {
    Open({OneStepCave("a")});
    Win(1);
    path = PlayerFolder() + "/Sada - a.zkr";
  }

  // Puts the score of the record on the disk to this.
  void Stand(int score) const {
    Chance chance(3);
    const std::string bytes = *ReadWhole(path);
    const std::size_t second = bytes.find("\r\n", bytes.find("\r\n") + 2) + 2;
    ASSERT_TRUE(WriteWhole(path, BuildRecordHead("Sada", score, "Ada", chance) + bytes.substr(second)));
    ASSERT_EQ(Head(path).Score, score);
  }

  // The score is closed, and the player answers if he is asked.
  void Answer(bool yes) {
    ASSERT_EQ(flow.Due(), Storing::Asked);
    asked = !flow.JeLepsi(flow.Won());
    if (!asked || yes) {
      ASSERT_TRUE(flow.Store(flow.Won()));
    }
    flow.ScoreClosed();
    flow.ScoreClosed();
  }

  std::string path;
  bool asked = false;
};

TEST_F(FlowBetterScore, IsReplacedWhenThePlayerSaysYes) {
  Stand(700);
  Play(1);
  Answer(true);
  EXPECT_TRUE(asked);
  EXPECT_EQ(Head(path).Score, kPoints);
}

TEST_F(FlowBetterScore, StaysWhenThePlayerSaysNoThoughTheListShowsTheNewOne) {
  Stand(700);
  const std::string record = *ReadWhole(path);
  Play(1);
  Answer(false);
  EXPECT_TRUE(asked);
  EXPECT_EQ(*ReadWhole(path), record);
  EXPECT_EQ(flow.Caves().Score(1), kPoints);
  ASSERT_TRUE(flow.OpenCollection(CollectionPath(), "Ada"));
  EXPECT_EQ(flow.Caves().Score(1), 700) << "as soon as the records are read again";
}

TEST_F(FlowBetterScore, IsAskedAboutAgainWhileItStands) {
  Stand(700);
  Play(1);
  Answer(false);
  Play(1);
  Answer(false);
  EXPECT_TRUE(asked);
  EXPECT_EQ(Head(path).Score, 700);
}

TEST_F(FlowBetterScore, IsNoneWhereItIsEqual) {
  Stand(kPoints);
  const std::string record = *ReadWhole(path);
  Play(1);
  Answer(false);
  EXPECT_FALSE(asked);
  EXPECT_NE(*ReadWhole(path), record);
}

TEST_F(FlowBetterScore, IsSeenThoughAnotherRunningGameHasStoredItMeanwhile) {
  Play(1);
  Stand(kPoints + 1);
  Answer(false);
  EXPECT_TRUE(asked);
  EXPECT_EQ(Head(path).Score, kPoints + 1);
}

TEST_F(FlowBetterScore, CountsForNothingOnceTheCaveHasChanged) {
  Stand(700);
  Open({OneStepCave("a", 40)});
  Play(1);
  Answer(false);
  EXPECT_FALSE(asked);
  EXPECT_EQ(Head(path).Score, 40);
}

// Practice

TEST_F(FlowTest, LetsTheChosenCaveBePractised) {
  Open({OneStepCave("a"), OneStepCave("b", 51)});
  ASSERT_TRUE(flow.StartPractice());
  EXPECT_EQ(flow.Kind(), RunKind::Practice);
  EXPECT_EQ(hra.CaveName, "a");
  EXPECT_EQ(hra.CollectionName, "Sada");
  EXPECT_EQ(hra.PlayerName, "Ada");
  EXPECT_EQ(flow.Leave(), WayBack::Selection);
  flow.Choose(2);
  EXPECT_FALSE(flow.StartPractice()) << "it is closed";
}

TEST_F(FlowTest, OpensNoCaveAndKeepsAndCountsNothingOfAWinInPractice) {
  Open({OneStepCave("a"), OneStepCave("b", 51)});
  ASSERT_TRUE(flow.StartPractice());
  test::StepToWin(hra);
  ASSERT_TRUE(hra.Win);
  EXPECT_FALSE(flow.Win());
  EXPECT_FALSE(flow.Busy());
  EXPECT_EQ(flow.Caves().State(1), CaveState::Open);
  EXPECT_EQ(flow.Caves().State(2), CaveState::Closed);
  EXPECT_EQ(flow.Caves().Total(), 0);
  EXPECT_TRUE(std::filesystem::is_empty(PlayerFolder()));
  EXPECT_TRUE(flow.Unstored().All().empty());
}

TEST_F(FlowTest, LeavesTheRecordOfAnEarlierWinAloneInPractice) {
  Open({OneStepCave("a"), OneStepCave("b", 51)});
  Win(1);
  const std::string path = flow.ChosenSlot().Path;
  flow.Choose(1);
  const std::string record = *ReadWhole(flow.ChosenSlot().Path);
  ASSERT_TRUE(flow.StartPractice());
  test::StepToWin(hra);
  EXPECT_FALSE(flow.Win());
  EXPECT_EQ(*ReadWhole(flow.ChosenSlot().Path), record);
  EXPECT_FALSE(Exists(path)) << "of the cave behind it";
  EXPECT_EQ(flow.Caves().Total(), kPoints);
}

}  // namespace
}  // namespace zorik
