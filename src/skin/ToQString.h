#pragma once

#include <QString>
#include <string_view>

#include "data/Cp1250.h"

namespace zorik {

// A text of the machine, Windows-1250, as a control shows it.
inline QString ToQString(std::string_view bytes) {
  return QString::fromStdString(ToUtf8(bytes));
}

}  // namespace zorik
