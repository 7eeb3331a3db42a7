#include "platform/Trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTemporaryFile>

#include "data/Cp1250.h"
#include "data/Result.h"
#include "platform/PathText.h"

namespace zorik {
namespace {

// The toolkit would look for a free name without end where no file can be made at all.
bool TakesFiles(const QString& folder) {
  return QDir().mkpath(folder) && QTemporaryFile(folder + "/XXXXXX").open();
}

}  // namespace

Result<Done> MoveToTrash(const QString& path) {
  const Failure failure{"cannot move " + PathBytes(path) + " into the trash"};
  // The toolkit would take another file for one whose name is no UTF-8.
  if (!IsUtf8(PathBytes(path))) return failure;
  const QString trash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash";
  if (QStorageInfo(path) != QStorageInfo(QDir::home())) return failure;
  if (!TakesFiles(trash + "/info") || !TakesFiles(trash + "/files") || !QFile::moveToTrash(path))
    return failure;
  return Done{};
}

}  // namespace zorik
