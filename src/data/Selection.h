#pragma once

#include <memory>
#include <string>
#include <vector>

#include "data/Collection.h"
#include "data/FolderNames.h"
#include "data/Progress.h"
#include "data/RecordSlot.h"
#include "data/ResultFwd.h"

namespace zorik {

// A player among the caves of a collection: what he may play, what he has won, and where he stands. It is
// read once and then kept up in memory. Caves count from 1; texts and names are bytes in Windows-1250, paths
// UTF-8.
class Selection {
 public:
  // Reads a collection file and the records in the player's folder, and selects cave 1. Fails when the
  // collection cannot be read or has no cave.
  static Result<Selection> LoadColl(const std::string& path, std::string player, std::string playerFolder);

  const PlayedCollection& Collection() const { return collection_; }
  int CaveCount() const { return static_cast<int>(collection_.Caves.size()); }
  const PlayedCave& Cave(int number) const { return collection_.Caves[Index(number) - 1]; }
  CaveState State(int number) const { return progress_.CaveStates[Index(number)]; }

  // The points that the list shows for a cave.
  int Score(int number) const { return progress_.Scores[Index(number)]; }

  int Total() const { return progress_.Total; }
  int Rest() const { return progress_.Rest; }

  int Selected() const { return selected_; }
  // A number that no cave has is ignored.
  void Select(int number);

  // The last cave before this one that is open and not solved; 0 for none.
  int OpenCaveBefore(int number) const;

  // The cave of this slot has been won, wherever the player stands by now: it is solved by this player with
  // the score that is stored, the caves behind it open up to the first one that is no bonus cave, and the
  // next cave is selected. Nothing happens when this collection has no such cave.
  void Prosel(const RecordSlot& slot, int score);

  // Counts wins that could not be stored as the records that they will be.
  void Count(const UnstoredWins& wins);

  // The player's record of the selected cave: the name that it goes by, and its file, there or not.
  std::string RecordName() const;
  std::string RecordPath() const { return RecordPath(selected_); }

  // Where a run of a cave will keep its record.
  RecordSlot Slot(int number) const;

  // The cave that a slot is of; 0 when it is none of this collection or not for this player.
  int CaveOf(const RecordSlot& slot) const;

  const std::string& Player() const { return player_; }
  const std::string& PlayerFolder() const { return playerFolder_; }

  // What the player reads when no cave is left; "$P" has become his points.
  std::string Congratulation() const;

 private:
  Selection(PlayedCollection collection, std::string player, std::string playerFolder);

  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }
  bool IsCave(int number) const { return number >= 1 && number <= CaveCount(); }
  std::string RecordPath(int number) const;
  void Solve(int number, int score);
  void NameFiles();

  // What the records on the disk say by now.
  Progress Stored() const { return ReadProgress(collection_, player_, RecordsInFolder(files_)); }

  PlayedCollection collection_;
  std::string player_;
  std::string playerFolder_;
  std::shared_ptr<FolderNames> files_;  // in there
  // Of the file of each cave's record, cave 1 first: its name, and the same without regard to letter case.
  std::vector<std::string> fileNames_, foldedNames_;
  Progress progress_;
  int selected_ = 1;
};

}  // namespace zorik
