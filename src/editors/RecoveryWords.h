#pragma once

#include <QString>
#include <cstdint>

namespace zorik {

class Skin;
struct KeptEntry;

// When a collection that is kept was changed last, and what it is called, for people's eyes.
QString TimeOfKept(const Skin& skin, const KeptEntry& kept);
QString NameOfKept(const KeptEntry& kept);

// How long ago that was.
QString AgeOfKept(const Skin& skin, const KeptEntry& kept, std::int64_t now);

}  // namespace zorik
