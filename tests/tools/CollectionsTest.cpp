#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "data/Collection.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "support/Scene.h"
#include "tools/Tool.h"

namespace zorik::test {
namespace {

std::string CaveNamed(const std::string& name) {
  return CaveTextOf({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1, .before = 7, .name = name});
}

// A collection of three caves; the second is a bonus cave.
std::string Sample() {
  EditedCollection collection;
  collection.Name = "sada";
  collection.Author = "n\xECkdo";
  collection.Description = "two\r\nlines";
  collection.Mail = "a@b";
  collection.CaveList = {CaveNamed("Prvn\xED"), CaveNamed("BONUS\t2"), CaveNamed("Last")};
  collection.CongratulationText = "well done";
  Chance decoration;
  return *BuildCollection(collection, decoration);
}

class Collections : public ::testing::Test {
 protected:
  Folder folder;
  std::string sample = folder.Write("sample.zk", Sample());
};

TEST_F(Collections, UnpackedAndPackedAgainHaveTheSamePlainLines) {
  EXPECT_EQ(Zktool({"unpack", sample, folder.In("texts")}).exit, Exit::Fine);
  EXPECT_EQ(Zktool({"pack", folder.In("texts"), folder.In("again.zk")}).exit, Exit::Fine);
  EXPECT_EQ(PlainLines(BytesOf(folder.In("again.zk"))), PlainLines(Sample()));
  EXPECT_EQ(PlainLines(Sample()).size(), 7U);
}

TEST_F(Collections, OfAnyBytesComeBackFromTheirTexts) {
  for (const std::string& bytes : {std::string(), std::string("rubbish"), std::string(300, '\xFF'),
                                   std::string("\r\n\n\0\n", 5), Sample().substr(0, 400)}) {
    const std::string odd = folder.Write("odd.zk", bytes);
    EXPECT_EQ(Zktool({"unpack", "--force", odd, folder.In("odd")}).exit, Exit::Fine);
    EXPECT_EQ(Zktool({"pack", folder.In("odd"), folder.In("odd-again.zk")}).exit, Exit::Fine);
    EXPECT_EQ(PlainLines(BytesOf(folder.In("odd-again.zk"))), PlainLines(bytes));
  }
}

// Odd characters anywhere: in names, numbers, cells and markers.
TEST_F(Collections, WithAnyDamageInTheirLinesComeBackFromTheirTexts) {
  std::mt19937 random(1);
  const std::vector<std::string> whole = PlainLines(Sample());
  for (int round = 0; round < 60; ++round) {
    std::vector<std::string> lines = whole;
    for (unsigned hits = random() % 4; hits < 4; ++hits) {
      std::string& line = lines[random() % lines.size()];
      if (line.empty()) continue;
      char& character = line[random() % line.size()];
      do {
        character = static_cast<char>(random() % 256);
      } while (character == '\n' || character == '\r');
    }
    Chance decoration;
    const std::string odd = folder.Write("odd.zk", ScrambleLines(lines, decoration));
    ASSERT_EQ(Zktool({"unpack", "--force", odd, folder.In("odd")}).exit, Exit::Fine);
    const Told told = Zktool({"pack", folder.In("odd"), folder.In("again.zk")});
    ASSERT_EQ(told.exit, Exit::Fine) << told.err;
    ASSERT_EQ(PlainLines(BytesOf(folder.In("again.zk"))), lines);
  }
}

TEST_F(Collections, UnpackLeavesNothingButTheTexts) {
  Zktool({"unpack", sample, folder.In("a/b")});
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder.In("a/b"))) {
    names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"cave-01.txt", "cave-02.txt", "cave-03.txt", "collection.txt"}));
}

TEST_F(Collections, PackedTwiceAreTheSameBytes) {
  Zktool({"unpack", sample, folder.In("texts")});
  Zktool({"pack", folder.In("texts"), folder.In("1.zk")});
  Zktool({"pack", folder.In("texts"), folder.In("2.zk")});
  EXPECT_EQ(BytesOf(folder.In("1.zk")), BytesOf(folder.In("2.zk")));
}

TEST_F(Collections, WithAMistakeInTheirTextsAreNotPackedAndNothingIsWrittenOver) {
  Zktool({"unpack", sample, folder.In("texts")});
  const std::string target = folder.Write("target.zk", "old");
  folder.Write("texts/cave-02.txt", "no cave");
  const Told told = Zktool({"pack", folder.In("texts"), target});
  EXPECT_EQ(told.exit, Exit::BadText);
  EXPECT_NE(told.err.find("cave-02.txt"), std::string::npos);
  EXPECT_EQ(BytesOf(target), "old");
  std::filesystem::remove(folder.In("texts/cave-02.txt"));
  EXPECT_EQ(Zktool({"pack", folder.In("texts"), target}).exit, Exit::CannotRead);
  EXPECT_EQ(Zktool({"pack", folder.In("none"), target}).exit, Exit::CannotRead);
  EXPECT_EQ(BytesOf(target), "old");
}

TEST_F(Collections, AreNotReadFromOutsideTheirFolder) {
  Zktool({"unpack", sample, folder.In("texts")});
  std::string text = BytesOf(folder.In("texts/collection.txt"));
  std::filesystem::copy(folder.In("texts/cave-01.txt"), folder.In("outside.txt"));
  text.replace(text.find("cave-01.txt"), 11, "../outside.txt");
  folder.Write("texts/collection.txt", text);
  EXPECT_EQ(Zktool({"pack", folder.In("texts"), folder.In("x.zk")}).exit, Exit::BadText);
}

TEST_F(Collections, ThatCannotBeUnpackedSaySo) {
  EXPECT_EQ(Zktool({"unpack", folder.In("none.zk"), folder.In("texts")}).exit, Exit::CannotRead);
  const Told told = Zktool({"unpack", sample, sample});
  EXPECT_EQ(told.exit, Exit::CannotWrite);
  EXPECT_NE(told.err.find("sample.zk"), std::string::npos);
  EXPECT_EQ(BytesOf(sample), Sample());
}

TEST_F(Collections, GiveTheCaveOfANumberWithItsMarker) {
  const Told told = Zktool({"fetch", sample, "3"});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.out, CaveNamed("Last") + "---03");
  EXPECT_EQ(Zktool({"fetch", sample, "1"}).out, CaveNamed("Prvn\xED") + "---01");
}

TEST_F(Collections, TellOfACaveThatTheyDoNotHave) {
  const Told told = Zktool({"fetch", sample, "4"});
  EXPECT_EQ(told.exit, Exit::NoSuchCave);
  EXPECT_EQ(told.err, "zktool: no-such-cave: " + sample + " has no cave with the number 4\n");
  EXPECT_EQ(told.out, "");
  EXPECT_EQ(Zktool({"fetch", sample, "100"}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"fetch", sample, "one"}).exit, Exit::Usage);
  EXPECT_EQ(Zktool({"fetch", folder.In("none"), "1"}).exit, Exit::CannotRead);
}

TEST(NewCave, IsSmallOrLarge) {
  const Told small = Zktool({"new", "small"});
  EXPECT_EQ(small.exit, Exit::Fine);
  EXPECT_EQ(ParseCaveText(small.out)->Width, 19);
  EXPECT_EQ(ParseCaveText(Zktool({"new", "large"}).out)->Height, 20);
  EXPECT_EQ(Zktool({"new", "huge"}).exit, Exit::Usage);
}

class ProgressOf : public Collections {
 protected:
  void Win(const std::string& player, const std::string& cave, const std::string& winner, int score) {
    Chance decoration;
    RecordLines lines(RecordOf({"1"}, {}));
    folder.Write(player + "/sada - " + cave + ".zkr",
                 BuildRecordHead("sada", score, winner, decoration) +
                     ScrambleLines({CaveNamed("Prvn\xED") + "---07"}, decoration));
  }
};

TEST_F(ProgressOf, ANewPlayerHasTheFirstCaveOpen) {
  std::filesystem::create_directory(folder.In("Nov\xC3\xA1k"));
  const Told told = Zktool({"progress", sample, folder.In("Nov\xC3\xA1k")});
  EXPECT_EQ(told.exit, Exit::Fine);
  EXPECT_EQ(told.out, "1\t1\t0\tPrvn\xC3\xAD\n2\t0\t0\tBONUS 2\n3\t0\t0\tLast\ntotal=0 done=0 rest=3\n");
}

// The bonus cave behind the solved one is open and counts as done; the cave behind it is open too.
TEST_F(ProgressOf, AWinnerHasTheCaveSolvedAndTheNextOnesOpen) {
  Win("\xC5\x98\x65ho\xC5\x99", "Prvn\xC3\xAD", "\xD8\x65ho\xF8", 106);
  const std::string expected =
      "1\t2\t106\tPrvn\xC3\xAD\n2\t1\t0\tBONUS 2\n3\t1\t0\tLast\ntotal=106 done=2 rest=1\n";
  EXPECT_EQ(Zktool({"progress", sample, folder.In("\xC5\x98\x65ho\xC5\x99")}).out, expected);
  EXPECT_EQ(Zktool({"progress", sample, folder.In("\xC5\x98\x65ho\xC5\x99/")}).out, expected);
  EXPECT_EQ(Zktool({"progress", sample, folder.In("\xC5\x98\x65ho\xC5\x99/.")}).out, expected);
}

TEST_F(ProgressOf, TheRecordOfSomebodyElseIsStateThree) {
  Win("Me", "Prvn\xC3\xAD", "Other", 50);
  const Told told = Zktool({"progress", sample, folder.In("Me")});
  EXPECT_EQ(LinesOf(told.out)[0], "1\t3\t50\tPrvn\xC3\xAD");
  EXPECT_EQ(LinesOf(told.out)[3], "total=50 done=1 rest=2");
}

TEST_F(ProgressOf, TellsOfAFolderOrCollectionThatIsNone) {
  EXPECT_EQ(Zktool({"progress", sample, folder.In("nobody")}).exit, Exit::CannotRead);
  EXPECT_EQ(Zktool({"progress", folder.In("none.zk"), folder.path()}).exit, Exit::CannotRead);
  const std::string odd = folder.Write("odd.zk", "");
  const Told told = Zktool({"progress", odd, folder.path()});
  EXPECT_EQ(told.exit, Exit::BadCollection);
  EXPECT_NE(told.err.find(odd), std::string::npos);
}

}  // namespace
}  // namespace zorik::test
