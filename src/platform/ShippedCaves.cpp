#include "platform/ShippedCaves.h"

#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>

#include "data/Files.h"
#include "data/Folders.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "platform/Paths.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDeclined = "/caves-declined.txt";  // a name a line

std::set<std::string> Declined(const Paths& paths) {
  const Result<std::string> bytes = ReadWhole(paths.AppPath + kDeclined);
  std::set<std::string> names;
  if (!bytes) return names;
  RecordLines lines(*bytes, LineEnds::CrLfOrLf);
  while (!lines.AtEnd()) names.emplace(lines.Next());
  return names;
}

std::string OwnPath(const Paths& paths, const std::string& name) {
  return ResolvePath(paths.AppPath + "/Caves/" + name);
}

// Whether a copy broke off. No list of earlier versions is needed to tell it from a collection that somebody
// has changed: whoever writes a collection picks the letters of its lines by chance, so a file that begins as
// the shipped one does is a copy of that or of an earlier version, and every one that is whole ends in a line
// end. A copy that broke off just there is still the shipped one's beginning.
bool IsPart(std::string_view own, std::string_view shipped) {
  if (own.size() < shipped.size() && shipped.starts_with(own)) return true;
  const std::string_view firstLine = shipped.substr(0, shipped.find('\n') + 1);
  return own.starts_with(firstLine) && !own.ends_with("\r\n");
}

bool IsLacking(const Paths& paths, const std::string& name) {
  const std::string path = OwnPath(paths, name);
  std::error_code error;
  const fs::file_type type = fs::symlink_status(path, error).type();
  if (type == fs::file_type::not_found) return true;
  if (type != fs::file_type::regular) return false;
  const Result<std::string> own = ReadWhole(path);
  const Result<std::string> shipped = ReadWhole(paths.ShippedCaves + "/" + name);
  return own && shipped && IsPart(*own, *shipped);
}

}  // namespace

std::vector<std::string> LackingCaves(const Paths& paths) {
  if (paths.ShippedCaves.empty()) return {};
  std::vector<std::string> names = FilesIn(paths.ShippedCaves, ".zk");
  const std::set<std::string> declined = Declined(paths);
  std::erase_if(names,
                [&](const std::string& name) { return declined.contains(name) || !IsLacking(paths, name); });
  return names;
}

Result<Done> BringCaves(const Paths& paths, const std::vector<std::string>& names) {
  const std::string folder = paths.AppPath + "/Caves";
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return Failure{folder};
  for (const std::string& name : names) {
    const Result<std::string> bytes = ReadWhole(paths.ShippedCaves + "/" + name);
    if (!bytes) return Failure{paths.ShippedCaves + "/" + name};
    const std::string path = OwnPath(paths, name);
    if (!WriteWhole(path, *bytes)) return Failure{path};
  }
  return Done{};
}

Result<Done> DeclineCaves(const Paths& paths, const std::vector<std::string>& names) {
  std::set<std::string> declined = Declined(paths);
  declined.insert(names.begin(), names.end());
  std::string lines;
  for (const std::string& name : declined) lines += name + "\n";
  return WriteWhole(paths.AppPath + kDeclined, lines);
}

}  // namespace zorik
