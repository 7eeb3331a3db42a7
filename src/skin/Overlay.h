#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <vector>

#include "skin/TileSets.h"
#include "view/CellPictures.h"
#include "view/ZornePole.h"

class QPainter;

namespace zorik {

// What is laid over the picture of a cave and is no part of it: things that look like those in cells, dots,
// and trails from cell to cell. Places are cells; colours may be translucent.
struct Overlay {
  struct Sprite {
    QPoint cell;
    CellPicture picture;  // of which the ground stays clear
    double opacity = 1;
  };
  struct Mark {
    QPoint cell;
    QColor colour;
  };
  struct Trail {
    std::vector<QPoint> cells;
    QColor colour;
  };

  // From below: trails, marks, sprites.
  std::vector<Trail> trails;
  std::vector<Mark> marks;
  std::vector<Sprite> sprites;
};

// An overlay on a picture of a view: all is in the pixels of that.
class LaidOverlay {
 public:
  LaidOverlay() = default;  // nothing

  // On the picture of this view, drawn with cells of this size.
  LaidOverlay(const Overlay& overlay, const ViewArea& view, QSize cell, TileSets& tiles);

  // All that it covers, within the picture.
  const QRegion& Touched() const { return touched_; }

  // Paints it; the painter's origin is the corner of the picture.
  void Paint(QPainter& painter) const;

 private:
  struct Picture {
    QPoint corner;
    QImage image;
    double opacity;
  };
  struct Dot {
    QRectF box;
    QColor colour;
  };
  struct Line {
    std::vector<QPointF> points;
    QColor colour;
  };

  void Touch(const QRect& box, QSize picture);

  QRegion touched_;
  std::vector<Line> lines_;
  std::vector<Dot> dots_;
  std::vector<Picture> pictures_;
  double stroke_ = 0;  // of the lines
};

}  // namespace zorik
