#pragma once

#include <QString>
#include <cstdint>

namespace zorik {

class Skin;

// The time of so many ticks, as the skin's language writes it: minutes and seconds, in front of them hours if
// there are some, and tenths.
QString TimeWords(std::int64_t ticks, const Skin& skin);

}  // namespace zorik
