#pragma once

#include <vector>

#include "core/Hra.h"
#include "data/CaveO.h"
#include "solve/Doubt.h"
#include "solve/Review.h"

namespace zorik {

// What caves shall keep to; what lies outside is a hint to their author.
inline constexpr double kMostLimitRatio = 4;
inline constexpr int kLongestIdle = 15 * kTicksPerSecond;  // ticks
inline constexpr double kLeastOdds = 0.9;

// What a cave is worth, by the runs that win it.
struct Rating {
  Review review;                // of the best win
  std::vector<bool> untouched;  // cells that none of the wins touches, by their places
  int wins = 1;                 // that were looked at
  int tries = 0, survived = 0;  // other seeds, and those under which the plan won, too
  double limitRatio = 0;        // time limit in times of the win
  double mirror = 0;
  int paws = 1;
};

// Rates a cave by its wins, the best one first; at least one. tries and survived: of its plan.
Rating RateCave(const CaveRecord& cave, std::vector<Review> wins, int tries, int survived);

// The rows of the cave in which all that a win touches is left blank: letters show what nobody needs. Steel
// is left as it is.
std::vector<std::string> UntouchedRows(const CaveRecord& cave, const Rating& rating);

// The hints that only a proof can give. A plan that was not tried under other seeds has no odds.
std::vector<Doubt> DoubtsAboutProof(const Rating& rating);

}  // namespace zorik
