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

#include "skin/LooseFrame.h"
#include "skin/Pictures.h"
#include "skin/SkinPlaces.h"
#include "view/CellPictures.h"
#include "view/Edges.h"
#include "view/FrameTable.h"
#include "view/ZornePole.h"

namespace zorik {

// The picture of a tile set has at most so many frames, and this many pixels; all sets together are then no
// danger to the memory.
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

  // What frames there are.
  const FrameTable& Table() const { return table_; }
  const FrameTable::Numbers& Frames() const { return table_.Rows(); }  // rows of each set
  const FrameTable::Numbers& Columns() const { return table_.Columns(); }
  bool HasEdges() const { return table_.HasEdges(); }
  Ground GroundOf(const CellPicture& picture) const { return table_.GroundOf(picture); }

  // Makes frames of this size, in pixels, the ones that are at hand. Those of the last two sizes are kept, so
  // that changing to and fro between two views costs nothing, unless they are many or large.
  void Prepare(QSize size);

  // A frame in the given size. Columns and rows beyond the set's are its last. Each is scaled alone, so none
  // bleeds into its neighbour. Edges of the earth lie on the ground, below what stands there. It lives until
  // the next call of Load or Prepare.
  const QImage& Frame(const CellPicture& picture, QSize size, EdgeMask edges = 0);

  // The same without the ground, which is clear.
  QImage Sprite(const CellPicture& picture, QSize size) const;

  // The same without the ground.
  const LooseFrame& Loose(const CellPicture& picture, QSize size);

 private:
  // A set over its ground, and the file that it was made from.
  struct Sheet {
    std::string path;
    FileStamp stamp;
    QImage picture;  // without the ground
    QImage image;
  };
  // The last one is the picture of edges, which may be missing.
  static constexpr std::size_t kEdges = kTileSetCount;
  using Sheets = std::array<Sheet, kTileSetCount + 1>;

  // A frame in one size, as it is, with edges, and without its ground; empty images where not made yet.
  struct ScaledFrame {
    QImage plain;
    LooseFrame loose;
    std::vector<QImage> edged;  // by their mask
  };
  // Frames of a set stand after those of the one before.
  struct Scaled {
    QSize size;
    std::vector<ScaledFrame> frames;
    std::int64_t bytes = 0;
  };

  static std::string EdgesPath(const PictureFinder& finder);
  static void Read(PictureCache& pictures, const SkinPlaces& places, Sheets& sheets);
  void Use(Sheets sheets);
  static std::vector<Ground> FindGrounds(const Sheets& sheets);
  QImage Composed(const CellPicture& picture, EdgeMask edges) const;
  static bool SameSource(const Sheet& a, const Sheet& b);
  static bool SameImages(const Sheets& a, const Sheets& b);
  std::int64_t BytesKept() const;

  Sheets sheets_;
  FrameTable table_;
  std::map<std::string, Sheets, std::less<>> kept_;  // by scheme
  std::array<Scaled, 2> scaled_;                     // the size in use, and the one before
};

}  // namespace zorik
