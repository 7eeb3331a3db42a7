#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "core/Keys.h"

namespace zorik {

// What a player can do in one tick: nothing, a step, acting at arm's length, choosing a unit.
using Move = std::uint8_t;
inline constexpr Move kWait = 0;
inline constexpr Move kStepBase = 1;    // + 0 left, 1 up, 2 right, 3 down
inline constexpr Move kActBase = 5;     // likewise
inline constexpr Move kChooseBase = 9;  // + the number of the unit

// What is done tick by tick from the start of a run.
using Plan = std::vector<Move>;

// Cells that no dog of a search may enter or act on; null for none.
using Avoided = std::shared_ptr<const CellSet>;

// Whether the move leads the steered dog into one of them.
bool Trespasses(const Hra& run, Move move, const Avoided& avoided);

// The keys that a player holds for it.
KeySnapshot KeysOf(Move move);

// The plan as the text that `zktool run --keys` reads, a line for each tick.
std::string KeyText(const Plan& plan);

}  // namespace zorik
