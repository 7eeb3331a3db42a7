#include "screens/TopBar.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "screens/BarButton.h"
#include "screens/BarColours.h"
#include "screens/Hint.h"
#include "screens/KeyWords.h"
#include "screens/Marks.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr int kFigures = 23;  // height of the letters
constexpr int kLastSeconds = 10;
constexpr qreal kPlateRound = 5;
constexpr QColor kPlain(0xF4, 0xEA, 0xD4);
constexpr QColor kFaint(0xA8, 0xA0, 0x94);
constexpr QColor kLate(0xFF, 0x7A, 0x5A);
constexpr QColor kEnough(0x8C, 0xF0, 0x8C);

QString Figures(int value, int digits) {
  return QString("%1").arg(value, digits, 10, QLatin1Char('0'));
}

// Draws a text at the left of a place and answers where it ends.
int Write(QPainter& painter, const QRect& place, int left, const QString& text, QColor colour) {
  painter.setPen(colour);
  const QRect rest(QPoint(left, place.top()), place.bottomRight());
  QRect drawn;
  painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter, text, &drawn);
  return drawn.right() + 1;
}

// A letter may reach a little beyond its place.
QRect WithRim(const QRect& place) {
  constexpr int kRim = 3;
  return place.adjusted(-kRim, -kRim, kRim, kRim);
}

}  // namespace

TopBar::TopBar(QWidget* parent)
    : QWidget(parent),
      picRestart_(new BarButton(this)),
      settings_(new BarButton(this)),
      view_(new BarButton(this)),
      leave_(new BarButton(this)) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  picRestart_->setObjectName("picRestart");
  settings_->setObjectName("Command4");
  view_->setObjectName("Label1");
  view_->hide();
  leave_->setObjectName("leave");
  leave_->SetCaption(QString(QChar(0xD7)));
  leave_->hide();
  connect(picRestart_, &BarButton::Clicked, this, &TopBar::RestartClicked);
  connect(settings_, &BarButton::Clicked, this, &TopBar::SettingsClicked);
  connect(view_, &BarButton::Clicked, this, &TopBar::ViewClicked);
  connect(leave_, &BarButton::Clicked, this, &TopBar::LeaveClicked);
  SetScrollView(true);
}

void TopBar::SetPictures(const QImage& border1, const QImage& restart, const QImage& settings,
                         const QImage& leave) {
  border1_ = border1;
  picRestart_->SetPicture(restart);
  settings_->SetPicture(settings);
  leave_->SetPicture(leave);
  ground_ = {};
  update();
}

void TopBar::SetTips(const Skin& skin, const KeyMap& keys) {
  const KeyChoice& restart = keys.Of(KeyUse::Restart).front();
  restartTip_ = FillMarks(kRestartWords.In(skin), WordsOf(restart, skin), QString());
  moreOfRestart_.clear();
  SetHint(*picRestart_, restartTip_);
  SetHint(*settings_, kSettingsWords.In(skin));
  SetHint(*view_, kViewWords.In(skin));
  SetHint(*leave_, kLeaveWords.In(skin));
}

void TopBar::AddToRestartTip(const QString& more) {
  if (std::exchange(moreOfRestart_, more) == more) return;
  SetHint(*picRestart_, more.isEmpty() ? restartTip_ : restartTip_ + '\n' + more);
}

void TopBar::SetFigure(LabelId label, int value) {
  switch (label) {
    case LabelId::Clock:
      return SetClock(value);
    case LabelId::Gems:
      return SetGems(value);
    case LabelId::Needed:
      return SetNeeded(value);
    case LabelId::Value:
      return SetValue(value);
  }
}

void TopBar::Change(int& number, int value, const QRect& place) {
  if (std::exchange(number, value) != value) update(WithRim(place));
}

void TopBar::SetClock(int seconds) {
  Change(clock_, seconds, layout_.clock);
}

void TopBar::SetGems(int collected) {
  Change(gems_, collected, layout_.gems);
}

void TopBar::SetNeeded(int needed) {
  Change(needed_, needed, layout_.gems);
}

void TopBar::SetValue(int points) {
  Change(value_, points, layout_.value);
}

QString TopBar::ClockText() const {
  return Figures(clock_, 3);
}

QString TopBar::GemsText() const {
  return Figures(gems_, 3) + " / " + Figures(needed_, 3);
}

QString TopBar::ValueText() const {
  return Figures(value_, 2);
}

void TopBar::ShowLabel1(bool visible) {
  view_->setVisible(visible);
  Arrange();
}

void TopBar::ShowLeave(bool visible) {
  leave_->setVisible(visible);
  Arrange();
}

void TopBar::PulseRestart(bool pulses) {
  picRestart_->SetPulse(pulses);
}

bool TopBar::RestartPulses() const {
  return picRestart_->Pulses();
}

void TopBar::SetScrollView(bool scrolls) {
  view_->SetCaption(QString(scrolls ? QChar(0xB1) : QChar(0xA8)));
}

void TopBar::ShowUnits(int dogCount, int hue) {
  psi_.Open(dogCount, hue);
  units_ = true;
  Arrange();
}

void TopBar::HideUnits() {
  units_ = false;
  Arrange();
}

void TopBar::DrawDogN(int n, int state) {
  if (psi_.DrawDogN(n, state)) update(layout_.psi);
}

void TopBar::Arrange() {
  layout_ = LayOutTopBar(width(), !view_->isHidden(), units_ ? psi_.Width() : 0, !leave_->isHidden());
  leave_->setGeometry(layout_.leave);
  picRestart_->setGeometry(layout_.picRestart);
  settings_->setGeometry(layout_.Command4);
  view_->setGeometry(layout_.Label1);
  ground_ = {};
  update();
}

void TopBar::resizeEvent(QResizeEvent* /*event*/) {
  Arrange();
}

// The pictures are stretched once. A screen whose pixels are no whole part of the desktop's units gets them
// stretched each time, as part of a pixel more or less would be seen.
void TopBar::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const qreal ratio = devicePixelRatioF();
  if (ratio != std::floor(ratio)) {
    DrawGround(painter);
  } else {
    const QSize size = this->size() * ratio;
    if (ground_.size() != size) {
      ground_ = QImage(size, QImage::Format_RGB32);
      ground_.setDevicePixelRatio(ratio);
      QPainter stretched(&ground_);
      DrawGround(stretched);
    }
    painter.drawImage(QPoint(), ground_);
  }
  DrawFigures(painter, event->region());
  if (event->region().intersects(layout_.psi)) DrawUnits(painter);
}

void TopBar::DrawGround(QPainter& painter) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(rect(), kBarColour);
  if (border1_.isNull()) return;
  const int panels = std::min(kPanelsEnd, border1_.width());
  const int end = layout_.panelsEnd;
  painter.drawImage(QRect(0, 0, end, height()), border1_, QRect(0, 0, panels, border1_.height()));
  painter.drawImage(QRect(end, 0, width() - end, height()), border1_,
                    QRect(panels, 0, border1_.width() - panels, border1_.height()));
}

void TopBar::DrawFigures(QPainter& painter, const QRegion& part) const {
  const auto seen = [&part](const QRect& place) { return part.intersects(WithRim(place)); };
  QFont font = GameFont(std::max(1, static_cast<int>(kFigures * layout_.scale)));
  font.setBold(true);
  painter.setFont(font);
  if (seen(layout_.clock))
    Write(painter, layout_.clock, layout_.clock.left(), ClockText(), clock_ > kLastSeconds ? kPlain : kLate);
  if (seen(layout_.gems)) {
    const QColor colour = gems_ >= needed_ ? kEnough : kPlain;
    const int end = Write(painter, layout_.gems, layout_.gems.left(), Figures(gems_, 3), colour);
    Write(painter, layout_.gems, end, " / " + Figures(needed_, 3), kFaint);
  }
  if (seen(layout_.value)) Write(painter, layout_.value, layout_.value.left(), ValueText(), kPlain);
}

// The numbers have the scheme's colour, which can be as dark as the bar.
void TopBar::DrawUnits(QPainter& painter) const {
  painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kUnitPlate);
  painter.drawRoundedRect(layout_.psi, kPlateRound, kPlateRound);
  painter.translate(layout_.psi.topLeft());
  painter.scale(layout_.scale, layout_.scale);
  psi_.Paint(painter, QPoint());
}

}  // namespace zorik
