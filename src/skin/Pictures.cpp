#include "skin/Pictures.h"

#include <sys/stat.h>

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <bit>
#include <filesystem>
#include <span>
#include <system_error>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "view/ZornePole.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kMostBytesKept = std::int64_t{32} << 20U;
constexpr int kMostMegabytesOfOne = 64;  // that reading a picture may ask for

std::string ErrorPicture(const SkinPlaces& places) {
  return FindInRoots(places, "error.bmp");
}

QImage ErrorTile() {
  QImage tile(kTileSize, kTileSize, QImage::Format_ARGB32);
  tile.fill(Qt::magenta);
  return tile;
}

// Other formats than these are not for a stranger's skin: a drawing can be small and yet fill the memory.
bool IsKnown(const QByteArray& format) {
  return format == "gif" || format == "bmp" || format == "jpeg" || format == "jpg";
}

// A bitmap as the build makes them holds the very pixels that an image has in memory, the lowest line first.
constexpr std::size_t kReadyHead = 122;

std::uint32_t NumberAt(std::string_view head, std::size_t place, std::size_t length) {
  std::uint32_t number = 0;
  for (std::size_t i = length; i > 0; --i)
    number = number << 8U | static_cast<unsigned char>(head[place + i - 1]);
  return number;
}

// The size that the head of such a bitmap tells; an empty one for any other.
QSize ReadySize(std::string_view head) {
  constexpr std::uint32_t kBitFields = 3;
  constexpr std::uint32_t kMostSide = 1U << 15U;
  if (head.size() < kReadyHead || !head.starts_with("BM")) return {};
  const auto number = [head](std::size_t place) { return NumberAt(head, place, 4); };
  const bool pixels = number(10) == kReadyHead && number(14) == kReadyHead - 14 &&
                      NumberAt(head, 26, 2) == 1 && NumberAt(head, 28, 2) == 32 && number(30) == kBitFields;
  const bool masks = number(54) == 0x00FF0000U && number(58) == 0x0000FF00U && number(62) == 0x000000FFU &&
                     number(66) == 0xFF000000U;
  const std::uint32_t width = number(18), height = number(22);
  if (!pixels || !masks || width - 1 >= kMostSide || height - 1 >= kMostSide) return {};
  return {static_cast<int>(width), static_cast<int>(height)};
}

// Reads such a bitmap. Anything else, one that is too large or damaged too, gives an empty image: it is for
// the toolkit, which asks every pixel for its masks and takes ten times as long.
QImage ReadReady(const std::string& path, std::int64_t mostPixels) {
  if constexpr (std::endian::native != std::endian::little) return {};
  const auto head = ReadStart(path, kReadyHead);
  const QSize size = head ? ReadySize(*head) : QSize();
  if (size.isEmpty() || std::int64_t{size.width()} * size.height() > mostPixels) return {};
  QImage image(size, QImage::Format_ARGB32);
  if (image.isNull()) return {};
  const std::span pixels(reinterpret_cast<char*>(image.bits()),
                         static_cast<std::size_t>(image.sizeInBytes()));
  if (!ReadRest(path, kReadyHead, pixels)) return {};
  const auto line = static_cast<std::size_t>(image.bytesPerLine());
  for (int y = 0; y < image.height() / 2; ++y) {
    uchar* const upper = image.scanLine(y);
    std::swap_ranges(upper, upper + line, image.scanLine(image.height() - 1 - y));
  }
  return image;
}

// A picture's file, read as a whole: the toolkit itself would wait for ever at a pipe.
class PictureSource {
 public:
  explicit PictureSource(const std::string& path) : bytes_(ReadWhole(path)) {
    if (!bytes_) return;
    held_ = QByteArray::fromRawData(bytes_->data(), static_cast<qsizetype>(bytes_->size()));
    buffer_.setBuffer(&held_);
    reader_.setDevice(&buffer_);
    reader_.setDecideFormatFromContent(true);
  }

  PictureState State(std::int64_t mostPixels) {
    if (!bytes_ || !reader_.canRead() || !IsKnown(reader_.format())) return PictureState::Broken;
    const QSize size = reader_.size();
    if (size.isEmpty()) return PictureState::Broken;
    const bool large = std::int64_t{size.width()} * size.height() > mostPixels;
    return large ? PictureState::TooLarge : PictureState::Good;
  }

  QImage Read() { return reader_.read().convertToFormat(QImage::Format_ARGB32); }

 private:
  Result<std::string> bytes_;
  QByteArray held_;
  QBuffer buffer_;
  QImageReader reader_;
};

}  // namespace

PictureFinder::Folder::Folder(const std::string& folder) : path(ResolvePath(folder)) {
  std::error_code error;
  fs::directory_iterator entry(path, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::error_code unreadable;
    if (entry->is_regular_file(unreadable)) names.insert(entry->path().filename().string());
  }
  for (const std::string& name : names) folded.emplace(FoldFileName(name), name);
}

std::optional<std::string> PictureFinder::Folder::Find(const std::string& name) const {
  if (names.contains(name)) return path + "/" + name;
  const auto found = folded.find(FoldFileName(name));
  if (found == folded.end()) return std::nullopt;
  return path + "/" + found->second;
}

PictureFinder::PictureFinder(const SkinPlaces& places, std::string_view scheme)
    : errorPicture_(ErrorPicture(places)) {
  for (const std::string_view skin : {std::string_view(places.Skin), std::string_view(kDefaultSkin)}) {
    for (const std::string& game : FoldersOf(places, skin, "Game/" + std::string(scheme)))
      folders_.emplace_back(game);
    for (const std::string& game : FoldersOf(places, skin, "Game")) folders_.emplace_back(game);
    if (skin == places.Skin) foldersOfSkin_ = folders_.size();
  }
}

std::optional<PictureFinder::Found> PictureFinder::Find(std::string_view name) const {
  for (std::size_t i = 0; i < folders_.size(); ++i) {
    for (const char* extension : {".jpg", ".bmp", ".gif"}) {
      if (auto path = folders_[i].Find(std::string(name) + extension)) {
        return Found{std::move(*path), i < foldersOfSkin_};
      }
    }
  }
  return std::nullopt;
}

std::string PictureFinder::GetSchPicPath(std::string_view name) const {
  const std::optional<Found> found = Find(name);
  return found ? found->path : errorPicture_;
}

std::string GetSchPicPath(const SkinPlaces& places, std::string_view scheme, std::string_view name) {
  return PictureFinder(places, scheme).GetSchPicPath(name);
}

PictureState StateOf(const std::string& path, std::int64_t mostPixels) {
  return PictureSource(path).State(mostPixels);
}

QImage ReadImage(const std::string& path, std::int64_t mostPixels) {
  if (QImage ready = ReadReady(path, mostPixels); !ready.isNull()) return ready;
  QImageReader::setAllocationLimit(kMostMegabytesOfOne);
  PictureSource source(path);
  if (source.State(mostPixels) != PictureState::Good) return {};
  return source.Read();
}

FileStamp StampOf(const std::string& path) {
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return {std::int64_t{status.st_mtim.tv_sec} * kNanoseconds + status.st_mtim.tv_nsec,
          std::int64_t{status.st_size}, std::uint64_t{status.st_ino}};
}

QImage PictureCache::Keep(const std::string& path, const Reader& read) {
  const FileStamp stamp = StampOf(path);
  const auto found = kept_.find(path);
  if (found != kept_.end() && found->second.stamp == stamp) return found->second.image;
  if (stamp == FileStamp()) return {};
  QImage image = read(path);
  if (found != kept_.end()) {
    bytes_ -= found->second.image.sizeInBytes();
    kept_.erase(found);
  }
  if (bytes_ + image.sizeInBytes() > kMostBytesKept) {
    kept_.clear();
    bytes_ = 0;
  }
  bytes_ += image.sizeInBytes();
  kept_.emplace(path, Kept{stamp, image});
  return image;
}

QImage PictureCache::Read(const std::string& path, std::int64_t mostPixels) {
  return Keep(path, [mostPixels](const std::string& file) { return ReadImage(file, mostPixels); });
}

QImage PictureCache::Load(const SkinPlaces& places, const std::string& path, std::int64_t mostPixels) {
  QImage image = Read(path, mostPixels);
  if (image.isNull()) image = Read(ErrorPicture(places), kMostPixels);
  return image.isNull() ? ErrorTile() : image;
}

QImage WithoutBlack(QImage image) {
  image = std::move(image).convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
    std::replace(line, line + image.width(), qRgba(0, 0, 0, 255), qRgba(0, 0, 0, 0));
  }
  return image;
}

}  // namespace zorik
