#pragma once

#include <QString>
#include <vector>

#include "data/Progress.h"
#include "screens/ListView.h"

namespace zorik {

class CaveDelegate;
class CaveRows;
class Skin;

// The list of the caves of a collection, a row for each: number, name and points in the colour of the cave's
// state, and a border around the selected one. Caves count from 1; measures are logical pixels.
class CaveList : public ListView {
  Q_OBJECT

 public:
  struct Row {
    QString name;
    int score = 0;
    CaveState state = CaveState::Closed;
    bool stored = true;  // a win that could not be stored has a mark
  };

  explicit CaveList(QWidget* parent);

  // Takes its place, size and colours from the skin.
  void SkinIt(const Skin& skin);

  // Replaces all rows; the same one stays selected.
  void SetRows(std::vector<Row> rows);
  const std::vector<Row>& Rows() const;

  // Selects a row and scrolls so far that all of it is seen.
  void Select(int number) { MakeCurrent(number - 1); }
  int Selected() const { return Current() + 1; }

  // Where the first row begins in the view.
  int Top() const { return -Offset(); }

  QColor TextColour(int number) const;

 signals:
  void CaveClicked(int number);
  void CaveDoubleClicked(int number);

 private:
  CaveRows* rows_;
  CaveDelegate* delegate_;
};

}  // namespace zorik
