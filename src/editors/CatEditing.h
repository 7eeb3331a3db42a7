#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "editors/CatData.h"

namespace zorik {

// What can be done to a program.
enum class CatAct { Insert, Delete, Swap, MoveUp, MoveDown };
inline constexpr std::size_t kCatActs = 5;

// A step of editing, as it is told to the author.
struct CatStep {
  CatAct act;
  std::string caption;  // of the line that it was done with, UTF-8

  bool operator==(const CatStep&) const = default;
};

// The editing of a program, every step of which can be taken back and done again. What changes nothing is no
// step, and neither is selecting a line.
class CatEditing {
 public:
  // Of older steps nothing is kept.
  static constexpr std::size_t kMostSteps = 5000;

  explicit CatEditing(std::vector<CatCommand> commands) : script_(std::move(commands)) {}

  // Begins with another program; no steps are left.
  void Load(std::string program);

  const CatScript& Script() const { return script_; }
  void Select(int line) { script_.Select(line); }

  // The steps of CatScript.
  void Insert(std::size_t command);
  void Delete();
  void Swap();
  void MoveUp();
  void MoveDown();

  // How many steps are known; the first of them are done, those behind have been taken back.
  std::size_t Steps() const { return steps_.size(); }
  std::size_t Done() const { return done_; }
  const CatStep& Step(std::size_t place) const { return steps_[place].step; }

  // Takes back, or does again, until so many steps are done.
  void GoTo(std::size_t done);
  void Undo() { GoTo(done_ == 0 ? 0 : done_ - 1); }
  void Redo() { GoTo(done_ + 1); }

 private:
  // Where two sequences differ, and what each of them has there.
  template <class Sequence>
  struct Difference {
    std::size_t place;
    Sequence before;
    Sequence after;
  };
  struct Change {
    CatStep step;
    Difference<std::string> program;
    Difference<std::vector<std::string>> lines;
    int selectedBefore;
    int selectedAfter;
  };

  template <class Sequence>
  static Difference<Sequence> DifferenceOf(const Sequence& before, const Sequence& after);
  template <class Sequence>
  static void Put(Sequence& all, const Difference<Sequence>& difference, bool back);
  template <class Act>
  void Do(CatAct name, std::string caption, Act act);
  std::string SelectedCaption() const;
  void Take(const Change& change, bool back);

  CatScript script_;
  std::deque<Change> steps_;
  std::size_t done_ = 0;
};

}  // namespace zorik
