#include "editors/EditMarks.h"

#include <QPaintDevice>
#include <QPainter>

#include "editors/EditTiles.h"
#include "editors/ToolTable.h"

namespace zorik {
namespace {

constexpr int kStrongLine = 10;  // every tenth line of the grid can be counted by
constexpr double kHeld = 0.8;    // how much is seen of what is not drawn yet

class MarksPainter {
 public:
  MarksPainter(QPainter& painter, EditTiles& tiles, const QRect& cells, int size)
      : painter_(painter), tiles_(tiles), cells_(cells), size_(size) {}

  void Grid() {
    for (int x = cells_.left(); x <= cells_.right(); ++x) {
      Line(x, QRect(x * size_, cells_.top() * size_, 1, cells_.height() * size_));
    }
    for (int y = cells_.top(); y <= cells_.bottom(); ++y) {
      Line(y, QRect(cells_.left() * size_, y * size_, cells_.width() * size_, 1));
    }
  }

  void Tile(QPoint cell, char letter) {
    if (!cells_.contains(cell)) return;
    const int pixels = qRound(size_ * painter_.device()->devicePixelRatioF());
    painter_.drawImage(RectOf({cell, cell}), tiles_.Tile(ToolOfLetter(letter), ValueOf(letter), pixels));
  }

  void Block(const CaveBlock& block, QPoint at) {
    for (int y = 0; y < block.height; ++y) {
      for (int x = 0; x < block.width; ++x) Tile(at + QPoint(x, y), block.At(x, y));
    }
  }

  void Empty(const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) Tile({x, y}, '.');
    }
  }

  // Light and dark, so that it is seen on all tiles.
  void Dashes(const QRect& area) {
    const QRect line = RectOf(area).adjusted(0, 0, -1, -1);
    painter_.setPen(QPen(Qt::black, 1));
    painter_.drawRect(line);
    painter_.drawRect(line.adjusted(1, 1, -1, -1));
    QPen dashes(Qt::white, 2);
    dashes.setDashPattern({3, 3});
    painter_.setPen(dashes);
    painter_.drawRect(line.adjusted(1, 1, 0, 0));
  }

  void Mark(QPoint cell) {
    const QRect mark = RectOf({cell, cell});
    painter_.setPen(Qt::black);
    painter_.drawRect(mark.adjusted(1, 1, -2, -2));
    painter_.setPen(Qt::white);
    painter_.drawRect(mark.adjusted(0, 0, -1, -1));
  }

 private:
  QRect RectOf(const QRect& area) const { return {area.topLeft() * size_, area.size() * size_}; }

  void Line(int number, const QRect& line) {
    if (number == 0) return;
    painter_.fillRect(line, QColor(255, 255, 255, number % kStrongLine == 0 ? 150 : 60));
  }

  QPainter& painter_;
  EditTiles& tiles_;
  QRect cells_;
  int size_;
};

}  // namespace

void PaintMarks(QPainter& painter, const EditMarks& marks, EditTiles& tiles, const QRect& cells, int size) {
  MarksPainter paint(painter, tiles, cells, size);
  if (marks.left) paint.Empty(*marks.left);
  painter.setOpacity(kHeld);
  for (const CavePlace place : marks.shape) paint.Tile({place.x, place.y}, marks.letter);
  paint.Block(marks.block, marks.blockPlace);
  painter.setOpacity(1);
  if (marks.grid) paint.Grid();
  if (!marks.block.IsEmpty()) {
    paint.Dashes({marks.blockPlace, QSize(marks.block.width, marks.block.height)});
  } else if (marks.selection) {
    paint.Dashes(*marks.selection);
  }
  if (marks.mark) paint.Mark(*marks.mark);
}

}  // namespace zorik
