#include "zktool/RecordFiles.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "data/Cp1250.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

bool IsRecord(const fs::directory_entry& entry) {
  std::error_code error;
  return FoldFileName(entry.path().extension().string()) == ".zkr" && entry.is_regular_file(error);
}

void AddFolder(std::vector<std::string>& files, const fs::path& folder) {
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  if (error) {
    files.push_back(folder.string());
    return;
  }
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::error_code unknown;
    if (entry->is_directory(unknown) && !entry->is_symlink(unknown)) {
      AddFolder(files, entry->path());
    } else if (IsRecord(*entry)) {
      files.push_back(entry->path().string());
    }
  }
}

}  // namespace

std::vector<std::string> RecordFilesOf(const std::vector<std::string>& paths) {
  std::vector<std::string> files;
  for (const std::string& path : paths) {
    std::error_code error;
    if (!fs::is_directory(path, error)) {
      files.push_back(path);
      continue;
    }
    const auto start = static_cast<std::ptrdiff_t>(files.size());
    AddFolder(files, path);
    std::sort(files.begin() + start, files.end());
  }
  return files;
}

}  // namespace zorik
