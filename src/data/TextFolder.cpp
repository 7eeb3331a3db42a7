#include "data/TextFolder.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/ReadableText.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

bool StaysInFolder(const std::string& name) {
  return !name.empty() && name.find('/') == std::string::npos;
}

FileFailure CannotWrite(const fs::path& path, const std::error_code& error) {
  return FileFailure{{"cannot write " + path.string() + ": " + error.message()},
                     TroubleOf(error.value(), FileUse::Write)};
}

Result<Done, FileFailure> WriteAll(const TextFiles& files, const fs::path& folder) {
  for (const auto& [name, content] : files) {
    const Result<Done, FileFailure> written = WriteFile((folder / name).string(), content);
    if (!written) return written;
  }
  return Done{};
}

Result<Done, FileFailure> MoveAll(const TextFiles& files, const fs::path& from, const fs::path& to) {
  for (const auto& [name, content] : files) {
    std::error_code error;
    fs::rename(from / name, to / name, error);
    if (error) return CannotWrite(to / name, error);
  }
  return Done{};
}

// All of them aside, then each into its place.
Result<Done, FileFailure> WriteInto(const fs::path& place, const TextFiles& files) {
  std::error_code error;
  const fs::path aside = place / (".zorik-" + std::to_string(getpid()));
  if (!fs::create_directory(aside, error)) {
    return CannotWrite(aside, error ? error : std::make_error_code(std::errc::file_exists));
  }
  Result<Done, FileFailure> result = WriteAll(files, aside);
  if (result) result = MoveAll(files, aside, place);
  fs::remove_all(aside, error);
  return result;
}

}  // namespace

std::vector<std::string> NamedCaveFiles(std::string_view collectionFile) {
  std::vector<std::string> names;
  const auto entries = ReadEntries(kCollectionFile, collectionFile);
  if (!entries) return names;
  for (const ReadableEntry& entry : *entries) {
    if (entry.key == "cave") names.push_back(ToUtf8(entry.Text()));
    if (entry.key == "line" && EndsWithMarker(entry.Text())) names.emplace_back();
  }
  return names;
}

Result<TextFiles, TextFailure> ReadTexts(const std::string& folder) {
  const std::string start = folder + "/";
  const Result<std::string> content = ReadWhole(start + kCollectionFile);
  if (!content) return TextFailure{{content.Message()}, kCollectionFile};
  TextFiles files{{kCollectionFile, *content}};
  for (const std::string& name : NamedCaveFiles(*content)) {
    if (!StaysInFolder(name)) continue;
    Result<std::string> cave = ReadWhole(start + name);
    if (!cave) return TextFailure{{cave.Message()}, name};
    files[name] = std::move(*cave);
  }
  return files;
}

Result<Done, FileFailure> WriteTexts(const TextFiles& files, const std::string& folder) {
  const fs::path place = folder;
  std::error_code error;
  const bool made = fs::create_directories(place, error);
  if (error) return CannotWrite(place, error);
  Result<Done, FileFailure> result = WriteInto(place, files);
  // One that holds something by now stays.
  if (!result && made) fs::remove(place, error);
  return result;
}

bool HoldsSomething(const std::string& folder) {
  std::error_code error;
  return fs::is_directory(folder, error) && !fs::is_empty(folder, error) && !error;
}

TextPlace PlaceOfFailure(std::string_view message) {
  constexpr std::string_view kLine = ", line ", kEnd = ": ";
  const std::size_t end = message.find(kEnd);
  if (end == std::string_view::npos) return {{}, 0, std::string(message)};
  const std::string_view place = message.substr(0, end);
  const std::string reason(message.substr(end + kEnd.size()));
  const std::size_t line = place.rfind(kLine);
  if (line == std::string_view::npos) return {std::string(place), 0, reason};
  const auto number = NumberOf(place.substr(line + kLine.size()), 1, 1'000'000'000);
  if (!number) return {std::string(place), 0, reason};
  return {std::string(place.substr(0, line)), *number, reason};
}

}  // namespace zorik
