#include "solve/Reach.h"

#include <algorithm>

#include "core/Machine.h"
#include "core/Patterns.h"

namespace zorik {
namespace {

constexpr std::array<Step, 4> kBeside{kLeft, kUp, kRight, kDown};
constexpr std::array<Step, 4> kAcross{Step{-1, -1}, Step{1, -1}, Step{-1, 1}, Step{1, 1}};
constexpr int kLeftByFly = 9;  // boulders, or gems of a butterfly

int CountOf(const RunState& run, std::initializer_list<std::uint16_t> codes) {
  int count = 0;
  ForEachCell(run, [&](Cell c) {
    count += std::find(codes.begin(), codes.end(), run.Field(c)) != codes.end() ? 1 : 0;
  });
  return count;
}

int CountResting(const RunState& run) {
  int count = 0;
  ForEachCell(run, [&](Cell c) { count += run.FieldState(c) == kResting ? 1 : 0; });
  return count;
}

bool HasMagicWall(const RunState& run) {
  bool has = false;
  ForEachCell(run, [&](Cell c) { has |= IsMagicWall(run, c); });
  return has;
}

}  // namespace

Reach::Reach(const Hra& run) : run_(run) {
  blasts_ = AnythingBlowsUp();
  growing_ = CountOf(run, {kWallH}) > 0;
  wide_ = CountOf(run, {kFly, kButterFly}) > 0;
  do {
    dogs_ = From(Starts(false));
    feedsDogs_ = WhatFeeds(dogs_);
    feedsAnybody_ = WhatFeeds(From(Starts(true)));
  } while (OpenMoreLocks());
}

// A single dog that is struck blows up, too, but nobody is left then who could go on.
bool Reach::AnythingBlowsUp() const {
  if (CountOf(run_, {kFireFly, kButterFly, kFly, kDragonFly, kFlea}) > 0) return true;
  bool bomb = false;
  ForEachCell(run_, [&](Cell c) { bomb |= IsBomb(run_, c); });
  const bool struck = CountResting(run_) > 0 && (LiveDogs(run_) > 1 || run_.CatPresent);
  return struck || bomb;
}

bool Reach::Opens(Cell c) const {
  const std::uint16_t code = run_.Field(c);
  if (code == kSteel) return false;
  if (blasts_) return true;
  if (code >= kLockRed && code <= kLockBlue) return unlocked_[static_cast<std::size_t>(code - kLockRed)];
  return code != kBrick && code != kBiomass && code != kWallH && code != kWallV && code != kSlime;
}

// A pad shows steel while something rides.
bool Reach::MaybeSplits(Cell c) const {
  const auto steel = [this](Cell side) {
    return run_.Field(side) == kSteel ||
           (run_.TeleportActive && (IsEntrance(run_, side) || IsExit(run_, side)));
  };
  return growing_ && run_.Field(c) != kSteel && steel(c + kLeft) && steel(c + kRight);
}

std::vector<Cell> Reach::Starts(bool cat) const {
  std::vector<Cell> starts;
  for (int n = 1; n <= run_.DogCount; ++n) {
    const auto c = UnitCell(run_, n);
    if (c && run_.Dog[static_cast<std::size_t>(n)].Alive) starts.push_back(*c);
  }
  if (cat && run_.CatPresent) starts.emplace_back(run_.CatX, run_.CatY);
  return starts;
}

// Whoever rides comes out at once: in truth it takes longer.
Reach::Distances Reach::From(const std::vector<Cell>& starts) const {
  Distances found{std::vector<int>(Cell::kPlaces, kNever)};
  std::vector<Cell> now = starts, next;
  for (int steps = 0; !now.empty(); ++steps, std::swap(now, next)) {
    next.clear();
    for (std::size_t i = 0; i < now.size(); ++i) {
      const Cell c = now[i];
      if (found.steps[c.place()] <= steps) continue;
      found.steps[c.place()] = steps;
      if (run_.TeleportActive && IsEntrance(run_, c)) now.push_back(run_.TeleportOut);
      for (const Step step : kBeside) {
        if (found.steps[(c + step).place()] == kNever && Opens(c + step)) next.push_back(c + step);
      }
    }
  }
  return found;
}

// The cells from which something can come into this one.
void Reach::AddSources(Cell c, std::vector<Cell>& sources) const {
  for (const Step step : kBeside) sources.push_back(c + step);
  // Through what lets things fall and stands all the same.
  const std::uint16_t above = run_.Field(c + kUp);
  if (above == kSlime || above == kBrick) sources.push_back(c + kUp + kUp);
  for (const Step side : {kLeft, kRight}) {
    const Cell mouth = c + kUp + side;
    if (MaybeSplits(mouth)) sources.push_back(mouth + kUp);
  }
  if (run_.TeleportActive && IsExit(run_, c)) sources.push_back(run_.TeleportIn);
  if (wide_) {
    for (const Step step : kAcross) sources.push_back(c + step);
  }
}

Reach::Cells Reach::WhatFeeds(const Distances& reached) const {
  Cells feeds(Cell::kPlaces);
  std::vector<Cell> due;
  ForEachCell(run_, [&](Cell c) {
    if (reached.steps[c.place()] < kNever) due.push_back(c);
  });
  while (!due.empty()) {
    const Cell c = due.back();
    due.pop_back();
    if (feeds[c.place()] || !Opens(c)) continue;
    feeds[c.place()] = true;
    AddSources(c, due);
  }
  return feeds;
}

bool Reach::OpenMoreLocks() {
  bool more = false;
  ForEachCell(run_, [&](Cell c) {
    const std::uint16_t code = run_.Field(c);
    if (!IsKey(code) || !FeedsAnybody(c)) return;
    bool& unlocked = unlocked_[static_cast<std::size_t>(code - kKeyRed)];
    more |= !unlocked;
    unlocked = true;
  });
  return more && !blasts_;
}

std::optional<int> MostGems(const Hra& run, const Reach& reach) {
  int gems = 0;
  bool amoeba = false, splitter = false;
  ForEachCell(run, [&](Cell c) {
    if (reach.MaybeSplits(c) && reach.FeedsDogs(c + kUp)) splitter = true;
    if (!reach.FeedsDogs(c)) return;
    gems += run.Field(c) == kGem ? 1 : 0;
    gems += run.Field(c) == kButterFly ? kLeftByFly : 0;
    amoeba |= run.Field(c) == kAmoeba;
  });
  if (run.MagicState != kMagicSpent && HasMagicWall(run) &&
      CountResting(run) + CountOf(run, {kFly, kButterFly, kAmoeba}) > 0) {
    // Where something has fallen into it, what grows or steps into the cell above falls into it, too.
    if (CountOf(run, {kAmoeba, kWallH, kWallV}) > 0) return std::nullopt;
    gems += CountResting(run) - run.Count(kGem) + kLeftByFly * CountOf(run, {kFly}) +
            CountOf(run, {kLockRed, kFireFly, kDragonFly, kFlea});
  }
  if (amoeba || (splitter && gems > 0)) return std::nullopt;
  return gems;
}

}  // namespace zorik
