#include "screens/WayWatch.h"

#include <algorithm>
#include <utility>

namespace zorik {
namespace {

constexpr int kBetween =
    kTicksPerSecond / 2;     // questions, while a way is known: it is mostly soon found again
constexpr int kRest = 2000;  // milliseconds between them while none is
constexpr int kStillKnown = kTicksPerSecond;  // ticks for which nobody doubts it
constexpr int kStillSure = 1000;              // milliseconds likewise, while a question is under way
constexpr int kMostMoves = 2000;              // of a past that lies ahead

}  // namespace

WayWatch::WayWatch(int longest) : finder_(nullptr, longest) {
  connect(&finder_, &WayFinder::Answered, this, &WayWatch::TakeAnswer);
}

void WayWatch::Forget() {
  finder_.Forget();
  asked_ = known_ = none_ = from_ = -1;
  lost_ = kNever;
  way_.clear();
  answered_.invalidate();
}

void WayWatch::WentOn(const Hra& run) {
  const int before = run.Ticks - 1;
  if (finder_.Asking() && asked_ > before) finder_.Drop();
  asked_ = std::min(asked_, before);
  known_ = std::min(known_, before);
  none_ = std::min(none_, before);
  if (lost_ != kNever && lost_ > before) {
    lost_ = kNever;
    answered_.invalidate();  // that was about another run
  }
  if (IsDue(run.Ticks)) AskAbout(run, {});
}

bool WayWatch::IsDue(int tick) const {
  if (finder_.Asking() || tick >= lost_) return false;
  if (asked_ < 0 || !answered_.isValid()) return true;
  return At(asked_) == Prospect::Known ? tick - asked_ >= kBetween : answered_.elapsed() >= kRest;
}

// A way that begins later begins here with what was done until then.
void WayWatch::Ask(const Hra& run, const Timeline& past) {
  if (run.Ticks >= lost_) return;
  Plan whole;
  if (from_ > run.Ticks && from_ <= past.Length() && from_ - run.Ticks <= kMostMoves) {
    whole = past.Moves(run.Ticks, from_);
    whole.insert(whole.end(), way_.begin(), way_.end());
  }
  AskAbout(run, std::move(whole));
}

void WayWatch::AskAbout(const Hra& run, Plan tryFirst) {
  asked_ = run.Ticks;
  finder_.Ask(run, std::move(tryFirst));
}

void WayWatch::Know(int tick, Plan way) {
  known_ = std::max(known_, tick);
  from_ = tick;
  way_ = std::move(way);
}

void WayWatch::TakeAnswer() {
  answered_.start();
  switch (finder_.Answer()) {
    case Prospect::Known:
      Know(asked_, finder_.Way());
      break;
    case Prospect::NoneYet:
      none_ = std::max(none_, asked_);
      break;
    case Prospect::Impossible:
      lost_ = std::min(lost_, asked_);
      break;
  }
  emit Answered();
}

Prospect WayWatch::At(int tick) const {
  if (tick >= lost_) return Prospect::Impossible;
  if (tick <= known_) return Prospect::Known;
  if (known_ < 0 || (none_ > known_ && none_ <= tick)) return Prospect::NoneYet;
  const bool soon = tick - known_ <= kStillKnown ||
                    (finder_.Asking() && answered_.isValid() && answered_.elapsed() < kStillSure);
  return soon ? Prospect::Known : Prospect::NoneYet;
}

const Plan* WayWatch::WayFrom(int tick) const {
  return from_ == tick && known_ >= tick ? &way_ : nullptr;
}

}  // namespace zorik
