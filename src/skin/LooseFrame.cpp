#include "skin/LooseFrame.h"

#include <algorithm>
#include <cstring>

namespace zorik {
namespace {

// A part, 0 to 255, of all four bytes of a colour: two of them at a time, rounded as a division by 255 is.
QRgb Share(QRgb colour, unsigned part) {
  constexpr QRgb kPair = 0x00FF00FF, kHalf = 0x00800080;
  QRgb low = (colour & kPair) * part;
  low = (low + (low >> 8U & kPair) + kHalf) >> 8U & kPair;
  QRgb high = (colour >> 8U & kPair) * part;
  high = (high + (high >> 8U & kPair) + kHalf) & ~kPair;
  return low | high;
}

}  // namespace

LooseFrame::LooseFrame(const QImage& frame)
    : image_(frame.convertToFormat(QImage::Format_ARGB32_Premultiplied)) {
  for (int y = 0; y < image_.height(); ++y) {
    lines_.push_back(runs_.size());
    AddRuns(reinterpret_cast<const QRgb*>(image_.constScanLine(y)));
  }
  lines_.push_back(runs_.size());
}

void LooseFrame::AddRuns(const QRgb* line) {
  const std::size_t first = runs_.size();
  for (int x = 0; x < image_.width(); ++x) {
    if (qAlpha(line[x]) == 0) continue;
    const bool solid = qAlpha(line[x]) == 255;
    const bool goesOn =
        runs_.size() > first && runs_.back().solid == solid && runs_.back().start + runs_.back().length == x;
    if (goesOn) {
      ++runs_.back().length;
    } else {
      runs_.push_back({x, 1, solid});
    }
  }
}

void LooseFrame::LayOver(const Pixels& pixels, QPoint at, const QRect& clip) const {
  const QRect seen = image_.rect() & clip.translated(-at);
  for (int y = seen.top(); y <= seen.bottom(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(image_.constScanLine(y));
    const auto place = static_cast<std::size_t>(y);
    for (std::size_t i = lines_[place]; i < lines_[place + 1]; ++i) {
      const Run& run = runs_[i];
      const int left = std::max(run.start, seen.left());
      const int end = std::min(run.start + run.length, seen.right() + 1);
      if (left >= end) continue;
      QRgb* const target = pixels.At(at.x() + left, at.y() + y);
      if (run.solid) {
        std::memcpy(target, line + left, static_cast<std::size_t>(end - left) * Pixels::kSize);
      } else {
        std::transform(line + left, line + end, target, target, [](QRgb over, QRgb under) {
          return over + Share(under, 255U - static_cast<unsigned>(qAlpha(over)));
        });
      }
    }
  }
}

}  // namespace zorik
