#pragma once

#include <QString>
#include <string>

namespace zorik {

// The user's home as a string that leads there, and the folder of his programs' settings.
QString HomeText();
std::string ConfigFolder();

}  // namespace zorik
