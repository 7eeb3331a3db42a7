#include "solve/Review.h"

#include <algorithm>
#include <memory>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "data/Result.h"
#include "solve/Traces.h"

namespace zorik {
namespace {

constexpr std::array<Step, 4> kSteps{kLeft, kUp, kRight, kDown};
constexpr int kFarthestPrey = 12;  // cells: what is let fall may be meant for a monster so far away
constexpr int kNear = 2;           // cells: a monster that comes so close to a dog has been met

std::size_t PlaceOf(std::string_view word) {
  const auto thing = std::find_if(kThings.begin(), kThings.end(),
                                  [word](const Thing& candidate) { return candidate.word == word; });
  return static_cast<std::size_t>(thing - kThings.begin());
}

bool Monster(std::uint16_t code) {
  return (Grids::Traits(code) & trait::kMonster) != 0;
}

// What goes its way without chance.
bool Circles(std::uint16_t code) {
  return code == kFireFly || code == kButterFly;
}

// The thing that a resting cell of a new cave shows.
std::optional<std::size_t> ThingAt(const Hra& run, Cell c) {
  if (IsSplitterMouth(run, c)) return kSplitterThing;
  for (const ObjectLetter& letter : kObjectLetters) {
    if (letter.code != run.Field(c) || letter.state != run.FieldState(c)) continue;
    for (std::size_t i = 0; i < kThings.size(); ++i) {
      if (kThings[i].letters.find(letter.letter) != std::string_view::npos && letter.code != kDog) return i;
    }
  }
  return std::nullopt;
}

// Whether a dog that lives dies within so many ticks if nobody presses a key; after how many.
int TicksToDeath(const Hra& run) {
  const auto copy = std::make_unique<Hra>(run);
  copy->Kind = RunKind::Play;
  const int dogs = LiveDogs(*copy);
  for (int tick = 1; tick < Review::kNoDanger; ++tick) {
    copy->RecordText.clear();
    Tick(*copy, {});
    if (LiveDogs(*copy) < dogs) return tick;
  }
  return Review::kNoDanger;
}

class Reviewer {
 public:
  explicit Reviewer(Hra& run) : run_(run), before_(run), start_(run) {
    review_.touched.resize(Cell::kPlaces);
    review_.margin = Review::kNoDanger;
    present_ = ThingsIn(run);
  }

  Result<Review> Watch() {
    TouchDogs();
    TickEnd end = TickEnd::Running;
    while (end == TickEnd::Running) {
      static_cast<RunState&>(before_) = run_;
      end = Tick(run_, {});
      dry_ |= run_.RanDry;
      Look();
    }
    if (end != TickEnd::Won) return Failure{"the record does not win"};
    if (dry_) return Failure{"the record is damaged"};
    Count();
    ForgetTheSpared();
    return std::move(review_);
  }

 private:
  void Look() {
    Doing();
    Danger();
    Cells();
    Things();
    ++review_.ticks;
  }

  void Use(std::string_view word) { Use(PlaceOf(word)); }
  void Use(std::size_t thing) { review_.used |= present_ & (std::uint64_t{1} << thing); }

  void Touch(Cell c) {
    review_.touched[c.place()] = true;
    if (const auto thing = ThingAt(start_, c)) {
      const std::uint16_t code = start_.Field(c);
      if (!Monster(code) && code != kAmoeba && code != kCat && code != kFlea) Use(*thing);
    }
  }

  void Doing() {
    const bool chose = run_.ActiveDog != before_.ActiveDog;
    const std::optional<Deed> deed = DeedOfTick();
    if (deed) review_.deeds.push_back(*deed);
    if (deed || chose) {
      stretch_ = 0;
      return;
    }
    ++review_.idleTicks;
    if (++stretch_ <= review_.idleStretch) return;
    review_.idleStretch = stretch_;
    review_.idleFrom = review_.ticks - stretch_ + 1;
  }

  std::optional<Deed> DeedOfTick() const {
    if (run_.KeyDirection < kKeyLeft || run_.KeyDirection > kKeyDown) return std::nullopt;
    Deed deed;
    deed.tick = review_.ticks;
    deed.unit = run_.ActiveDog;
    deed.direction = run_.KeyDirection - kKeyLeft;
    deed.action = run_.KeyAction != 0;
    const auto unit = static_cast<std::size_t>(deed.unit);
    if (deed.unit == 0) return FleasMoved() ? std::optional(deed) : std::nullopt;
    const auto from = CellAt(before_.Dog[unit].x, before_.Dog[unit].y);
    if (!from) return std::nullopt;
    deed.from = *from;
    deed.target = *from + kSteps[static_cast<std::size_t>(deed.direction)];
    deed.found = before_.Field(deed.target);
    deed.moved = run_.Dog[unit].x != before_.Dog[unit].x || run_.Dog[unit].y != before_.Dog[unit].y;
    const bool pushed = deed.found == kBox || deed.found == kBoulder;
    deed.changed = run_.Field(deed.target) != deed.found && !Monster(deed.found);
    if (!deed.moved && !pushed && !deed.changed) return std::nullopt;
    if (deed.changed && before_.FieldState(deed.target + kUp) == kResting) LookForPrey(deed);
    return deed;
  }

  // The nearest monster of those that what is let fall may hit.
  void LookForPrey(Deed& deed) const {
    int nearest = kFarthestPrey + 1;
    ForEachCell(before_, [&](Cell c) {
      const int aside = std::abs(c.x() - deed.target.x()), below = c.y() - deed.target.y();
      if (!Circles(before_.Field(c)) || below < 0 || aside + below >= nearest) return;
      nearest = aside + below;
      deed.prey = c;
      deed.preyKind = before_.Field(c);
      deed.preyMark = before_.FieldMark(c);
    });
  }

  bool FleasMoved() const {
    bool moved = false;
    ForEachCell(run_, [&](Cell c) { moved |= (run_.Field(c) == kFlea) != (before_.Field(c) == kFlea); });
    return moved;
  }

  void Danger() {
    const int death = run_.Win ? Review::kNoDanger : TicksToDeath(run_);
    if (death < Review::kNoDanger && !inDanger_) ++review_.closeCalls;
    inDanger_ = death < Review::kNoDanger;
    review_.margin = std::min(review_.margin, death);
  }

  void TouchDogs() {
    for (int n = 1; n <= run_.DogCount; ++n) {
      if (const auto c = UnitCell(run_, n); c && run_.Field(*c) == kDog) Touch(*c);
    }
  }

  void Cells() {
    TouchDogs();
    if (!review_.deeds.empty() && review_.deeds.back().tick == review_.ticks)
      Touch(review_.deeds.back().target);
    ForEachCell(run_, [&](Cell c) {
      const std::uint16_t was = before_.Field(c), is = run_.Field(c);
      if (LeavesTrace(was, is)) Touch(c);
      if (is == kExplosion && was != kExplosion) Burn(was);
      if (was == kSpace && run_.FieldState(c) == kFalling) Fell(c);
      if (is == kWallH && was != kWallH) Use("wall that grows aside");
      if (is == kWallV && was != kWallV) Use("wall that grows upright");
      if (is == kSensor && run_.FieldMark(c) > 0) Use("sensor");
      if ((was == kAmoeba) != (is == kAmoeba)) Use("amoeba");
      if (Monster(is)) Meet(c, is);
    });
  }

  void Burn(std::uint16_t code) {
    if (Monster(code)) Use(WordOf(code));
    if (Circles(code)) burnt_.emplace_back(review_.ticks, code);
    if (code == kFlea) Use("fleas");
    if (code == kCat) Use("cat");
  }

  static std::string_view WordOf(std::uint16_t monster) {
    if (monster == kFireFly) return "firefly";
    if (monster == kButterFly) return "butterfly";
    return monster == kFly ? "fly" : "dragonfly";
  }

  void Meet(Cell c, std::uint16_t code) {
    const auto dog = UnitCell(run_, run_.ActiveDog);
    if (dog && std::abs(dog->x() - c.x()) <= kNear && std::abs(dog->y() - c.y()) <= kNear) Use(WordOf(code));
  }

  // Something falls where nothing was.
  void Fell(Cell c) {
    for (const Cell passed : PassedBy(before_, c)) {
      if (before_.Field(passed) == kSlime) {
        Use("slime");
      } else {
        Use(kSplitterThing);
      }
      review_.touched[passed.place()] = true;
    }
  }

  void Things() {
    if (run_.MagicState != kMagicDormant) Use("magic wall");
    if (run_.TeleportStage > 0) Use(kTeleportThing);
    if (run_.CatX != before_.CatX || run_.CatY != before_.CatY) Use("cat");
    if (run_.ActiveDog != before_.ActiveDog) Use(run_.ActiveDog == 0 ? "fleas" : "dogs");
  }

  // A monster that lived on was not meant.
  void ForgetTheSpared() {
    for (Deed& deed : review_.deeds) {
      const bool hit = std::any_of(burnt_.begin(), burnt_.end(), [&deed](const auto& burnt) {
        const int after = burnt.first - deed.tick;
        return burnt.second == deed.preyKind && after > 0 && after <= kFarthestPrey + kTicksPerSecond;
      });
      if (!hit) deed.prey.reset();
    }
  }

  // What is done to one kind of thing within a second is one decision; so is a change of the unit, a rest of
  // more than a second, and a step aside.
  void Count() {
    int last = -kTicksPerSecond;
    std::uint16_t kind = kSpace;
    int unit = 1, tick = 0;
    for (const Deed& deed : review_.deeds) {
      const bool rest = deed.tick - tick > kTicksPerSecond;
      const bool goal = deed.found != kSpace && deed.found != kDirt;
      tick = deed.tick;
      if (deed.unit != unit || rest) ++review_.decisions;
      unit = deed.unit;
      if (!goal) continue;
      if (deed.found != kind || deed.tick - last > kTicksPerSecond) ++review_.decisions;
      kind = deed.found;
      last = deed.tick;
    }
  }

  Hra& run_;
  Hra before_;
  const Hra start_;
  std::uint64_t present_ = 0;
  Review review_;
  int stretch_ = 0;
  bool inDanger_ = false;
  std::vector<std::pair<int, std::uint16_t>> burnt_;  // ticks in which monsters blew up
  bool dry_ = false;
};

}  // namespace

std::uint64_t ThingsIn(const Hra& run) {
  std::uint64_t things = 0;
  ForEachCell(run, [&](Cell c) {
    if (const auto thing = ThingAt(run, c)) things |= std::uint64_t{1} << *thing;
  });
  if (LiveDogs(run) > 1) things |= std::uint64_t{1} << PlaceOf("dogs");
  if (run.TeleportActive) things |= std::uint64_t{1} << kTeleportThing;
  return things;
}

Result<Review> ReviewRecord(const std::string& bytes) {
  const auto run = std::make_unique<Hra>();
  if (const Result<Done> started = Replay(*run, bytes); !started) return Failure{started.Message()};
  return std::make_unique<Reviewer>(*run)->Watch();
}

}  // namespace zorik
