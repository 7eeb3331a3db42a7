#include "screens/RunControl.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/Machine.h"
#include "core/Speed.h"
#include "run/Timeline.h"
#include "screens/GameLayout.h"
#include "screens/HraWindow.h"
#include "screens/Moment.h"
#include "screens/StartWords.h"
#include "screens/WhatKilled.h"

namespace zorik {

RunControl::RunControl(HraWindow& window, const Settings& settings) : window_(window), settings_(settings) {}

RunControl::~RunControl() = default;

TickEnd RunControl::Pass(const KeySnapshot& keys) {
  return Tick(window_.Machine(), keys);
}

int RunControl::Interval() const {
  return TimerInterval(settings_.Speed);
}

QRect RunControl::BarFrame() const {
  QRect frame = window_.rect();
  frame.setBottom(std::min(frame.bottom(), window_.PlayArea().geometry().bottom() + kBottomBar));
  return frame;
}

TickEnd RunControl::StandStill(const KeySnapshot& keys) {
  constexpr std::array<std::pair<int, Request>, 4> kCommands{{{kKeyP, Request::Pause},
                                                              {kKeyF12, Request::HideAway},
                                                              {kKeyPadPlus, Request::Faster},
                                                              {kKeyPadMinus, Request::Slower}}};
  Hra& hra = window_.Machine();
  for (const auto& [key, request] : kCommands) {
    if (keys.Down(key)) hra.stage().Post(request);
  }
  if (keys.Down(kKeyC) && hra.ReplayPlaying()) hra.stage().Post(Request::ViewToggle);
  if (!keys.Down(kKeyR) || !keys.Down(kKeyCtrl)) return TickEnd::Running;
  RestartCave(hra);
  return TickEnd::Restarted;
}

void RunControl::MoveTo(const Timeline& timeline, int tick, bool jump) {
  ForgetQuestion();
  timeline.MoveTo(window_.Machine(), tick);
  Hush();
  window_.ShowMoment(jump);
}

void RunControl::AskWhatKilled(const Timeline& timeline, const Skin& skin) {
  if (LiveDogs(window_.Machine()) > 0) return window_.Say(kStillAliveWords.In(skin), false);
  if (!whatKilled_) {
    whatKilled_ = std::make_unique<WhatKilled>();
    connect(whatKilled_.get(), &WhatKilled::NotFound, this,
            [this, &skin] { window_.Say(kNotSavedWords.In(skin), false); });
    connect(whatKilled_.get(), &WhatKilled::Found, this, [this, &skin](int tick) {
      CouldBeSaved(tick);
      window_.Say(kCouldBeSavedWords.In(skin), true);
    });
  }
  window_.Say(kSearchingWords.In(skin), true);
  whatKilled_->Ask(timeline);
}

void RunControl::ForgetQuestion() {
  if (whatKilled_) whatKilled_->Forget();
}

void RunControl::Hush() {
  hushed_ = true;
  window_.RunSounds().StopAll();
}

void RunControl::SoundAgain() {
  if (std::exchange(hushed_, false)) SoundLoops(window_.Machine(), window_.RunSounds());
}

}  // namespace zorik
