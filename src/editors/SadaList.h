#pragma once

#include <QAbstractScrollArea>

#include "flow/SadaModel.h"

class QHelpEvent;

namespace zorik {

// The caves of a collection, each with its number, its name and the mark of a cave that is open from the
// start. There are always rows for as many caves; they grow with the list.
class SadaList : public QAbstractScrollArea {
  Q_OBJECT

 public:
  static constexpr int kRows = 17;
  static constexpr int kRowHeight = 14;  // at least, in logical pixels

  SadaList(const SadaModel& sada, QWidget* parent);

  // What is said of the column of marks.
  void SetMarkHint(const QString& hint) { markHint_ = hint; }

  // The collection may have changed in any respect; the selected cave is brought into sight.
  void GetNames();

  // The row of a cave and its two labels that can be clicked, in the list's viewport; the row may be out of
  // sight.
  QRect RowOf(int number) const;
  QRect lblCave(int number) const;
  QRect lblPoc(int number) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void CaveClicked(int number);
  void MarkClicked(int number);
  // The selected cave is to be edited.
  void Activated();

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void changeEvent(QEvent* event) override;

 private:
  int RowHeight() const;
  QFont RowFont() const;
  // The cave at a place of the viewport; 0 for none.
  int CaveAt(QPoint place) const;
  void Hover(int mark);
  void DrawRow(QPainter& painter, int number) const;
  bool ShowHint(const QHelpEvent& event);

  const SadaModel& sada_;
  QString markHint_;
  int hovered_ = 0;  // the cave whose mark is under the pointer
};

}  // namespace zorik
