#include "core/Scans.h"

#include <bit>

namespace zorik {
namespace {

// Those of the cells kept together that have amoeba beside them.
std::uint64_t BesideAmoeba(const Grids& grids, std::size_t place) {
  const auto amoeba = [&grids](std::size_t there) { return grids.Due(there).amoeba; };
  const std::uint64_t own = amoeba(place);
  return own << 1 | amoeba(place - 1) >> 63 | own >> 1 | amoeba(place + Grids::kTogether) << 63 |
         amoeba(place - Cell::kStride) | amoeba(place + Cell::kStride);
}

// Visits the cells for which due(place) or also has a bit, row by row from the top left. What is due is asked
// afresh after every cell, so what an action changes further on counts at once.
template <class Due, class Also, class Action>
void ForEachDue(const RunState& run, Due due, Also also, Action action) {
  if (run.CaveWidth == 0 || run.CaveHeight == 0) return;
  const std::size_t first = Cell(0, 0).place() & ~(Grids::kTogether - 1);
  const std::size_t last = Cell(run.CaveWidth - 1, run.CaveHeight - 1).place();
  for (std::size_t place = first; place <= last; place += Grids::kTogether) {
    const std::uint64_t more = also(place);
    std::uint64_t ahead = ~std::uint64_t{0};
    while (const std::uint64_t cells = due(run.Due(place), more) & ahead) {
      const auto bit = static_cast<std::size_t>(std::countr_zero(cells));
      ahead = ~std::uint64_t{1} << bit;
      action(Cell::AtPlace(place + bit));
    }
  }
}

std::uint64_t NoMore(std::size_t /*place*/) {
  return 0;
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
  if (hra.Field(c) <= kDirt) FindAmoebaRoom(hra, c, room);
  if (hra.Field(c) == kBoulder && hra.FieldState(c) == kFlat) Exploze(hra, c);
}

// A tenth of every mark, ties to the even number.
constexpr std::array<std::uint8_t, 256> kTenths = [] {
  std::array<std::uint8_t, 256> tenths{};
  for (std::size_t mark = 0; mark < tenths.size(); ++mark) {
    const bool up = mark % 10 > 5 || (mark % 10 == 5 && mark / 10 % 2 == 1);
    tenths[mark] = static_cast<std::uint8_t>(mark / 10 + (up ? 1 : 0));
  }
  return tenths;
}();

// Ends the moved-in-this-tick form of a monster's heading, ten times itself.
void EndMove(Hra& hra, Cell c) {
  const std::uint8_t mark = hra.FieldMark(c);
  if (mark <= 4 || hra.Field(c) == kExplosion || hra.Field(c) == kSensor) return;
  hra.SetFieldMark(c, kTenths[mark]);
  PREKR(hra, c);
}

void EndVacancy(Hra& hra, Cell c) {
  hra.SetField(c, kSpace);
  PREKR(hra, c);
}

// What the tick ends in one cell; a test of the cell's code stands for each step that only some codes take.
int Settle(Hra& hra, Cell c, int& amoebaCells) {
  int sound = 0;
  const std::uint16_t code = hra.Field(c);
  if (code == kSlime || code == kFlea) PREKR(hra, c);
  if (code == kSensor) sound = CountSensor(hra, c);
  // Cleared here and not all at once: a bomb that is lit below from above or from the left waits one tick
  // longer than one that the scan has still to reach.
  hra.SetFieldMoved(c, false);
  switch (code) {
    case kVacated:
      EndMove(hra, c);
      EndVacancy(hra, c);
      break;
    case kAmoeba:
      sound = SettleAmoeba(hra, c, amoebaCells);
      EndMove(hra, c);
      break;
    case kFireFly:
    case kButterFly:
    case kFly:
    case kDragonFly:
    case kFlea:
      EndMove(hra, c);
      Contact(hra, c);
      break;
    default:
      EndMove(hra, c);
      break;
  }
  return sound;
}

}  // namespace

void ExplosionScan(Hra& hra) {
  if (hra.Count(kExplosion) + hra.Count(kSensor) == 0) return;
  const auto burning = [](const DueCells& cells, std::uint64_t) { return cells.burning; };
  ForEachDue(hra, burning, NoMore, [&hra](Cell c) {
    if (hra.Field(c) == kExplosion) {
      Burn(hra, c);
    } else if (hra.FieldMark(c) == 1) {
      hra.SetFieldMark(c, 2);
    }
  });
}

void ObjectScan(Hra& hra, AmoebaList& room) {
  const bool amoeba = hra.Count(kAmoeba) > 0;
  const auto besideAmoeba = [&](std::size_t place) { return amoeba ? BesideAmoeba(hra, place) : 0; };
  const auto acting = [](const DueCells& cells, std::uint64_t more) {
    return (cells.acting | more) & ~cells.moved;
  };
  ForEachDue(hra, acting, besideAmoeba, [&](Cell c) { Act(hra, c, room); });
}

int ClosingScan(Hra& hra) {
  int amoebaCells = 0;
  int sound = 0;
  const auto settling = [](const DueCells& cells, std::uint64_t) { return cells.settling | cells.moved; };
  ForEachDue(hra, settling, NoMore, [&](Cell c) {
    if (const int due = Settle(hra, c, amoebaCells)) sound = due;
  });
  return sound;
}

}  // namespace zorik
