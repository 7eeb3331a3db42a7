#pragma once

#include <QImage>

namespace zorik {

class CavePainter;
struct Hra;

// The whole cave of a run as the game shows it at this moment, a cell so many pixels wide and high.
QImage WholeCave(CavePainter& painter, const Hra& run, int cell);

}  // namespace zorik
