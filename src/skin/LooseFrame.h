#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <cstddef>
#include <vector>

#include "skin/Pixels.h"

namespace zorik {

// A frame without its ground, ready to be laid over a picture at any place.
class LooseFrame {
 public:
  LooseFrame() = default;
  explicit LooseFrame(const QImage& frame);

  bool IsNull() const { return image_.isNull(); }
  qsizetype Bytes() const { return image_.sizeInBytes(); }

  // Lays it over what is there, with its upper left corner at a place of the picture, but only inside of
  // clip.
  void LayOver(const Pixels& pixels, QPoint at, const QRect& clip) const;

 private:
  // Pixels of a line, all of them solid or each of them clear in part. The clear ones between are no run.
  struct Run {
    int start = 0;
    int length = 0;
    bool solid = false;
  };

  void AddRuns(const QRgb* line);

  QImage image_;  // premultiplied
  std::vector<Run> runs_;
  std::vector<std::size_t> lines_;  // the first run of each line, and the end of the last one's
};

}  // namespace zorik
