#include "solve/Win.h"

#include "data/Result.h"
#include "solve/Shorten.h"
#include "solve/Solver.h"

namespace zorik {
namespace {

constexpr std::uint64_t kSlice = 200;  // ticks between two questions whether it is enough

}  // namespace

Result<std::unique_ptr<Hra>> BeginRun(const RunTerms& terms) {
  auto run = std::make_unique<Hra>(terms.seed);
  run->PlayerName = terms.player;
  run->CollectionName = terms.collection;
  if (const Result<Done> started = PaintCave(*run, terms.caveText, RunKind::Play); !started)
    return Failure{started.Message()};
  return run;
}

std::string RecordOfPlan(const RunTerms& terms, const Plan& plan) {
  const auto run = BeginRun(terms);
  if (!run) return {};
  for (const Move move : plan) Tick(**run, KeysOf(move));
  return (*run)->Win ? SaveRecord(**run, (*run)->Win->Score) : std::string();
}

Plan MakeShort(const Hra& begin, Plan plan, std::uint64_t seed, std::size_t mostBytes,
               const std::function<bool()>& enough, const Avoided& avoided) {
  plan = Shorten(begin, std::move(plan), enough, avoided);
  const auto solver = std::make_unique<Solver>(begin, seed, mostBytes, avoided);
  while (!enough()) {
    solver->SetBound(static_cast<int>(plan.size()));
    while (!enough() && !solver->Go(kSlice)) continue;
    if (solver->Found()) plan = Shorten(begin, *solver->Found(), enough, avoided);
  }
  return plan;
}

}  // namespace zorik
