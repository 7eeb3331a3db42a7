#include "skin/Overlay.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "skin/DrawView.h"

namespace zorik {
namespace {

// In parts of a cell.
constexpr double kDot = 0.3;
constexpr double kStroke = 0.12;

// Where a cell is drawn in the picture of a view, whether it is seen or not.
QRect BoxOf(QPointF cell, const ViewArea& view, QSize size) {
  const auto place = [](double number, int from, int pixels) {
    return static_cast<int>(std::floor((number * kTileSize - from) * pixels / kTileSize));
  };
  return {QPoint(place(cell.x(), view.left, size.width()), place(cell.y(), view.top, size.height())), size};
}

QRectF InTheMiddle(const QRectF& box, double part) {
  QRectF middle(QPointF(), box.size() * part);
  middle.moveCenter(box.center());
  return middle;
}

}  // namespace

LaidOverlay::LaidOverlay(const Overlay& overlay, const ViewArea& view, QSize cell, TileSets& tiles)
    : stroke_(std::max(1.0, kStroke * std::min(cell.width(), cell.height()))) {
  const QSize picture = DrawnSize(view, cell);
  for (const Overlay::Trail& trail : overlay.trails) {
    Line line{{}, trail.colour};
    QRect before;
    for (const QPoint place : trail.cells) {
      const QRect box = BoxOf(place, view, cell);
      line.points.push_back(QRectF(box).center());
      Touch(before.united(box), picture);
      before = box;
    }
    lines_.push_back(std::move(line));
  }
  for (const Overlay::Mark& mark : overlay.marks) {
    const QRect box = BoxOf(mark.cell, view, cell);
    dots_.push_back({InTheMiddle(box, kDot), mark.colour});
    Touch(box, picture);
  }
  for (const Overlay::Sprite& sprite : overlay.sprites) {
    const QRect box = BoxOf(sprite.cell, view, cell);
    if (sprite.opacity <= 0 || !box.intersects(QRect(QPoint(), picture))) continue;
    pictures_.push_back({box.topLeft(), tiles.Sprite(sprite.picture, cell), sprite.opacity});
    Touch(box, picture);
  }
}

void LaidOverlay::Touch(const QRect& box, QSize picture) {
  touched_ += box & QRect(QPoint(), picture);
}

void LaidOverlay::Paint(QPainter& painter) const {
  if (touched_.isEmpty()) return;
  painter.save();
  painter.setClipRegion(touched_, Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  for (const Line& line : lines_) {
    painter.setPen(QPen(line.colour, stroke_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line.points.data(), static_cast<int>(line.points.size()));
  }
  painter.setPen(Qt::NoPen);
  for (const Dot& dot : dots_) {
    painter.setBrush(dot.colour);
    painter.drawEllipse(dot.box);
  }
  for (const Picture& picture : pictures_) {
    painter.setOpacity(picture.opacity);
    painter.drawImage(picture.corner, picture.image);
  }
  painter.restore();
}

}  // namespace zorik
