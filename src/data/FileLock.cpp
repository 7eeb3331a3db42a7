#include "data/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace zorik {
namespace {

constexpr int kMostTries = 100;

// Whoever held the file before may have taken it away meanwhile; what is held then has no name any more.
bool HasThisName(int file, const std::string& path) {
  struct stat held = {};
  struct stat named = {};
  return fstat(file, &held) == 0 && stat(path.c_str(), &named) == 0 && held.st_ino == named.st_ino &&
         held.st_dev == named.st_dev;
}

bool HeldByAnother(int file) {
  return flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

}  // namespace

std::optional<FileLock> FileLock::Take(const std::string& path) {
  for (int i = 0; i < kMostTries; ++i) {
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
    if (file < 0) return std::nullopt;
    FileLock lock(path, file);
    if (HeldByAnother(file)) return std::nullopt;
    if (HasThisName(file, path)) return lock;
  }
  return std::nullopt;
}

FileLock::FileLock(std::string path, int file) : path_(std::move(path)), file_(file) {}

FileLock::FileLock(FileLock&& other) noexcept
    : path_(std::move(other.path_)), file_(std::exchange(other.file_, -1)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  std::swap(path_, other.path_);
  std::swap(file_, other.file_);
  return *this;
}

FileLock::~FileLock() {
  if (file_ >= 0) close(file_);
}

void FileLock::Remove() {
  if (file_ < 0) return;
  unlink(path_.c_str());
  close(std::exchange(file_, -1));
}

}  // namespace zorik
