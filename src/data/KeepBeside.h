#pragma once

#include <string>

#include "data/FileTrouble.h"

namespace zorik {

// Keeps a copy of a file beside it, under its name with "~1" or the next free number behind, and answers the
// copy's path; empty when there is no file. Paths are UTF-8.
Result<std::string, FileFailure> KeepBeside(const std::string& path);

}  // namespace zorik
