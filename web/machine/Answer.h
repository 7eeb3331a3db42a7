#pragma once

#include <string>

namespace zorik {

// What the last call answers.
std::string& Answer();

}  // namespace zorik
