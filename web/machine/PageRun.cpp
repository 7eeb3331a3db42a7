#include "machine/PageRun.h"

#include <algorithm>
#include <map>
#include <utility>

#include "core/Machine.h"
#include "data/Cp1250.h"
#include "data/Result.h"
#include "run/RunFate.h"

namespace zorik {
namespace {

std::map<std::string, FrameTable, std::less<>>& Schemes() {
  static std::map<std::string, FrameTable, std::less<>> schemes;
  return schemes;
}

int Truth(bool truth) {
  return truth ? 1 : 0;
}

int Packed(const CellPicture& drawn, EdgeMask edges) {
  return static_cast<int>(drawn.Pic | static_cast<unsigned>(drawn.Col) << 8U |
                          static_cast<unsigned>(drawn.Row) << 16U | static_cast<unsigned>(edges) << 24U);
}

}  // namespace

void SetFrames(std::string_view scheme, FrameTable frames) {
  Schemes().insert_or_assign(std::string(scheme), std::move(frames));
}

const FrameTable& FramesOf(const std::string& scheme) {
  return Schemes()[scheme];
}

PageRun::PageRun(std::uint64_t seed) : hra_(seed), frames_(&FramesOf(hra_.Scheme)), view_(~seed) {
  hra_.SetStage(*this);
}

// Starting and going on

void PageRun::Started() {
  keys_ = {};
  timeline_.reset();
  whole_ = false;
  position_ = 0;
}

void PageRun::Forget() {
  happened_.clear();
  remarks_.clear();
}

void PageRun::Restart() {
  Forget();
  keys_ = {};
  RestartCave(hra_);
  Follow(TickEnd::Restarted, {});
}

TickEnd PageRun::Pass() {
  Forget();
  const KeySnapshot keys = std::exchange(keys_, {});
  view_.TickBegins(smooth_);
  const TickEnd end = Tick(hra_, keys);
  view_.TickEnds(hra_, *frames_);
  Follow(end, keys);
  return end;
}

// A run that was taken back and goes on forgets what came later; a replay comes by there again.
void PageRun::Follow(TickEnd end, const KeySnapshot& keys) {
  if (!timeline_) return;
  if (end == TickEnd::Restarted) {
    position_ = 0;
    begin_ = hra_.Ticks;
    if (!whole_ || hra_.Practising()) timeline_.emplace(hra_);
    return;
  }
  if (end == TickEnd::RecordOver || !InStep(position_ + 1)) return;
  const bool known = hra_.ReplayPlaying() && position_ < timeline_->Length();
  if (!known) {
    timeline_->Cut(position_);
    timeline_->Add(hra_, keys);
  }
  ++position_;
}

void PageRun::Press(int key) {
  if (key >= 0 && static_cast<std::size_t>(key) < keys_.down.size())
    keys_.down.set(static_cast<std::size_t>(key));
}

std::optional<std::uint64_t> PageRun::Reseed() {
  return std::exchange(seed_, std::nullopt);
}

// Telling

void PageRun::CaveOpens() {
  Tell(Happening::Opens);
  frames_ = &FramesOf(hra_.Scheme);
  view_.CaveOpens(hra_, *frames_);
}

void PageRun::ShowMessage(TextId text, Colour colour, int dogs) {
  Tell(Happening::Message, static_cast<int>(text), static_cast<int>(colour), dogs);
}

void PageRun::ShowRemark(std::string_view text, Colour colour) {
  Tell(Happening::Remark, static_cast<int>(remarks_.size()), static_cast<int>(colour));
  remarks_.push_back(ToUtf8(text));
}

std::string PageRun::RemarkAt(std::size_t number) const {
  return number < remarks_.size() ? remarks_[number] : std::string();
}

const std::array<int, kStateEnd>& PageRun::State() {
  const WinResult win = hra_.Win.value_or(WinResult{});
  const bool amoebaGrows = hra_.Ticks == 0 || hra_.PrevAmoebaRoom > 0;
  state_ = {static_cast<int>(hra_.Kind),
            hra_.Ticks,
            hra_.Elapsed,
            hra_.ClockShown,
            hra_.TimeLimit,
            hra_.GemsCollected,
            hra_.GemsNeeded,
            hra_.GemValue,
            Truth(hra_.ExitOpen),
            hra_.MagicState,
            hra_.AmoebaState,
            hra_.CaveWidth,
            hra_.CaveHeight,
            hra_.ActiveDog,
            hra_.DogCount,
            Truth(hra_.MultiDog),
            LiveDogs(hra_),
            Truth(UnitIsLost(hra_)),
            Truth(NothingHelps(hra_)),
            Truth(hra_.Win.has_value()),
            win.Score,
            win.BaseScore,
            win.TimeLeft,
            Truth(win.BonusCave),
            hra_.SchemeHue,
            Truth(hra_.RanDry),
            timeline_ ? timeline_->Length() : -1,
            position_,
            Truth(!hra_.Win && hra_.MagicState == kMagicRunning),
            Truth(!hra_.Win && amoebaGrows && hra_.Count(kAmoeba) > 0)};
  std::size_t place = kStateUnits;
  for (const Unit& unit : hra_.Dog) {
    for (const int number : {unit.x, unit.y, Truth(unit.Alive)}) state_[place++] = number;
  }
  return state_;
}

// Time

Result<Done> PageRun::BeginTimeline(bool whole) {
  if (hra_.Kind != RunKind::Replay && hra_.Kind != RunKind::Practice)
    return Failure{"a run that counts has no way back"};
  whole_ = whole && hra_.ReplayPlaying();
  timeline_ = whole_ ? WholeReplay(hra_) : Timeline(hra_);
  position_ = 0;
  begin_ = hra_.Ticks;
  return Done{};
}

void PageRun::Seek(int tick) {
  if (!timeline_) return;
  Forget();
  position_ = std::clamp(tick, 0, timeline_->Length());
  timeline_->MoveTo(hra_, position_);
  view_.ShowMoment(hra_, true);
}

// At the end of a record the machine has begun a tick that it could not finish.
void PageRun::TakeOverNow() {
  if (timeline_ && !InStep(position_)) Seek(position_);
  TakeOver(hra_);
}

// The view

void PageRun::PlanSpans(const std::vector<DrawnSpan>& spans, PlanSlot slot) {
  plan_[slot] = static_cast<int>(plan_.size());
  for (const DrawnSpan& span : spans)
    plan_.insert(plan_.end(), {span.cell, span.start, span.length, span.cut});
}

void PageRun::PlanCells(const DrawnView& drawn) {
  plan_[kPlanCells] = static_cast<int>(plan_.size());
  for (const DrawnView::Shown& shown : drawn.cells)
    plan_.push_back(Packed(frames_->Drawn(shown.picture), shown.edges));
  const std::size_t changed = plan_.size();
  plan_[kPlanChanged] = static_cast<int>(changed);
  plan_.resize(changed + drawn.cells.size(), Truth(drawn.fresh));
  for (const DrawnView::Place& place : drawn.changed)
    plan_[changed + place.row * drawn.columns.size() + place.column] = 1;
}

void PageRun::PlanMovers(const DrawnView& drawn) {
  plan_[kPlanMovers] = static_cast<int>(plan_.size());
  if (view_.Way() >= 1) return;
  for (const ViewMotion::Mover& mover : view_.OnTheWay().Movers()) {
    const DrawnView::Shown under = mover.under.value_or(DrawnView::Shown{});
    const PixelPlace at = mover.PlaceOn(drawn, view_.Way()),
                     below = PlaceIn(drawn, mover.to.x(), mover.to.y());
    plan_.insert(plan_.end(),
                 {at.x, at.y, Packed(frames_->Drawn(mover.picture), 0), Truth(mover.under.has_value()),
                  below.x, below.y, Packed(frames_->Drawn(under.picture), under.edges), 0});
    ++plan_[kPlanMoverCount];
  }
}

const std::vector<int>& PageRun::Plan(PixelSize frame, double way) {
  const DrawnView& drawn = view_.Look(hra_, *frames_, frame, way);
  plan_ = {drawn.view.left,
           drawn.view.top,
           drawn.view.width,
           drawn.view.height,
           drawn.cell.width,
           drawn.cell.height,
           drawn.size.width,
           drawn.size.height,
           static_cast<int>(drawn.columns.size()),
           static_cast<int>(drawn.rows.size()),
           0,
           Truth(drawn.fresh)};
  plan_.resize(kPlanEnd);
  PlanSpans(drawn.columns, kPlanColumns);
  PlanSpans(drawn.rows, kPlanRows);
  PlanCells(drawn);
  PlanMovers(drawn);
  return plan_;
}

}  // namespace zorik
