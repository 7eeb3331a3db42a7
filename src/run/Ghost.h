#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hra.h"

namespace zorik {

// A run that was won once, beside the one that is played: it starts, goes on and starts afresh with that one,
// on a machine of its own, and nobody but who asks for it hears of it. The run that is played is only looked
// at.
class Ghost {
 public:
  // A living unit, or one of the fleas, in its cell; number is 0 for a flea.
  struct Place {
    Cell cell;
    int number = 0;
  };

  // The ghost of a record, given as the bytes of its file. Nothing when it is no record of this cave, whose
  // text may have a marker or none, or does not win.
  static std::optional<Ghost> Of(const std::string& bytes, std::string_view caveText);

  // Brings it to the tick that the run is at. It stays where it has won.
  void Follow(const RunFacts& run);

  // What is to be seen of it; nothing where the same unit of the run, or a flea of it, is as well.
  std::vector<Place> Beside(const RunState& run) const;

  // 1 as long as it runs; when it has won, less and less, 0 in the end.
  double Strength() const;

  // Its run.
  const Hra& Run() const { return *run_; }

  // Tells a stage, which lives longer, of all that happens in it.
  void Watch(Stage& stage) { run_->SetStage(stage); }

 private:
  explicit Ghost(std::unique_ptr<Hra> run) : run_(std::move(run)) {}

  std::unique_ptr<Hra> run_;  // a replay
  int followed_ = 0;          // the tick of the run that is played
};

}  // namespace zorik
