#include "data/ProgramFolder.h"

#include <filesystem>
#include <system_error>

namespace zorik {

namespace fs = std::filesystem;

std::string RunningProgramFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? "." : program.parent_path().string();
}

std::string InstalledData(const std::string& programFolder) {
  return (fs::path(programFolder) / ".." / ZORIK_DATA).lexically_normal().string();
}

}  // namespace zorik
