#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "data/Files.h"
#include "data/Readable.h"
#include "data/Result.h"
#include "zktool/Commands.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

Failure CannotWrite(const fs::path& path, const std::error_code& error) {
  return Failure{"cannot write " + path.string() + ": " + error.message()};
}

Result<Done> WriteAll(const TextFiles& files, const fs::path& folder) {
  for (const auto& [name, content] : files) {
    const Result<Done> written = WriteWhole((folder / name).string(), content);
    if (!written) return written;
  }
  return Done{};
}

Result<Done> MoveAll(const TextFiles& files, const fs::path& from, const fs::path& to) {
  for (const auto& [name, content] : files) {
    std::error_code error;
    fs::rename(from / name, to / name, error);
    if (error) return CannotWrite(to / name, error);
  }
  return Done{};
}

// All files are written aside before the first takes its place, so a full disk spoils nothing.
Result<Done> WriteTogether(const TextFiles& files, const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return CannotWrite(folder, error);
  const fs::path aside = folder / (".zktool-" + std::to_string(getpid()));
  if (!fs::create_directory(aside, error)) {
    return CannotWrite(aside, error ? error : std::make_error_code(std::errc::file_exists));
  }
  Result<Done> result = WriteAll(files, aside);
  if (result) result = MoveAll(files, aside, folder);
  fs::remove_all(aside, error);
  return result;
}

// A folder with something in it may hold an author's own files, which those of the caves would stand beside.
bool HoldsSomething(const fs::path& folder) {
  std::error_code error;
  return fs::is_directory(folder, error) && !fs::is_empty(folder, error) && !error;
}

}  // namespace

Exit UnpackCommand(const CommandLine& line, Console& console) {
  const std::string& folder = line.operands[1];
  if (!line.Has("--force") && HoldsSomething(folder)) {
    return Fail(console, Exit::CannotWrite, folder + " is not empty; name another folder, or give --force");
  }
  const Result<std::string> bytes = ReadStream(line.operands[0]);
  if (!bytes) return Fail(console, Exit::CannotRead, bytes.Message());
  const Result<Done> written = WriteTogether(UnpackCollection(*bytes), folder);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
