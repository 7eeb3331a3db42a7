#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>
#include <optional>

#include "editors/CaveModel.h"
#include "editors/CellKeys.h"
#include "editors/EditMarks.h"
#include "editors/EditTiles.h"

namespace zorik {

// Something else that paints over the cells of the picture, under the marks of editing: the author's proof
// for one.
class PictureLayer {
 public:
  virtual ~PictureLayer() = default;

  // cells: those that are painted anew; a cell has so many logical pixels.
  virtual void Paint(QPainter& painter, const QRect& cells, int cellSize) const = 0;
};

// The picture of the cave that is edited. It tells which cells a mouse button has been led over; a drag
// that was too quick for the mouse's reports leaves no gap. Cells may lie outside of the cave, and are left
// out where the view does not show them. The keys do the same in the marked cell: Space is the left button,
// with Shift the right, with Ctrl the middle.
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
  QSize CaveSize() const { return {cave_.Width(), cave_.Height()}; }
  // Paints one cell anew.
  void PaintCell(QPoint cell);
  // Not owned; nullptr for none. It is painted with the cells, so a cell that it changes is to be updated.
  void SetLayer(const PictureLayer* layer);
  // What the mouse is led over before its next press is not drawn.
  void EndStroke();

  // The cell that is marked: under the pointer, or led there by keys.
  std::optional<QPoint> Marked() const { return marks_.mark; }
  // The same, or where keys would begin.
  QPoint Cursor() const;
  // The cells of which the view shows something.
  QRect SeenCells() const;
  QPoint CellAt(QPointF position) const;

  // The marks of editing; whoever changes them repaints.
  const EditMarks& Marks() const { return marks_; }
  EditMarks& Marks() { return marks_; }

  // A tap of Space begins a stroke that the next one ends.
  bool Latches() const { return latches_; }
  void SetLatching(bool latches) { latches_ = latches; }

  // What keys do.
  void LeadMark(QPoint cell);
  void BeginStroke(QPoint cell, ToolButton button);
  void LeadStroke(QPoint cell);
  void FinishStroke();
  // Gives up the stroke or what else is begun. Returns whether there was any.
  bool GiveUp();
  bool InStroke() const { return button_.has_value(); }
  // A stroke of the mouse.
  bool IsDragged() const { return InStroke() && !keys_.Strokes(); }
  // A selection is there that keys can move.
  bool CanShove() const { return marks_.selection && marks_.block.IsEmpty(); }

  // The picture has moved under the pointer, which goes on with its stroke.
  void LeadAgain();
  // Space was held for something else than drawing. Returns whether it was held.
  bool TakeSpace();

 signals:
  void StrokeBegins(QPoint cell, zorik::ToolButton button);
  // For each cell on the way of a stroke, then once for its end.
  void Drawn(QPoint cell, zorik::ToolButton button);
  void Led(QPoint cell, zorik::ToolButton button);
  void StrokeEnds(zorik::ToolButton button);
  // Something else has come between.
  void StrokeBroken();
  // The author wants it no more; also without a stroke.
  void GivenUp();
  void Confirmed();
  void Picked(QPoint cell, zorik::ToolButton button);
  // Something that a layer shows in this cell is meant, and nothing is drawn.
  void LayerChosen(QPoint cell);
  void Shoved(QPoint step);
  void SelectedByKeys(QPoint from, QPoint to);
  void MarkMoved();
  void LedByKeys(QPoint cell);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QRect RectOf(QPoint cell) const { return {cell * cell_, QSize(cell_, cell_)}; }
  QRect Seen() const;
  QPoint SeenCell(QPointF position) const;
  void PaintCells(QPainter& painter, const QRect& cells);
  void DrawPath(QPoint from, QPoint to, ToolButton button);
  void Mark(std::optional<QPoint> cell);
  bool HasToGiveUp() const;

  const CaveModel& cave_;
  EditTiles& tiles_;
  const PictureLayer* layer_ = nullptr;
  CellKeys keys_{*this};
  EditMarks marks_;
  int cell_ = kCell;
  QImage picture_;                    // of the cells painted last
  std::optional<QPoint> cursor_;      // the cell marked last
  std::optional<QPoint> last_;        // where a stroke has come to
  std::optional<ToolButton> button_;  // of a stroke
  QPointF pointer_;                   // in the window onto the picture
  bool byKeys_ = false;               // the mark was led by keys, and stays when the picture is scrolled
  bool latches_ = false;
};

}  // namespace zorik
