#include "run/Rescue.h"

#include <algorithm>
#include <map>

#include "core/Machine.h"
#include "solve/Mix.h"

namespace zorik {
namespace {

constexpr int kSafe = 2 * kTicksPerSecond;  // who lives for so long beyond the death has been kept alive
constexpr std::size_t kWidest = 40;         // states that are followed from tick to tick

// The tick in which the last unit was lost.
std::optional<int> DeathIn(const Timeline& timeline) {
  const std::vector<RunEvent>& events = timeline.Events();
  const auto lost = std::find_if(events.rbegin(), events.rend(),
                                 [](const RunEvent& event) { return event.kind == RunEventKind::UnitLost; });
  if (lost == events.rend() || LiveDogs(*timeline.At(lost->tick)) > 0) return std::nullopt;
  return lost->tick;
}

}  // namespace

Rescue::Rescue(Timeline timeline, int back) : timeline_(std::move(timeline)) {
  const std::optional<int> death = DeathIn(timeline_);
  over_ = !death;
  if (over_) return;
  death_ = moment_ = *death;
  first_ = std::max(0, death_ - back);
  run_ = At(first_);
  snapshots_ = std::make_unique<Snapshots>(*run_);
}

std::unique_ptr<Hra> Rescue::At(int tick) const {
  auto run = timeline_.At(tick);
  TakeOver(*run);
  run->Kind = RunKind::Practice;
  return run;
}

bool Rescue::Go(std::uint64_t ticks) {
  const std::uint64_t until = ticks_ + ticks;
  while (!over_ && ticks_ < until) {
    if (branches_.empty()) {
      BeginOneTickEarlier();
    } else {
      GoOneTickOn();
    }
  }
  return over_;
}

// What the run itself did from here was tried one tick later.
void Rescue::BeginOneTickEarlier() {
  ++ticks_;
  IsNew(snapshots_->Keep(*At(moment_)));
  if (moment_ == first_) {
    over_ = true;
    return;
  }
  --moment_;
  branches_.push_back({snapshots_->Keep(*At(moment_)), {}});
}

void Rescue::GoOneTickOn() {
  std::vector<Branch> next;
  for (const Branch& branch : branches_) {
    for (Move move = kWait; move < kChooseBase && !over_; ++move) Follow(branch, move, next);
    for (int n = 0; n <= branch.state.facts.DogCount && !over_; ++n) {
      const bool other = n != branch.state.facts.ActiveDog;
      if (other && branch.state.facts.Dog[static_cast<std::size_t>(n)].Alive)
        Follow(branch, static_cast<Move>(kChooseBase + n), next);
    }
  }
  Narrow(next);
  branches_ = std::move(next);
}

void Rescue::Follow(const Branch& branch, Move move, std::vector<Branch>& next) {
  snapshots_->Restore(*run_, branch.state);
  ++ticks_;
  const TickEnd end = Tick(*run_, KeysOf(move));
  if (LiveDogs(*run_) == 0) return;
  Plan moves = branch.moves;
  moves.push_back(move);
  if (end == TickEnd::Won || moment_ + static_cast<int>(moves.size()) >= death_ + kSafe) {
    found_ = Escape{moment_, std::move(moves)};
    over_ = true;
    return;
  }
  Snapshots::Snapshot state = snapshots_->Keep(*run_);
  if (IsNew(state)) next.push_back({std::move(state), std::move(moves)});
}

// States that differ in chance alone are one: nobody is saved by luck.
bool Rescue::IsNew(const Snapshots::Snapshot& state) {
  std::uint64_t hash = Mix(static_cast<std::uint64_t>(state.facts.Ticks), Snapshots::HashOfCells(state));
  hash = Mix(hash, static_cast<std::uint64_t>(state.facts.ActiveDog));
  for (const Unit& unit : state.facts.Dog)
    hash = Mix(hash, static_cast<std::uint64_t>(unit.Alive ? unit.x * 256 + unit.y : -1));
  return seen_.insert(hash).second;
}

// Of too many those stay whose units stand in different places.
void Rescue::Narrow(std::vector<Branch>& branches) const {
  if (branches.size() <= kWidest) return;
  std::map<std::pair<int, int>, int> crowds;
  std::vector<std::pair<int, std::size_t>> order;
  for (std::size_t i = 0; i < branches.size(); ++i) {
    const RunFacts& facts = branches[i].state.facts;
    const Unit& unit = facts.Dog[static_cast<std::size_t>(facts.ActiveDog)];
    order.emplace_back(crowds[{unit.x, unit.y}]++, i);
  }
  std::sort(order.begin(), order.end());
  std::vector<Branch> kept;
  for (std::size_t i = 0; i < kWidest; ++i) kept.push_back(std::move(branches[order[i].second]));
  branches = std::move(kept);
}

}  // namespace zorik
