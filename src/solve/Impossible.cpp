#include "solve/Impossible.h"

#include <vector>

#include "core/Machine.h"
#include "core/Patterns.h"

namespace zorik {
namespace {

// What a dog could ever come to if everything but steel gave way: nothing destroys steel.
struct Within {
  bool finish = false;
  int gems = 0;
  bool makesGems = false;  // something in there may make gems, or two of one
};

bool MakesGems(const RunState& run, Cell c) {
  switch (run.Field(c)) {
    case kButterFly:
    case kAmoeba:
    case kWallH:  // perhaps the mouth of a splitter
      return true;
    default:
      return IsMagicWall(run, c);
  }
}

Within LookAround(const Hra& run) {
  Within within;
  std::vector<bool> seen(Cell::kPlaces);
  std::vector<Cell> due;
  const auto enter = [&](Cell c) {
    if (seen[c.place()] || run.Field(c) == kSteel) return;
    seen[c.place()] = true;
    due.push_back(c);
  };
  for (int n = 1; n <= run.DogCount; ++n) {
    if (const auto c = UnitCell(run, n); c && run.Dog[static_cast<std::size_t>(n)].Alive) enter(*c);
  }
  while (!due.empty()) {
    const Cell c = due.back();
    due.pop_back();
    within.finish |= run.Field(c) == kFinish;
    within.gems += run.Field(c) == kGem ? 1 : 0;
    within.makesGems |= MakesGems(run, c);
    for (const Step step : {kLeft, kUp, kRight, kDown}) enter(c + step);
    // What rides comes out there: the dog, but also a gem from where no dog can go.
    if (run.TeleportActive && c == run.TeleportIn) enter(run.TeleportOut);
    if (run.TeleportActive && c == run.TeleportOut) enter(run.TeleportIn);
  }
  return within;
}

bool AnyDog(const Hra& run) {
  for (int n = 1; n <= run.DogCount; ++n) {
    if (run.Dog[static_cast<std::size_t>(n)].Alive) return true;
  }
  return false;
}

}  // namespace

std::optional<std::string> WhyImpossible(const Hra& run) {
  if (!AnyDog(run)) return "there is no dog";
  if (run.Count(kFinish) == 0) return "there is no finish";
  const Within within = LookAround(run);
  if (!within.finish) return "steel stands between the dogs and the finish";
  if (within.makesGems || within.gems >= run.GemsNeeded) return std::nullopt;
  return std::to_string(run.GemsNeeded) + " gems are needed, the dogs can come to " +
         std::to_string(within.gems) + ", and nothing makes more";
}

}  // namespace zorik
