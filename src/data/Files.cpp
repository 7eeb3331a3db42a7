#include "data/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "data/Cp1250.h"
#include "data/FileTrouble.h"
#include "data/Result.h"

namespace zorik {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestFile = std::size_t{256} << 20U;  // far above any skin picture or record
constexpr std::size_t kLongestName = 255;                      // bytes, on all common file systems
constexpr std::size_t kLongestExtension = 16;

// An open file that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() { Close(); }

  int number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }
  bool Close() { return !IsOpen() || close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

std::string Cannot(FileUse use, const std::string& path, const std::string& reason) {
  return (use == FileUse::Read ? "cannot read " : "cannot write ") + path + ": " + reason;
}

// Says what the system's last call complained about.
FileFailure SystemFailure(FileUse use, const std::string& path) {
  const int error = errno;
  return {{Cannot(use, path, std::generic_category().message(error))}, TroubleOf(error, use)};
}

Result<Done, FileFailure> WriteAll(int file, const std::string& named, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return SystemFailure(FileUse::Write, named);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return Done{};
}

std::string FolderOf(const std::string& path) {
  const std::string folder = fs::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

// The file that a link leads to, so that the link itself is not replaced.
std::string BehindLinks(const std::string& path) {
  std::error_code error;
  if (!fs::is_symlink(path, error)) return path;
  const fs::path target = fs::canonical(path, error);
  return error ? path : target.string();
}

struct NewFile {
  Descriptor descriptor;
  std::string path;
};

// What a name of a new file begins with, before the process and a number, and ends in.
constexpr std::string_view kNewFileStart = ".zorik-";
constexpr std::string_view kNewFileEnd = ".tmp";
constexpr int kMostNewFiles = 100;  // of one process, in one folder

// A file that was not there before, in the same folder, as only there a name can change hands at once.
NewFile MakeFileBeside(const std::string& path) {
  const std::string start =
      FolderOf(path) + "/" + std::string(kNewFileStart) + std::to_string(getpid()) + "-";
  for (int i = 0; i < kMostNewFiles; ++i) {
    std::string name = start + std::to_string(i) + std::string(kNewFileEnd);
    Descriptor descriptor(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (descriptor.IsOpen() || errno != EEXIST) return {std::move(descriptor), std::move(name)};
  }
  return {Descriptor(-1), {}};
}

// The new file may be used by whom the old one could be, and always by its owner.
void TakeOverMode(const std::string& path, int file) {
  struct stat old = {};
  if (stat(path.c_str(), &old) == 0) static_cast<void>(fchmod(file, (old.st_mode & 0777U) | 0600U));
}

// A failure names the path that the caller knows.
Result<Done, FileFailure> FillAndRename(NewFile& file, const std::string& path, const std::string& named,
                                        std::string_view bytes) {
  TakeOverMode(path, file.descriptor.number());
  Result<Done, FileFailure> written = WriteAll(file.descriptor.number(), named, bytes);
  if (!written) return written;
  const bool kept = fsync(file.descriptor.number()) == 0 && file.descriptor.Close() &&
                    rename(file.path.c_str(), path.c_str()) == 0;
  if (!kept) return SystemFailure(FileUse::Write, named);
  return written;
}

// Makes the new name last through a crash. Where a folder cannot be synced, the file is there all the same.
void SyncFolder(const std::string& path) {
  const Descriptor folder(open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) static_cast<void>(fsync(folder.number()));
}

// FNV-1a.
std::string HashOf(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::uint64_t hash = 0xcbf29ce484222325U;
  for (const char character : text) {
    hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001b3U;
  }
  std::string digits;
  for (int shift = 60; shift >= 0; shift -= 4)
    digits += kDigits[(hash >> static_cast<unsigned>(shift)) & 15U];
  return digits;
}

// The start of a UTF-8 text, at most so long, that does not end within a character.
std::string_view StartOf(std::string_view utf8, std::size_t length) {
  while ((static_cast<unsigned char>(utf8[length]) & 0xC0U) == 0x80U) --length;
  return utf8.substr(0, length);
}

std::string_view ExtensionOf(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || name.size() - dot > kLongestExtension) return {};
  return name.substr(dot);
}

std::string Shortened(const std::string& name) {
  const std::string tail = "~" + HashOf(FoldFileName(name)) + std::string(ExtensionOf(name));
  return std::string(StartOf(name, kLongestName - tail.size())) + tail;
}

bool Exists(const std::string& path) {
  struct stat status = {};
  return lstat(path.c_str(), &status) == 0;
}

// The entry of a folder that has this name when letter case is disregarded.
std::optional<std::string> FindEntry(const std::string& folder, std::string_view name) {
  const std::string wanted = SoughtName(name);
  std::optional<std::string> found;
  std::error_code error;
  fs::directory_iterator entry(folder.empty() ? "." : folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::string candidate = entry->path().filename().string();
    if (SoughtName(candidate) == wanted && (!found || candidate < *found)) found = std::move(candidate);
  }
  return found;
}

// How many bytes a file says to have, as far as it may be read; none of what is no file.
std::size_t SizeOf(int file) {
  struct stat status = {};
  if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) return 0;
  return std::min(static_cast<std::size_t>(status.st_size), kLargestFile);
}

Result<std::string, FileFailure> ReadToEnd(const Descriptor& file, const std::string& path) {
  std::string bytes;
  bytes.reserve(SizeOf(file.number()));
  std::array<char, 65536> piece;
  for (;;) {
    const ssize_t count = read(file.number(), piece.data(), piece.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return SystemFailure(FileUse::Read, path);
    if (count == 0) return bytes;
    bytes.append(piece.data(), static_cast<std::size_t>(count));
    if (bytes.size() > kLargestFile)
      return FileFailure{{Cannot(FileUse::Read, path, "the file is too large")}};
  }
}

// Fills a buffer from this place of a file on, as far as that goes, and answers how far.
Result<std::size_t> ReadPiece(const Descriptor& file, const std::string& path, std::size_t from,
                              std::span<char> buffer) {
  std::size_t length = 0;
  while (length < buffer.size()) {
    const ssize_t count = pread(file.number(), buffer.data() + length, buffer.size() - length,
                                static_cast<off_t>(from + length));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return SystemFailure(FileUse::Read, path);
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
  }
  return length;
}

bool IsRegular(int file) {
  struct stat status = {};
  return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

bool IsFolder(int file) {
  struct stat status = {};
  return fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

// Pipes and devices are not to be replaced.
bool IsNoFile(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

// What the system takes for the end of a name.
bool HoldsZero(const std::string& path) {
  return path.find('\0') != std::string::npos;
}

// Opening a pipe to read would wait for somebody who writes into it.
Descriptor OpenAtOnce(const std::string& path) {
  if (!HoldsZero(path)) return Descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  errno = EINVAL;
  return Descriptor(-1);
}

FileFailure NoFile(FileUse use, const std::string& path) {
  return {{Cannot(use, path, "it is no regular file")}, FileTrouble::NoPlainFile};
}

// A number as std::to_string writes it, from the front of a text.
std::optional<int> TakeNumber(std::string_view& text) {
  int number = 0;
  const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const auto length = static_cast<std::size_t>(rest - text.data());
  if (error != std::errc() || number < 0 || std::to_string(number) != text.substr(0, length))
    return std::nullopt;
  text.remove_prefix(length);
  return number;
}

}  // namespace

Result<std::string> ReadWhole(const std::string& path) {
  Result<std::string, FileFailure> bytes = ReadFile(path);
  if (!bytes) return Failure{bytes.Message()};
  return *std::move(bytes);
}

Result<std::string, FileFailure> ReadFile(const std::string& path) {
  const Descriptor file = OpenAtOnce(path);
  if (!file.IsOpen()) return SystemFailure(FileUse::Read, path);
  if (!IsRegular(file.number()) && !IsFolder(file.number())) return NoFile(FileUse::Read, path);
  return ReadToEnd(file, path);
}

Result<std::string> ReadStart(const std::string& path, std::size_t most) {
  const Descriptor file = OpenAtOnce(path);
  if (!file.IsOpen()) return SystemFailure(FileUse::Read, path);
  if (!IsRegular(file.number())) return NoFile(FileUse::Read, path);
  std::string bytes(most, '\0');
  const Result<std::size_t> length = ReadPiece(file, path, 0, bytes);
  if (!length) return Failure{length.Message()};
  bytes.resize(*length);
  return bytes;
}

Result<Done> ReadRest(const std::string& path, std::size_t from, std::span<char> buffer) {
  const Descriptor file = OpenAtOnce(path);
  if (!file.IsOpen()) return SystemFailure(FileUse::Read, path);
  if (!IsRegular(file.number())) return NoFile(FileUse::Read, path);
  if (SizeOf(file.number()) != from + buffer.size())
    return Failure{"cannot read " + path + ": the file has another size"};
  const Result<std::size_t> length = ReadPiece(file, path, from, buffer);
  if (!length) return Failure{length.Message()};
  if (*length != buffer.size()) return Failure{"cannot read " + path + ": the file has become shorter"};
  return Done{};
}

Result<std::string> ReadStream(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) return SystemFailure(FileUse::Read, path);
  Result<std::string, FileFailure> bytes = ReadToEnd(file, path);
  if (!bytes) return Failure{bytes.Message()};
  return *std::move(bytes);
}

bool IsReadableFile(const std::string& path) {
  const Descriptor file = OpenAtOnce(path);
  return file.IsOpen() && IsRegular(file.number());
}

Result<Done> WriteWhole(const std::string& path, std::string_view bytes) {
  const Result<Done, FileFailure> written = WriteFile(path, bytes);
  if (!written) return Failure{written.Message()};
  return Done{};
}

Result<Done, FileFailure> WriteFile(const std::string& path, std::string_view bytes) {
  const std::string target = BehindLinks(path);
  if (HoldsZero(path) || IsNoFile(target)) return NoFile(FileUse::Write, path);
  NewFile file = MakeFileBeside(target);
  if (!file.descriptor.IsOpen()) return SystemFailure(FileUse::Write, path);
  Result<Done, FileFailure> filled = FillAndRename(file, target, path, bytes);
  if (filled) {
    SyncFolder(target);
  } else {
    unlink(file.path.c_str());
  }
  return filled;
}

std::optional<int> WriterOf(std::string_view name) {
  if (!name.starts_with(kNewFileStart)) return std::nullopt;
  name.remove_prefix(kNewFileStart.size());
  const std::optional<int> process = TakeNumber(name);
  if (!process || *process == 0 || !name.starts_with('-')) return std::nullopt;
  name.remove_prefix(1);
  const std::optional<int> number = TakeNumber(name);
  const bool ours = number && *number < kMostNewFiles && name == kNewFileEnd;
  return ours ? process : std::nullopt;
}

std::string FileSystemName(std::string_view name) {
  std::string held(name);
  std::erase_if(held,
                [](char character) { return IsControl(character) || character == '/' || character == '\\'; });
  if (held == "." || held == "..") return std::string(held.size(), '_');
  const std::string utf8 = ToUtf8(held);
  return utf8.size() > kLongestName ? Shortened(utf8) : utf8;
}

std::string SoughtName(std::string_view name) {
  return WithoutControls(FoldFileName(name));
}

std::string ResolvePath(std::string_view path) {
  std::string resolved(path);
  if (Exists(resolved)) return resolved;
  resolved.clear();
  bool found = true;
  while (!path.empty()) {
    const std::size_t length = path.find_first_of("/\\");
    const std::string component(path.substr(0, length));
    if (found && !component.empty() && !Exists(resolved + component)) {
      const std::optional<std::string> entry = FindEntry(resolved, component);
      found = entry.has_value();
      resolved += entry.value_or(component);
    } else {
      resolved += component;
    }
    if (length == std::string_view::npos) break;
    resolved += '/';
    path.remove_prefix(length + 1);
  }
  return resolved;
}

}  // namespace zorik
