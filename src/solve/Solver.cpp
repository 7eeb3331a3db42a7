#include "solve/Solver.h"

#include <algorithm>
#include <bit>

namespace zorik {
namespace {

constexpr std::uint64_t kSlice = 20'000;      // ticks of a turn
constexpr std::uint64_t kShortest = 100'000;  // ticks of the shortest search that begins anew
// Haste, greed, grain and lean. The first five are those of the arms that go on: patient, in haste, and one
// of each grain; where fuses count the best moments lead on, where heaps do, often the poor ones. The one
// that begins anew takes all in turn; the last four are for it alone: each is one of the others that clings
// to the best more or less, so that a cave on which all of those are stuck meets yet another.
constexpr std::array<Temper, 9> kTempers{{{0, 3},
                                          {40, 3},
                                          {20, 3, Grain::Bombs, 6},
                                          {0, 3, Grain::Heaps, 2},
                                          {0, 3, Grain::Things, 2},
                                          {0, 5},
                                          {20, 2},
                                          {20, 3, Grain::Heaps, 8},
                                          {20, 3, Grain::Things, 8}}};

// 1, 1, 2, 1, 1, 2, 4, ...: Luby's series, which wastes little whatever length is needed.
std::uint64_t Luby(std::uint64_t i) {
  for (;;) {
    if (std::has_single_bit(i + 1)) return (i + 1) / 2;
    i -= std::bit_floor(i + 1) - 1;
  }
}

}  // namespace

Solver::Solver(const Hra& begin, std::uint64_t seed, std::size_t mostBytes, Avoided avoided)
    : begin_(begin), mostBytes_(mostBytes / kArms), chance_(seed), avoided_(std::move(avoided)) {
  for (std::size_t arm = 0; arm < kArms; ++arm) BeginAnew(arm);
}

void Solver::BeginAnew(std::size_t arm) {
  const std::size_t temper = arm < kArms - 1 ? arm : static_cast<std::size_t>(rounds_ % kTempers.size());
  const std::uint64_t seed = std::uint64_t{chance_.Below(1U << 31U)} << 31U | chance_.Below(1U << 31U);
  arms_[arm] = std::make_unique<Search>(begin_, seed, kTempers[temper]);
  arms_[arm]->SetBound(bound_);
  arms_[arm]->Avoid(avoided_);
  if (arm == kArms - 1) ++rounds_;
}

// An archive that has come so far holds little that leads to a shorter way.
void Solver::SetBound(int ticks) {
  bound_ = ticks;
  found_.reset();
  for (std::size_t arm = 0; arm < kArms; ++arm) BeginAnew(arm);
}

bool Solver::Go(std::uint64_t ticks) {
  const std::uint64_t until = ticks_ + ticks;
  while (!found_ && ticks_ < until) {
    const std::size_t arm = turn_++ % kArms;
    Search& search = *arms_[arm];
    const std::uint64_t before = search.Ticks();
    if (search.Go(std::min(kSlice, until - ticks_))) found_ = search.Found();
    ticks_ += search.Ticks() - before;
    mostGems_ = std::max(mostGems_, search.MostGems());
    const bool last = arm == kArms - 1;
    if (search.Bytes() > mostBytes_ || (last && search.Ticks() >= Luby(rounds_) * kShortest)) BeginAnew(arm);
  }
  return found_.has_value();
}

}  // namespace zorik
