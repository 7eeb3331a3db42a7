#include "flow/FlowHome.h"
#include "flow/Rivals.h"

namespace zorik {
namespace {

class Rivals : public test::FlowHome {
 protected:
  Rivals() { OpenBoth(test::OneStepCave("prvni")); }

  // Writes a collection of this cave and another one, both of which are open from the start.
  void WriteBoth(const std::string& first) const {
    EditedCollection collection;
    collection.Name = "Sada";
    collection.CaveList = {first, test::OneStepCave("druha")};
    collection.OpenFlags.set(1);
    collection.OpenFlags.set(2);
    Chance chance;
    const auto bytes = BuildCollection(collection, chance);
    ASSERT_TRUE(bytes);
    ASSERT_TRUE(WriteWhole(CollectionPath(), *bytes));
  }

  void OpenBoth(const std::string& first) {
    WriteBoth(first);
    ASSERT_TRUE(flow.OpenCollection(CollectionPath(), "Ada"));
  }

  // Lets another player win a cave of the open collection.
  void WinAs(const std::string& folder, int cave, const std::string& caveText = {}) {
    Hra other(7);
    Flow his(other, {root + "/Players", root + "/Replays"}, 1);
    std::filesystem::create_directories(root + "/Players/" + folder);
    if (!caveText.empty()) WriteBoth(caveText);
    ASSERT_TRUE(his.OpenCollection(CollectionPath(), folder));
    his.Choose(cave);
    ASSERT_TRUE(his.Start());
    test::StepToWin(other);
    ASSERT_TRUE(his.Win());
    ASSERT_TRUE(his.Store(his.Won()));
  }

  std::string PlayerIn(const std::string& record) const {
    RecordLines lines(record);
    return ReadRecordHead(lines).Player;
  }
};

TEST_F(Rivals, AreTheOtherPlayersWhoHaveWonTheCaveWithTheBestInFront) {
  WinAs("Cyril", 1);
  WinAs("Bara", 1);
  WinAs("Dana", 2);
  Win(1);
  flow.Choose(1);
  const std::vector<Rival> expected{{"Bara", "Bara", 50}, {"Cyril", "Cyril", 50}};
  EXPECT_EQ(flow.Rivals(), expected) << "not Dana, who has won another cave, nor the player";
  flow.Choose(2);
  ASSERT_EQ(flow.Rivals().size(), 1U);
  EXPECT_EQ(flow.Rivals()[0].Player, "Dana");
}

// A copy that somebody keeps of a player's folder is no player.
TEST_F(Rivals, HaveNoHiddenFolders) {
  WinAs("Bara", 1);
  const std::string players = root + "/Players/";
  for (const char* const copy : {".Bara", ".Trash"})
    std::filesystem::copy(players + "Bara", players + copy, std::filesystem::copy_options::recursive);
  flow.Choose(1);
  EXPECT_EQ(flow.Rivals(), (std::vector<Rival>{{"Bara", "Bara", 50}}));
}

// U+4E2D is in no name that a player can type.
TEST_F(Rivals, HaveNamesThatPlayersCanHave) {
  WinAs("Bara", 1);
  const std::string players = root + "/Players/";
  std::filesystem::copy(players + "Bara", players + "\xE4\xB8\xAD", std::filesystem::copy_options::recursive);
  flow.Choose(1);
  EXPECT_EQ(flow.Rivals(), (std::vector<Rival>{{"Bara", "Bara", 50}}));
}

TEST_F(Rivals, HaveWonTheCaveAsItIsNow) {
  WinAs("Bara", 1, test::OneStepCave("prvni", 80));
  OpenBoth(test::OneStepCave("prvni"));
  EXPECT_TRUE(flow.Rivals().empty());
  flow.ChooseGhost("Bara");
  EXPECT_EQ(flow.GhostRecord(), "");
}

TEST_F(Rivals, GoBesideThePlayerWhenTheyAreChosen) {
  WinAs("Bara", 1);
  Win(1);
  flow.Choose(1);
  EXPECT_EQ(PlayerIn(flow.GhostRecord()), "Ada");
  flow.ChooseGhost("Bara");
  EXPECT_EQ(PlayerIn(flow.GhostRecord()), "Bara");
  flow.ChooseGhost("");
  EXPECT_EQ(PlayerIn(flow.GhostRecord()), "Ada");
}

TEST_F(Rivals, GiveWayToThePlayersOwnRunWhereTheyHaveNone) {
  WinAs("Bara", 1);
  Win(2);
  flow.ChooseGhost("Bara");
  flow.Choose(2);
  EXPECT_EQ(PlayerIn(flow.GhostRecord()), "Ada");
  flow.ChooseGhost("../../somewhere");
  EXPECT_EQ(PlayerIn(flow.GhostRecord()), "Ada");
}

TEST_F(Rivals, AreNotWantedForARunThatCouldNotBeStored) {
  flow.Choose(1);
  EXPECT_EQ(flow.GhostRecord(), "") << "nobody has won the cave";
  Spoil();
  Win(1);
  flow.Choose(1);
  EXPECT_EQ(PlayerIn(flow.GhostRecord()), "Ada") << "it is kept in memory";
}

}  // namespace
}  // namespace zorik
