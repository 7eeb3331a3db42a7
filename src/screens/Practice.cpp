#include "screens/Practice.h"

#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "core/Machine.h"
#include "platform/Keyboard.h"
#include "run/RunFate.h"
#include "screens/HraWindow.h"
#include "screens/Marks.h"
#include "screens/PracticeBadge.h"
#include "screens/PracticeBar.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLookForKeys = 40;  // milliseconds
constexpr int kBackInterval = 33;
constexpr int kFasterAfter = 45;  // times back, each of which is one tick more from then on
constexpr int kMostAtOnce = 8;    // ticks
constexpr int kSlownesses = 3;    // halves of the speed, none included
constexpr int kAtFirst = 10'000;  // milliseconds for which the bar shows
constexpr int kHeldLong = 600;    // milliseconds
constexpr int kAtOnce = 20;
constexpr int kReads = 3000;  // milliseconds, a message

}  // namespace

Practice::Practice(HraWindow& window, const Skin& skin, const Settings& settings)
    : RunControl(window, settings),
      skin_(skin),
      badge_(new PracticeBadge(&window)),
      bar_(new PracticeBar(&window)),
      call_(window, [this] { return BarInUse(); }) {
  connect(bar_, &PracticeBar::Wanted, this, &Practice::Act);
  connect(bar_, &PracticeBar::LetGo, this, &Practice::LetGo);
  connect(&call_, &BarCall::MouseMoved, this, [this] {
    if (timeline_ && !badge_->isHidden()) CallBar(BarCall::kStays);
  });
  connect(&call_, &BarCall::Leaves, this, [this] {
    bar_->hide();
    Arrange();
  });
  connect(&watch_, &WayWatch::Answered, this, &Practice::WayAnswered);
  connect(&loss_, &LossFinder::Answered, this, &Practice::TellOfLoss);
  reads_.setSingleShot(true);
  reads_.setInterval(kReads);
  reads_.callOnTimeout([this] { TellOfLoss(); });
  long_.setSingleShot(true);
  long_.setInterval(kHeldLong);
  long_.callOnTimeout([this] { hint_.ShowWhole(waits_); });
  atOnce_.setSingleShot(true);
  atOnce_.setInterval(kAtOnce);
  atOnce_.callOnTimeout([this] { LetGoNow(); });
}

void Practice::Starts(bool again) {
  if (!again) {
    mark_.reset();
    slowness_ = 0;
  }
  Begin(Timeline(window_.Machine()));
  OpenBar();
}

void Practice::Begin(Timeline past) {
  ForgetQuestion();
  timeline_.emplace(std::move(past));
  watch_.Forget();
  loss_.Forget();
  hint_.Clear();
  goesBack_ = waits_ = wayWanted_ = ended_ = false;
}

void Practice::Continue(Timeline past) {
  mark_.reset();
  slowness_ = 0;
  Begin(std::move(past));
  OpenBar();
  Hush();
  SoundAgain();
}

void Practice::Stops() {
  RunControl::Stops();
  watch_.Forget();
  loss_.Forget();
  hint_.Clear();
  long_.stop();
  goesBack_ = waits_ = wayWanted_ = wayHeld_ = false;
  call_.Stop();
  badge_->hide();
  bar_->hide();
}

bool Practice::Won() const {
  return window_.Machine().Win.has_value();
}

// A record that came from a file belongs to no cave that could be played.
bool Practice::MayBeEarnest() const {
  return window_.Machine().PlayerName != kNobody;
}

// The run

TickEnd Practice::Pass(const KeySnapshot& keys) {
  if (PadActs(keys) && waits_) Wait(false);
  const bool stands = goesBack_ || waits_ || Won();
  if (goesBack_) GoBack();
  if (waits_) hint_.GhostGoesOn();
  const TickEnd end = stands ? StandStill(keys) : GoOn(keys);
  if (end == TickEnd::Restarted) {
    Begin(Timeline(window_.Machine()));
    window_.PaceChanged();  // it may have gone back, or stood still
  }
  Refresh();
  return end;
}

// A stick that has been pushed since before is no answer.
bool Practice::PadActs(const KeySnapshot& keys) {
  const bool acts = keys.joyDirection != 0 || keys.joyButtons != 0;
  return !std::exchange(padActed_, acts) && acts;
}

// A run that is won stands still and can still be turned back.
TickEnd Practice::GoOn(const KeySnapshot& keys) {
  Hra& hra = window_.Machine();
  timeline_->Cut(hra.Ticks);
  const TickEnd end = Tick(hra, keys);
  if (end == TickEnd::Restarted) return end;
  timeline_->Add(hra, keys);
  hint_.WentOn(hra);
  if (!Won() && !ended_) watch_.WentOn(hra);
  TellOfLast();
  return TickEnd::Running;
}

void Practice::TellOfLast() {
  if (Won()) {
    hint_.Clear();
    Say(MayBeEarnest() ? Named(kEarnestWords, PracticeAct::InEarnest, PracticeAct::InEarnest)
                       : kPracticeWonWords.In(skin_),
        true);
    window_.PaceChanged();
    CallBar(BarCall::kStays);
  } else if (NothingHelps(window_.Machine()) && !std::exchange(ended_, true)) {
    TellOfEnd();
  }
}

void Practice::TellOfEnd() {
  hint_.Clear();
  const bool lives = LiveDogs(window_.Machine()) > 0;
  Say(Named(lives ? kTimeIsUpWords : kPracticeLostWords, PracticeAct::Rewind, PracticeAct::WhatKilledMe));
  loss_.Ask(*timeline_);
  reads_.start();
  CallBar(BarCall::kStays);
}

int Practice::Interval() const {
  if (goesBack_) return kBackInterval;
  if (waits_ || Won()) return kLookForKeys;
  return RunControl::Interval() << slowness_;
}

// Keys and buttons

bool Practice::Press(const QKeyEvent& event) {
  const std::optional<PracticeAct> act = PracticeActOf(event, settings_.Keys);
  if (waits_ && !act && !event.isAutoRepeat() && GameKey(event, settings_.Keys) >= 0) Wait(false);
  if (!act || !timeline_) return false;
  const bool goesOn = atOnce_.isActive() && letGo_ == act;
  if (goesOn) {
    atOnce_.stop();
    letGo_.reset();
  }
  if (!event.isAutoRepeat() && !goesOn) Act(*act);
  return true;
}

// Some desktops repeat a key as if it had been let go and pressed anew in the same moment.
bool Practice::Release(const QKeyEvent& event) {
  const std::optional<PracticeAct> act = PracticeActOf(event, settings_.Keys);
  if (act != PracticeAct::Rewind && act != PracticeAct::WhichWay) return false;
  if (event.isAutoRepeat()) return true;
  LetGoNow();
  letGo_ = act;
  if (event.timestamp() == 0) LetGoNow();
  if (letGo_) atOnce_.start();
  return true;
}

void Practice::LetGoNow() {
  atOnce_.stop();
  if (const auto act = std::exchange(letGo_, std::nullopt)) LetGo(*act);
}

void Practice::Act(PracticeAct act) {
  switch (act) {
    case PracticeAct::Rewind:
      return StartBack();
    case PracticeAct::SetMark:
      return SetMark();
    case PracticeAct::BackToMark:
      return ToMark();
    case PracticeAct::SlowMotion:
      return SlowDown();
    case PracticeAct::WhatKilledMe:
      return AskWhatKilled(*timeline_, skin_);
    case PracticeAct::WhichWay:
      return ShowWay();
    case PracticeAct::InEarnest:
      return InEarnest();
  }
}

void Practice::LetGo(PracticeAct act) {
  if (act == PracticeAct::Rewind && goesBack_) StopBack();
  if (act == PracticeAct::WhichWay) LetGoOfWay();
}

void Practice::ReleaseKeys() {
  atOnce_.stop();
  letGo_.reset();
  LetGo(PracticeAct::Rewind);
  LetGo(PracticeAct::WhichWay);
}

// Back in time

void Practice::ComeTo(int tick, bool jump) {
  loss_.Forget();
  hint_.Clear();
  wayWanted_ = ended_ = false;
  MoveTo(*timeline_, tick, jump);
}

void Practice::StartBack() {
  if (waits_) Wait(false);
  goesBack_ = true;
  backFor_ = 0;
  GoBack();
  window_.PaceChanged();
}

// Whoever holds the key longer wants to go far.
void Practice::GoBack() {
  const int ticks = std::min(1 + backFor_++ / kFasterAfter, kMostAtOnce);
  ComeTo(window_.Machine().Ticks - ticks, false);
}

void Practice::StopBack() {
  goesBack_ = false;
  SoundAgain();
  window_.PaceChanged();
  watch_.Ask(window_.Machine(), *timeline_);
}

void Practice::SetMark() {
  mark_.emplace(Mark{*timeline_, window_.Machine().Ticks});
  Say(Named(kMarkedWords, PracticeAct::BackToMark, PracticeAct::BackToMark));
}

void Practice::ToMark() {
  if (!mark_) return Say(Named(kNoMarkWords, PracticeAct::SetMark, PracticeAct::SetMark));
  if (waits_) Wait(false);
  timeline_ = mark_->run;
  watch_.Forget();
  ComeTo(mark_->tick);
  SoundAgain();
  window_.PaceChanged();
}

void Practice::SlowDown() {
  slowness_ = (slowness_ + 1) % kSlownesses;
  badge_->SetText(BadgeText());
  window_.PaceChanged();
}

void Practice::InEarnest() {
  if (Won() && MayBeEarnest()) emit EarnestWanted();
}

void Practice::CouldBeSaved(int tick) {
  ComeTo(tick);
  Wait(true);
}

void Practice::WaitForKey() {
  Wait(true);
  Say(kWaitsForKeyWords.In(skin_), true);
}

void Practice::Wait(bool waits) {
  waits_ = waits;
  if (waits) {
    Hush();
  } else {
    hint_.ShowWhole(false);
    wayWanted_ = false;
    Say(QString(), true);
    SoundAgain();
  }
  window_.PaceChanged();
}

// The ways that win

// Time stands still, so that the way begins where the player goes on.
void Practice::ShowWay() {
  if (Won()) return;
  wayHeld_ = true;
  long_.start();
  if (ended_) return ShowLastWay();
  Hra& hra = window_.Machine();
  Wait(true);
  if (const Plan* const way = watch_.WayFrom(hra.Ticks)) return SeeWay(*way);
  if (watch_.At(hra.Ticks) == Prospect::Impossible) return Say(kLostForGoodWords.In(skin_), true);
  wayWanted_ = true;
  Say(kSeekingWayWords.In(skin_), true);
  watch_.Ask(hra, *timeline_);
}

void Practice::SeeWay(const Plan& way) {
  hint_.Show(window_.Machine(), way);
  hint_.ShowWhole(wayHeld_ && !long_.isActive());
  Say(kWayShownWords.In(skin_), true);
}

void Practice::LetGoOfWay() {
  long_.stop();
  wayHeld_ = false;
  hint_.ShowWhole(false);
}

void Practice::WayAnswered() {
  Refresh();
  const int tick = window_.Machine().Ticks;
  if (!std::exchange(wayWanted_, false)) return;
  if (const Plan* const way = watch_.WayFrom(tick)) return SeeWay(*way);
  const bool lost = watch_.At(tick) == Prospect::Impossible;
  Say((lost ? kLostForGoodWords : kNoWayFoundWords).In(skin_), true);
}

// Of a run that nothing helps any more: the moment from which there was one last.
void Practice::ShowLastWay() {
  const std::optional<Loss> loss = loss_.Found();
  if (!loss) return Say(kSeekingLossWords.In(skin_), true);
  if (loss->knownUntil < 0) return Say(kNeverAWayWords.In(skin_), true);
  ComeTo(loss->knownUntil);
  watch_.Know(loss->knownUntil, loss->way);
  Wait(true);
  SeeWay(loss->way);
}

void Practice::TellOfLoss() {
  if (!ended_ || reads_.isActive() || !loss_.Found()) return;
  const Loss& loss = *loss_.Found();
  if (loss.knownUntil < 0) return Say(kNeverAWayWords.In(skin_), true);
  const bool exact = loss.lostFrom == loss.knownUntil + 1;
  const QString when = QString::number(loss.lostFrom);
  const QString clock = QString::number(timeline_->At(loss.lostFrom)->ClockShown);
  Say(FillMarks((exact ? kLostFromWords : kLostFromAtLastWords).In(skin_), when, clock) + ' ' +
          Named(kLastWayWords, PracticeAct::WhichWay, PracticeAct::WhichWay),
      true);
}

// What is seen

std::optional<Prospect> Practice::Light() const {
  if (Won()) return std::nullopt;
  return ended_ ? Prospect::Impossible : watch_.At(window_.Machine().Ticks);
}

void Practice::Refresh() {
  if (!timeline_ || badge_->isHidden()) return;
  badge_->SetLight(Light(), skin_);
  bar_->Offer(Won(), MayBeEarnest());
}

QString Practice::BadgeText() const {
  const QString text = kPracticeWords.In(skin_);
  if (slowness_ == 0) return text;
  return text + "   " + QChar(slowness_ == 1 ? 0xBD : 0xBC) + QChar(0xD7);
}

// Words with marks for what the keys of these are.
QString Practice::Named(const StartWords& words, PracticeAct one, PracticeAct two) const {
  return FillMarks(words.In(skin_), NameOf(one, settings_.Keys, skin_), NameOf(two, settings_.Keys, skin_));
}

void Practice::Say(const QString& text, bool stays) {
  window_.Say(text, stays);
}

void Practice::LayOver(Overlay& overlay, CavePainter& painter) const {
  hint_.LayOver(overlay, painter);
}

// The badge and the bar

void Practice::OpenBar() {
  KeysChosen();
  badge_->SetText(BadgeText());
  badge_->raise();
  badge_->show();
  CallBar(kAtFirst);
  Refresh();
}

void Practice::KeysChosen() {
  bar_->SetWords(skin_, settings_.Keys);
  Arrange();
}

void Practice::CallBar(int milliseconds) {
  bar_->raise();
  bar_->show();
  Arrange();
  call_.Stay(milliseconds);
}

bool Practice::BarInUse() const {
  return Won() || ended_ || bar_->underMouse();
}

void Practice::Arrange() {
  bar_->PlaceIn(BarFrame());
  QRect free = window_.PlayArea().geometry();
  if (!bar_->isHidden()) free.setBottom(std::min(free.bottom(), bar_->y() - 1));
  badge_->PlaceIn(free);
}

}  // namespace zorik
