#pragma once

#include <optional>
#include <string>
#include <vector>

#include "run/Ghost.h"
#include "view/CellPictures.h"
#include "view/Motion.h"

namespace zorik {

class CavePainter;
struct Overlay;
struct Settings;

// The ghost in the game window: it is made when the player wants to see it first, and laid over the picture.
class GhostView {
 public:
  // What is wanted is known by the settings, which live longer.
  explicit GhostView(const Settings& settings) : settings_(settings) {}

  // The record of the run that has just been started is to go beside it; no bytes: none.
  void SetRecord(std::string bytes);

  // Whether the last tick of the run has left anything of it to be drawn on its way.
  bool Moves(const Hra& run, CavePainter& painter);

  // Where it is by now, if it is wanted and the run is one that has it: so far, from 0 to 1, on the way to
  // where the tick has led it.
  Overlay Beside(const Hra& run, CavePainter& painter, double way);

 private:
  // Notes what moves in the ghost's run.
  class Steps final : public Stage {
   public:
    void Moved(Cell from, Cell to) override { motion_.Add(from, to, kDog); }
    void Clear() { motion_.Clear(); }
    Cell Start(Cell end) const;

   private:
    Motion motion_;
  };
  struct Seen {
    Cell from, to;
    CellPicture picture;
  };

  static constexpr int kNever = -1;

  Ghost* Wanted(const Hra& run);
  const Ghost* Brought(const Hra& run, CavePainter& painter);

  const Settings& settings_;
  std::string record_;  // until a ghost has been made of it
  Steps steps_;
  std::optional<Ghost> ghost_;
  int at_ = kNever;         // the tick of the run that it was brought to
  std::vector<Seen> seen_;  // of it in that tick
};

}  // namespace zorik
