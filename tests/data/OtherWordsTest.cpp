#include <gtest/gtest.h>

#include <string>

#include "data/Collection.h"
#include "data/OtherWords.h"
#include "data/Result.h"

namespace zorik::test {
namespace {

const std::string kCave =
    "time: 60\ngems: 1\npoints-before: 10\npoints-after: 15\nmagic-wall-time: 20\namoeba-time: 30\n"
    "colouring: 4\nslime: 4\ncells:\n| W1DT\ncat:\n| *A -E\n";

const TextFiles kFiles = {
    {"collection.txt",
     "# by hand\nname: Škola\nopen: 1 2\nauthor: Zorík\ndescription:\n| Jak se\n| hrabe.\nmail:\nflag: 0\n"
     "cave: a.txt\ncave: b.txt\ncongratulation: Výborně, $P!\n"},
    {"a.txt", "name: Hrabání\ndescription: Hrabej.\n" + kCave},
    {"b.txt", "name: Balvan\n" + kCave}};

const std::string kHead = "name: School\ndescription:\n| How to\n| dig.\ncongratulation: Well dug, $P!\n";
const std::string kTable =
    kHead + "cave: a.txt\ncave-name: Digging\ncave-description: Dig.\ncave: b.txt\ncave-name: Boulder\n";

PlayedCollection Packed(const TextFiles& files) {
  Chance decoration;
  const Result<std::string> bytes = PackCollection(files, decoration);
  if (!bytes) {
    ADD_FAILURE() << bytes.Message();
    return {};
  }
  Result<PlayedCollection> collection = ReadForPlay(*bytes);
  return collection ? std::move(*collection) : PlayedCollection();
}

std::string FailureOf(const std::string& table) {
  const Result<TextFiles> files = InOtherWords(kFiles, "english.txt", table);
  return files ? "none" : files.Message();
}

TEST(OtherWords, TellTheCollectionAndEachOfItsCaves) {
  const Result<TextFiles> files = InOtherWords(kFiles, "english.txt", kTable);
  ASSERT_TRUE(files) << files.Message();
  const PlayedCollection collection = Packed(*files);
  EXPECT_EQ(collection.Name, "School");
  EXPECT_EQ(collection.Author, "Zor\xEDk");
  EXPECT_EQ(collection.Description, "How to\r\ndig.");
  EXPECT_EQ(collection.Congratulation, "Well dug, $P!");
  ASSERT_EQ(collection.Caves.size(), 2U);
  EXPECT_EQ(collection.Caves[0].Record.Name, "Digging");
  EXPECT_EQ(collection.Caves[0].Record.Description, "Dig.");
  EXPECT_EQ(collection.Caves[1].Record.Name, "Boulder");
  EXPECT_EQ(collection.Caves[1].Record.Description, "");
}

TEST(OtherWords, LeaveEverythingElseAsItIs) {
  const Result<TextFiles> files = InOtherWords(kFiles, "english.txt", kTable);
  ASSERT_TRUE(files) << files.Message();
  const PlayedCollection told = Packed(*files);
  const PlayedCollection first = Packed(kFiles);
  EXPECT_EQ(told.OpenCaves, first.OpenCaves);
  ASSERT_EQ(told.Caves.size(), first.Caves.size());
  for (std::size_t i = 0; i < told.Caves.size(); ++i) {
    CaveRecord cave = told.Caves[i].Record;
    cave.Name = first.Caves[i].Record.Name;
    cave.Description = first.Caves[i].Record.Description;
    EXPECT_EQ(cave, first.Caves[i].Record);
    EXPECT_EQ(cave.Script, "*A-E");
  }
}

TEST(OtherWords, MayNameAnotherAuthor) {
  const Result<TextFiles> files = InOtherWords(kFiles, "english.txt", "author: Rex\n" + kTable);
  ASSERT_TRUE(files) << files.Message();
  EXPECT_EQ(Packed(*files).Author, "Rex");
}

TEST(OtherWords, AreMissedWhereTheCollectionHasAText) {
  EXPECT_EQ(FailureOf("description: D\ncongratulation: C\n" + kTable.substr(kHead.size())),
            "english.txt: there is no name for collection.txt");
  EXPECT_EQ(FailureOf(kHead + "cave: a.txt\ncave-name: A\ncave: b.txt\ncave-name: B\n"),
            "english.txt: there is no description for a.txt");
  EXPECT_EQ(FailureOf(kHead + "cave: a.txt\ncave-name: A\ncave-description: D\n"),
            "english.txt: there is no name for b.txt");
}

TEST(OtherWords, AreNotMissedForATextThatIsEmpty) {
  TextFiles files = kFiles;
  files.at("b.txt") = "name: Balvan\ndescription:\n" + kCave;
  const Result<TextFiles> told = InOtherWords(files, "english.txt", kTable);
  ASSERT_TRUE(told) << told.Message();
  EXPECT_EQ(Packed(*told).Caves.at(1).Record.Description, "");
}

TEST(OtherWords, AreRefusedWhereTheCollectionHasNone) {
  EXPECT_EQ(FailureOf(kTable + "cave-description: Beware.\n"),
            "english.txt: there is a description, but none in b.txt");
  EXPECT_EQ(FailureOf(kTable + "cave: c.txt\ncave-name: C\n"),
            "english.txt: the collection has no cave \"c.txt\"");
  EXPECT_EQ(FailureOf(kTable + "cave: collection.txt\n"),
            "english.txt: the collection has no cave \"collection.txt\"");
}

TEST(OtherWords, ThatCannotBeUnderstoodAreToldWithTheirLine) {
  EXPECT_EQ(FailureOf("name: School\ncave-name: A\n"), "english.txt, line 2: it stands behind no cave");
  EXPECT_EQ(FailureOf("cave: a.txt\ncave-name: A\ncave-name: B\n"),
            "english.txt, line 3: this cave has two of them");
  EXPECT_EQ(FailureOf("cave: a.txt\ncave: a.txt\n"),
            "english.txt, line 2: this cave stands here for the second time");
  EXPECT_NE(FailureOf("title: School\n").find("english.txt, line 1: "), std::string::npos);
  EXPECT_NE(FailureOf("no entry\n").find("english.txt, line 1: "), std::string::npos);
}

}  // namespace
}  // namespace zorik::test
