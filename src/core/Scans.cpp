#include "core/Scans.h"

namespace zorik {
namespace {

// What a scan has to look at in cells of each code.
using Codes = std::array<bool, Grids::kCodes>;

constexpr Codes Table(std::initializer_list<int> codes) {
  Codes table{};
  for (const int code : codes) table[static_cast<std::size_t>(code)] = true;
  return table;
}

constexpr std::size_t kVacatedRow = kVacated % Grids::kCodes;

// These act by themselves, tick after tick, so their row never sleeps.
constexpr Codes kRestless = Table({kFireFly, kButterFly, kFly, kDragonFly, kSlime});
constexpr Codes kActs = Table({kFireFly, kButterFly, kFly, kDragonFly, kSlime, kWallH, kWallV, kBoulder});
constexpr Codes kEndsUp =
    Table({kFireFly, kButterFly, kFly, kDragonFly, kSlime, kFlea, kAmoeba, kSensor, kVacatedRow});

bool Has(const Codes& codes, std::uint16_t code) {
  return codes[code % Grids::kCodes];
}

template <class Action>
void ForEachAwakeRow(const Hra& hra, Rows& rows, Action action) {
  for (int y = 0; y < hra.CaveHeight; ++y) {
    const Cell first(0, y);
    if (!rows.Awake(first)) continue;
    rows.Sleep(first);
    Cell c = first;
    for (int x = 0; x < hra.CaveWidth; ++x, c = c + kRight) action(c);
  }
}

// Every test is made afresh on the cell as it is then, so an object that has just landed gets a second
// chance, and the space that something left can take in amoeba.
void Act(Hra& hra, Cell c, AmoebaList& room) {
  if (hra.FieldState(c) == kFalling) NewGravitace(hra, c);
  if (hra.FieldState(c) == kResting) NewGravitace(hra, c);
  switch (hra.Field(c)) {
    case kFireFly:
    case kButterFly:
    case kFly:
    case kDragonFly:
      Potvory(hra, c);
      break;
    case kSlime:
      Slime(hra, c);
      break;
    case kWallH:
      GrowWallH(hra, c);
      break;
    case kWallV:
      GrowWallV(hra, c);
      break;
    default:
      break;
  }
  FindAmoebaRoom(hra, c, room);
  if (hra.Field(c) == kBoulder && hra.FieldState(c) == kFlat) Exploze(hra, c);
}

// Ends the moved-in-this-tick form of a monster's heading, ten times itself; ties go to the even number.
void EndMove(Hra& hra, Cell c) {
  const int mark = hra.FieldMark(c);
  if (mark <= 4 || hra.Field(c) == kExplosion || hra.Field(c) == kSensor) return;
  const int tens = mark / 10;
  const int rest = mark % 10;
  const bool up = rest > 5 || (rest == 5 && tens % 2 == 1);
  hra.SetFieldMark(c, static_cast<std::uint8_t>(up ? tens + 1 : tens));
  PREKR(hra, c);
}

void Settle(Hra& hra, Cell c, int& amoebaCells, int& sound) {
  const std::uint16_t code = hra.Field(c);
  if (code == kSlime || code == kFlea) PREKR(hra, c);
  if (code == kSensor) {
    if (const int due = CountSensor(hra, c)) sound = due;
  }
  // Cleared here and not all at once: a bomb that is lit below from above or from the left waits one tick
  // longer than one that the scan has still to reach.
  hra.SetFieldMoved(c, false);
  if (hra.Field(c) == kAmoeba) {
    if (const int due = SettleAmoeba(hra, c, amoebaCells)) sound = due;
  }
  EndMove(hra, c);
  if (hra.Field(c) == kVacated) {
    hra.SetField(c, kSpace);
    PREKR(hra, c);
  }
  Contact(hra, c);
}

}  // namespace

void ExplosionScan(Hra& hra) {
  ForEachAwakeRow(hra, hra.burning, [&hra](Cell c) {
    if (hra.Field(c) == kSensor && hra.FieldMark(c) == 1) hra.SetFieldMark(c, 2);
    if (hra.Field(c) == kExplosion) {
      Burn(hra, c);
      hra.burning.Wake(c);
    }
  });
}

void ObjectScan(Hra& hra, AmoebaList& room) {
  const bool amoeba = hra.Count(kAmoeba) > 0;
  if (amoeba) hra.acting.WakeAll();
  Codes acts = kActs;
  acts[kSpace] = acts[kDirt] = amoeba;
  ForEachAwakeRow(hra, hra.acting, [&](Cell c) {
    const std::uint16_t code = hra.Field(c);
    if (hra.FieldState(c) < kResting && !Has(acts, code)) return;
    if (hra.FieldMoved(c)) {
      hra.acting.Wake(c);
      return;
    }
    if (Has(kRestless, code)) hra.acting.Wake(c);
    Act(hra, c, room);
  });
}

int ClosingScan(Hra& hra) {
  int amoebaCells = 0;
  int sound = 0;
  ForEachAwakeRow(hra, hra.settling, [&](Cell c) {
    const std::uint16_t code = hra.Field(c);
    const bool endsUp = Has(kEndsUp, code);
    if (!endsUp && !hra.FieldMoved(c) && hra.FieldMark(c) <= 4) return;
    if (endsUp) hra.settling.Wake(c);
    Settle(hra, c, amoebaCells, sound);
  });
  return sound;
}

}  // namespace zorik
