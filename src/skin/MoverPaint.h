#pragma once

#include <QRect>

#include "skin/Pixels.h"
#include "skin/TileSets.h"
#include "view/ViewMotion.h"

namespace zorik {

// Paints what is on its way over a rectangle of a view that has been painted without it. way goes from 0
// to 1.
void PaintMovers(const ViewMotion& motion, const DrawnView& drawn, TileSets& tiles, double way,
                 const QRect& rect, const Pixels& pixels);

}  // namespace zorik
