#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "solve/Move.h"
#include "solve/Snapshot.h"

namespace zorik {

// What somebody who looks over a whole run wants to find again.
enum class RunEventKind { Gem, Key, Lock, Explosion, UnitChanged, UnitLost, FinishOpen, Win };

// One of them, with the number of ticks after which it is seen. A kind comes at most once in a tick.
struct RunEvent {
  int tick = 0;
  RunEventKind kind = RunEventKind::Gem;

  bool operator==(const RunEvent&) const = default;
};

// The states of one run by its ticks, of which 0 is its start: kept for some of them, made again from there
// for all others. It follows a run in practice or a replay, also one that is taken over on the way; and one
// in play whose stage has no seeds to give.
class Timeline {
 public:
  // begin: the run at its start, or wherever the timeline is to begin. It is copied.
  explicit Timeline(const Hra& begin);

  // The run has gone one tick on with these keys, from the last tick that is known. One that was restarted
  // has not: it begins a timeline of its own.
  void Add(const Hra& run, const KeySnapshot& keys);

  // Ticks that are known.
  int Length() const { return length_; }

  // The run at a tick, held to 0 to Length(), with nobody who watches. Of a replay that was taken over it is
  // still the replay up to that tick.
  std::unique_ptr<Hra> At(int tick) const;

  // Brings the run, or another that began like it, to a tick, held to 0 to Length(). Its stage stays and is
  // told nothing. A run in practice stays in practice.
  void MoveTo(Hra& run, int tick) const;

  // What was done between two ticks, as far as moves can say it.
  Plan Moves(int from, int to) const;

  // Forgets what lies behind a tick: the run goes on from there.
  void Cut(int tick);

  const std::vector<RunEvent>& Events() const { return events_; }

  // Memory that it takes, about.
  std::size_t Bytes() const;

 private:
  struct Moment {
    int tick = 0;
    Snapshots::Snapshot state;
    RunKind kind = RunKind::Play;
    RecordLines rest;         // of the replay
    std::size_t written = 0;  // of the record of a run in play
  };
  struct Held {
    int from = 0;  // ticks before
    KeySnapshot keys;
  };
  // What events are found by.
  struct Marks {
    int gems = 0, keys = 0, locks = 0, explosions = 0, unit = 0, living = 0;
    bool open = false, won = false;
  };

  static Marks MarksOf(const Hra& run);
  void Note(const Marks& now);
  void Keep(const Hra& run);
  void KeepFewer();
  const KeySnapshot& KeysAfter(int tick) const;
  void GoOn(Hra& run, int from, int to) const;

  std::shared_ptr<const Hra> begin_;
  std::shared_ptr<const Snapshots> snapshots_;
  std::vector<Moment> moments_;
  int distance_;            // ticks from one moment to the next
  std::vector<Held> held_;  // each until the next
  std::string written_;     // the record of a run in play, up to the last moment
  std::optional<int> takenOver_;
  int length_ = 0;
  Marks marks_;  // at the end
  std::vector<RunEvent> events_;
};

// A replay, given at its start, to its end at once: until it wins, the record is over or begins anew; at most
// so many ticks, since a record may go on for ever.
Timeline WholeReplay(const Hra& replayAtStart, int mostTicks = 50'000);

// A replay becomes a run in practice at the moment it is at.
void TakeOver(Hra& run);

}  // namespace zorik
