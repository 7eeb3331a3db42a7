#include "data/ProofFile.h"

#include <filesystem>

#include "data/CaveO.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/KeepBeside.h"

namespace zorik {

std::string ProofPath(const std::string& collection, std::string_view caveName, int number) {
  const std::filesystem::path file(collection);
  const std::string stem = file.stem().string();
  std::string name = FromUtf8(stem).value_or(stem) + " - " + std::string(caveName);
  if (number > 1) name += " (" + std::to_string(number) + ')';
  return ResolvePath((file.parent_path() / FileSystemName(CleanFileName(name) + ".zkr")).string());
}

Result<std::string, FileFailure> StoreProof(const std::string& path, const std::string& record) {
  if (const Result<std::string> held = ReadWhole(path); held && *held == record) return std::string();
  Result<std::string, FileFailure> kept = KeepBeside(path);
  if (!kept) return kept;
  const Result<Done, FileFailure> written = WriteFile(path, record);
  if (!written) return written.Why();
  return kept;
}

}  // namespace zorik
