#include "skin/TileSets.h"

#include <QPainter>
#include <algorithm>
#include <utility>

namespace zorik {
namespace {

constexpr std::int64_t kMostBytesKept = std::int64_t{40} << 20U;    // of all schemes
constexpr std::int64_t kMostBytesScaled = std::int64_t{64} << 20U;  // of both sizes

int FramesIn(int length) {
  return std::max(1, length / kTileSize);
}

// The picture over frames that all show the ground. What a picture lacks to whole frames is ground, what it
// has beyond them is cut off.
QImage OverGround(const QImage& picture, const QImage& ground) {
  const QSize size(FramesIn(picture.width()) * kTileSize, FramesIn(picture.height()) * kTileSize);
  QImage composed(size, QImage::Format_RGB32);
  QPainter painter(&composed);
  for (int y = 0; y < composed.height(); y += kTileSize) {
    for (int x = 0; x < composed.width(); x += kTileSize) painter.drawImage(x, y, ground);
  }
  painter.drawImage(0, 0, picture);
  return composed;
}

QImage BlackTile() {
  QImage tile(kTileSize, kTileSize, QImage::Format_RGB32);
  tile.fill(Qt::black);
  return tile;
}

QImage Tile(const QImage& sheet, int column, int row) {
  return sheet.copy(column * kTileSize, row * kTileSize, kTileSize, kTileSize);
}

}  // namespace

TileSets::TileSets() {
  Sheets sheets;
  for (Sheet& sheet : sheets) sheet.image = BlackTile();
  Use(std::move(sheets));
}

void TileSets::Use(Sheets sheets) {
  frames_ = 0;
  for (std::size_t i = 0; i < kTileSetCount; ++i) {
    Sheet& sheet = sheets[i];
    sheet.columns = FramesIn(sheet.image.width());
    sheet.rows = FramesIn(sheet.image.height());
    first_[i] = frames_;
    frames_ += static_cast<std::size_t>(sheet.columns * sheet.rows);
  }
  sheets_ = std::move(sheets);
  scaled_ = {};
  scaledBytes_ = 0;
}

void TileSets::Load(PictureCache& pictures, const SkinPlaces& places, std::string_view scheme) {
  const PictureFinder finder(places, scheme);
  const auto known = kept_.find(scheme);
  Sheets sheets;
  for (std::size_t i = 0; i < kTileSetCount; ++i) {
    Sheet& sheet = sheets[i];
    sheet.path = finder.GetSchPicPath(kTileSets[i]);
    sheet.stamp = StampOf(sheet.path);
    if (known != kept_.end() && SameSource(known->second[i], sheet)) sheet = known->second[i];
  }
  // All others lie on Space, so a new one makes them new as well.
  const bool newGround = sheets[kSpace].image.isNull();
  for (std::size_t i = 0; i < kTileSetCount; ++i) {
    Sheet& sheet = sheets[i];
    if (!sheet.image.isNull() && !newGround) continue;
    const QImage picture = pictures.Load(places, sheet.path, kMostTilePixels);
    // Space has nothing below it and keeps its black.
    sheet.image = i == kSpace ? OverGround(picture, BlackTile())
                              : OverGround(WithoutBlack(picture), Tile(sheets[kSpace].image, 0, 0));
  }
  kept_.insert_or_assign(std::string(scheme), sheets);
  if (BytesKept() > kMostBytesKept) kept_ = {{std::string(scheme), sheets}};
  if (!SameImages(sheets, sheets_)) Use(std::move(sheets));
}

bool TileSets::SameSource(const Sheet& a, const Sheet& b) {
  return a.path == b.path && a.stamp == b.stamp;
}

bool TileSets::SameImages(const Sheets& a, const Sheets& b) {
  return std::equal(a.begin(), a.end(), b.begin(), [](const Sheet& one, const Sheet& other) {
    return one.image.cacheKey() == other.image.cacheKey();
  });
}

std::int64_t TileSets::BytesKept() const {
  std::int64_t bytes = 0;
  for (const auto& [scheme, sheets] : kept_) {
    for (const Sheet& sheet : sheets) bytes += sheet.image.sizeInBytes();
  }
  return bytes;
}

std::array<int, kTileSetCount> TileSets::Frames() const {
  std::array<int, kTileSetCount> frames{};
  std::transform(sheets_.begin(), sheets_.end(), frames.begin(),
                 [](const Sheet& sheet) { return sheet.rows; });
  return frames;
}

void TileSets::Prepare(QSize size) {
  if (scaledBytes_ > kMostBytesScaled) {
    scaled_ = {};
    scaledBytes_ = 0;
  }
  Scaled& inUse = scaled_[0];
  if (inUse.size == size) return;
  std::swap(inUse, scaled_[1]);
  if (inUse.size == size) return;
  for (const QImage& frame : inUse.frames) scaledBytes_ -= frame.sizeInBytes();
  inUse = {size, std::vector<QImage>(frames_)};
}

const QImage& TileSets::Frame(const CellPicture& picture, QSize size) {
  if (scaled_[0].size != size) Prepare(size);
  const std::size_t set = std::min<std::size_t>(picture.Pic, kTileSetCount - 1);
  const Sheet& sheet = sheets_[set];
  const int column = std::min<int>(picture.Col, sheet.columns - 1);
  const int row = std::min<int>(picture.Row, sheet.rows - 1);
  QImage& frame = scaled_[0].frames[first_[set] + static_cast<std::size_t>(row * sheet.columns + column)];
  if (frame.isNull()) {
    frame = Tile(sheet.image, column, row)
                .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
    scaledBytes_ += frame.sizeInBytes();
  }
  return frame;
}

}  // namespace zorik
