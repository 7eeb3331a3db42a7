#pragma once

#include <array>
#include <cassert>
#include <cstdint>

#include "core/Cell.h"
#include "core/Objects.h"

namespace zorik {

// Cells by 64 of a row together, the leftmost in the lowest bit.
class CellSet {
 public:
  static constexpr std::size_t kTogether = 64;

  // The cells from place on, a multiple of kTogether.
  std::uint64_t From(std::size_t place) const { return words_[place / kTogether]; }
  bool Has(Cell c) const { return (From(c.place()) & Bit(c)) != 0; }
  void Add(Cell c) { words_[c.place() / kTogether] |= Bit(c); }
  void Put(Cell c, bool in) {
    std::uint64_t& word = words_[c.place() / kTogether];
    word = (word & ~Bit(c)) | std::uint64_t{in} << (c.place() % kTogether);
  }

 private:
  static std::uint64_t Bit(Cell c) { return std::uint64_t{1} << (c.place() % kTogether); }

  std::array<std::uint64_t, Cell::kPlaces / kTogether> words_{};
};

// The grids. Only the setters write them, since they keep the flags for the scans and the counts. They write
// one value each, or an object with its state or heading: some of the many odd things of this game are cells
// whose code changes while their state stays.
class Grids {
 public:
  std::uint16_t Field(Cell c) const { return static_cast<std::uint16_t>(cells_[c.place()]); }
  std::uint8_t FieldState(Cell c) const { return static_cast<std::uint8_t>(cells_[c.place()] >> kStateBit); }
  std::uint8_t FieldMark(Cell c) const { return static_cast<std::uint8_t>(cells_[c.place()] >> kMarkBit); }
  bool FieldMoved(Cell c) const { return moved_.Has(c); }  // has taken part in a change in this tick

  void SetField(Cell c, std::uint16_t code) { Set(c, (cells_[c.place()] & ~kCodeBits) | code); }
  void SetFieldState(Cell c, std::uint8_t state) {
    Write(c, (cells_[c.place()] & ~(kByte << kStateBit)) | Content{state} << kStateBit);
  }
  void SetFieldMark(Cell c, std::uint8_t mark) {
    Write(c, (cells_[c.place()] & ~(kByte << kMarkBit)) | Content{mark} << kMarkBit);
  }
  void SetObject(Cell c, std::uint16_t code, std::uint8_t state) {
    Set(c, (cells_[c.place()] & (kByte << kMarkBit)) | code | Content{state} << kStateBit);
  }
  // A monster's step, in this order. The cell that it leaves is closed until the tick's end. It enters a free
  // cell, or the one that it has left to turn there, with ten times its heading. There are many of them, and
  // neither changes a count, so both write less than the other setters.
  void Vacate(Cell c) {
    Content& cell = cells_[c.place()];
    cell = (cell & (kByte << kStateBit)) | kVacated;
    acting_.Put(c, (cell >> kStateBit) >= kResting);
    assert(FlagsAgree(c));
  }
  void Enter(Cell c, std::uint16_t code, std::uint8_t heading) {
    Content& cell = cells_[c.place()];
    cell = (cell & (kByte << kStateBit)) | code | Content{heading} << kMarkBit;
    settling_.Add(c);
    assert(FlagsAgree(c));
  }
  // What the end of the tick leaves of it: the same code and its heading, or space where it was.
  void EndStep(Cell c, std::uint16_t code, std::uint8_t mark) {
    assert(code == Field(c) || Field(c) == kVacated);
    Write(c, (cells_[c.place()] & (kByte << kStateBit)) | code | Content{mark} << kMarkBit);
  }
  void SetFieldMoved(Cell c, bool moved) { moved_.Put(c, moved); }

  // How many cells hold an explosion, a sensor, a gem, a key, the cat key, a finish, amoeba; 0 for all
  // others.
  int Count(std::uint16_t code) const { return count_[code % kCodes]; }

  // What the table tells of a code by trait; nothing of the codes that are no objects.
  static std::uint16_t Traits(std::uint16_t code) { return kTraits[code % kCodes]; }

  // The cells at which the scans must look. Apart from the moved ones, which take part in nothing more in
  // this tick, they are plain functions of the cells' own values.
  const CellSet& Moved() const { return moved_; }
  const CellSet& Acting() const { return acting_; }      // move by themselves, or could fall
  const CellSet& Settling() const { return settling_; }  // live or have a heading to end
  const CellSet& Burning() const { return burning_; }    // explosions, and sensors
  const CellSet& Amoeba() const { return amoeba_; }

  // The cells of a column that glitter, from the top: bit 0 is y = Cell::kMinY.
  std::uint64_t Glitter(int x) const { return glitter_[static_cast<std::size_t>(x - Cell::kMinX)]; }

 private:
  // A cell: 16 bits of code, then 8 of state, then 8 of mark.
  using Content = std::uint32_t;
  static constexpr Content kByte = 0xFF;
  static constexpr Content kCodeBits = 0xFFFF;
  static constexpr int kStateBit = 16, kMarkBit = 24;

  static constexpr std::array<std::uint16_t, kCodes> kTraits = [] {
    std::array<std::uint16_t, kCodes> traits{};
    for (const ObjectRow& object : kObjects) traits[object.code] = object.traits;
    return traits;
  }();
  static const std::array<std::uint8_t, kCodes * 8> kFlags;  // by code, state and whether the mark is above 4

  static std::uint8_t FlagsOf(Content content) {
    const std::size_t highMark = (content >> kMarkBit) > 4 ? 4 * kCodes : 0;
    return kFlags[content % kCodes + (content >> kStateBit) % 4 * kCodes + highMark];
  }
  void Set(Cell c, Content content) {
    const Content old = cells_[c.place()];
    Write(c, content);
    if (((kTraits[old % kCodes] | kTraits[content % kCodes]) & trait::kCounted) != 0) Recount(c, old);
  }
  // What changes no count.
  void Write(Cell c, Content content) {
    cells_[c.place()] = content;
    const std::uint8_t flags = FlagsOf(content);
    acting_.Put(c, (flags & kActing) != 0);
    settling_.Put(c, (flags & kSettling) != 0);
  }
  void Recount(Cell c, Content old);
  bool FlagsAgree(Cell c) const {
    const int flags = (acting_.Has(c) ? kActing : 0) | (settling_.Has(c) ? kSettling : 0);
    return flags == FlagsOf(cells_[c.place()]);
  }

  static constexpr std::uint8_t kActing = 1, kSettling = 2;

  std::array<Content, Cell::kPlaces> cells_{};
  CellSet moved_, acting_, settling_, burning_, amoeba_;
  std::array<std::uint64_t, Cell::kMaxX - Cell::kMinX + 1> glitter_{};
  std::array<int, kCodes> count_{};
};

}  // namespace zorik
