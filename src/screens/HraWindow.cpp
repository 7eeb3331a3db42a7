#include "screens/HraWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <cmath>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "core/Speed.h"
#include "data/Result.h"
#include "run/RunFate.h"
#include "screens/FrmSettings.h"
#include "screens/Moment.h"
#include "screens/MsgBox.h"
#include "screens/PauseBox.h"
#include "screens/PlainText.h"
#include "screens/RunCaption.h"
#include "screens/RunControls.h"
#include "screens/StartWords.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr QSize kSmallest(480, 260);  // finds room where a small screen is magnified
constexpr QSize kUsual(39 * 24, 23 * 24 + kTopBar + kBottomBar);
constexpr int kBelowBar = 8;   // the message strip
constexpr int kSettles = 100;  // milliseconds in which another window of the game gets the focus

QColor ToColour(Colour colour) {
  const auto number = static_cast<std::uint32_t>(colour);
  return QColor(static_cast<int>(number & 255U), static_cast<int>(number >> 8U & 255U),
                static_cast<int>(number >> 16U & 255U));
}

std::uint64_t ClockNow() {
  return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

}  // namespace

HraWindow::HraWindow(Skin& skin, DSound& sound, Settings& settings)
    : skin_(skin),
      settings_(settings),
      sounds_(sound, ClockNow()),
      painter_(skin.Places(), ClockNow()),
      hra_(ClockNow()),
      topBar_(new TopBar(this)),
      ram_(new Ram(this)),
      imOk2_(new PictureBar(this)),
      strip_(new MessageStrip(this)),
      pctBlesk_(new FlashCover(this)),
      hideAway_(std::make_unique<HideAway>()),
      controls_(std::make_unique<RunControls>(*this, skin, settings)) {
  setObjectName("frmHra");
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(kSmallest);
  resize(kUsual);
  hra_.SetStage(*this);
  tmrHra_.setTimerType(Qt::PreciseTimer);
  connect(&tmrHra_, &QTimer::timeout, this, &HraWindow::OnTick);
  connect(&motion_, &MotionClock::Due, this, &HraWindow::PresentView);
  connect(topBar_, &TopBar::RestartClicked, this, &HraWindow::Restart);
  connect(topBar_, &TopBar::SettingsClicked, this, &HraWindow::EditSettings);
  connect(topBar_, &TopBar::ViewClicked, this, &HraWindow::ToggleView);
  connect(topBar_, &TopBar::LeaveClicked, this, &HraWindow::EndRequested);
  connect(hideAway_.get(), &HideAway::Found, this, &HraWindow::ComeBack);
}

HraWindow::~HraWindow() = default;

void HraWindow::StartTicking(bool again) {
  UseKeys();
  ReleaseKeys();
  topBar_->PulseRestart(false);
  SetTitle(*this, RunCaption(hra_, skin_));
  controls_->Starts(again);
  PaceChanged();
  PresentView();
  GoOn();
}

void HraWindow::GoOn() {
  running_ = true;
  if (!paused_ && dialogs_ == 0) tmrHra_.start();
}

void HraWindow::ShowMoment(bool jump) {
  motion_.End();
  zorik::ShowMoment(hra_, jump, painter_, *topBar_, *strip_);
  topBar_->PulseRestart(NothingHelps(hra_));
  PresentView();
}

void HraWindow::Stop() {
  running_ = false;
  paused_ = false;
  away_ = false;
  hideAway_->hide();
  StopTicks();
  sounds_.StopAll();
  controls_->Now().Stops();
}

// At its fastest the game shows every tick, so there are no more ticks than the screen has pictures.
int HraWindow::Paced(int wanted) const {
  const qreal rate = std::max(1.0, screen()->refreshRate());
  return std::max(wanted, static_cast<int>(std::ceil(1000 / rate)));
}

void HraWindow::PaceChanged() {
  tmrHra_.setInterval(Paced(controls_->Now().Interval()));
}

// The tick

void HraWindow::OnTick() {
  KeySnapshot keys = keyboard_.Take();
  if (joyPad_ && isActiveWindow()) {
    joyPad_->Sample(keys);
  } else if (joyPad_) {
    joyPad_->Forget();
  }
  requests_.clear();
  Arrive();
  painter_.TickBegins(settings_.SmoothMotion);
  const TickEnd end = controls_->Now().Pass(keys);
  PresentTick(end);
  AfterTick(end);
}

// The pad's centre is read when it is looked for: before anybody pushes it in play.
void HraWindow::UseKeys() {
  keyboard_.SetKeys(settings_.Keys);
  topBar_->SetTips(skin_, settings_.Keys);
  controls_->Now().KeysChosen();
  if (!settings_.Joystick) {
    joyPad_.reset();
  } else if (!joyPad_) {
    joyPad_.emplace();
  }
  if (joyPad_) joyPad_->SetButtons(settings_.Pad);
}

void HraWindow::ReleaseKeys() {
  keyboard_.ReleaseAll();
  if (joyPad_) joyPad_->Forget();
  controls_->Now().ReleaseKeys();
}

void HraWindow::RecordEnds() {
  strip_->ShowNotice(kRecordEndWords.In(skin_), ToColour(Colour::White));
  topBar_->PulseRestart(true);
  controls_->Now().RecordEnds();
  emit RecordOver();
}

void HraWindow::AfterTick(TickEnd end) {
  const std::vector<Request> requests = std::exchange(requests_, {});
  for (const Request request : requests) Act(request);
  if (end == TickEnd::Restarted) SetTitle(*this, RunCaption(hra_, skin_));
  topBar_->PulseRestart(end == TickEnd::Running && NothingHelps(hra_));
  const bool mourns = hra_.Kind == RunKind::Play && UnitIsLost(hra_);
  topBar_->AddToRestartTip(mourns ? kTryPracticeWords.In(skin_) : QString());
  if (end != TickEnd::Won && end != TickEnd::RecordOver) return;
  Stop();
  if (end == TickEnd::Won) {
    emit RunWon();
  } else {
    RecordEnds();
  }
}

void HraWindow::PresentView() {
  if (hra_.CaveWidth == 0) return;
  const QRegion& changed = painter_.Look(hra_, ram_->PixelSize(), motion_.Way());
  Overlay overlay = ghost_.Beside(hra_, painter_, motion_.Way());
  controls_->Now().LayOver(overlay, painter_);
  ram_->SetOverlay(painter_.Lay(overlay));
  ram_->ShowChanges(painter_, changed);
  if (std::exchange(flash_, false) && !settings_.LessFlashing) pctBlesk_->ShowOnce();
}

// With smooth motion a tick's picture is complete when the next tick begins.
void HraWindow::PresentTick(TickEnd end) {
  painter_.TickEnds(hra_);
  const bool moves = ghost_.Moves(hra_, painter_) || painter_.Moves(hra_);
  if (end == TickEnd::Running && moves) motion_.Begin(Interval(), screen()->refreshRate());
  if (!motion_.Runs()) PresentView();
}

// What is on its way is there.
void HraWindow::Arrive() {
  if (!motion_.Runs()) return;
  motion_.End();
  PresentView();
}

void HraWindow::StopTicks() {
  tmrHra_.stop();
  Arrive();
}

void HraWindow::Act(Request request) {
  switch (request) {
    case Request::Pause:
      PauseRun();
      break;
    case Request::IdleQuestion:
      WithDialog(
          [this] { Ask(skin_, this, skin_.Text(TextId::IdleTitle), skin_.Text(TextId::IdleQuestion)); });
      break;
    case Request::HideAway:
      Hide();
      break;
    case Request::Faster:
      ChangeSpeed(1);
      break;
    case Request::Slower:
      ChangeSpeed(-1);
      break;
    case Request::ViewToggle:
      ToggleView();
      break;
  }
}

void HraWindow::PauseRun() {
  sounds_.PauseAll();
  WithDialog([this] { ShowPause(skin_, this, settings_, joyPad_ ? &*joyPad_ : nullptr); });
  sounds_.ResumeAll();
}

// The controls

void HraWindow::ChangeSpeed(int delta) {
  int& speed = hra_.ReplayPlaying() ? settings_.SpeedR : settings_.Speed;
  speed = ZmenRychlost(speed, delta);
  Disregard(StoreSett(settings_));  // a speed that cannot be kept is good for this run all the same
  controls_->Now().SpeedChosen();
  PaceChanged();
}

void HraWindow::ToggleView() {
  painter_.SetScrollView(!painter_.ScrollView());
  topBar_->SetScrollView(painter_.ScrollView());
  PresentView();
}

void HraWindow::Restart() {
  ReleaseKeys();
  RestartCave(hra_);
  StartTicking(true);
}

void HraWindow::EditSettings() {
  const Settings before = settings_;
  bool changed = false;
  WithDialog([&] { changed = FrmSettings(skin_, this).Edit(settings_); });
  if (!changed) return;
  sounds_.SetVolume(settings_.Volume);
  sounds_.SwitchLoops(settings_.Loops);
  sounds_.Switch(settings_.Sound);
  UseKeys();
  if (settings_.SpeedR != before.SpeedR) controls_->Now().SpeedChosen();
  PaceChanged();
  painter_.SetStill(settings_.LessFlashing);
  if (settings_.NoSurprise != before.NoSurprise) RepaintHiddenThings();
}

void HraWindow::RepaintHiddenThings() {
  painter_.SetNoSurprise(settings_.NoSurprise);
  ForEachCell(hra_, [this](Cell c) {
    if (SecretIn(hra_, c) != kNoSecret) painter_.CellChanged(hra_, c.x(), c.y());
  });
  PresentView();
}

void HraWindow::WithDialog(const std::function<void()>& dialog) {
  StopTicks();
  ReleaseKeys();
  ++dialogs_;
  dialog();
  --dialogs_;
  ReleaseKeys();
  if (running_ && !paused_ && dialogs_ == 0) tmrHra_.start();
}

// Hiding and minimising: the run stands still, its sounds are held.

void HraWindow::Pause() {
  if (std::exchange(paused_, true)) return;
  StopTicks();
  ReleaseKeys();
  sounds_.PauseAll();
}

void HraWindow::Resume() {
  if (!std::exchange(paused_, false)) return;
  sounds_.ResumeAll();
  ReleaseKeys();
  if (running_ && dialogs_ == 0) tmrHra_.start();
}

// A dialog of the game is no other window; the run waits for it anyway. The pause's own box would take the
// keys from the other window: it opens when the player is back.
void HraWindow::LookedAway() {
  const bool plays = running_ && !paused_ && dialogs_ == 0;
  if (!plays || !settings_.PauseOnFocusLoss || QApplication::activeWindow() != nullptr) return;
  away_ = true;
  Pause();
  strip_->ShowNotice(kPauseWords.In(skin_), ToColour(Colour::White));
}

void HraWindow::LookedBack() {
  if (!std::exchange(away_, false)) return;
  strip_->Clear();
  Resume();
  PauseRun();
}

void HraWindow::Hide() {
  Pause();
  SetTitle(*hideAway_, kTableWords.In(skin_));
  hideAway_->show();
  hideAway_->activateWindow();
  hide();
}

void HraWindow::ComeBack() {
  show();
  activateWindow();
  hideAway_->hide();
  Resume();
}

// The stage

void HraWindow::CaveOpens() {
  strip_->Clear();
  painter_.SetNoSurprise(settings_.NoSurprise);
  painter_.SetStill(settings_.LessFlashing);
  painter_.SetPlaces(skin_.Places());
  painter_.CaveOpens(hra_);
  sounds_.SetSound(settings_.Sound);
  sounds_.SetLoops(settings_.Loops);
  sounds_.SetVolume(settings_.Volume);
  const Result<Done> loaded = sounds_.InicializaceZvuku(skin_.Places());
  if (!loaded) emit NoSound(QString::fromStdString(loaded.Message()));
  ShowDecoration();
  topBar_->HideUnits();
  ShowKind();
}

// The view toggle starts as whether this is a replay; in play the view scrolls whatever it says.
void HraWindow::ShowKind() {
  painter_.SetScrollView(!hra_.EditorRun());
  topBar_->ShowLabel1(hra_.ReplayPlaying() || hra_.EditorRun());
  topBar_->SetScrollView(painter_.ScrollView());
}

void HraWindow::KindChanged() {
  ShowKind();
  SetTitle(*this, RunCaption(hra_, skin_));
  ReleaseKeys();
  PaceChanged();
  PresentView();
}

void HraWindow::Say(const QString& text, bool stays) {
  if (stays) return strip_->ShowNotice(text, ToColour(Colour::White));
  strip_->ShowMessage(text, ToColour(Colour::White));
}

void HraWindow::ShowDecoration() {
  const Decoration& around = painter_.Around();
  topBar_->SetPictures(around.Border1, around.Restart, around.Settings, around.Leave);
  imOk2_->SetPicture(around.Border2);
  bar_ = around.Bar;
  update();
}

void HraWindow::MoveView(bool jump) {
  painter_.MoveView(hra_, jump);
}

void HraWindow::ShowMessage(TextId text, Colour colour, int dogs) {
  std::string shown = skin_.Words().At(text);
  if (text == TextId::FewDogs) shown = WithNumber(shown, " 2-4", dogs);
  if (text == TextId::ManyDogs) shown = WithNumber(shown, " 5-9", dogs);
  strip_->ShowMessage(QString::fromStdString(shown), ToColour(colour));
}

void HraWindow::ShowRemark(std::string_view text, Colour colour) {
  strip_->ShowMessage(ToQString(text), ToColour(colour));
}

void HraWindow::DrawDogN(int n, int state) {
  if (!topBar_->UnitsShown()) {
    if (!hra_.MultiDog) return;
    topBar_->ShowUnits(hra_.DogCount, hra_.SchemeHue);
  }
  topBar_->DrawDogN(n, state);
}

std::optional<std::uint64_t> HraWindow::Reseed() {
  return ClockNow();
}

// The window's events

void HraWindow::keyPressEvent(QKeyEvent* event) {
  if (controls_->Now().Press(*event)) return;
  if (GameKey(*event, settings_.Keys) >= 0) {
    keyboard_.Press(*event);
    return;
  }
  if (event->isAutoRepeat()) return;
  if (event->key() == Qt::Key_F11) return SetFullScreen(!isFullScreen());
  if (event->key() == Qt::Key_Escape && isFullScreen()) return SetFullScreen(false);
  if (event->key() == Qt::Key_F2) return EditSettings();
  emit OtherKey(event->key());
}

// A window that was hidden while it filled the screen does not know any more what it was before.
void HraWindow::SetFullScreen(bool full) {
  if (full) maximised_ = isMaximized();
  const Qt::WindowStates before = maximised_ ? Qt::WindowMaximized : Qt::WindowNoState;
  setWindowState(full ? before | Qt::WindowFullScreen : before);
}

void HraWindow::keyReleaseEvent(QKeyEvent* event) {
  if (controls_->Now().Release(*event)) return;
  keyboard_.Release(*event);
}

void HraWindow::focusOutEvent(QFocusEvent* event) {
  ReleaseKeys();
  QWidget::focusOutEvent(event);
}

void HraWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  connect(windowHandle(), &QWindow::screenChanged, this, &HraWindow::ScreenChanged, Qt::UniqueConnection);
}

// Another screen may be finer, or show more pictures in a second.
void HraWindow::ScreenChanged() {
  PaceChanged();
  Arrange();
}

void HraWindow::Arrange() {
  const GameLayout layout = LayOut(size(), devicePixelRatioF());
  topBar_->setGeometry(layout.imOk1);
  ram_->setGeometry(layout.ram);
  imOk2_->setGeometry(layout.imOk2);
  strip_->SetTop(layout.imOk1.bottom() + 1 + kBelowBar);
  controls_->Now().Arrange();
  pctBlesk_->Fit();
  PresentView();
}

// Coming back from being minimised starts only what that has stopped.
void HraWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) topBar_->ShowLeave(isFullScreen());
  if (event->type() == QEvent::WindowStateChange && !hideAway_->isVisible()) {
    if (isMinimized()) {
      Pause();
    } else {
      Resume();
    }
  }
  if (event->type() == QEvent::ActivationChange) {
    const bool back = isActiveWindow();
    QTimer::singleShot(back ? 0 : kSettles, this, back ? &HraWindow::LookedBack : &HraWindow::LookedAway);
  }
  QWidget::changeEvent(event);
}

void HraWindow::closeEvent(QCloseEvent* event) {
  if (qApp->isSavingSession()) return;  // the end of the desktop's session is the program's end
  event->ignore();
  emit EndRequested();
}

void HraWindow::paintEvent(QPaintEvent* /*event*/) {
  PaintStretched(*this, bar_);
}

}  // namespace zorik
