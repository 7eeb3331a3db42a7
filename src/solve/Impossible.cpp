#include "solve/Impossible.h"

#include <algorithm>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "solve/Reach.h"

namespace zorik {
namespace {

std::optional<std::string> TooFewGems(const Hra& run, const Reach& reach) {
  const std::optional<int> most = MostGems(run, reach);
  if (!most || *most >= run.GemsNeeded) return std::nullopt;
  int there = 0;
  ForEachCell(run, [&](Cell c) { there += run.Field(c) == kGem && reach.FeedsDogs(c) ? 1 : 0; });
  const std::string needed =
      std::to_string(run.GemsNeeded) + " gems are needed, the dogs can come to " + std::to_string(there);
  if (*most <= there) return needed + ", and nothing makes more";
  return needed + ", and no more than " + std::to_string(*most) + " can come to be";
}

// What stays where it is. A cell over a magic wall keeps its state when it is emptied, and one of these that
// has grown into it can fall.
bool Stands(std::uint16_t code) {
  return code == kSteel || code == kBrick || code == kBiomass || code == kWallH || code == kWallV ||
         code == kSlime || code == kFinish || (code >= kLockRed && code <= kLockBlue);
}

}  // namespace

bool IsAtRest(const Hra& run) {
  if (run.TeleportStage != 0 || run.Count(kExplosion) > 0) return false;
  bool rests = true;
  ForEachCell(run, [&](Cell c) {
    const std::uint8_t state = run.FieldState(c);
    const bool loose = state == kResting && Stands(run.Field(c));
    rests = rests && state != kFalling && !loose && !IsStruckBomb(run, c);
  });
  return rests;
}

std::optional<int> FewestTicks(const Hra& run, const Reach& reach) {
  std::optional<int> fewest;
  ForEachCell(run, [&](Cell c) {
    if (run.Field(c) != kFinish || !reach.Dogs(c)) return;
    fewest = std::min(fewest.value_or(reach.Ticks(c)), reach.Ticks(c));
  });
  // A tick takes one gem, and the finish is a tick of its own.
  if (fewest) fewest = std::max(*fewest, std::max(0, run.GemsNeeded - run.GemsCollected) + 1);
  return fewest;
}

bool IsLost(const Hra& run) {
  if (run.Win) return false;
  const int time = run.TimeLimit * kTicksPerSecond - run.Elapsed;
  if (time <= 0) return true;
  if (LiveDogs(run) == 0) return !run.TeleportDogBusy;
  if (!IsAtRest(run)) return false;
  const Reach reach(run);
  const std::optional<int> fewest = FewestTicks(run, reach);
  if (!fewest || *fewest > time) return true;
  const std::optional<int> most = MostGems(run, reach);
  return most && *most < run.GemsNeeded - run.GemsCollected;
}

std::optional<std::string> WhyImpossible(const Hra& run) {
  if (LiveDogs(run) == 0) return "there is no dog";
  if (run.Count(kFinish) == 0) return "there is no finish";
  const Reach reach(run);
  const std::optional<int> fewest = FewestTicks(run, reach);
  if (!fewest) return "no dog can ever come to the finish";
  if (auto why = TooFewGems(run, reach)) return why;
  const int time = run.TimeLimit * kTicksPerSecond;
  if (*fewest <= time) return std::nullopt;
  return "no way is shorter than " + std::to_string(*fewest) + " ticks, and the time is up after " +
         std::to_string(time);
}

}  // namespace zorik
