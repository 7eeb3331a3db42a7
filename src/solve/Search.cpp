#include "solve/Search.h"

#include <algorithm>

#include "core/Machine.h"

namespace zorik {
namespace {

constexpr int kMostBroken = 12;  // walls that count
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

std::uint64_t Mix(std::uint64_t hash, std::uint64_t value) {
  hash = (hash ^ value) * 0x9E3779B97F4A7C15U;
  return hash ^ (hash >> 29U);
}

bool Monster(std::uint16_t code) {
  return code == kFireFly || code == kButterFly || code == kFly || code == kDragonFly;
}

}  // namespace

Search::Search(const Hra& begin, std::uint64_t seed, Temper temper)
    : run_(begin), snapshots_(begin), chance_(seed), temper_(temper) {
  keysAtStart_ = Keys(run_);
  gemsAtStart_ = run_.Count(kGem);
  dogsAtStart_ = LiveDogs(run_);
  wallsAtStart_ = Walls(run_);
  limit_ = std::max(1, run_.TimeLimit * kTicksPerSecond);
  run_.CaveText.clear();
  run_.RecordText.clear();
  parent_ = -1;
  Keep();
}

int Search::Level() const {
  const int gems = std::min(run_.GemsCollected, run_.GemsNeeded);
  const int open = std::min(ReachableGems(), std::max(0, run_.GemsNeeded - run_.GemsCollected));
  const int made = std::max(0, run_.GemsCollected + run_.Count(kGem) - gemsAtStart_);
  // A wall that is gone may be the way to all the rest.
  const int broken = std::clamp(wallsAtStart_ - Walls(run_), 0, kMostBroken);
  return gems * 4 + open * 3 + made + broken + (run_.ExitOpen ? 8 : 0) + (keysAtStart_ - Keys(run_)) * 4 -
         (dogsAtStart_ - LiveDogs(run_)) * 6;
}

// The gems to which some dog could walk as things stand.
int Search::ReachableGems() const {
  seen_.fill(0);
  std::vector<Cell>& due = due_;
  due.clear();
  for (int n = 1; n <= run_.DogCount; ++n) {
    const auto c = UnitCell(run_, n);
    if (!c || !run_.Dog[static_cast<std::size_t>(n)].Alive) continue;
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
      const std::uint16_t code = run_.Field(next);
      if (code == kGem) ++gems;
      const bool pushed =
          (code == kBox || (code == kBoulder && step.dy == 0)) && run_.Field(next + step) == kSpace;
      if (!pushed && !CanEnter(run_, next) && code != kGem) continue;
      seen_[next.place()] = 1;
      due.push_back(next);
    }
  }
  return gems;
}

// Moments that are alike in what matters share a place in the archive: the earlier one stays.
std::uint64_t Search::Key(int level) const {
  std::uint64_t hash =
      Mix(static_cast<std::uint64_t>(level + 1000), static_cast<std::uint64_t>(run_.ActiveDog));
  std::uint64_t alive = 0;
  for (int n = 0; n <= run_.DogCount; ++n) {
    const Unit& unit = run_.Dog[static_cast<std::size_t>(n)];
    if (!unit.Alive) continue;
    alive |= 1U << static_cast<unsigned>(n);
    const bool exact = n == run_.ActiveDog;
    hash = Mix(hash,
               static_cast<std::uint64_t>(exact ? unit.x * 128 + unit.y : (unit.x / 2) * 128 + unit.y / 2));
  }
  hash = Mix(hash, alive);
  if (run_.CatPresent) hash = Mix(hash, static_cast<std::uint64_t>(run_.CatPC));
  std::uint64_t heavy = 0;
  ForEachCell(run_, [&](Cell c) {
    const std::uint16_t code = run_.Field(c);
    if (code == kBoulder || code == kBox) heavy += (c.place() * 0x9E3779B97F4A7C15U) >> 40U;
  });
  return Mix(hash, heavy % 31);
}

void Search::Keep() {
  const int level = Level();
  const std::uint64_t key = Key(level);
  const int length = parent_ < 0 ? 0 : parentLength_ + static_cast<int>(moves_.size());
  const auto [place, fresh] = known_.try_emplace(key, static_cast<std::int32_t>(nodes_.size()));
  if (!fresh && nodes_[static_cast<std::size_t>(place->second)].length <= length) return;
  mostGems_ = std::max(mostGems_, run_.GemsCollected);
  const auto number = static_cast<std::int32_t>(nodes_.size());
  if (!fresh) {
    // The old node stays as an ancestor, but is not returned to.
    auto& row = levels_[nodes_[static_cast<std::size_t>(place->second)].level];
    std::erase(row, place->second);
    Snapshots::Snapshot& old = nodes_[static_cast<std::size_t>(place->second)].snapshot;
    bytes_ -= Snapshots::SizeOf(old);
    old = {};
    place->second = number;
  }
  Node node;
  node.snapshot = snapshots_.Keep(run_);
  node.parent = parent_;
  node.moves = moves_;
  node.level = level;
  node.length = length;
  bytes_ += sizeof(Node) + Snapshots::SizeOf(node.snapshot) + node.moves.size();
  levels_[node.level].push_back(number);
  nodes_.push_back(std::move(node));
  parent_ = number;
  parentLength_ = length;
  moves_.clear();
}

std::size_t Search::Pick() {
  auto row = levels_.begin();
  if (OneIn(5)) {
    for (std::uint32_t skip = Below(static_cast<std::uint32_t>(levels_.size())); skip > 0; --skip) ++row;
  } else {
    while (std::next(row) != levels_.end() && !OneIn(temper_.greed)) ++row;
  }
  while (row->second.empty() && std::next(row) != levels_.end()) ++row;
  if (row->second.empty()) return 0;
  std::int32_t best = -1;
  for (int i = 0; i < 3; ++i) {
    const std::int32_t candidate = row->second[Below(static_cast<std::uint32_t>(row->second.size()))];
    const auto worth = [this](std::int32_t node) {
      const Node& n = nodes_[static_cast<std::size_t>(node)];
      return n.promise - n.visits - n.length * temper_.haste / limit_;
    };
    if (best < 0 || worth(candidate) > worth(best)) best = candidate;
  }
  return static_cast<std::size_t>(best);
}

Plan Search::PlanTo(std::int32_t node) const {
  std::vector<const Plan*> parts;
  for (; node >= 0; node = nodes_[static_cast<std::size_t>(node)].parent)
    parts.push_back(&nodes_[static_cast<std::size_t>(node)].moves);
  Plan plan;
  for (auto part = parts.rbegin(); part != parts.rend(); ++part)
    plan.insert(plan.end(), (*part)->begin(), (*part)->end());
  return plan;
}

Plan Search::BestPlan() const {
  const auto row =
      std::find_if(levels_.begin(), levels_.end(), [](const auto& level) { return !level.second.empty(); });
  if (row == levels_.end()) return {};
  const auto length = [this](std::int32_t node) { return nodes_[static_cast<std::size_t>(node)].length; };
  return PlanTo(*std::min_element(row->second.begin(), row->second.end(),
                                  [&](std::int32_t a, std::int32_t b) { return length(a) < length(b); }));
}

bool Search::Go(std::uint64_t ticks) {
  const std::uint64_t until = ticks_ + ticks;
  while (!found_ && ticks_ < until) Explore(Pick());
  return found_.has_value();
}

void Search::Explore(std::size_t number) {
  Node& node = nodes_[number];
  ++node.visits;
  snapshots_.Restore(run_, node.snapshot);
  parent_ = static_cast<std::int32_t>(number);
  parentLength_ = node.length;
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
    found_ = PlanTo(parent_);
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
    nodes_[static_cast<std::size_t>(parent_)].promise =
        static_cast<int>(std::min<std::size_t>(goals.size(), 8));
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

void Search::PushSomething() {
  FindWays();
  std::vector<std::pair<Cell, std::uint8_t>> chances;
  for (const Cell c : ways_.Reached()) {
    if (chances.size() >= 40) break;
    for (std::uint8_t direction = 0; direction < 4; ++direction) {
      const Step step = kSteps[direction];
      const std::uint16_t code = run_.Field(c + step);
      const bool can = code == kBox || (code == kBoulder && step.dy == 0);
      if (can && run_.Field(c + step + step) == kSpace) chances.emplace_back(c, direction);
    }
  }
  if (chances.empty()) return Wander();
  const auto [stand, direction] = chances[Below(static_cast<std::uint32_t>(chances.size()))];
  Follow(stand);
  const Move move = static_cast<Move>((OneIn(4) ? kActBase : kStepBase) + direction);
  for (std::uint32_t i = 1 + Below(8); i > 0; --i) {
    if (!Do(move)) return;
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
