#include "editors/ProofShelf.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "data/CaveO.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/ProofFile.h"
#include "data/RecordFile.h"

namespace zorik {
namespace {

// Whether a record is one of these very caves.
bool Proves(const std::string& record, const std::vector<std::string>& caves) {
  RecordLines lines(record);
  const std::string text = ReadRecordHead(lines).CaveText;
  return std::any_of(caves.begin(), caves.end(), [&text](const std::string& cave) {
    return (EndsWithMarker(cave) ? WithoutMarker(cave) : std::string_view(cave)) == text;
  });
}

// Which of the caves that a disk cannot tell apart by their names it is, from 1.
int NumberOf(const CaveOrigin& origin, const std::string& caveName) {
  const auto onDisk = [](const std::string& name) { return FoldFileName(CleanFileName(name)); };
  const auto same = [&, own = onDisk(caveName)](const std::string& name) { return onDisk(name) == own; };
  return 1 + static_cast<int>(std::count_if(origin.NamesBefore.begin(), origin.NamesBefore.end(), same));
}

}  // namespace

std::optional<std::string> ProofShelf::Kept(const CaveOrigin& origin, const std::string& caveName,
                                            int number) const {
  const auto waiting = waiting_.find({origin.Collection, caveName, number});
  if (waiting != waiting_.end()) return waiting->second;
  if (origin.File.empty()) return std::nullopt;
  Result<std::string> record = ReadWhole(ProofPath(origin.File, caveName, number));
  return record ? std::optional(*std::move(record)) : std::nullopt;
}

std::string ProofShelf::Find(const CaveOrigin& origin, const std::string& caveName,
                             const std::string& caveText) const {
  const int own = NumberOf(origin, caveName);
  std::string found = Kept(origin, caveName, own).value_or(std::string());
  if (!found.empty() && Proves(found, {caveText})) return found;
  for (int number = 1;; ++number) {
    std::optional<std::string> other = Kept(origin, caveName, number);
    if (!other && number > own) return found;
    if (other && Proves(*other, {caveText})) return *std::move(other);
  }
}

Result<ProofShelf::Put, ProofShelf::NotStored> ProofShelf::Keep(const CaveOrigin& origin,
                                                                const std::string& caveName,
                                                                const std::string& record) {
  if (origin.File.empty()) {
    KeepWaiting(origin, caveName, record);
    return Put{true, {}};
  }
  const std::string path = ProofPath(origin.File, caveName, NumberOf(origin, caveName));
  Result<std::string, FileFailure> kept = StoreProof(path, record);
  if (!kept) return NotStored{kept.Why(), path};
  return Put{false, *std::move(kept)};
}

void ProofShelf::KeepWaiting(const CaveOrigin& origin, const std::string& caveName,
                             const std::string& record) {
  waiting_[{origin.Collection, caveName, NumberOf(origin, caveName)}] = record;
}

// A collection that was not saved yet may get another name until it is.
Result<Done, ProofShelf::NotStored> ProofShelf::Saved(const std::string& collection, const std::string& file,
                                                      const std::vector<std::string>& caves) {
  Result<Done, NotStored> outcome = Done{};
  for (auto proof = waiting_.begin(); proof != waiting_.end();) {
    const auto& [key, record] = *proof;
    const auto& [itsCollection, caveName, number] = key;
    const bool due = itsCollection == collection || Proves(record, caves);
    const std::string path = ProofPath(file, caveName, number);
    const Result<std::string, FileFailure> kept = due ? StoreProof(path, record) : std::string();
    if (!kept) outcome = NotStored{kept.Why(), path};
    proof = due && kept ? waiting_.erase(proof) : std::next(proof);
  }
  return outcome;
}

}  // namespace zorik
