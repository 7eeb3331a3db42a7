#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "core/Objects.h"
#include "data/Collection.h"
#include "data/Result.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

using Texts = std::map<std::string, std::string>;

const std::string kMain =
    "name: Sada\n"
    "open: 1\n"
    "author: Autor\n"
    "mail:\n"
    "cave: a.txt\n"
    "congratulation: Well dug!\n";

// A cave with these rows in which everything else is as it should be; its rows begin in line 10.
std::string CaveOf(const std::string& rows, const std::string& gems = "1") {
  return "name: A\ntime: 60\ngems: " + gems +
         "\npoints-before: 10\npoints-after: 15\nmagic-wall-time: 20\namoeba-time: 30\ncolouring: 4\n"
         "slime: 4\ncells:\n" +
         rows;
}

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  return text.replace(text.find(what), what.size(), by);
}

const std::string kRows = "| W1D\n| ;;T\n";

// What pack says of a collection with one cave; the folder is called "f" in it.
struct Packed {
  Exit exit;
  std::string err;
  bool written;
};
Packed Pack(const std::string& cave, const std::string& main = kMain, bool strict = false) {
  const Folder folder;
  folder.Write("f/collection.txt", main);
  folder.Write("f/a.txt", cave);
  std::vector<std::string> arguments{"pack", folder.In("f"), folder.In("out.zk")};
  if (strict) arguments.emplace_back("--strict");
  Told told = Zktool(arguments);
  EXPECT_EQ(told.out, "");
  for (auto at = told.err.find(folder.In("f")); at != std::string::npos; at = told.err.find(folder.In("f")))
    told.err.replace(at, folder.In("f").size(), "f");
  return {told.exit, told.err, std::filesystem::exists(folder.In("out.zk"))};
}

// The warnings about a cave without the part that all have in common.
std::vector<std::string> WarningsOf(const std::string& cave, const std::string& main = kMain) {
  const Packed packed = Pack(cave, main);
  EXPECT_EQ(packed.exit, Exit::Fine);
  EXPECT_TRUE(packed.written);
  std::vector<std::string> warnings = LinesOf(packed.err);
  const std::string start = "zktool: warning: f: ";
  for (std::string& warning : warnings) {
    EXPECT_EQ(warning.substr(0, start.size()), start);
    warning.erase(0, start.size());
  }
  return warnings;
}

using Warnings = std::vector<std::string>;

TEST(PackCommand, SaysNothingOfACaveThatIsAsItShouldBe) {
  EXPECT_EQ(WarningsOf(CaveOf(kRows)), Warnings{});
  EXPECT_EQ(Pack(CaveOf(kRows), kMain, true).exit, Exit::Fine);
}

TEST(PackCommand, WarnsOfALetterThatMeansNoObjectOnceAndWhereItStandsFirst) {
  EXPECT_EQ(WarningsOf(CaveOf("| W1D\n| x;x\n| ?;T\n")),
            (Warnings{"a.txt, line 12: the letter \"x\" means no object, it stands there 2 times",
                      "a.txt, line 13: the letter \"?\" means no object"}));
  EXPECT_EQ(WarningsOf(CaveOf("| W1D\n| \\x07\\\\T\n")),
            (Warnings{"a.txt, line 12: the letter \"\\x07\" means no object",
                      "a.txt, line 12: the letter \"\\\\\" means no object"}));
}

TEST(PackCommand, KnowsEveryLetterOfTheReadMe) {
  const std::string letters = ".;RD1XMEVT$ASFOPQUYZBL:GIK!@#%^&CNJW";
  EXPECT_EQ(WarningsOf(CaveOf("| " + std::string(letters.size(), ';') + "\n| " + letters + "\n")),
            Warnings{});
}

TEST(PackCommand, WarnsOfNumbersThatTheGameCannotUse) {
  const std::string cave = CaveOf(kRows);
  EXPECT_EQ(WarningsOf(Replaced(cave, "slime: 4", "slime: 9")),
            Warnings{"a.txt, line 9: slime is 9, it should be from 0 to 8"});
  EXPECT_EQ(WarningsOf(Replaced(cave, "slime: 4", "slime: 8")), Warnings{});
  EXPECT_EQ(WarningsOf(Replaced(cave, "time: 60", "time: 2")),
            Warnings{"a.txt, line 2: time is 2, it should be from 5 to 1909"});
  EXPECT_EQ(WarningsOf(Replaced(cave, "time: 60", "time: 5")), Warnings{});
  EXPECT_EQ(WarningsOf(Replaced(cave, "colouring: 4", "colouring: 15")),
            Warnings{"a.txt, line 8: colouring is 15, it should be from 0 to 14"});
}

TEST(PackCommand, WarnsOfTheTimesOfMagicWallAndAmoebaOnlyWhereTheyStand) {
  const std::string plain = Replaced(CaveOf(kRows), "magic-wall-time: 20", "magic-wall-time: 0");
  EXPECT_EQ(WarningsOf(plain), Warnings{});
  EXPECT_EQ(WarningsOf(Replaced(plain, ";;T", ";MT")),
            Warnings{"a.txt, line 6: magic-wall-time is 0, it should be from 1 to 150"});
  const std::string slow = Replaced(CaveOf(kRows), "amoeba-time: 30", "amoeba-time: 151");
  EXPECT_EQ(WarningsOf(slow), Warnings{});
  EXPECT_EQ(WarningsOf(Replaced(slow, ";;T", ";AT")),
            Warnings{"a.txt, line 7: amoeba-time is 151, it should be from 1 to 150"});
}

TEST(PackCommand, WarnsOfACaveThatIsTooLargeOrHasNoCells) {
  const auto wide = [](std::size_t width) { return CaveOf("| 1DT" + std::string(width - 3, ';') + "\n"); };
  EXPECT_EQ(WarningsOf(wide(100)), Warnings{});
  EXPECT_EQ(WarningsOf(wide(101)), Warnings{"a.txt, line 10: a cave of 101 x 1 cells cannot be played, the "
                                            "largest has 100 x 60"});
  std::string high = "| 1DT\n";
  for (int row = 1; row < 60; ++row) high += "| ;;;\n";
  EXPECT_EQ(WarningsOf(CaveOf(high)), Warnings{});
  EXPECT_EQ(WarningsOf(CaveOf(high + "| ;;;\n")).size(), 1U);
  EXPECT_EQ(WarningsOf(CaveOf("", "0")),
            (Warnings{"a.txt, line 10: a cave of 0 x 0 cells cannot be played, the largest has 100 x 60",
                      "a.txt, line 10: there is no dog", "a.txt, line 10: there is no finish"}));
}

TEST(PackCommand, WarnsOfDogsThatAreMissingOrStandThereTwice) {
  EXPECT_EQ(WarningsOf(CaveOf("| WND\n| ;;T\n")), Warnings{"a.txt, line 10: there is no dog"});
  EXPECT_EQ(WarningsOf(CaveOf("| W3D\n| ;1T\n")),
            Warnings{"a.txt, line 10: dog 2 is missing, the highest is dog 3"});
  EXPECT_EQ(WarningsOf(CaveOf("| W1D\n| ;HT\n")), Warnings{"a.txt, line 10: dog 1 stands there 2 times"});
  EXPECT_EQ(WarningsOf(CaveOf("| WHD\n| ;2T\n")), Warnings{});
}

TEST(PackCommand, WarnsOfACaveWithoutAFinish) {
  EXPECT_EQ(WarningsOf(CaveOf("| W1D\n")), Warnings{"a.txt, line 10: there is no finish"});
}

TEST(PackCommand, WarnsOfTooFewGemsWhereNothingMakesMore) {
  const Warnings tooFew{
      "a.txt, line 3: the finish opens at 2 gems, but the cave has 1 and nothing that makes more"};
  const auto warnings = [](const std::string& rest) {
    return WarningsOf(CaveOf("| 1TD" + rest + "\n", "2"));
  };
  // A boulder alone makes none, nor does a firefly, a wall that grows, or a box between two steels; a magic
  // wall with nothing but a gem makes a boulder of it, and nothing can fall on a splitter in the first row.
  for (const char* rest : {"", "R", "F", "L", "E.W", "WKW", "WVW", "K!$C", "M", "WEW"})
    EXPECT_EQ(warnings(rest), tooFew) << rest;
  // Butterflies leave gems, an amoeba chokes to gems, what falls into a magic wall may be a gem below it, and
  // a splitter makes two of one; the steel around the cave can be a part of it.
  for (const char* rest : {"U", "Y", "Z", "B", "A", "RM", "!M", "ML", ";;;\n| ;;;WEW", ";;\n| ;;;WE"})
    EXPECT_EQ(warnings(rest), Warnings{}) << rest;
  EXPECT_EQ(warnings("D"), Warnings{});
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.state == kResting) {
      EXPECT_EQ(warnings(std::string(1, object.letter) + "M"), Warnings{}) << object.letter;
    }
  }
}

TEST(PackCommand, WarnsOfTooFewGemsWhereMagicWallOrSplitterHaveNothingToWorkOn) {
  EXPECT_EQ(WarningsOf(CaveOf("| 1TM;F\n", "1")).size(), 1U);
  EXPECT_EQ(WarningsOf(CaveOf("| 1TWEW\n", "1")).size(), 1U);
}

TEST(PackCommand, WarnsOfOpenCavesThatAreNotThere) {
  EXPECT_EQ(WarningsOf(CaveOf(kRows), Replaced(kMain, "open: 1", "open: 1 2")),
            Warnings{"collection.txt, line 2: there is no cave 2 that could be open, there are 1"});
  EXPECT_EQ(WarningsOf(CaveOf(kRows), Replaced(kMain, "cave: a.txt\n", "")),
            (Warnings{"collection.txt: there is no cave",
                      "collection.txt, line 2: there is no cave 1 that could be open, there are 0"}));
}

TEST(PackCommand, WarnsOfALineThatTheGameTakesForACaveAndCannotRead) {
  const Warnings warnings = WarningsOf(
      CaveOf(kRows), Replaced(kMain, "congratulation", "line: no ---!!\nline: no --!!\ncongratulation"));
  ASSERT_EQ(warnings.size(), 1U);
  EXPECT_EQ(
      warnings[0].rfind("collection.txt, line 6: the game cannot open the collection with this cave: ", 0),
      0U);
}

TEST(PackCommand, TellsOfACaveThatIsListedTwiceOnceAndThatItIs) {
  EXPECT_EQ(
      WarningsOf(CaveOf("| W1D\n"), Replaced(kMain, "cave: a.txt\n", "cave: a.txt\ncave: a.txt\n")),
      (Warnings{"a.txt, line 10: there is no finish",
                "a.txt, line 1: its record has the file name of cave 1, so one win replaces the other"}));
}

TEST(PackCommand, WritesNothingThatLooksWrongIfItIsToBeStrict) {
  const Packed packed = Pack(Replaced(CaveOf("| W1D\n"), "slime: 4", "slime: 9"), kMain, true);
  EXPECT_EQ(packed.exit, Exit::BadText);
  EXPECT_EQ(packed.err,
            "zktool: bad-text: f: a.txt, line 9: slime is 9, it should be from 0 to 8\n"
            "zktool: bad-text: f: a.txt, line 10: there is no finish\n");
  EXPECT_FALSE(packed.written);
}

// Whatever the warnings are, the plain lines are those of the foreign collection.
TEST(PackCommand, PassesForeignCavesThroughWhole) {
  const Folder folder;
  Chance decoration;
  std::string cave = "J";                                    // slime 9
  cave += "BA";                                              // the name "A"
  cave += std::string("C\r\n", 3);                           // a description of a line break
  cave += {'C', 'B', 'A', static_cast<char>(65 + 29), 'A'};  // 2 x 1, time 2, 9 gems
  cave += "AAAAP";                                           // colouring 15
  cave += std::string("\0\xFF", 2);                          // cells that mean nothing
  cave += "*A -odd";                                         // a program that is none
  const std::vector<std::string> lines{"BX\x41\x7F", "A", "0", cave + "---xx", "no---01", "x", "bye---!!"};
  const std::string foreign = folder.Write("foreign.zk", ScrambleLines(lines, decoration));
  ASSERT_EQ(Zktool({"unpack", foreign, folder.In("f")}).exit, Exit::Fine);
  const Told told = Zktool({"pack", folder.In("f"), folder.In("again.zk")});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_NE(told.err, "");
  EXPECT_EQ(PlainLines(BytesOf(folder.In("again.zk"))), lines);
}

TEST(UnpackCommand, RefusesAFolderThatIsNotEmptyUnlessItIsForced) {
  const Folder folder;
  folder.Write("mine/collection.txt", kMain);
  folder.Write("mine/a.txt", CaveOf(kRows));
  ASSERT_EQ(Zktool({"pack", folder.In("mine"), folder.In("s.zk")}).exit, Exit::Fine);
  const Told told = Zktool({"unpack", folder.In("s.zk"), folder.In("mine")});
  EXPECT_EQ(told.exit, Exit::CannotWrite);
  EXPECT_EQ(told.err, "zktool: cannot-write: " + folder.In("mine") +
                          " is not empty; name another folder, or give --force\n");
  EXPECT_EQ(BytesOf(folder.In("mine/collection.txt")), kMain);
  EXPECT_FALSE(std::filesystem::exists(folder.In("mine/cave-01.txt")));

  EXPECT_EQ(Zktool({"unpack", "--force", folder.In("s.zk"), folder.In("mine")}).exit, Exit::Fine);
  EXPECT_NE(BytesOf(folder.In("mine/collection.txt")).find("cave: cave-01.txt"), std::string::npos);
  EXPECT_EQ(BytesOf(folder.In("mine/a.txt")), CaveOf(kRows));
}

TEST(UnpackCommand, TakesAnEmptyFolder) {
  const Folder folder;
  folder.Write("s.zk", "");
  std::filesystem::create_directory(folder.In("new"));
  EXPECT_EQ(Zktool({"unpack", folder.In("s.zk"), folder.In("new")}).exit, Exit::Fine);
}

TEST(PackCommand, TellsACollectionInTheWordsOfATable) {
  const Folder folder;
  folder.Write("f/collection.txt", kMain);
  folder.Write("f/a.txt", CaveOf(kRows));
  const std::string table =
      folder.Write("words.txt", "name: Set\ncongratulation: Well done!\ncave: a.txt\ncave-name: The first\n");
  const std::string out = folder.In("out.zk");
  const Told told = Zktool({"pack", "--strict", "--words", table, folder.In("f"), out});
  EXPECT_EQ(told.exit, Exit::Fine) << told.err;
  const auto collection = ReadForPlay(BytesOf(out));
  ASSERT_TRUE(collection);
  EXPECT_EQ(collection->Name, "Set");
  EXPECT_EQ(collection->Caves.at(0).Record.Name, "The first");

  EXPECT_EQ(Zktool({"pack", "--words", folder.In("none.txt"), folder.In("f"), out}).exit, Exit::CannotRead);
  folder.Write("words.txt", "name: Set\n");
  const Told half = Zktool({"pack", "--words", table, folder.In("f"), out});
  EXPECT_EQ(half.exit, Exit::BadText);
  EXPECT_EQ(half.err, "zktool: bad-text: " + table + ": there is no name for a.txt\n");
}

}  // namespace
}  // namespace zorik::test
