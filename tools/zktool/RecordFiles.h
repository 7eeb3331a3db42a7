#pragma once

#include <string>
#include <vector>

namespace zorik {

// The record files that the given files and folders stand for: a file as it is, a folder as all *.zkr files
// in it and below it, sorted by their paths. A folder below that cannot be read is listed itself. Links to
// folders are not followed.
std::vector<std::string> RecordFilesOf(const std::vector<std::string>& paths);

}  // namespace zorik
