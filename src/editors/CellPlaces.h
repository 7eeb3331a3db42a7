// Between cells of the cave as the toolkit and as the edited cave name them.
#pragma once

#include <QPoint>
#include <QRect>

#include "editors/CaveModel.h"

namespace zorik {

inline CavePlace ToPlace(QPoint cell) {
  return {cell.x(), cell.y()};
}
inline CaveArea ToArea(const QRect& cells) {
  return {cells.left(), cells.top(), cells.width(), cells.height()};
}
inline QRect ToRect(const CaveArea& area) {
  return {area.left, area.top, area.width, area.height};
}

// All cells of a cave.
inline QRect CellsOf(const CaveModel& cave) {
  return {0, 0, cave.Width(), cave.Height()};
}

// The cell of a rectangle that is the nearest to another one.
inline QPoint Nearest(QPoint cell, const QRect& cells) {
  return {qBound(cells.left(), cell.x(), cells.right()), qBound(cells.top(), cell.y(), cells.bottom())};
}

}  // namespace zorik
