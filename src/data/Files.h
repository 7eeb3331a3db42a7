#pragma once

#include <string>
#include <string_view>

#include "data/Result.h"

namespace zorik {

// The edge where bytes meet the disk. Paths are UTF-8, as the file system keeps them; messages name the path.

// All bytes of a file. Fails when it cannot be read, is a folder, or is larger than any file of this game.
Result<std::string> ReadWhole(const std::string& path);

// Puts the bytes into a file, in place of what it held: first into a new file beside it, which then takes its
// name, so that a crash or a full disk leaves the old file as it was. A file that may not be written is
// replaced all the same if its folder allows it; a link goes on leading to its file. Folders are not made.
Result<Done> WriteWhole(const std::string& path, std::string_view bytes);

// The name that a file or folder with this name (Windows-1250, no path) has on the disk. Writers and readers
// both use it. What no name can hold (zero bytes, both slashes) is dropped, "." and ".." become underscores,
// and a name too long for the file system keeps its beginning and its extension and gets a hash in between,
// which letter case does not change.
std::string FileSystemName(std::string_view name);

// Finds a path whose letter case, or whose separators ("/" or "\"), may differ from those on the disk. Each
// component is looked for as it stands and then without regard to case (of several the first in byte order).
// From the first component that is not there the path stays as given, so a new file can be written to it.
std::string ResolvePath(std::string_view path);

}  // namespace zorik
