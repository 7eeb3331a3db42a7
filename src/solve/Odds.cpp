#include "solve/Odds.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "data/Result.h"
#include "solve/Move.h"
#include "solve/Search.h"
#include "solve/Ways.h"

namespace zorik {
namespace {

constexpr std::array<Step, 4> kSteps{kLeft, kUp, kRight, kDown};
constexpr int kLookAhead = 8;             // deeds
constexpr int kPatience = 150;            // ticks to wait for a deed beyond its time
constexpr int kLostPatience = 15;         // the same once the way was lost
constexpr int kDodges = 20;               // ticks of a walk that may be spent with that
constexpr int kGettingOff = 3;            // ticks from a ride until a dog is found missing
constexpr int kHorizon = 8;               // ticks that a step aside should be good for
constexpr int kPushes = 60;               // tries
constexpr int kVainRescues = 6;           // searches for a lost way in a row that bring nothing new
constexpr std::uint64_t kRescue = 8'000;  // ticks of one of them

bool IsPushed(std::uint16_t code) {
  return code == kBox || code == kBoulder;
}

bool IsTaken(std::uint16_t code) {
  return code == kGem || IsKey(code) || code == kCatKey;
}

class Follower {
 public:
  Follower(const std::string& caveText, const std::vector<Deed>& deeds, std::uint64_t seed,
           const std::function<bool()>& enough, int rescues)
      : run_(seed), ahead_(0), other_(~seed), enough_(enough), mostRescues_(rescues) {
    // What was tried in vain is tried anew, as often as chance wants it here.
    std::copy_if(deeds.begin(), deeds.end(), std::back_inserter(deeds_),
                 [](const Deed& deed) { return deed.moved || deed.changed || deed.unit == 0; });
    started_ = static_cast<bool>(PaintCave(run_, caveText, RunKind::Play));
    run_.CaveText.clear();
  }

  bool Run() {
    if (!started_) return false;
    while (Going()) {
      if (next_ < deeds_.size() && Carry(deeds_[next_])) {
        ++next_;
      } else if (!Rescue()) {
        break;
      }
    }
    return won_;
  }

 private:
  bool Going() const { return !over_ && !enough_(); }

  // One tick of the run that counts.
  bool Do(Move move) {
    if (over_) return false;
    run_.RecordText.clear();
    won_ = Tick(run_, KeysOf(move)) == TickEnd::Won;
    over_ = won_ || LiveDogs(run_) == 0 || run_.Elapsed >= run_.TimeLimit * kTicksPerSecond;
    return !over_;
  }

  // How many ticks pass until a dog dies that lives now, so many at the most: a look ahead in which chance is
  // another one. Behind the moves no key is pressed. Where one dog rides and another one gets off, a dog is
  // missing afterwards: that is the teleport's price, no death.
  int Survival(const std::vector<Move>& moves, int ticks) {
    ahead_ = run_;
    ahead_.Luck = Chance(other_.Below(1U << 30U));
    int dogs = LiveDogs(ahead_), riding = 0;
    for (int tick = 0; tick < ticks; ++tick) {
      const auto place = static_cast<std::size_t>(tick);
      ahead_.RecordText.clear();
      if (Tick(ahead_, KeysOf(place < moves.size() ? moves[place] : kWait)) == TickEnd::Won) return ticks;
      riding = ahead_.TeleportDogBusy ? kGettingOff : std::max(0, riding - 1);
      if (riding > 0) dogs = std::min(dogs, LiveDogs(ahead_));
      if (LiveDogs(ahead_) < dogs) return tick;
    }
    return ticks;
  }

  bool Kills(const std::vector<Move>& moves, int after) {
    const int ticks = static_cast<int>(moves.size()) + after;
    return Survival(moves, ticks) < ticks;
  }

  std::vector<Move> Coming() const {
    std::vector<Move> moves;
    for (std::size_t i = next_; i < std::min(next_ + kLookAhead, deeds_.size()); ++i) {
      for (int wait = i > next_ ? deeds_[i].tick - deeds_[i - 1].tick - 1 : 0; wait > 0; --wait)
        moves.push_back(kWait);
      if (moves.size() > 2 * kLookAhead) break;
      moves.push_back(MoveOf(deeds_[i]));
    }
    return moves;
  }

  static Move MoveOf(const Deed& deed) {
    return static_cast<Move>((deed.action ? kActBase : kStepBase) + deed.direction);
  }

  bool Choose(int unit) {
    if (run_.ActiveDog == unit) return true;
    if (!run_.Dog[static_cast<std::size_t>(unit)].Alive) return false;
    return Do(static_cast<Move>(kChooseBase + unit)) && run_.ActiveDog == unit;
  }

  // Whether the cell holds now what the deed found there, as far as the deed needs it.
  bool Ready(const Deed& deed) const {
    const std::uint16_t code = run_.Field(deed.target);
    if (deed.found == kFinish) return IsOpenFinish(run_, deed.target);
    if (IsPushed(deed.found)) {
      const Step step = kSteps[static_cast<std::size_t>(deed.direction)];
      return code == deed.found && (run_.Field(deed.target + step) == kSpace || !deed.moved || code == kBox);
    }
    if (IsTaken(deed.found)) return code == deed.found && run_.FieldState(deed.target) == kResting;
    return CanEnter(run_, deed.target);
  }

  bool Done(const Deed& deed) const {
    const auto at = UnitCell(run_, deed.unit);
    return deed.moved ? at == deed.target || at != deed.from : run_.Field(deed.target) != deed.found;
  }

  // While somebody rides no unit can be chosen.
  void WaitForRide() {
    while (Going() && run_.TeleportDogBusy) Do(kWait);
  }

  // Whether the monster for which the deed is meant is where it was then.
  bool PreyComes(const Deed& deed) const {
    return !deed.prey ||
           (run_.Field(*deed.prey) == deed.preyKind && run_.FieldMark(*deed.prey) == deed.preyMark);
  }

  // Does one deed; false when the way is lost.
  bool Carry(const Deed& deed) {
    WaitForRide();
    if (deed.unit == 0) return CarrySwarm(deed);
    if (Obsolete(deed)) return true;
    if (!Choose(deed.unit)) return false;
    if (!GoTo(deed.from)) return IsTaken(deed.found) && !deed.action && GoTo(deed.target);
    while (Going() && run_.Ticks < deed.tick && !Kills({kWait}, 2)) Do(kWait);
    for (int waited = 0; Going(); ++waited) {
      const bool late = waited > (rescues_ > 0 ? kLostPatience : kPatience);
      if (Ready(deed) && (late || PreyComes(deed)) && !Kills(Coming(), 0)) break;
      if (late) return false;
      if (!Dodge()) return false;
      if (UnitCell(run_, deed.unit) != deed.from && !GoTo(deed.from)) return false;
    }
    for (int tries = 0; Going() && tries < kPushes; ++tries) {
      Do(MoveOf(deed));
      if (over_ || Done(deed)) return true;
      if (!Ready(deed)) return false;
    }
    return false;
  }

  // What it was done for is there already: the gem is taken, the dirt is dug, the unit is farther on.
  bool Obsolete(const Deed& deed) const {
    if (deed.moved || IsPushed(deed.found)) return false;
    return run_.Field(deed.target) == kSpace;
  }

  bool CarrySwarm(const Deed& deed) {
    if (!Choose(0)) return false;
    while (Going() && run_.Ticks < deed.tick) Do(kWait);
    Do(MoveOf(deed));
    return true;
  }

  // A tick of waiting, or the first of two steps away from what would kill.
  bool Dodge() {
    Move best = kWait;
    int longest = Survival({kWait}, kHorizon);
    for (int i = 0; i < 25 && longest < kHorizon; ++i) {
      const auto first = static_cast<Move>(i / 5), second = static_cast<Move>(i % 5);
      const int survival = Survival({first, second}, kHorizon);
      if (survival <= longest) continue;
      longest = survival;
      best = first;
    }
    return Do(best);
  }

  bool Rides(Cell own) const {
    return run_.TeleportDogBusy || (run_.TeleportActive && IsEntrance(run_, own));
  }

  // Walks to a cell if it is not there; false when it does not come there.
  bool GoTo(Cell goal) {
    int dodges = 0, stuck = 0;
    while (Going()) {
      const auto own = UnitCell(run_, run_.ActiveDog);
      if (!own || !ActiveUnit(run_).Alive) return false;
      if (*own == goal) return true;
      if (Rides(*own)) {
        Do(kWait);
        continue;
      }
      ways_.Find(run_, *own, 0, other_);
      if (!ways_.Reaches(goal)) return false;
      const auto move = static_cast<Move>(kStepBase + ways_.To(goal).front());
      const bool held = Kills({move}, 3);
      if (held && ++dodges > kDodges) return false;
      if (held ? !Dodge() : !Do(move)) return false;
      stuck = UnitCell(run_, run_.ActiveDog) == own ? stuck + 1 : 0;
      if (stuck > kPushes) return false;
    }
    return UnitCell(run_, run_.ActiveDog) == goal;
  }

  // Lets a search look for something better than this moment, goes there as far as chance lets it, and finds
  // the next deed that is still to be done.
  bool Rescue() {
    if (over_ || ++rescues_ > mostRescues_ || ++vain_ > kVainRescues) return false;
    const auto before = std::pair(run_.GemsCollected, run_.ExitOpen);
    Hra moment = run_;
    moment.Luck = Chance(other_.Below(1U << 30U));
    Search search(moment, other_.Below(1U << 30U), {20, 3});
    for (std::uint64_t ticks = 0; ticks < kRescue * static_cast<std::uint64_t>(1 + vain_) && Going();
         ticks += 500) {
      if (search.Go(500)) break;
    }
    const Plan plan = search.Found() ? *search.Found() : search.BestPlan();
    for (int i = 0; i < kTicksPerSecond && plan.empty(); ++i) {
      if (!Dodge()) return false;
    }
    for (std::size_t i = 0; i < plan.size() && Going(); ++i) {
      const auto at = plan.begin() + static_cast<std::ptrdiff_t>(i);
      if (!StepOfPlan({at, at + std::min<std::ptrdiff_t>(plan.end() - at, kLookAhead)})) break;
    }
    if (std::pair(run_.GemsCollected, run_.ExitOpen) != before) vain_ = 0;
    Resume();
    return !over_;
  }

  // The first of these steps. One that chance has kept back is tried again; false when the plan no longer
  // fits.
  bool StepOfPlan(const std::vector<Move>& moves) {
    if (Kills(moves, 2)) {
      Dodge();
      return false;
    }
    const Move move = moves.front();
    const bool step = move >= kStepBase && move < kActBase;
    const auto own = UnitCell(run_, run_.ActiveDog);
    if (!step || !own || run_.ActiveDog == 0) return Do(move);
    const Cell target = *own + kSteps[static_cast<std::size_t>(move - kStepBase)];
    const bool pushed = IsPushed(run_.Field(target));
    for (int tries = 0; tries < kPushes; ++tries) {
      if (!Do(move)) return false;
      if (!pushed || UnitCell(run_, run_.ActiveDog) != own) return true;
      if (Kills({move}, 1)) return false;
    }
    return false;
  }

  // The first deed from here on whose goal is still there.
  void Resume() {
    for (; next_ < deeds_.size(); ++next_) {
      const Deed& deed = deeds_[next_];
      if (deed.found != kSpace && deed.found != kDirt && Ready(deed)) return;
    }
  }

  Hra run_, ahead_;
  Chance other_;
  std::vector<Deed> deeds_;
  const std::function<bool()>& enough_;
  int mostRescues_;
  Ways ways_;
  std::size_t next_ = 0;
  int rescues_ = 0, vain_ = 0;
  bool started_ = false, over_ = false, won_ = false;
};

}  // namespace

bool FollowPlan(const std::string& caveText, const std::vector<Deed>& deeds, std::uint64_t seed,
                const std::function<bool()>& enough, int rescues) {
  return std::make_unique<Follower>(caveText, deeds, seed, enough, rescues)->Run();
}

}  // namespace zorik
