#include "data/Folders.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "data/Cp1250.h"

namespace zorik {

namespace {

namespace fs = std::filesystem;

template <class Wanted>
std::vector<std::string> EntriesIn(const std::string& folder, const Wanted& wanted) {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::string name = entry->path().filename().string();
    if (!name.starts_with('.') && wanted(*entry)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

std::vector<std::string> FilesIn(const std::string& folder, std::string_view extension) {
  return EntriesIn(folder, [extension](const fs::directory_entry& entry) {
    std::error_code error;
    return FoldFileName(entry.path().extension().string()) == extension && entry.is_regular_file(error);
  });
}

std::vector<std::string> FoldersIn(const std::string& folder) {
  return EntriesIn(folder, [](const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_directory(error);
  });
}

}  // namespace zorik
