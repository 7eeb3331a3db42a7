#pragma once

#include <string>
#include <vector>

namespace zorik {

struct Paths;
struct Environment;

// The folders in which the game writes without being told where.
std::vector<std::string> WrittenFolders(const Paths& paths, const Environment& environment);

// Removes from a folder what games that were killed while they saved have left there: half files under names
// that only the game gives, of a process that is gone, and older than a minute, since with a home that
// several machines share the process may live on another one.
void SweepLeftFiles(const std::string& folder);

}  // namespace zorik
