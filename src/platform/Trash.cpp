#include "platform/Trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTemporaryFile>

namespace zorik {
namespace {

// The toolkit would look for a free name without end where no file can be made at all.
bool TakesFiles(const QString& folder) {
  return QDir().mkpath(folder) && QTemporaryFile(folder + "/XXXXXX").open();
}

}  // namespace

bool MoveToTrash(const QString& path) {
  const QString trash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash";
  if (QStorageInfo(path) != QStorageInfo(QDir::home())) return false;
  return TakesFiles(trash + "/info") && TakesFiles(trash + "/files") && QFile::moveToTrash(path);
}

}  // namespace zorik
