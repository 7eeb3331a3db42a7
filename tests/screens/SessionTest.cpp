#include <gtest/gtest.h>

#include "core/Hra.h"
#include "screens/Folder.h"
#include "screens/Session.h"

namespace zorik {
namespace {

using test::Folder;
using test::OneStepCave;

// The record of a run of the cave, with a score as the test likes it.
std::string RecordWithScore(const Session& session, int number, int score) {
  Hra hra;
  hra.CollectionName = session.Collection().Name;
  hra.PlayerName = session.Player();
  EXPECT_FALSE(PaintCave(hra, session.CaveText(number), RunKind::Play));
  return SaveRecord(hra, score);
}

TEST(Session, OpensTheFirstCollectionByName) {
  const Folder folder;
  folder.Collection("b.zk", "Beta", {OneStepCave("one")});
  folder.Collection("A.ZK", "Alfa", {OneStepCave("one")});
  folder.File("Caves/0.txt", "no collection");
  const auto session = Session::OpenFirst(folder.Paths());
  ASSERT_TRUE(session);
  EXPECT_EQ(session->Collection().Name, "Alfa");
}

TEST(Session, PassesByACollectionThatCannotBeRead) {
  const Folder folder;
  folder.File("Caves/a.zk", "junk");
  folder.Collection("b.zk", "Beta", {OneStepCave("one")});
  const auto session = Session::OpenFirst(folder.Paths());
  ASSERT_TRUE(session);
  EXPECT_EQ(session->Collection().Name, "Beta");
}

TEST(Session, NamesWhatItLookedAtWhenThereIsNoCollection) {
  const Folder folder;
  EXPECT_EQ(Session::OpenFirst(folder.Paths()).Message(), folder.Root() + "/Caves");
  folder.File("Caves/a.zk", "junk");
  EXPECT_EQ(Session::OpenFirst(folder.Paths()).Message(), folder.Root() + "/Caves/a.zk");
}

TEST(Session, PlaysForTheFirstPlayerThatThereIs) {
  const Folder folder;
  folder.Collection("a.zk", "Alfa", {OneStepCave("one")});
  EXPECT_EQ(Session::OpenFirst(folder.Paths())->Player(), "Hr\xE1\xE8");
  folder.File("Players/Petr/x", "x");
  folder.File("Players/Adam/x", "x");
  EXPECT_EQ(Session::OpenFirst(folder.Paths())->Player(), "Adam");
}

TEST(Session, KeepsARecordUnderTheNamesOfCollectionAndCave) {
  const Folder folder;
  folder.Collection("a.zk", "Alfa", {OneStepCave("What?")});
  const auto session = Session::OpenFirst(folder.Paths());
  ASSERT_TRUE(session);
  EXPECT_FALSE(session->StoredRecord(1));
  const std::string record = RecordWithScore(*session, 1, 70);
  const auto path = session->Store(1, record);
  ASSERT_TRUE(path);
  EXPECT_EQ(*path, folder.Root() + "/Players/Hráč/Alfa - What.zkr");
  EXPECT_EQ(session->StoredRecord(1), record);
}

TEST(Session, ReplacesARecordWhoseNameIsSpeltInOtherLetterCase) {
  const Folder folder;
  folder.Collection("a.zk", "Alfa", {OneStepCave("one")});
  folder.File("Players/Petr/ALFA - ONE.ZKR", "old");
  const auto session = Session::OpenFirst(folder.Paths());
  ASSERT_TRUE(session);
  EXPECT_EQ(session->StoredRecord(1), "old");
  const auto path = session->Store(1, "new");
  ASSERT_TRUE(path);
  EXPECT_EQ(*path, folder.Root() + "/Players/Petr/ALFA - ONE.ZKR");
  EXPECT_EQ(session->StoredRecord(1), "new");
}

TEST(Session, TakesAnEqualScoreForBetter) {
  const Folder folder;
  folder.Collection("a.zk", "Alfa", {OneStepCave("one")});
  const auto session = Session::OpenFirst(folder.Paths());
  ASSERT_TRUE(session);
  EXPECT_TRUE(session->JeLepsi(1, 0)) << "there is no record yet";
  ASSERT_TRUE(session->Store(1, RecordWithScore(*session, 1, 70)));
  EXPECT_FALSE(session->JeLepsi(1, 69));
  EXPECT_TRUE(session->JeLepsi(1, 70));
  EXPECT_TRUE(session->JeLepsi(1, 71));
  EXPECT_EQ(session->Total(), 70);
}

TEST(Session, OpensACaveWhenTheOneBeforeItIsSolved) {
  const Folder folder;
  folder.Collection("a.zk", "Alfa", {OneStepCave("one"), OneStepCave("two"), OneStepCave("three")});
  const auto session = Session::OpenFirst(folder.Paths());
  ASSERT_TRUE(session);
  EXPECT_TRUE(session->IsOpen(1));
  EXPECT_FALSE(session->IsOpen(2));
  ASSERT_TRUE(session->Store(1, RecordWithScore(*session, 1, 70)));
  EXPECT_TRUE(session->IsOpen(2));
  EXPECT_FALSE(session->IsOpen(3));
}

TEST(Session, SaysWhenARecordCannotBeStored) {
  const Folder folder;
  folder.Collection("a.zk", "Alfa", {OneStepCave("one")});
  auto paths = folder.Paths();
  folder.File("blocked", "a file where the players' folder should be");
  paths.PlayersPath = folder.Root() + "/blocked";
  const auto session = Session::OpenFirst(paths);
  ASSERT_TRUE(session);
  EXPECT_FALSE(session->Store(1, "record"));
}

TEST(Session, FindsTheRecordsThatCameWithTheCollection) {
  const Folder folder;
  folder.Collection("prvni.zk", "Alfa", {OneStepCave("one")});
  folder.File("Replays/prvni/01.zkr", "record");
  const auto session = Session::OpenFirst(folder.Paths());
  ASSERT_TRUE(session);
  EXPECT_EQ(session->ShippedRecord(1), "record");
  EXPECT_FALSE(session->ShippedRecord(2));
}

}  // namespace
}  // namespace zorik
