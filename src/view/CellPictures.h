#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "core/Cell.h"
#include "core/Objects.h"
#include "data/Chance.h"

namespace zorik {

struct Hra;

// One frame: which set, and where on its grid of frames.
struct CellPicture {
  std::uint8_t Pic = 0;
  std::uint16_t Col = 0;
  std::uint16_t Row = 0;

  bool operator==(const CellPicture&) const = default;
};

// The picture of every cell. It changes a cell at a time, when a rule says that the cell may look different;
// drawing only reads it.
class CellPictures {
 public:
  explicit CellPictures(std::uint64_t seed = 0) : rnd_(seed) { frames_.fill(1); }

  // Rows of frames that each set has, at least 1.
  void SetFrames(const std::array<int, kTileSetCount>& frames) { frames_ = frames; }
  // Shows what is hidden: magic walls, growing walls, the closed finish.
  void SetNoSurprise(bool on) { noSurprise_ = on; }

  // What glitters stands still, and what has several looks keeps the one that it has.
  void SetStill(bool on) { still_ = on; }

  // A cave is about to be set up: all cells are empty space.
  void Open(const Hra& hra);
  // Its cells are placed. A pad of a teleport that has no other pad is none, and shows no more.
  void Placed(const Hra& hra);

  // Chooses the picture of a cell anew. A cell outside of the table and one that was left in this tick keep
  // what they have.
  void Change(const Hra& hra, int x, int y);

  // The picture that a cell of this run, or of another one in the same cave, would get now.
  CellPicture Choose(const Hra& hra, Cell c);

  // Chooses the pictures of all cells for a moment that was not played towards. What is drawn by lot stays as
  // it is where the cell holds the same.
  void ShowMoment(const Hra& hra);

  // The picture of a cell; empty space outside of -1..100 and -1..60.
  CellPicture At(int x, int y) const {
    const auto place = Place(x, y);
    return place ? pictures_[*place] : CellPicture{};
  }

  // The ground of a cell, whatever stands there.
  CellPicture GroundAt(Cell c) const;

  // Whether the cave has this cell.
  bool Inside(int x, int y) const { return x >= 0 && x < width_ && y >= 0 && y < height_; }

 private:
  static constexpr int kColumns = 102;
  static constexpr int kRows = 62;
  static std::optional<std::size_t> Place(int x, int y) {
    if (x < -1 || x >= kColumns - 1 || y < -1 || y >= kRows - 1) return std::nullopt;
    return static_cast<std::size_t>((y + 1) * kColumns + x + 1);
  }

  // The picture that a cell starts from, and how the row of its frame is found.
  struct Base {
    CellPicture picture;
    Rows rows = Rows::Still;
  };

  Base ChooseBase(const Hra& hra, Cell c) const;
  std::uint16_t ChooseRow(const Hra& hra, Cell c, const Base& base);
  void ShowHidden(const Hra& hra, Cell c, CellPicture& picture) const;
  void ShowPads(const Hra& hra, Cell c, CellPicture& picture) const;
  int FramesOf(std::size_t set) const { return frames_[set]; }

  std::array<CellPicture, kColumns * kRows> pictures_{};
  std::array<int, kTileSetCount> frames_{};
  bool noSurprise_ = false;
  bool still_ = false;
  bool placing_ = false;
  int width_ = 0;  // of the cave
  int height_ = 0;
  Chance rnd_;  // decoration, apart from the game's chance
};

}  // namespace zorik
