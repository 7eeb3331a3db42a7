#include "screens/PairWindow.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "data/Result.h"
#include "screens/BarButton.h"
#include "screens/Hint.h"
#include "screens/PlainText.h"
#include "screens/RunView.h"
#include "screens/SeekLine.h"
#include "screens/StartWords.h"
#include "screens/TimeWords.h"
#include "screens/TransportPictures.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr int kLetters = 15;
constexpr int kMargin = 10;
constexpr int kGap = 6;
constexpr int kButton = 28;
constexpr int kPlate = 10;  // at both sides of a button's words
constexpr int kFrame = 40;  // that the desktop lays around a window, at most
constexpr int kMostLine = 84;
constexpr int kJump = 5 * kTicksPerSecond;
constexpr QChar kHardBlank(0xA0);
const QString kBetween("    ");
constexpr QSize kFirstSize(1100, 620);
constexpr QSize kLeastView(160, 80);

// The colours of the two runs, and of what parts them.
constexpr std::array<QColor, 2> kColours{QColor(0xF2, 0xB8, 0x3C), QColor(0x5C, 0xB8, 0xF2)};
constexpr QRgb kDifference = 0xFFE84A4A;

void Tint(QLabel* label, std::size_t run) {
  QPalette colours = label->palette();
  colours.setColor(QPalette::WindowText, kColours[run]);
  label->setPalette(colours);
}

}  // namespace

PairWindow::PairWindow(Skin& skin, int interval, QWidget* parent)
    : QDialog(parent),
      skin_(skin),
      line_(new SeekLine(this)),
      moment_(NewLabel(this)),
      same_(NewLabel(this)) {
  setObjectName("pair");
  SetTitle(*this, kPairWords.In(skin_));
  setFont(GameFont(kLetters));
  QPalette dark = palette();
  dark.setColor(QPalette::Window, QColor(0x14, 0x0F, 0x1A));
  dark.setColor(QPalette::WindowText, QColor(0xE8, 0xE8, 0xE0));
  setPalette(dark);
  timer_.setInterval(interval);
  connect(&timer_, &QTimer::timeout, this, &PairWindow::PlayOn);
  connect(line_, &SeekLine::Sought, this, &PairWindow::Seek);
  LayOut();
  const QSize room = screen()->availableSize() - QSize(kFrame, kFrame);
  resize(kFirstSize.boundedTo(room));
}

void PairWindow::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kGap, kMargin, kGap);
  rows->setSpacing(kGap);
  rows->addLayout(NewViews(), 4);
  line_->setMinimumHeight(SeekLine::kHeightWithCurves);
  line_->setMaximumHeight(kMostLine);
  SetHint(*line_, kSeekWords.In(skin_));
  rows->addWidget(line_, 1);
  rows->addLayout(NewButtons());
}

// What a run has come to may take two lines in a narrow window, and a long name no room from the other run.
QLayout* PairWindow::NewViews() {
  auto* const pair = new QGridLayout;
  pair->setSpacing(kGap);
  for (std::size_t run = 0; run < views_.size(); ++run) {
    const int column = static_cast<int>(run);
    names_[run] = NewLabel(this);
    names_[run]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    totals_[run] = NewLabel(this);
    totals_[run]->setWordWrap(true);
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
  return pair;
}

QLayout* PairWindow::NewButtons() {
  auto* const buttons = new QHBoxLayout;
  buttons->setSpacing(kGap);
  buttons->addWidget(NewButton("start", Transport::Start, kToStartWords, &PairWindow::ToStart));
  buttons->addWidget(NewButton("back", Transport::Back, kStepBackWords, &PairWindow::StepBack));
  play_ = NewButton("play", Transport::Play, kPlayOrStopWords, &PairWindow::TogglePlay);
  buttons->addWidget(play_);
  buttons->addWidget(NewButton("forward", Transport::Forward, kStepForwardWords, &PairWindow::StepOn));
  buttons->addWidget(NewButton("end", Transport::End, kToEndWords, &PairWindow::ToEnd));
  buttons->addSpacing(kGap);
  buttons->addWidget(moment_, 1);
  toDifference_ = NewButton("difference", &PairWindow::ToDifference);
  toDifference_->SetCaption(OneLine(kDifferenceWords.In(skin_), kMostInCaption));
  toDifference_->setFixedSize(toDifference_->CaptionWidth(kButton) + 2 * kPlate, kButton);
  buttons->addWidget(toDifference_);
  same_->setText(OneLine(kSameWords.In(skin_), kMostInCaption));
  buttons->addWidget(same_);
  return buttons;
}

// The keys are the window's own.
BarButton* PairWindow::NewButton(const char* name, Act act) {
  auto* const button = new BarButton(this);
  button->setObjectName(name);
  button->setFixedSize(kButton, kButton);
  connect(button, &BarButton::Clicked, this, act);
  return button;
}

BarButton* PairWindow::NewButton(const char* name, Transport picture, const StartWords& hint, Act act) {
  BarButton* const button = NewButton(name, act);
  button->SetPicture(TransportPicture(picture));
  SetHint(*button, hint.In(skin_));
  return button;
}

Result<Done> PairWindow::Open(const std::string& recordA, const std::string& recordB) {
  Result<Comparison> found = Compare(recordA, recordB);
  if (!found) return Failure{found.Message()};
  length_ = found->Length();
  difference_ = found->firstDifference;
  std::vector<SeekLine::Mark> marks;
  if (difference_) marks.push_back({*difference_, kDifference});
  line_->SetRun(length_, std::move(marks),
                {{kColours[0], found->totalsOfA.gemTicks}, {kColours[1], found->totalsOfB.gemTicks}});
  SetTotals(0, found->totalsOfA);
  SetTotals(1, found->totalsOfB);
  views_[0]->SetRun(std::move(found->a));
  views_[1]->SetRun(std::move(found->b));
  for (std::size_t run = 0; run < views_.size(); ++run) {
    const QString name = ToQString(views_[run]->Run().RecordPlayer);
    names_[run]->setText(OneLine(name));
    SetHint(*names_[run], name);
  }
  toDifference_->setVisible(difference_.has_value());
  same_->setVisible(!difference_);
  ShowTick(0);
  return Done{};
}

void PairWindow::SetTotals(std::size_t run, const RunTotals& totals) {
  const auto part = [this](const StartWords& words, const QString& value) {
    return words.Before(skin_).replace(' ', kHardBlank) + kHardBlank + value;
  };
  const QString score = totals.won ? QString::number(totals.score) : QString(QChar(0x2013));
  totals_[run]->setText(
      OneLine(QStringList{part(kPairTimeWords, TimeWords(totals.ticks, skin_)),
                          part(kPairTicksWords, QString::number(totals.ticks)),
                          part(kPairGemsWords, QString::number(totals.gems)), part(kPairScoreWords, score)}
                  .join(kBetween)));
}

void PairWindow::ShowTick(int tick) {
  tick_ = std::clamp(tick, 0, length_);
  for (RunView* const view : views_) view->ShowTick(tick_);
  line_->ShowTick(tick_);
  moment_->setText(TimeWords(tick_, skin_) + QString(" (%1)").arg(tick_));
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
  play_->SetPicture(TransportPicture(plays ? Transport::Stop : Transport::Play));
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
  const bool again = event->isAutoRepeat() && event->key() == Qt::Key_Space;
  if (const Act act = ActOf(event->key())) return again ? event->accept() : (this->*act)();
  QDialog::keyPressEvent(event);
}

}  // namespace zorik
