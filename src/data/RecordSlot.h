#pragma once

#include <string>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik {

// Where the record of a run is kept. It is settled when the run starts, so that whatever is opened or
// selected meanwhile cannot lead the record to another cave. Names and texts are bytes in Windows-1250.
struct RecordSlot {
  std::string Path;  // UTF-8
  std::string CollectionName;
  std::string CaveName;
  std::string CaveText;                 // without marker
  std::vector<std::string> OtherCaves;  // texts of the collection's caves whose records go by the same name
};

// Whether both are of one cave. Two caves may share a path, for names lose characters on the disk.
bool SameSlot(const RecordSlot& one, const RecordSlot& other);

// What a slot holds on the disk. A record of this very cave has a score. One of another cave has that cave's
// names. Anything else is nothing: no file, no record, or a record of what this cave was before its author
// changed it.
struct StandingRecord {
  enum class Kind { Nothing, ThisCave, AnotherCave };

  Kind Of = Kind::Nothing;
  int Score = 0;
  std::string CollectionName, CaveName;
};

StandingRecord ReadStanding(const RecordSlot& slot);

// A run that was won, ready to be stored.
struct WonRun {
  RecordSlot Slot;
  int Score = 0;
  std::string Bytes;  // the whole record
};

// Puts the record into its slot, in place of what that holds; the folder is made if it is missing. A failure
// changes nothing.
Result<Done> StoreRun(const WonRun& run);

// The wins that could not be stored. They live as long as the program, until they are stored or the player
// gives them up.
class UnstoredWins {
 public:
  struct Kept {
    WonRun Run;
    bool Elsewhere = false;  // saved in a place of the player's choice, so nothing is lost with the program
  };

  // Keeps a win; it replaces one of the same cave.
  void Keep(WonRun run);

  // Forgets the win of this cave, if there is one.
  void Drop(const RecordSlot& slot);

  // The win has been saved in a place of the player's choice.
  void SavedElsewhere(const RecordSlot& slot);

  // The kept win of this cave, or null.
  const WonRun* Find(const RecordSlot& slot) const;

  // Tries to store each of them where nothing stands in its way; those that succeed are kept no longer.
  void StoreAll();

  const std::vector<Kept>& All() const { return kept_; }

  // Those that would be lost with the program.
  std::vector<WonRun> AtRisk() const;

 private:
  std::vector<Kept> kept_;
};

// Whether a win is at least as good as the player's record of its cave. That is the one that is kept in
// memory, or else the one on the disk: the list may show a worse run, and another running game may have
// stored a better one.
bool JeLepsi(const WonRun& run, const UnstoredWins& wins);

}  // namespace zorik
