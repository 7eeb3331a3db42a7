#include "data/Progress.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <system_error>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "zktool/Commands.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

// The last component of the path, in Windows-1250, also where the path ends in a slash or is ".".
std::string NameOfFolder(const std::string& path) {
  std::error_code error;
  fs::path whole = fs::absolute(path, error).lexically_normal();
  if (!whole.has_filename()) whole = whole.parent_path();
  const std::string name = whole.filename().string();
  return FromUtf8(name).value_or(FromUtf8Lossy(name));
}

// A name that leaves the table a table.
std::string OnOneLine(std::string name) {
  std::replace_if(
      name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; },
      ' ');
  return ToUtf8(name);
}

void Print(const PlayedCollection& collection, const Progress& progress, std::ostream& out) {
  for (std::size_t i = 1; i <= collection.Caves.size(); ++i) {
    out << i << "\t" << static_cast<int>(progress.CaveStates[i]) << "\t" << progress.Scores[i] << "\t"
        << OnOneLine(collection.Caves[i - 1].Record.Name) << "\n";
  }
  out << "total=" << progress.Total << " done=" << progress.Done << " rest=" << progress.Rest << "\n";
}

}  // namespace

Exit ProgressCommand(const CommandLine& line, Console& console) {
  const std::string& path = line.operands[0];
  const std::string& folder = line.operands[1];
  const Result<std::string> bytes = ReadStream(path);
  if (!bytes) return Fail(console, Exit::CannotRead, bytes.Message());
  std::error_code error;
  if (!fs::is_directory(folder, error)) {
    return Fail(console, Exit::CannotRead, "there is no folder " + folder);
  }
  const Result<PlayedCollection> collection = ReadForPlay(*bytes);
  if (!collection) return Fail(console, Exit::BadCollection, path + ": " + collection.Message());
  Print(*collection, ReadProgress(*collection, NameOfFolder(folder), RecordsInFolder(folder)), console.out);
  return Exit::Fine;
}

}  // namespace zorik
