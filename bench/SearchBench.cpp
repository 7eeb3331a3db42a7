// What a tick of the search for wins costs, in plain ticks of the same cave: with all that the search does
// besides, choosing, keeping moments and coming back to them.
#include <memory>
#include <string>

#include "bench/Framed.h"
#include "bench/InTurn.h"
#include "core/Hra.h"
#include "data/Result.h"
#include "solve/Search.h"

namespace zorik {
namespace {

constexpr std::uint64_t kTicks = 4000;  // in a turn

// As large as a cave of the main collection, and never won.
std::string MeadowCave() {
  return *BuildCaveText(FramedCave(40, 24, 3, ";;;;;;;;.RD;;;;X;;;RD;;F"));
}

void SearchInTicks(benchmark::State& state) {
  const auto begin = std::make_unique<Hra>(1);
  if (!PaintCave(*begin, MeadowCave(), RunKind::Play)) return state.SkipWithError("no cave");
  const auto plain = std::make_unique<Hra>(*begin);
  InTurn turns;
  for (auto _ : state) {
    *plain = *begin;
    const auto search = std::make_unique<Search>(*begin, 1, Temper{});
    turns.Measure(
        1, [&] { search->Go(kTicks); },
        [&] {
          for (std::uint64_t i = 0; i < kTicks; ++i) {
            plain->RecordText.clear();
            Tick(*plain, {});
          }
        });
  }
  turns.Report(state, "search", "plain");
}
BENCHMARK(SearchInTicks);

}  // namespace
}  // namespace zorik
