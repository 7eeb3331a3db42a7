#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>
#include <algorithm>
#include <vector>

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

// A framed list of labels of which one is selected: rows one below the other, or a strip in which each label
// begins where the one before ends. A press selects, a double click opens; the wheel scrolls. It takes no
// focus: its window has the keys.
class LabelList : public QWidget {
  Q_OBJECT

 public:
  LabelList(Qt::Orientation orientation, QWidget* parent);

  void SetLook(const ListLook& look);

  // Replaces all labels; none is selected then, and the first one shows.
  void SetLabels(const QStringList& labels);

  int Count() const { return static_cast<int>(labels_.size()); }
  const QStringList& Labels() const { return labels_; }
  int Selected() const { return selected_; }  // -1 for none

  // Selects a label and scrolls until it is seen whole. Places that do not exist are held to those that do.
  void Select(int place);

  // Scrolls by steps: rows, or pieces of the strip.
  void Scroll(int steps);

  // Whether there is more than the frame holds.
  bool Overflows() const { return Total() > Room(); }

  // Labels that the frame holds at a time, at least 1; of rows only.
  int PageLength() const { return std::max(1, Room() / kRowHeight); }

  // How many rows a key goes on; 0 for a key that chooses none.
  int StepOf(int key) const;

  // Where a label lies in the widget, also when it is scrolled out of sight.
  QRect PlaceOf(int place) const;

 signals:
  void Chosen(int place);
  void Opened(int place);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  bool Rows() const { return orientation_ == Qt::Vertical; }
  QRect Inside() const;
  int Room() const;
  int Total() const { return ends_.empty() ? 0 : ends_.back(); }
  int StartOf(int place) const { return place == 0 ? 0 : ends_[static_cast<std::size_t>(place) - 1]; }
  int At(QPoint point) const;
  void ScrollTo(int offset);
  void Show(int place);
  void DrawLabel(QPainter& painter, int place) const;

  Qt::Orientation orientation_;
  ListLook look_;
  QStringList labels_;
  QStringList shown_;      // the labels as they are drawn
  std::vector<int> ends_;  // where each label ends along the list
  int selected_ = -1;
  int offset_ = 0;  // how far the list is scrolled
  int wheel_ = 0;   // turns of the wheel that do not make a step yet
};

}  // namespace zorik
