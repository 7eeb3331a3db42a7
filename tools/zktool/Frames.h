#pragma once

#include <memory>
#include <optional>
#include <string>

#include "zktool/Console.h"

namespace zorik {

// A run as its trace tells it, line by line, from a record or from a saved trace.
class Frames {
 public:
  virtual ~Frames() = default;

  // The first line, about the cave.
  virtual std::string CaveLine() const = 0;
  // The line of the next tick, in the end that of the end, then nothing.
  virtual std::optional<std::string> Next() = 0;
  // The rows of cells of the tick that Next has just told, a line each; empty if they are not known.
  virtual std::string Grid() = 0;
  // Grid costs nothing.
  virtual bool HoldsGrids() const { return false; }
};

// Opens what a file holds: a trace begins with the line of a cave, everything else counts as a record.
Needed<std::unique_ptr<Frames>> OpenFrames(const std::string& path);

}  // namespace zorik
