#include "view/CellPictures.h"

#include "core/Hra.h"
#include "core/Machine.h"
#include "core/Patterns.h"

namespace zorik {
namespace {

constexpr int kFavoured = 5;    // four of so many show the first frame
constexpr int kWaitingDog = 8;  // column

std::uint16_t Number(int value) {
  return static_cast<std::uint16_t>(value);
}

// The left, middle and right cell of a splitter. A steel that two of them share has a picture of its own.
void ShowSplitterLeft(const Hra& hra, Cell c, CellPicture& picture) {
  if (!IsSplitterMouth(hra, c + kRight)) return;
  picture = {kSetSplitter, Number(hra.Field(c + kLeft) == kWallH ? 3 : 0), 0};
}

void ShowSplitterRest(const Hra& hra, Cell c, CellPicture& picture) {
  if (IsSplitterMouth(hra, c)) picture = {kSetSplitter, 1, 0};
  if (IsSplitterMouth(hra, c + kLeft)) {
    picture = {kSetSplitter, Number(hra.Field(c + kRight) == kWallH ? 3 : 2), 0};
  }
}

// The lamp of an armed sensor is on in one tick of four.
int SensorRow(const Hra& hra, Cell c) {
  if (hra.FieldMark(c) == 0) return 0;
  return hra.Elapsed % 4 == 2 ? 2 : 1;
}

// Glitters by itself, or glows.
bool Shimmers(std::uint16_t code) {
  return (Grids::Traits(code) & trait::kGlitters) != 0 || code == kFinish;
}

int DogColumn(const Hra& hra, Cell c) {
  const int n = DogIn(hra, c);
  if (n != 0 && n != hra.ActiveDog) return kWaitingDog;
  struct Pose {
    int pose;
    int column;
  };
  constexpr std::array<Pose, 9> kPoses{
      {{0, 1}, {1, 4}, {2, 5}, {3, 6}, {4, 7}, {kKeyLeft, 0}, {kKeyRight, 2}, {kKeyUp, 3}, {kKeyDown, 1}}};
  for (const Pose& row : kPoses) {
    if (row.pose == hra.DogPose) return row.column;
  }
  return 0;
}

// Objects that have a rule of their own for the column or the row of their frame.
void ShowOwn(const Hra& hra, Cell c, CellPicture& picture) {
  switch (hra.Field(c)) {
    case kDog:
      picture.Col = Number(DogColumn(hra, c));
      break;
    case kCat:
      picture.Col = Number(hra.CatPose);
      break;
    case kSensor:
      picture.Row = Number(SensorRow(hra, c));
      break;
    case kExplosion:
      picture.Col = Number(hra.FieldMark(c) / 4);
      picture.Row = Number(hra.FieldMark(c) % 4);
      break;
    default:
      break;
  }
}

}  // namespace

void CellPictures::Open(const Hra& hra) {
  pictures_.fill({});
  width_ = hra.CaveWidth;
  height_ = hra.CaveHeight;
  placing_ = true;
}

void CellPictures::Placed(const Hra& hra) {
  placing_ = false;
  if (hra.TeleportActive) return;
  ForEachCell(hra, [this, &hra](Cell c) {
    if (At(c.x(), c.y()).Pic == kSetTeleport) Change(hra, c.x(), c.y());
  });
}

CellPicture CellPictures::GroundAt(Cell c) const {
  return {kSetSpace, 0, Number((c.x() + c.y()) % FramesOf(kSetSpace))};
}

void CellPictures::Change(const Hra& hra, int x, int y) {
  const auto place = Place(x, y);
  if (!place) return;
  const Cell c(x, y);
  if (!IsObject(hra.Field(c))) return;
  pictures_[*place] = Choose(hra, c);
}

void CellPictures::ShowMoment(const Hra& hra) {
  for (int y = -1; y <= hra.CaveHeight; ++y) {
    for (int x = -1; x <= hra.CaveWidth; ++x) {
      if (!IsObject(hra.Field(Cell(x, y)))) continue;
      const Rows rows = ChooseBase(hra, Cell(x, y)).rows;
      const CellPicture before = At(x, y);
      Change(hra, x, y);
      CellPicture& now = pictures_[*Place(x, y)];
      const bool byLot = rows == Rows::ByLot || rows == Rows::MostlyFirst;
      if (byLot && now.Pic == before.Pic && now.Col == before.Col) now = before;
    }
  }
}

// What a cell passes for: a pattern, or the object that the table tells of.
CellPictures::Base CellPictures::ChooseBase(const Hra& hra, Cell c) const {
  if (IsBomb(hra, c)) return {{kSetBomb, 0, 0}};
  if (IsStruckBomb(hra, c)) return {{kSetBomb, 0, 1}};
  if (IsMagicWall(hra, c) && hra.MagicState == kMagicRunning) return {{kSetMagicWall}, Rows::ByClock};
  const std::uint16_t shown = IsClosedFinish(hra, c) ? +kSteel : hra.Field(c);
  const bool padsShow = placing_ || hra.TeleportActive;
  if (shown == kSteel && padsShow && IsEntrance(hra, c))
    return {{kSetTeleport, 0, Number(hra.TeleportStage)}};
  if (shown == kSteel && padsShow && IsExit(hra, c))
    return {{kSetTeleport, 0, Number(6 - hra.TeleportStage)}};
  const ObjectRow& object = kObjects[shown];
  return {{object.tiles, object.column}, object.rows};
}

std::uint16_t CellPictures::ChooseRow(const Hra& hra, Cell c, const Base& base) {
  const int frames = FramesOf(base.picture.Pic);
  if (still_) {
    if (Shimmers(hra.Field(c))) return base.picture.Row;
    const CellPicture shown = At(c.x(), c.y());
    const bool lot = base.rows == Rows::ByLot || base.rows == Rows::MostlyFirst;
    if (lot && shown.Pic == base.picture.Pic && shown.Col == base.picture.Col) return shown.Row;
  }
  const auto any = [&] { return Number(static_cast<int>(rnd_.Below(static_cast<std::uint32_t>(frames)))); };
  switch (base.rows) {
    case Rows::ByLot:
      return any();
    case Rows::MostlyFirst: {
      const std::uint16_t row = any();
      return rnd_.Below(kFavoured) != 0 ? Number(0) : row;
    }
    case Rows::ByPlace:
      return Number((c.x() + c.y()) % frames);
    case Rows::ByClock:
      return Number(hra.Elapsed % frames);
    case Rows::Still:
    case Rows::Own:
      return base.picture.Row;
  }
  return 0;
}

// Nothing stays hidden from a player who has asked for that.
void CellPictures::ShowHidden(const Hra& hra, Cell c, CellPicture& picture) const {
  const Secret secret = noSurprise_ ? SecretIn(hra, c) : kNoSecret;
  if (secret != kNoSecret) picture = {kSetNoSurprise, picture.Col, Number(secret)};
}

// The plates over the exit and under the entrance of the teleport.
void CellPictures::ShowPads(const Hra& hra, Cell c, CellPicture& picture) const {
  if (!placing_ && !hra.TeleportActive) return;
  if (IsExit(hra, c + kDown)) picture = {kSetTeleport, 0, 1};
  if (IsEntrance(hra, c + kUp)) picture = {kSetTeleport, 0, 0};
}

// In this order, since what comes later covers what was there.
CellPicture CellPictures::Choose(const Hra& hra, Cell c) {
  const Base base = ChooseBase(hra, c);
  CellPicture picture = base.picture;
  picture.Row = ChooseRow(hra, c, base);
  ShowOwn(hra, c, picture);
  ShowSplitterLeft(hra, c, picture);
  ShowHidden(hra, c, picture);
  ShowSplitterRest(hra, c, picture);
  ShowPads(hra, c, picture);
  return picture;
}

}  // namespace zorik
