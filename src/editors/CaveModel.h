#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/CaveO.h"
#include "data/Chance.h"
#include "data/ResultFwd.h"
#include "editors/CaveBlock.h"
#include "editors/CaveSides.h"
#include "editors/EditStep.h"
#include "editors/Formality.h"
#include "editors/Shapes.h"

namespace zorik {

// The cave that is being edited, and all that can be done to it. Every change can be undone; a stroke of the
// mouse is one change. Columns and rows count from 0.
class CaveModel {
 public:
  static constexpr int kLeastSide = 5;
  static constexpr int kMostWidth = 80;
  static constexpr int kMostHeight = 50;
  static constexpr std::size_t kMostSteps = 1000;           // that can be undone
  static constexpr std::size_t kMostUndoBytes = 8U << 20U;  // that they may take, but for the last one

  // Opens a cave text, puts its size and its properties within their limits and forgets what could be undone.
  // The answer is what was put right, sizes first. A failure changes nothing.
  Result<std::vector<Correction>> OpenCave(std::string_view text);

  // Opens the same text once more, which drops all changes; this is a change, too.
  std::vector<Correction> Restore();

  // Whether the cave is the one that was opened, so that nothing would be dropped.
  bool IsAsOpened() const { return state_ == opened_; }

  const CaveRecord& Cave() const { return state_.cave; }
  int Width() const { return state_.cave.Width; }
  int Height() const { return state_.cave.Height; }
  bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < Width() && y < Height(); }

  // The letter of a cell of the cave.
  char At(int x, int y) const { return Letter(state_.cave, x, y); }

  // The letter that a cell of the cave is painted as: its own. A letter without a tile looks like the cell
  // that was painted before it when the cave was opened, or like empty space.
  char LookAt(int x, int y) const;

  // What the amoeba counter shows. It goes with all changes but the frame.
  int Amoebas() const { return state_.amoebas; }

  // The cells of the cave that hold a letter.
  int NuOfOb(char letter) const;
  // Gems.
  int SpoctiDrh() const { return NuOfOb('D'); }

  // Whether the cave can be tested: 0 when there is no dog, else the lowest number that lacks below the
  // highest one; nothing when all is well.
  std::optional<int> MissingDog() const;

  // The cave as a text. One that was not edited is the text that was opened, byte for byte, but for what the
  // answer to opening named.
  Result<std::string> Text() const;

  // Puts a letter into a cell; the place does not matter when it is outside of the cave. A dog leaves the
  // place that it had, even if that was cut off. Returns whether anything has changed.
  bool Draw(int x, int y, char letter);

  // What is drawn between these two, letters and shapes, is one change.
  void BeginStroke(EditStep step = EditStep::Stroke);
  void EndStroke();
  // Gives the stroke up that is under way: all is as it was at its begin, what could be redone included.
  void DropStroke();

  // Puts a letter into all cells of a shape, which is one change unless it belongs to a stroke. A dog stands
  // once only: it goes to the last cell of the shape, and the others stay. Returns whether anything has
  // changed.
  bool DrawShape(const CavePlaces& shape, char letter, EditStep step);

  // The letters of a selection; what lies outside of the cave is left out.
  CaveBlock Copy(const CaveArea& area) const;
  // The same, and the cells become empty, as they do when a selection is cleared.
  CaveBlock Cut(const CaveArea& area);
  bool Clear(const CaveArea& area);

  // These answer the cells of the cave in which the letters stand now: the next selection. What comes to lie
  // outside of the cave is cut off. A dog that arrives leaves the place that it had; one that is cut off has
  // not arrived. Of a dog that is there twice the last one stays, row by row.
  //
  // Puts a block into the cave, its top left corner at a place.
  CaveArea Paste(const CaveBlock& block, CavePlace at);
  // Takes the letters of a selection elsewhere, its top left corner to a place; where it was it is empty.
  CaveArea Move(const CaveArea& area, CavePlace to);
  // Mirrors a selection in its place, or turns it about its top left corner: what it covers no more becomes
  // empty, what it covers besides is overwritten.
  CaveArea Turn(const CaveArea& area, CaveTurn turn);

  // An empty row before row y (behind the last one when y is the height), likewise a column; or away with
  // one. Returns whether that was possible: the cave keeps to its limits.
  bool InsertRow(int y);
  bool InsertColumn(int x);
  bool DeleteRow(int y);
  bool DeleteColumn(int x);

  // Moves the cave's sides, see Resized() for what becomes of the cells and how it would look. Returns
  // whether anything has changed.
  bool Resize(const CaveSides& sides);

  // Puts l into every n-th cell that holds p, row by row.
  void ReplaceO(char p, char l, int n);
  // Puts l into so many cells that hold p, or into half of them when 0 are wanted; not more than there are.
  void ReplaceRandom(char p, char l, int wanted, Chance& rnd);
  // Puts l around the cave; the amoeba counter does not notice.
  void MakeFrame(char l);

  // Takes properties that are within their limits.
  void SetProperties(const Formality& formality);
  void SaveScript(const std::string& script);

  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  void Undo();
  void Redo();

  // What can be undone, the first change first, and what can be redone, in the order in which it is.
  std::vector<EditStep> UndoSteps() const;
  std::vector<EditStep> RedoSteps() const;
  // Undoes or redoes until so many steps can be undone, as far as there are any.
  void UndoTo(std::size_t steps);
  // The memory that all these steps take.
  std::size_t UndoBytes() const;

 private:
  struct State {
    CaveRecord cave;
    int amoebas = 0;

    bool operator==(const State&) const = default;
  };
  // A change, with the state before it or, when it was undone, behind it.
  struct Change {
    EditStep step = EditStep::Stroke;
    State state;
  };
  using Letters = std::array<std::array<char, CaveRecord::kRows>, CaveRecord::kColumns>;

  static char Letter(const CaveRecord& cave, int x, int y) {
    return cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
  }
  char& Cell(int x, int y) {
    return state_.cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
  }

  std::vector<Correction> Enter(const CaveRecord& cave);
  int NumberDogs();
  Result<std::string> Untouched(const CaveRecord& cave, const std::vector<Correction>& report) const;
  void SetRozm();
  void TakeProperties(const Formality& formality);
  void PaintAll();
  void Put(int x, int y, char letter);
  bool TakeDogAway(int x, int y, char letter);
  void Empty(const CaveArea& area);
  CaveArea Place(const CaveBlock& block, CavePlace at);
  // Makes a change a step of its own. Returns whether anything has changed.
  template <class Act>
  bool AsStep(EditStep step, Act act);
  // Takes the cells and the size of another cave.
  void Reshape(CaveRecord cave);
  // Remembers a change, if it was one.
  bool Step(Change change);
  static std::size_t BytesOf(const Change& change);

  State state_;
  Letters looks_{};     // as they were painted when the cave was opened
  std::string text_;    // that was opened
  State opened_;        // the state that this made
  std::string intact_;  // the text of that state
  std::deque<Change> undo_;
  std::deque<Change> redo_;
  std::optional<Change> stroke_;  // with the state at its begin
};

template <class Act>
bool CaveModel::AsStep(EditStep step, Act act) {
  EndStroke();
  Change change{step, state_};
  act();
  return Step(std::move(change));
}

}  // namespace zorik
