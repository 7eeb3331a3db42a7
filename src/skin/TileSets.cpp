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

// A tile that leaves a tenth of its cell clear stands on the ground.
bool ShowsGround(const QImage& tile) {
  constexpr int kLeast = kTileSize * kTileSize / 10;
  int clear = 0;
  for (int y = 0; y < tile.height(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(tile.constScanLine(y));
    clear +=
        static_cast<int>(std::count_if(line, line + tile.width(), [](QRgb c) { return qAlpha(c) == 0; }));
  }
  return clear >= kLeast;
}

void DrawEdges(QPainter& painter, const QImage& edges, Ground ground, EdgeMask mask) {
  constexpr int kHalf = kTileSize / 2;
  for (int quarter = 0; quarter < kQuarters; ++quarter) {
    const Edge edge = EdgeIn(ground, mask, quarter);
    if (edge == Edge::None) continue;
    const QPoint at(quarter % 2 * kHalf, quarter / 2 * kHalf);
    const QPoint frame(static_cast<int>(edge) * kTileSize, 0);
    painter.drawImage(at, edges, QRect(frame + at, QSize(kHalf, kHalf)));
  }
}

}  // namespace

TileSets::TileSets() {
  Sheets sheets;
  const QImage black = BlackTile();  // which all of them share
  for (std::size_t i = 0; i < kTileSetCount; ++i) sheets[i].image = black;
  Use(std::move(sheets));
}

void TileSets::Use(Sheets sheets) {
  FrameTable::Numbers columns{}, rows{};
  for (std::size_t i = 0; i < kTileSetCount; ++i) {
    columns[i] = FramesIn(sheets[i].image.width());
    rows[i] = FramesIn(sheets[i].image.height());
  }
  table_ = FrameTable(columns, rows, FindGrounds(sheets));
  sheets_ = std::move(sheets);
  scaled_ = {};
}

std::vector<Ground> TileSets::FindGrounds(const Sheets& sheets) {
  std::vector<Ground> grounds;
  if (sheets[kEdges].picture.isNull()) return grounds;
  for (std::size_t set = 0; set < kTileSetCount; ++set) {
    const Sheet& sheet = sheets[set];
    for (int row = 0; row < FramesIn(sheet.image.height()); ++row) {
      for (int column = 0; column < FramesIn(sheet.image.width()); ++column) {
        const bool bare = set == kSetSpace || ShowsGround(Tile(sheet.picture, column, row));
        grounds.push_back(set == kSetDirt ? Ground::Earth : bare ? Ground::Bare : Ground::Covered);
      }
    }
  }
  return grounds;
}

// The default skin's edges are those of its own earth and ground, and not laid over another skin's.
std::string TileSets::EdgesPath(const PictureFinder& finder) {
  const auto edges = finder.Find("Edges");
  if (!edges) return {};
  const auto earth = finder.Find(kTileSets[kSetDirt]), ground = finder.Find(kTileSets[kSetSpace]);
  const bool foreign = (earth && earth->own) || (ground && ground->own);
  return edges->own || !foreign ? edges->path : std::string();
}

void TileSets::Load(PictureCache& pictures, const SkinPlaces& places, std::string_view scheme) {
  const PictureFinder finder(places, scheme);
  const auto known = kept_.find(scheme);
  Sheets sheets;
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    Sheet& sheet = sheets[i];
    sheet.path = i == kEdges ? EdgesPath(finder) : finder.GetSchPicPath(kTileSets[i]);
    sheet.stamp = StampOf(sheet.path);
    if (known != kept_.end() && SameSource(known->second[i], sheet)) sheet = known->second[i];
  }
  Read(pictures, places, sheets);
  kept_.insert_or_assign(std::string(scheme), sheets);
  if (BytesKept() > kMostBytesKept) kept_ = {{std::string(scheme), sheets}};
  if (!SameImages(sheets, sheets_)) Use(std::move(sheets));
}

// Reads what is not there already.
void TileSets::Read(PictureCache& pictures, const SkinPlaces& places, Sheets& sheets) {
  // All others lie on Space, so a new one makes them new as well.
  const bool newGround = sheets[kSetSpace].image.isNull();
  for (std::size_t i = 0; i < kTileSetCount; ++i) {
    Sheet& sheet = sheets[i];
    if (!sheet.image.isNull() && !newGround) continue;
    sheet.picture = pictures.Load(places, sheet.path, kMostTilePixels);
    // Space has nothing below it and keeps its black.
    if (i != kSetSpace) sheet.picture = WithoutBlack(std::move(sheet.picture));
    sheet.image =
        OverGround(sheet.picture, i == kSetSpace ? BlackTile() : Tile(sheets[kSetSpace].image, 0, 0));
  }
  Sheet& edges = sheets[kEdges];
  if (edges.path.empty() || !edges.picture.isNull()) return;
  edges.picture = WithoutBlack(pictures.Load(places, edges.path, kMostTilePixels));
  edges.image = edges.picture;
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

void TileSets::Prepare(QSize size) {
  if (scaled_[0].bytes + scaled_[1].bytes > kMostBytesScaled) scaled_ = {};
  Scaled& inUse = scaled_[0];
  if (inUse.size == size) return;
  std::swap(inUse, scaled_[1]);
  if (inUse.size == size) return;
  inUse = {size, std::vector<ScaledFrame>(table_.Count())};
}

// A frame of 80 pixels over its ground, with the edges between the two.
QImage TileSets::Composed(const CellPicture& picture, EdgeMask edges) const {
  const auto [set, column, row] = table_.Drawn(picture);
  const Sheet& sheet = sheets_[set];
  if (edges == 0) return Tile(sheet.image, column, row);
  const bool itself = set == kSetSpace || set == kSetDirt;
  QImage tile = itself ? Tile(sheet.image, column, row) : Tile(sheets_[kSetSpace].image, 0, 0);
  QPainter painter(&tile);
  DrawEdges(painter, sheets_[kEdges].picture, GroundOf(picture), edges);
  if (!itself) painter.drawImage(0, 0, Tile(sheet.picture, column, row));
  return tile;
}

const QImage& TileSets::Frame(const CellPicture& picture, QSize size, EdgeMask edges) {
  if (scaled_[0].size != size) Prepare(size);
  ScaledFrame& scaled = scaled_[0].frames[table_.PlaceOf(picture)];
  if (edges != 0 && scaled.edged.empty()) scaled.edged.resize(kEdgeMasks);
  QImage& frame = edges == 0 ? scaled.plain : scaled.edged[edges];
  if (frame.isNull()) {
    frame = Composed(picture, edges)
                .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
    scaled_[0].bytes += frame.sizeInBytes();
  }
  return frame;
}

QImage TileSets::Sprite(const CellPicture& picture, QSize size) const {
  const auto [set, column, row] = table_.Drawn(picture);
  return Tile(sheets_[set].picture, column, row)
      .convertToFormat(QImage::Format_ARGB32_Premultiplied)
      .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

const LooseFrame& TileSets::Loose(const CellPicture& picture, QSize size) {
  if (scaled_[0].size != size) Prepare(size);
  LooseFrame& frame = scaled_[0].frames[table_.PlaceOf(picture)].loose;
  if (!frame.IsNull()) return frame;
  frame = LooseFrame(Sprite(picture, size));
  scaled_[0].bytes += frame.Bytes();
  return frame;
}

}  // namespace zorik
