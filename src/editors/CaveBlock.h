// A rectangle of letters that was taken out of a cave, and what can be done to it by itself.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "data/Result.h"

namespace zorik {

// Knows nothing of the cave that it comes from, so it can be put into any other.
struct CaveBlock {
  int width = 0;
  int height = 0;
  std::string letters;  // row by row

  bool IsEmpty() const { return letters.empty(); }
  char At(int x, int y) const { return letters[static_cast<std::size_t>(y * width + x)]; }
  bool operator==(const CaveBlock&) const = default;
};

enum class CaveTurn {
  MirrorAside,    // left and right change places
  MirrorUpright,  // top and bottom do
  Right,          // by a quarter, with the clock
  Left,
};

// What a letter becomes when its cave is mirrored or turned: fireflies and butterflies head elsewhere, walls
// that grow aside grow upright after a quarter turn and the other way round, all else stays. What is made of
// several cells, like teleports and splitters, goes by where these stand then.
char Turned(char letter, CaveTurn turn);

// The same with a block. A quarter turn exchanges its sides.
CaveBlock Turned(const CaveBlock& block, CaveTurn turn);

// A block as text for the clipboard: the entry of the cells in a readable cave file, UTF-8.
std::string WriteBlock(const CaveBlock& block);

// Why a text gives no block.
enum class BlockFault {
  NoCells,  // there is nothing that could be rows
  Letter,   // a character that stands for no object
  Uneven,   // a row that is not as long as the first
  TooLarge,
  Form,  // it begins like a readable cave and is none
};
struct BlockFailure : Failure {
  BlockFault fault = BlockFault::NoCells;
  int line = 0;  // of the text, from 1; 0 when it is about no single one
};

// The block of a text: of a whole readable cave its cells, of what WriteBlock gives the same block, else of
// rows as they stand in readable files ("| W1.W") or bare ("W1.W"). Bare rows may only hold letters of
// objects, so that no other text is taken for a cave.
Result<CaveBlock, BlockFailure> ReadBlock(std::string_view text);

}  // namespace zorik
