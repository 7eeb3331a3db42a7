#include "screens/LossFinder.h"

#include <QElapsedTimer>
#include <memory>
#include <utility>

namespace zorik {
namespace {

constexpr std::uint64_t kSlice = 5'000;  // ticks between two looks at the clock

}  // namespace

void LossFinder::Forget() {
  background_.Drop();
  found_.reset();
}

void LossFinder::Ask(const Timeline& run) {
  Forget();
  const auto found = std::make_shared<Loss>();
  background_.Start([run, found, longest = longest_, inAll = longestInAll_](
                        const std::atomic<bool>& dropped) { *found = Look(run, longest, inAll, dropped); },
                    [this, found] {
                      found_ = std::move(*found);
                      emit Answered();
                    });
}

Loss LossFinder::Look(const Timeline& run, int longest, int longestInAll, const std::atomic<bool>& dropped) {
  QElapsedTimer all;
  QElapsedTimer one;
  all.start();
  one.start();
  Hindsight hindsight(run);
  hindsight.Heed([&] { return dropped || one.elapsed() >= longest; });
  while (!dropped && all.elapsed() < longestInAll) {
    const int asked = hindsight.Asked();
    if (hindsight.Go(kSlice)) break;
    if (asked != hindsight.Asked()) {
      one.restart();
    } else if (one.elapsed() >= longest) {
      hindsight.GiveUp();
      one.restart();
    }
  }
  return {hindsight.KnownUntil(), hindsight.NoneFrom(), hindsight.Way()};
}

}  // namespace zorik
