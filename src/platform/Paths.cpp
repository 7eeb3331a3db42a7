#include "platform/Paths.h"

#include <pwd.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "data/ProgramFolder.h"
#include "data/Result.h"
#include "platform/ShippedCaves.h"
#include "platform/Variable.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool ShowsEntry(const fs::path& folder) {
  std::error_code error;
  const fs::directory_iterator first(folder, error);
  return !error && first != fs::directory_iterator();
}

fs::path UsersFolder(const Environment& environment) {
  // A relative $XDG_DATA_HOME is to be ignored, says the desktop's agreement on it.
  const fs::path data = environment.DataHome;
  if (data.is_absolute()) return data / "zorik";
  return fs::path(environment.Home) / ".local" / "share" / "zorik";
}

// The folder that the game was shipped with: that of the program, or the one of an installation.
fs::path ShippedFolder(const Environment& environment) {
  const fs::path program = environment.ProgramFolder;
  if (IsFolder(program / "Skins")) return program;
  return InstalledData(environment.ProgramFolder);
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

Environment ReadEnvironment(const std::string& programFolder) {
  std::string home = Variable("HOME");
  if (!fs::path(home).is_absolute()) home = HomeOfUser();
  return {programFolder, Variable("ZORIK_HOME"), Variable("XDG_DATA_HOME"), home,
          Variable("XDG_CONFIG_HOME")};
}

std::string OwnFolder(const Environment& environment) {
  if (!environment.ZorikHome.empty()) return environment.ZorikHome;
  if (IsFolder(fs::path(environment.ProgramFolder) / "Skins")) return environment.ProgramFolder;
  return UsersFolder(environment).string();
}

Result<Paths> FindPaths(const Environment& environment) {
  const fs::path own = OwnFolder(environment);
  const fs::path shipped = ShippedFolder(environment);
  // Of a user without a home nobody knows where his files belong.
  if (own.is_relative() && environment.ZorikHome.empty()) return Failure{own.string()};
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
