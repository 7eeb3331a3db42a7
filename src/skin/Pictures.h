#pragma once

#include <QImage>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "skin/SkinPlaces.h"

namespace zorik {

// A picture with more pixels than these is not read.
inline constexpr std::int64_t kMostPixels = std::int64_t{4} << 20U;

// Finds the pictures of the game for one scheme. It looks into the folders once, when it is made.
class PictureFinder {
 public:
  PictureFinder(const SkinPlaces& places, std::string_view scheme);

  // The path of a picture: of the skin and the scheme, of the skin, then the same of the default skin, each
  // in the player's own folder first; within one folder .jpg goes before .bmp before .gif. A picture that is
  // nowhere gives error.bmp.
  std::string GetSchPicPath(std::string_view name) const;
  // Whether the picture is anywhere.
  bool Has(std::string_view name) const { return GetSchPicPath(name) != errorPicture_; }

  // Where a picture was found.
  struct Found {
    std::string path;
    bool own = false;  // in the skin itself, not in the default skin that stands in for it
  };
  std::optional<Found> Find(std::string_view name) const;

 private:
  // The files of a folder, found without regard to letter case.
  struct Folder {
    std::string path;
    std::set<std::string> names;
    std::map<std::string, std::string> folded;  // in lower case, to the first that has this name

    explicit Folder(const std::string& folder);
    std::optional<std::string> Find(const std::string& name) const;
  };

  std::vector<Folder> folders_;
  std::size_t foldersOfSkin_ = 0;  // the first so many are those of the skin itself
  std::string errorPicture_;
};

// The same for a single picture.
std::string GetSchPicPath(const SkinPlaces& places, std::string_view scheme, std::string_view name);

// Whether a file is a picture that can be read: gif, bmp or jpg, whatever its name says, with no more pixels
// than these. Only its head is looked at.
enum class PictureState : std::uint8_t { Good, Broken, TooLarge };
PictureState StateOf(const std::string& path, std::int64_t mostPixels = kMostPixels);

// Reads a picture: gif, bmp or jpg, whatever its name says. A broken one, and one with more pixels than the
// limit, gives an empty image.
QImage ReadImage(const std::string& path, std::int64_t mostPixels = kMostPixels);

// What tells whether a file has changed; all 0 when it is not there.
struct FileStamp {
  std::int64_t time = 0;  // of its last change, nanoseconds
  std::int64_t size = 0;
  std::uint64_t node = 0;  // the file system's number for it

  bool operator==(const FileStamp&) const = default;
};

FileStamp StampOf(const std::string& path);

// Keeps pictures as long as their files stay as they are. It holds no more than some 32 million bytes.
class PictureCache {
 public:
  // The picture of a file, 32 bits a pixel. One that cannot be read gives error.bmp, and without that a tile
  // of magenta.
  QImage Load(const SkinPlaces& places, const std::string& path, std::int64_t mostPixels = kMostPixels);

  // What a reader makes of a file; empty for one that is not there.
  using Reader = std::function<QImage(const std::string& path)>;
  QImage Keep(const std::string& path, const Reader& read);

 private:
  struct Kept {
    FileStamp stamp;
    QImage image;
  };

  QImage Read(const std::string& path, std::int64_t mostPixels);

  std::map<std::string, Kept> kept_;
  std::int64_t bytes_ = 0;
};

// Makes what is exactly black clear.
QImage WithoutBlack(QImage image);

}  // namespace zorik
