#pragma once

#include <memory>
#include <vector>

#include "core/Hra.h"
#include "run/Outlook.h"

namespace zorik {

class CavePainter;
struct Overlay;

// A way that wins, laid over the picture of the run: the next steps as a trail that fades with each step that
// is done, or all of it with a ghost that goes it, again and again.
class WayHint {
 public:
  // How many steps are shown of a way.
  static constexpr int kSteps = 10;

  // The way begins where the run is now.
  void Show(const Hra& run, const Plan& way);
  void Clear();

  // The run has gone on: what it has done of the way, or has left behind, is not shown any more.
  void WentOn(const Hra& run);

  // All of the way, with the ghost, or its next steps again.
  void ShowWhole(bool whole);

  // The ghost goes one tick on.
  void GhostGoesOn();

  bool Shown() const { return !steps_.empty(); }
  bool Whole() const { return ghost_ != nullptr; }
  const std::vector<Footstep>& Steps() const { return steps_; }
  // The ghost's run, while there is one.
  const Hra* GhostRun() const { return ghost_.get(); }

  void LayOver(Overlay& overlay, CavePainter& painter) const;

 private:
  void LayTrail(Overlay& overlay) const;
  void BeginGhost();

  std::unique_ptr<Hra> begin_;  // the run where the way begins
  Plan way_;
  std::vector<Footstep> steps_;
  std::unique_ptr<Hra> ghost_;
  int rest_ = 0;  // ticks for which the ghost stands at the end of its way
};

}  // namespace zorik
