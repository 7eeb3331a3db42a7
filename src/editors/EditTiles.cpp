#include "editors/EditTiles.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cstring>

#include "skin/GameFont.h"

namespace zorik {
namespace {

constexpr std::size_t kMostSizes = 8;  // that are kept

// What hides in the game is told apart here.
CellPicture PictureOf(const ObjectLetter& object) {
  if (object.secret != kNoSecret) return {kSetNoSurprise, 0, static_cast<std::uint16_t>(object.secret)};
  return {object.image, object.column, 0};
}

// Whoever starts with a heading starts left, up, right or down; the angle turns an arrow that points left.
int StartAngle(const ObjectLetter& object) {
  return (object.mark - 1) * 90;
}

bool HasDirection(const ObjectLetter& object) {
  return object.mark != 0;
}

// Coordinates of a tile of 26.
void DrawArrow(QPainter& painter, int angle) {
  QPainterPath arrow;
  arrow.moveTo(1.5, 13);
  for (const QPointF corner : {QPointF(9.5, 5.5), QPointF(9.5, 20.5)}) arrow.lineTo(corner);
  arrow.closeSubpath();
  painter.translate(13, 13);
  painter.rotate(angle);
  painter.translate(-13, -13);
  painter.setPen(QPen(Qt::black, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::white);
  painter.drawPath(arrow);
}

void DrawNumber(QPainter& painter, int number) {
  QFont font = GameFont(14);
  font.setBold(true);
  QPainterPath path;
  const QString text = QString::number(number);
  path.addText(0, 0, font, text);
  const QRectF bounds = path.boundingRect();
  path.translate(25 - bounds.right(), 25 - bounds.bottom());
  painter.strokePath(path, QPen(Qt::black, 3.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(path, QColor(0xFF, 0xE6, 0x5A));
}

// A tile's line is so short that a copy of any length takes longer than a few of a known one. The last piece
// may lie over the one before it.
void CopyLine(const uchar* from, std::size_t length, uchar* to) {
  constexpr std::size_t kPiece = 4 * sizeof(QRgb);
  if (length < kPiece || length > 8 * kPiece) {
    std::memcpy(to, from, length);
    return;
  }
  for (std::size_t i = 0; i + kPiece < length; i += kPiece) std::memcpy(to + i, from + i, kPiece);
  std::memcpy(to + length - kPiece, from + length - kPiece, kPiece);
}

}  // namespace

void EditTiles::Load(const SkinPlaces& places, std::string_view scheme) {
  sets_.Load(cache_, places, scheme);
  tiles_.clear();
}

std::size_t EditTiles::PlaceOf(int palette, int dog) {
  const int place = palette == kDogTool ? kPaletteEnd + std::clamp(dog, 1, kDogs) - 1 : palette;
  return static_cast<std::size_t>(place);
}

const QImage& EditTiles::Tile(int palette, int dog, int size) {
  if (ObjectOfTool(palette) == nullptr) palette = 0;
  if (tiles_.size() >= kMostSizes && tiles_.count(size) == 0) tiles_.clear();
  QImage& tile = tiles_[size][PlaceOf(palette, dog)];
  if (tile.isNull()) tile = MakeTile(palette, dog, size);
  return tile;
}

QImage EditTiles::MakeTile(int palette, int dog, int size) {
  const ObjectLetter& object = *ObjectOfTool(palette);
  QImage tile = sets_.Frame(PictureOf(object), QSize(size, size)).copy();
  QPainter painter(&tile);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 26.0, size / 26.0);
  if (HasDirection(object)) DrawArrow(painter, StartAngle(object));
  if (palette == kDogTool) DrawNumber(painter, dog);
  return tile;
}

void DrawCells(const CaveModel& cave, EditTiles& tiles, const QRect& cells, int size, QImage& picture) {
  const QSize whole = cells.size() * size;
  if (picture.size() != whole) picture = QImage(whole, QImage::Format_RGB32);
  if (picture.isNull()) return;
  const std::size_t line = static_cast<std::size_t>(size) * sizeof(QRgb);
  const qsizetype stride = picture.bytesPerLine();
  // Each letter's tile is looked up once.
  struct Found {
    const uchar* pixels = nullptr;
    qsizetype stride = 0;
  };
  std::array<Found, 256> found{};
  uchar* row = picture.bits();
  for (int y = cells.top(); y <= cells.bottom(); ++y, row += size * stride) {
    uchar* cell = row;
    for (int x = cells.left(); x <= cells.right(); ++x, cell += line) {
      const char look = cave.LookAt(x, y);
      Found& tile = found[static_cast<unsigned char>(look)];
      if (tile.pixels == nullptr) {
        const QImage& image = tiles.Tile(ToolOfLetter(look), ValueOf(look), size);
        tile = {image.constBits(), image.bytesPerLine()};
      }
      const uchar* from = tile.pixels;
      uchar* to = cell;
      for (int i = 0; i < size; ++i, from += tile.stride, to += stride) CopyLine(from, line, to);
    }
  }
}

}  // namespace zorik
