#include "skin/DrawView.h"

#include <algorithm>
#include <cstring>

namespace zorik {
namespace {

void CopyPixels(QImage& target, const DrawnSpan& across, const DrawnSpan& down, const QImage& frame) {
  const int width = std::min(across.length, target.width() - across.start);
  const int height = std::min(down.length, target.height() - down.start);
  if (width <= 0) return;
  for (int y = 0; y < height; ++y) {
    const auto* const from = reinterpret_cast<const QRgb*>(frame.constScanLine(y + down.cut)) + across.cut;
    auto* const to = reinterpret_cast<QRgb*>(target.scanLine(y + down.start)) + across.start;
    std::memcpy(to, from, static_cast<std::size_t>(width) * sizeof(QRgb));
  }
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

QImage DrawView(const ViewArea& view, QSize cell, const CellPictures& pictures, TileSets& tiles) {
  const QSize size = DrawnSize(view, cell);
  if (size.isEmpty() || cell.isEmpty()) return {};
  QImage drawn(size, QImage::Format_RGB32);
  const std::vector<DrawnSpan> columns = SpansOf(view.left, view.width, cell.width());
  const std::vector<DrawnSpan> rows = SpansOf(view.top, view.height, cell.height());
  for (const DrawnSpan& across : columns) {
    for (const DrawnSpan& down : rows) {
      CopyPixels(drawn, across, down, tiles.Frame(pictures.At(across.cell, down.cell), cell));
    }
  }
  return drawn;
}

}  // namespace zorik
