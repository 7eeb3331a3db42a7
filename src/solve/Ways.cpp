#include "solve/Ways.h"

#include <algorithm>

#include "core/Machine.h"
#include "core/Patterns.h"

namespace zorik {
namespace {

constexpr std::array<Step, 4> kSteps{kLeft, kUp, kRight, kDown};
constexpr int kPushedBox = 3;      // what a push costs, in steps
constexpr int kSwappedBox = 7;     // it changes places at one try of four
constexpr int kPushedBoulder = 6;  // it moves at one try of four

}  // namespace

bool CanEnter(const Hra& run, Cell c) {
  return IsOpenFinish(run, c) || !BlocksDog(run, c);
}

int Ways::Price(const Hra& run, Cell to, Step step) const {
  if (CanEnter(run, to)) return 1;
  const bool free = run.Field(to + step) == kSpace;
  if (run.Field(to) == kBox) return free ? kPushedBox : kSwappedBox;
  if (!free) return kNever;
  const bool boulder = run.Field(to) == kBoulder && run.FieldState(to) == kResting && step.dy == 0;
  return boulder ? kPushedBoulder : kNever;
}

void Ways::Offer(Cell c, int cost, std::uint8_t direction) {
  if (cost >= cost_[c.place()]) return;
  cost_[c.place()] = cost;
  by_[c.place()] = direction;
  due_[static_cast<std::size_t>(cost) % kBuckets].push_back(c);
}

void Ways::Find(const Hra& run, Cell from, std::uint32_t roughness, Chance& chance) {
  cost_.fill(kNever);
  for (auto& bucket : due_) bucket.clear();
  reached_.clear();
  from_ = from;
  Offer(from, 0, 0);
  int empty = 0;
  for (int cost = 0; empty < static_cast<int>(kBuckets); ++cost) {
    std::vector<Cell>& bucket = due_[static_cast<std::size_t>(cost) % kBuckets];
    empty = bucket.empty() ? empty + 1 : 0;
    while (!bucket.empty()) {
      const Cell c = bucket.back();
      bucket.pop_back();
      if (cost_[c.place()] != cost) continue;
      reached_.push_back(c);
      for (std::uint8_t direction = 0; direction < 4; ++direction) {
        const Step step = kSteps[direction];
        const int price = Price(run, c + step, step);
        if (price >= kNever) continue;
        Offer(c + step, cost + price + (roughness > 0 ? static_cast<int>(chance.Below(roughness + 1)) : 0),
              direction);
      }
    }
  }
}

std::vector<std::uint8_t> Ways::To(Cell c) const {
  std::vector<std::uint8_t> way;
  while (c != from_) {
    way.push_back(by_[c.place()]);
    c = c - kSteps[by_[c.place()]];
  }
  std::reverse(way.begin(), way.end());
  return way;
}

}  // namespace zorik
