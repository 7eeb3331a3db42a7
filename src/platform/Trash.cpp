#include "platform/Trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTemporaryFile>

#include "data/Cp1250.h"
#include "platform/PathText.h"

namespace zorik {
namespace {

// The toolkit would look for a free name without end where no file can be made at all.
bool TakesFiles(const QString& folder) {
  return QDir().mkpath(folder) && QTemporaryFile(folder + "/XXXXXX").open();
}

}  // namespace

bool MoveToTrash(const QString& path) {
  // The toolkit would take another file for one whose name is no UTF-8.
  if (!IsUtf8(PathBytes(path))) return false;
  const QString trash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash";
  if (QStorageInfo(path) != QStorageInfo(QDir::home())) return false;
  return TakesFiles(trash + "/info") && TakesFiles(trash + "/files") && QFile::moveToTrash(path);
}

}  // namespace zorik
