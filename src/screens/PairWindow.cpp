#include "screens/PairWindow.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "data/Result.h"
#include "screens/PairLine.h"
#include "screens/PlainText.h"
#include "screens/RunView.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr int kLetters = 16;
constexpr QSize kFirstSize(1100, 560);
constexpr QSize kLeastView(200, 120);
constexpr int kJump = 5 * kTicksPerSecond;

void Tint(QLabel* label, std::size_t run) {
  QPalette colours = label->palette();
  colours.setColor(QPalette::WindowText, kPairColours[run]);
  label->setPalette(colours);
}

}  // namespace

PairWindow::PairWindow(Skin& skin, int interval, QWidget* parent)
    : QDialog(parent), skin_(skin), line_(new PairLine(this)), moment_(NewLabel(this)) {
  SetTitle(*this, kPairWords.In(skin_));
  setFont(GameFont(kLetters));
  QPalette dark = palette();
  dark.setColor(QPalette::Window, QColor(0x14, 0x0F, 0x1A));
  dark.setColor(QPalette::WindowText, QColor(0xE8, 0xE8, 0xE0));
  setPalette(dark);
  timer_.setInterval(interval);
  connect(&timer_, &QTimer::timeout, this, &PairWindow::PlayOn);
  connect(line_, &PairLine::Sought, this, &PairWindow::Seek);
  LayOut();
  resize(kFirstSize);
}

void PairWindow::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  auto* const pair = new QGridLayout;
  for (std::size_t run = 0; run < views_.size(); ++run) {
    const int column = static_cast<int>(run);
    names_[run] = NewLabel(this);
    totals_[run] = NewLabel(this);
    views_[run] = new RunView(skin_.Places(), this);
    views_[run]->setMinimumSize(kLeastView);
    Tint(names_[run], run);
    Tint(totals_[run], run);
    pair->addWidget(names_[run], 0, column);
    pair->addWidget(views_[run], 1, column);
    pair->addWidget(totals_[run], 2, column);
    pair->setColumnStretch(column, 1);
  }
  pair->setRowStretch(1, 1);
  rows->addLayout(pair, 1);
  rows->addWidget(line_);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(NewButton("start", QStyle::SP_MediaSkipBackward, &PairWindow::ToStart));
  buttons->addWidget(NewButton("back", QStyle::SP_MediaSeekBackward, &PairWindow::StepBack));
  buttons->addWidget(play_ = NewButton("play", QStyle::SP_MediaPlay, &PairWindow::TogglePlay));
  buttons->addWidget(NewButton("forward", QStyle::SP_MediaSeekForward, &PairWindow::StepOn));
  buttons->addWidget(NewButton("end", QStyle::SP_MediaSkipForward, &PairWindow::ToEnd));
  buttons->addWidget(moment_, 1);
  buttons->addWidget(toDifference_ = NewButton("difference", -1, &PairWindow::ToDifference));
  rows->addLayout(buttons);
}

// The keys are the window's own.
QPushButton* PairWindow::NewButton(const char* name, int icon, Act act) {
  auto* const button = new QPushButton(this);
  button->setObjectName(name);
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoDefault(false);
  if (icon >= 0) button->setIcon(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icon)));
  connect(button, &QPushButton::clicked, this, act);
  return button;
}

Result<Done> PairWindow::Open(const std::string& recordA, const std::string& recordB) {
  Result<Comparison> found = Compare(recordA, recordB);
  if (!found) return Failure{found.Message()};
  length_ = found->Length();
  difference_ = found->firstDifference;
  line_->SetRuns(length_, difference_, {found->totalsOfA.gemTicks, found->totalsOfB.gemTicks});
  SetTotals(0, found->totalsOfA);
  SetTotals(1, found->totalsOfB);
  views_[0]->SetRun(std::move(found->a));
  views_[1]->SetRun(std::move(found->b));
  for (std::size_t run = 0; run < views_.size(); ++run)
    names_[run]->setText(OneLine(ToQString(views_[run]->Run().RecordPlayer)));
  toDifference_->setEnabled(difference_.has_value());
  toDifference_->setText(InMenu((difference_ ? kDifferenceWords : kSameWords).In(skin_)));
  ShowTick(0);
  return Done{};
}

QString PairWindow::Time(int ticks) const {
  const int seconds = ticks / kTicksPerSecond;
  return QString("%1:%2.%3")
      .arg(seconds / 60)
      .arg(seconds % 60, 2, 10, QChar('0'))
      .arg(ticks % kTicksPerSecond);
}

void PairWindow::SetTotals(std::size_t run, const RunTotals& totals) {
  const QString score = totals.won ? QString::number(totals.score) : QString(QChar(0x2013));
  totals_[run]->setText(kPairTimeWords.Before(skin_) + ' ' + Time(totals.ticks) + "    " +
                        kPairGemsWords.Before(skin_) + ' ' + QString::number(totals.gems) + "    " +
                        kPairScoreWords.Before(skin_) + ' ' + score);
}

void PairWindow::ShowTick(int tick) {
  tick_ = std::clamp(tick, 0, length_);
  for (RunView* const view : views_) view->ShowTick(tick_);
  line_->ShowTick(tick_);
  moment_->setText(Time(tick_) + QString(" (%1)").arg(tick_));
}

void PairWindow::SeekOn() {
  Seek(tick_ + kJump);
}

void PairWindow::SeekBack() {
  Seek(tick_ - kJump);
}

void PairWindow::ToDifference() {
  if (difference_) Seek(*difference_);
}

void PairWindow::Seek(int tick) {
  Play(false);
  ShowTick(tick);
}

void PairWindow::TogglePlay() {
  if (!Plays() && tick_ == length_) ShowTick(0);
  Play(!Plays());
}

void PairWindow::Play(bool plays) {
  if (plays) {
    timer_.start();
  } else {
    timer_.stop();
  }
  play_->setIcon(style()->standardIcon(plays ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay));
}

void PairWindow::PlayOn() {
  ShowTick(tick_ + 1);
  if (tick_ == length_) Play(false);
}

PairWindow::Act PairWindow::ActOf(int key) {
  static constexpr std::array<std::pair<int, Act>, 8> kActs{{{Qt::Key_Space, &PairWindow::TogglePlay},
                                                             {Qt::Key_Period, &PairWindow::StepOn},
                                                             {Qt::Key_Comma, &PairWindow::StepBack},
                                                             {Qt::Key_Right, &PairWindow::SeekOn},
                                                             {Qt::Key_Left, &PairWindow::SeekBack},
                                                             {Qt::Key_Home, &PairWindow::ToStart},
                                                             {Qt::Key_End, &PairWindow::ToEnd},
                                                             {Qt::Key_D, &PairWindow::ToDifference}}};
  const auto found =
      std::find_if(kActs.begin(), kActs.end(), [key](const auto& act) { return act.first == key; });
  return found == kActs.end() ? nullptr : found->second;
}

void PairWindow::keyPressEvent(QKeyEvent* event) {
  if (const Act act = ActOf(event->key())) return (this->*act)();
  QDialog::keyPressEvent(event);
}

}  // namespace zorik
