#pragma once

#include <string>
#include <string_view>

namespace zorik {

// A text in quotes as JSON has it. A byte that is no UTF-8, as file names may hold, becomes \udc80 to \udcff.
std::string JsonText(std::string_view text);

}  // namespace zorik
