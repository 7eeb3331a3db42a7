#include "editors/ContactSheet.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>

#include "core/Machine.h"
#include "data/Result.h"
#include "editors/BoxText.h"
#include "screens/PlainText.h"
#include "skin/CavePainter.h"
#include "skin/GameFont.h"
#include "skin/WholeCave.h"

namespace zorik {
namespace {

constexpr QSize kRoom(320, 200);  // of a cave, in pixels
constexpr int kGap = 16;
constexpr int kTitle = 56;  // heights of the lines
constexpr int kName = 24;
constexpr int kTitleLetters = 26;
constexpr int kNameLetters = 16;
constexpr int kMostCell = 48;  // pixels; a small cave is not blown up any more
constexpr QColor kGround(0x10, 0x10, 0x18);
constexpr QColor kLetters(0xE8, 0xE8, 0xE0);

int ColumnsFor(std::size_t caves) {
  return std::max(1, static_cast<int>(std::ceil(std::sqrt(static_cast<double>(caves)))));
}

QSize SizeFor(std::size_t caves) {
  const QRect last = PlaceOnSheet(std::max<std::size_t>(caves, 1) - 1, caves);
  const int columns = ColumnsFor(caves);
  return {kGap + columns * (kRoom.width() + kGap), last.bottom() + 1 + kName + kGap};
}

// A cell has whole pixels; what is too large then is made smaller as a whole.
QImage SmallPicture(CavePainter& painter, const CaveRecord& cave) {
  const auto run = std::make_unique<Hra>();
  StartRun(*run, {}, cave, RunKind::Practice);
  const double fitting = std::min(static_cast<double>(kRoom.width()) / run->CaveWidth,
                                  static_cast<double>(kRoom.height()) / run->CaveHeight);
  const int cell = std::clamp(static_cast<int>(std::ceil(fitting)), 1, kMostCell);
  const QImage whole = WholeCave(painter, *run, cell);
  if (whole.width() <= kRoom.width() && whole.height() <= kRoom.height()) return whole;
  return whole.scaled(kRoom, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

void DrawLine(QPainter& painter, const QRect& room, int letters, const QString& text) {
  painter.setFont(GameFont(letters));
  const QString shown = painter.fontMetrics().elidedText(OneLine(text), Qt::ElideRight, room.width());
  painter.drawText(room, Qt::AlignCenter | Qt::TextSingleLine, shown);
}

}  // namespace

QRect PlaceOnSheet(std::size_t cave, std::size_t caves) {
  const int columns = ColumnsFor(caves), place = static_cast<int>(cave);
  const QPoint corner(kGap + place % columns * (kRoom.width() + kGap),
                      kGap + kTitle + place / columns * (kRoom.height() + kName + kGap));
  return {corner, kRoom};
}

QImage ContactSheet(const SkinPlaces& places, const QString& title, const std::vector<std::string>& caves) {
  QImage sheet(SizeFor(caves.size()), QImage::Format_RGB32);
  sheet.fill(kGround);
  QPainter painter(&sheet);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setPen(kLetters);
  DrawLine(painter, {kGap, kGap, sheet.width() - 2 * kGap, kTitle - kGap}, kTitleLetters, title);
  CavePainter cavePainter(places);
  for (std::size_t i = 0; i < caves.size(); ++i) {
    const QRect room = PlaceOnSheet(i, caves.size());
    const Result<CaveRecord> cave = ReadCave(caves[i]);
    const QString name = cave ? ToBox(cave->Name) : QString();
    DrawLine(painter, {room.left(), room.bottom() + 1, room.width(), kName}, kNameLetters,
             QString::number(i + 1) + ". " + name);
    if (!cave) continue;
    const QImage picture = SmallPicture(cavePainter, *cave);
    painter.drawImage(room.center() - picture.rect().center(), picture);
  }
  return sheet;
}

}  // namespace zorik
