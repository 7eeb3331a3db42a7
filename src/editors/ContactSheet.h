#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "skin/SkinPlaces.h"

namespace zorik {

// A picture of a collection: its name, and below it all caves as they begin, small, in rows, each with its
// number and its name. The caves are texts, in Windows-1250.
QImage ContactSheet(const SkinPlaces& places, const QString& title, const std::vector<std::string>& caves);

// Where the cave of this place, from 0, is drawn in the picture of so many caves.
QRect PlaceOnSheet(std::size_t cave, std::size_t caves);

}  // namespace zorik
