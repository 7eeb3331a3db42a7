#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "data/ResultFwd.h"

namespace zorik {

// Something that a player did in a tick of a run, and that had an effect or was a try at pushing.
struct Deed {
  int tick = 0;       // from 0
  int unit = 1;       // the steered one
  int direction = 0;  // 0 left, 1 up, 2 right, 3 down
  bool action = false;
  bool moved = false;       // the unit changed its cell
  bool changed = false;     // what it stepped to or acted on did
  Cell from, target;        // where it stood, and what it stepped to or acted on
  std::uint16_t found = 0;  // what was there
  // A monster below what the deed let fall: where it was, with its heading.
  std::optional<Cell> prey;
  std::uint16_t preyKind = 0;
  std::uint8_t preyMark = 0;
};

// What a run that wins tells of its cave.
struct Review {
  int ticks = 0;
  int idleTicks = 0;    // without a deed
  int idleStretch = 0;  // the longest row of them, in ticks
  int idleFrom = 0;     // its first tick
  int decisions = 0;
  int closeCalls = 0;         // times that letting go of the keys would have killed within a second
  int margin = 0;             // ticks: in the closest of them; kNoDanger where there was none
  std::vector<bool> touched;  // by the cells' places
  std::uint64_t used = 0;     // a bit for each place of kThings
  std::vector<Deed> deeds;

  static constexpr int kNoDanger = 11;
};

// What an author puts into a cave to be used, with its word; many are a code of their own.
struct Thing {
  std::string_view word;
  std::string_view letters;
};
inline constexpr std::array<Thing, 24> kThings{{{"boulder", "R"},
                                                {"gem", "D"},
                                                {"dogs", "23456789"},
                                                {"brick", "X"},
                                                {"magic wall", "M"},
                                                {"firefly", "FOPQ"},
                                                {"butterfly", "UYZB"},
                                                {"fly", "L"},
                                                {"dragonfly", ":"},
                                                {"amoeba", "A"},
                                                {"box", "K"},
                                                {"bomb", "I"},
                                                {"wall that grows aside", "E"},
                                                {"wall that grows upright", "V"},
                                                {"splitter", ""},
                                                {"slime", "S"},
                                                {"teleport", ""},
                                                {"key", "!@#"},
                                                {"lock", "%^&"},
                                                {"biomass", "C"},
                                                {"fleas", "N"},
                                                {"sensor", "G"},
                                                {"cat", "J"},
                                                {"cat key", "$"}}};
inline constexpr std::size_t kSplitterThing = 14, kTeleportThing = 16;

// Which of kThings stand in a cave, a bit for each. run: at its start.
std::uint64_t ThingsIn(const Hra& run);

// Plays a record and looks on. Fails where it holds no cave that can be played, or does not win.
Result<Review> ReviewRecord(const std::string& bytes);

}  // namespace zorik
