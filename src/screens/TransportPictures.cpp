#include "screens/TransportPictures.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>
#include <array>
#include <vector>

namespace zorik {
namespace {

constexpr int kEdge = 96;  // pixels
constexpr qreal kRound = 22;

// The shapes of a button, on a square of 96.
std::vector<QPolygonF> ShapesOf(Transport what) {
  const auto block = [](qreal left, qreal top, qreal width, qreal height) {
    return QPolygonF(QRectF(left, top, width, height));
  };
  const QPolygonF ahead({{30, 22}, {30, 74}, {74, 48}});
  const QPolygonF behind({{66, 22}, {66, 74}, {22, 48}});
  switch (what) {
    case Transport::Play:
      return {ahead};
    case Transport::Stop:
      return {block(26, 24, 16, 48), block(54, 24, 16, 48)};
    case Transport::Back:
      return {behind, block(70, 24, 9, 48)};
    case Transport::Forward:
      return {ahead, block(17, 24, 9, 48)};
    case Transport::Slower:
      return {block(24, 42, 48, 12)};
    case Transport::Faster:
      return {block(24, 42, 48, 12), block(42, 24, 12, 48)};
    case Transport::Start:
      return {block(18, 24, 9, 48), QPolygonF({{54, 24}, {54, 72}, {28, 48}}),
              QPolygonF({{80, 24}, {80, 72}, {54, 48}})};
    case Transport::End:
      return {QPolygonF({{16, 24}, {16, 72}, {42, 48}}), QPolygonF({{42, 24}, {42, 72}, {68, 48}}),
              block(69, 24, 9, 48)};
    case Transport::Page:  // a browser's window in which it plays
      return {block(18, 20, 60, 12), block(18, 32, 6, 38), block(72, 32, 6, 38), block(18, 70, 60, 6),
              QPolygonF({{40, 38}, {40, 64}, {62, 51}})};
  }
  return {};
}

}  // namespace

QImage TransportPicture(Transport what) {
  QImage picture(kEdge, kEdge, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient face(0, 0, kEdge, kEdge);
  face.setColorAt(0, QColor(0xDF, 0xA5, 0x56));
  face.setColorAt(1, QColor(0x96, 0x60, 0x2A));
  painter.setPen(QPen(QColor(0x2A, 0x1A, 0x10), 6));
  painter.setBrush(face);
  painter.drawRoundedRect(QRectF(4, 4, kEdge - 8, kEdge - 8), kRound, kRound);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x2A, 0x1A, 0x10));
  for (const QPolygonF& shape : ShapesOf(what)) painter.drawPolygon(shape);
  return picture;
}

}  // namespace zorik
