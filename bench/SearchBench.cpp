// What a tick of the search for wins costs, in plain ticks of the same cave: with all that the search does
// besides, choosing, keeping moments and coming back to them.
#include <memory>
#include <random>
#include <string>

#include "bench/InTurn.h"
#include "core/Hra.h"
#include "data/CaveO.h"
#include "data/Result.h"
#include "solve/Search.h"

namespace zorik {
namespace {

constexpr std::uint64_t kTicks = 4000;  // in a turn

// As large as a cave of the main collection, and never won.
std::string MeadowCave() {
  CaveRecord cave;
  cave.Time = 1900;
  cave.GemsNeeded = 1900;
  cave.Colouring = 4;
  cave.Width = 40;
  cave.Height = 24;
  std::mt19937 random(3);
  const std::string letters = ";;;;;;;;.RD;;;;X;;;RD;;F";
  for (std::size_t x = 0; x < cave.Width; ++x) {
    for (std::size_t y = 0; y < cave.Height; ++y) {
      const bool edge = x == 0 || y == 0 || x + 1 == cave.Width || y + 1 == cave.Height;
      cave.Cells[x][y] = edge ? 'W' : letters[random() % letters.size()];
    }
  }
  cave.Cells[1][1] = '1';
  return *BuildCaveText(cave);
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
