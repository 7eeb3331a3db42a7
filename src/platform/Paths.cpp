#include "platform/Paths.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "data/Result.h"
#include "platform/ShippedCaves.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool ShowsEntry(const fs::path& folder) {
  std::error_code error;
  const fs::directory_iterator first(folder, error);
  return !error && first != fs::directory_iterator();
}

fs::path UsersFolder(const Surroundings& surroundings) {
  // A relative $XDG_DATA_HOME is to be ignored, says the desktop's agreement on it.
  const fs::path data = surroundings.DataHome;
  if (data.is_absolute()) return data / "zorik";
  return fs::path(surroundings.Home) / ".local" / "share" / "zorik";
}

// The folder that the game was shipped with: that of the program, or the one of an installation.
fs::path ShippedFolder(const Surroundings& surroundings) {
  const fs::path program = surroundings.ProgramFolder;
  if (IsFolder(program / "Skins")) return program;
  return (program / ".." / "share" / "zorik").lexically_normal();
}

bool IsThere(const fs::path& path) {
  std::error_code error;
  return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

std::string HomeOfUser() {
  const passwd* const user = getpwuid(getuid());
  return user == nullptr || user->pw_dir == nullptr ? std::string() : std::string(user->pw_dir);
}

// At the first start the player gets all collections.
void BringFirstCaves(Paths& paths) {
  const bool first = !IsThere(fs::path(paths.AppPath) / "Caves");
  if (!first || paths.ShippedCaves.empty()) return;
  const Result<Done> brought = BringCaves(paths, LackingCaves(paths));
  if (!brought) paths.CavesFailure = brought.Message();
}

std::string FolderOr(const fs::path& folder, const fs::path& fallback) {
  return (ShowsEntry(folder) ? folder : fallback).string();
}

}  // namespace

Surroundings ReadSurroundings(const std::string& programFolder) {
  std::string home = Variable("HOME");
  if (!fs::path(home).is_absolute()) home = HomeOfUser();
  return {programFolder, Variable("ZORIK_HOME"), Variable("XDG_DATA_HOME"), home,
          Variable("XDG_CONFIG_HOME")};
}

std::string OwnFolder(const Surroundings& surroundings) {
  if (!surroundings.ZorikHome.empty()) return surroundings.ZorikHome;
  if (IsFolder(fs::path(surroundings.ProgramFolder) / "Skins")) return surroundings.ProgramFolder;
  return UsersFolder(surroundings).string();
}

Result<Paths> FindPaths(const Surroundings& surroundings) {
  const fs::path own = OwnFolder(surroundings);
  const fs::path shipped = ShippedFolder(surroundings);
  // Of a user without a home nobody knows where his files belong.
  if (own.is_relative() && surroundings.ZorikHome.empty()) return Failure{own.string()};
  std::error_code error;
  fs::create_directories(own, error);
  if (!IsFolder(own)) return Failure{own.string()};

  Paths paths;
  paths.AppPath = own.string();
  paths.SkinsPath = (own / "Skins").string();
  paths.TestRecordsPath = (own / "Replays").string();
  paths.PlayersPath = (own / "Players").string();
  paths.HelpPath = (own / "Help").string();
  paths.ShippedReplays = (shipped / "Replays").string();
  paths.ShippedSkins = (shipped / "Skins").string();
  paths.ShippedHelp = (shipped / "Help").string();
  if (!fs::equivalent(own, shipped, error)) paths.ShippedCaves = (shipped / "Caves").string();
  BringFirstCaves(paths);
  FindFolders(paths);
  return paths;
}

void FindFolders(Paths& paths) {
  const fs::path own = paths.AppPath;
  paths.CavesPath = FolderOr(own / "Caves", own);
  paths.RecordsPath = FolderOr(own / "Replays", own);
}

}  // namespace zorik
