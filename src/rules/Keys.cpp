// Keys and locks: a key that is taken opens its share of the locks of its colour, and the last key of a
// colour all that are left. Which ones, chance picks in play and the record in a replay.
#include "core/Rules.h"

namespace zorik {
namespace {

struct Opened {
  std::uint16_t code;
  std::uint8_t state;
};

// What the lock of a key turns into.
Opened OpenedBy(std::uint16_t key) {
  if (key == kKeyRed) return {kBoulder, kResting};
  if (key == kKeyGreen) return {kBox, kRounded};
  return {kSpace, kFlat};
}

// The locks in the order of the scan, column by column.
struct Locks {
  std::array<Cell, kMaxWidth * kMaxHeight> cells;
  std::array<bool, kMaxWidth * kMaxHeight> used{};
  int count = 0;
};

void Open(Hra& hra, Cell c, Opened opened) {
  hra.SetObject(c, opened.code, opened.state);
  ++hra.LocksOpened;
  PREKR(hra, c);
}

// This choice does not go into the record as a draw, only its outcome does.
std::size_t PickUnused(Hra& hra, const Locks& locks) {
  for (;;) {
    const std::size_t i = hra.Luck.Below(static_cast<std::uint32_t>(locks.count));
    if (!locks.used[i]) return i;
  }
}

void OpenByChance(Hra& hra, Locks& locks, int share, Opened opened) {
  for (int i = 0; i < share; ++i) {
    const std::size_t picked = PickUnused(hra, locks);
    locks.used[picked] = true;
    const Cell c = locks.cells[picked];
    Open(hra, c, opened);
    PseudoNahoda(hra, c.x());
    PseudoNahoda(hra, c.y());
  }
  if (share > 0) return;
  PseudoNahoda(hra, 0);
  PseudoNahoda(hra, 0);
}

// With nothing to open one pair stands in the record and is passed over.
void OpenByRecord(Hra& hra, std::uint16_t lock, int share, Opened opened) {
  const bool any = share > 0;
  do {
    const int x = Nahoda(hra, hra.CaveWidth) - 1;
    const int y = Nahoda(hra, hra.CaveHeight) - 1;
    const auto c = CellAt(x, y);
    if (!any || !c || hra.Field(*c) != lock) continue;
    Open(hra, *c, opened);
    --share;
  } while (share > 0 && !hra.RanDry);
}

void OpenLocks(Hra& hra, std::uint16_t key) {
  const std::uint16_t lock = LockOf(key);
  Locks locks;
  int keys = 0;
  ForEachCellByColumn(hra, [&](Cell c) {
    if (hra.Field(c) == key) ++keys;
    if (hra.Field(c) == lock) locks.cells[static_cast<std::size_t>(locks.count++)] = c;
  });
  const int share = keys > 0 ? locks.count / keys : 0;
  if (hra.ReplayPlaying()) {
    OpenByRecord(hra, lock, share, OpenedBy(key));
  } else {
    OpenByChance(hra, locks, share, OpenedBy(key));
  }
}

}  // namespace

void SpapanZamek(Hra& hra, Cell c) {
  const std::uint16_t code = hra.Field(c);
  if (code == kCatKey || IsKey(code)) ++hra.KeysTaken;
  if (code == kCatKey) KockaEvent(hra, 'I');
  if (IsKey(code)) OpenLocks(hra, code);
}

}  // namespace zorik
