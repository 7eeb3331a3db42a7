#pragma once

#include <string>
#include <string_view>

#include "data/Chance.h"

namespace zorik {

// Turns each byte into three capital letters, so that nobody reads a cave by opening its file. The letters
// differ at every call; only plain texts may be compared.
std::string ScrambleText(std::string_view text, Chance& decoration);

// The way back. Never fails: odd input gives odd text.
std::string UnscrambleText(std::string_view text);

// Whether a text may have come from scrambling: whole groups of capital letters, each of them a byte.
bool IsScrambled(std::string_view text);

}  // namespace zorik
