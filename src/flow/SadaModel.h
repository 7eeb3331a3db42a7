#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/Chance.h"
#include "data/Collection.h"
#include "data/CollectionFaults.h"
#include "data/FileTrouble.h"
#include "data/ResultFwd.h"
#include "flow/SadaHistory.h"

namespace zorik {

struct KeptSada;

// What the language gives to a new collection and to its caves, in Windows-1250.
struct SadaWords {
  std::string Name = "Nov\xE1 sada";
  std::string Congratulation;
  NewCaveTexts Cave;  // its description is the collection's, too
};

// The texts of a collection that have a box of their own.
enum class SadaText { Name, Author, Mail, Description };

// Where a further cave comes: before the chosen one, or behind all.
enum class NewCavePlace { Chosen, End };

// The collection that is being edited: its texts, its caves as texts, the caves that are open from the start
// and the editor's own clipboard. Whatever is done to it can be taken back. Caves count from 1, texts are
// bytes in Windows-1250, paths are UTF-8.
class SadaModel {
 public:
  // From one cave more on the collection is full and takes no further one.
  static constexpr std::size_t kMostToAdd = 90;
  // Characters that fit into the box of the description.
  static constexpr std::size_t kLongestDescription = 280;

  static constexpr std::size_t kAllSteps = static_cast<std::size_t>(-1);

  // The seed is that of scrambling, which decorates only.
  SadaModel(SadaWords words, std::uint64_t seed);

  // The language has changed; what is in the collection stays.
  void SetWords(SadaWords words) { words_ = std::move(words); }

  // mnuNew_Click: drops everything but the clipboard for a new collection with one small cave. A new one that
  // nobody touched is replaced without a step.
  void New();

  // What a file was found to be.
  struct OpenReport {
    bool Closed = false;             // not to be edited: nothing has changed here
    std::vector<FaultyLine> Faults;  // what was passed over in the file, or had to be guessed
  };

  // OpenColl. Caves that do not parse are left out; without a readable one there is a new small cave. With
  // any fault the collection counts as changed, and the next save into this file keeps what it held. Fails
  // when the file or its first lines cannot be read, and changes nothing then.
  Result<OpenReport, FileFailure> Open(const std::string& path);

  // What is to be kept of it while it is edited. A cave that is with the cave editor has the place of the
  // selected one.
  Result<KeptSada> Kept(const std::optional<std::string>& cave) const;

  // Goes on with what was kept, under the path that it had; it counts as changed. The answer is as that of
  // Open.
  Result<OpenReport> TakeUp(const KeptSada& kept);

  // Takes the bytes of a collection that has no file of its own yet, as Open does; it counts as changed.
  Result<OpenReport> Import(const std::string& bytes);

  // The bytes that Save would write.
  Result<std::string> Bytes();

  // A text that the file has no room for.
  struct TooLong {
    SadaText text;
    std::size_t length;
    std::size_t most;
  };
  std::optional<TooLong> CannotHold() const;

  // What was done besides writing a file.
  struct SaveReport {
    std::string KeptAs;  // path of the copy of the file that had faults; empty when there is none
    bool CongratulationLeftOut = false;  // it would have been read as a cave
  };

  // SaveColl: writes the whole file, or fails and leaves the old one as it was. A file that was written is
  // the collection's from then on, and nothing counts as changed.
  Result<SaveReport, FileFailure> Save(const std::string& path);

  // Empty for a collection that was not saved yet.
  const std::string& FileName() const { return file_.Path; }

  // Whether the collection counts as changed since the last save.
  bool Chg() const { return chg_; }
  void SetChg() { chg_ = true; }

  const std::string& Text(SadaText text) const;
  // What is typed into one text is one step, until EndTyping.
  void SetText(SadaText text, std::string value);
  void EndTyping() { typing_.reset(); }

  const std::string& CongratulationText() const { return sada_.CongratulationText; }
  void SetCongratulation(std::string text);

  int ListCount() const { return static_cast<int>(sada_.CaveList.size()); }
  const std::string& Cave(int number) const { return sada_.CaveList[static_cast<std::size_t>(number) - 1]; }
  // The name in the cave's text; empty for a text that does not parse.
  const std::string& Name(int number) const { return names_[static_cast<std::size_t>(number) - 1]; }
  bool IsOpen(int number) const { return sada_.OpenFlags[static_cast<std::size_t>(number)]; }

  int ListSelected() const { return selected_; }
  // A number that no cave has is ignored.
  void Select(int number);

  // Opens a cave from the start, or no longer. Cave 1 always is.
  void ToggleOpen(int number);

  // Puts a cave at the selected place; this and all later ones move down, with their flags, and the new one
  // takes over the flag of the place. A full collection loses the cave and counts as changed all the same.
  // Behind all caves it takes over no flag.
  void AddCave(std::string text, NewCavePlace place = NewCavePlace::Chosen);
  void AddCave(NewCaveSize size, NewCavePlace place = NewCavePlace::Chosen);

  const std::string& ClipCave() const { return clipCave_; }
  void Copy() { clipCave_ = Cave(selected_); }
  void Cut();
  void Paste(NewCavePlace place = NewCavePlace::Chosen);

  // Swap the selected cave and its flag with the neighbour, if there is one.
  void Up();
  void Down();

  // Takes the selected cave away, unless it is the last one left.
  void Delete();

  // SetKKKtoK: stores an edited cave at the selected place.
  void SetSelected(std::string text);

  // The steps that can be taken back, and those that can be done again, or so many of them; the next one
  // comes first.
  std::vector<SadaStep> UndoSteps(std::size_t most = kAllSteps) const { return history_.UndoSteps(most); }
  std::vector<SadaStep> RedoSteps(std::size_t most = kAllSteps) const { return history_.RedoSteps(most); }
  // So many of them. Beyond a new or another collection the former one comes back with its file. What comes
  // back counts as changed unless the file holds exactly that.
  void Undo(int steps = 1);
  void Redo(int steps = 1);
  // What all steps take.
  std::size_t HistoryBytes() const { return history_.Bytes(); }

 private:
  SadaState State();
  void Remember(SadaAct act, std::string cave = {});
  void RememberLeaving(SadaAct act);
  void ForgetComingBack();
  void Enter(SadaHistory::Way way);
  void LookAtFile();
  void Remove();
  void Append(std::string text, NewCavePlace place);
  std::shared_ptr<const SadaMoment> Shared();
  Result<OpenReport> Read(const std::string& bytes, SadaAct act);
  void GetNames(int selection);
  void Swap(int upper);
  std::string NewCave(NewCaveSize size) const;

  SadaWords words_;
  Chance decoration_;
  EditedCollection sada_;
  std::vector<std::string> names_;
  SadaFile file_;
  std::string clipCave_;
  int selected_ = 1;
  bool chg_ = false;
  std::optional<SadaText> typing_;  // the text that the last step goes on with
  SadaHistory history_;
};

}  // namespace zorik
