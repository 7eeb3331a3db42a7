#pragma once

#include <QWidget>

#include "editors/AutoScroll.h"
#include "editors/EditKom.h"
#include "editors/HandPan.h"

class QMouseEvent;
class QScrollBar;

namespace zorik {

// The window onto the picture of the cave, with its two scroll bars, whose steps are half a cell. Ctrl with
// the wheel zooms, and the cell under the pointer stays where it is. The picture can be moved by hand, and
// moves by itself under a stroke that leaves the view.
class CaveView : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kColumns = 24;  // cells that fit in at first, of the usual size
  static constexpr int kRows = 14;
  static constexpr int kLeastColumns = 8;  // on a small screen
  static constexpr int kLeastRows = 4;

  CaveView(const CaveModel& cave, EditTiles& tiles, QWidget* parent);

  EditKom& Picture() { return *edit_; }
  QSize sizeHint() const override;

  // The cave has another size. What is seen stays in view as far as it is still there.
  void TakeSize();
  // The same, and scrolls back to the beginning.
  void SetRozm();

  // Another size of a cell, by so many steps up or down, around a place in the picture.
  void Zoom(int steps, QPoint around);
  void Zoom(int steps);
  void ZoomUsual();
  // The size at which all of the cave is seen, or the smallest one; it is not remembered.
  void ZoomToWhole();

  // Where the scroll bars stand.
  QPoint Place() const;
  void SetPlace(QPoint place);

  // Lines between the cells; remembered.
  bool HasGrid() const { return edit_->Marks().grid; }
  void SetGrid(bool grid);

 signals:
  void Zoomed();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void SetCellSize(int cell, QPoint around);
  QPoint Middle() const;
  bool Pans(QEvent& event);
  void SetRanges();
  void MovePicture();
  void Show(QPoint cell);
  void Wheel(QWheelEvent& event);

  QWidget* ram_;
  EditKom* edit_;
  QScrollBar* hScroll_;
  QScrollBar* vScroll_;
  HandPan pan_;
  AutoScroll autoScroll_;
  int wheel_ = 0;  // what is left of turns of the wheel, in its units
};

}  // namespace zorik
