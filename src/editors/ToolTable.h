#pragma once

#include "core/Objects.h"

namespace zorik {

// The editor's palette: numbers 0 to 34, one of which has no tile.
inline constexpr int kPaletteEnd = 35;
inline constexpr int kPaletteGap = 29;
inline constexpr int kDogTool = 4;
inline constexpr int kDogs = 9;

// Which mouse button a tool belongs to.
enum class ToolButton { Left, Right, Middle };
inline constexpr int kToolButtons = 3;

// The object of a palette number; nullptr for numbers without a tile. All dogs share one.
const ObjectLetter* ObjectOfTool(int palette);

// The letter that a tool draws; the dog's is the number of the current dog, 1 to 9. Only for numbers that
// have a tile.
char LetterOfTool(int palette, int dog);

// The palette number of a letter, -1 for letters without a tile.
int ToolOfLetter(char letter);

// What Val makes of a cell: its digit, 0 for all else.
int ValueOf(char letter);

}  // namespace zorik
