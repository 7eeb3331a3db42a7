#include "editors/WindowPlace.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>
#include <algorithm>

namespace zorik {
namespace {

struct Store : QSettings {
  Store() : QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2") {}
};

QString KeyOf(const QWidget& window) {
  return "Editors/" + window.objectName();
}

constexpr const char* kCellSize = "Editors/CellSize";

}  // namespace

void StoreSize(const QWidget& window) {
  Store().setValue(KeyOf(window), window.saveGeometry());
}

bool RestoreSize(QWidget& window) {
  return window.restoreGeometry(Store().value(KeyOf(window)).toByteArray());
}

void PutInMiddle(QWidget& window) {
  const QRect screen = window.screen()->availableGeometry();
  window.resize(window.size().boundedTo(screen.size()));
  const QPoint corner = screen.center() - window.rect().center();
  window.move(std::max(corner.x(), screen.left()), std::max(corner.y(), screen.top()));
}

int ReadCellSize() {
  return Store().value(kCellSize).toInt();
}

void StoreCellSize(int size) {
  Store().setValue(kCellSize, size);
}

}  // namespace zorik
