#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/Hra.h"

namespace zorik {

// What a record is worth, the worst first. Of those that are true the first is given.
enum class Verdict {
  Unreadable,    // the file cannot be read
  BadCave,       // it holds no cave that can be played
  RanDry,        // a tick asked for chance that its line does not hold: the record is damaged
  NotWon,        // it is over, or an empty line restarts it, before the run is won
  ScoreDiffers,  // it is won with another score than the record says
  Won,
};
inline constexpr std::size_t kVerdicts = 6;

// The fixed word of a verdict: "unreadable", "bad-cave" and so on.
std::string_view WordOf(Verdict verdict);

struct Judgement {
  Verdict verdict = Verdict::Unreadable;
  int score = 0;        // of the win, 0 if there is none
  int stored = 0;       // the score that the record names
  int ticks = 0;        // that were played
  std::string message;  // the reason, of the first two verdicts
};

// Replays the bytes of a record to their end. The game may be used again and again.
Judgement Judge(Hra& hra, std::string bytes);

}  // namespace zorik
