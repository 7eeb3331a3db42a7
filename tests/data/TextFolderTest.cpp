#include <gtest/gtest.h>

#include <filesystem>

#include "Samples.h"
#include "data/Files.h"
#include "data/TextFolder.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

class TextFolderTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return temp_.Path() + "/" + name; }
  void Write(const std::string& name, const std::string& content) const {
    ASSERT_TRUE(WriteWhole(Path(name), content));
  }

  test::TempFolder temp_{"texts"};
};

TEST_F(TextFolderTest, GivesBackWhatWasWritten) {
  const TextFiles files{{kCollectionFile, "name: A\ncave: one.txt\ncave: two.txt\n"},
                        {"one.txt", "name: 1\n"},
                        {"two.txt", "name: 2\n"}};
  ASSERT_TRUE(WriteTexts(files, Path("new/folder")));
  const auto read = ReadTexts(Path("new/folder"));
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, files);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Path("new/folder")), {}), 3);
}

TEST_F(TextFolderTest, WritesBesideWhatLiesThereAndOverItsOwnNames) {
  Write("mine.txt", "mine");
  Write("one.txt", "old");
  EXPECT_TRUE(HoldsSomething(temp_.Path()));
  ASSERT_TRUE(WriteTexts({{kCollectionFile, "name: A\n"}, {"one.txt", "new"}}, temp_.Path()));
  EXPECT_EQ(*ReadWhole(Path("mine.txt")), "mine");
  EXPECT_EQ(*ReadWhole(Path("one.txt")), "new");
}

TEST_F(TextFolderTest, ChangesNothingWhenOneOfThemCannotBeWritten) {
  Write("one.txt", "old");
  const auto written =
      WriteTexts({{"one.txt", "new"}, {std::string(300, 'x'), "no disk has this name"}}, temp_.Path());
  ASSERT_FALSE(written);
  EXPECT_EQ(written.Why().Trouble, FileTrouble::NameTooLong);
  EXPECT_EQ(*ReadWhole(Path("one.txt")), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(temp_.Path()), {}), 1);
}

TEST_F(TextFolderTest, LeavesNoEmptyFolderWhereItMadeOneInVain) {
  const TextFiles files{{std::string(300, 'x'), "no disk has this name"}};
  EXPECT_FALSE(WriteTexts(files, Path("new")));
  EXPECT_FALSE(std::filesystem::exists(Path("new")));
  std::filesystem::create_directory(Path("mine"));
  EXPECT_FALSE(WriteTexts(files, Path("mine")));
  EXPECT_TRUE(std::filesystem::exists(Path("mine")));
}

TEST_F(TextFolderTest, SaysWhyItCannotBeMade) {
  Write("file", "no folder");
  const auto written = WriteTexts({{"one.txt", "new"}}, Path("file/folder"));
  ASSERT_FALSE(written);
  EXPECT_EQ(written.Why().Trouble, FileTrouble::NoFolder);
}

TEST_F(TextFolderTest, HoldsNothingWhereThereIsNothing) {
  EXPECT_FALSE(HoldsSomething(temp_.Path()));
  EXPECT_FALSE(HoldsSomething(Path("nowhere")));
}

TEST_F(TextFolderTest, NamesTheFileThatCannotBeRead) {
  auto read = ReadTexts(temp_.Path());
  ASSERT_FALSE(read);
  EXPECT_EQ(read.Why().file, kCollectionFile);
  Write(kCollectionFile, "name: A\ncave: one.txt\n");
  read = ReadTexts(temp_.Path());
  ASSERT_FALSE(read);
  EXPECT_EQ(read.Why().file, "one.txt");
}

TEST_F(TextFolderTest, ReadsNothingOutsideOfTheFolder) {
  std::filesystem::create_directory(Path("inner"));
  Write("secret.txt", "name: S\n");
  Write("inner/collection.txt", "name: A\ncave: ../secret.txt\n");
  const auto read = ReadTexts(Path("inner"));
  ASSERT_TRUE(read);
  EXPECT_FALSE(read->contains("../secret.txt"));
}

TEST_F(TextFolderTest, FindsThePlaceOfAFailureInItsMessage) {
  const auto expect = [](const TextPlace& place, const char* file, int line, const char* reason) {
    EXPECT_EQ(place.file, file);
    EXPECT_EQ(place.line, line);
    EXPECT_EQ(place.reason, reason);
  };
  expect(PlaceOfFailure("a.txt, line 12: nothing: at all"), "a.txt", 12, "nothing: at all");
  expect(PlaceOfFailure("a.txt: the entry \"cells\" is missing"), "a.txt", 0,
         "the entry \"cells\" is missing");
  expect(PlaceOfFailure("b, line 3.txt, line 4: x"), "b, line 3.txt", 4, "x");
  expect(PlaceOfFailure("there is no file"), "", 0, "there is no file");
}

TEST_F(TextFolderTest, FindsThePlaceOfWhatPackingSays) {
  Chance chance;
  const auto packed = PackCollection(
      {{kCollectionFile, "name: A\nauthor:\nmail:\ncave: one.txt\n"}, {"one.txt", "name: 1\nwhat\n"}},
      chance);
  ASSERT_FALSE(packed);
  const TextPlace place = PlaceOfFailure(packed.Message());
  EXPECT_EQ(place.file, "one.txt");
  EXPECT_EQ(place.line, 2);
}

}  // namespace
}  // namespace zorik
