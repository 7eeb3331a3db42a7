#pragma once

#include "screens/Practice.h"
#include "screens/Theatre.h"

namespace zorik {

// How the game window lets its run go on: by the control that belongs to the kind of the run.
class RunControls {
 public:
  // All live longer. The window has all its parts by now.
  RunControls(HraWindow& window, Skin& skin, const Settings& settings);

  // A run has been started; again: it was on before.
  void Starts(bool again);

  // Begins practice at a tick of the record that has just been started, or where a run in practice is; either
  // waits for a key.
  void TryFrom(int tick);

  RunControl& Now();
  Theatre& Record() { return theatre_; }
  Practice& Training() { return practice_; }

 private:
  void TakeOver();

  HraWindow& window_;
  RunControl plain_;
  Theatre theatre_;
  Practice practice_;
};

}  // namespace zorik
