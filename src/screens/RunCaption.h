#pragma once

#include <QString>

#include "core/Hra.h"

namespace zorik {

class Skin;

// What the title of the game window says of a run: the collection, the cave, and who plays.
QString RunCaption(const Hra& hra, const Skin& skin);

}  // namespace zorik
