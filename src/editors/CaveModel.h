#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/CaveO.h"
#include "data/Chance.h"
#include "data/ResultFwd.h"
#include "editors/Formality.h"

namespace zorik {

// The cave that is being edited, and all that can be done to it. Every change can be undone; a stroke of the
// mouse is one change. Columns and rows count from 0.
class CaveModel {
 public:
  static constexpr int kLeastSide = 5;
  static constexpr int kMostWidth = 80;
  static constexpr int kMostHeight = 50;
  static constexpr std::size_t kMostSteps = 1000;  // that can be undone

  // Opens a cave text, puts its size and its properties within their limits and forgets what could be undone.
  // The answer is what was put right, sizes first. A failure changes nothing.
  Result<std::vector<Correction>> OpenCave(std::string_view text);

  // Opens the same text once more, which drops all changes; this is a change, too.
  std::vector<Correction> Restore();

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

  // What is drawn between these two is one change.
  void BeginStroke();
  void EndStroke();

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

 private:
  struct State {
    CaveRecord cave;
    int amoebas = 0;

    bool operator==(const State&) const = default;
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
  // Remembers a state that was left, if it was.
  void Step(State before);

  State state_;
  Letters looks_{};     // as they were painted when the cave was opened
  std::string text_;    // that was opened
  State opened_;        // the state that this made
  std::string intact_;  // the text of that state
  std::deque<State> undo_;
  std::deque<State> redo_;
  std::optional<State> stroke_;  // the state at its begin
};

}  // namespace zorik
