#pragma once

#include <QColor>
#include <QRect>
#include <QWidget>

class QPainter;

namespace zorik {

class BarButton;

// A bar with buttons that lies over the bottom of the cave. Where there is too little room for it all of it
// is smaller.
class FloatingBar : public QWidget {
  Q_OBJECT

 public:
  // Lies at the bottom of this part of its parent, in the middle.
  void PlaceIn(const QRect& frame);

 protected:
  // The height, and the greatest width, in the desktop's units.
  FloatingBar(QWidget* parent, int height, int widest);

  // Below this width all of it is smaller.
  virtual int NeededWidth() const = 0;

  // Lies where it lay, after what it needs has changed.
  void PlaceAgain() { PlaceIn(frame_); }

  // Puts everything on the bar into its place.
  virtual void Arrange() = 0;

  BarButton* NewButton(const char* name);
  int Scaled(int units) const { return static_cast<int>(units * scale_); }
  qreal Scale() const { return scale_; }

  // The bar itself, behind all that is on it.
  void PaintGround(QPainter& painter, QColor rim) const;

 private:
  int height_;
  int widest_;
  QRect frame_;      // of the parent, in which it lies
  qreal scale_ = 1;  // below 1 where all would not find room otherwise
};

}  // namespace zorik
