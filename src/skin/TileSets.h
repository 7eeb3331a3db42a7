#pragma once

#include <QImage>
#include <QSize>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "skin/CellPictures.h"

namespace zorik {

// Where to look for the pictures of a skin; paths are UTF-8.
struct SkinPlaces {
  std::string SkinsPath;         // folder of all skins
  std::string Skin = "Default";  // folder of the skin within it
};

// The path of a picture of the game: of the skin and the scheme, of the skin, then the same of the default
// skin; within one folder .jpg goes before .bmp before .gif. A picture that is nowhere gives error.bmp.
std::string GetSchPicPath(const SkinPlaces& places, std::string_view scheme, std::string_view name);

// Loads one picture of any of the three kinds; black is clear in the result, as is what the file says is.
// A broken file gives error.bmp, and without that a tile of magenta.
QImage LoadPicture(const SkinPlaces& places, const std::string& path);

// All tile sets of a skin in one scheme, each laid over the ground of Space, so that drawing needs no
// transparency.
class TileSets {
 public:
  // Sets without pictures: one empty frame each.
  TileSets();

  // Loads all sets anew.
  void Load(const SkinPlaces& places, std::string_view scheme);

  // Rows of frames of each set, at least 1.
  std::array<int, kTileSetCount> Frames() const;

  // A frame in the given size in pixels. Columns and rows beyond the set's are its last. Frames are kept in
  // the size that was asked for last; each is scaled alone, so none bleeds into its neighbour.
  const QImage& Frame(const CellPicture& picture, QSize size);

 private:
  struct Set {
    QImage sheet;
    int columns = 1;
    int rows = 1;
    std::vector<QImage> scaled;  // empty images where not made yet
  };

  void Store(std::size_t number, QImage sheet);

  std::array<Set, kTileSetCount> sets_;
  QSize size_;
};

}  // namespace zorik
