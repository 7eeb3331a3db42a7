#include "run/Timeline.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <utility>

#include "core/Machine.h"
#include "run/PlayOut.h"

namespace zorik {
namespace {

// Moments are kept this far apart at first, and twice as far each time that there are too many. So the way
// from one to the next stays short beside the run, and their number the same, however long it is.
constexpr int kFirstDistance = 16;  // ticks
constexpr std::size_t kMostMoments = 256;

// Whether the run writes a record of itself.
bool Writes(const Hra& run) {
  return run.Kind == RunKind::Play || run.Kind == RunKind::Test;
}

// What the tick before this has done of what the player held; unit: whom he steered until then.
Move MoveDone(const Hra& run, int unit) {
  if (run.ActiveDog != unit) return static_cast<Move>(kChooseBase + run.ActiveDog);
  if (run.KeyDirection < kKeyLeft || run.KeyDirection > kKeyDown) return kWait;
  return static_cast<Move>((run.KeyAction != 0 ? kActBase : kStepBase) + run.KeyDirection - kKeyLeft);
}

}  // namespace

Timeline::Timeline(const Hra& begin)
    : begin_(Unwatched(begin)),
      snapshots_(std::make_shared<const Snapshots>(begin)),
      distance_(kFirstDistance),
      marks_(MarksOf(begin)) {
  Keep(begin);
}

Timeline::Marks Timeline::MarksOf(const Hra& run) {
  return {.gems = run.GemsCollected,
          .keys = run.KeysTaken,
          .locks = run.LocksOpened,
          .explosions = run.Explosions,
          .unit = run.ActiveDog,
          .living = LiveDogs(run),
          .open = run.ExitOpen,
          .won = run.Win.has_value()};
}

void Timeline::Note(const Marks& now) {
  const Marks& then = marks_;
  const std::array<std::pair<RunEventKind, bool>, 8> found{{
      {RunEventKind::Gem, now.gems > then.gems},
      {RunEventKind::Key, now.keys > then.keys},
      {RunEventKind::Lock, now.locks > then.locks},
      {RunEventKind::Explosion, now.explosions > then.explosions},
      {RunEventKind::UnitChanged, now.unit != then.unit},
      {RunEventKind::UnitLost, now.living < then.living},
      {RunEventKind::FinishOpen, now.open && !then.open},
      {RunEventKind::Win, now.won && !then.won},
  }};
  for (const auto& [kind, seen] : found) {
    if (seen) events_.push_back({length_, kind});
  }
  marks_ = now;
}

void Timeline::Add(const Hra& run, const KeySnapshot& keys) {
  assert(run.Ticks - begin_->Ticks == length_ + 1);
  if (run.Practising() && begin_->ReplayPlaying() && !takenOver_) takenOver_ = length_;
  if (held_.empty() || held_.back().keys != keys) held_.push_back({length_, keys});
  ++length_;
  Note(MarksOf(run));
  if (length_ % distance_ == 0) Keep(run);
}

void Timeline::Keep(const Hra& run) {
  if (Writes(run)) written_.append(run.RecordText, written_.size());
  moments_.push_back({length_, snapshots_->Keep(run), run.Kind, run.Record, written_.size()});
  if (moments_.size() > kMostMoments) KeepFewer();
}

void Timeline::KeepFewer() {
  distance_ *= 2;
  std::erase_if(moments_, [this](const Moment& moment) { return moment.tick % distance_ != 0; });
}

const KeySnapshot& Timeline::KeysAfter(int tick) const {
  const auto next = std::upper_bound(held_.begin(), held_.end(), tick,
                                     [](int wanted, const Held& held) { return wanted < held.from; });
  return std::prev(next)->keys;
}

void Timeline::GoOn(Hra& run, int from, int to) const {
  for (int tick = from; tick < to; ++tick) {
    if (takenOver_ == tick) TakeOver(run);
    Tick(run, KeysAfter(tick));
  }
}

std::unique_ptr<Hra> Timeline::At(int tick) const {
  const int wanted = std::clamp(tick, 0, length_);
  const auto behind = std::upper_bound(moments_.begin(), moments_.end(), wanted,
                                       [](int t, const Moment& moment) { return t < moment.tick; });
  const Moment& moment = *std::prev(behind);
  auto run = std::make_unique<Hra>(*begin_);
  snapshots_->Restore(*run, moment.state);
  run->Kind = moment.kind;
  run->Record = moment.rest;
  run->RecordText = written_.substr(0, moment.written);
  if (run->Practising()) run->WholeRecord = RecordLines();
  GoOn(*run, moment.tick, wanted);
  return run;
}

Plan Timeline::Moves(int from, int to) const {
  Plan moves;
  const auto run = At(from);
  for (int tick = std::max(0, from); tick < std::min(to, length_); ++tick) {
    const int unit = run->ActiveDog;
    GoOn(*run, tick, tick + 1);
    moves.push_back(MoveDone(*run, unit));
  }
  return moves;
}

void Timeline::MoveTo(Hra& run, int tick) const {
  const auto state = At(tick);
  if (run.Practising() && state->ReplayPlaying()) TakeOver(*state);
  if (run.Watched()) state->SetStage(run.stage());
  state->Decoration = run.Decoration;
  run = std::move(*state);
}

void Timeline::Cut(int tick) {
  if (tick >= length_) return;
  length_ = std::max(0, tick);
  std::erase_if(moments_, [this](const Moment& moment) { return moment.tick > length_; });
  std::erase_if(held_, [this](const Held& held) { return held.from >= length_; });
  std::erase_if(events_, [this](const RunEvent& event) { return event.tick > length_; });
  if (takenOver_ && *takenOver_ >= length_) takenOver_.reset();
  written_.resize(moments_.back().written);
  marks_ = MarksOf(*At(length_));
}

std::size_t Timeline::Bytes() const {
  std::size_t bytes = sizeof(Timeline) + sizeof(Hra) + sizeof(Snapshots) + written_.capacity() +
                      held_.capacity() * sizeof(Held) + events_.capacity() * sizeof(RunEvent) +
                      (moments_.capacity() - moments_.size()) * sizeof(Moment);
  for (const Moment& moment : moments_)
    bytes += sizeof(Moment) - sizeof(moment.state) + Snapshots::SizeOf(moment.state);
  return bytes;
}

Timeline WholeReplay(const Hra& replayAtStart, int mostTicks) {
  Timeline whole(replayAtStart);
  const auto run = Unwatched(replayAtStart);
  TickEnd end = TickEnd::Running;
  while (end == TickEnd::Running && whole.Length() < mostTicks) {
    end = Tick(*run, {});
    if (end == TickEnd::Running || end == TickEnd::Won) whole.Add(*run, {});
  }
  return whole;
}

void TakeOver(Hra& run) {
  if (!run.ReplayPlaying()) return;
  run.Kind = RunKind::Practice;
  run.Record = RecordLines();
  run.WholeRecord = RecordLines();
  run.RecordLine = {};
  run.RanDry = false;
  run.RecordText.clear();
}

}  // namespace zorik
