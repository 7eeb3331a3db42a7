#pragma once

#include <QImage>
#include <QSize>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "skin/CellPictures.h"
#include "skin/Pictures.h"
#include "skin/SkinPlaces.h"
#include "skin/ZornePole.h"

namespace zorik {

// The picture of a tile set has at most so many frames, and this many pixels; 28 of these are still no danger
// to the memory.
inline constexpr int kMostFrames = 128;
inline constexpr std::int64_t kMostTilePixels = std::int64_t{kMostFrames} * kTileSize * kTileSize;

// All tile sets of a skin in one scheme, each laid over the ground of Space, so that drawing needs no
// transparency.
class TileSets {
 public:
  // Sets without pictures: one empty frame each.
  TileSets();

  // Loads all sets. What an earlier call has made is used again as long as its files have not changed.
  void Load(PictureCache& pictures, const SkinPlaces& places, std::string_view scheme);

  // Rows of frames of each set, at least 1.
  std::array<int, kTileSetCount> Frames() const;

  // Makes frames of this size, in pixels, the ones that are at hand. Those of the last two sizes are kept, so
  // that changing to and fro between two views costs nothing, unless they are many or large.
  void Prepare(QSize size);

  // A frame in the given size. Columns and rows beyond the set's are its last. Each is scaled alone, so none
  // bleeds into its neighbour. It lives until the next call of Load or Prepare.
  const QImage& Frame(const CellPicture& picture, QSize size);

 private:
  // A set over its ground, and the file that it was made from.
  struct Sheet {
    std::string path;
    FileStamp stamp;
    QImage image;
    int columns = 1;
    int rows = 1;
  };
  using Sheets = std::array<Sheet, kTileSetCount>;

  // Frames in one size, those of a set after those of the one before; empty images where not made yet.
  struct Scaled {
    QSize size;
    std::vector<QImage> frames;
  };

  void Use(Sheets sheets);
  static bool SameSource(const Sheet& a, const Sheet& b);
  static bool SameImages(const Sheets& a, const Sheets& b);
  std::int64_t BytesKept() const;

  Sheets sheets_;
  std::array<std::size_t, kTileSetCount> first_{};  // place of each set's first frame in Scaled
  std::size_t frames_ = 0;
  std::map<std::string, Sheets, std::less<>> kept_;  // by scheme
  std::array<Scaled, 2> scaled_;                     // the size in use, and the one before
  std::int64_t scaledBytes_ = 0;
};

}  // namespace zorik
