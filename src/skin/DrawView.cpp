#include "skin/DrawView.h"

#include <algorithm>
#include <cstring>

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

void DrawView(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles,
              QImage& drawn) {
  const QSize size = DrawnSize(view, cell);
  const std::vector<DrawnSpan> columns = SpansOf(view.left, view.width, cell.width());
  const std::vector<DrawnSpan> rows = SpansOf(view.top, view.height, cell.height());
  if (columns.empty() || rows.empty()) {
    drawn = {};
    return;
  }
  if (drawn.size() != size || drawn.format() != QImage::Format_RGB32) {
    drawn = QImage(size, QImage::Format_RGB32);
    if (drawn.isNull()) return;
  }
  tiles.Prepare(cell);
  const EdgeMap edges(columns, rows, pictures, tiles);
  uchar* const target = drawn.bits();
  Sources sources(columns.size());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const CellPicture picture = pictures.At(columns[i].cell, rows[row].cell);
      sources[i] = SourceOf(tiles.Frame(picture, cell, edges.At(i, row)), columns[i]);
    }
    CopyRow(sources, rows[row], target, drawn.bytesPerLine());
  }
  FillEdges(drawn, EndOf(columns), EndOf(rows));
}

}  // namespace zorik
