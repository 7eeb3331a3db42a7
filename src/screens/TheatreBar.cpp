#include "screens/TheatreBar.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <utility>

#include "core/Hra.h"
#include "screens/BarButton.h"
#include "screens/Hint.h"
#include "screens/SeekLine.h"
#include "screens/StartWords.h"
#include "screens/TransportPictures.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

// In the desktop's units, where there is room for them.
constexpr int kHeight = 66;
constexpr int kWidest = 760;
constexpr int kMargin = 10;
constexpr int kLineTop = 4;
constexpr int kRowTop = 32;
constexpr int kButton = 28;
constexpr int kGap = 5;
constexpr int kMomentWidth = 190;
constexpr int kNumberWidth = 54;
constexpr int kLetters = 15;
constexpr int kSmallestLetters = 8;

constexpr QColor kRim(0xC9, 0xA2, 0x5C);
constexpr QColor kPlain(0xF4, 0xEA, 0xD4);

// What happens often is low, so that what is rare stands out of it.
struct MarkLook {
  RunEventKind kind;
  QRgb colour;
  int height;
};
constexpr std::array kMarks{
    MarkLook{RunEventKind::Explosion, 0xFFE08030, 6},   MarkLook{RunEventKind::Gem, 0xFF60D8FF, 8},
    MarkLook{RunEventKind::UnitChanged, 0xFFE8E8E8, 8}, MarkLook{RunEventKind::Key, 0xFFFFE060, 12},
    MarkLook{RunEventKind::Lock, 0xFFB08040, 12},       MarkLook{RunEventKind::FinishOpen, 0xFFFFFFFF, 18},
    MarkLook{RunEventKind::UnitLost, 0xFFFF5050, 18},   MarkLook{RunEventKind::Win, 0xFF70F070, 18}};

QString Clock(int ticks) {
  const int seconds = ticks / kTicksPerSecond;
  return QString("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace

TheatreBar::TheatreBar(QWidget* parent)
    : FloatingBar(parent, kHeight, kWidest),
      line_(new SeekLine(this)),
      back_(NewButton("back")),
      play_(NewButton("play")),
      forward_(NewButton("forward")),
      slower_(NewButton("slower")),
      faster_(NewButton("faster")),
      page_(NewButton("page")),
      again_(NewButton("again")),
      takeOver_(NewButton("takeover")) {
  setObjectName("theatre");
  connect(back_, &BarButton::Clicked, this, [this] { emit Stepped(-1); });
  connect(forward_, &BarButton::Clicked, this, [this] { emit Stepped(1); });
  connect(slower_, &BarButton::Clicked, this, [this] { emit SpeedClicked(-1); });
  connect(faster_, &BarButton::Clicked, this, [this] { emit SpeedClicked(1); });
  connect(play_, &BarButton::Clicked, this, &TheatreBar::PlayClicked);
  connect(page_, &BarButton::Clicked, this, &TheatreBar::PageClicked);
  connect(again_, &BarButton::Clicked, this, &TheatreBar::AgainClicked);
  connect(takeOver_, &BarButton::Clicked, this, &TheatreBar::TakeOverClicked);
  again_->hide();
}

void TheatreBar::SetWords(const Skin& skin) {
  SetHint(*back_, kStepBackWords.In(skin));
  SetHint(*forward_, kStepForwardWords.In(skin));
  SetHint(*slower_, kSlowerWords.In(skin));
  SetHint(*faster_, kFasterWords.In(skin));
  SetHint(*play_, kPlayOrStopWords.In(skin));
  SetHint(*page_, kAsPageWords.In(skin));
  SetHint(*takeOver_, kTakeOverHint.In(skin));
  SetHint(*line_, kSeekWords.In(skin));
  again_->SetCaption(kPlayAgainWords.In(skin));
  takeOver_->SetCaption(kTakeOverWords.In(skin));
  PlaceAgain();
}

// Drawn for the first run, which most starts of the game never come to.
void TheatreBar::DrawSigns() {
  if (std::exchange(signsDrawn_, true)) return;
  play_->SetPicture(TransportPicture(stands_ ? Transport::Play : Transport::Stop));
  back_->SetPicture(TransportPicture(Transport::Back));
  forward_->SetPicture(TransportPicture(Transport::Forward));
  slower_->SetPicture(TransportPicture(Transport::Slower));
  faster_->SetPicture(TransportPicture(Transport::Faster));
  page_->SetPicture(TransportPicture(Transport::Page));
}

void TheatreBar::SetRun(int length, const std::vector<RunEvent>& events) {
  std::vector<SeekLine::Mark> marks;
  for (const MarkLook& look : kMarks) {
    for (const RunEvent& event : events) {
      if (event.kind == look.kind) marks.push_back({event.tick, look.colour, look.height});
    }
  }
  line_->SetRun(length, std::move(marks));
  DrawSigns();
}

void TheatreBar::ShowMoment(int tick, bool stands) {
  line_->ShowTick(tick);
  if (std::exchange(stands_, stands) != stands)
    play_->SetPicture(TransportPicture(stands ? Transport::Play : Transport::Stop));
  update(moment_);
}

void TheatreBar::SetSpeed(const QString& speed) {
  speed_ = speed;
  update(number_);
}

void TheatreBar::OfferAgain(bool offered) {
  takeOver_->setVisible(!offered);
  again_->setVisible(offered);
  again_->SetPulse(offered);
}

QString TheatreBar::MomentText() const {
  return Clock(line_->Tick()) + " / " + Clock(line_->Length()) + "   " + QString::number(line_->Tick()) +
         " / " + QString::number(line_->Length());
}

// Places

// The width in which all stands in one row.
int TheatreBar::NeededWidth() const {
  constexpr int kButtons = 6;
  const int words = std::max(again_->CaptionWidth(kButton), takeOver_->CaptionWidth(kButton));
  const int row = kButtons * (kButton + kGap) + kMomentWidth + kGap + kNumberWidth + kGap;
  return kMargin + row + words + 2 * kMargin + kMargin;
}

// A plate with words ends there.
void TheatreBar::PlaceWide(BarButton& button, int right) {
  const int height = Scaled(kButton);
  const int words = button.CaptionWidth(height) + 2 * Scaled(kMargin);
  button.setGeometry(right - words, Scaled(kRowTop), words, height);
}

void TheatreBar::Arrange() {
  line_->SetScale(Scale());
  line_->setGeometry(0, Scaled(kLineTop), width(), Scaled(SeekLine::kHeight));
  int left = Scaled(kMargin);
  const auto next = [&](int width) {
    const QRect place(left, Scaled(kRowTop), Scaled(width), Scaled(kButton));
    left += place.width() + Scaled(kGap);
    return place;
  };
  back_->setGeometry(next(kButton));
  play_->setGeometry(next(kButton));
  forward_->setGeometry(next(kButton));
  moment_ = next(kMomentWidth);
  slower_->setGeometry(next(kButton));
  number_ = next(kNumberWidth);
  faster_->setGeometry(next(kButton));
  page_->setGeometry(next(kButton));
  PlaceWide(*takeOver_, width() - Scaled(kMargin));
  PlaceWide(*again_, width() - Scaled(kMargin));
  update();
}

// The picture

void TheatreBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintGround(painter, kRim);
  DrawWords(painter);
}

void TheatreBar::DrawWords(QPainter& painter) const {
  painter.setPen(kPlain);
  const auto write = [&](const QRect& place, const QString& text) {
    int letters = std::max(kSmallestLetters, Scaled(kLetters));
    while (letters > 1 && QFontMetrics(GameFont(letters)).horizontalAdvance(text) > place.width()) --letters;
    painter.setFont(GameFont(letters));
    painter.drawText(place, Qt::AlignCenter, text);
  };
  write(moment_, MomentText());
  write(number_, speed_);
}

}  // namespace zorik
