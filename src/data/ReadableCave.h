#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/ResultFwd.h"

namespace zorik {

// A cave's line of a collection (cave text and marker) as a readable file and back. The number is the cave's
// among the collection's caves, from 1; a marker that says the same, and only such, is left out.

// The readable file of a line; nothing if its fields would not give the same line again.
std::optional<std::string> WriteReadableCave(std::string_view line, int number);

// The line of a readable file.
Result<std::string> ReadReadableCave(std::string_view fileName, std::string_view content, int number);

}  // namespace zorik
