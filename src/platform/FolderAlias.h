#pragma once

#include <QString>
#include <string>

namespace zorik {

// A way to a folder for the toolkit's own file calls, which can go only where every name is UTF-8. That is
// the folder's own path, or if that is not UTF-8, a path by which the system knows the folder while this
// program runs. A folder that is not there keeps its own path.
QString FolderAlias(const std::string& folder);

}  // namespace zorik
