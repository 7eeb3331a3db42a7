#pragma once

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <vector>

class QKeyEvent;
class QPainter;

namespace zorik {

// The colours of a list and its frame.
struct ListLook {
  QColor ground = Qt::black;
  QColor text = Qt::white;
  QColor selectionGround = Qt::white;
  QColor selectionText = Qt::black;
  QColor border = Qt::gray;
  int borderSize = 1;
};

// Height of a row in the desktop's units, and of its letters.
inline constexpr int kRowHeight = 14;
inline constexpr int kRowLetters = 11;

// A framed list of which one entry is the current one: rows one below the other, or a strip in which each
// entry begins where the one before ends. Its delegate draws the entries, and says how long those of a strip
// are. The wheel scrolls. A list longer than its place that has no scroll bar shows by a slim mark at its
// edge where in it one is. It takes no focus, for its window has the keys. Places count from 0.
class ListView : public QAbstractItemView {
  Q_OBJECT

 public:
  ListView(Qt::Orientation orientation, QWidget* parent);

  void SetLook(const ListLook& look);

  int Count() const { return static_cast<int>(ends_.size()); }
  int Current() const { return currentIndex().row(); }  // -1 for none

  // Makes an entry the current one and scrolls until it is seen whole.
  void MakeCurrent(int place);

  // Scrolls by steps: rows, or pieces of the strip.
  void Scroll(int steps);

  // How far the list can be scrolled; 0 when its place holds all of it.
  int Range() const;
  bool Overflows() const { return Range() > 0; }

  // Rows that are seen whole at a time, at least 1.
  int PageLength() const;

  // Chooses the entry to which a key goes from the current one; false for a key that goes to none.
  bool Step(int key);

  // Chooses the next entry that begins with the letters that are being typed, whatever their case and
  // accents. False for a key that types none.
  bool TypeAhead(const QKeyEvent& event);
  void keyboardSearch(const QString& letters) override;

  // Where an entry lies in the list, also when it is scrolled out of sight.
  QRect PlaceOf(int place) const;

  // The mark; empty when there is none.
  QRect PositionMark() const;

  QRect visualRect(const QModelIndex& index) const override;
  QModelIndex indexAt(const QPoint& point) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  void reset() override;

 signals:
  // The player wants this entry, or double-clicked it.
  void Chosen(int place);
  void Opened(int place);

 protected:
  // So many rows fill the list's height, whatever it is, and the scroll bar counts rows.
  void FillWithRows(int count) { rowsInView_ = count; }

  // What a current entry keeps from the edge to which it was scrolled.
  void KeepFromEdge(int spare) { spare_ = spare; }

  virtual void Choose(int place) { emit Chosen(place); }
  virtual void Open(int place) { emit Opened(place); }

  int RowHeight() const;
  int Offset() const;  // how far the list is scrolled

  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  void updateGeometries() override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  int horizontalOffset() const override { return IsRows() ? 0 : Offset(); }
  int verticalOffset() const override { return IsRows() ? Offset() : 0; }
  bool isIndexHidden(const QModelIndex& index) const override;
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;

 private:
  bool IsRows() const { return orientation_ == Qt::Vertical; }
  QScrollBar& Bar() const;
  int BarUnit() const { return rowsInView_ > 0 ? RowHeight() : 1; }
  int StepLength() const;
  QRect Inside() const;
  int Room() const;
  int Total() const { return ends_.empty() ? 0 : ends_.back(); }
  int StartOf(int place) const { return place == 0 ? 0 : ends_[static_cast<std::size_t>(place) - 1]; }
  int At(QPoint point) const;
  int StepOf(int key) const;
  int Find(const QString& letters, int from) const;
  void Measure();
  void DrawEntries(QPainter& painter) const;
  void DrawPositionMark(QPainter& painter) const;

  Qt::Orientation orientation_;
  int frame_ = 0;
  int rowsInView_ = 0;
  int spare_ = 0;
  std::vector<int> ends_;  // where each entry ends along the list
  int wheel_ = 0;          // turns of the wheel that do not make a step yet
  QString typed_;
  QElapsedTimer typing_;  // since the last letter
};

}  // namespace zorik
