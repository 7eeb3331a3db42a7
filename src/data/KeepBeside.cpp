#include "data/KeepBeside.h"

#include <cstddef>
#include <filesystem>
#include <system_error>

namespace zorik {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestName = 255;  // bytes, on all common file systems
constexpr int kMostCopies = 10000;

bool IsTaken(const std::string& path) {
  std::error_code error;
  return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

// The name with a number behind it. A name that leaves no room for that loses letters at its end.
std::string NameOfCopy(const fs::path& path, int number) {
  const std::string tail = "~" + std::to_string(number);
  std::string name = path.filename().string();
  if (name.size() + tail.size() > kLongestName) {
    std::size_t length = kLongestName - tail.size();
    while ((static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U) --length;
    name.resize(length);
  }
  return (path.parent_path() / (name + tail)).string();
}

}  // namespace

Result<std::string, FileFailure> KeepBeside(const std::string& path) {
  if (!IsTaken(path)) return std::string();
  const Result<std::string, FileFailure> bytes = ReadFile(path);
  if (!bytes) return bytes;
  for (int number = 1; number <= kMostCopies; ++number) {
    std::string copy = NameOfCopy(path, number);
    if (IsTaken(copy)) continue;
    const Result<Done, FileFailure> written = WriteFile(copy, *bytes);
    if (!written) return written.Why();
    return copy;
  }
  return FileFailure{{"cannot keep " + path + ": there are too many copies of it"}};
}

}  // namespace zorik
