#include "screens/OpaqueRegion.h"

#include <algorithm>
#include <vector>

namespace zorik {

QRegion OpaqueRegion(const QImage& image, int leastAlpha) {
  const auto seen = [leastAlpha](QRgb pixel) { return qAlpha(pixel) >= leastAlpha; };
  std::vector<QRect> runs;
  for (int y = 0; y < image.height(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    const QRgb* const end = line + image.width();
    for (const QRgb* start = std::find_if(line, end, seen); start != end;) {
      const QRgb* const stop = std::find_if_not(start, end, seen);
      runs.emplace_back(static_cast<int>(start - line), y, static_cast<int>(stop - start), 1);
      start = std::find_if(stop, end, seen);
    }
  }
  // Row by row, from left to right: the order that a region asks for.
  QRegion region;
  region.setRects(runs.data(), static_cast<int>(runs.size()));
  return region;
}

}  // namespace zorik
