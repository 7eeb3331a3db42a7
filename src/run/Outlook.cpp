#include "run/Outlook.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/Machine.h"
#include "run/PlayOut.h"
#include "solve/Impossible.h"
#include "solve/Shorten.h"

namespace zorik {
namespace {

constexpr std::uint64_t kTicksToShorten = 40'000;
constexpr std::uint64_t kTicksAQuestion = 16;  // between two questions of a shortening
constexpr std::size_t kMostLate = 100;         // ticks by which an old way may begin later

std::unique_ptr<Hra> AsPractice(const Hra& run) {
  auto copy = Unwatched(run);
  TakeOver(*copy);
  copy->Kind = RunKind::Practice;
  return copy;
}

// How many of the moves a run needs to win; 0 when they do not win.
std::size_t WinsAfter(Hra& run, const Plan& way, std::size_t from) {
  for (std::size_t i = from; i < way.size() && LiveDogs(run) > 0; ++i) {
    if (Tick(run, KeysOf(way[i])) == TickEnd::Won) return i + 1 - from;
  }
  return 0;
}

// The cell that a move of the steered unit means while the unit stays where it is.
std::optional<Cell> ActedOn(const Hra& run, Move move) {
  constexpr std::array<Step, 4> kSteps{kLeft, kUp, kRight, kDown};
  const auto own = UnitCell(run, run.ActiveDog);
  if (!own || move < kActBase || move >= kChooseBase) return std::nullopt;
  return *own + kSteps[static_cast<std::size_t>(move - kActBase)];
}

}  // namespace

Outlook::Outlook(const Hra& run, Plan tryFirst, std::uint64_t seed, std::size_t mostBytes)
    : begin_(AsPractice(run)), old_(std::move(tryFirst)) {
  if (begin_->Win) {
    answer_ = Prospect::Known;
  } else if (IsLost(*begin_)) {
    answer_ = Prospect::Impossible;
  } else {
    solver_ = std::make_unique<Solver>(*begin_, seed, mostBytes);
  }
}

Prospect Outlook::Go(std::uint64_t ticks) {
  const std::uint64_t until = ticks_ + ticks;
  while (answer_ == Prospect::NoneYet && ticks_ < until && TryOneOfTheOld()) continue;
  if (answer_ != Prospect::NoneYet || ticks_ >= until) return answer_;
  const std::uint64_t before = solver_->Ticks();
  if (solver_->Go(until - ticks_)) TakeWay(*solver_->Found());
  ticks_ += solver_->Ticks() - before;
  return answer_;
}

// False when there is none left.
bool Outlook::TryOneOfTheOld() {
  if (tried_ >= std::min(old_.size(), kMostLate)) return false;
  const auto run = std::make_unique<Hra>(*begin_);
  const auto from = static_cast<std::ptrdiff_t>(tried_);
  const std::size_t moves = WinsAfter(*run, old_, tried_++);
  ticks_ += static_cast<std::uint64_t>(run->Ticks - begin_->Ticks);
  if (moves > 0) TakeWay({old_.begin() + from, old_.begin() + from + static_cast<std::ptrdiff_t>(moves)});
  return true;
}

// Nobody likes to be led about.
void Outlook::TakeWay(Plan way) {
  std::uint64_t questions = 0;
  way_ = Shorten(*begin_, std::move(way),
                 [&] { return ++questions > kTicksToShorten / kTicksAQuestion || (enough_ && enough_()); });
  ticks_ += questions * kTicksAQuestion;
  answer_ = Prospect::Known;
}

std::vector<Footstep> Footsteps(const Hra& run, const Plan& way, int mostSteps) {
  std::vector<Footstep> steps;
  const auto copy = AsPractice(run);
  for (std::size_t i = 0; i < way.size() && static_cast<int>(steps.size()) < mostSteps; ++i) {
    const std::array<Unit, kUnits> before = copy->Dog;
    const auto target = ActedOn(*copy, way[i]);
    const std::uint16_t content = target ? copy->Field(*target) : std::uint16_t{kSpace};
    const TickEnd end = Tick(*copy, KeysOf(way[i]));
    const int unit = copy->ActiveDog;
    const Unit& was = before[static_cast<std::size_t>(unit)];
    const auto cell = UnitCell(*copy, unit);
    const int tick = static_cast<int>(i) + 1;
    if (cell && cell != CellAt(was.x, was.y)) {
      steps.push_back({*cell, unit, tick});
    } else if (target && copy->Field(*target) != content) {
      steps.push_back({*target, unit, tick, true});
    }
    if (end == TickEnd::Won) break;
  }
  return steps;
}

Hindsight::Hindsight(Timeline timeline, std::uint64_t ticksAQuestion, std::uint64_t seed)
    : timeline_(std::move(timeline)),
      ticksAQuestion_(ticksAQuestion),
      seed_(seed),
      unknown_(timeline_.Length() + 1),
      asked_(timeline_.Length()) {
  Ask();
}

void Hindsight::Ask() {
  outlook_ = std::make_unique<Outlook>(*timeline_.At(asked_), way_, seed_);
  outlook_->Heed(enough_);
  spent_ = 0;
}

void Hindsight::Heed(std::function<bool()> enough) {
  enough_ = std::move(enough);
  if (outlook_) outlook_->Heed(enough_);
}

bool Hindsight::Go(std::uint64_t ticks) {
  constexpr std::uint64_t kSlice = 2'000;
  for (std::uint64_t spent = 0; spent < ticks && known_ + 1 < unknown_; spent += kSlice) {
    const Prospect prospect = outlook_->Go(kSlice);
    spent_ += kSlice;
    if (prospect != Prospect::NoneYet || spent_ >= ticksAQuestion_) Answer(prospect);
  }
  return known_ + 1 >= unknown_;
}

void Hindsight::Answer(Prospect prospect) {
  if (prospect == Prospect::Known) {
    known_ = asked_;
    way_ = outlook_->Way();
  } else {
    unknown_ = asked_;
  }
  if (known_ + 1 >= unknown_) return outlook_.reset();
  asked_ = known_ + (unknown_ - known_) / 2;
  Ask();
}

}  // namespace zorik
