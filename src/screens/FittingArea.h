#pragma once

#include <QScrollArea>

namespace zorik {

// A part of a window, as large as what it holds; where there is less room that can be scrolled. It has no
// frame and shows the window's own ground.
class FittingArea : public QScrollArea {
  Q_OBJECT

 public:
  FittingArea(QWidget* parent, QWidget* content);

  // Lets the window be no larger than this room.
  void Fit(QSize room);

  // Whether there is less room to the sides than it needs.
  bool IsCut() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  QSize Whole() const;

  QSize most_;  // invalid: no limit
};

}  // namespace zorik
