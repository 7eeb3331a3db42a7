#include "editors/WindowPlace.h"

#include <QSettings>
#include <QWidget>

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

int ReadCellSize() {
  return Store().value(kCellSize).toInt();
}

void StoreCellSize(int size) {
  Store().setValue(kCellSize, size);
}

}  // namespace zorik
