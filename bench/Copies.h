#pragma once

#include <QImage>
#include <cstring>

#include "bench/InTurn.h"

namespace zorik {

// What painting an image costs, in plain copies of it.
template <class Paint>
void MeasureInCopies(benchmark::State& state, const QImage& drawn, Paint&& paint) {
  constexpr int kTurns = 10;
  paint();  // what is kept scaled is scaled now
  QImage copy(drawn.size(), drawn.format());
  copy.fill(Qt::black);
  InTurn turns;
  for (auto _ : state) {
    turns.Measure(kTurns, paint, [&] {
      std::memcpy(copy.bits(), drawn.constBits(), static_cast<std::size_t>(drawn.sizeInBytes()));
    });
  }
  state.counters["width"] = drawn.width();
  state.counters["height"] = drawn.height();
  turns.Report(state, "picture", "copy");
}

}  // namespace zorik
