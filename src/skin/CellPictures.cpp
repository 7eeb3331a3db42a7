#include "skin/CellPictures.h"

#include "core/Hra.h"
#include "core/Machine.h"

namespace zorik {
namespace {

constexpr int kFavouredBrick = 5;  // four bricks of so many show their first frame
constexpr int kNoSet = 31;         // what the cell shows is settled
constexpr int kWaitingDog = 8;     // column

constexpr std::uint32_t Bit(int code) {
  return std::uint32_t{1} << static_cast<unsigned>(code);
}
constexpr bool Holds(std::uint32_t set, int code) {
  return code < 32 && (set & Bit(code)) != 0;
}

// By what is shown: sets whose row is drawn by lot, and sets whose row follows the clock.
constexpr std::uint32_t kByLot = Bit(kSpace) | Bit(kDirt) | Bit(kBoulder) | Bit(kDog) | Bit(kBrick) |
                                 Bit(kSteel) | Bit(kBox) | Bit(kSetLocks);
constexpr std::uint32_t kByClock = Bit(kGem) | Bit(kFireFly) | Bit(kButterFly) | Bit(kFinish) | Bit(kAmoeba) |
                                   Bit(kSetMagicWall) | Bit(kSlime) | Bit(kFly) | Bit(kSetKeys) |
                                   Bit(kBiomass) | Bit(kFlea);

struct Picturing {
  int shown;
  TileSet set;
};
// Objects whose pictures lie in a set with another number, and follow the clock there.
constexpr std::array<Picturing, 2> kClockedElsewhere{{{kDragonFly, kSetDragonFly}, {kCatKey, kSetCatKey}}};

std::uint16_t Number(int value) {
  return static_cast<std::uint16_t>(value);
}

// Whether three cells beside each other, the first one given, are the mouth of a splitter.
bool IsSplitter(const Hra& hra, Cell first) {
  const Cell middle = first + kRight;
  return hra.Field(first) == kSteel && hra.Field(middle) == kWallH && hra.Field(middle + kRight) == kSteel;
}

bool IsMagicWall(const Hra& hra, Cell c) {
  return hra.Field(c) == kBrick && hra.FieldState(c) == kFlat;
}

bool IsClosedFinish(const Hra& hra, Cell c) {
  return hra.Field(c) == kFinish && !hra.ExitOpen;
}

// The left, middle and right cell of a splitter. A steel that two of them share has a picture of its own.
void ShowSplitterLeft(const Hra& hra, Cell c, CellPicture& picture) {
  if (!IsSplitter(hra, c)) return;
  picture = {kSetSplitter, Number(hra.Field(c + kLeft) == kWallH ? 3 : 0), 0};
}

void ShowSplitterRest(const Hra& hra, Cell c, CellPicture& picture) {
  if (IsSplitter(hra, c + kLeft)) picture = {kSetSplitter, 1, 0};
  if (IsSplitter(hra, c + kLeft + kLeft)) {
    picture = {kSetSplitter, Number(hra.Field(c + kRight) == kWallH ? 3 : 2), 0};
  }
}

// The lamp of an armed sensor is on in one tick of four.
int SensorRow(const Hra& hra, Cell c) {
  if (hra.FieldMark(c) == 0) return 0;
  return hra.Elapsed % 4 == 2 ? 2 : 1;
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

std::optional<std::size_t> CellPictures::Place(int x, int y) {
  if (x < -1 || x >= kColumns - 1 || y < -1 || y >= kRows - 1) return std::nullopt;
  return static_cast<std::size_t>((y + 1) * kColumns + x + 1);
}

CellPicture CellPictures::At(int x, int y) const {
  const auto place = Place(x, y);
  return place ? pictures_[*place] : CellPicture{};
}

void CellPictures::Change(const Hra& hra, int x, int y) {
  const auto place = Place(x, y);
  if (!place) return;
  const Cell c(x, y);
  if (hra.Field(c) > kCatKey) return;
  pictures_[*place] = Choose(hra, c);
}

// What a cell passes for, and its picture as long as nothing else is known. The steps stand in this order
// since later ones look at what earlier ones made of the cell.
CellPicture CellPictures::ChooseBase(const Hra& hra, Cell c, int& shown) const {
  CellPicture picture;
  shown = hra.Field(c);
  if (IsClosedFinish(hra, c)) shown = kSteel;
  if (shown == kWallH || shown == kWallV) shown = kBrick;
  if (IsMagicWall(hra, c) && hra.MagicState == kMagicRunning) shown = kSetMagicWall;
  if (IsOneOf(hra.Field(c), kKeyRed, kKeyBlue)) {
    picture.Col = Number(shown - kKeyRed);
    shown = kSetKeys;
  } else if (IsOneOf(hra.Field(c), kLockRed, kLockBlue)) {
    picture.Col = Number(shown - kLockRed);
    shown = kSetLocks;
  }
  const bool flat = hra.FieldState(c) == kFlat;
  if (flat && (shown == kBox || shown == kBoulder)) {
    picture.Row = shown == kBoulder ? 1 : 0;
    picture.Pic = kSetBomb;
    shown = kNoSet;
    return picture;
  }
  const bool padsShow = placing_ || hra.TeleportActive;
  if (shown == kSteel && padsShow && (c == hra.TeleportIn || c == hra.TeleportOut)) {
    picture.Row = Number(c == hra.TeleportIn ? hra.TeleportStage : 6 - hra.TeleportStage);
    picture.Pic = kSetTeleport;
    shown = kNoSet;
    return picture;
  }
  picture.Pic = static_cast<std::uint8_t>(shown);
  return picture;
}

void CellPictures::ChooseRow(const Hra& hra, Cell c, int shown, CellPicture& picture) {
  if (Holds(kByLot, shown)) {
    picture.Row = Number(static_cast<int>(rnd_.Below(static_cast<std::uint32_t>(Frames(shown)))));
    if (shown == kBrick && rnd_.Below(kFavouredBrick) != 0) picture.Row = 0;
    // The ground has a fixed pattern, or it would flicker.
    if (shown == kSpace) picture.Row = Number((c.x() + c.y()) % Frames(kSpace));
  }
  if (Holds(kByClock, shown)) picture.Row = Number(hra.Elapsed % Frames(shown));
  if (shown == kSensor) picture.Row = Number(SensorRow(hra, c));
  if (shown == kExplosion) {
    picture.Col = Number(hra.FieldMark(c) / 4);
    picture.Row = Number(hra.FieldMark(c) % 4);
  }
}

void CellPictures::ChooseColumn(const Hra& hra, Cell c, int shown, CellPicture& picture) const {
  if (shown == kCat) picture = {kSetCat, Number(hra.CatPose), picture.Row};
  for (const Picturing& row : kClockedElsewhere) {
    if (shown == row.shown) picture = {row.set, 0, Number(hra.Elapsed % Frames(row.set))};
  }
  if (shown == kDog) picture.Col = Number(DogColumn(hra, c));
}

void CellPictures::ShowHidden(const Hra& hra, Cell c, CellPicture& picture) const {
  if (!noSurprise_) return;
  const auto show = [&picture](int row) { picture = {kSetNoSurprise, picture.Col, Number(row)}; };
  if (IsMagicWall(hra, c) && hra.MagicState == kMagicDormant) show(0);
  if (hra.Field(c) == kWallH) show(1);
  if (hra.Field(c) == kWallV) show(2);
  if (IsClosedFinish(hra, c)) show(3);
}

// The plates over the exit and under the entrance of the teleport.
void CellPictures::ShowPads(const Hra& hra, Cell c, CellPicture& picture) const {
  if (!placing_ && !hra.TeleportActive) return;
  if (c + kDown == hra.TeleportOut) picture = {kSetTeleport, 0, 1};
  if (c + kUp == hra.TeleportIn) picture = {kSetTeleport, 0, 0};
}

CellPicture CellPictures::Choose(const Hra& hra, Cell c) {
  int shown = 0;
  CellPicture picture = ChooseBase(hra, c, shown);
  ChooseRow(hra, c, shown, picture);
  ShowSplitterLeft(hra, c, picture);
  ChooseColumn(hra, c, shown, picture);
  ShowHidden(hra, c, picture);
  ShowSplitterRest(hra, c, picture);
  ShowPads(hra, c, picture);
  return picture;
}

}  // namespace zorik
