#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/Result.h"
#include "support/GameState.h"
#include "support/RandomCave.h"

namespace zorik::test {

// The states of a run after each of its ticks.
using Trace = std::vector<std::string>;

inline Hra Begin(const RandomRun& run, RunKind kind = RunKind::Play) {
  Hra hra(run.seed);
  hra.PlayerName = "hrac";
  EXPECT_TRUE(PaintCave(hra, run.caveText, kind)) << run.seed;
  return hra;
}

inline Hra BeginReplay(const std::string& record) {
  Hra hra(99);
  EXPECT_TRUE(Replay(hra, record));
  return hra;
}

// Plays a record to its end.
inline Trace RunReplay(Hra& hra) {
  Trace trace;
  for (;;) {
    const TickEnd end = Tick(hra, {});
    if (end == TickEnd::RecordOver || end == TickEnd::Restarted) return trace;
    trace.push_back(GameState(hra));
    if (end == TickEnd::Won) return trace;
  }
}

// Calls check(run) for so many of the random runs, until one fails.
template <class Check>
void ForRuns(int many, Check check) {
  for (int i = 0; i < many && !testing::Test::HasFailure(); ++i) {
    const RandomRun run = MakeRun(static_cast<std::uint64_t>(i));
    SCOPED_TRACE("random run " + std::to_string(i));
    check(run);
  }
}

template <class Check>
void ForEachRun(int usual, Check check) {
  ForRuns(HowMany(usual), check);
}

}  // namespace zorik::test
