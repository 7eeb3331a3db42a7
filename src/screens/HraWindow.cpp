#include "screens/HraWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <cmath>

#include "data/Cp1250.h"
#include "screens/MsgBox.h"
#include "screens/Wording.h"

namespace zorik {
namespace {

constexpr int kSmallest = 480;    // width of the smallest window
constexpr int kFlashAtLeast = 5;  // milliseconds

QColor ToColour(Colour colour) {
  const auto number = static_cast<std::uint32_t>(colour);
  return QColor(static_cast<int>(number & 255U), static_cast<int>(number >> 8U & 255U),
                static_cast<int>(number >> 16U & 255U));
}

QString Shown(std::string_view bytes) {
  return QString::fromStdString(ToUtf8(bytes));
}

std::uint64_t ClockNow() {
  return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

QString Figures(int value, int digits) {
  return QString("%1").arg(value, digits, 10, QLatin1Char('0'));
}

}  // namespace

HraWindow::HraWindow(Session session, Texts texts, const SkinPlaces& places, const Settings& settings)
    : session_(std::move(session)),
      texts_(std::move(texts)),
      settings_(settings),
      painter_(places, ClockNow()),
      hra_(ClockNow()),
      ram_(new Ram(this)),
      strip_(new MessageStrip(this)),
      pctBlesk_(new QWidget(this)) {
  setObjectName("frmHra");
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(kSmallest, kSmallest * 3 / 4);
  resize(39 * 24, 23 * 24);
  pctBlesk_->setAutoFillBackground(true);
  pctBlesk_->setPalette(QPalette(Qt::white));
  pctBlesk_->hide();
  painter_.SetNoSurprise(settings_.NoSurprise);
  hra_.SetStage(*this);
  hra_.PlayerName = session_.Player();
  tmrHra_.setTimerType(Qt::PreciseTimer);
  connect(&tmrHra_, &QTimer::timeout, this, &HraWindow::OnTick);
}

void HraWindow::OpenCave(int number) {
  cave_ = number;
  hra_.CollectionName = session_.Collection().Name;
  painter_.SetScrollView(true);
  if (PaintCave(hra_, session_.CaveText(number), RunKind::Play)) {
    Say(wording::kCannotOpen);
    return;
  }
  StartTicking();
}

void HraWindow::PlayRecord() {
  const std::optional<std::string> record = session_.StoredRecord(cave_);
  if (!record) {
    Say(wording::kNoRecord);
    return;
  }
  painter_.SetScrollView(true);
  if (Replay(hra_, *record)) {
    Say(wording::kCannotOpen);
    return;
  }
  if (hra_.RecordPlayer != hra_.PlayerName) {
    Say(Shown(hra_.RecordPlayer) + "  " + Text(106) + "\n" + Text(107));
  }
  StartTicking();
}

void HraWindow::StartTicking() {
  running_ = true;
  keyboard_.ReleaseAll();
  UpdateCaption();
  SetInterval();
  tmrHra_.start();
  DrawView();
}

// At its fastest the game shows every tick, so there are no more ticks than the screen has pictures.
void HraWindow::SetInterval() {
  const int wanted = TimerInterval(hra_.ReplayPlaying ? settings_.SpeedR : settings_.Speed);
  const qreal rate = std::max(1.0, screen()->refreshRate());
  tmrHra_.setInterval(std::max(wanted, static_cast<int>(std::ceil(1000 / rate))));
}

// The tick

void HraWindow::OnTick() {
  KeySnapshot keys = keyboard_.Take();
  if (settings_.Joystick) joyPad_.Sample(keys);
  requests_.clear();
  const TickEnd end = Tick(hra_, keys);
  DrawView();
  AfterTick(end);
}

void HraWindow::AfterTick(TickEnd end) {
  const std::vector<Request> requests = std::exchange(requests_, {});
  for (const Request request : requests) Act(request);
  if (end == TickEnd::Restarted) UpdateCaption();
  if (end == TickEnd::Won) Finished();
  if (end == TickEnd::RecordOver) ReplayOver();
}

void HraWindow::DrawView() {
  if (hra_.CaveWidth == 0) return;
  ram_->Show(painter_.Compose(hra_, ram_->PixelSize()));
  if (std::exchange(flash_, false)) ShowFlash();
}

// The flash stands for one picture of the screen.
void HraWindow::ShowFlash() {
  pctBlesk_->setGeometry(rect());
  pctBlesk_->raise();
  pctBlesk_->show();
  pctBlesk_->repaint();
  const qreal rate = std::max(1.0, screen()->refreshRate());
  QTimer::singleShot(std::max(kFlashAtLeast, static_cast<int>(1000 / rate)), pctBlesk_, &QWidget::hide);
}

void HraWindow::Act(Request request) {
  switch (request) {
    case Request::Pause:
      Say(Text(97));
      break;
    case Request::IdleQuestion:
      WithDialog([this] { Ask(this, Text(100), Text(98)); });
      break;
    case Request::HideAway:
      showMinimized();
      break;
    case Request::Faster:
      ChangeSpeed(1);
      break;
    case Request::Slower:
      ChangeSpeed(-1);
      break;
    case Request::ViewToggle:
      painter_.SetScrollView(!painter_.ScrollView());
      break;
  }
}

void HraWindow::ChangeSpeed(int delta) {
  int& speed = hra_.ReplayPlaying ? settings_.SpeedR : settings_.Speed;
  speed = ZmenRychlost(speed, delta);
  StoreSett(settings_);
  SetInterval();
}

// The stage

void HraWindow::CaveOpens() {
  strip_->hide();
  painter_.CaveOpens(hra_);
}

void HraWindow::CellChanged(int x, int y) {
  painter_.CellChanged(hra_, x, y);
}

void HraWindow::View(bool jump) {
  painter_.View(hra_, jump);
}

void HraWindow::ShowMessage(int text, Colour colour, int dogs) {
  std::string shown = texts_.At(text);
  if (text == 90) shown = WithNumber(shown, " 2-4", dogs);
  if (text == 91) shown = WithNumber(shown, " 5-9", dogs);
  strip_->ShowMessage(QString::fromStdString(shown), ToColour(colour));
}

void HraWindow::ShowRemark(std::string_view text, Colour colour) {
  strip_->ShowMessage(Shown(text), ToColour(colour));
}

void HraWindow::Label(LabelId /*label*/, int /*value*/) {
  UpdateCaption();
}

std::optional<std::uint64_t> HraWindow::Reseed() {
  return ClockNow();
}

// The ends of a run

void HraWindow::Finished() {
  running_ = false;
  tmrHra_.stop();
  if (hra_.ReplayPlaying) {
    ReplayFinished(true);
    return;
  }
  const QString stored = StoreWin();
  Say(QString(wording::kSolved) + "\n\n" + Breakdown() + "\n\n" + stored);
  NextCave();
}

QString HraWindow::StoreWin() {
  const int score = hra_.Win->Score;
  bool store = session_.JeLepsi(cave_, score);
  if (!store) WithDialog([&] { store = Ask(this, wording::kQuestion, wording::kOverwrite); });
  if (!store) return wording::kOldKept;
  const Result<std::string> path = session_.Store(cave_, SaveRecord(hra_, score));
  if (!path) return wording::kNotStored;
  return QString(wording::kStored) + "\n" + QString::fromStdString(*path);
}

void HraWindow::NextCave() {
  if (cave_ < session_.CaveCount()) {
    OpenCave(cave_ + 1);
    return;
  }
  const std::string text =
      WithText(session_.Collection().Congratulation, "$P", std::to_string(session_.Total()));
  Say(text.empty() ? QString(wording::kAllSolved) : Shown(text));
  OpenCave(1);
}

void HraWindow::ReplayFinished(bool won) {
  running_ = false;
  tmrHra_.stop();
  Say(won ? QString(wording::kReplayWon) + "\n\n" + Breakdown() : QString(wording::kReplayOver));
  LeaveReplay();
}

void HraWindow::ReplayOver() {
  ReplayFinished(false);
}

void HraWindow::LeaveReplay() {
  OpenCave(cave_);
}

// To the next or the last one of the caves that are open to the player.
void HraWindow::StepCave(int delta) {
  for (int number = cave_ + delta; number >= 1 && number <= session_.CaveCount(); number += delta) {
    if (!session_.IsOpen(number)) continue;
    OpenCave(number);
    return;
  }
}

void HraWindow::WithDialog(const std::function<void()>& dialog) {
  const bool ticking = tmrHra_.isActive();
  tmrHra_.stop();
  keyboard_.ReleaseAll();
  dialog();
  keyboard_.ReleaseAll();
  if (ticking) tmrHra_.start();
}

void HraWindow::Say(const QString& text) {
  WithDialog([this, &text] { Tell(this, Text(99), text); });
}

// Words

QString HraWindow::Text(int place) const {
  return QString::fromStdString(texts_.At(place));
}

QString HraWindow::Breakdown() const {
  return Shown(ScoreBreakdown(hra_, *hra_.Win));
}

void HraWindow::UpdateCaption() {
  QString caption = Text(99) + " - ";
  if (!hra_.CollectionName.empty()) caption += Shown(hra_.CollectionName) + " - ";
  caption += Shown(hra_.CaveName) + "   ...";
  const bool nobody = hra_.PlayerName == "/";
  if (hra_.ReplayPlaying && nobody) {
    caption += Text(92);
  } else {
    const std::string player = nobody ? std::string() : ToUtf8(hra_.PlayerName);
    caption += QString::fromStdString(BlankJoin(texts_.At(hra_.ReplayPlaying ? 93 : 94), player));
  }
  caption +=
      QString("   |   %1 %2   |   %3 %4 / %5 %6 %7 %8")
          .arg(wording::kTime, Figures(hra_.ClockShown, 3), wording::kGems, Figures(hra_.GemsCollected, 3),
               Figures(hra_.GemsNeeded, 3), wording::kValue, Figures(hra_.GemValue, 2), wording::kPoints);
  setWindowTitle(caption);
}

// The window's events

void HraWindow::keyPressEvent(QKeyEvent* event) {
  if (event->isAutoRepeat()) {
    keyboard_.Press(*event);
    return;
  }
  switch (event->key()) {
    case Qt::Key_F5:
      PlayRecord();
      return;
    case Qt::Key_F11:
      setWindowState(windowState() ^ Qt::WindowFullScreen);
      return;
    case Qt::Key_Escape:
      if (hra_.ReplayPlaying) LeaveReplay();
      return;
    case Qt::Key_PageDown:
      StepCave(1);
      return;
    case Qt::Key_PageUp:
      StepCave(-1);
      return;
    default:
      keyboard_.Press(*event);
  }
}

void HraWindow::keyReleaseEvent(QKeyEvent* event) {
  keyboard_.Release(*event);
}

void HraWindow::focusOutEvent(QFocusEvent* event) {
  keyboard_.ReleaseAll();
  QWidget::focusOutEvent(event);
}

void HraWindow::resizeEvent(QResizeEvent* /*event*/) {
  ram_->setGeometry(LayOut(size()).ram);
  strip_->Centre();
  if (pctBlesk_->isVisible()) pctBlesk_->setGeometry(rect());
  DrawView();
}

// A minimised window stands still. Coming back starts only what that stopped.
void HraWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) {
    if (isMinimized() && tmrHra_.isActive()) {
      minimised_ = true;
      tmrHra_.stop();
    } else if (!isMinimized() && std::exchange(minimised_, false) && running_) {
      tmrHra_.start();
    }
  }
  QWidget::changeEvent(event);
}

void HraWindow::closeEvent(QCloseEvent* event) {
  running_ = false;
  tmrHra_.stop();
  QWidget::closeEvent(event);
}

void HraWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).fillRect(rect(), kBarColour);
}

}  // namespace zorik
