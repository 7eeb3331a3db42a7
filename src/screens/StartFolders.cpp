#include "screens/StartFolders.h"

#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/FileTrouble.h"
#include "data/Files.h"
#include "data/Folders.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "platform/PathText.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr int kLengthOffset = 65;       // what the letter of a length is above it
constexpr std::size_t kNameEnd = 1024;  // bytes of a file in which its longest name, scrambled, has ended

QStringList SortedAsPeopleDo(const std::vector<std::string>& found) {
  QStringList names;
  for (const std::string& name : found) names.push_back(PathText(name));
  QCollator order((QLocale(QLocale::Czech)));
  order.setNumericMode(true);
  order.setCaseSensitivity(Qt::CaseInsensitive);
  std::sort(names.begin(), names.end(), [&order](const QString& one, const QString& other) {
    const int way = order.compare(ShownPath(one), ShownPath(other));
    return way != 0 ? way < 0 : one < other;
  });
  return names;
}

// A name that is no UTF-8 is taken for Windows-1250, in which a player can have any name.
bool CanBePlayer(const std::string& name) {
  return !IsUtf8(name) || FromUtf8(name);
}

// The name in the first line of a collection, behind the letter of its length; nothing when the line is none
// of a collection.
std::optional<std::string> NameIn(const std::string& bytes) {
  RecordLines lines(bytes, LineEnds::CrLfOrLf);
  const std::string line = UnscrambleText(lines.Next());
  if (line.empty()) return std::nullopt;
  const int length = static_cast<unsigned char>(line[0]) - kLengthOffset;
  if (length <= 0 || static_cast<std::size_t>(length) >= line.size()) return std::nullopt;
  const std::string name = line.substr(1, static_cast<std::size_t>(length));
  const bool blank = name.find_first_not_of(' ') == std::string::npos;
  if (blank || std::any_of(name.begin(), name.end(), IsControl)) return std::nullopt;
  return name;
}

// What may be the language that the name of a collection's file ends in; empty when it tells none.
QString LanguageOfFile(const QString& file) {
  constexpr qsizetype kEnd = 6;  // "-en.zk"
  const QString end = file.right(kEnd).toLower();
  return end.size() == kEnd && end[0] == '-' ? end.mid(1, 2) : QString();
}

bool Exists(const std::string& path) {
  std::error_code error;
  return fs::symlink_status(ResolvePath(path), error).type() != fs::file_type::not_found;
}

}  // namespace

QString CollName(const std::string& path) {
  const auto bytes = ReadStart(path, kNameEnd);
  const std::optional<std::string> name = bytes ? NameIn(*bytes) : std::nullopt;
  return name ? ToQString(*name) : ShownPath(fs::path(path).stem().string());
}

std::vector<CollRow> ReadColls(const std::string& folder, const QString& language) {
  QStringList files = SortedAsPeopleDo(FilesIn(folder, ".zk"));
  const auto rank = [&language](const QString& file) {
    const QString own = LanguageOfFile(file);
    if (!own.isEmpty() && own == language) return 0;
    const bool shipped = own == "cs" || own == "en";  // any other two letters may be a word
    return shipped ? 2 : 1;
  };
  std::stable_sort(files.begin(), files.end(),
                   [&rank](const QString& one, const QString& other) { return rank(one) < rank(other); });
  std::vector<CollRow> rows;
  for (const QString& file : files) {
    rows.push_back({file, CollName(folder + "/" + PathBytes(file))});
  }
  return rows;
}

QStringList ReadPlayers(const std::string& folder) {
  std::vector<std::string> names = FoldersIn(folder);
  std::erase_if(names, [](const std::string& name) { return !CanBePlayer(name); });
  return SortedAsPeopleDo(names);
}

Added AddPlayer(const std::string& folder, const std::string& name) {
  const std::string path = folder + "/" + FileSystemName(name);
  if (Exists(path)) return Added::ThereAlready;
  std::error_code error;
  fs::create_directories(path, error);
  return error ? Added::NotWritten : Added::Yes;
}

Result<std::string, FileFailure> CopyColl(const std::string& path, const std::string& folder) {
  const auto bytes = ReadFile(path);
  if (!bytes) return bytes;
  const fs::path source(path);
  std::string stem = WithoutControls(source.stem().string());
  const auto target = [&] { return folder + "/" + stem + source.extension().string(); };
  while (Exists(target())) stem += '~';
  const auto written = WriteFile(target(), *bytes);
  if (!written) return written.Why();
  return target();
}

bool LiesIn(const std::string& path, const std::string& folder) {
  std::error_code error;
  return fs::equivalent(fs::path(path).parent_path(), folder, error) && !error;
}

}  // namespace zorik
