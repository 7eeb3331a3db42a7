#pragma once

#include <QRect>
#include <optional>

#include "editors/CaveBlock.h"
#include "editors/Shapes.h"

class QPainter;

namespace zorik {

class EditTiles;

// What editing itself lays over the picture of the cave: its grid, what is marked, what the author's hand
// holds and has not put down yet. Places are cells.
struct EditMarks {
  bool grid = false;
  std::optional<QPoint> mark;      // under the pointer or the keys
  std::optional<QRect> selection;  // inside of the cave
  CavePlaces shape;                // that would be drawn
  char letter = '.';               // of the shape
  CaveBlock block;                 // in the author's hand
  QPoint blockPlace;               // where its top left corner is held
  std::optional<QRect> left;       // what becomes empty when the block is put down
};

// Paints it as far as these cells go, each so many logical pixels wide and high.
void PaintMarks(QPainter& painter, const EditMarks& marks, EditTiles& tiles, const QRect& cells, int size);

}  // namespace zorik
