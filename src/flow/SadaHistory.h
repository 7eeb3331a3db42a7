#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "data/Collection.h"

namespace zorik {

// What an author does to a collection.
enum class SadaAct {
  Name,
  Author,
  Mail,
  Description,
  Congratulation,
  Add,
  Paste,
  Cut,
  Delete,
  Up,
  Down,
  Mark,
  Edit,
  Import,
  New,
  Open,
};

// One step of his; the cave is the name of the one that it is about, in Windows-1250.
struct SadaStep {
  SadaAct Act;
  std::string Cave{};

  bool operator==(const SadaStep&) const = default;
};

// A collection as it is at one moment. Texts that did not change are shared with other moments.
class SadaMoment {
 public:
  bool Holds(const EditedCollection& sada) const;
  EditedCollection Collection() const;
  std::size_t Size() const;

 private:
  friend class SadaHistory;
  using Text = std::shared_ptr<const std::string>;

  std::array<Text, 5> texts_;
  std::vector<Text> caves_;
  CaveFlags openFlags_;
};

// What belongs to the collection but is no part of it.
struct SadaFile {
  std::string Path;                         // empty for a collection that was not saved yet
  bool Faulty = false;                      // the file on the disk holds what is not in the collection
  std::string KeptAs;                       // its copy, until the collection is written
  std::shared_ptr<const SadaMoment> Saved;  // the collection as the file has it, or as it was when it was new
};

// All that a step takes back.
struct SadaState {
  SadaMoment Moment;
  int Selected = 1;
  SadaFile File;
};

// The steps of an author, which can be taken back and done again. What they hold is bounded: beyond so many
// bytes the oldest steps are forgotten, but never the last one.
class SadaHistory {
 public:
  static constexpr std::size_t kMostBytes = std::size_t{8} << 20U;

  // The collection as it is now.
  SadaMoment At(const EditedCollection& sada);

  // This step comes now; the state is that before it. What was taken back is forgotten.
  void Do(SadaStep step, SadaState before);
  // The last step turns out to be this one.
  void CallLast(SadaAct act);
  // The last step turns out to be none.
  void DropLast() { undo_.pop_back(); }

  // So many steps at most, the one that comes next first.
  std::vector<SadaStep> UndoSteps(std::size_t most) const { return StepsOf(undo_, most); }
  std::vector<SadaStep> RedoSteps(std::size_t most) const { return StepsOf(redo_, most); }
  const SadaStep* Last() const { return undo_.empty() ? nullptr : &undo_.back().Step; }
  // The state before the last step; nothing when there is none.
  const SadaState* BeforeLast() const { return undo_.empty() ? nullptr : &undo_.back().State; }

  // The state to go to, and the step that is taken back or done again by that. Nothing when there is none.
  struct Way {
    SadaStep Step;
    SadaState State;
  };
  std::optional<Way> Undo(SadaState now) { return Go(undo_, redo_, std::move(now)); }
  std::optional<Way> Redo(SadaState now) { return Go(redo_, undo_, std::move(now)); }

  // The bytes that all moments take, those outside of the history too.
  std::size_t Bytes() const;

 private:
  static std::vector<SadaStep> StepsOf(const std::deque<Way>& ways, std::size_t most);
  static std::optional<Way> Go(std::deque<Way>& from, std::deque<Way>& to, SadaState now);
  SadaMoment::Text Keep(const std::string& text);
  void Trim();

  std::shared_ptr<std::size_t> textBytes_ = std::make_shared<std::size_t>(0);
  SadaMoment latest_;  // the next one has most of its texts
  std::deque<Way> undo_;
  std::deque<Way> redo_;
};

}  // namespace zorik
