// The way back from another collection, or from one that was left and its file.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "editors/SadaFolder.h"

namespace zorik {
namespace {

using samples::CaveText;

class SadaUndoFilesTest : public test::SadaTest {};

TEST_F(SadaUndoFilesTest, BringsTheFormerCollectionBackWithItsFile) {
  OpenCaves({"A", "B"});
  sada_.SetText(SadaText::Name, "Jine");
  const std::string former = Bytes();
  sada_.New();
  EXPECT_EQ(sada_.UndoSteps().front(), SadaStep{SadaAct::New});
  sada_.Undo();
  EXPECT_EQ(Bytes(), former);
  EXPECT_EQ(sada_.FileName(), Path("o.zk"));
  EXPECT_TRUE(sada_.Chg());
  sada_.Undo();
  EXPECT_FALSE(sada_.Chg());
  sada_.Redo(2);
  EXPECT_EQ(sada_.FileName(), "");
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaUndoFilesTest, BringsBackWhatWasLeftForAnotherFile) {
  sada_.SetText(SadaText::Name, "Nikde neulozena");
  const std::string former = Bytes();
  OpenCaves({"A"});
  EXPECT_EQ(sada_.UndoSteps().front(), SadaStep{SadaAct::Open});
  sada_.Undo();
  EXPECT_EQ(Bytes(), former);
  EXPECT_EQ(sada_.FileName(), "");
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaUndoFilesTest, CallsANewCollectionThatAnotherOneFollowsAtOnceOneStep) {
  OpenCaves({"A"});
  sada_.SetText(SadaText::Name, "Jine");
  sada_.New();
  sada_.New();
  ASSERT_TRUE(sada_.Open(Path("o.zk")));
  EXPECT_EQ(sada_.UndoSteps(), (std::vector<SadaStep>{{SadaAct::Open}, {SadaAct::Name}}));
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Name), "Jine");
}

TEST_F(SadaUndoFilesTest, TakesNoStepBackToWhatWasLeft) {
  OpenCaves({"A", "*B"});
  sada_.SetText(SadaText::Name, "Jine");
  Saved("o.zk");
  ASSERT_TRUE(sada_.Open(Path("o.zk")));
  std::vector<std::size_t> bytes;
  for (int again = 0; again < 3; ++again) {
    sada_.New();
    ASSERT_TRUE(sada_.Open(Path("o.zk")));
    bytes.push_back(sada_.HistoryBytes());
  }
  EXPECT_EQ(sada_.UndoSteps(), std::vector<SadaStep>{{SadaAct::Name}});
  EXPECT_EQ(bytes[2], bytes[0]);
  sada_.Undo();
  EXPECT_EQ(sada_.FileName(), Path("o.zk"));
  EXPECT_NE(sada_.Text(SadaText::Name), "Jine");
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaUndoFilesTest, TakesAStepToAnotherFileOfTheSame) {
  OpenCaves({"A"});
  Saved("o.zk");
  Saved("jinam.zk");
  ASSERT_TRUE(sada_.Open(Path("o.zk")));
  EXPECT_EQ(sada_.UndoSteps(), std::vector<SadaStep>{{SadaAct::Open}});
  sada_.Undo();
  EXPECT_EQ(sada_.FileName(), Path("jinam.zk"));
}

TEST_F(SadaUndoFilesTest, KeepsTheNewFileOfACollectionThatWasSavedElsewhere) {
  OpenCaves({"A", "B"});
  sada_.Delete();
  Saved("jinam.zk");
  sada_.Undo();
  EXPECT_EQ(sada_.FileName(), Path("jinam.zk"));
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaUndoFilesTest, LooksAtTheFileThatMayHoldSomethingElseByNow) {
  OpenCaves({"A", "B"});
  sada_.New();
  Saved("o.zk");
  sada_.Undo();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaUndoFilesTest, CountsAsChangedWhenTheFileHasBecomeNoCollectionOfItsOwn) {
  const std::string closed =
      samples::Scrambled({samples::Measured("Sada") + "A", "A", "a@b.czQ", CaveText("X") + "---01", ""});
  for (const std::string& meanwhile : {std::string(), std::string("zmatek\r\n"), closed}) {
    OpenCaves({"A", "B"});
    sada_.New();
    Write("o.zk", meanwhile);
    sada_.Undo();
    EXPECT_EQ(Rows(), (Names{"*A", "B"}));
    EXPECT_TRUE(sada_.Chg());
    EXPECT_TRUE(sada_.Save(Path("o.zk")));
    EXPECT_FALSE(sada_.Chg());
  }
}

TEST_F(SadaUndoFilesTest, CountsAsChangedWhenTheFileHasGone) {
  OpenCaves({"A", "B"});
  sada_.New();
  std::filesystem::remove(Path("o.zk"));
  sada_.Undo();
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaUndoFilesTest, ComesBackWithTheRightFileAlsoWhereTheStepBeforeLeftNothingChanged) {
  sada_.AddCave(NewCaveSize::Small, NewCavePlace::End);
  sada_.ToggleOpen(2);
  sada_.ToggleOpen(2);
  sada_.Delete();
  sada_.ToggleOpen(2);
  const std::string former = Bytes();
  sada_.SetText(SadaText::Author, "Eva");
  sada_.Undo();
  EXPECT_FALSE(sada_.Chg());
  OpenCaves({"A", "B"});
  sada_.Undo();
  EXPECT_EQ(Bytes(), former);
  EXPECT_EQ(sada_.FileName(), "");
}

TEST_F(SadaUndoFilesTest, TakesAnImportBack) {
  OpenCaves({"A", "B"});
  EditedCollection other;
  other.Name = "Dovezena";
  other.CaveList = {"zmatek", CaveText("X")};
  Chance decoration(1);
  const auto bytes = BuildCollection(other, decoration);
  ASSERT_TRUE(bytes);
  ASSERT_TRUE(sada_.Import(*bytes));
  EXPECT_EQ(Rows(), Names{"*X"});
  EXPECT_EQ(sada_.FileName(), "");
  EXPECT_TRUE(sada_.Chg());
  sada_.Undo();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(sada_.FileName(), Path("o.zk"));
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaUndoFilesTest, ForgetsWhatWasTakenBackInTheNewCollectionThatAnotherOneFollows) {
  OpenCaves({"A", "B"});
  sada_.New();
  sada_.SetText(SadaText::Name, "Jine");
  sada_.Undo();
  ASSERT_TRUE(sada_.Open(Path("o.zk")));
  EXPECT_EQ(sada_.RedoSteps(), std::vector<SadaStep>());
  sada_.Redo();
  EXPECT_EQ(sada_.Text(SadaText::Name), "Sada");
}

TEST_F(SadaUndoFilesTest, BringsBackAnImportThatNobodyTouched) {
  ASSERT_TRUE(sada_.Import(samples::CollectionFile({CaveText("X") + "---01", "Konec"})));
  sada_.New();
  EXPECT_EQ(sada_.UndoSteps(), std::vector<SadaStep>{{SadaAct::New}});
  sada_.Undo();
  EXPECT_EQ(Rows(), Names{"*X"});
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaUndoFilesTest, KeepsBesideTheNextSaveWhatTheFileHasComeToHoldMeanwhile) {
  OpenCaves({"A", "B"});
  sada_.New();
  Write("o.zk", samples::CollectionFile({CaveText("A") + "---01", "zmatek---02", "Konec"}));
  sada_.Undo();
  const auto saved = sada_.Save(Path("o.zk"));
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->KeptAs, Path("o.zk~1"));
}

}  // namespace
}  // namespace zorik
