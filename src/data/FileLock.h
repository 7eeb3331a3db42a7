#pragma once

#include <optional>
#include <string>

namespace zorik {

// A file that one program at a time can hold. The system lets go of it when that program ends, in whatever
// way; the file itself stays.
class FileLock {
 public:
  // Holds the file with this path (UTF-8), which is made if it is not there. Nothing when somebody else holds
  // it, this program included, or when it cannot be made. Where the disk knows no locks anybody may have it.
  static std::optional<FileLock> Take(const std::string& path);

  FileLock(FileLock&& other) noexcept;
  FileLock& operator=(FileLock&& other) noexcept;
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

  // Takes the file away, and lets go of it.
  void Remove();

 private:
  FileLock(std::string path, int file);

  std::string path_;
  int file_;
};

}  // namespace zorik
