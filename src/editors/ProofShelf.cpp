#include "editors/ProofShelf.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "data/CaveO.h"
#include "data/Files.h"
#include "data/Lines.h"
#include "data/ProofFile.h"
#include "data/RecordFile.h"
#include "data/Result.h"

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

}  // namespace

std::string ProofShelf::Find(const CaveOrigin& origin, const std::string& caveName) const {
  const auto waiting = waiting_.find({origin.Collection, caveName});
  if (waiting != waiting_.end()) return waiting->second;
  if (origin.File.empty()) return {};
  Result<std::string> record = ReadWhole(ProofPath(origin.File, caveName));
  return record ? *std::move(record) : std::string();
}

Result<ProofShelf::Put> ProofShelf::Keep(const CaveOrigin& origin, const std::string& caveName,
                                         const std::string& record) {
  if (origin.File.empty()) {
    KeepWaiting(origin, caveName, record);
    return Put{true, {}};
  }
  Result<std::string> kept = StoreProof(ProofPath(origin.File, caveName), record);
  if (!kept) return Failure{kept.Message()};
  return Put{false, *std::move(kept)};
}

void ProofShelf::KeepWaiting(const CaveOrigin& origin, const std::string& caveName,
                             const std::string& record) {
  waiting_[{origin.Collection, caveName}] = record;
}

// A collection that was not saved yet may get another name until it is.
Result<Done> ProofShelf::Saved(const std::string& collection, const std::string& file,
                               const std::vector<std::string>& caves) {
  Result<Done> outcome = Done{};
  for (auto proof = waiting_.begin(); proof != waiting_.end();) {
    const auto& [names, record] = *proof;
    const bool due = names.first == collection || Proves(record, caves);
    const Result<std::string> kept = due ? StoreProof(ProofPath(file, names.second), record) : std::string();
    if (!kept) outcome = Failure{kept.Message()};
    proof = due && kept ? waiting_.erase(proof) : std::next(proof);
  }
  return outcome;
}

}  // namespace zorik
