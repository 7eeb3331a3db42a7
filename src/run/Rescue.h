#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

#include "run/Timeline.h"
#include "solve/Move.h"
#include "solve/Snapshot.h"

namespace zorik {

// How a run would have gone on.
struct Escape {
  int tick = 0;  // the moment at which it could still be done
  Plan moves;    // from there on
};

// What killed me: of a run whose last unit has died, the last tick before which other keys would have kept it
// alive for two seconds longer than it was. It tries all that a player can do in the next ticks, as far as it
// can look: that it finds nothing does not mean that there was nothing.
class Rescue {
 public:
  // back: how many ticks before the death it looks at.
  explicit Rescue(Timeline timeline, int back = 100);

  // Goes on for about so many ticks. True when it has come to its end.
  bool Go(std::uint64_t ticks);

  // Nothing where nobody has died, too.
  const std::optional<Escape>& Found() const { return found_; }

 private:
  struct Branch {
    Snapshots::Snapshot state;
    Plan moves;  // from the moment on
  };

  void BeginOneTickEarlier();
  void GoOneTickOn();
  void Follow(const Branch& branch, Move move, std::vector<Branch>& next);
  void Narrow(std::vector<Branch>& branches) const;
  bool IsNew(const Snapshots::Snapshot& state);
  std::unique_ptr<Hra> At(int tick) const;

  Timeline timeline_;
  int death_ = 0;   // the tick in which it was seen
  int moment_ = 0;  // from which it is tried
  int first_ = 0;
  std::unique_ptr<Hra> run_;
  std::unique_ptr<Snapshots> snapshots_;
  std::vector<Branch> branches_;
  std::unordered_set<std::uint64_t> seen_;
  std::uint64_t ticks_ = 0;
  bool over_ = false;
  std::optional<Escape> found_;
};

}  // namespace zorik
