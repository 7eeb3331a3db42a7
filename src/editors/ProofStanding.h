#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/CaveO.h"
#include "solve/Doubt.h"

namespace zorik {

// What is known of the author's proof of a cave, for the list of what the author should look at.
struct ProofStanding {
  std::string record{};         // of its run, where that wins the cave as it is; else empty
  bool fails = false;           // there is a proof, and it does not win
  std::optional<Spot> where{};  // it breaks, if there is such a place
  int tries = 0;                // of its plan with other chance, once it was rated
  int survived = 0;             // those of them that won

  bool operator==(const ProofStanding&) const = default;
};

// The hints that only a proof can give; none without a proof. It plays the run, which may take a while.
std::vector<Doubt> DoubtsAboutStanding(const CaveRecord& cave, const ProofStanding& proof);

}  // namespace zorik
