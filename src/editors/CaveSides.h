#pragma once

#include "data/CaveO.h"

namespace zorik {

// How many cells a cave is to gain at each side, or to lose where the number is negative.
struct CaveSides {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool operator==(const CaveSides&) const = default;
};

// Whether the editor can hold the cave with these sides.
bool CanResize(const CaveRecord& cave, const CaveSides& sides);

// The cave with these sides, if it can be held: what stays in it keeps its place to each other, and new cells
// are empty. What is cut off on the right or below waits outside and comes back when the cave grows there;
// what is cut off on the left or above is gone.
CaveRecord Resized(const CaveRecord& cave, const CaveSides& sides);

// A cave with an empty row before row y (column before column x), or without that row (column). What waits
// outside moves along.
CaveRecord WithRow(const CaveRecord& cave, int y);
CaveRecord WithColumn(const CaveRecord& cave, int x);
CaveRecord WithoutRow(const CaveRecord& cave, int y);
CaveRecord WithoutColumn(const CaveRecord& cave, int x);

// Makes the cells of the cave empty that never had a letter.
void FillUnset(CaveRecord& cave);

}  // namespace zorik
