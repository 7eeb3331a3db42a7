#pragma once

#include <QString>
#include <string>

namespace zorik {

// The user's home as a string that leads there, and the folders of his programs' settings and data. The
// toolkit's own answers are others where a name is no UTF-8 or depends on where one stands.
QString HomeText();
std::string ConfigFolder();
std::string DataFolder();

}  // namespace zorik
