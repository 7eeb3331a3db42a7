#include "flow/RecoveryStore.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "data/Collection.h"
#include "data/Files.h"
#include "data/Folders.h"
#include "data/Result.h"
#include "flow/RecoveryFile.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr const char* kEnding = ".recovery";
constexpr const char* kLockEnding = ".lock";
constexpr int kMostNames = 100;                                    // of one second, of one process
constexpr std::uintmax_t kLargestFile = std::uintmax_t{16} << 20;  // far above any collection

// Names stand in the order of their times.
std::string NameAt(std::int64_t now, int number) {
  std::string seconds = std::to_string(std::max<std::int64_t>(now, 0));
  constexpr std::size_t kDigits = 12;
  seconds.insert(0, kDigits - std::min(kDigits, seconds.size()), '0');
  return seconds + '-' + std::to_string(getpid()) + '-' + (number < 10 ? "0" : "") + std::to_string(number);
}

std::string LockOf(const std::string& path) {
  return fs::path(path).replace_extension(kLockEnding).string();
}

bool IsThere(const std::string& path) {
  std::error_code error;
  return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

Result<RecoveryFile> ReadKept(const std::string& path) {
  std::error_code error;
  if (fs::file_size(path, error) > kLargestFile || error) return Failure{"cannot read " + path};
  const Result<std::string> bytes = ReadWhole(path);
  if (!bytes) return Failure{bytes.Message()};
  return ReadRecovery(*bytes);
}

// One whose collection the editor could not open is none.
std::optional<KeptEntry> EntryOf(const std::string& path) {
  const Result<RecoveryFile> file = ReadKept(path);
  if (!file) return std::nullopt;
  const Result<EditedCollection> sada = ReadForEditor(file->Sada.Bytes);
  if (!sada || sada->Closed || sada->CaveList.empty()) return std::nullopt;
  return KeptEntry{path, file->Time, file->Sada.Name, file->Sada.FileName,
                   static_cast<int>(sada->CaveList.size())};
}

// The files of a folder, the newest first.
std::vector<std::string> FilesOf(const std::string& folder) {
  std::vector<std::string> paths;
  for (const std::string& name : FilesIn(folder, kEnding)) paths.push_back(folder + '/' + name);
  std::reverse(paths.begin(), paths.end());
  return paths;
}

Failure NotDone(const std::string& what, const std::error_code& error) {
  return Failure{what + ": " + error.message()};
}

}  // namespace

RecoveryStore::RecoveryStore(std::string folder)
    : running_(folder + "/Running"), discarded_(std::move(folder) + "/Discarded") {}

RecoveryStore::~RecoveryStore() {
  if (lock_ && !kept_) lock_->Remove();
}

std::string RecoveryStore::OwnPath() const {
  return running_ + '/' + own_ + kEnding;
}

// A name that no other program has, and its lock.
bool RecoveryStore::TakePlace(std::int64_t now) {
  std::error_code error;
  fs::create_directories(running_, error);
  for (int i = 0; !lock_ && i < kMostNames; ++i) {
    own_ = NameAt(now, i);
    if (!IsThere(OwnPath())) lock_ = FileLock::Take(LockOf(OwnPath()));
  }
  return lock_.has_value();
}

Result<Done> RecoveryStore::Keep(const KeptSada& sada, std::int64_t now) {
  if (!TakePlace(now)) return Failure{"cannot write into " + running_};
  if (kept_ == sada && IsThere(OwnPath())) return Done{};
  Result<Done> written = WriteWhole(OwnPath(), BuildRecovery({now, sada}));
  if (written) kept_ = sada;
  return written;
}

void RecoveryStore::Clear() {
  if (kept_) unlink(OwnPath().c_str());
  kept_.reset();
}

Result<Done> RecoveryStore::Discard(const KeptSada& sada, std::int64_t now) {
  const Result<Done> written = Keep(sada, now);
  if (!kept_) return written;
  Result<Done> moved = MoveToDiscarded(OwnPath(), now);
  if (moved) kept_.reset();
  return written ? moved : written;
}

// Those of which only the lock is left are swept up.
std::vector<KeptEntry> RecoveryStore::Left() {
  SweepLocks();
  std::vector<KeptEntry> entries;
  for (const std::string& path : FilesOf(running_)) {
    if (lock_ && path == OwnPath()) continue;
    std::optional<KeptEntry> entry = EntryOf(path);
    if (!entry) continue;
    if (!left_.contains(path)) {
      std::optional<FileLock> lock = FileLock::Take(LockOf(path));
      if (!lock) continue;
      left_.emplace(path, *std::move(lock));
    }
    entries.push_back(*std::move(entry));
  }
  return entries;
}

void RecoveryStore::SweepLocks() const {
  for (const std::string& name : FilesIn(running_, kLockEnding)) {
    const fs::path path = fs::path(running_) / name;
    if (IsThere(fs::path(path).replace_extension(kEnding).string())) continue;
    if (std::optional<FileLock> lock = FileLock::Take(path.string())) lock->Remove();
  }
}

std::vector<KeptEntry> RecoveryStore::Discarded() const {
  std::vector<KeptEntry> entries;
  for (const std::string& path : FilesOf(discarded_)) {
    if (std::optional<KeptEntry> entry = EntryOf(path)) entries.push_back(*std::move(entry));
  }
  return entries;
}

Result<KeptSada> RecoveryStore::Read(const KeptEntry& entry) {
  Result<RecoveryFile> file = ReadKept(entry.Path);
  if (!file) return Failure{file.Message()};
  return std::move(file->Sada);
}

Result<Done> RecoveryStore::Discard(const KeptEntry& left, std::int64_t now) {
  Result<Done> moved = MoveToDiscarded(left.Path, now);
  if (moved) LetGo(left.Path);
  return moved;
}

Result<Done> RecoveryStore::Delete(const KeptEntry& entry) {
  std::error_code error;
  fs::remove(entry.Path, error);
  if (error) return NotDone("cannot delete " + entry.Path, error);
  LetGo(entry.Path);
  return Done{};
}

void RecoveryStore::LetGo(const std::string& path) {
  const auto lock = left_.find(path);
  if (lock == left_.end()) return;
  lock->second.Remove();
  left_.erase(lock);
}

Result<Done> RecoveryStore::MoveToDiscarded(const std::string& path, std::int64_t now) {
  std::error_code error;
  fs::create_directories(discarded_, error);
  std::string place;
  for (int i = 0; i < kMostNames && (place.empty() || IsThere(place)); ++i) {
    place = discarded_ + '/' + NameAt(now, i) + kEnding;
  }
  if (IsThere(place)) return Failure{"cannot write into " + discarded_};
  fs::rename(path, place, error);
  if (error) return NotDone("cannot write into " + discarded_, error);
  DropTwins(place);
  DropOldest();
  return Done{};
}

// What is discarded twice is there once.
void RecoveryStore::DropTwins(const std::string& path) const {
  const Result<RecoveryFile> file = ReadKept(path);
  if (!file) return;
  for (const std::string& other : FilesOf(discarded_)) {
    if (other == path) continue;
    const Result<RecoveryFile> twin = ReadKept(other);
    if (twin && twin->Sada == file->Sada) unlink(other.c_str());
  }
}

void RecoveryStore::DropOldest() const {
  const std::vector<KeptEntry> entries = Discarded();
  for (std::size_t i = kMostDiscarded; i < entries.size(); ++i) unlink(entries[i].Path.c_str());
}

}  // namespace zorik
