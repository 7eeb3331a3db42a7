#include "platform/FolderAlias.h"

#include <fcntl.h>

#include <cstdlib>
#include <filesystem>
#include <map>

#include "data/Cp1250.h"
#include "platform/PathText.h"

namespace zorik {
namespace {

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace

// The folder stays open, and so does the way to it; programs that are started from here find it, too.
QString FolderAlias(const std::string& folder) {
  if (IsUtf8(folder)) return QString::fromStdString(folder);
  static std::map<std::string, int> open;
  const auto known = open.find(folder);
  const int handle = known != open.end() ? known->second : ::open(folder.c_str(), O_PATH | O_DIRECTORY);
  if (handle < 0) return PathText(folder);
  open[folder] = handle;
  return "/proc/self/fd/" + QString::number(handle);
}

QString HomeText() {
  return PathText(Variable("HOME"));
}

std::string ConfigFolder() {
  const std::filesystem::path told = Variable("XDG_CONFIG_HOME");
  return told.is_absolute() ? told.string() : Variable("HOME") + "/.config";
}

}  // namespace zorik
