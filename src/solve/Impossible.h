#pragma once

#include <optional>
#include <string>

#include "core/Hra.h"

namespace zorik {

// Why a cave can certainly not be won, in a sentence; nothing where that is not sure. run: at its start.
std::optional<std::string> WhyImpossible(const Hra& run);

}  // namespace zorik
