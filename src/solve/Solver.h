#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>

#include "core/Hra.h"
#include "solve/Move.h"
#include "solve/Search.h"

namespace zorik {

// Several searches of one cave in turn: two that strive for the best, one patient and one in haste, three
// that return evenly to all situations, each with a grain of its own, and one that begins anew again and
// again, since luck at the beginning decides a lot.
class Solver {
 public:
  // begin: a run at its start, with its chance seeded, which is the chance of the plan. mostBytes: of memory,
  // about; a search that needs more begins anew.
  Solver(const Hra& begin, std::uint64_t seed, std::size_t mostBytes = std::size_t{512} << 20U,
         Avoided avoided = {});

  // Goes on for about so many ticks. True when a plan was found.
  bool Go(std::uint64_t ticks);

  // Forgets the plan that was found: from now on only plans of fewer ticks count.
  void SetBound(int ticks);

  std::uint64_t Ticks() const { return ticks_; }
  int MostGems() const { return mostGems_; }
  const std::optional<Plan>& Found() const { return found_; }

 private:
  static constexpr std::size_t kArms = 6;

  void BeginAnew(std::size_t arm);

  Hra begin_;
  std::size_t mostBytes_;  // of an archive
  Chance chance_;
  std::array<std::unique_ptr<Search>, kArms> arms_;
  Avoided avoided_;
  int bound_ = std::numeric_limits<int>::max();
  std::size_t turn_ = 0;
  std::uint64_t rounds_ = 0;
  std::uint64_t ticks_ = 0;
  int mostGems_ = 0;
  std::optional<Plan> found_;
};

}  // namespace zorik
