#pragma once

#include <optional>
#include <string>
#include <vector>

#include "solve/Rating.h"
#include "zktool/Caves.h"
#include "zktool/CommandLine.h"

namespace zorik {

// How caves are rated.
struct RateTerms {
  double seconds = 30;  // for each cave, in all
  int tries = 20;       // other seeds under which a plan is followed
  std::uint64_t seed = 0;
  int jobs = 1;
  std::string proofs;  // folder with NN.zkr, or a record; empty for none
  bool skips = true;   // whether to look for what can be walked past
};

// Things that stand close together, and that a win leaves alone.
struct Skippable {
  Spot from;
  int width = 0, height = 0;
  std::string letters;  // of the things
};

// What came of rating a cave.
struct Rated {
  std::optional<Rating> rating;
  std::vector<Skippable> skippable;
  std::string reason;       // where there is no rating
  bool wrongProof = false;  // there is a proof, but it does not win this cave
  std::string record;       // that was rated
};

// Rates the caves of a set, several at a time.
std::vector<Rated> RateAll(const CaveSet& set, const RateTerms& terms);

// The terms that a command line gives.
Result<RateTerms> ReadRateTerms(const CommandLine& line);

}  // namespace zorik
