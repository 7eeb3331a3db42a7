#include "screens/WhatKilled.h"

#include <utility>

namespace zorik {
namespace {

constexpr std::uint64_t kPiece = 500;  // ticks
constexpr int kMostPieces = 800;

}  // namespace

WhatKilled::WhatKilled() {
  next_.callOnTimeout([this] { Look(); });
}

void WhatKilled::Ask(const Timeline& run) {
  rescue_ = std::make_unique<Rescue>(run);
  pieces_ = 0;
  next_.start(0);
}

void WhatKilled::Forget() {
  next_.stop();
  rescue_.reset();
}

void WhatKilled::Look() {
  if (!rescue_->Go(kPiece) && ++pieces_ < kMostPieces) return;
  const std::optional<Escape> found = rescue_->Found();
  Forget();
  if (found) {
    emit Found(found->tick);
  } else {
    emit NotFound();
  }
}

}  // namespace zorik
