#include "platform/FolderAlias.h"

#include <fcntl.h>

#include <map>

#include "data/Cp1250.h"
#include "platform/PathText.h"

namespace zorik {

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

}  // namespace zorik
