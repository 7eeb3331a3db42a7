#include "platform/Paths.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

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

// Caves that cannot be copied are missed later, by name.
void CopyCaves(const fs::path& shipped, const fs::path& own) {
  std::error_code error;
  if (fs::exists(own / "Caves", error) || !IsFolder(shipped / "Caves")) return;
  fs::copy(shipped / "Caves", own / "Caves", fs::copy_options::recursive, error);
}

std::string FolderOr(const fs::path& folder, const fs::path& fallback) {
  return (ShowsEntry(folder) ? folder : fallback).string();
}

std::string OwnOr(const fs::path& own, const fs::path& shipped, const char* name) {
  return ((IsFolder(own / name) ? own : shipped) / name).string();
}

}  // namespace

Surroundings ReadSurroundings(const std::string& programFolder) {
  return {programFolder, Variable("ZORIK_HOME"), Variable("XDG_DATA_HOME"), Variable("HOME")};
}

std::string OwnFolder(const Surroundings& surroundings) {
  if (!surroundings.ZorikHome.empty()) return surroundings.ZorikHome;
  if (IsFolder(fs::path(surroundings.ProgramFolder) / "Skins")) return surroundings.ProgramFolder;
  return UsersFolder(surroundings).string();
}

Result<Paths> FindPaths(const Surroundings& surroundings) {
  const fs::path own = OwnFolder(surroundings);
  const fs::path shipped = ShippedFolder(surroundings);
  std::error_code error;
  fs::create_directories(own, error);
  if (!IsFolder(own)) return Failure{own.string()};
  CopyCaves(shipped, own);

  Paths paths;
  paths.AppPath = own.string();
  paths.SkinsPath = OwnOr(own, shipped, "Skins");
  paths.CavesPath = FolderOr(own / "Caves", own);
  paths.RecordsPath = FolderOr(own / "Replays", own);
  paths.PlayersPath = (own / "Players").string();
  paths.HelpPath = OwnOr(own, shipped, "Help");
  paths.ShippedReplays = (shipped / "Replays").string();
  return paths;
}

}  // namespace zorik
