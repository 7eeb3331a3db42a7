#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "editors/EditTiles.h"
#include "editors/ToolTable.h"

namespace zorik {

// The palette: a tile for each object, with three frames that mark the tools of the mouse buttons. By keys:
// arrows move, Space and Enter take the left tool, with Shift the right, with Ctrl the middle.
class Palette : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kTile = 26;  // logical pixels

  // The caption is asked for a palette number.
  Palette(EditTiles& tiles, std::function<QString(int palette)> caption, QWidget* parent);

  // The palette number of a button, -1 before a cave is opened.
  int Tool(ToolButton button) const { return tools_[static_cast<std::size_t>(button)]; }
  void SelectTool(ToolButton button, int palette);
  void Forget() { tools_.fill(-1); }

  int CurrentDog() const { return dog_; }
  void SetCurrentDog(int dog);

  // Where a tile is.
  QRect TileRect(int palette) const;

  // Where the frame of a button is, in logical pixels.
  QRect FrameRect(ToolButton button) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void ToolSelected();
  // The tile under the pointer or under the keys has changed; -1 for none.
  void Pointed(int palette);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int PaletteAt(QPoint position) const;
  void Click(ToolButton button, int palette);
  void MoveCursor(int key);
  void PaintFrame(QPainter& painter, ToolButton button) const;

  EditTiles& tiles_;
  std::function<QString(int)> caption_;
  std::array<int, kToolButtons> tools_{-1, -1, -1};
  int dog_ = 1;
  int cursor_ = 0;  // place of the tile that keys act on
};

}  // namespace zorik
