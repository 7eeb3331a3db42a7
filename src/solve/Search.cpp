#include "solve/Search.h"

#include <algorithm>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "solve/Impossible.h"

namespace zorik {
namespace {

constexpr int kMostVain = 30;  // tries at a push that does not move
constexpr std::array<Step, 4> kSteps{kLeft, kUp, kRight, kDown};

bool Monster(std::uint16_t code) {
  return code == kFireFly || code == kButterFly || code == kFly || code == kDragonFly;
}

}  // namespace

Search::Search(const Hra& begin, std::uint64_t seed, Temper temper)
    : run_(begin),
      snapshots_(begin),
      chance_(seed),
      temper_(temper),
      worth_(begin),
      archive_(temper, std::max(1, begin.TimeLimit * kTicksPerSecond)) {
  run_.CaveText.clear();
  run_.RecordText.clear();
  parent_ = -1;
  Keep();
}

// Only what blows up or is used up takes the last chance away; to look is dear.
bool Search::Lost() {
  const int turnings = run_.Explosions * 4 + run_.MagicState;
  if (turnings == turnings_ || !IsAtRest(run_)) return false;
  turnings_ = turnings;
  return parent_ >= 0 && IsLost(run_);
}

void Search::Keep() {
  if (Lost()) {
    over_ = true;
    return;
  }
  const int level = worth_.Level(run_);
  const std::uint64_t situation = temper_.grain == Grain::None ? 0 : worth_.Situation(run_, temper_.grain);
  const std::uint64_t key = worth_.Key(run_, level) ^ situation;
  const int length = parentLength_ + static_cast<int>(moves_.size());
  if (!archive_.Wants(key, length)) return;
  mostGems_ = std::max(mostGems_, run_.GemsCollected);
  Archive::Node node;
  node.snapshot = snapshots_.Keep(run_);
  node.parent = parent_;
  node.moves = moves_;
  node.level = level;
  node.length = length;
  node.turnings = turnings_;
  parent_ = archive_.Add(key, situation, std::move(node));
  parentLength_ = length;
  moves_.clear();
}

Plan Search::BestPlan() const {
  return archive_.PlanTo(archive_.Best());
}

bool Search::Go(std::uint64_t ticks) {
  const std::uint64_t until = ticks_ + ticks;
  while (!found_ && ticks_ < until) Explore(archive_.Pick(chance_));
  return found_.has_value();
}

void Search::Explore(std::int32_t number) {
  Archive::Node& node = archive_[number];
  ++node.visits;
  snapshots_.Restore(run_, node.snapshot);
  parent_ = number;
  parentLength_ = node.length;
  turnings_ = node.turnings;
  moves_.clear();
  over_ = false;
  const std::uint32_t tries = 1 + Below(4);
  for (std::uint32_t i = 0; i < tries && !over_; ++i) {
    Try();
    if (!over_) Keep();
  }
}

// One tick. False when nothing more can come of this run, or it is won.
bool Search::Do(Move move) {
  if (over_ || Trespasses(run_, move, avoided_)) return false;
  const int gems = run_.GemsCollected;
  const bool open = run_.ExitOpen;
  ++ticks_;
  run_.RecordText.clear();
  moves_.push_back(move);
  const TickEnd end = Tick(run_, KeysOf(move));
  if (end == TickEnd::Won) {
    found_ = archive_.PlanTo(parent_);
    found_->insert(found_->end(), moves_.begin(), moves_.end());
    over_ = true;
    return false;
  }
  if (parentLength_ + static_cast<int>(moves_.size()) + 1 >= bound_ || LiveDogs(run_) == 0 ||
      run_.Elapsed >= run_.TimeLimit * kTicksPerSecond) {
    over_ = true;
    return false;
  }
  if (run_.GemsCollected != gems || run_.ExitOpen != open) Keep();
  return ActiveUnit(run_).Alive;
}

void Search::Try() {
  ++ticks_;  // choosing costs something, too
  if (!ActiveUnit(run_).Alive || (run_.MultiDog && OneIn(4))) ChooseUnit();
  if (over_ || !ActiveUnit(run_).Alive) return;
  if (run_.ActiveDog == 0) return SwarmAbout();
  const std::uint32_t what = Below(16);
  if (what < 8) return FetchSomething();
  if (what < 10) return PushSomething();
  if (what < 11) return DropSomething();
  if (what < 12) return WalkAnywhere();
  if (what < 14) return Wander();
  Wait();
}

void Search::ChooseUnit() {
  std::array<int, kUnits> living{};
  std::uint32_t count = 0;
  for (int n = 0; n <= run_.DogCount; ++n) {
    if (n != run_.ActiveDog && run_.Dog[static_cast<std::size_t>(n)].Alive) living[count++] = n;
  }
  if (count == 0) return;
  Do(static_cast<Move>(kChooseBase + living[Below(count)]));
}

void Search::FindWays() {
  const auto own = UnitCell(run_, run_.ActiveDog);
  ways_.Find(run_, own.value_or(Cell(0, 0)), OneIn(3) ? 1 + Below(6) : 0, chance_);
}

bool Search::Risky(Cell target) const {
  const Cell above = target + kUp;
  if (run_.FieldState(above) == kFalling) return true;
  for (const Step step : kSteps) {
    if (Monster(run_.Field(target + step))) return true;
  }
  return false;
}

void Search::Follow(Cell goal) {
  const std::uint32_t care = Below(4);  // 0: none
  for (const std::uint8_t direction : ways_.To(goal)) {
    const Step step = kSteps[direction];
    for (int tries = 0;; ++tries) {
      const auto before = UnitCell(run_, run_.ActiveDog);
      if (!before || tries > 12) return;
      const Cell target = *before + step;
      if (care > 0 && tries < 6 && Risky(target)) {
        if (!Do(kWait)) return;
        continue;
      }
      if (!CanEnter(run_, target) && run_.Field(target) != kBox && run_.Field(target) != kBoulder) return;
      if (!Do(static_cast<Move>(kStepBase + direction))) return;
      if (UnitCell(run_, run_.ActiveDog) != before) break;
    }
  }
}

void Search::FetchSomething() {
  FindWays();
  std::vector<Cell> goals;
  for (const Cell c : ways_.Reached()) {
    const std::uint16_t code = run_.Field(c);
    if (code == kFinish) return Follow(c);
    const bool worth = (code == kGem && !run_.ExitOpen) || IsKey(code) || code == kCatKey;
    if (worth) goals.push_back(c);
    if (goals.size() >= 12) break;
  }
  if (moves_.empty() && parent_ >= 0)
    archive_[parent_].promise = static_cast<int>(std::min<std::size_t>(goals.size(), 8));
  if (goals.empty()) return OneIn(2) ? PushSomething() : WalkAnywhere();
  std::uint32_t which = 0;
  while (which + 1 < goals.size() && OneIn(2)) ++which;
  const Cell goal = goals[which];
  if (OneIn(8) && ways_.Cost(goal) > 1) {
    // At arm's length.
    const std::vector<std::uint8_t> way = ways_.To(goal);
    Follow(goal - kSteps[way.back()]);
    if (!over_) Do(static_cast<Move>(kActBase + way.back()));
    return;
  }
  Follow(goal);
}

// A box, or a boulder that lies; a bomb rather than those.
void Search::PushSomething() {
  FindWays();
  std::vector<std::pair<Cell, std::uint8_t>> chances, bombs;
  for (const Cell c : ways_.Reached()) {
    if (chances.size() >= 40) break;
    for (std::uint8_t direction = 0; direction < 4; ++direction) {
      const Step step = kSteps[direction];
      const std::uint16_t code = run_.Field(c + step);
      const bool can = code == kBox || (code == kBoulder && step.dy == 0);
      if (!can || run_.Field(c + step + step) != kSpace) continue;
      (IsBomb(run_, c + step) ? bombs : chances).emplace_back(c, direction);
    }
  }
  if (!bombs.empty() && (chances.empty() || OneIn(2))) chances = std::move(bombs);
  if (chances.empty()) return Wander();
  const auto [stand, direction] = chances[Below(static_cast<std::uint32_t>(chances.size()))];
  Follow(stand);
  if (OneIn(2)) return Push(direction, 1 + static_cast<int>(Below(1U << Below(5))));
  const Move move = static_cast<Move>((OneIn(4) ? kActBase : kStepBase) + direction);
  for (std::uint32_t i = 1 + Below(8); i > 0; --i) {
    if (!Do(move)) return;
  }
}

// So many cells far, however long chance keeps it back.
void Search::Push(std::uint8_t direction, int cells) {
  for (int vain = 0; cells > 0 && vain < kMostVain;) {
    const auto before = UnitCell(run_, run_.ActiveDog);
    if (!before || !Do(static_cast<Move>(kStepBase + direction))) return;
    const bool moved = UnitCell(run_, run_.ActiveDog) != before;
    cells -= moved ? 1 : 0;
    vain = moved ? 0 : vain + 1;
  }
}

// Takes away at arm's length what something lies upon, and may look on.
void Search::DropSomething() {
  FindWays();
  std::vector<std::pair<Cell, std::uint8_t>> chances;
  for (const Cell c : ways_.Reached()) {
    if (chances.size() >= 40) break;
    for (std::uint8_t direction = 0; direction < 4; ++direction) {
      const Cell held = c + kSteps[direction];
      const std::uint16_t code = run_.Field(held);
      const bool can = code == kDirt || code == kGem || IsKey(code);
      if (can && kSteps[direction].dy <= 0 && run_.FieldState(held + kUp) == kResting)
        chances.emplace_back(c, direction);
    }
  }
  if (chances.empty()) return Wander();
  const auto [stand, direction] = chances[Below(static_cast<std::uint32_t>(chances.size()))];
  Follow(stand);
  if (over_ || UnitCell(run_, run_.ActiveDog) != stand) return;
  for (std::uint32_t wait = OneIn(2) ? Below(30) : 0; wait > 0; --wait) {
    if (!Do(kWait)) return;
  }
  if (!Do(static_cast<Move>(kActBase + direction))) return;
  if (kSteps[direction].dy != 0 || OneIn(2)) Do(static_cast<Move>(kStepBase + Below(4)));
  for (std::uint32_t wait = Below(20); wait > 0; --wait) {
    if (!Do(kWait)) return;
  }
}

void Search::WalkAnywhere() {
  FindWays();
  const auto& reached = ways_.Reached();
  if (reached.size() < 2) return Wander();
  const std::uint32_t near =
      std::min<std::uint32_t>(static_cast<std::uint32_t>(reached.size()) - 1, OneIn(2) ? 30 : 1000);
  Follow(reached[1 + Below(near)]);
}

void Search::Wander() {
  for (std::uint32_t i = 1 + Below(5); i > 0; --i) {
    const Move base = OneIn(5) ? kActBase : kStepBase;
    if (!Do(static_cast<Move>(base + Below(4)))) return;
  }
}

void Search::Wait() {
  if (run_.Count(kAmoeba) > 0 && OneIn(3)) {
    // Until something has come to be.
    const int gems = run_.Count(kGem);
    for (int i = 0; i < 300 && run_.Count(kGem) <= gems; ++i) {
      if (!Do(kWait)) return;
    }
    return;
  }
  for (std::uint32_t i = 1U << Below(6); i > 0; --i) {
    if (!Do(kWait)) return;
  }
}

void Search::SwarmAbout() {
  for (std::uint32_t turns = 1 + Below(3); turns > 0; --turns) {
    const Move move = static_cast<Move>(kStepBase + Below(4));
    for (std::uint32_t i = 1 + Below(12); i > 0; --i) {
      if (!Do(move)) return;
    }
  }
}

}  // namespace zorik
