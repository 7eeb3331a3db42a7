#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <span>

namespace zorik {

// A row of thin bars, as tall as their numbers are; 0 is a dot on the ground. The size is in logical pixels,
// of which each is as many of the picture as the ratio tells. Where there are more numbers than pixels in the
// width the picture gets wider.
QImage Sparkline(std::span<const int> numbers, QSize size, QColor colour, QColor quiet, qreal ratio = 1);

}  // namespace zorik
