// What it costs to ask whether a proof of 2,000 ticks still wins in an 80 x 50 cave that was changed, and to
// read the proof, which is done once.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "bench/Framed.h"
#include "data/Result.h"
#include "run/ProofRun.h"
#include "solve/Win.h"

namespace zorik {
namespace {

constexpr int kTicks = 2'000;
constexpr int kLastStep = 78;  // to the finish

// Quiet: dirt and boulders. Busy: a sixth of all cells moves by itself. The dog has a corridor of its own.
CaveRecord LargeCave(bool busy) {
  CaveRecord cave = FramedCave(80, 50, 4, busy ? "......RDFUL:FUL:....RD;;X" : ";;;;;;;.RD;;X");
  cave.AmoebaTime = 190;
  cave.GemsNeeded = 1;
  for (std::size_t x = 1; x + 1 < cave.Width; ++x) {
    if (x > 1) cave.Cells[x][1] = ';';
    cave.Cells[x][2] = 'W';
  }
  cave.Cells[5][1] = 'D';
  cave.Cells[79][1] = 'T';
  return cave;
}

// There and back, again and again, and at last to the finish.
Plan LongWalk() {
  Plan plan;
  while (plan.size() + kLastStep < kTicks) plan.push_back(kStepBase + (plan.size() % 2 == 0 ? 2 : 0));
  for (int step = 0; step < kLastStep; ++step) plan.push_back(kStepBase + 2);
  return plan;
}

std::string LongRecord(bool busy) {
  return RecordOfPlan({*BuildCaveText(LargeCave(busy)), "bench"}, LongWalk());
}

void JudgeProof(benchmark::State& state) {
  const bool busy = state.range(0) != 0;
  const auto proof = Proof::Read(LongRecord(busy));
  if (!proof) return state.SkipWithError("no proof");
  CaveRecord cave = LargeCave(busy);
  // A monster more, so that chance is asked otherwise; or a boulder.
  cave.Cells[40][25] = state.range(1) != 0 ? 'L' : 'R';
  const std::string text = *BuildCaveText(cave);
  ProofVerdict verdict;
  for (auto _ : state) {
    ProofRun run(*proof, text);
    while (!run.Go(100)) continue;
    verdict = run.Verdict();
  }
  if (!verdict.wins || verdict.ticks != kTicks) return state.SkipWithError("it does not win");
  state.counters["ticks"] = verdict.ticks;
  state.counters["ticks_of_other_chance"] = verdict.otherChance;
}
BENCHMARK(JudgeProof)
    ->ArgNames({"busy", "more_chance"})
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

void ReadProof(benchmark::State& state) {
  const std::string record = LongRecord(state.range(0) != 0);
  for (auto _ : state) benchmark::DoNotOptimize(Proof::Read(record));
}
BENCHMARK(ReadProof)->ArgName("busy")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zorik
