#include "skin/TileSets.h"

#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

#include "data/Files.h"
#include "skin/ZornePole.h"

namespace zorik {
namespace {

bool IsFile(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

// The picture with this stem; of several kinds the last one of the list counts.
std::optional<std::string> FindKind(const std::string& stem) {
  std::optional<std::string> found;
  for (const char* extension : {".gif", ".bmp", ".jpg"}) {
    std::string path = ResolvePath(stem + extension);
    if (IsFile(path)) found = std::move(path);
  }
  return found;
}

std::string ErrorPicture(const SkinPlaces& places) {
  return ResolvePath(places.SkinsPath + "/error.bmp");
}

QImage ReadPicture(const std::string& path) {
  QImageReader reader(QString::fromStdString(path));
  reader.setDecideFormatFromContent(true);
  return reader.read();
}

void ClearBlack(QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
    std::replace(line, line + image.width(), qRgba(0, 0, 0, 255), qRgba(0, 0, 0, 0));
  }
}

QImage Tile(const QImage& sheet, int column, int row) {
  return sheet.copy(column * kTileSize, row * kTileSize, kTileSize, kTileSize);
}

QImage OverGround(const QImage& picture, const QImage& ground) {
  QImage composed(picture.size(), QImage::Format_RGB32);
  QPainter painter(&composed);
  for (int y = 0; y < composed.height(); y += kTileSize) {
    for (int x = 0; x < composed.width(); x += kTileSize) painter.drawImage(x, y, ground);
  }
  painter.drawImage(0, 0, picture);
  return composed;
}

}  // namespace

std::string GetSchPicPath(const SkinPlaces& places, std::string_view scheme, std::string_view name) {
  for (const std::string& skin : {places.Skin, std::string("Default")}) {
    const std::string game = places.SkinsPath + "/" + skin + "/Game/";
    for (const std::string& folder : {game + std::string(scheme) + "/", game}) {
      if (auto path = FindKind(folder + std::string(name))) return *path;
    }
  }
  return ErrorPicture(places);
}

QImage LoadPicture(const SkinPlaces& places, const std::string& path) {
  QImage image = ReadPicture(path);
  if (image.isNull()) image = ReadPicture(ErrorPicture(places));
  if (image.isNull()) {
    image = QImage(kTileSize, kTileSize, QImage::Format_ARGB32);
    image.fill(Qt::magenta);
  }
  image = image.convertToFormat(QImage::Format_ARGB32);
  ClearBlack(image);
  return image;
}

TileSets::TileSets() {
  for (std::size_t i = 0; i < kTileSetCount; ++i) {
    QImage empty(kTileSize, kTileSize, QImage::Format_RGB32);
    empty.fill(Qt::black);
    Store(i, std::move(empty));
  }
}

void TileSets::Store(std::size_t number, QImage sheet) {
  Set& set = sets_[number];
  set.columns = std::max(1, sheet.width() / kTileSize);
  set.rows = std::max(1, sheet.height() / kTileSize);
  set.scaled.assign(static_cast<std::size_t>(set.columns * set.rows), QImage());
  set.sheet = std::move(sheet);
}

void TileSets::Load(const SkinPlaces& places, std::string_view scheme) {
  const auto load = [&](std::size_t i) {
    return LoadPicture(places, GetSchPicPath(places, scheme, kTileSets[i]));
  };
  QImage black(kTileSize, kTileSize, QImage::Format_RGB32);
  black.fill(Qt::black);
  Store(kSpace, OverGround(load(kSpace), black));
  const QImage ground = Tile(sets_[kSpace].sheet, 0, 0);
  for (std::size_t i = kSpace + 1; i < kTileSetCount; ++i) Store(i, OverGround(load(i), ground));
}

std::array<int, kTileSetCount> TileSets::Frames() const {
  std::array<int, kTileSetCount> frames{};
  std::transform(sets_.begin(), sets_.end(), frames.begin(), [](const Set& set) { return set.rows; });
  return frames;
}

const QImage& TileSets::Frame(const CellPicture& picture, QSize size) {
  if (size != size_) {
    size_ = size;
    for (Set& set : sets_) std::fill(set.scaled.begin(), set.scaled.end(), QImage());
  }
  Set& set = sets_[std::min<std::size_t>(picture.Pic, kTileSetCount - 1)];
  const int column = std::min<int>(picture.Col, set.columns - 1);
  const int row = std::min<int>(picture.Row, set.rows - 1);
  QImage& frame = set.scaled[static_cast<std::size_t>(row * set.columns + column)];
  if (frame.isNull()) {
    frame = Tile(set.sheet, column, row)
                .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
  }
  return frame;
}

}  // namespace zorik
