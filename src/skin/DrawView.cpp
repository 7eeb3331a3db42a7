#include "skin/DrawView.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "skin/Edges.h"

namespace zorik {
namespace {

constexpr std::size_t kPixel = sizeof(QRgb);

// What a row of cells takes from a frame, scanline by scanline.
struct Source {
  const uchar* pixels = nullptr;  // the first one to copy
  qsizetype stride = 0;
  std::size_t start = 0;  // byte in the target's line
  std::size_t length = 0;
};

using Sources = std::vector<Source>;

// Line by line through the whole row, so that the target is written from its start to its end.
void CopyRow(const Sources& sources, const DrawnSpan& down, uchar* target, qsizetype stride) {
  for (int y = 0; y < down.length; ++y) {
    uchar* const line = target + (down.start + y) * stride;
    for (const Source& source : sources) {
      std::memcpy(line + source.start, source.pixels + (down.cut + y) * source.stride, source.length);
    }
  }
}

Source SourceOf(const QImage& frame, const DrawnSpan& across) {
  return {frame.constBits() + static_cast<std::size_t>(across.cut) * kPixel, frame.bytesPerLine(),
          static_cast<std::size_t>(across.start) * kPixel, static_cast<std::size_t>(across.length) * kPixel};
}

// Lengths are rounded down, so a pixel may be left at the far edges: it looks like the one beside it.
void FillEdges(QImage& drawn, int width, int height) {
  const QSize size = drawn.size();
  if (width < size.width()) {
    for (int y = 0; y < height; ++y) {
      auto* const line = reinterpret_cast<QRgb*>(drawn.scanLine(y));
      std::fill(line + width, line + size.width(), line[width - 1]);
    }
  }
  for (int y = height; y < size.height(); ++y) {
    std::memcpy(drawn.scanLine(y), drawn.constScanLine(height - 1),
                static_cast<std::size_t>(drawn.bytesPerLine()));
  }
}

int EndOf(const std::vector<DrawnSpan>& spans) {
  return spans.back().start + spans.back().length;
}

// Where cells overlap by a pixel the later one is seen, so that the earlier one is drawn without it.
std::vector<DrawnSpan> WithoutOverlaps(std::vector<DrawnSpan> spans) {
  for (std::size_t i = 0; i + 1 < spans.size(); ++i)
    spans[i].length = std::min(spans[i].length, spans[i + 1].start - spans[i].start);
  return spans;
}

// The cells of a row that look different, as runs without gaps.
class ChangedRuns {
 public:
  // What is left at the far edges looks like the last cell, and changes with it.
  ChangedRuns(const std::vector<DrawnSpan>& columns, QSize size) : columns_(columns), size_(size) {}

  void Add(std::size_t column, const DrawnSpan& row, bool lastRow) {
    const int left = columns_[column].start;
    const int right = column + 1 < columns_.size() ? columns_[column + 1].start : size_.width();
    const int bottom = lastRow ? size_.height() : row.start + row.length;
    if (!runs_.empty() && runs_.back().top() == row.start && runs_.back().right() + 1 == left) {
      runs_.back().setRight(right - 1);
    } else {
      runs_.emplace_back(QPoint(left, row.start), QPoint(right - 1, bottom - 1));
    }
  }

  QRegion Region() const {
    QRegion region;
    region.setRects(runs_.data(), static_cast<int>(runs_.size()));
    return region;
  }

 private:
  const std::vector<DrawnSpan>& columns_;
  QSize size_;
  std::vector<QRect> runs_;
};

// Whether the image has the size for the view, and shows it as it was a while ago.
bool ShowsView(const DrawnView& drawn, const ViewArea& view, QSize size, std::size_t cells) {
  return drawn.view == view && drawn.image.size() == size && drawn.cells.size() == cells;
}

bool Fit(QImage& image, QSize size) {
  if (image.size() != size || image.format() != QImage::Format_RGB32)
    image = QImage(size, QImage::Format_RGB32);
  return !image.isNull();
}

}  // namespace

// Places are counted from the view's start; the first cell starts before it by the part that is cut.
std::vector<DrawnSpan> SpansOf(int from, int extent, int cellSize) {
  const int offset = from % kTileSize;
  std::vector<DrawnSpan> spans;
  int cell = from / kTileSize;
  for (int place = -offset; place < extent; place += kTileSize, ++cell) {
    DrawnSpan span{cell, place * cellSize / kTileSize, cellSize, 0};
    if (place < 0) {
      span.start = 0;
      span.cut = offset * cellSize / kTileSize;
      span.length = cellSize - span.cut;
    } else if (place > extent - kTileSize) {
      span.length = (extent - place) * cellSize / kTileSize;
    }
    if (span.length > 0) spans.push_back(span);
  }
  return spans;
}

QSize DrawnCell(const ViewArea& view, QSize frame) {
  if (view.width <= 0 || view.height <= 0) return {0, 0};
  return {frame.width() * kTileSize / view.width, frame.height() * kTileSize / view.height};
}

QSize DrawnSize(const ViewArea& view, QSize cell) {
  return {view.width * cell.width() / kTileSize, view.height * cell.height() / kTileSize};
}

QRegion DrawChanges(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles,
                    DrawnView& drawn) {
  const QSize size = DrawnSize(view, cell);
  const std::vector<DrawnSpan> columns = WithoutOverlaps(SpansOf(view.left, view.width, cell.width()));
  const std::vector<DrawnSpan> rows = WithoutOverlaps(SpansOf(view.top, view.height, cell.height()));
  const bool known = ShowsView(drawn, view, size, columns.size() * rows.size());
  if (columns.empty() || rows.empty() || !Fit(drawn.image, size)) {
    drawn = {};
    return {};
  }
  drawn.view = view;
  drawn.cells.resize(columns.size() * rows.size());
  tiles.Prepare(cell);
  const EdgeMap edges(columns, rows, pictures, tiles);
  uchar* const target = drawn.image.bits();
  ChangedRuns changed(columns, size);
  Sources sources;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    sources.clear();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const DrawnView::Shown now{pictures.At(columns[i].cell, rows[row].cell), edges.At(i, row)};
      DrawnView::Shown& shown = drawn.cells[row * columns.size() + i];
      if (known && shown == now) continue;
      shown = now;
      sources.push_back(SourceOf(tiles.Frame(now.picture, cell, now.edges), columns[i]));
      changed.Add(i, rows[row], row + 1 == rows.size());
    }
    CopyRow(sources, rows[row], target, drawn.image.bytesPerLine());
  }
  FillEdges(drawn.image, EndOf(columns), EndOf(rows));
  return known ? changed.Region() : QRegion(QRect(QPoint(), size));
}

void DrawView(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles,
              QImage& drawn) {
  DrawnView fresh;
  fresh.image = std::move(drawn);
  DrawChanges(view, cell, pictures, tiles, fresh);
  drawn = std::move(fresh.image);
}

}  // namespace zorik
