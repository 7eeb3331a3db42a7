// Records that are shared, not stored, played again, tried out or brought from outside.
#include <gtest/gtest.h>

#include "flow/FlowHome.h"

namespace zorik {
namespace {

using test::FlowHome;
using test::OneStepCave;

constexpr int kPoints = 50;

// The names of both caves are "ab" as soon as they are those of files.
class FlowSharedName : public FlowHome {
 protected:
  void SetUp() override {
    Open({OneStepCave("a?b"), OneStepCave("a:b", 51)});
    Win(1);
    flow.Choose(2);
    ASSERT_TRUE(flow.Start());
    Step();
  }

  std::string Path() const { return PlayerFolder() + "/Sada - ab.zkr"; }
};

TEST_F(FlowSharedName, IsToldBeforeTheOtherRecordGoes) {
  const auto other = flow.OtherCave(flow.Won());
  ASSERT_TRUE(other);
  EXPECT_EQ(other->CollectionName, "Sada");
  EXPECT_EQ(other->CaveName, "a?b");
  EXPECT_TRUE(flow.JeLepsi(flow.Won())) << "it is no better score of this cave";
}

TEST_F(FlowSharedName, LeavesTheOtherRecordWhenThePlayerSaysNo) {
  flow.ScoreClosed();
  flow.ScoreClosed();
  EXPECT_EQ(Head(Path()).CaveText, OneStepCave("a?b") + "---01");
  EXPECT_EQ(flow.Caves().Score(2), 51);
}

TEST_F(FlowSharedName, TakesItsPlaceWhenThePlayerSaysYes) {
  ReadScore();
  EXPECT_EQ(Head(Path()).CaveText, OneStepCave("a:b", 51) + "---02");
  Play(2);
  EXPECT_FALSE(flow.OtherCave(flow.Won())) << "it is this cave's by now";
}

TEST_F(FlowSharedName, KeepsAWinThatCouldNotBeStoredFromTheOthersPlace) {
  ReadScore();
  Win(1);
  flow.Unstored().Keep({flow.Caves().Slot(2), 51, "kept"});
  ASSERT_TRUE(flow.OpenCollection(CollectionPath(), "Ada"));
  EXPECT_EQ(Head(Path()).CaveText, OneStepCave("a?b") + "---01");
  EXPECT_EQ(flow.Unstored().All().size(), 1U);
}

class FlowUnstored : public FlowHome {
 protected:
  void SetUp() override {
    Open({OneStepCave("a"), OneStepCave("b", 51)});
    Spoil();
    Play(1);
    stored = static_cast<bool>(flow.Store(flow.Won()));
    flow.ScoreClosed();
    flow.ScoreClosed();
  }

  std::string Path(const char* cave) const { return PlayerFolder() + "/Sada - " + cave + ".zkr"; }

  bool stored = false;
};

TEST_F(FlowUnstored, WinsAreKeptAndCount) {
  EXPECT_FALSE(stored);
  EXPECT_FALSE(flow.IsStored(1));
  EXPECT_TRUE(flow.IsStored(2));
  EXPECT_EQ(flow.Caves().Score(1), kPoints);
  ASSERT_TRUE(flow.OpenCollection(CollectionPath(), "Ada"));
  EXPECT_EQ(flow.Caves().Score(1), kPoints) << "also when the records are read again";
  EXPECT_EQ(flow.Caves().State(2), CaveState::Open);
}

TEST_F(FlowUnstored, WinsAreStoredWithTheNextOne) {
  Mend();
  Win(2);
  EXPECT_EQ(Head(Path("a")).Score, kPoints);
  EXPECT_EQ(Head(Path("b")).Score, 51);
  EXPECT_TRUE(flow.IsStored(1));
}

TEST_F(FlowUnstored, WinsAreStoredWhenACollectionIsOpened) {
  Mend();
  ASSERT_TRUE(flow.OpenCollection(CollectionPath(), "Ada"));
  EXPECT_EQ(Head(Path("a")).Score, kPoints);
  EXPECT_TRUE(flow.Unstored().All().empty());
}

TEST_F(FlowUnstored, WinsAreTriedAgain) {
  const WonRun run = *flow.Unstored().Find(flow.Caves().Slot(1));
  EXPECT_FALSE(flow.StoreKept(run));
  EXPECT_FALSE(flow.IsStored(1));
  Mend();
  EXPECT_TRUE(flow.StoreKept(run));
  EXPECT_TRUE(flow.IsStored(1));
  EXPECT_EQ(Head(Path("a")).Score, kPoints);
}

TEST_F(FlowUnstored, WinsAreSavedElsewhereAndTriedAgainAllTheSame) {
  const WonRun run = *flow.Unstored().Find(flow.Caves().Slot(1));
  EXPECT_FALSE(flow.StoreElsewhere(run, root + "/no such folder/x.zkr"));
  EXPECT_EQ(flow.Unstored().AtRisk().size(), 1U);
  ASSERT_TRUE(flow.StoreElsewhere(run, root + "/x.zkr"));
  EXPECT_EQ(Head(root + "/x.zkr").Score, kPoints);
  EXPECT_TRUE(flow.Unstored().AtRisk().empty());
  EXPECT_FALSE(flow.IsStored(1));
  EXPECT_FALSE(flow.StoreKept(run));
  EXPECT_TRUE(flow.Unstored().AtRisk().empty()) << "a try that fails loses nothing";
}

TEST_F(FlowUnstored, WinsAreComparedWithTheNextOfTheirCave) {
  flow.Unstored().Keep({flow.Caves().Slot(1), kPoints + 1, "better"});
  Play(1);
  EXPECT_FALSE(flow.JeLepsi(flow.Won()));
}

TEST_F(FlowUnstored, WinsOfOnePlayerCountForNoOther) {
  ASSERT_TRUE(flow.OpenCollection(CollectionPath(), "Eva"));
  EXPECT_EQ(flow.Caves().Score(1), 0);
  EXPECT_TRUE(flow.IsStored(1));
}

class FlowReplay : public FlowHome {
 protected:
  void SetUp() override {
    Open({OneStepCave("a"), OneStepCave("b", 51)});
    Win(1);
    flow.Choose(1);
    record = *ReadWhole(Path());
  }

  std::string Path() const { return PlayerFolder() + "/Sada - a.zkr"; }

  std::string record;
};

TEST_F(FlowReplay, PlaysTheRecordOfTheChosenCaveShowsItsScoreOnceAndStoresNothing) {
  ASSERT_TRUE(flow.ReplayChosen());
  EXPECT_EQ(flow.Kind(), RunKind::Replay);
  EXPECT_EQ(hra.CaveText, OneStepCave("a") + "---01");
  EXPECT_FALSE(flow.MadeByAnother());
  Step();
  EXPECT_EQ(flow.Score().Total, kPoints);
  EXPECT_FALSE(flow.ShownOnceMore());
  EXPECT_EQ(flow.Due(), Storing::None);
  EXPECT_EQ(flow.After(), WayBack::Selection);
  flow.ScoreClosed();
  EXPECT_FALSE(flow.Busy());
  EXPECT_EQ(*ReadWhole(Path()), record);
  EXPECT_EQ(flow.Caves().Selected(), 1) << "nothing is passed by it";
}

TEST_F(FlowReplay, IsLeftForTheCaves) {
  ASSERT_TRUE(flow.ReplayChosen());
  EXPECT_EQ(flow.Leave(), WayBack::Selection);
}

TEST_F(FlowReplay, OfARecordFromOutsideIsForNobodyAndNamesWhoHasMadeIt) {
  std::filesystem::rename(Path(), root + "/x.zkr");
  ASSERT_TRUE(flow.ReplayFile(root + "/x.zkr"));
  EXPECT_EQ(flow.MadeByAnother(), "Ada");
  EXPECT_EQ(hra.CollectionName, "Sada");
  Step();
  EXPECT_EQ(flow.After(), WayBack::Start);
  flow.ScoreClosed();
  EXPECT_FALSE(flow.Busy());
  EXPECT_FALSE(Exists(Path()));
  EXPECT_EQ(flow.Leave(), WayBack::Start);
}

TEST_F(FlowReplay, OfARecordFromOutsideIsForgottenByThePlayBehindIt) {
  std::filesystem::rename(Path(), root + "/x.zkr");
  ASSERT_TRUE(flow.ReplayFile(root + "/x.zkr"));
  ASSERT_TRUE(flow.OpenCollection(CollectionPath(), "Eva"));
  ASSERT_TRUE(flow.Start());
  EXPECT_FALSE(flow.MadeByAnother());
}

TEST_F(FlowReplay, OfARecordFromOutsideNeedsNoOpenCollection) {
  Hra other(2);
  Flow fresh(other, {root + "/Players", root + "/Replays"}, 1);
  ASSERT_TRUE(fresh.ReplayFile(Path()));
  while (!other.Win) Tick(other, {});
  ASSERT_TRUE(fresh.Win());
  fresh.ScoreClosed();
  EXPECT_FALSE(fresh.Busy());
}

TEST_F(FlowReplay, OfNoRecordLeavesTheLastRunAsItWas) {
  ASSERT_TRUE(flow.Start());
  ASSERT_TRUE(WriteWhole(root + "/x.zkr", "rubbish"));
  EXPECT_FALSE(flow.ReplayFile(root + "/x.zkr"));
  EXPECT_FALSE(flow.ReplayFile(root + "/none.zkr"));
  EXPECT_EQ(flow.Kind(), RunKind::Play);
  EXPECT_EQ(hra.PlayerName, "Ada");
  EXPECT_EQ(hra.CollectionName, "Sada");
  Step();
  ReadScore();
  EXPECT_NE(*ReadWhole(Path()), record) << "and its win still knows its place";
}

TEST_F(FlowReplay, CountsNothingForThePlayBeforeIt) {
  Play(1);
  ReadScore();
  flow.Choose(1);
  ASSERT_TRUE(flow.ReplayChosen());
  Step();
  flow.ScoreClosed();
  EXPECT_EQ(flow.Caves().Selected(), 1);
}

class FlowTestRun : public FlowHome {
 protected:
  std::string Path() const { return root + "/Replays/Editor - ab.zkr"; }
};

TEST_F(FlowTestRun, IsStoredAmongTheRecordsOfNoPlayerAndLeadsToTheEditor) {
  flow.Sada().SetText(SadaText::Name, "Moje");
  flow.BeginEditing("Ada");
  ASSERT_TRUE(flow.TestRun(OneStepCave("a/b")));
  EXPECT_EQ(flow.Kind(), RunKind::Test);
  EXPECT_EQ(hra.PlayerName, "Ada");
  Step();
  EXPECT_FALSE(flow.ShownOnceMore());
  EXPECT_EQ(flow.Due(), Storing::Stored);
  EXPECT_EQ(flow.After(), WayBack::Editor);
  EXPECT_FALSE(Exists(Path()));
  EXPECT_TRUE(flow.Store(flow.Won()));
  flow.ScoreClosed();
  EXPECT_FALSE(flow.Busy());
  const RecordHead head = Head(Path());
  EXPECT_EQ(head.CollectionName, "Moje");
  EXPECT_EQ(head.Player, "");
  EXPECT_EQ(head.Score, kPoints);
}

TEST_F(FlowTestRun, IsStoredUnderANameThatTheDiskHolds) {
  const std::string name(200, '\xE1');
  ASSERT_TRUE(flow.TestRun(OneStepCave(name.substr(0, 100))));
  Step();
  ReadScore();
  std::string utf8;
  for (int i = 0; i < 100; ++i) utf8 += "\xC3\xA1";
  EXPECT_TRUE(Exists(root + "/Replays/Editor - " + utf8 + ".zkr"));
  ASSERT_TRUE(flow.TestRun(OneStepCave(name.substr(0, 150))));
  Step();
  EXPECT_TRUE(flow.Store(flow.Won())) << "it is longer than names of files are";
}

TEST_F(FlowTestRun, TakesThePlaceOfARecordWhoseNameHasOtherLetterCase) {
  std::filesystem::create_directories(root + "/Replays");
  ASSERT_TRUE(WriteWhole(root + "/Replays/Editor - AB.zkr", "older"));
  ASSERT_TRUE(flow.TestRun(OneStepCave("ab")));
  Step();
  ReadScore();
  EXPECT_FALSE(Exists(Path()));
  EXPECT_EQ(Head(root + "/Replays/Editor - AB.zkr").Score, kPoints);
}

TEST_F(FlowTestRun, KnowsItsCaveByATextWithoutMarker) {
  ASSERT_TRUE(flow.TestRun(OneStepCave("ab") + "---01"));
  Step();
  EXPECT_EQ(flow.Won().Slot.CaveText, OneStepCave("ab"));
}

TEST_F(FlowTestRun, CountsForNoCaveOfTheOpenCollection) {
  Open({OneStepCave("a"), OneStepCave("b")});
  ASSERT_TRUE(flow.TestRun(OneStepCave("a")));
  Step();
  ReadScore();
  EXPECT_EQ(flow.Caves().Total(), 0);
  EXPECT_FALSE(Exists(PlayerFolder() + "/Sada - a.zkr"));
}

TEST_F(FlowTestRun, IsLeftForTheEditor) {
  ASSERT_TRUE(flow.TestRun(OneStepCave("a")));
  EXPECT_EQ(hra.PlayerName, "") << "nobody who has a name";
  EXPECT_EQ(flow.Leave(), WayBack::Editor);
}

TEST_F(FlowTestRun, OfACaveThatCannotBePlayedStartsNothing) {
  ASSERT_TRUE(flow.TestRun(OneStepCave("a")));
  EXPECT_FALSE(flow.TestRun("rubbish"));
  EXPECT_EQ(hra.CaveName, "a");
}

TEST_F(FlowTestRun, ThatCannotBeStartedLeavesThePlayBeforeItItsPlace) {
  Open({OneStepCave("a")});
  ASSERT_TRUE(flow.Start());
  EXPECT_FALSE(flow.TestRun("rubbish"));
  Step();
  ReadScore();
  EXPECT_EQ(Head(PlayerFolder() + "/Sada - a.zkr").Score, kPoints);
}

TEST_F(FlowTestRun, IsPlayedByThePlayerWhoseFolderWasNamed) {
  flow.BeginEditing("K\xC5\xAF\xC5\x88");
  ASSERT_TRUE(flow.TestRun(OneStepCave("a")));
  EXPECT_EQ(hra.PlayerName, "K\xF9\xF2");
}

}  // namespace
}  // namespace zorik
