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
  void Remove(Cell c) { words_[c.place() / kTogether] &= ~Bit(c); }
  void Put(Cell c, bool in) {
    std::uint64_t& word = words_[c.place() / kTogether];
    word = (word & ~Bit(c)) | std::uint64_t{in} << (c.place() % kTogether);
  }
  void Toggle(Cell c) { words_[c.place() / kTogether] ^= Bit(c); }
  void AddFrom(std::size_t place, std::uint64_t cells) { words_[place / kTogether] |= cells; }
  void RemoveFrom(std::size_t place, std::uint64_t cells) { words_[place / kTogether] &= ~cells; }

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
  // neither changes a count, so they write less than the other setters.
  void Vacate(Cell c) {
    Content& cell = cells_[c.place()];
    cell = (cell & (kByte << kStateBit)) | kVacated;
    acting_.Remove(c);
    stepped_.Add(c);
    assert(FlagsAgree(c));
  }
  void Enter(Cell c, std::uint16_t code, std::uint8_t heading) {
    Content& cell = cells_[c.place()];
    if (cell >> kMarkBit > kHighestHeading) settling_.Remove(c);
    cell = (cell & (kByte << kStateBit)) | code | Content{heading} << kMarkBit;
    taken_.Add(c);
    stepped_.Add(c);
    assert(FlagsAgree(c));
  }
  // What the end of the tick leaves of a step, in one cell and in these of the cells from place on, a
  // multiple of CellSet::kTogether: the heading holds again, and what was vacated is space.
  void EndStep(Cell c) {
    assert(stepped_.Has(c));
    Write(c, Ended(cells_[c.place()]));
  }
  void EndSteps(std::size_t place, std::uint64_t cells);
  // A mark above the highest heading, and what the end of the tick makes of it.
  static std::uint8_t EndedMark(std::uint8_t mark) { return kEndedMarks[mark]; }
  // Lets the object of a cell fall into a free one. Both cells keep their marks.
  void LetFall(Cell from, Cell to) {
    assert(Field(to) == kSpace);
    const std::uint16_t code = Field(from);
    Write(to, (cells_[to.place()] & (kByte << kMarkBit)) | code | Content{kFalling} << kStateBit);
    Write(from, cells_[from.place()] & (kByte << kMarkBit));
    if ((Traits(code) & trait::kCounted) != 0) CarryOver(from, to);
  }
  void SetFieldMoved(Cell c, bool moved) { moved_.Put(c, moved); }
  // Of the cells from place on, a multiple of CellSet::kTogether, none of these has moved.
  void ClearMoved(std::size_t place, std::uint64_t cells) { moved_.RemoveFrom(place, cells); }

  // How many cells hold an explosion, a sensor, a gem, a key, the cat key, a finish, amoeba, a dog, the cat;
  // 0 for all others.
  int Count(std::uint16_t code) const { return count_[code % kCodes]; }

  // What the table tells of a code by trait; nothing of the codes that are no objects.
  static std::uint16_t Traits(std::uint16_t code) { return kTraits[code % kCodes]; }

  // The cells at which the scans must look. Apart from the moved ones, which take part in nothing more in
  // this tick, they are plain functions of the cells' own values.
  const CellSet& Moved() const { return moved_; }
  const CellSet& Taken() const { return taken_; }        // all but space
  const CellSet& Falling() const { return falling_; }    // whatever it is
  const CellSet& Resting() const { return resting_; }    // fall or roll when they can
  const CellSet& Acting() const { return acting_; }      // have something else to do in the object scan
  const CellSet& Stepped() const { return stepped_; }    // have followed their heading, or were left by that
  const CellSet& Settling() const { return settling_; }  // all else that has something to end, but amoeba
  const CellSet& Burning() const { return burning_; }    // explosions, and sensors
  const CellSet& Amoeba() const { return amoeba_; }
  const CellSet& Deadly() const { return deadly_; }  // dogs, the cat, amoeba
  const CellSet& Finishes() const { return finishes_; }

  // The cells of a column that glitter, from the top: bit 0 is y = Cell::kMinY.
  std::uint64_t Glitter(int x) const { return glitter_[static_cast<std::size_t>(x - Cell::kMinX)]; }

  // Whether all that is kept of a cell is what a look at it tells.
  bool KeptRight(Cell c) const;

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
  static const std::array<std::uint8_t, 256> kEndedMarks;

  // Without a branch, since monsters and what they left stand mixed, and no processor could guess it.
  static Content Ended(Content content) {
    const Content code = content & kCodeBits;
    return code * (code != kVacated) | (content & (kByte << kStateBit)) |
           Content{kEndedMarks[content >> kMarkBit]} << kMarkBit;
  }

  static std::uint8_t FlagsOf(Content content) {
    const std::size_t highMark = (content >> kMarkBit) > kHighestHeading ? 4 * kCodes : 0;
    return kFlags[content % kCodes + (content >> kStateBit) % 4 * kCodes + highMark];
  }
  void Set(Cell c, Content content) {
    const Content old = cells_[c.place()];
    Write(c, content);
    if (((kTraits[old % kCodes] | kTraits[content % kCodes]) & trait::kCounted) != 0) Recount(c, old);
  }
  // What changes no count.
  void Write(Cell c, Content content) {
    const int changed = FlagsOf(cells_[c.place()]) ^ FlagsOf(content);
    cells_[c.place()] = content;
    if ((changed & kTaken) != 0) taken_.Toggle(c);
    if ((changed & kFalls) != 0) falling_.Toggle(c);
    if ((changed & kRests) != 0) resting_.Toggle(c);
    if ((changed & kActs) != 0) acting_.Toggle(c);
    if ((changed & kStepped) != 0) stepped_.Toggle(c);
    if ((changed & kSettles) != 0) settling_.Toggle(c);
  }
  void Recount(Cell c, Content old);
  void CarryOver(Cell from, Cell to);
  void PutGlitter(Cell c, bool in) {
    std::uint64_t& column = glitter_[static_cast<std::size_t>(c.x() - Cell::kMinX)];
    const int row = c.y() - Cell::kMinY;
    column = (column & ~(std::uint64_t{1} << row)) | std::uint64_t{in} << row;
  }
  bool FlagsAgree(Cell c) const {
    const int flags = (taken_.Has(c) ? kTaken : 0) | (falling_.Has(c) ? kFalls : 0) |
                      (resting_.Has(c) ? kRests : 0) | (acting_.Has(c) ? kActs : 0) |
                      (stepped_.Has(c) ? kStepped : 0) | (settling_.Has(c) ? kSettles : 0);
    return flags == FlagsOf(cells_[c.place()]);
  }

  static constexpr std::uint8_t kTaken = 1, kFalls = 2, kRests = 4, kActs = 8, kStepped = 16, kSettles = 32;

  std::array<Content, Cell::kPlaces> cells_{};
  CellSet moved_, taken_, falling_, resting_, acting_, stepped_, settling_;
  CellSet burning_, amoeba_, deadly_, finishes_;
  std::array<std::uint64_t, Cell::kMaxX - Cell::kMinX + 1> glitter_{};
  std::array<int, kCodes> count_{};
};

}  // namespace zorik
