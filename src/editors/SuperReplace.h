#pragma once

#include <string>
#include <string_view>

namespace zorik {

// Cleans the spelling of a name or a description: the hero's name, the word for the gem and some words that
// authors often mistype. Then blanks at both ends go and the first letter becomes a capital. Texts are bytes
// in Windows-1250.
std::string SuperReplace(std::string_view text);

}  // namespace zorik
