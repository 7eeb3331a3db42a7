#pragma once

#include <optional>
#include <string>

#include "run/Ghost.h"

namespace zorik {

class CavePainter;
struct Overlay;

// The ghost in the game window: it is made when the player wants to see it first, and laid over the picture.
class GhostView {
 public:
  // The record of the run that has just been started is to go beside it; no bytes: none.
  void SetRecord(std::string bytes);

  // Where the ghost is by now, if it is wanted and the run is one that has it.
  Overlay Beside(const Hra& run, bool wanted, CavePainter& painter);

 private:
  Ghost* Wanted(const Hra& run);

  std::string record_;  // until a ghost has been made of it
  std::optional<Ghost> ghost_;
};

}  // namespace zorik
