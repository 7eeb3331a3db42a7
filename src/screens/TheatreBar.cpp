#include "screens/TheatreBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "core/Hra.h"
#include "screens/BarButton.h"
#include "screens/Hint.h"
#include "screens/StartWords.h"
#include "screens/TransportPictures.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

// In the desktop's units, where there is room for them.
constexpr int kHeight = 66;
constexpr int kWidest = 760;
constexpr int kNeeded = 620;  // below this all is smaller
constexpr int kMargin = 10;
constexpr int kLineTop = 8;
constexpr int kLineHeight = 20;
constexpr int kRowTop = 32;
constexpr int kButton = 28;
constexpr int kGap = 5;
constexpr int kMomentWidth = 190;
constexpr int kNumberWidth = 54;
constexpr int kLetters = 15;
constexpr int kSmallestLetters = 8;

constexpr QColor kRim(0xC9, 0xA2, 0x5C);
constexpr QColor kPlain(0xF4, 0xEA, 0xD4);
constexpr QColor kRail(0x4A, 0x40, 0x58);
constexpr QColor kPast(0xB8, 0x9A, 0xE0);

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
      back_(NewButton("back")),
      play_(NewButton("play")),
      forward_(NewButton("forward")),
      slower_(NewButton("slower")),
      faster_(NewButton("faster")),
      again_(NewButton("again")),
      takeOver_(NewButton("takeover")) {
  setObjectName("theatre");
  play_->SetPicture(TransportPicture(Transport::Stop));
  back_->SetPicture(TransportPicture(Transport::Back));
  forward_->SetPicture(TransportPicture(Transport::Forward));
  slower_->SetPicture(TransportPicture(Transport::Slower));
  faster_->SetPicture(TransportPicture(Transport::Faster));
  connect(back_, &BarButton::Clicked, this, [this] { emit Stepped(-1); });
  connect(forward_, &BarButton::Clicked, this, [this] { emit Stepped(1); });
  connect(slower_, &BarButton::Clicked, this, [this] { emit SpeedClicked(-1); });
  connect(faster_, &BarButton::Clicked, this, [this] { emit SpeedClicked(1); });
  connect(play_, &BarButton::Clicked, this, &TheatreBar::PlayClicked);
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
  SetHint(*takeOver_, kTakeOverHint.In(skin));
  SetHint(*this, kSeekWords.In(skin));
  again_->SetCaption(kPlayAgainWords.In(skin));
  takeOver_->SetCaption(kTakeOverWords.In(skin));
  Arrange();
}

void TheatreBar::SetRun(int length, std::vector<RunEvent> events) {
  length_ = length;
  events_ = std::move(events);
  dragging_ = false;
  update();
}

void TheatreBar::ShowMoment(int tick, bool stands) {
  tick_ = std::clamp(tick, 0, length_);
  if (std::exchange(stands_, stands) != stands)
    play_->SetPicture(TransportPicture(stands ? Transport::Play : Transport::Stop));
  update();
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
  return Clock(tick_) + " / " + Clock(length_) + "   " + QString::number(tick_) + " / " +
         QString::number(length_);
}

// Places

int TheatreBar::NeededWidth() const {
  return kNeeded;
}

QRect TheatreBar::Line() const {
  return {Scaled(kMargin), Scaled(kLineTop), width() - 2 * Scaled(kMargin), Scaled(kLineHeight)};
}

int TheatreBar::PlaceOf(int tick) const {
  const QRect line = Line();
  if (length_ == 0) return line.left();
  return line.left() + static_cast<int>(static_cast<std::int64_t>(line.width() - 1) *
                                        std::clamp(tick, 0, length_) / length_);
}

int TheatreBar::TickAt(int x) const {
  const QRect line = Line();
  const int along = std::clamp(x - line.left(), 0, line.width() - 1);
  const auto ticks = static_cast<std::int64_t>(length_) * along;
  return static_cast<int>((ticks + (line.width() - 1) / 2) / std::max(1, line.width() - 1));
}

// A plate with words ends there.
void TheatreBar::PlaceWide(BarButton& button, int right) {
  const int height = Scaled(kButton);
  const int words = button.CaptionWidth(height) + 2 * Scaled(kMargin);
  button.setGeometry(right - words, Scaled(kRowTop), words, height);
}

void TheatreBar::Arrange() {
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
  PlaceWide(*takeOver_, width() - Scaled(kMargin));
  PlaceWide(*again_, width() - Scaled(kMargin));
  update();
}

// The mouse

void TheatreBar::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || event->position().y() >= Scaled(kRowTop)) return;
  dragging_ = true;
  emit Sought(TickAt(static_cast<int>(event->position().x())));
}

void TheatreBar::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) emit Sought(TickAt(static_cast<int>(event->position().x())));
}

void TheatreBar::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && std::exchange(dragging_, false)) emit Dropped();
}

// The picture

void TheatreBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintGround(painter, kRim);
  DrawLine(painter);
  DrawWords(painter);
}

void TheatreBar::DrawLine(QPainter& painter) const {
  const QRect line = Line();
  const int middle = line.center().y();
  const int rail = std::max(2, Scaled(4));
  painter.setPen(Qt::NoPen);
  painter.fillRect(QRect(line.left(), middle - rail / 2, line.width(), rail), kRail);
  const int now = PlaceOf(tick_);
  painter.fillRect(QRect(line.left(), middle - rail / 2, now - line.left(), rail), kPast);
  for (const MarkLook& look : kMarks) {
    const int height = std::max(2, Scaled(look.height));
    int last = -1;
    for (const RunEvent& event : events_) {
      if (event.kind != look.kind || PlaceOf(event.tick) == last) continue;
      last = PlaceOf(event.tick);
      painter.fillRect(QRect(last - 1, middle - height / 2, 2, height), QColor::fromRgba(look.colour));
    }
  }
  painter.setPen(QPen(QColor(0x2A, 0x1A, 0x10), 1.5));
  painter.setBrush(kPlain);
  const qreal knob = 8 * Scale();
  painter.drawEllipse(QPointF(now + 0.5, middle + 0.5), knob, knob);
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
