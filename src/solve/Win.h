#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "core/Hra.h"
#include "data/ResultFwd.h"
#include "solve/Move.h"

namespace zorik {

// The run of a cave that a search plays and that its record tells.
struct RunTerms {
  std::string caveText;    // with its marker if it has one
  std::string collection;  // its name
  std::uint64_t seed = 0;  // of the game's chance
  std::string player = "hrac";
};

// The run at its start; fails as PaintCave does.
Result<std::unique_ptr<Hra>> BeginRun(const RunTerms& terms);

// The record that a player would have made with this plan; empty where it does not win.
std::string RecordOfPlan(const RunTerms& terms, const Plan& plan);

// Takes out of a plan that wins what is not needed, then looks for shorter ways until the caller has enough.
// seed: of the search; mostBytes: of memory, about.
Plan MakeShort(const Hra& begin, Plan plan, std::uint64_t seed, std::size_t mostBytes,
               const std::function<bool()>& enough, const Avoided& avoided = {});

}  // namespace zorik
