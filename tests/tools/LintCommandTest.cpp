#include <gtest/gtest.h>

#include "data/Collection.h"
#include "data/Result.h"
#include "solve/Doubt.h"
#include "support/Scene.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

const std::string kMain =
    "name: Sada\nopen: 1\nauthor: Autor\nmail:\ncave: a.txt\ncave: b.txt\ncongratulation: Well dug!\n";

// A readable cave with these rows, which begin in line 11.
std::string Readable(const std::string& name, const std::string& rows) {
  return "name: " + name +
         "\ntime: 60\ngems: 1\npoints-before: 10\npoints-after: 15\nmagic-wall-time: 20\namoeba-time: 30\n"
         "colouring: 4\nslime: 4\ncells:\n" +
         rows;
}
const std::string kFine = Readable("Fine", "| W1;D\n| R;;T\n");
const std::string kShut = Readable("Shut", "| W1DW\n| R;;W\n| R;WT\n");

class LintCommand : public ::testing::Test {
 protected:
  std::string Collection(const std::string& a, const std::string& b, const std::string& main = kMain) {
    folder.Write("f/collection.txt", main);
    folder.Write("f/a.txt", a);
    folder.Write("f/b.txt", b);
    return folder.In("f");
  }

  Folder folder;
};

TEST_F(LintCommand, IsSilentOnAFolderThatIsAsItShouldBe) {
  const Told told = Zktool({"lint", Collection(kFine, Readable("Two", "| W1;D\n| R;;T\n"))});
  EXPECT_EQ(told.exit, Exit::Fine) << told.err;
  EXPECT_EQ(told.out, "caves=2 faults=0 hints=0\n");
}

TEST_F(LintCommand, TellsFileLineWordAndCellOfAFault) {
  const std::string path = Collection(kFine, kShut);
  const Told told = Zktool({"lint", path});
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_EQ(told.out, path +
                          ": b.txt, line 13: fault finish-shut at 3,2: no dog can ever come to the finish\n" +
                          "caves=2 faults=1 hints=0\n");
}

TEST_F(LintCommand, TellsTheSameOfThePackedCollectionByTheCavesNumber) {
  const std::string path = Collection(kFine, kShut);
  const std::string packed = folder.In("f.zk");
  ASSERT_EQ(Zktool({"pack", path, packed}).exit, Exit::Fine);
  const Told told = Zktool({"lint", packed});
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_EQ(told.out, packed + ", cave 2: fault finish-shut at 3,2: no dog can ever come to the finish\n" +
                          "caves=2 faults=1 hints=0\n");
}

TEST_F(LintCommand, TakesASingleCaveReadableOrPlain) {
  const std::string path = Collection(kFine, kShut);
  EXPECT_EQ(Zktool({"lint", path + "/a.txt"}).out, "caves=1 faults=0 hints=0\n");
  EXPECT_EQ(Zktool({"lint", path + "/b.txt"}).out.substr(0, path.size() + 30),
            path + "/b.txt, line 13: fault finish-");
  EXPECT_EQ(Zktool({"lint", folder.Write("cave", ShortCave())}).exit, Exit::Fine);
}

TEST_F(LintCommand, TakesHintsForClean) {
  const Told told =
      Zktool({"lint", Collection(kFine, Readable("Wide", "| R1;D" + std::string(80, ';') + "T\n"))});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_NE(told.out.find(": hint above-editor: "), std::string::npos) << told.out;
}

TEST_F(LintCommand, SpeaksJson) {
  const Told told = Zktool({"lint", "--json", Collection(kFine, kShut)});
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_NE(told.out.find("{\"fault\": true, \"word\": \"finish-shut\", \"file\": \""), std::string::npos);
  EXPECT_NE(
      told.out.find("\"place\": \"b.txt, line 13\", \"cave\": 2, \"name\": \"Shut\", \"x\": 3, \"y\": 2, "),
      std::string::npos)
      << told.out;
  EXPECT_NE(told.out.find("\"summary\": {\"caves\": 2, \"faults\": 1, \"hints\": 0}}"), std::string::npos);
}

TEST_F(LintCommand, FindsOpenCavesThatAreNotThereAndLinesThatAreNone) {
  std::string main = kMain;
  main.replace(main.find("open: 1"), 7, "open: 1 3");
  const std::string path = Collection(kFine, Readable("Two", "| W1;D\n| R;;T\n"), main);
  EXPECT_NE(Zktool({"lint", path}).out.find("collection.txt, line 2: fault open-cave: "), std::string::npos);
  ASSERT_EQ(Zktool({"pack", path, folder.In("f.zk")}).exit, Exit::Fine);
  EXPECT_NE(Zktool({"lint", folder.In("f.zk")}).out.find("line 1: fault open-cave: "), std::string::npos);
  std::vector<std::string> lines = PlainLines(BytesOf(folder.In("f.zk")));
  lines.insert(lines.begin() + 4, "this is no cave");
  Chance decoration;
  const std::string damaged = folder.Write("d.zk", ScrambleLines(lines, decoration));
  EXPECT_NE(Zktool({"lint", damaged}).out.find("line 5: fault line: a line among the caves is none"),
            std::string::npos);
}

TEST_F(LintCommand, FindsTwoCavesWithOneRecord) {
  const Told told = Zktool({"lint", Collection(kFine, kFine)});
  EXPECT_EQ(told.exit, Exit::No);
  EXPECT_NE(told.out.find(": b.txt, line 1: fault name-twice: "), std::string::npos) << told.out;
}

TEST_F(LintCommand, EndsOnBadInputWithAWordAPlaceAndACodeOfItsOwn) {
  EXPECT_EQ(Zktool({"lint", folder.In("none")}).exit, Exit::CannotRead);
  EXPECT_EQ(Zktool({"lint", folder.Write("cave", "rubbish")}).exit, Exit::BadCave);
  EXPECT_EQ(Zktool({"lint", folder.Write("cave", "")}).exit, Exit::BadCave);
  EXPECT_EQ(Zktool({"lint", folder.Write("x.zk", "rubbish")}).exit, Exit::BadCollection);
  const Told text = Zktool({"lint", Collection(kFine, "name: B\ncells:\n| W1\n")});
  EXPECT_EQ(text.exit, Exit::BadText);
  EXPECT_NE(text.err.find("b.txt"), std::string::npos);
}

TEST_F(LintCommand, TellsAllItsWordsInItsHelp) {
  const Told told = Zktool({"lint", "--help"});
  for (const DoubtRow& row : DoubtRows())
    EXPECT_NE(told.out.find("\n  " + std::string(row.word) + " "), std::string::npos) << row.word;
}

}  // namespace
}  // namespace zorik::test
