#include "platform/LeftFiles.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "data/Files.h"
#include "data/Folders.h"
#include "platform/Paths.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr std::time_t kLeastAge = 60;  // seconds

// The stores are filled by the toolkit, which writes beside them, too, under their names and six letters.
bool IsOfStore(std::string_view name) {
  constexpr std::size_t kLetters = 6;
  constexpr std::array<std::string_view, 2> kStores{"Zorik.ini.", "Zorik2.ini."};
  const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  return std::any_of(kStores.begin(), kStores.end(), [&](std::string_view store) {
    return name.starts_with(store) && name.size() == store.size() + kLetters &&
           std::all_of(name.begin() + static_cast<std::ptrdiff_t>(store.size()), name.end(), isLetter);
  });
}

// This process has written nothing so far: what bears its number is of an earlier one.
bool IsGone(int process) {
  return process == getpid() || (kill(process, 0) != 0 && errno == ESRCH);
}

bool IsLeft(const std::string& name) {
  if (IsOfStore(name)) return true;
  const std::optional<int> writer = WriterOf(name);
  return writer && IsGone(*writer);
}

bool IsOldFile(const std::string& path) {
  struct stat status = {};
  if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  return std::time(nullptr) - status.st_mtime > kLeastAge;
}

std::string FolderBelow(const std::string& folder, const std::string& home, const char* usual) {
  if (fs::path(folder).is_absolute()) return folder;
  return home + usual;
}

}  // namespace

std::vector<std::string> WrittenFolders(const Paths& paths, const Environment& environment) {
  const std::string data = FolderBelow(environment.DataHome, environment.Home, "/.local/share");
  const std::string config = FolderBelow(environment.ConfigHome, environment.Home, "/.config");
  std::vector<std::string> folders{paths.AppPath,
                                   paths.AppPath + "/Caves",
                                   paths.AppPath + "/Replays",
                                   paths.AppPath + "/Recovery/Running",
                                   data + "/applications",
                                   data + "/mime/packages",
                                   config + "/Ortvan"};
  for (const std::string& player : FoldersIn(paths.PlayersPath)) {
    folders.push_back(paths.PlayersPath + "/" + player);
  }
  return folders;
}

void SweepLeftFiles(const std::string& folder) {
  std::vector<std::string> left;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string path = entry->path().string();
    if (IsLeft(entry->path().filename().string()) && IsOldFile(path)) left.push_back(path);
  }
  for (const std::string& path : left) unlink(path.c_str());
}

}  // namespace zorik
