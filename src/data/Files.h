#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/ResultFwd.h"

namespace zorik {

// The edge where bytes meet the disk. Paths are UTF-8, as the file system keeps them; messages name the path.

// All bytes of a file. Fails when it cannot be read, is a folder, pipe or device, or is larger than any file
// of this game. Never waits for somebody else.
Result<std::string> ReadWhole(const std::string& path);

// The first bytes of a file, so many if it has them.
Result<std::string> ReadStart(const std::string& path, std::size_t most);

// Fills a buffer with the bytes of a file from this place on. Fails when the file has not exactly so many.
Result<Done> ReadRest(const std::string& path, std::size_t from, std::span<char> buffer);

// The same as ReadWhole for what a command line names, which may be a pipe.
Result<std::string> ReadStream(const std::string& path);

// Whether ReadWhole can open it.
bool IsReadableFile(const std::string& path);

// Puts the bytes into a file, in place of what it held: first into a new file beside it, which then takes its
// name, so that a crash or a full disk leaves the old file as it was. A file that may not be written is
// replaced all the same if its folder allows it; a link goes on leading to its file. Folders are not made,
// pipes and devices not replaced.
Result<Done> WriteWhole(const std::string& path, std::string_view bytes);

// The process that gave a new file this name, while WriteWhole was filling it; nothing if it is no such name.
std::optional<int> WriterOf(std::string_view name);

// The name that a file or folder with this name (Windows-1250, no path) has on the disk. Writers and readers
// both use it. What no name should hold (control characters, both slashes) is dropped, "." and ".." become
// underscores, and a name too long for the file system keeps its beginning and its extension and gets a hash
// in between, which letter case does not change.
std::string FileSystemName(std::string_view name);

// A name without what plays no part in looking for it: letter case, and control characters, which older games
// left in the names of records.
std::string SoughtName(std::string_view name);

// Finds a path whose letter case, or whose separators ("/" or "\"), may differ from those on the disk. Each
// component is looked for as it stands and then without regard to case and control characters (of several the
// first in byte order). A name on the disk that is no UTF-8 counts as Windows-1250.
// From the first component that is not there the path stays as given, so a new file can be written to it.
std::string ResolvePath(std::string_view path);

}  // namespace zorik
