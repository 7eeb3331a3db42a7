#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Hra.h"

namespace zorik {

// Two values that differ, and what they are of: a counter by its name, or a cell as "3,4".
struct Parting {
  std::string what;
  std::string a;
  std::string b;
};

// The first counter that differs in two lines of ticks; nothing where they are the same.
std::optional<Parting> PartingOfLines(std::string_view a, std::string_view b);

// The first cell that differs in the rows of two caves; nothing if one of them is not known.
std::optional<Parting> PartingOfGrids(std::string_view a, std::string_view b);

// The first counter, or else the first cell, in which two moments differ.
std::optional<Parting> PartingOf(const Hra& a, const Hra& b);

}  // namespace zorik
