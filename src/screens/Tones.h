#pragma once

#include <QColor>
#include <QPalette>

namespace zorik {

// The colours of a window that is drawn in one colour.
struct Tones {
  QColor ground;  // the colour itself
  QColor text;    // light or dark, whichever reads better on it
  QColor quiet;   // for what is said aside
  QColor line;    // for borders and grooves
  QColor mark;    // for what should be seen first
};

Tones TonesOf(QColor ground);

// The same for the controls in such a window.
QPalette PaletteOf(const Tones& tones);

// How well one colour reads on another, 1 to 21.
double Contrast(QColor one, QColor other);

}  // namespace zorik
