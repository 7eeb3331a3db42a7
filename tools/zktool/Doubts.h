#pragma once

#include <string>
#include <vector>

#include "data/Readable.h"

namespace zorik {

// What is allowed in the readable files of a collection and yet seldom meant: letters and numbers that the
// game does not know, caves that nobody can win, numbers of caves that are not there. Each doubt names its
// file and line, in the order of collection.txt. The files are such as PackCollection has taken.
std::vector<std::string> DoubtsOf(const TextFiles& files);

}  // namespace zorik
