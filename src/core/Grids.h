#pragma once

#include <array>
#include <cstdint>

#include "core/Cell.h"
#include "core/Objects.h"

namespace zorik {

// What the scans, the counts and the contacts have to know of a code.
namespace trait {
inline constexpr std::uint8_t kActs = 1;         // may do something in the object scan, whatever its state
inline constexpr std::uint8_t kFollowsMark = 2;  // does so by its heading, once a tick
inline constexpr std::uint8_t kSettles = 4;      // has something to end in the closing scan
inline constexpr std::uint8_t kCounted = 8;      // Count() knows how many there are
inline constexpr std::uint8_t kDeadly = 16;      // monsters die beside it
inline constexpr std::uint8_t kStirring = 32;    // sensors notice its repainting, whatever its state
inline constexpr std::uint8_t kGlitters = 64;    // repainted in every tick
}  // namespace trait

// The cells at which the scans must look, 64 of a row together, the leftmost in the lowest bit. Apart from
// moved they are plain functions of the cells' own values.
struct DueCells {
  std::uint64_t moved = 0;     // have taken part in a change in this tick
  std::uint64_t acting = 0;    // move by themselves, or could fall
  std::uint64_t settling = 0;  // live or have a heading to end
  std::uint64_t burning = 0;   // explosions, and sensors
  std::uint64_t amoeba = 0;
};

// The grids. Only the setters write them, since they keep the flags for the scans and the counts. They write
// one value each, or an object with its state or heading: some of the many odd things of this game are cells
// whose code changes while their state stays.
class Grids {
 public:
  std::uint16_t Field(Cell c) const { return static_cast<std::uint16_t>(cells_[c.place()]); }
  std::uint8_t FieldState(Cell c) const { return static_cast<std::uint8_t>(cells_[c.place()] >> kStateBit); }
  std::uint8_t FieldMark(Cell c) const { return static_cast<std::uint8_t>(cells_[c.place()] >> kMarkBit); }
  bool FieldMoved(Cell c) const { return (Due(c.place()).moved & Bit(c)) != 0; }  // see DueCells

  void SetField(Cell c, std::uint16_t code) { Set(c, (cells_[c.place()] & ~kCodeBits) | code); }
  void SetFieldState(Cell c, std::uint8_t state) { SetObject(c, Field(c), state); }
  void SetFieldMark(Cell c, std::uint8_t mark) { SetMonster(c, Field(c), mark); }
  void SetObject(Cell c, std::uint16_t code, std::uint8_t state) {
    Set(c, (cells_[c.place()] & (kByte << kMarkBit)) | code | Content{state} << kStateBit);
  }
  // A monster that comes, goes or turns: its heading is its mark.
  void SetMonster(Cell c, std::uint16_t code, std::uint8_t heading) {
    Set(c, (cells_[c.place()] & (kByte << kStateBit)) | code | Content{heading} << kMarkBit);
  }
  void SetFieldMoved(Cell c, bool moved) {
    std::uint64_t& word = due_[c.place() / kTogether].moved;
    word = moved ? word | Bit(c) : word & ~Bit(c);
  }

  // How many cells hold an explosion, a sensor, a gem, a key, the cat key, a finish, amoeba; 0 for all
  // others.
  int Count(std::uint16_t code) const { return count_[code % kCodes]; }

  // What is told of a code by trait.
  static std::uint8_t Traits(std::uint16_t code) { return kTraits[code % kCodes]; }

  static constexpr std::size_t kTogether = 64;
  const DueCells& Due(std::size_t place) const { return due_[place / kTogether]; }

  // The cells of a column that glitter, from the top: bit 0 is y = Cell::kMinY.
  std::uint64_t Glitter(int x) const { return glitter_[static_cast<std::size_t>(x - Cell::kMinX)]; }

 private:
  // A cell: 16 bits of code, then 8 of state, then 8 of mark.
  using Content = std::uint32_t;
  static constexpr Content kByte = 0xFF;
  static constexpr Content kCodeBits = 0xFFFF;
  static constexpr int kStateBit = 16, kMarkBit = 24;

  // The two codes above the table, 65534 and 65535, fall on 30 and 31.
  static constexpr std::size_t kCodes = 32;
  static const std::array<std::uint8_t, kCodes> kTraits;
  static const std::array<std::uint8_t, kCodes * 8> kFlags;  // by code, state and whether the mark is above 4

  static std::uint64_t Bit(Cell c) { return std::uint64_t{1} << (c.place() % kTogether); }
  static std::uint8_t FlagsOf(Content content) {
    const std::size_t highMark = (content >> kMarkBit) > 4 ? 4 * kCodes : 0;
    return kFlags[content % kCodes + (content >> kStateBit) % 4 * kCodes + highMark];
  }
  static void Put(std::uint64_t& word, std::uint64_t bit, bool in) {
    word = (word & ~bit) | (bit & (std::uint64_t{0} - std::uint64_t{in}));
  }
  void Set(Cell c, Content content) {
    const Content old = cells_[c.place()];
    cells_[c.place()] = content;
    const std::uint8_t flags = FlagsOf(content);
    DueCells& due = due_[c.place() / kTogether];
    Put(due.acting, Bit(c), (flags & kActing) != 0);
    Put(due.settling, Bit(c), (flags & kSettling) != 0);
    if (((kTraits[old % kCodes] | kTraits[content % kCodes]) & trait::kCounted) != 0) Recount(c, old);
  }
  void Recount(Cell c, Content old);

  static constexpr std::uint8_t kActing = 1, kSettling = 2;

  std::array<Content, Cell::kPlaces> cells_{};
  std::array<DueCells, Cell::kPlaces / kTogether> due_{};
  std::array<std::uint64_t, Cell::kMaxX - Cell::kMinX + 1> glitter_{};
  std::array<int, kCodes> count_{};
};

}  // namespace zorik
