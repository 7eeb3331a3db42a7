#include "skin/GameFont.h"

#include <QFontDatabase>
#include <QStringList>

namespace zorik {

QFont GameFont(int pixelSize) {
  const QStringList there = QFontDatabase::families();
  QFont font;
  for (const char* name : {"Comic Sans MS", "Comic Neue", "Arial", "Liberation Sans", "DejaVu Sans"}) {
    if (!there.contains(name)) continue;
    font.setFamily(name);
    break;
  }
  font.setPixelSize(pixelSize);
  return font;
}

}  // namespace zorik
