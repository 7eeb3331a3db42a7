#pragma once

#include <QSlider>

namespace zorik {

// A scale of the skin: a groove with a notch for each step and a knob, in the colours of the palette (Mid for
// the groove, Highlight for the knob). A press moves the knob to the pointer, which it follows then;
// arrows, Home, End and the wheel work too.
class SkinScale : public QSlider {
  Q_OBJECT

 public:
  SkinScale(int least, int most, QWidget* parent);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  // The knob's way, in pixels, and its place for a value.
  int Way() const;
  int PlaceOf(int value) const;
  void Follow(const QMouseEvent& event);
};

}  // namespace zorik
