#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>
#include <optional>

#include "editors/CaveModel.h"
#include "editors/EditTiles.h"

namespace zorik {

// What is drawn over the cells of the picture, under the mark.
class CaveOverlay {
 public:
  virtual ~CaveOverlay() = default;

  // cells: those that are painted anew; a cell has so many logical pixels.
  virtual void Paint(QPainter& painter, const QRect& cells, int cellSize) const = 0;
};

// The picture of the cave that is edited. It tells which cells a mouse button has been led over; a drag
// that was too quick for the mouse's reports leaves no gap. Cells may lie outside of the cave. The arrow keys
// move the marked cell, and Space draws there with the left tool, with Shift the right, with Ctrl the middle.
class EditKom : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kCell = 26;  // logical pixels, unless zoomed

  EditKom(const CaveModel& cave, EditTiles& tiles, QWidget* parent);

  // Logical pixels of a cell.
  int CellSize() const { return cell_; }
  void SetCellSize(int cell);

  // Takes the size that the cave has.
  void SetRozm();
  // Paints one cell anew.
  void PaintCell(QPoint cell);
  // Not owned; nullptr for none. It is painted with the cells, so a cell that it changes is to be updated.
  void SetOverlay(const CaveOverlay* overlay);
  // What the mouse is led over before its next press is not drawn.
  void EndStroke();

  // The cell that is marked: under the pointer, or led there by keys.
  std::optional<QPoint> Marked() const { return marked_; }

 signals:
  void StrokeBegins();
  void Drawn(QPoint cell, zorik::ToolButton button);
  void StrokeEnds();
  void MarkMoved();
  void LedByKeys(QPoint cell);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QPoint CellAt(QPointF position) const;
  QRect RectOf(QPoint cell) const { return {cell * cell_, QSize(cell_, cell_)}; }
  void PaintCells(QPainter& painter, const QRect& cells);
  void Lead(QMouseEvent& event);
  void DrawPath(QPoint from, QPoint to, ToolButton button);
  void Mark(std::optional<QPoint> cell);
  void DrawByKey(Qt::KeyboardModifiers modifiers);

  const CaveModel& cave_;
  EditTiles& tiles_;
  const CaveOverlay* overlay_ = nullptr;
  int cell_ = kCell;
  QImage picture_;  // of the cells painted last
  std::optional<QPoint> marked_;
  std::optional<QPoint> last_;  // where a stroke has come to
  bool stroke_ = false;
};

}  // namespace zorik
