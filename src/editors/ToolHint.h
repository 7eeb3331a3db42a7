#pragma once

#include <QWidget>

#include "editors/ToolTable.h"

namespace zorik {

class EditTiles;
class Palette;

// The colour that marks the tool of a mouse button.
QColor ColourOfTool(ToolButton button);

// Shows which mouse button draws what: a little mouse with the button in its colour, beside the tile.
class ToolHint : public QWidget {
 public:
  ToolHint(const Palette& palette, EditTiles& tiles, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Palette& tools_;
  EditTiles& tiles_;
};

}  // namespace zorik
