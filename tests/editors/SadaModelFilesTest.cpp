// The texts of a collection, and its files.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "editors/SadaFolder.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::CollectionFile;
using samples::Letter;
using samples::Measured;
using samples::Scrambled;
using test::SadaTest;

// Texts

TEST_F(SadaTest, CountsAsChangedAfterAnyTextHasChanged) {
  for (const SadaText text : {SadaText::Name, SadaText::Author, SadaText::Mail, SadaText::Description}) {
    sada_.New();
    sada_.SetText(text, "Jinak");
    EXPECT_EQ(sada_.Text(text), "Jinak");
    EXPECT_TRUE(sada_.Chg());
  }
  sada_.New();
  sada_.SetCongratulation("Jinak");
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaTest, WritesTextsWhereTheyBelong) {
  sada_.SetText(SadaText::Name, "Jeskyn\xEC");
  sada_.SetText(SadaText::Author, "Eva");
  sada_.SetText(SadaText::Mail, "eva@priklad.cz");
  sada_.SetText(SadaText::Description, "Dva\r\nradky");
  sada_.SetCongratulation("Hur\xE1\r\n$P");
  const std::vector<std::string> lines = Saved();
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], Letter(7) + std::string("Jeskyn\xEC") + "A");
  EXPECT_EQ(lines[1], Letter(3) + std::string("EvaDva\r\nradky"));
  EXPECT_EQ(lines[2], "eva@priklad.cz0");
  EXPECT_EQ(lines[4], "Hur\xE1\r\n$P");
}

TEST_F(SadaTest, WritesEmptyTexts) {
  for (const SadaText text : {SadaText::Name, SadaText::Author, SadaText::Mail, SadaText::Description}) {
    sada_.SetText(text, "");
  }
  sada_.SetCongratulation("");
  const std::vector<std::string> lines = Saved();
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], "AA");
  EXPECT_EQ(lines[1], "A");
  EXPECT_EQ(lines[2], "0");
  EXPECT_EQ(lines[4], "");
}

TEST_F(SadaTest, NamesTheTextThatIsTooLongForTheFile) {
  EXPECT_FALSE(sada_.CannotHold());
  for (const SadaText text : {SadaText::Name, SadaText::Author}) {
    sada_.New();
    sada_.SetText(text, std::string(190, 'x'));
    EXPECT_FALSE(sada_.CannotHold());
    EXPECT_EQ(Saved().size(), 5U);
    sada_.SetText(text, std::string(191, 'x'));
    const auto tooLong = sada_.CannotHold();
    ASSERT_TRUE(tooLong);
    EXPECT_EQ(tooLong->text, text);
    EXPECT_EQ(tooLong->length, 191U);
    EXPECT_EQ(tooLong->most, 190U);
    EXPECT_FALSE(sada_.Save(Path("b.zk")));
    EXPECT_TRUE(sada_.Chg());
    EXPECT_FALSE(std::filesystem::exists(Path("b.zk")));
  }
}

// Opening

TEST_F(SadaTest, OpensACollection) {
  const auto report =
      Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02", "Hura"}, "AB"));
  EXPECT_FALSE(report.Closed);
  EXPECT_TRUE(report.Unreadable.empty());
  EXPECT_EQ(sada_.Text(SadaText::Name), "Sada");
  EXPECT_EQ(sada_.Text(SadaText::Author), "Autor");
  EXPECT_EQ(sada_.Text(SadaText::Description), "Popis");
  EXPECT_EQ(sada_.Text(SadaText::Mail), "a@b.cz");
  EXPECT_EQ(sada_.CongratulationText(), "Hura");
  EXPECT_EQ(Rows(), (Names{"*A", "*B"}));
  EXPECT_EQ(sada_.Cave(2), CaveText("B"));
  EXPECT_EQ(sada_.ListSelected(), 1);
  EXPECT_EQ(sada_.FileName(), Path("o.zk"));
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaTest, OpensTheFirstCaveWhateverTheFileSays) {
  Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02", ""}, "B"));
  EXPECT_EQ(Rows(), (Names{"*A", "*B"}));
}

TEST_F(SadaTest, ForgetsTheMarksOfTheLastCollection) {
  OpenCaves({"*A", "*B", "*C"});
  OpenCaves({"*D", "E", "F"});
  EXPECT_EQ(Rows(), (Names{"*D", "E", "F"}));
}

TEST_F(SadaTest, TakesACaveAtTheEndForTheCongratulationToo) {
  Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02"}));
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(sada_.CongratulationText(), CaveText("B") + "---02");
}

TEST_F(SadaTest, CountsOnlyCavesWhoseMarkerHasDigits) {
  const auto report = Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---x2", "?", "Hura"}));
  EXPECT_EQ(Rows(), Names{"*A"});
  EXPECT_TRUE(report.Unreadable.empty());
}

TEST_F(SadaTest, LeavesOutCavesThatCannotBeReadAndSaysWhich) {
  const auto report = Opened(CollectionFile(
      {CaveText("A") + "---01", "E!---02", CaveText("C") + "---03", "---04", CaveText("E") + "---05", "Hura"},
      "ABE"));
  EXPECT_EQ(report.Unreadable, (std::vector<int>{2, 4}));
  EXPECT_EQ(Rows(), (Names{"*A", "C", "*E"}));
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaTest, OpensWithANewCaveWhenNoneCanBeRead) {
  EXPECT_EQ(Opened(CollectionFile({"E!---01", "Hura"})).Unreadable, std::vector<int>{1});
  EXPECT_EQ(Rows(), Names{"*Mala"});
  EXPECT_TRUE(Opened(CollectionFile({"Hura"})).Unreadable.empty());
  EXPECT_EQ(Rows(), Names{"*Mala"});
  EXPECT_EQ(sada_.Text(SadaText::Name), "Sada");
  EXPECT_EQ(sada_.CongratulationText(), "Hura");
}

TEST_F(SadaTest, KeepsLettersThatNoObjectHas) {
  const std::string odd = CaveText("A", "W?\xE1*z\x01");
  Opened(CollectionFile({odd + "---01", "Hura"}));
  EXPECT_EQ(Saved()[3], odd + "---01");
}

TEST_F(SadaTest, RefusesAClosedCollectionAndChangesNothing) {
  for (const char flag : {'Q', 'R', 'z', '\xFF'}) {
    OpenCaves({"*A"});
    sada_.SetText(SadaText::Author, "Eva");
    const std::string mail = std::string("a@b.cz") + flag;
    EXPECT_TRUE(Opened(Scrambled({Measured("Sada") + "A", "A", mail, CaveText("X") + "---01", ""})).Closed);
    EXPECT_EQ(Rows(), Names{"*A"});
    EXPECT_EQ(sada_.Text(SadaText::Author), "Eva");
    EXPECT_TRUE(sada_.Chg());
  }
}

TEST_F(SadaTest, OpensACollectionWithAnyFlagBelowQ) {
  for (const char flag : {'0', '1', 'A', 'P', ' '}) {
    const std::string mail = std::string("a@b.cz") + flag;
    EXPECT_FALSE(Opened(Scrambled({Measured("Sada") + "A", "A", mail, CaveText("X") + "---01", ""})).Closed);
    EXPECT_EQ(sada_.Text(SadaText::Mail), "a@b.cz");
    EXPECT_EQ(Saved()[2], "a@b.cz0");
  }
}

TEST_F(SadaTest, KeepsEverythingWhenAFileCannotBeOpened) {
  OpenCaves({"*A", "B"});
  const std::string file = sada_.FileName();
  for (const std::string& path : {Path("neni.zk"), folder_, Write("x.zk", ""), Write("y.zk", "ABC\r\n")}) {
    EXPECT_FALSE(sada_.Open(path));
    EXPECT_EQ(Rows(), (Names{"*A", "B"}));
    EXPECT_EQ(sada_.FileName(), file);
  }
}

}  // namespace
}  // namespace zorik
