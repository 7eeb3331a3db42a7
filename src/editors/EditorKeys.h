#pragma once

#include <array>

#include "editors/FrmShortcuts.h"

namespace zorik {

// The keys of the editors that no item of a menu has, for the sheet of shortcuts.

// In the picture of the cave and in the palette.
inline constexpr std::array kDrawingKeys = std::to_array<KeysRow>({
    {"caption.keys.draw.arrows"},
    {"caption.keys.draw.space"},
    {"caption.keys.draw.mouse"},
    {"caption.keys.draw.zoom"},
    {"caption.keys.draw.way"},
    {"caption.keys.draw.tab"},
});

// In the list of caves.
inline constexpr std::array kCaveListKeys = std::to_array<KeysRow>({
    {"caption.keys.caves.edit"},
    {"caption.keys.caves.mark"},
    {"caption.keys.caves.clip"},
    {"caption.keys.caves.delete"},
    {"caption.keys.caves.find"},
});

// In the two lists of the cat's program.
inline constexpr std::array kCatKeys = std::to_array<KeysRow>({
    {"caption.keys.cat.insert"},
    {"caption.keys.cat.delete"},
});

// That bring the help and this sheet, wherever they are wanted.
inline constexpr const char* kHelpKey = "F1";
inline constexpr const char* kSheetKeys = "Ctrl+?";

}  // namespace zorik
