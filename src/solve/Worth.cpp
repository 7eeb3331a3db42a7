#include "solve/Worth.h"

#include <algorithm>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "solve/Mix.h"
#include "solve/Ways.h"

namespace zorik {
namespace {

constexpr int kMostBroken = 12;       // walls that count
constexpr int kBurntFinish = 3;       // what it takes from a fuse's worth
constexpr std::uint64_t kHeaps = 31;  // how many are told apart
constexpr std::array<Step, 4> kSteps{kLeft, kUp, kRight, kDown};

int Keys(const Grids& run) {
  return run.Count(kKeyRed) + run.Count(kKeyGreen) + run.Count(kKeyBlue) + run.Count(kCatKey);
}

// What stands for ever unless something blows up beside it.
int Walls(const RunState& run) {
  int walls = 0;
  ForEachCell(run, [&](Cell c) { walls += run.Field(c) == kBrick || run.Field(c) == kBiomass ? 1 : 0; });
  return walls;
}

// What tells situations apart even where the grain is coarse. Not gems: they can be taken in any order.
bool Lasts(std::uint16_t code) {
  return code == kBrick || code == kBiomass || IsKey(code) || code == kCatKey || code == kWallH ||
         code == kWallV || code == kFinish || (code >= kLockRed && code <= kLockBlue) || code == kSensor;
}

// How many bombs one spark would set off, without those that would burn a finish.
class Fuse {
 public:
  explicit Fuse(const Hra& run) : run_(run) {
    ForEachCell(run, [&](Cell c) {
      if (IsBomb(run, c) && !lit_.Has(c)) best_ = std::max(best_, Burn(c));
    });
  }
  int Worth() const { return best_; }

 private:
  int Burn(Cell first) {
    int worth = 0;
    std::vector<Cell> due{first};
    lit_.Add(first);
    while (!due.empty()) {
      const Cell c = due.back();
      due.pop_back();
      worth += 1;
      bool burns = false;
      for (int around = 0; around < 9; ++around) {
        const Cell next = c + Step{around % 3 - 1, around / 3 - 1};
        burns = burns || run_.Field(next) == kFinish;
        if (!IsBomb(run_, next) || lit_.Has(next)) continue;
        lit_.Add(next);
        due.push_back(next);
      }
      worth -= burns ? kBurntFinish : 0;
    }
    return worth;
  }

  const Hra& run_;
  CellSet lit_;
  int best_ = 0;
};

int Bombs(const Hra& run) {
  int bombs = 0;
  ForEachCell(run, [&](Cell c) { bombs += IsBomb(run, c) ? 1 : 0; });
  return bombs;
}

}  // namespace

Worth::Worth(const Hra& begin)
    : keys_(Keys(begin)),
      dogs_(LiveDogs(begin)),
      gems_(begin.Count(kGem)),
      walls_(Walls(begin)),
      bombs_(Bombs(begin)) {}

int Worth::Level(const Hra& run) const {
  const int gems = std::min(run.GemsCollected, run.GemsNeeded);
  const int open = std::min(ReachableGems(run), std::max(0, run.GemsNeeded - run.GemsCollected));
  const int made = std::max(0, run.GemsCollected + run.Count(kGem) - gems_);
  // A wall that is gone may be the way to all the rest.
  const int broken = std::clamp(walls_ - Walls(run), 0, kMostBroken);
  const int fuse = bombs_ > 0 ? Fuse(run).Worth() * 2 : 0;
  return gems * 4 + open * 3 + made + broken + fuse + (run.ExitOpen ? 8 : 0) + (keys_ - Keys(run)) * 4 -
         (dogs_ - LiveDogs(run)) * 6;
}

// The gems to which some dog could walk as things stand.
int Worth::ReachableGems(const Hra& run) const {
  seen_.fill(0);
  std::vector<Cell>& due = due_;
  due.clear();
  for (int n = 1; n <= run.DogCount; ++n) {
    const auto c = UnitCell(run, n);
    if (!c || !run.Dog[static_cast<std::size_t>(n)].Alive) continue;
    seen_[c->place()] = 1;
    due.push_back(*c);
  }
  int gems = 0;
  while (!due.empty()) {
    const Cell c = due.back();
    due.pop_back();
    for (const Step step : kSteps) {
      const Cell next = c + step;
      if (seen_[next.place()] != 0) continue;
      const std::uint16_t code = run.Field(next);
      if (code == kGem) ++gems;
      const bool pushed =
          (code == kBox || (code == kBoulder && step.dy == 0)) && run.Field(next + step) == kSpace;
      if (!pushed && !CanEnter(run, next) && code != kGem) continue;
      seen_[next.place()] = 1;
      due.push_back(next);
    }
  }
  return gems;
}

std::uint64_t Worth::Key(const Hra& run, int level) const {
  std::uint64_t hash =
      Mix(static_cast<std::uint64_t>(level + 1000), static_cast<std::uint64_t>(run.ActiveDog));
  std::uint64_t alive = 0;
  for (int n = 0; n <= run.DogCount; ++n) {
    const Unit& unit = run.Dog[static_cast<std::size_t>(n)];
    if (!unit.Alive) continue;
    alive |= 1U << static_cast<unsigned>(n);
    const bool exact = n == run.ActiveDog;
    hash = Mix(hash,
               static_cast<std::uint64_t>(exact ? unit.x * 128 + unit.y : (unit.x / 2) * 128 + unit.y / 2));
  }
  hash = Mix(hash, alive);
  if (run.CatPresent) hash = Mix(hash, static_cast<std::uint64_t>(run.CatPC));
  std::uint64_t heavy = 0;
  ForEachCell(run, [&](Cell c) {
    const std::uint16_t code = run.Field(c);
    if (code == kBoulder || code == kBox) heavy += (c.place() * 0x9E3779B97F4A7C15U) >> 40U;
  });
  return Mix(hash, heavy % kHeaps);
}

std::uint64_t Worth::Situation(const Hra& run, Grain grain) const {
  std::uint64_t lasting = 0, heavy = 0;
  ForEachCell(run, [&](Cell c) {
    const std::uint16_t code = run.Field(c);
    const std::uint64_t here = (c.place() * 64 + code % kCodes) * 0x9E3779B97F4A7C15U;
    const std::uint64_t mixed = here ^ (here >> 31U);
    if (Lasts(code)) lasting += run.FieldState(c) == kFalling ? 0 : mixed;
    if (IsBomb(run, c)) lasting += mixed * 3;
    const bool lies = code == kBoulder && run.FieldState(c) == kResting;
    if (lies || (code == kBox && !IsBomb(run, c))) heavy += mixed;
  });
  std::uint64_t hash = Mix(lasting, static_cast<std::uint64_t>(run.MagicState));
  for (int n = 0; n <= run.DogCount; ++n)
    hash = Mix(hash, run.Dog[static_cast<std::size_t>(n)].Alive ? 1U : 0U);
  if (grain == Grain::Heaps) hash = Mix(hash, heavy % kHeaps);
  if (grain == Grain::Things) hash = Mix(hash, heavy);
  return hash;
}

}  // namespace zorik
