#pragma once

#include <string_view>

namespace zorik {

// What the default skin's table says of a key, as it was when the program was built: the words for a folder
// of skins that lacks them. Empty when it says nothing; "#" stands for a line break.
std::string_view DefaultWords(std::string_view key);

}  // namespace zorik
