#include "run/Comparison.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "data/CaveO.h"
#include "data/Result.h"

namespace zorik {
namespace {

Result<std::unique_ptr<Hra>> BeginReplay(const std::string& record) {
  auto run = std::make_unique<Hra>();
  if (const Result<Done> started = Replay(*run, record); !started) return Failure{started.Message()};
  return run;
}

// Without the marker that a cave has in a collection.
std::string_view BareText(const Hra& run) {
  const std::string_view text = run.CaveText;
  return EndsWithMarker(text) ? WithoutMarker(text) : text;
}

RunTotals TotalsOf(const Timeline& timeline) {
  const auto end = timeline.At(timeline.Length());
  RunTotals totals{timeline.Length(), end->GemsCollected, 0, end->Win.has_value(), {}};
  if (end->Win) totals.score = end->Win->Score;
  for (const RunEvent& event : timeline.Events()) {
    if (event.kind == RunEventKind::Gem) totals.gemTicks.push_back(event.tick);
  }
  return totals;
}

// a, b: at their starts.
void FindDifference(Hra& a, Hra& b, Comparison& found) {
  const int shorter = std::min(found.a.Length(), found.b.Length());
  for (int tick = 1; tick <= shorter; ++tick) {
    Tick(a, {});
    Tick(b, {});
    found.parting = PartingOf(a, b);
    if (!found.parting) continue;
    found.firstDifference = tick;
    return;
  }
  if (found.Length() > shorter) found.firstDifference = shorter + 1;
}

}  // namespace

int Comparison::Length() const {
  return std::max(a.Length(), b.Length());
}

Result<Comparison> Compare(const std::string& recordA, const std::string& recordB) {
  const auto a = BeginReplay(recordA);
  if (!a) return Failure{a.Message()};
  const auto b = BeginReplay(recordB);
  if (!b) return Failure{b.Message()};
  if (BareText(**a) != BareText(**b)) return Failure{"the records are of different caves"};
  Comparison found{WholeReplay(**a), WholeReplay(**b), std::nullopt, std::nullopt, {}, {}};
  found.totalsOfA = TotalsOf(found.a);
  found.totalsOfB = TotalsOf(found.b);
  FindDifference(**a, **b, found);
  return found;
}

}  // namespace zorik
