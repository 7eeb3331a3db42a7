#pragma once

#include <QImage>
#include <QRegion>

namespace zorik {

// Where an image, of 32 bits a pixel with alpha, is at least so opaque, 0 to 255.
QRegion OpaqueRegion(const QImage& image, int leastAlpha);

}  // namespace zorik
