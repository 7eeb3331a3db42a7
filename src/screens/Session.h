#pragma once

#include <optional>
#include <string>

#include "data/Collection.h"
#include "data/Result.h"
#include "platform/Paths.h"

namespace zorik {

// A player's way through a collection: its caves, and the records that the player has of them. Caves count
// from 1; texts are bytes in Windows-1250, paths UTF-8.
class Session {
 public:
  // Opens the first collection in the folder of caves that can be played, for the first player that there is,
  // or a new one. Fails with the path of what it looked at last when there is none.
  static Result<Session> OpenFirst(const Paths& paths);

  const PlayedCollection& Collection() const { return collection_; }
  const std::string& Player() const { return player_; }
  int CaveCount() const { return static_cast<int>(collection_.Caves.size()); }
  const std::string& CaveText(int number) const;

  // Whether the player may play the cave.
  bool IsOpen(int number) const;

  // Points of all caves that the player has solved.
  int Total() const;

  // Whether a score is at least as good as the stored one.
  bool JeLepsi(int number, int score) const;

  // The record that is stored for the cave, as the bytes of its file.
  std::optional<std::string> StoredRecord(int number) const;

  // Stores a record of the cave in the player's folder; the answer is its path.
  Result<std::string> Store(int number, const std::string& bytes) const;

  // The record of the cave that came with the game.
  std::optional<std::string> ShippedRecord(int number) const;

 private:
  Session(PlayedCollection collection, std::string player, std::string playerFolder, std::string shipped);

  std::string RecordPath(int number) const;

  PlayedCollection collection_;
  std::string player_;
  std::string playerFolder_;
  std::string shipped_;  // folder of the records that came with the collection
};

}  // namespace zorik
