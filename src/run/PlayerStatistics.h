#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hra.h"

namespace zorik {

// A cave that a player has won, as his records tell. Names and texts are bytes in Windows-1250.
struct WonCave {
  int Number = 0;  // in its collection; 0 when no record says it
  std::string Name;
  std::string Text;   // without marker, by which a cave is known
  int BestTicks = 0;  // of the quickest win
  int BestScore = 0;  // of the win with the most points
};

// A player in one collection.
struct CollectionStatistics {
  std::string Name;
  std::vector<WonCave> Caves;  // by number, those without one last
  std::int64_t Ticks = 0;      // of all wins
  std::int64_t Gems = 0;       // that were taken in them
  std::int64_t Points = 0;     // the best of each cave
};

// What a player's records tell of him. Nothing else is asked: no collection is opened, and a win counts when
// its record, played from start to end, wins. That takes its time, so the records are read piece by piece.
class PlayerStatistics {
 public:
  // Of the records (*.zkr) that lie in the player's folder, a UTF-8 path, right now.
  PlayerStatistics(const std::string& folder, std::string player);

  // Reads on for about so many ticks of play; what is known so far can be asked for at any time.
  void ReadOn(int ticks);

  bool AtEnd() const { return next_ == files_.size() && !replaying_; }
  std::size_t Files() const { return files_.size(); }
  std::size_t FilesRead() const { return next_ - (replaying_ ? 1 : 0); }

  // By their names; only those with a win.
  const std::vector<CollectionStatistics>& Collections() const { return collections_; }

  // The sums of all collections.
  int Caves() const;
  std::int64_t Ticks() const { return Sum(&CollectionStatistics::Ticks); }
  std::int64_t Gems() const { return Sum(&CollectionStatistics::Gems); }
  std::int64_t Points() const { return Sum(&CollectionStatistics::Points); }

  int OfOthers() const { return ofOthers_; }  // records that somebody else has made
  int Faulty() const { return faulty_; }      // files that are no record of a win

 private:
  void OpenNext();
  void Replayed(TickEnd end);
  void Count();
  std::int64_t Sum(std::int64_t CollectionStatistics::*number) const;

  std::string player_;
  std::vector<std::string> files_;  // their paths
  std::size_t next_ = 0;
  std::unique_ptr<Hra> run_;
  bool replaying_ = false;  // the run is that of the file before the next one
  bool ranDry_ = false;
  std::vector<CollectionStatistics> collections_;
  int ofOthers_ = 0;
  int faulty_ = 0;
};

}  // namespace zorik
