#include "screens/StartFolders.h"

#include <QCollator>
#include <QDir>
#include <QLocale>
#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/Scramble.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr int kLengthOffset = 65;  // what the letter of a length is above it

void SortAsPeopleDo(QStringList& names) {
  QCollator order((QLocale(QLocale::Czech)));
  order.setNumericMode(true);
  order.setCaseSensitivity(Qt::CaseInsensitive);
  std::sort(names.begin(), names.end(), [&order](const QString& one, const QString& other) {
    const int way = order.compare(one, other);
    return way != 0 ? way < 0 : one < other;
  });
}

bool IsControl(char character) {
  return static_cast<unsigned char>(character) < ' ';
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

bool Exists(const std::string& path) {
  std::error_code error;
  return fs::exists(ResolvePath(path), error);
}

}  // namespace

QString CollName(const std::string& path) {
  const auto bytes = ReadWhole(path);
  const std::optional<std::string> name = bytes ? NameIn(*bytes) : std::nullopt;
  return QString::fromStdString(name ? ToUtf8(*name) : fs::path(path).stem().string());
}

std::vector<CollRow> ReadColls(const std::string& folder) {
  QStringList files = QDir(QString::fromStdString(folder)).entryList({"*.zk"}, QDir::Files);
  SortAsPeopleDo(files);
  std::vector<CollRow> rows;
  for (const QString& file : files) rows.push_back({file, CollName(folder + "/" + file.toStdString())});
  return rows;
}

QStringList ReadPlayers(const std::string& folder) {
  QStringList names = QDir(QString::fromStdString(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  names.removeIf([](const QString& name) { return !FromUtf8(name.toStdString()); });
  SortAsPeopleDo(names);
  return names;
}

Result<Done> AddPlayer(const std::string& folder, const std::string& name) {
  const std::string path = folder + "/" + FileSystemName(name);
  if (Exists(path)) return Failure{path + " is there already"};
  std::error_code error;
  fs::create_directories(path, error);
  if (error) return Failure{"cannot make the folder " + path + ": " + error.message()};
  return Done{};
}

Result<std::string> CopyColl(const std::string& path, const std::string& folder) {
  const auto bytes = ReadWhole(path);
  if (!bytes) return Failure{bytes.Message()};
  const fs::path source(path);
  std::string stem = source.stem().string();
  const auto target = [&] { return folder + "/" + stem + source.extension().string(); };
  while (Exists(target())) stem += '~';
  const auto written = WriteWhole(target(), *bytes);
  if (!written) return Failure{written.Message()};
  return target();
}

bool LiesIn(const std::string& path, const std::string& folder) {
  std::error_code error;
  return fs::equivalent(fs::path(path).parent_path(), folder, error) && !error;
}

}  // namespace zorik
