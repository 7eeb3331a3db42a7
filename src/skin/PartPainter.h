#pragma once

#include <QImage>
#include <QPoint>
#include <QRegion>
#include <QSize>

namespace zorik {

// A picture that is nowhere kept as a whole: it is painted in parts, straight to where it is seen.
class PartPainter {
 public:
  virtual QSize Size() const = 0;  // in pixels

  // Paints a part of the picture, in its pixels, into an image of 32 opaque bits a pixel in which its upper
  // left corner stands there. What does not lie in the image is left out.
  virtual void PaintPart(const QRegion& part, QImage& target, QPoint corner) = 0;

 protected:
  ~PartPainter() = default;
};

}  // namespace zorik
