#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "data/FileLock.h"
#include "data/ResultFwd.h"
#include "flow/KeptSada.h"

namespace zorik {

// One of the collections that are kept.
struct KeptEntry {
  std::string Path;       // of the file that keeps it, UTF-8
  std::int64_t Time = 0;  // of its last change that is in there, in seconds since the beginning of 1970
  std::string Name;       // of the collection, Windows-1250
  std::string FileName;   // path of its own file, UTF-8; empty when it has none
  int Caves = 0;
};

// Keeps what is being edited, so that it outlives the program, and what the author has discarded. It all lies
// in one folder: in "Running" a file for each program that edits, which is locked as long as that lives, and
// in "Discarded" the last ones that were discarded. What cannot be read is passed over, and stays.
// Times are handed in, for nothing in here knows a clock.
class RecoveryStore {
 public:
  // So many discarded ones are kept; one more, and the oldest goes.
  static constexpr std::size_t kMostDiscarded = 20;

  // Nothing is made on the disk before something is kept.
  explicit RecoveryStore(std::string folder);
  // What is kept stays.
  ~RecoveryStore();
  RecoveryStore(const RecoveryStore&) = delete;
  RecoveryStore& operator=(const RecoveryStore&) = delete;

  // What is being edited

  // Keeps it in place of what was kept before, unless that is the same. When that fails the old one stays.
  Result<Done> Keep(const KeptSada& sada, std::int64_t now);

  // Nothing is to be lost any more.
  void Clear();

  // The author has discarded it. Should it not be possible to write it, what was kept last is among the
  // discarded ones.
  Result<Done> Discard(const KeptSada& sada, std::int64_t now);

  // What there is; the newest first

  // What programs that are no more have left. From now on no other program sees it.
  std::vector<KeptEntry> Left();
  std::vector<KeptEntry> Discarded() const;

  static Result<KeptSada> Read(const KeptEntry& entry);

  // One that was left goes to the discarded ones.
  Result<Done> Discard(const KeptEntry& left, std::int64_t now);

  // It is there no longer.
  Result<Done> Delete(const KeptEntry& entry);

 private:
  std::string OwnPath() const;
  bool TakePlace(std::int64_t now);
  void SweepLocks() const;
  Result<Done> MoveToDiscarded(const std::string& path, std::int64_t now);
  void LetGo(const std::string& path);
  void DropTwins(const std::string& path) const;
  void DropOldest() const;

  std::string running_;
  std::string discarded_;
  std::string own_;                       // name of this program's file, without its ending
  std::optional<FileLock> lock_;          // of this program
  std::optional<KeptSada> kept_;          // what is in its file
  std::map<std::string, FileLock> left_;  // of those that are no more, by the paths of their files
};

}  // namespace zorik
