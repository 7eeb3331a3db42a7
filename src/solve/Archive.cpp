#include "solve/Archive.h"

#include <algorithm>

namespace zorik {

bool Archive::Wants(std::uint64_t key, int length) const {
  const auto place = known_.find(key);
  return place == known_.end() || (*this)[place->second].length > length;
}

// The node stays as an ancestor, but is not returned to.
void Archive::Drop(std::int32_t number) {
  Node& node = (*this)[number];
  std::erase(shelves_[node.shelf].nodes, number);
  bytes_ -= Snapshots::SizeOf(node.snapshot);
  node.snapshot = {};
}

std::size_t Archive::ShelfFor(std::uint64_t situation, int level) {
  const bool single = temper_.grain == Grain::None;
  std::size_t& shelf = single ? levels_.try_emplace(level, shelves_.size()).first->second
                              : situations_.try_emplace(situation, shelves_.size()).first->second;
  if (shelf == shelves_.size()) {
    shelves_.push_back({{}, level, 0});
    if (!single) due_.push({WorthOf(shelves_[shelf]), static_cast<std::uint32_t>(situation), shelf});
  } else if (level > shelves_[shelf].level) {
    shelves_[shelf].level = level;
    due_.push({WorthOf(shelves_[shelf]), static_cast<std::uint32_t>(situation), shelf});
  }
  return shelf;
}

std::int32_t Archive::Add(std::uint64_t key, std::uint64_t situation, Node node) {
  const auto number = static_cast<std::int32_t>(nodes_.size());
  const auto [place, fresh] = known_.try_emplace(key, number);
  if (!fresh) {
    Drop(place->second);
    place->second = number;
  }
  node.shelf = ShelfFor(situation, node.level);
  bytes_ += sizeof(Node) + Snapshots::SizeOf(node.snapshot) + node.moves.size();
  shelves_[node.shelf].nodes.push_back(number);
  nodes_.push_back(std::move(node));
  return number;
}

std::size_t Archive::PickLevel(Chance& chance) const {
  auto row = levels_.begin();
  if (chance.Below(5) == 0) {
    for (std::uint32_t skip = chance.Below(static_cast<std::uint32_t>(levels_.size())); skip > 0; --skip)
      ++row;
  } else {
    while (std::next(row) != levels_.end() && chance.Below(temper_.greed) != 0) ++row;
  }
  return row->second;
}

// What no longer holds of the places in the queue is passed over.
std::size_t Archive::PickSituation(Chance& chance) {
  for (;;) {
    const Place place = due_.top();
    due_.pop();
    Shelf& shelf = shelves_[place.shelf];
    if (place.worth != WorthOf(shelf)) continue;
    ++shelf.visits;
    due_.push({WorthOf(shelf), chance.Below(1U << 30U), place.shelf});
    return place.shelf;
  }
}

std::int32_t Archive::Pick(Chance& chance) {
  const std::size_t shelf = temper_.grain == Grain::None ? PickLevel(chance) : PickSituation(chance);
  const std::vector<std::int32_t>& row = shelves_[shelf].nodes;
  std::int32_t best = -1;
  for (int i = 0; i < 3; ++i) {
    const std::int32_t candidate = row[chance.Below(static_cast<std::uint32_t>(row.size()))];
    const auto worth = [this](std::int32_t number) {
      const Node& n = (*this)[number];
      return n.promise - n.visits - n.length * temper_.haste / limit_;
    };
    if (best < 0 || worth(candidate) > worth(best)) best = candidate;
  }
  return best;
}

Plan Archive::PlanTo(std::int32_t number) const {
  std::vector<const Plan*> parts;
  for (; number >= 0; number = (*this)[number].parent) parts.push_back(&(*this)[number].moves);
  Plan plan;
  for (auto part = parts.rbegin(); part != parts.rend(); ++part)
    plan.insert(plan.end(), (*part)->begin(), (*part)->end());
  return plan;
}

std::int32_t Archive::Best() const {
  std::int32_t best = -1;
  for (const Shelf& shelf : shelves_) {
    for (const std::int32_t number : shelf.nodes) {
      const Node &node = (*this)[number], &other = (*this)[std::max(best, 0)];
      const bool better = node.level != other.level ? node.level > other.level : node.length < other.length;
      if (best < 0 || better) best = number;
    }
  }
  return best;
}

}  // namespace zorik
