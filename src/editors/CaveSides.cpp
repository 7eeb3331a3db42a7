#include "editors/CaveSides.h"

#include <cstddef>
#include <cstdint>

#include "editors/CaveModel.h"

namespace zorik {
namespace {

// What lies at a place of the matrix; nothing was ever set beyond it.
char LetterAt(const CaveRecord& cave, int x, int y) {
  if (x < 0 || y < 0 || x >= CaveRecord::kColumns || y >= CaveRecord::kRows) return '\0';
  return cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
}

// The cave with another size, in which each cell has the letter of the cell that these two name for it.
template <class FromX, class FromY>
CaveRecord Rearranged(const CaveRecord& cave, int width, int height, FromX fromX, FromY fromY) {
  CaveRecord changed = cave;
  changed.Width = static_cast<std::uint8_t>(width);
  changed.Height = static_cast<std::uint8_t>(height);
  for (int x = 0; x < CaveRecord::kColumns; ++x) {
    auto& column = changed.Cells[static_cast<std::size_t>(x)];
    for (int y = 0; y < CaveRecord::kRows; ++y) {
      column[static_cast<std::size_t>(y)] = LetterAt(cave, fromX(x), fromY(y));
    }
  }
  FillUnset(changed);
  return changed;
}

int Same(int place) {
  return place;
}

// The place before a new row or column came in; that itself was nowhere.
auto BeforeInserting(int at) {
  return [at](int place) { return place == at ? -1 : place < at ? place : place - 1; };
}

auto BeforeDeleting(int at) {
  return [at](int place) { return place < at ? place : place + 1; };
}

bool SideFits(int side, int before, int behind, int most) {
  const std::int64_t now = std::int64_t{side} + before + behind;
  return before >= -CaveRecord::kColumns && before <= CaveRecord::kColumns && now >= CaveModel::kLeastSide &&
         now <= most;
}

}  // namespace

bool CanResize(const CaveRecord& cave, const CaveSides& sides) {
  return SideFits(cave.Width, sides.left, sides.right, CaveModel::kMostWidth) &&
         SideFits(cave.Height, sides.top, sides.bottom, CaveModel::kMostHeight);
}

CaveRecord Resized(const CaveRecord& cave, const CaveSides& sides) {
  if (!CanResize(cave, sides)) return cave;
  return Rearranged(
      cave, cave.Width + sides.left + sides.right, cave.Height + sides.top + sides.bottom,
      [&](int x) { return x - sides.left; }, [&](int y) { return y - sides.top; });
}

CaveRecord WithRow(const CaveRecord& cave, int y) {
  return Rearranged(cave, cave.Width, cave.Height + 1, Same, BeforeInserting(y));
}

CaveRecord WithColumn(const CaveRecord& cave, int x) {
  return Rearranged(cave, cave.Width + 1, cave.Height, BeforeInserting(x), Same);
}

CaveRecord WithoutRow(const CaveRecord& cave, int y) {
  return Rearranged(cave, cave.Width, cave.Height - 1, Same, BeforeDeleting(y));
}

CaveRecord WithoutColumn(const CaveRecord& cave, int x) {
  return Rearranged(cave, cave.Width - 1, cave.Height, BeforeDeleting(x), Same);
}

void FillUnset(CaveRecord& cave) {
  for (std::size_t x = 0; x < cave.Width; ++x) {
    for (std::size_t y = 0; y < cave.Height; ++y) {
      if (cave.Cells[x][y] == '\0') cave.Cells[x][y] = '.';
    }
  }
}

}  // namespace zorik
