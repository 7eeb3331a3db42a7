#include "screens/Theatre.h"

#include <QKeyEvent>
#include <QLocale>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "core/Speed.h"
#include "screens/HraWindow.h"
#include "screens/PageOffer.h"
#include "screens/SeekLine.h"
#include "screens/StartWords.h"
#include "screens/TheatreBar.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr int kLookForKeys = 40;  // milliseconds
constexpr int kFarTicks = 5 * kTicksPerSecond;
constexpr double kSlowest = 0.25;  // of the speed of play
constexpr double kAlike = 1.06;    // two speeds that nobody tells apart

QString SpeedText(double speed, const Skin& skin) {
  const QChar times(0xD7);
  if (speed < 0.3) return QString(QChar(0xBC)) + times;
  if (speed < 0.6) return QString(QChar(0xBD)) + times;
  const int digits = std::abs(speed - std::round(speed)) < 0.05 ? 0 : 1;
  return QLocale(LanguageOf(skin)).toString(speed, 'f', digits) + times;
}

}  // namespace

Theatre::Theatre(HraWindow& window, Skin& skin, const Settings& settings)
    : RunControl(window, settings),
      skin_(skin),
      bar_(new TheatreBar(&window)),
      call_(window, [this] { return BarInUse(); }) {
  connect(&call_, &BarCall::MouseMoved, this, [this] {
    if (timeline_ && window_.Machine().ReplayPlaying()) ShowBar();
  });
  connect(&call_, &BarCall::Leaves, bar_, &QWidget::hide);
  connect(&bar_->Line(), &SeekLine::Sought, this, &Theatre::SeekTo);
  connect(bar_, &TheatreBar::Stepped, this, &Theatre::Step);
  connect(bar_, &TheatreBar::PlayClicked, this, &Theatre::TogglePlay);
  connect(bar_, &TheatreBar::SpeedClicked, this, &Theatre::ChangeSpeed);
  connect(bar_, &TheatreBar::PageClicked, this, &Theatre::AsPage);
  connect(bar_, &TheatreBar::AgainClicked, this, &Theatre::PlayAgain);
  connect(bar_, &TheatreBar::TakeOverClicked, this, &Theatre::TakeOver);
  connect(&bar_->Line(), &SeekLine::Dropped, this, [this] { Stand(stands_); });
}

void Theatre::Starts(bool again) {
  timeline_.emplace(WholeReplay(window_.Machine()));
  stands_ = over_ = false;
  fresh_ = true;
  if (!again) speed_.reset();
  bar_->SetWords(skin_);
  bar_->SetRun(timeline_->Length(), timeline_->Events());
  bar_->OfferAgain(false);
  ShowBar();
}

void Theatre::Stops() {
  RunControl::Stops();
  call_.Stop();
  bar_->hide();
}

// While the knob is dragged the run waits for where it is dropped.
TickEnd Theatre::Pass(const KeySnapshot& keys) {
  if (std::exchange(fresh_, false)) call_.Stay();
  const bool waits = stands_ || bar_->Line().Dragging();
  const TickEnd end = waits ? StandStill(keys) : Tick(window_.Machine(), keys);
  if (end == TickEnd::Restarted) ForgetQuestion();
  if (waits && end == TickEnd::Restarted) Stand(false);
  if (!waits && bar_->isVisible()) ShowPosition();
  return end;
}

int Theatre::Position() const {
  return std::min(window_.Machine().Ticks, timeline_->Length());
}

// Keys

Theatre::Act Theatre::ActOf(int key) {
  static constexpr std::array<std::pair<int, Act>, 13> kActs{{{Qt::Key_Space, &Theatre::TogglePlay},
                                                              {Qt::Key_Period, &Theatre::StepOn},
                                                              {Qt::Key_Comma, &Theatre::StepBack},
                                                              {Qt::Key_Right, &Theatre::SeekOn},
                                                              {Qt::Key_Left, &Theatre::SeekBack},
                                                              {Qt::Key_Home, &Theatre::ToStart},
                                                              {Qt::Key_End, &Theatre::ToEnd},
                                                              {Qt::Key_Up, &Theatre::Faster},
                                                              {Qt::Key_Down, &Theatre::Slower},
                                                              {Qt::Key_F7, &Theatre::WhatKilledMe},
                                                              {Qt::Key_W, &Theatre::AsPage},
                                                              {Qt::Key_Return, &Theatre::TakeOver},
                                                              {Qt::Key_Enter, &Theatre::TakeOver}}};
  for (const auto& [its, act] : kActs) {
    if (its == key) return act;
  }
  return nullptr;
}

bool Theatre::Press(const QKeyEvent& event) {
  const Act act = ActOf(event.key());
  const bool chord = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  if (act == nullptr || chord || !timeline_) return false;
  const bool goesOn = act == &Theatre::StepOn || act == &Theatre::StepBack || act == &Theatre::SeekOn ||
                      act == &Theatre::SeekBack;
  if (event.isAutoRepeat() && !goesOn) return true;
  (this->*act)();
  return true;
}

// At the end there is nothing left to play but all of it.
void Theatre::TogglePlay() {
  if (!stands_ || Position() < timeline_->Length()) return Stand(!stands_);
  SeekTo(0);
  Stand(false);
}

void Theatre::SeekOn() {
  Seek(kFarTicks);
}

void Theatre::SeekBack() {
  Seek(-kFarTicks);
}

void Theatre::ToStart() {
  SeekTo(0);
}

void Theatre::ToEnd() {
  SeekTo(timeline_->Length());
}

void Theatre::Step(int ticks) {
  SeekTo(Position() + ticks);
  Stand(true);
}

void Theatre::Seek(int ticks) {
  SeekTo(Position() + ticks);
}

// Whoever goes to the end wants to see it, and not the score behind it.
void Theatre::SeekTo(int tick) {
  if (!timeline_) return;
  MoveTo(*timeline_, tick);
  const bool over = std::exchange(over_, false);
  if (over) window_.GoOn();
  Stand((stands_ && !over) || Position() == timeline_->Length());
}

void Theatre::Stand(bool stands) {
  stands_ = stands;
  window_.PaceChanged();
  if (stands) {
    Hush();
  } else if (!bar_->Line().Dragging()) {
    SoundAgain();
  }
  bar_->OfferAgain(Position() == timeline_->Length());
  ShowBar();
}

void Theatre::TakeOver() {
  if (!timeline_) return;
  SeekTo(std::min(Position(), timeline_->Length() - (window_.Machine().Win ? 1 : 0)));
  emit TakeOverWanted();
}

void Theatre::TakeOverAt(int tick) {
  SeekTo(tick);
  TakeOver();
}

void Theatre::WhatKilledMe() {
  AskWhatKilled(*timeline_, skin_);
}

// Put together again of its lines. A last line that is empty shows by its end alone.
std::string Theatre::RecordBytes() const {
  RecordLines lines = window_.Machine().WholeRecord;
  std::string_view line = lines.Next();
  std::string bytes(line);
  while (!lines.AtEnd()) {
    line = lines.Next();
    (bytes += "\r\n") += line;
  }
  return line.empty() ? bytes + "\r\n" : bytes;
}

void Theatre::AsPage() {
  window_.WithDialog([&] { OfferPage(skin_, &window_, RecordBytes(), window_.Machine().CaveName); });
}

void Theatre::CouldBeSaved(int tick) {
  SeekTo(tick);
  Stand(true);
}

Timeline Theatre::HandOver() {
  Timeline timeline = std::move(*timeline_);
  timeline_.reset();
  timeline.Cut(window_.Machine().Ticks);
  Stops();
  return timeline;
}

// The end

void Theatre::RecordEnds() {
  over_ = stands_ = true;
  bar_->OfferAgain(true);
  ShowBar();
}

void Theatre::PlayAgain() {
  speed_ = 1;
  window_.Restart();
}

// Speed

int Theatre::PlayInterval() const {
  return window_.Paced(TimerInterval(settings_.Speed));
}

int Theatre::Interval() const {
  if (stands_) return kLookForKeys;
  if (!speed_) return TimerInterval(settings_.SpeedR);
  return static_cast<int>(std::lround(PlayInterval() / *speed_));
}

double Theatre::SpeedNow() const {
  if (speed_) return *speed_;
  return static_cast<double>(PlayInterval()) / window_.Paced(TimerInterval(settings_.SpeedR));
}

// The next power of two, or what the display shows at most.
void Theatre::ChangeSpeed(int delta) {
  const double most = static_cast<double>(PlayInterval()) / window_.Paced(0);
  const double now = SpeedNow();
  double next = kSlowest;
  if (delta > 0) {
    while (next < now * kAlike) next *= 2;
  } else {
    while (next * 2 < now / kAlike) next *= 2;
  }
  speed_ = std::min(next, std::max(most, kSlowest));
  window_.PaceChanged();
  ShowBar();
}

void Theatre::SpeedChosen() {
  speed_.reset();
  if (bar_->isVisible()) ShowPosition();
}

// The bar

void Theatre::ShowBar() {
  ShowPosition();
  Arrange();
  bar_->raise();
  bar_->show();
  call_.Stay();
}

void Theatre::ShowPosition() {
  bar_->SetSpeed(SpeedText(SpeedNow(), skin_));
  bar_->ShowMoment(Position(), stands_);
}

// It stays as long as it is made use of, and while the run stands still.
bool Theatre::BarInUse() const {
  return fresh_ || stands_ || bar_->Line().Dragging() || bar_->underMouse();
}

void Theatre::Arrange() {
  bar_->PlaceIn(BarFrame());
}

}  // namespace zorik
