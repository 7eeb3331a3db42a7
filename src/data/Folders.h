#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zorik {

// What lies in a folder (a path as the file system has it), by name, in byte order. Names that begin with a
// dot are hidden, and left out. A folder that cannot be read is empty.

// The regular files, and links to such, whose names have this extension, ".zk" for one, in whatever letter
// case.
std::vector<std::string> FilesIn(const std::string& folder, std::string_view extension);

// The folders, and links to such.
std::vector<std::string> FoldersIn(const std::string& folder);

}  // namespace zorik
