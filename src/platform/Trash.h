#pragma once

#include <QString>

#include "data/ResultFwd.h"

namespace zorik {

// Moves a file into the desktop's trash. Fails where there is none: the file lies on another disk than the
// user's own files, its name is no UTF-8, or the trash takes nothing. It stays where it is then.
Result<Done> MoveToTrash(const QString& path);

}  // namespace zorik
