#pragma once

#include <string_view>

namespace zorik {

// What zktool page --help tells.
inline constexpr std::string_view kPageDetails =
    R"(The page is one file that any browser opens, without a network: the game itself and the record, which plays at once
and whose cave can be played; or the collection's caves.

  -o OUT.html      the page
  --template FILE  the page without its content, if it is not that of this program. Without this option it is looked
                   for beside zktool, in share/games/zorik of the installation, and in build/web of the build tree,
                   where cmake --preset web && cmake --build build/web makes it
)";

}  // namespace zorik
