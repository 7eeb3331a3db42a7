#include <gtest/gtest.h>

#include <filesystem>

#include "data/Collection.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "support/Scene.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

std::string CaveNamed(const std::string& name) {
  return CaveTextOf({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1, .before = 7, .name = name});
}

// The winning record of a cave, with these names in its head.
std::string RecordFor(const std::string& cave, const std::string& collection, const std::string& player) {
  Chance decoration;
  return BuildRecordHead(collection, kShortScore, player, decoration) + ScrambleText(cave, decoration) +
         "\r\n" + MovesOf(ShortRecord());
}

// A folder of a player, and a collection of two caves: "Prvn\xED" and "Druh\xE1: dva?".
class Standings : public ::testing::Test {
 protected:
  Standings() {
    EditedCollection collection;
    collection.Name = "Moje sada";
    collection.CaveList = {CaveNamed("Prvn\xED"), CaveNamed("Druh\xE1: dva?")};
    Chance decoration;
    folder.Write("moje.zk", *BuildCollection(collection, decoration));
  }

  Told Verify(const std::string& file) const {
    return Zktool({"verify", "--collection", folder.In("moje.zk"), folder.In(file)});
  }

  Folder folder;
  std::string second = RecordFor(CaveNamed("Druh\xE1: dva?") + "---02", "Moje sada", "Ji\xF8\xED");
};

constexpr const char* kWon = "won score=106 stored=106 ticks=4 ";
constexpr const char* kOthers = " score-differs=0 not-won=0 ran-dry=0 bad-cave=0 unreadable=0";

TEST_F(Standings, ARecordTellsItsCollectionCaveAndPlayer) {
  const std::string path = folder.Write("x.zkr", second);
  const Told told = Zktool({"verify", path});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.out, kWon +
                          std::string("collection=\"Moje sada\" cave=\"Druh\xC3\xA1: dva?\" "
                                      "player=\"Ji\xC5\x99\xC3\xAD\" ") +
                          path + "\ntotal=1 won=1" + kOthers + "\n");
}

TEST_F(Standings, NamesThatHoldQuotesAndLineBreaksStayOnTheirLine) {
  const std::string path = folder.Write("x.zkr", RecordFor(CaveNamed("a\nb"), "\"c\"", ""));
  EXPECT_EQ(LinesOf(Zktool({"verify", path}).out)[0],
            kWon + std::string(R"(collection="\u0022c\u0022" cave="a\u000ab" player="" )") + path);
}

TEST_F(Standings, ARecordUnderItsNameCountsWhoeverMadeIt) {
  const std::string path = folder.Write("Petr/moje SADA - Druh\xC3\xA1 dva.zkr", second);
  const Told told = Verify("Petr");
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.err, "");
  EXPECT_EQ(told.out, kWon +
                          std::string("counts=yes number=2 collection=\"Moje sada\" "
                                      "cave=\"Druh\xC3\xA1: dva?\" player=\"Ji\xC5\x99\xC3\xAD\" ") +
                          path + "\ntotal=1 won=1" + kOthers + " counting=1\n");
  // The game says the same of it: the cave is solved by somebody else.
  EXPECT_EQ(LinesOf(Zktool({"progress", folder.In("moje.zk"), folder.In("Petr")}).out)[1].substr(0, 7),
            "2\t3\t106");
}

TEST_F(Standings, ARecordUnderAnotherNameIsMisnamed) {
  const std::string path = folder.Write("Petr/dopis.zkr", second);
  const Told told = Verify("Petr");
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_NE(told.out.find("counts=misnamed number=2 "), std::string::npos);
  EXPECT_EQ(told.err,
            "zktool: no: " + path +
                ": cave 2; the game looks for its record as \"Moje sada - Druh\xC3\xA1 dva.zkr\"\n");
}

TEST_F(Standings, ARecordOfTheCaveAsItWasIsChanged) {
  const std::string old =
      CaveTextOf({"WWWWWW", "W1;D;T", "WWWWWW"}, {.time = 101, .needed = 1, .name = "Prvn\xED"});
  const std::string path =
      folder.Write("Petr/Moje sada - Prvn\xC3\xAD.zkr", RecordFor(old, "Moje sada", "Petr"));
  const Told told = Verify("Petr");
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_NE(told.out.find("counts=changed number=1 "), std::string::npos);
  EXPECT_NE(told.err.find("zktool: no: " + path + ": cave 1 has the same name, but it is another cave\n"),
            std::string::npos);
}

TEST_F(Standings, ARecordOfAnotherCaveOrOfNoneDoesNotCount) {
  folder.Write("1.zkr", RecordFor(CaveNamed("jin\xE1"), "Moje sada", "Petr"));
  folder.Write("2.zkr", "rubbish");
  for (const char* file : {"1.zkr", "2.zkr", "none.zkr"}) {
    const Told told = Verify(file);
    EXPECT_EQ(told.exit, Exit::No);
    EXPECT_NE(told.out.find(" counts=no number=0 "), std::string::npos) << told.out;
    EXPECT_NE(told.err.find("zktool: no: " + folder.In(file) + ": the collection has no such cave\n"),
              std::string::npos);
  }
}

TEST_F(Standings, AreTheSameInJson) {
  folder.Write("Petr/Moje sada - Druh\xC3\xA1 dva.zkr", second);
  const Told told = Zktool({"verify", "--json", "--collection", folder.In("moje.zk"), folder.In("Petr")});
  EXPECT_NE(told.out.find("\"ticks\": 4, \"counts\": \"yes\", \"number\": 2, \"collection\": \"Moje sada\", "
                          "\"cave\": \"Druh\xC3\xA1: dva?\", \"player\": \"Ji\xC5\x99\xC3\xAD\", "),
            std::string::npos);
  EXPECT_NE(told.out.find("\"unreadable\": 0, \"counting\": 1}}"), std::string::npos);
}

TEST_F(Standings, NeedACollection) {
  folder.Write("x.zkr", second);
  EXPECT_EQ(Zktool({"verify", "--collection", folder.In("none.zk"), folder.In("x.zkr")}).exit,
            Exit::CannotRead);
  folder.Write("empty.zk", "");
  const Told told = Zktool({"verify", "--collection", folder.In("empty.zk"), folder.In("x.zkr")});
  EXPECT_EQ(told.exit, Exit::BadCollection);
  EXPECT_EQ(told.out, "");
}

}  // namespace
}  // namespace zorik::test
