#include "editors/ToolHint.h"

#include <QPainter>
#include <QPainterPath>
#include <array>

#include "editors/EditTiles.h"
#include "editors/Palette.h"

namespace zorik {
namespace {

constexpr int kTile = 20;
constexpr QSize kMouse(13, 18);
constexpr int kGap = 4;
constexpr int kPitch = kMouse.width() + kGap + kTile + 2 * kGap;
constexpr std::array kOrder{ToolButton::Left, ToolButton::Middle, ToolButton::Right};

// Where the button lies on a mouse that is 13 wide.
QRectF ButtonOf(ToolButton button) {
  if (button == ToolButton::Left) return {0, 0, 6.5, 8};
  if (button == ToolButton::Right) return {6.5, 0, 6.5, 8};
  return {4.5, 1.5, 4, 6.5};
}

void DrawMouse(QPainter& painter, ToolButton button, const QColor& line) {
  QPainterPath body;
  body.addRoundedRect(QRectF(0.5, 0.5, 12, 17), 6, 6);
  painter.setClipPath(body);
  painter.fillPath(body, Qt::white);
  painter.fillRect(ButtonOf(button), ColourOfTool(button));
  painter.setPen(QPen(line, 1));
  painter.drawLine(QPointF(0, 8.5), QPointF(13, 8.5));
  if (button != ToolButton::Middle) painter.drawLine(QPointF(6.5, 0), QPointF(6.5, 8.5));
  painter.setClipping(false);
  painter.drawPath(body);
}

}  // namespace

QColor ColourOfTool(ToolButton button) {
  if (button == ToolButton::Left) return {0xFF, 0xC8, 0x10};
  if (button == ToolButton::Right) return {0x28, 0xB8, 0xF8};
  return {0xFF, 0x50, 0xC0};
}

ToolHint::ToolHint(const Palette& palette, EditTiles& tiles, QWidget* parent)
    : QWidget(parent), tools_(palette), tiles_(tiles) {
  setObjectName("ToolHint");
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ToolHint::sizeHint() const {
  return {kPitch * static_cast<int>(kOrder.size()), kTile};
}

void ToolHint::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  const int size = qRound(kTile * devicePixelRatioF());
  int left = 0;
  for (const ToolButton button : kOrder) {
    painter.save();
    painter.translate(left, (kTile - kMouse.height()) / 2);
    DrawMouse(painter, button, palette().color(QPalette::WindowText));
    painter.restore();
    const QRect tile(left + kMouse.width() + kGap, 0, kTile, kTile);
    if (tools_.Tool(button) >= 0) {
      painter.drawImage(tile, tiles_.Tile(tools_.Tool(button), tools_.CurrentDog(), size));
    }
    left += kPitch;
  }
}

}  // namespace zorik
