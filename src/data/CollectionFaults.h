#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zorik {

// What an editor has to tell of a collection's file before it writes it anew: everything that the editor's
// reader passes over or has to guess.
enum class CollectionFault {
  UnreadableCave,    // its marker is whole, the cave is not
  Marker,            // two characters behind "---" that are no number
  NoCave,            // a line among the caves that is none
  TooMany,           // a cave beyond the last that a collection can hold
  Letters,           // a line that no scrambling gives, so characters in it are others than were meant
  CutLine,           // the last line has no end
  NoCongratulation,  // the last line is a cave
  NoCaves,           // there is nothing to be edited; the line plays no part
};

struct FaultyLine {
  CollectionFault fault = CollectionFault::NoCaves;
  std::size_t line = 0;  // from 1

  bool operator==(const FaultyLine&) const = default;
};

// The faults of a file whose first three lines can be read, line by line; one line may have several. A file
// as the game writes it has none.
std::vector<FaultyLine> FaultsOfCollection(std::string_view bytes);

// Whether an editor can do something with a cave text. An empty one parses, but there is no cave in it.
bool IsReadableCave(std::string_view text);

}  // namespace zorik
