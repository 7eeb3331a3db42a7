#include "run/ProofRun.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "run/RunFate.h"
#include "solve/Traces.h"

namespace zorik {
namespace {

// Stands behind each line that is fed: where it alone is left, the tick has asked for what the line holds.
// It is a legal outcome, since a tick that goes wrong may take it for one.
constexpr char kMark = 'B';

std::string Marked(const std::vector<ProofTick>& ticks) {
  std::string lines;
  for (const ProofTick& tick : ticks) lines += tick.line + kMark + "\r\n";
  return lines;
}

// The keys that a player would hold for what the record tells.
KeySnapshot KeysOf(const ProofTick& tick, int steered) {
  KeySnapshot keys;
  if (!tick.keys) return keys;
  if (tick.direction >= kKeyLeft && tick.direction <= kKeyDown)
    keys.joyDirection = tick.direction - kKeyLeft + 1;
  keys.joyButtons = tick.action != 0 ? 1 : 0;
  if (tick.unit != steered && tick.unit >= 0 && tick.unit < kUnits)
    keys.down.set(static_cast<std::size_t>(kKeyPad0 + tick.unit));
  return keys;
}

char LetterIn(const Hra& run, Cell c) {
  const auto* const letter = std::find_if(
      kObjectLetters.begin(), kObjectLetters.end(),
      [&](const ObjectLetter& row) { return row.code == run.Field(c) && row.state == run.FieldState(c); });
  if (letter != kObjectLetters.end()) return letter->letter;
  const auto* const alike = std::find_if(kObjectLetters.begin(), kObjectLetters.end(),
                                         [&](const ObjectLetter& row) { return row.code == run.Field(c); });
  return alike == kObjectLetters.end() ? '\0' : alike->letter;
}

bool SamePlace(const Unit& one, const Unit& other) {
  return one.x == other.x && one.y == other.y;
}

}  // namespace

ProofRun::ProofRun(std::shared_ptr<const Proof> proof, const std::string& caveText)
    : proof_(std::move(proof)), run_(std::make_unique<Hra>(proof_->Seed())), fed_(Marked(proof_->Ticks())) {
  run_->CollectionName = proof_->CollectionName();
  run_->PlayerName.clear();
  if (!PaintCave(*run_, caveText, RunKind::Play)) {
    over_ = true;
    verdict_.flaw = ProofFlaw{};
    return;
  }
  head_ = std::exchange(run_->RecordText, {});
  before_ = std::make_unique<Hra>(*run_);
  verdict_.touched.resize(Cell::kPlaces);
  for (int n = 1; n <= run_->DogCount; ++n) {
    const auto c = UnitCell(*run_, n);
    if (!c || !run_->Dog[static_cast<std::size_t>(n)].Alive) continue;
    verdict_.way.push_back({*c, n, 0});
    verdict_.touched[c->place()] = true;
  }
}

bool ProofRun::Go(int ticks) {
  for (int i = 0; i < ticks && !over_; ++i) GoOneTickOn();
  return over_;
}

void ProofRun::GoOneTickOn() {
  const std::vector<ProofTick>& ticks = proof_->Ticks();
  if (next_ == ticks.size()) return End();
  const ProofTick& tick = ticks[next_];
  const ProofTick* const before = next_ > 0 ? &ticks[next_ - 1] : nullptr;
  ++next_;
  *before_ = *run_;
  Feed(tick);
  ++verdict_.ticks;
  Look();
  Compare(tick, before);
  if (run_->Win || (verdict_.flaw && NothingHelps(*run_))) End();
}

// The line of the proof where it fits, or else the keys alone.
void ProofRun::Feed(const ProofTick& tick) {
  run_->Kind = RunKind::Replay;
  run_->Record = fed_;
  fed_.Next();
  Tick(*run_, {});
  const bool same = !run_->RanDry && run_->RecordLine.size() == 1 && run_->KeyDirection == tick.direction &&
                    run_->KeyAction == tick.action;
  run_->RecordLine = {};
  if (same) {
    lines_ += tick.line;
  } else {
    PlayKeys(tick);
  }
  run_->RecordText.clear();
  if (!run_->Win) lines_ += "\r\n";
}

void ProofRun::PlayKeys(const ProofTick& tick) {
  ++verdict_.otherChance;
  *run_ = *before_;
  run_->Kind = RunKind::Play;
  run_->RecordText.clear();
  run_->Luck.Seed(proof_->Seed() + static_cast<std::uint64_t>(verdict_.ticks));
  Tick(*run_, KeysOf(tick, run_->ActiveDog));
  const std::string& line = run_->RecordText;
  lines_ += line.substr(0, line.find("\r\n"));
}

// What the run has done in this tick

void ProofRun::Look() {
  if (verdict_.flaw) return;
  NoteDogs();
  NoteTouched();
}

void ProofRun::NoteDogs() {
  for (int n = 1; n <= run_->DogCount; ++n) {
    const auto place = static_cast<std::size_t>(n);
    const auto c = UnitCell(*run_, n);
    if (!c || SamePlace(run_->Dog[place], before_->Dog[place])) continue;
    verdict_.way.push_back({*c, n, verdict_.ticks});
    verdict_.touched[c->place()] = true;
  }
}

void ProofRun::NoteTouched() {
  ForEachCell(*run_, [this](Cell c) {
    const std::uint16_t was = before_->Field(c), is = run_->Field(c);
    if (was != is && LeavesTrace(was, is)) verdict_.touched[c.place()] = true;
    if (was != kSpace || run_->FieldState(c) != kFalling) return;
    for (const Cell passed : PassedBy(*before_, c)) verdict_.touched[passed.place()] = true;
  });
}

// Where it parts from the proof

Cell ProofRun::Target(const ProofTick& tick) const {
  const Unit& unit = before_->Dog[static_cast<std::size_t>(run_->ActiveDog)];
  const Cell own = CellAt(unit.x, unit.y).value_or(Cell(0, 0));
  const bool step = tick.keys && tick.direction >= kKeyLeft && tick.direction <= kKeyDown;
  return step ? own + StepOf(tick.direction) : own;
}

ProofFlaw ProofRun::FlawAt(ProofBreak why, Cell cell, int unit) const {
  return {why, verdict_.ticks, cell, unit, LetterIn(*before_, cell)};
}

void ProofRun::Compare(const ProofTick& tick, const ProofTick* before) {
  if (verdict_.flaw || run_->Win) return;
  if (!verdict_.missing && Misses(tick, before))
    verdict_.missing = FlawAt(ProofBreak::Missing, Target(tick), run_->ActiveDog);
  verdict_.flaw = OtherDog(tick);
  if (!verdict_.flaw && tick.won) verdict_.flaw = NotWon(tick);
}

// Less was taken or opened in this tick than in that of the proof.
bool ProofRun::Misses(const ProofTick& tick, const ProofTick* before) const {
  const ProofTick none;
  const ProofTick& last = before != nullptr ? *before : none;
  return run_->GemsCollected - before_->GemsCollected < tick.gems - last.gems ||
         run_->KeysTaken - before_->KeysTaken < tick.keysTaken - last.keysTaken ||
         run_->LocksOpened - before_->LocksOpened < tick.locks - last.locks;
}

std::optional<ProofFlaw> ProofRun::OtherDog(const ProofTick& tick) const {
  const int limit = before_->TimeLimit * kTicksPerSecond;
  if (tick.keys && before_->Elapsed >= limit)
    return FlawAt(ProofBreak::TimeUp, Target(tick), run_->ActiveDog);
  for (int n = 1; n < kUnits; ++n) {
    const auto place = static_cast<std::size_t>(n);
    const Unit& is = run_->Dog[place];
    const Unit& was = tick.dogs[place];
    const auto own = UnitCell(*before_, n);
    if (was.Alive && !is.Alive && before_->Dog[place].Alive && own)
      return FlawAt(ProofBreak::DogDies, *own, n);
  }
  if (run_->ActiveDog != tick.steered) return FlawAt(ProofBreak::NoEffect, Target(tick), run_->ActiveDog);
  const auto steered = static_cast<std::size_t>(run_->ActiveDog);
  if (!SamePlace(run_->Dog[steered], tick.dogs[steered]) && !tick.won)
    return FlawAt(ProofBreak::NoEffect, Target(tick), run_->ActiveDog);
  return std::nullopt;
}

// In the tick in which the proof has won.
std::optional<ProofFlaw> ProofRun::NotWon(const ProofTick& tick) const {
  const Cell target = Target(tick);
  const bool finish = before_->Field(target) == kFinish;
  return FlawAt(finish ? ProofBreak::FinishShut : ProofBreak::NoEffect, target, run_->ActiveDog);
}

void ProofRun::End() {
  over_ = true;
  verdict_.wins = run_->Win.has_value();
  if (!verdict_.wins) return;
  verdict_.flaw.reset();
  verdict_.missing.reset();
  verdict_.record =
      BuildRecordHead(proof_->CollectionName(), run_->Win->Score, {}, run_->Decoration) + head_ + lines_;
}

}  // namespace zorik
