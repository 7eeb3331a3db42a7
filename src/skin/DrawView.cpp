#include "skin/DrawView.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "skin/Pixels.h"

namespace zorik {
namespace {

// What a row of cells takes from a frame, line by line.
struct Source {
  const uchar* pixels = nullptr;  // of the frame's first line, the first one to copy
  qsizetype stride = 0;
  int start = 0;  // in the view
  std::size_t length = 0;
};

// Where a span ends: at the next one or, since lengths are rounded down, a little later at the view's end.
int EndOf(const std::vector<DrawnSpan>& spans, std::size_t i, int viewEnd) {
  return i + 1 < spans.size() ? spans[i + 1].start : viewEnd;
}

// The span in which a pixel lies.
std::size_t SpanAt(const std::vector<DrawnSpan>& spans, int pixel) {
  const auto after = std::upper_bound(spans.begin(), spans.end(), pixel,
                                      [](int place, const DrawnSpan& span) { return place < span.start; });
  return after == spans.begin() ? 0 : static_cast<std::size_t>(after - spans.begin()) - 1;
}

// Paints rectangles of a view row by row of its cells.
class RectPainter {
 public:
  RectPainter(const DrawnView& drawn, TileSets& tiles, const Pixels& target)
      : drawn_(drawn), tiles_(tiles), target_(target) {}

  void Paint(const QRect& rect) {
    const std::vector<DrawnSpan>& rows = drawn_.rows;
    for (std::size_t row = SpanAt(rows, rect.top()); row < rows.size() && rows[row].start <= rect.bottom();
         ++row) {
      Gather(row, rect);
      const int top = std::max(rect.top(), rows[row].start);
      CopyLines(rows[row], top, std::min(rect.bottom() + 1, EndOf(rows, row, drawn_.size.height)));
    }
  }

 private:
  // What the cells of a row give to the rectangle.
  void Gather(std::size_t row, const QRect& rect) {
    const std::vector<DrawnSpan>& columns = drawn_.columns;
    sources_.clear();
    for (std::size_t i = SpanAt(columns, rect.left()); i < columns.size() && columns[i].start <= rect.right();
         ++i) {
      const DrawnSpan& across = columns[i];
      const DrawnView::Shown& shown = drawn_.At(i, row);
      const QImage& frame = tiles_.Frame(shown.picture, ToQSize(drawn_.cell), shown.edges);
      const int left = std::max(rect.left(), across.start);
      const int right = std::min(rect.right() + 1, across.start + across.length);
      Source source{frame.constBits(), frame.bytesPerLine(), left};
      source.pixels += static_cast<std::size_t>(across.cut) * Pixels::kSize;
      lastPixel_ = source.pixels + static_cast<std::size_t>(across.length - 1) * Pixels::kSize;
      lastStride_ = source.stride;
      source.pixels += static_cast<std::size_t>(left - across.start) * Pixels::kSize;
      source.length = static_cast<std::size_t>(std::max(0, right - left)) * Pixels::kSize;
      sources_.push_back(source);
    }
    const int end = columns.back().start + columns.back().length;
    fillStart_ = std::max(end, rect.left());
    fill_ = std::max(0, rect.right() + 1 - fillStart_);
  }

  // Line by line through the whole row, so that the target is written from its start to its end. A pixel that
  // is left at the far edges looks like the one beside it.
  void CopyLines(const DrawnSpan& down, int top, int bottom) const {
    for (int y = top; y < bottom; ++y) {
      const int line = down.cut + std::min(y - down.start, down.length - 1);
      for (const Source& source : sources_)
        std::memcpy(target_.At(source.start, y), source.pixels + line * source.stride, source.length);
      if (fill_ == 0) continue;
      QRgb last{};
      std::memcpy(&last, lastPixel_ + line * lastStride_, Pixels::kSize);
      std::fill_n(target_.At(fillStart_, y), fill_, last);
    }
  }

  const DrawnView& drawn_;
  TileSets& tiles_;
  Pixels target_;
  std::vector<Source> sources_;
  const uchar* lastPixel_ = nullptr;  // of the rightmost cell, in its frame's first line
  qsizetype lastStride_ = 0;
  int fillStart_ = 0;
  int fill_ = 0;  // pixels right of all cells
};

// The cells of a row that look different, as runs without gaps.
class ChangedRuns {
 public:
  explicit ChangedRuns(const DrawnView& drawn) : drawn_(drawn) {}

  void Add(std::size_t column, std::size_t row) {
    const QPoint from(drawn_.columns[column].start, drawn_.rows[row].start);
    const QPoint to(EndOf(drawn_.columns, column, drawn_.size.width) - 1,
                    EndOf(drawn_.rows, row, drawn_.size.height) - 1);
    if (!runs_.empty() && runs_.back().top() == from.y() && runs_.back().right() + 1 == from.x()) {
      runs_.back().setRight(to.x());
    } else {
      runs_.emplace_back(from, to);
    }
  }

  QRegion Region() const {
    QRegion region;
    region.setRects(runs_.data(), static_cast<int>(runs_.size()));
    return region;
  }

 private:
  const DrawnView& drawn_;
  std::vector<QRect> runs_;
};

}  // namespace

QRegion ChangedIn(const DrawnView& drawn) {
  if (drawn.fresh) return QRect(QPoint(), ToQSize(drawn.size));
  ChangedRuns changed(drawn);
  for (const DrawnView::Place& place : drawn.changed) changed.Add(place.column, place.row);
  return changed.Region();
}

void PaintPart(const DrawnView& drawn, TileSets& tiles, const QRegion& part, QImage& target, QPoint corner) {
  if (drawn.cells.empty()) return;
  const QRect room = QRect(QPoint(), ToQSize(drawn.size)) & target.rect().translated(-corner);
  RectPainter painter(drawn, tiles, PixelsOf(target, corner));
  for (const QRect& wanted : part) {
    const QRect rect = wanted & room;
    if (!rect.isEmpty()) painter.Paint(rect);
  }
}

}  // namespace zorik
