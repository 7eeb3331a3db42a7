#pragma once

#include <QImage>
#include <QPoint>

namespace zorik {

// The pixels of an image that is painted, counted from where a picture's upper left corner stands in it.
struct Pixels {
  static constexpr std::size_t kSize = sizeof(QRgb);

  uchar* corner = nullptr;
  qsizetype stride = 0;  // of a line, in bytes

  QRgb* At(int x, int y) const {
    return reinterpret_cast<QRgb*>(corner + y * stride + static_cast<qsizetype>(x) * qsizetype{kSize});
  }
};

inline Pixels PixelsOf(QImage& image, QPoint corner) {
  const Pixels whole{image.bits(), image.bytesPerLine()};
  return {reinterpret_cast<uchar*>(whole.At(corner.x(), corner.y())), whole.stride};
}

}  // namespace zorik
