#include "editors/ToolIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <functional>

namespace zorik {
namespace {

constexpr int kSide = 22;
constexpr double kLine = 1.6;

using Paint = std::function<void(QPainter&)>;

QIcon IconBy(const QColor& line, const Paint& paint) {
  QIcon icon;
  for (const int ratio : {1, 2, 3}) {
    QPixmap picture(kSide * ratio, kSide * ratio);
    picture.fill(Qt::transparent);
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    paint(painter);
    painter.end();
    icon.addPixmap(picture);
  }
  return icon;
}

QPainterPath Lines(const QPolygonF& corners) {
  QPainterPath path;
  path.addPolygon(corners);
  path.closeSubpath();
  return path;
}

void PaintPencil(QPainter& painter, const QColor& fill) {
  const QPainterPath body = Lines({{4, 18}, {5.5, 13}, {15, 3.5}, {18.5, 7}, {9, 16.5}});
  painter.fillPath(body, fill);
  painter.drawPath(body);
  painter.drawLine(QPointF(5.5, 13), QPointF(9, 16.5));
  painter.drawLine(QPointF(13, 5.5), QPointF(16.5, 9));
}

// A can that is tipped over, with a drop.
void PaintCan(QPainter& painter, const QColor& fill) {
  const QPainterPath can = Lines({{3.5, 11}, {10.5, 4}, {17, 10.5}, {10, 17.5}});
  painter.drawPath(can);
  painter.fillPath(Lines({{5, 12}, {16, 11.5}, {10, 16.5}}), fill);
  painter.drawArc(QRectF(6, 1.5, 7, 7), 0, 200 * 16);
  QPainterPath drop(QPointF(18.5, 13));
  drop.cubicTo(22, 18.5, 15, 18.5, 18.5, 13);
  painter.fillPath(drop, fill);
  painter.drawPath(drop);
}

void PaintSelection(QPainter& painter) {
  QPen dashes = painter.pen();
  dashes.setDashPattern({2, 2});
  dashes.setCapStyle(Qt::FlatCap);
  painter.setPen(dashes);
  painter.drawRect(QRectF(3.5, 5.5, 15, 11));
}

}  // namespace

QIcon IconOf(DrawTool tool, const QColor& line, const QColor& fill) {
  return IconBy(line, [tool, &fill](QPainter& painter) {
    const QRectF box(3.5, 5.5, 15, 11);
    switch (tool) {
      case DrawTool::Pencil:
        return PaintPencil(painter, fill);
      case DrawTool::Line:
        return painter.drawLine(QPointF(4, 17.5), QPointF(18, 4.5));
      case DrawTool::Box:
        painter.fillRect(box, fill);
        [[fallthrough]];
      case DrawTool::Frame:
        return painter.drawRect(box);
      case DrawTool::Fill:
        return PaintCan(painter, fill);
      case DrawTool::Select:
        return PaintSelection(painter);
    }
  });
}

QIcon GridIcon(const QColor& line) {
  return IconBy(line, [](QPainter& painter) {
    for (const double at : {4.0, 11.0, 18.0}) {
      painter.drawLine(QPointF(at, 3), QPointF(at, 19));
      painter.drawLine(QPointF(3, at), QPointF(19, at));
    }
  });
}

// Four corners that hold a cave.
QIcon WholeIcon(const QColor& line) {
  return IconBy(line, [](QPainter& painter) {
    for (const int quarter : {0, 1, 2, 3}) {
      painter.save();
      painter.translate(11, 11);
      painter.rotate(90 * quarter);
      painter.drawPolyline(QPolygonF({{-8, -3}, {-8, -8}, {-3, -8}}));
      painter.restore();
    }
    painter.drawRect(QRectF(7, 8, 8, 6));
  });
}

}  // namespace zorik
