#include "skin/DrText.h"

#include <QFontMetricsF>
#include <QPainterPath>

namespace zorik {

std::vector<QRectF> DrTextPlaces(const QRectF& place, int outline) {
  if (outline == 0) return {place};
  const qreal o = outline;
  return {place.adjusted(-o, -o, 0, 0), place.adjusted(o, -o, 0, 0), place.adjusted(o, o, 0, 0),
          place.adjusted(-o, o, 0, 0)};
}

// As a shape and not as letters: these would be moved to whole pixels, and half a pixel counts here.
void DrText(QPainter& painter, const QRectF& place, const QString& text, int outline) {
  const QFontMetricsF metrics(painter.font());
  const QSizeF size(metrics.horizontalAdvance(text), metrics.height());
  for (const QRectF& rectangle : DrTextPlaces(place, outline)) {
    QPainterPath letters;
    letters.addText(rectangle.center() + QPointF(-size.width() / 2, metrics.ascent() - size.height() / 2),
                    painter.font(), text);
    painter.fillPath(letters, painter.pen().brush());
  }
}

}  // namespace zorik
