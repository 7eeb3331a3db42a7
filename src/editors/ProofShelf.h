#pragma once

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "data/FileTrouble.h"
#include "editors/CaveOrigin.h"

namespace zorik {

// Where the proofs of caves are while they are edited: beside the collection's file, or here as long as there
// is none. Names are in Windows-1250.
class ProofShelf {
 public:
  // The bytes of a cave's proof, empty for none. Caves of the same name have a file each; should they have
  // changed places, the proof of this very cave is found all the same.
  std::string Find(const CaveOrigin& origin, const std::string& caveName, const std::string& caveText) const;

  // What became of one that was put here.
  struct Put {
    bool waits = false;  // for the collection to be saved
    std::string keptAs;  // path of the copy of an older one; empty where there was none
  };
  // Why one could not be stored, and which path it should have had.
  struct NotStored : FileFailure {
    std::string path;
  };
  Result<Put, NotStored> Keep(const CaveOrigin& origin, const std::string& caveName,
                              const std::string& record);

  // Keeps it here even where there is a file, until the collection is saved the next time.
  void KeepWaiting(const CaveOrigin& origin, const std::string& caveName, const std::string& record);

  // A collection has been saved: the proofs that wait for it, or for one of its caves as it stands there, are
  // stored. Those that cannot be go on waiting.
  Result<Done, NotStored> Saved(const std::string& collection, const std::string& file,
                                const std::vector<std::string>& caves);

 private:
  // The names of the collection and the cave, and which cave of this name it is.
  using Key = std::tuple<std::string, std::string, int>;

  std::optional<std::string> Kept(const CaveOrigin& origin, const std::string& caveName, int number) const;

  std::map<Key, std::string> waiting_;
};

}  // namespace zorik
