#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "data/Result.h"
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

// Why there are no frames.
struct NoFrames {
  Exit exit;
  std::string message;
};

// Opens what a file holds: a trace begins with the line of a cave, everything else counts as a record.
// On failure the pointer is empty and the reason is filled in.
std::unique_ptr<Frames> OpenFrames(const std::string& path, NoFrames& reason);

}  // namespace zorik
