#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "data/ResultFwd.h"

namespace zorik {

// A tick of a proof: what its record tells of it, and how the run stood when it was over.
struct ProofTick {
  std::string line;
  bool keys = false;  // were heeded; the next three hold for such a tick only
  int direction = 0;
  int action = 0;
  int unit = 1;
  std::array<Unit, kUnits> dogs{};
  int steered = 1;
  int gems = 0, keysTaken = 0, locks = 0;  // so far
  bool won = false;
};

// A record that wins its cave, taken apart by its ticks, so that it can be tried on another cave.
class Proof {
 public:
  // The bytes of a record. Fails where it holds no cave that can be played, or does not win.
  static Result<std::shared_ptr<const Proof>> Read(const std::string& record);

  const std::string& Record() const { return record_; }
  const std::string& CaveText() const { return caveText_; }  // without a marker
  const std::string& CollectionName() const { return collection_; }
  const std::vector<ProofTick>& Ticks() const { return ticks_; }

  // Of chance where the record's own does not do: the same for the same record.
  std::uint64_t Seed() const { return seed_; }

 private:
  std::string record_, caveText_, collection_;
  std::vector<ProofTick> ticks_;
  std::uint64_t seed_ = 0;
};

}  // namespace zorik
