#include "data/FolderNames.h"

#include <sys/stat.h>

#include <filesystem>
#include <system_error>
#include <utility>

#include "data/Files.h"

namespace zorik {

namespace fs = std::filesystem;

FolderNames::FolderNames(std::string folder) : folder_(ResolvePath(folder)) {}

FolderNames::Stamp FolderNames::StampOf(const std::string& folder) {
  struct stat status = {};
  if (stat(folder.c_str(), &status) != 0) return {};
  return {std::int64_t{status.st_mtim.tv_sec}, std::int64_t{status.st_mtim.tv_nsec},
          std::uint64_t{status.st_ino}};
}

// Of several names that are sought alike the first in byte order counts.
void FolderNames::List() {
  names_.clear();
  std::error_code error;
  for (fs::directory_iterator entry(folder_, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    std::string name = entry->path().filename().string();
    std::string& kept = names_[SoughtName(name)];
    if (kept.empty() || name < kept) kept = std::move(name);
  }
}

std::string FolderNames::PathOf(std::string_view name) {
  std::string path = folder_ + "/" + std::string(name);
  struct stat status = {};
  if (lstat(path.c_str(), &status) == 0) return path;
  const Stamp now = StampOf(folder_);
  if (now == Stamp()) return ResolvePath(path);  // it may have come by now, in another letter case
  if (std::exchange(listed_, now) != now) List();
  const auto found = names_.find(SoughtName(name));
  return found == names_.end() ? path : folder_ + "/" + found->second;
}

}  // namespace zorik
