#pragma once

#include <algorithm>
#include <array>

#include "core/Objects.h"

namespace zorik {

// How many tiles the editor's palette has.
inline constexpr std::size_t kToolCount = [] {
  std::size_t count = 0;
  for (const ObjectRow& object : kObjects) {
    for (const Form& form : object.forms) count += form.palette >= 0 ? 1 : 0;
  }
  return count;
}();

// Their palette numbers, ascending; not every number has a tile.
inline constexpr auto kTools = [] {
  std::array<int, kToolCount> tools{};
  std::size_t place = 0;
  for (const ObjectRow& object : kObjects) {
    for (const Form& form : object.forms) {
      if (form.palette >= 0) tools[place++] = form.palette;
    }
  }
  std::sort(tools.begin(), tools.end());
  return tools;
}();
inline constexpr int kPaletteEnd = kTools.back() + 1;
inline constexpr int kDogTool = kObjects[kDog].forms[0].palette;
inline constexpr int kDogs = 9;

// The letters of empty space and of the amoeba.
inline constexpr char kEmpty = '.';
inline constexpr char kAmoebaLetter = 'A';

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
