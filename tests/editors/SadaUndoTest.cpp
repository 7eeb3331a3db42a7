// What was done to a collection can be taken back and done again.
#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "editors/SadaFolder.h"

namespace zorik {
namespace {

using samples::CaveText;

class SadaUndoTest : public test::SadaTest {
 protected:
  // Does something that is one step, takes it back and does it again.
  void ExpectStep(const SadaStep& step, const std::function<void()>& act) {
    const std::string before = Bytes();
    const std::size_t steps = sada_.UndoSteps().size();
    act();
    const std::string after = Bytes();
    EXPECT_NE(before, after);
    ASSERT_EQ(sada_.UndoSteps().size(), steps + 1);
    EXPECT_EQ(sada_.UndoSteps().front(), step);
    sada_.Undo();
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(sada_.RedoSteps().front(), step);
    sada_.Redo();
    EXPECT_EQ(Bytes(), after);
  }
};

TEST_F(SadaUndoTest, HasNothingToTakeBackInANewCollection) {
  EXPECT_TRUE(sada_.UndoSteps().empty());
  const std::string before = Bytes();
  sada_.Undo(5);
  sada_.Redo(5);
  EXPECT_EQ(Bytes(), before);
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaUndoTest, TakesBackEachKindOfStepAndDoesItAgain) {
  OpenCaves({"*A", "B", "*C"});
  sada_.Select(2);
  ExpectStep({SadaAct::Name}, [&] { sada_.SetText(SadaText::Name, "Jine"); });
  ExpectStep({SadaAct::Author}, [&] { sada_.SetText(SadaText::Author, "Adam"); });
  ExpectStep({SadaAct::Mail}, [&] { sada_.SetText(SadaText::Mail, "a@b"); });
  ExpectStep({SadaAct::Description}, [&] { sada_.SetText(SadaText::Description, "O vsem"); });
  ExpectStep({SadaAct::Congratulation}, [&] { sada_.SetCongratulation("Sláva"); });
  ExpectStep({SadaAct::Mark, "C"}, [&] { sada_.ToggleOpen(3); });
  ExpectStep({SadaAct::Up, "B"}, [&] { sada_.Up(); });
  ExpectStep({SadaAct::Down, "B"}, [&] { sada_.Down(); });
  ExpectStep({SadaAct::Edit, "B"}, [&] { sada_.SetSelected(CaveText("D")); });
  ExpectStep({SadaAct::Add, "Mala"}, [&] { sada_.AddCave(NewCaveSize::Small); });
  sada_.Copy();
  ExpectStep({SadaAct::Paste, "Mala"}, [&] { sada_.Paste(); });
  ExpectStep({SadaAct::Delete, "Mala"}, [&] { sada_.Delete(); });
  ExpectStep({SadaAct::Cut, "Mala"}, [&] { sada_.Cut(); });
}

TEST_F(SadaUndoTest, SelectsWhatWasSelected) {
  OpenCaves({"A", "B", "C"});
  sada_.Select(3);
  sada_.Delete();
  sada_.Select(1);
  sada_.Undo();
  EXPECT_EQ(sada_.ListSelected(), 3);
  sada_.Redo();
  EXPECT_EQ(sada_.ListSelected(), 1);
}

TEST_F(SadaUndoTest, TakesWhatIsTypedIntoOneTextForOneStep) {
  OpenCaves({"A"});
  const std::string name = sada_.Text(SadaText::Name);
  for (const char* const typed : {"J", "Ji", "Jin"}) sada_.SetText(SadaText::Name, typed);
  for (const char* const typed : {"E", "Ev"}) sada_.SetText(SadaText::Author, typed);
  EXPECT_EQ(sada_.UndoSteps().size(), 2U);
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Name), "Jin");
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Name), name);
}

TEST_F(SadaUndoTest, BeginsANewStepOfTypingWhereItWasSavedOrWasEnded) {
  OpenCaves({"A"});
  sada_.SetText(SadaText::Name, "J");
  Saved("o.zk");
  sada_.SetText(SadaText::Name, "Ji");
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Name), "J");
  EXPECT_FALSE(sada_.Chg());
  sada_.SetText(SadaText::Name, "K");
  sada_.EndTyping();
  sada_.SetText(SadaText::Name, "Ka");
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Name), "K");
}

TEST_F(SadaUndoTest, BeginsANewStepOfTypingAfterOneThatWasTakenBack) {
  OpenCaves({"A"});
  const std::string former = sada_.Text(SadaText::Name);
  sada_.SetText(SadaText::Name, "J");
  sada_.Undo();
  sada_.SetText(SadaText::Name, "K");
  EXPECT_EQ(sada_.UndoSteps(), std::vector<SadaStep>{{SadaAct::Name}});
  EXPECT_TRUE(sada_.RedoSteps().empty()) << "something else was done";
  sada_.Undo();
  sada_.Redo();
  sada_.SetText(SadaText::Name, "L");
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Name), "K");
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Name), former);
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaUndoTest, GoesBackSeveralStepsAtOnce) {
  OpenCaves({"A", "B", "C", "D"});
  const std::string before = Bytes();
  sada_.Delete();
  sada_.Delete();
  const std::string after = Bytes();
  sada_.Undo(2);
  EXPECT_EQ(Bytes(), before);
  sada_.Redo(2);
  EXPECT_EQ(Bytes(), after);
}

TEST_F(SadaUndoTest, ForgetsWhatWasTakenBackWhenSomethingElseIsDone) {
  OpenCaves({"A", "B"});
  sada_.Delete();
  sada_.Undo();
  sada_.ToggleOpen(2);
  EXPECT_TRUE(sada_.RedoSteps().empty());
}

TEST_F(SadaUndoTest, MakesNoStepOfWhatChangesNothing) {
  OpenMany(91);
  sada_.Copy();
  sada_.Paste();
  sada_.AddCave(NewCaveSize::Small, NewCavePlace::End);
  sada_.Up();
  sada_.SetSelected(std::string(sada_.Cave(1)));
  sada_.SetText(SadaText::Name, std::string(sada_.Text(SadaText::Name)));
  EXPECT_EQ(sada_.UndoSteps().size(), 0U);
  EXPECT_TRUE(sada_.Chg());
}

// The changed mark

TEST_F(SadaUndoTest, CountsAsUnchangedWhereItIsAsTheFileHasIt) {
  OpenCaves({"A", "B"});
  EXPECT_FALSE(sada_.Chg());
  sada_.Delete();
  EXPECT_TRUE(sada_.Chg());
  sada_.Undo();
  EXPECT_FALSE(sada_.Chg());
  sada_.Redo();
  Saved("o.zk");
  sada_.Undo();
  EXPECT_TRUE(sada_.Chg());
  sada_.Redo();
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaUndoTest, CountsAsChangedForAsLongAsTheFileHasFaults) {
  EXPECT_FALSE(
      Opened(samples::CollectionFile({CaveText("A") + "---01", "zmatek---02", "Konec"})).Faults.empty());
  sada_.SetText(SadaText::Name, "Jine");
  sada_.Undo();
  EXPECT_TRUE(sada_.Chg());
  const auto saved = sada_.Save(Path("o.zk"));
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->KeptAs, Path("o.zk~1"));
}

// At the end

TEST_F(SadaUndoTest, AppendsACaveThatIsNotOpen) {
  OpenCaves({"A", "*B"});
  sada_.AddCave(NewCaveSize::Small, NewCavePlace::End);
  EXPECT_EQ(Rows(), (Names{"*A", "*B", "Mala"}));
  EXPECT_EQ(sada_.ListSelected(), 3);
  sada_.Select(1);
  sada_.Copy();
  sada_.Paste(NewCavePlace::End);
  EXPECT_EQ(Rows(), (Names{"*A", "*B", "Mala", "A"}));
}

TEST_F(SadaUndoTest, AppendsACaveThatIsNotOpenAlsoWhereTheFileCallsMoreCavesOpenThanItHas) {
  Opened(samples::CollectionFile({CaveText("A") + "---01", "Gratuluji"},
                                 std::string(1, static_cast<char>(kOpenCaveOffset + 2))));
  sada_.AddCave(NewCaveSize::Small, NewCavePlace::End);
  EXPECT_EQ(Rows(), (Names{"*A", "Mala"}));
}

TEST_F(SadaUndoTest, CountsAsUnchangedWithoutTheOpenCaveThatCameAndWentAgain) {
  OpenCaves({"A", "B"});
  sada_.AddCave(NewCaveSize::Small, NewCavePlace::End);
  sada_.ToggleOpen(3);
  EXPECT_EQ(Rows(), (Names{"*A", "B", "*Mala"}));
  sada_.Delete();
  sada_.SetText(SadaText::Name, "Jine");
  sada_.Undo();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_FALSE(sada_.Chg()) << "it is as the file has it";
}

TEST_F(SadaUndoTest, CutsACaveIntoTheClipboardButNeverTheLastOne) {
  OpenCaves({"A", "B"});
  sada_.Select(2);
  sada_.Cut();
  EXPECT_EQ(Rows(), Names{"*A"});
  EXPECT_EQ(sada_.ClipCave(), CaveText("B"));
  sada_.Cut();
  EXPECT_EQ(Rows(), Names{"*A"});
  EXPECT_EQ(sada_.ClipCave(), CaveText("B"));
}

// Any edits

// Does anything, and knows for itself whether that is a step.
class RandomAuthor {
 public:
  RandomAuthor(SadaModel& sada, std::uint32_t seed) : sada_(sada), random_(seed) {}

  int Below(int count) { return static_cast<int>(random_() % static_cast<std::uint32_t>(count)); }

  bool Edit() {
    sada_.Select(1 + Below(sada_.ListCount()));
    word_ = "k" + std::to_string(Below(1000));
    const int kind = Below(40);
    if (kind == 0) return Leave();
    return kind % 2 == 0 ? EditList(Below(7)) : EditTexts(Below(5));
  }

 private:
  bool Leave() {
    const auto steps = sada_.UndoSteps();
    const bool fresh = sada_.FileName().empty() && !sada_.Chg();
    sada_.New();
    return !(fresh && (steps.empty() || steps.front().Act == SadaAct::New));
  }

  bool EditList(int kind) {
    const int selected = sada_.ListSelected();
    const int count = sada_.ListCount();
    const NewCavePlace place = Below(2) == 0 ? NewCavePlace::Chosen : NewCavePlace::End;
    switch (kind) {
      case 0:
        sada_.AddCave(Below(2) == 0 ? NewCaveSize::Small : NewCaveSize::Large, place);
        return count <= 90;
      case 1:
        if (Below(2) == 0) sada_.Copy();
        sada_.Paste(place);
        return count <= 90;
      case 2:
        sada_.Cut();
        return count > 1;
      case 3:
        sada_.Delete();
        return count > 1;
      case 4:
        sada_.Up();
        return selected > 1;
      case 5:
        sada_.Down();
        return selected < count;
      default:
        sada_.ToggleOpen(selected);
        return selected > 1;
    }
  }

  bool EditTexts(int kind) {
    std::string old = sada_.CongratulationText();
    if (kind == 0) {
      sada_.SetCongratulation(word_);
    } else if (kind == 1) {
      old = sada_.Cave(sada_.ListSelected());
      word_ = CaveText(word_);
      sada_.SetSelected(word_);
    } else {
      const auto text = static_cast<SadaText>(Below(4));
      old = sada_.Text(text);
      sada_.EndTyping();
      sada_.SetText(text, word_);
    }
    return old != word_;
  }

  SadaModel& sada_;
  std::mt19937 random_;
  std::string word_;
};

// All that the collection was, and where in that it is now.
struct Timeline {
  std::vector<std::size_t> Was;
  std::size_t Now = 0;

  void Add(std::size_t state) {
    Was.resize(++Now);
    Was.push_back(state);
  }
  // The oldest steps may have been forgotten.
  void Forget(std::size_t steps) {
    if (steps >= Now) return;
    Was.erase(Was.begin(), Was.begin() + static_cast<std::ptrdiff_t>(Now - steps));
    Now = steps;
  }
  void Undo(int steps) { Now -= std::min(Now, static_cast<std::size_t>(steps)); }
  void Redo(int steps) { Now = std::min(Now + static_cast<std::size_t>(steps), Was.size() - 1); }
};

TEST_F(SadaUndoTest, GivesBackTheSameBytesInTenThousandRandomEdits) {
  OpenMany(91);
  const auto state = [this] { return std::hash<std::string>()(Bytes()); };
  RandomAuthor author(sada_, 7);
  Timeline line{{state()}, 0};
  std::size_t most = 0;
  for (int edit = 0; edit < 10000; ++edit) {
    if (author.Edit()) line.Add(state());
    most = std::max(most, sada_.HistoryBytes());
    line.Forget(sada_.UndoSteps().size());
    ASSERT_EQ(state(), line.Was[line.Now]) << edit;
    if (author.Below(10) != 0) continue;
    const int steps = 1 + author.Below(20);
    const bool redo = author.Below(2) == 0;
    sada_.Undo(steps);
    line.Undo(steps);
    ASSERT_EQ(sada_.UndoSteps().size(), line.Now) << edit;
    ASSERT_EQ(state(), line.Was[line.Now]) << edit;
    if (!redo) continue;
    sada_.Redo(steps);
    line.Redo(steps);
    ASSERT_EQ(state(), line.Was[line.Now]) << edit;
  }
  RecordProperty("bytes", std::to_string(most));
  EXPECT_LE(most, SadaHistory::kMostBytes);
}

TEST_F(SadaUndoTest, KeepsTheLastStepsOfALargeCollectionWithinItsBytes) {
  OpenMany(91);
  const std::string description(4000, 'x');
  for (int step = 0; step < 4000; ++step) {
    sada_.EndTyping();
    sada_.SetText(SadaText::Description, description + std::to_string(step));
    ASSERT_LE(sada_.HistoryBytes(), SadaHistory::kMostBytes);
  }
  EXPECT_GT(sada_.UndoSteps().size(), 1000U);
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Description), description + "3998");
}

TEST_F(SadaUndoTest, KeepsTheLastStepHoweverLargeItIs) {
  OpenCaves({"A"});
  const std::string huge(2 * SadaHistory::kMostBytes, 'x');
  sada_.SetText(SadaText::Description, huge);
  sada_.New();
  EXPECT_EQ(sada_.UndoSteps().size(), 1U);
  sada_.Undo();
  EXPECT_EQ(sada_.Text(SadaText::Description), huge);
}

}  // namespace
}  // namespace zorik
