#pragma once

#include <array>
#include <cstdint>

#include "core/Cell.h"
#include "core/Objects.h"

namespace zorik {

// Rows of the cave in which something may be due. A scan passes a sleeping row by: nothing in it can act
// before something in it or right beside it changes, and each change wakes the rows around it.
class Rows {
 public:
  void Wake(Cell cell) { awake_ |= std::uint64_t{1} << cell.row(); }
  void WakeAround(Cell cell) { awake_ |= (std::uint64_t{7} << cell.row()) >> 1; }
  void WakeAll() { awake_ = ~std::uint64_t{0}; }
  bool Awake(Cell cell) const { return ((awake_ >> cell.row()) & 1) != 0; }
  void Sleep(Cell cell) { awake_ &= ~(std::uint64_t{1} << cell.row()); }

 private:
  std::uint64_t awake_ = ~std::uint64_t{0};
};

// The grids. Only the setters write them, since a write wakes the rows that it concerns and keeps the
// counts. They write one value each: some of the many odd things of this game are cells whose code changes
// while their state stays.
class Grids {
 public:
  std::uint16_t Field(Cell c) const { return field_[Place(c)]; }
  std::uint8_t FieldState(Cell c) const { return state_[Place(c)]; }
  std::uint8_t FieldMark(Cell c) const { return mark_[Place(c)]; }
  bool FieldMoved(Cell c) const { return moved_[Place(c)]; }  // has taken part in a change in this tick

  void SetField(Cell c, std::uint16_t code) {
    std::uint16_t& field = field_[Place(c)];
    --count_[field % kCodes];
    ++count_[code % kCodes];
    field = code;
    acting.WakeAround(c);
    settling.Wake(c);
    if (code == kExplosion) burning.Wake(c);
  }
  void SetFieldState(Cell c, std::uint8_t state) {
    state_[Place(c)] = state;
    acting.WakeAround(c);
  }
  void SetFieldMark(Cell c, std::uint8_t mark) {
    mark_[Place(c)] = mark;
    settling.Wake(c);
    if (mark == 1) burning.Wake(c);
  }
  void SetFieldMoved(Cell c, bool moved) {
    moved_[Place(c)] = moved;
    if (moved) settling.Wake(c);
  }

  // How many cells hold a code of the table, 1 to 28.
  int Count(std::uint16_t code) const { return count_[code % kCodes]; }

  Rows burning;   // for the explosion scan
  Rows acting;    // for the object scan
  Rows settling;  // for the closing scan

  // The two codes above the table, 65534 and 65535, fall on 30 and 31.
  static constexpr std::size_t kCodes = 32;

 private:
  static std::size_t Place(Cell c) { return static_cast<std::size_t>(c.place()); }

  std::array<std::uint16_t, Cell::kPlaces> field_{};
  std::array<std::uint8_t, Cell::kPlaces> state_{};
  std::array<std::uint8_t, Cell::kPlaces> mark_{};
  std::array<bool, Cell::kPlaces> moved_{};
  std::array<int, kCodes> count_{};
};

}  // namespace zorik
