#include "screens/TopBar.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "screens/BarButton.h"
#include "screens/BarColours.h"
#include "screens/Hint.h"
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
  update();
}

void TopBar::SetTips(const QString& restart, const QString& settings, const QString& view,
                     const QString& leave) {
  SetHint(*picRestart_, restart);
  SetHint(*settings_, settings);
  SetHint(*view_, view);
  SetHint(*leave_, leave);
}

void TopBar::Change(int& number, int value) {
  if (std::exchange(number, value) != value) update();
}

void TopBar::SetClock(int seconds) {
  Change(clock_, seconds);
}

void TopBar::SetGems(int collected) {
  Change(gems_, collected);
}

void TopBar::SetNeeded(int needed) {
  Change(needed_, needed);
}

void TopBar::SetValue(int points) {
  Change(value_, points);
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
  psi_.DrawDogN(n, state);
  update(layout_.psi);
}

void TopBar::Arrange() {
  layout_ = LayOutTopBar(width(), !view_->isHidden(), units_ ? psi_.Width() : 0, !leave_->isHidden());
  leave_->setGeometry(layout_.leave);
  picRestart_->setGeometry(layout_.picRestart);
  settings_->setGeometry(layout_.Command4);
  view_->setGeometry(layout_.Label1);
  update();
}

void TopBar::resizeEvent(QResizeEvent* /*event*/) {
  Arrange();
}

void TopBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(rect(), kBarColour);
  if (!border1_.isNull()) {
    const int panels = std::min(kPanelsEnd, border1_.width());
    const int end = layout_.panelsEnd;
    painter.drawImage(QRect(0, 0, end, height()), border1_, QRect(0, 0, panels, border1_.height()));
    painter.drawImage(QRect(end, 0, width() - end, height()), border1_,
                      QRect(panels, 0, border1_.width() - panels, border1_.height()));
  }
  QFont font = GameFont(std::max(1, static_cast<int>(kFigures * layout_.scale)));
  font.setBold(true);
  painter.setFont(font);
  Write(painter, layout_.clock, layout_.clock.left(), ClockText(), clock_ > kLastSeconds ? kPlain : kLate);
  const bool enough = gems_ >= needed_;
  const int end =
      Write(painter, layout_.gems, layout_.gems.left(), Figures(gems_, 3), enough ? kEnough : kPlain);
  Write(painter, layout_.gems, end, " / " + Figures(needed_, 3), kFaint);
  Write(painter, layout_.value, layout_.value.left(), ValueText(), kPlain);
  if (layout_.psi.isEmpty()) return;
  // The numbers have the scheme's colour, which can be as dark as the bar.
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kUnitPlate);
  painter.drawRoundedRect(layout_.psi, kPlateRound, kPlateRound);
  painter.translate(layout_.psi.topLeft());
  painter.scale(layout_.scale, layout_.scale);
  psi_.Paint(painter, QPoint());
}

}  // namespace zorik
