#pragma once

#include <string>
#include <string_view>

namespace zorik {

// The longest name of a player that can be typed.
inline constexpr int kLongestPlayerName = 60;

// A text (Windows-1250) without the characters that no player's name may hold: those that mean something in
// file names or records, and control characters.
std::string StripNameChars(std::string_view text);

// The name that a player gets for what was typed (UTF-8), in Windows-1250; empty when nothing of it can be a
// name. Letters that Windows-1250 lacks, blanks around it and dots in front of it, which would hide the
// player's folder, are dropped.
std::string PlayerName(std::string_view typed);

// Whether a folder of this name can be that of a player: all of it is in Windows-1250, or it is no UTF-8.
bool IsPlayerFolder(std::string_view folder);

// The name, in Windows-1250, of the player whose folder has this name: UTF-8, or as an old archive left it.
std::string PlayerOfFolder(std::string_view folder);

}  // namespace zorik
