#include "screens/PracticeBadge.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <array>

#include "screens/StartWords.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr int kLetters = 17;
constexpr int kLightLetters = 14;
constexpr int kPadding = 10;
constexpr int kAside = 6;

constexpr int kRoomy = 440;  // a lower place has smaller letters
constexpr int kSmallestLetters = 9;

struct LightLook {
  QColor colour;
  StartWords words;
};
constexpr std::array<LightLook, 3> kLights{{{{0x70, 0xF0, 0x70}, kWayKnownWords},
                                            {{0xFF, 0xC8, 0x50}, kNoWayYetWords},
                                            {{0xFF, 0x60, 0x60}, kLostForGoodWords}}};

const LightLook& LookOf(Prospect prospect) {
  return kLights[static_cast<std::size_t>(prospect)];
}

int Letters(int letters, const QRect& frame) {
  return std::clamp(letters * frame.height() / kRoomy, kSmallestLetters, letters);
}

QFont TextFont(const QRect& frame) {
  QFont font = GameFont(Letters(kLetters, frame));
  font.setBold(true);
  return font;
}

QFont LightFont(const QRect& frame) {
  return GameFont(Letters(kLightLetters, frame));
}

// The light itself, with the gap behind it.
int LightWidth(const QFontMetrics& metrics) {
  return metrics.ascent() * 5 / 4;
}

}  // namespace

PracticeBadge::PracticeBadge(QWidget* parent) : QWidget(parent) {
  setObjectName("practice");
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void PracticeBadge::SetText(const QString& text) {
  text_ = text;
  Place();
}

void PracticeBadge::SetLight(std::optional<Prospect> light, const Skin& skin) {
  const QString text = light ? LookOf(*light).words.In(skin) : QString();
  if (light_ == light && lightText_ == text) return;
  light_ = light;
  lightText_ = text;
  Place();
}

void PracticeBadge::PlaceIn(const QRect& frame) {
  frame_ = frame;
  Place();
}

void PracticeBadge::Place() {
  const QFontMetrics letters(TextFont(frame_));
  const QFontMetrics small(LightFont(frame_));
  const int room = std::max(1, frame_.width() - 2 * (kPadding + kAside));
  int width = letters.horizontalAdvance(text_);
  int height = letters.lineSpacing();
  if (light_) {
    width = std::max(width, LightWidth(small) + small.horizontalAdvance(lightText_));
    height += small.lineSpacing();
  }
  const QSize size(std::min(width, room) + 2 * kPadding, height + kPadding);
  setGeometry(QRect(QPoint(frame_.left() + kAside, frame_.bottom() + 1 - kAside - size.height()), size));
  update();
}

void PracticeBadge::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0x70, 0xD8, 0xF0), 2));
  painter.setBrush(QColor(0x10, 0x30, 0x44, 225));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);
  const QRect inside = rect().adjusted(kPadding, kPadding / 2, -kPadding, -kPadding / 2);
  painter.setPen(QColor(0xE0, 0xF8, 0xFF));
  painter.setFont(TextFont(frame_));
  painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop, text_);
  if (!light_) return;
  painter.setFont(LightFont(frame_));
  const QFontMetrics small = painter.fontMetrics();
  const QRect line(inside.left(), inside.bottom() + 1 - small.lineSpacing(), inside.width(),
                   small.lineSpacing());
  painter.drawText(line.adjusted(LightWidth(small), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, lightText_);
  const qreal size = small.ascent() * 0.8;
  painter.setPen(QPen(QColor(0x08, 0x18, 0x22), 1.5));
  painter.setBrush(LookOf(*light_).colour);
  painter.drawEllipse(QRectF(line.left(), line.top() + (line.height() - size) / 2, size, size));
}

}  // namespace zorik
