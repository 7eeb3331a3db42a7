#pragma once

#include <string>

namespace zorik {

// The folder of the program that runs; the current one where the system does not tell.
std::string RunningProgramFolder();

// Where an installation has the data of the game, seen from the folder of its programs.
std::string InstalledData(const std::string& programFolder);

}  // namespace zorik
