#include "screens/Practice.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <utility>

#include "core/Machine.h"
#include "platform/Keyboard.h"
#include "screens/HraWindow.h"
#include "screens/PracticeBadge.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLookForKeys = 40;  // milliseconds
constexpr int kBackInterval = 33;
constexpr int kFasterAfter = 45;  // times back, each of which is one tick more from then on
constexpr int kMostAtOnce = 8;    // ticks
constexpr int kSlownesses = 3;    // halves of the speed, none included

}  // namespace

Practice::Practice(HraWindow& window, const Skin& skin, const Settings& settings)
    : RunControl(window, settings), skin_(skin), badge_(new PracticeBadge(&window)) {}

void Practice::Starts(bool again) {
  if (!again) {
    mark_.reset();
    slowness_ = 0;
  }
  Begin();
  OpenBadge();
}

void Practice::Begin() {
  ForgetQuestion();
  timeline_.emplace(window_.Machine());
  goesBack_ = waits_ = false;
}

void Practice::Continue(Timeline past) {
  timeline_.emplace(std::move(past));
  mark_.reset();
  goesBack_ = waits_ = false;
  slowness_ = 0;
  OpenBadge();
  Hush();
  SoundAgain();
}

void Practice::Stops() {
  RunControl::Stops();
  goesBack_ = waits_ = false;
  badge_->hide();
}

void Practice::OpenBadge() {
  badge_->Open(BadgeText(), kPracticeKeysWords.In(skin_));
  Arrange();
}

QString Practice::BadgeText() const {
  const QString text = kPracticeWords.In(skin_);
  if (slowness_ == 0) return text;
  return text + "   " + QChar(slowness_ == 1 ? 0xBD : 0xBC) + QChar(0xD7);
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
  const bool stands = goesBack_ || waits_ || Won();
  if (goesBack_) GoBack();
  const TickEnd end = stands ? StandStill(keys) : GoOn(keys);
  if (end == TickEnd::Restarted) Begin();
  return end;
}

// A run that is won stands still and can still be turned back.
TickEnd Practice::GoOn(const KeySnapshot& keys) {
  Hra& hra = window_.Machine();
  timeline_->Cut(hra.Ticks);
  const TickEnd end = Tick(hra, keys);
  if (end == TickEnd::Restarted) return end;
  timeline_->Add(hra, keys);
  TellOfLast();
  return TickEnd::Running;
}

void Practice::TellOfLast() {
  const std::vector<RunEvent>& events = timeline_->Events();
  for (auto event = events.rbegin(); event != events.rend() && event->tick == timeline_->Length(); ++event) {
    if (event->kind == RunEventKind::UnitLost && LiveDogs(window_.Machine()) == 0)
      Say(kPracticeLostWords.In(skin_));
    if (event->kind != RunEventKind::Win) continue;
    Say((MayBeEarnest() ? kEarnestWords : kPracticeWonWords).In(skin_), true);
    window_.PaceChanged();
  }
}

int Practice::Interval() const {
  if (goesBack_) return kBackInterval;
  if (waits_ || Won()) return kLookForKeys;
  return RunControl::Interval() << slowness_;
}

// Keys

Practice::Act Practice::ActOf(const QKeyEvent& event) const {
  switch (event.key()) {
    case Qt::Key_F7:
      return &Practice::WhatKilledMe;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return &Practice::InEarnest;
    default:
      break;
  }
  const std::optional<KeyUse> use = settings_.Keys.UseOf(event);
  if (use == KeyUse::Rewind) return &Practice::StartBack;
  if (use == KeyUse::SetMark) return &Practice::SetMark;
  if (use == KeyUse::BackToMark) return &Practice::ToMark;
  return use == KeyUse::SlowMotion ? &Practice::SlowDown : nullptr;
}

bool Practice::Press(const QKeyEvent& event) {
  const Act act = ActOf(event);
  if (waits_ && (act != nullptr || GameKey(event, settings_.Keys) >= 0)) Wait(false);
  if (act == nullptr || !timeline_) return false;
  if (!event.isAutoRepeat()) (this->*act)();
  return true;
}

bool Practice::Release(const QKeyEvent& event) {
  if (settings_.Keys.UseOf(event) != KeyUse::Rewind) return false;
  if (!event.isAutoRepeat()) StopBack();
  return true;
}

void Practice::ReleaseKeys() {
  if (goesBack_) StopBack();
}

// Back in time

void Practice::StartBack() {
  goesBack_ = true;
  backFor_ = 0;
  GoBack();
  window_.PaceChanged();
}

// Whoever holds the key longer wants to go far.
void Practice::GoBack() {
  const int ticks = std::min(1 + backFor_++ / kFasterAfter, kMostAtOnce);
  MoveTo(*timeline_, window_.Machine().Ticks - ticks, false);
}

void Practice::StopBack() {
  goesBack_ = false;
  SoundAgain();
  window_.PaceChanged();
}

void Practice::SetMark() {
  mark_.emplace(Mark{*timeline_, window_.Machine().Ticks});
  Say(kMarkedWords.In(skin_));
}

void Practice::ToMark() {
  if (!mark_) return Say(kNoMarkWords.In(skin_));
  timeline_ = mark_->run;
  MoveTo(*timeline_, mark_->tick);
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

void Practice::WhatKilledMe() {
  AskWhatKilled(*timeline_, skin_);
}

void Practice::CouldBeSaved(int tick) {
  MoveTo(*timeline_, tick);
  Wait(true);
}

void Practice::Wait(bool waits) {
  waits_ = waits;
  if (!waits) SoundAgain();
  window_.PaceChanged();
}

// What is seen

void Practice::Say(const QString& text, bool stays) {
  window_.Say(text, stays);
}

void Practice::Arrange() {
  badge_->PlaceIn(window_.PlayArea().geometry());
}

}  // namespace zorik
