#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "core/Hra.h"
#include "run/Timeline.h"
#include "solve/Move.h"
#include "solve/Solver.h"

namespace zorik {

// Whether a run can still be won: a way is known, none was found yet, or there is certainly none.
enum class Prospect { Known, NoneYet, Impossible };

// Can it still be won? A search for a way from one moment of a run, in slices. The way holds for a run in
// practice that goes on from that very moment with those very moves.
class Outlook {
 public:
  // The run is copied; a replay is asked about as if it were taken over. tryFirst: a way that was known at an
  // earlier moment, and may still lead there from somewhere on its way. mostBytes: of memory, about.
  explicit Outlook(const Hra& run, Plan tryFirst = {}, std::uint64_t seed = 1,
                   std::size_t mostBytes = std::size_t{128} << 20U);

  // Goes on for about so many ticks, unless the answer is final.
  Prospect Go(std::uint64_t ticks);

  // Is asked often once a way was found: whether it is short enough as it is by now.
  void Heed(std::function<bool()> enough) { enough_ = std::move(enough); }

  Prospect Answer() const { return answer_; }

  // When it is known: what is to be done from that moment on.
  const Plan& Way() const { return way_; }

 private:
  bool TryOneOfTheOld();
  void TakeWay(Plan way);

  std::unique_ptr<Hra> begin_;
  Plan old_;
  std::size_t tried_ = 0;  // beginnings that were left out of it
  std::unique_ptr<Solver> solver_;
  std::uint64_t ticks_ = 0;
  std::function<bool()> enough_;
  Prospect answer_ = Prospect::NoneYet;
  Plan way_;
};

// A step of a unit to another cell, or what it does to the cell beside it.
struct Footstep {
  Cell cell;
  int unit = 1;
  int tick = 0;         // of the way, from 1
  bool beside = false;  // it stays where it is
};

// Where a way leads the units that it steers, from the moment at which it begins, up to so many steps. What
// they do beside them is among them.
std::vector<Footstep> Footsteps(const Hra& run, const Plan& way, int mostSteps);

// From which tick on of a run in practice no way to win was found any more. Who can win at some tick could do
// so at all before, so it asks in halves.
class Hindsight {
 public:
  // ticksAQuestion: for how long it looks for a way from one moment.
  explicit Hindsight(Timeline timeline, std::uint64_t ticksAQuestion = 400'000, std::uint64_t seed = 1);

  // Goes on for about so many ticks. True when it has come to its end.
  bool Go(std::uint64_t ticks);

  // See Outlook.
  void Heed(std::function<bool()> enough);

  // The tick from which it looks for a way by now; and no longer does.
  int Asked() const { return asked_; }
  void GiveUp() { Answer(Prospect::NoneYet); }

  // The first tick from which no way was found, behind the run's last if there is none so far.
  int NoneFrom() const { return unknown_; }

  // The last tick from which a way is known, -1 if there is none; the run's last where nothing was lost.
  int KnownUntil() const { return known_; }

  // That way.
  const Plan& Way() const { return way_; }

 private:
  void Ask();
  void Answer(Prospect prospect);

  Timeline timeline_;
  std::uint64_t ticksAQuestion_;
  std::uint64_t seed_;
  int known_ = -1;
  int unknown_ = 0;
  int asked_ = 0;
  std::unique_ptr<Outlook> outlook_;
  std::uint64_t spent_ = 0;  // on the question
  std::function<bool()> enough_;
  Plan way_;
};

}  // namespace zorik
