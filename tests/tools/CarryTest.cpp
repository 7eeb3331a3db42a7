#include <gtest/gtest.h>

#include <filesystem>

#include "data/Collection.h"
#include "data/Result.h"
#include "support/Scene.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

std::string CaveNamed(const std::string& name, int time = 100) {
  return CaveTextOf({"WWWWWW", "W1;D;T", "WWWWWW"}, {.time = time, .needed = 1, .before = 7, .name = name});
}

std::string CollectionOf(const std::string& name, const std::vector<std::string>& caves) {
  EditedCollection collection;
  collection.Name = name;
  collection.CaveList = caves;
  Chance decoration;
  return *BuildCollection(collection, decoration);
}

// A won record of "Hrabání", which is cave 2 of the collection "School" under the name "Digging".
class Carry : public ::testing::Test {
 protected:
  Told To(const std::string& number) const {
    return Zktool({"carry", folder.In("own.zkr"), folder.In("school.zk"), number, folder.In("out.zkr")});
  }

  Folder folder;
  std::string own = folder.Write("own.zkr", ShortRecord());
  std::string school = folder.Write(
      "school.zk",
      CollectionOf("School", {CaveNamed("Falling", 50), CaveNamed("Digging"), CaveNamed("Digging BONUS")}));
};

TEST_F(Carry, MakesTheSameRunARecordOfTheOtherCollection) {
  const Told told = To("2");
  EXPECT_EQ(told.exit, Exit::Fine) << told.err;
  const Told verdict = Zktool({"verify", "--collection", school, folder.In("out.zkr")});
  EXPECT_EQ(verdict.exit, Exit::No);  // for it is not called as the game would call it
  EXPECT_NE(verdict.out.find("won score=106 stored=106 ticks=4"), std::string::npos) << verdict.out;
  EXPECT_NE(verdict.out.find("collection=\"School\" cave=\"Digging\""), std::string::npos) << verdict.out;
  EXPECT_NE(verdict.out.find("counts=misnamed number=2"), std::string::npos) << verdict.out;
}

TEST_F(Carry, NamesThePlayerThatItIsTold) {
  const auto carry = [this](const std::string& player) {
    return Zktool({"carry", "--player", player, folder.In("own.zkr"), school, "2", folder.In("out.zkr")});
  };
  EXPECT_EQ(carry("Zor\xC3\xADk").exit, Exit::Fine);
  const Told verdict = Zktool({"verify", folder.In("out.zkr")});
  EXPECT_NE(verdict.out.find("player=\"Zor\xC3\xADk\""), std::string::npos) << verdict.out;
  for (const char* none : {"", "\xE2\x98\x83", "a\tb"}) EXPECT_EQ(carry(none).exit, Exit::Usage) << none;
}

TEST_F(Carry, RefusesAnotherCave) {
  EXPECT_EQ(To("1").exit, Exit::BadCave);
  EXPECT_EQ(To("3").exit, Exit::BadCave);
  EXPECT_FALSE(std::filesystem::exists(folder.In("out.zkr")));
}

TEST_F(Carry, RefusesANumberThatTheCollectionLacks) {
  EXPECT_EQ(To("0").exit, Exit::NoSuchCave);
  EXPECT_EQ(To("4").exit, Exit::NoSuchCave);
  EXPECT_EQ(To("two").exit, Exit::Usage);
}

TEST_F(Carry, RefusesARunThatDoesNotWin) {
  const std::string record = ShortRecord();
  folder.Write("own.zkr", record.substr(0, record.rfind("\r\n") + 2));
  EXPECT_EQ(To("2").exit, Exit::No);
  EXPECT_FALSE(std::filesystem::exists(folder.In("out.zkr")));
}

TEST_F(Carry, TellsOfFilesThatCannotBeRead) {
  std::filesystem::remove(own);
  EXPECT_EQ(To("2").exit, Exit::CannotRead);
  folder.Write("own.zkr", "rubbish");
  EXPECT_EQ(To("2").exit, Exit::BadCave);
  folder.Write("school.zk", "rubbish");
  EXPECT_EQ(To("2").exit, Exit::BadCollection);
}

}  // namespace
}  // namespace zorik::test
