#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <functional>
#include <optional>

#include "editors/CaveModel.h"

namespace zorik {

class EditKom;

// What the author does with a part of the cave: he marks it, moves it, turns it, takes it to the desktop's
// clipboard and back. A part from there hangs at the marked cell until it is put down.
class SelectHand : public QObject {
  Q_OBJECT

 public:
  SelectHand(CaveModel& cave, EditKom& picture, QObject* parent);

  bool HasSelection() const;
  // A part hangs at the mark.
  bool Holds() const;
  // The part that is marked or held; empty when there is none.
  QSize Size() const;

  void SelectAll();
  void Copy() const;
  void Cut();
  void Paste();
  void Clear();
  void Turn(CaveTurn turn);
  // Moves the selection by a cell, as far as the cave reaches.
  void Shove(QPoint step);
  void PutDown();
  void Forget();
  void Span(QPoint from, QPoint to);

  // The mouse with the tool for this.
  void Press(QPoint cell);
  void Lead(QPoint cell);
  void Release();
  // Gives up what is dragged or held, or else the selection.
  void GiveUp();

 signals:
  // Another part is marked or held.
  void Selected();
  // The cave has changed.
  void Changed();
  // Something is not possible; the key of the words for it, and the line of a text that it is about.
  void Refused(const char* caption, int line);

 private:
  QRect Selection() const;
  void Select(const QRect& cells);
  // The place nearest to a wanted one at which a part lies inside of the cave.
  QPoint PlaceFor(QSize part, QPoint wanted) const;
  void Hold(CaveBlock block, QPoint at, std::optional<QRect> left);
  void LetGo();
  void HangAtMark();
  void MoveTo(QPoint place);

  CaveModel& cave_;
  EditKom& picture_;
  std::optional<QPoint> anchor_;  // where a selection is begun
  std::optional<QPoint> grip_;    // the cell of the selection by which it is dragged
};

}  // namespace zorik
