#include "skin/WholeCave.h"

#include "core/Hra.h"
#include "skin/CavePainter.h"

namespace zorik {

QImage WholeCave(CavePainter& painter, const Hra& run, int cell) {
  painter.SetScrollView(false);
  painter.CaveOpens(run);
  painter.ShowMoment(run, true);
  return painter.Compose(run, QSize(run.CaveWidth, run.CaveHeight) * cell);
}

}  // namespace zorik
