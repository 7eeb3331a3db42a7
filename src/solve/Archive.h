#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <queue>
#include <unordered_map>
#include <vector>

#include "data/Chance.h"
#include "solve/Move.h"
#include "solve/Snapshot.h"
#include "solve/Worth.h"

namespace zorik {

// How a search chooses where to go on.
struct Temper {
  int haste = 0;  // how much a long way counts against a moment, 0 not at all
  std::uint32_t greed =
      3;  // at each step down from the best moments it stays with a chance of one in so many
  // With a grain it returns evenly to all situations that it tells apart, and to one of a higher level so
  // many times more for each level.
  Grain grain = Grain::None;
  int lean = 0;
};

// The moments of runs to which a search can return.
class Archive {
 public:
  struct Node {
    Snapshots::Snapshot snapshot;
    std::int32_t parent = -1;
    Plan moves;  // from the parent
    std::size_t shelf = 0;
    int level = 0;
    int length = 0;  // ticks from the start
    int visits = 0;
    int promise = 4;    // gems that can be walked to, up to 8, once they have been counted
    int turnings = -1;  // as they were when it was last clear that this is not lost
  };

  // limit: ticks of the longest way.
  Archive(Temper temper, int limit) : temper_(temper), limit_(limit) {}

  // Whether a moment with this key and so many ticks from the start is new, or comes earlier than the one
  // that is there.
  bool Wants(std::uint64_t key, int length) const;

  // Keeps a moment that it wants; its number. What has the same key has the same situation and level.
  std::int32_t Add(std::uint64_t key, std::uint64_t situation, Node node);

  // The number of the one to go on from; there is at least one.
  std::int32_t Pick(Chance& chance);

  Node& operator[](std::int32_t number) { return nodes_[static_cast<std::size_t>(number)]; }
  const Node& operator[](std::int32_t number) const { return nodes_[static_cast<std::size_t>(number)]; }
  std::size_t Bytes() const { return bytes_; }  // about

  // What leads from the start to a moment.
  Plan PlanTo(std::int32_t number) const;

  // The best moment, the earliest of several.
  std::int32_t Best() const;

 private:
  // Moments that belong together.
  struct Shelf {
    std::vector<std::int32_t> nodes;
    int level = 0;  // the highest of them
    int visits = 0;
  };
  struct Place {
    int worth = 0;
    std::uint32_t lot = 0;
    std::size_t shelf = 0;
    auto operator<=>(const Place&) const = default;
  };

  int WorthOf(const Shelf& shelf) const { return shelf.level * temper_.lean - shelf.visits; }
  std::size_t ShelfFor(std::uint64_t situation, int level);
  std::size_t PickLevel(Chance& chance) const;
  std::size_t PickSituation(Chance& chance);
  void Drop(std::int32_t number);

  Temper temper_;
  int limit_;
  std::vector<Node> nodes_;
  std::vector<Shelf> shelves_;
  std::unordered_map<std::uint64_t, std::int32_t> known_;
  std::unordered_map<std::uint64_t, std::size_t> situations_;
  std::map<int, std::size_t, std::greater<>> levels_;
  std::priority_queue<Place> due_;
  std::size_t bytes_ = 0;
};

}  // namespace zorik
