#include "skin/GameFont.h"

#include <QFontDatabase>
#include <QStringList>

namespace zorik {

namespace {

QString FindFamily() {
  const QStringList there = QFontDatabase::families();
  for (const char* name : {"Comic Sans MS", "Comic Neue", "Arial", "Liberation Sans", "DejaVu Sans"}) {
    if (there.contains(name)) return name;
  }
  return QFont().family();
}

}  // namespace

QFont GameFont(int pixelSize) {
  static const QString family = FindFamily();  // asking for all of them takes its time
  QFont font(family);
  font.setPixelSize(pixelSize);
  return font;
}

}  // namespace zorik
