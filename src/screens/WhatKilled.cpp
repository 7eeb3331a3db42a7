#include "screens/WhatKilled.h"

#include <memory>

namespace zorik {
namespace {

constexpr std::uint64_t kPiece = 500;  // ticks
constexpr int kMostPieces = 800;

}  // namespace

void WhatKilled::Ask(const Timeline& run) {
  const auto rescue = std::make_shared<Rescue>(run);
  background_.Start([rescue](const std::atomic<bool>& dropped) { Look(*rescue, dropped); },
                    [this, rescue] { Take(*rescue); });
}

void WhatKilled::Look(Rescue& rescue, const std::atomic<bool>& dropped) {
  for (int piece = 0; piece < kMostPieces && !dropped && !rescue.Go(kPiece); ++piece) continue;
}

void WhatKilled::Take(const Rescue& rescue) {
  if (const std::optional<Escape> found = rescue.Found()) {
    emit Found(found->tick);
  } else {
    emit NotFound();
  }
}

}  // namespace zorik
