#pragma once

#include <QKeySequence>
#include <QString>
#include <map>
#include <utility>
#include <vector>

#include "flow/SadaModel.h"
#include "screens/ListView.h"

namespace zorik {

class SadaDelegate;
class SadaRows;

// The caves of a collection, each with its number, its name and the mark of a cave that is open from the
// start. There are always rows for as many caves; they grow with the list.
class SadaList : public ListView {
  Q_OBJECT

 public:
  static constexpr int kRows = 17;

  SadaList(const SadaModel& sada, QWidget* parent);

  // What is said of the column of marks.
  void SetMarkHint(const QString& hint);

  // What there is to say of the names of these caves, by their numbers. Their rows have a mark.
  void SetDoubts(std::map<int, QString> doubts);

  // A key of the desktop that does this while the list has the keys.
  void AddKey(QKeySequence::StandardKey key, QAction* action) { keys_.emplace_back(key, action); }

  // The collection may have changed in any respect; the selected cave is brought into sight.
  void GetNames();

  // The row of a cave and its two labels that can be clicked, in the list's viewport; the row may be out of
  // sight.
  QRect RowOf(int number) const;
  QRect lblCave(int number) const;
  QRect lblPoc(int number) const;
  // The place of the mark of a doubtful name.
  QRect Doubt(int number) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void CaveClicked(int number);
  void MarkClicked(int number);
  // The selected cave is to be edited.
  void Activated();

 protected:
  void Open(int place) override;
  bool viewportEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // The cave at a place of the viewport, 0 for none; and the one whose mark is there.
  int CaveAt(QPoint place) const { return indexAt(place).row() + 1; }
  int MarkAt(QPoint place) const;
  void Hover(int mark);

  bool DoAction(QKeyEvent* event) const;
  // For those who cannot see it.
  void Describe();

  const SadaModel& sada_;
  std::vector<std::pair<QKeySequence::StandardKey, QAction*>> keys_;
  SadaRows* rows_;
  SadaDelegate* delegate_;
};

}  // namespace zorik
