#pragma once

#include <QString>

namespace zorik {

class Skin;

// The name of an object in the skin's language: that of its tile. A letter without one goes by itself.
QString NameOfLetter(const Skin& skin, char letter);

// The name of a tile; the dog's has its number.
QString NameOfTool(const Skin& skin, int palette, int dog);

}  // namespace zorik
