#include "platform/FileTypes.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <array>
#include <filesystem>
#include <system_error>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "platform/FolderAlias.h"
#include "platform/Settings.h"
#include "platform/UserFolders.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr const char* kHelper = "downloader";
constexpr const char* kEntry = "applications/zorik-open.desktop";
constexpr const char* kPackage = "mime/packages/zorik.xml";

constexpr const char* kFamily = "application/x-morvek";

constexpr const char* kCave = "application/x-morvek-cave";
constexpr const char* kRecord = "application/x-morvek-record";
constexpr const char* kData = "application/x-morvek-data";
constexpr std::array kTypes = {kFamily, kCave, kRecord, kData};

std::string EscapedXml(const std::string& text) {
  std::string escaped;
  for (const char character : text) {
    switch (character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      default:
        if (static_cast<unsigned char>(character) >= ' ') escaped += character;
    }
  }
  return escaped;
}

// One of the types; all that have a pattern belong to the family.
std::string MimeType(const std::string& type, const std::string& words, const char* pattern) {
  std::string element =
      "  <mime-type type=\"" + type + "\">\n    <comment>" + EscapedXml(words) + "</comment>\n";
  if (pattern != nullptr) {
    element += std::string("    <sub-class-of type=\"") + kFamily + "\"/>\n    <glob pattern=\"" + pattern +
               "\"/>\n";
  }
  return element + "  </mime-type>\n";
}

// As desktop entries want their values.
std::string EscapedValue(const std::string& text) {
  std::string escaped;
  for (const char character : text) {
    if (character == '\\') {
      escaped += "\\\\";
    } else if (character == '\n') {
      escaped += "\\n";
    } else {
      escaped += character;
    }
  }
  return escaped;
}

// One word of a command line.
std::string Quoted(const std::string& word) {
  std::string quoted = "\"";
  for (const char character : word) {
    if (character == '"' || character == '`' || character == '$' || character == '\\') quoted += '\\';
    if (character == '%') quoted += '%';
    quoted += character;
  }
  return quoted + '"';
}

bool SystemHasThem(const std::vector<std::string>& folders) {
  for (const fs::path folder : folders) {
    std::error_code error;
    if (fs::exists(folder / kEntry, error) && fs::exists(folder / kPackage, error)) return true;
  }
  return false;
}

Result<Written> Put(const fs::path& path, const std::string& bytes) {
  const auto old = ReadWhole(path.string());
  if (old && *old == bytes) return Written::Nothing;
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  const Result<Done> written = WriteWhole(path.string(), bytes);
  if (!written) return Failure{written.Message()};
  return Written::Something;
}

// Runs one of the desktop's own programs and does not wait for it. Fails when the desktop has it not.
Result<Done> Run(const char* program, const QStringList& arguments) {
  const QString path = QStandardPaths::findExecutable(program);
  const Failure failure{std::string(program) + " cannot be run"};
  if (path.isEmpty()) return failure;
  QProcess process;
  process.setProgram(path);
  process.setArguments(arguments);
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  if (!process.startDetached()) return failure;
  return Done{};
}

// Without the program that looks through all entries, this one is named as that of its types. A desktop that
// lacks the others as well finds the files when it looks anew by itself.
void TellDesktop(const QString& dataHome) {
  Disregard(Run("update-mime-database", {dataHome + "/mime"}));
  if (Run("update-desktop-database", {dataHome + "/applications"})) return;
  QStringList arguments = {"default", QFileInfo(kEntry).fileName()};
  for (const char* const type : kTypes) arguments.push_back(type);
  Disregard(Run("xdg-mime", arguments));
}

}  // namespace

FileTypes FileTypesHere(const std::string& collectionWords, const std::string& recordWords) {
  FileTypes types;
  QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
  if (!folders.isEmpty()) folders.removeFirst();  // the user's own
  types.DataHome = DataFolder();
  for (const QString& folder : folders) types.DataFolders.push_back(folder.toStdString());
  types.ProgramFolder = QCoreApplication::applicationDirPath().toStdString();
  types.CollectionWords = collectionWords;
  types.RecordWords = recordWords;
  return types;
}

std::string MimePackage(const std::string& collectionWords, const std::string& recordWords) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n" +
         MimeType(kFamily, "Morvek", nullptr) + MimeType(kCave, collectionWords, "*.zk") +
         MimeType(kRecord, recordWords, "*.zkr") + MimeType(kData, "Morvek Data File", "*.zkd") +
         "</mime-info>\n";
}

std::string OpenerEntry(const std::string& programFolder) {
  const std::string helper = programFolder + "/" + kHelper;
  std::string entry =
      "[Desktop Entry]\n"
      "Type=Application\n"
      "Name=Zorík\n"
      "Icon=zorik\n"
      "NoDisplay=true\n"
      "TryExec=" +
      EscapedValue(helper) + "\nExec=" + EscapedValue(Quoted(helper)) + " %f\nMimeType=";
  for (const char* const type : kTypes) entry += std::string(type) + ";";
  return entry + "\n";
}

Result<Written> WriteFileTypes(const FileTypes& types) {
  std::error_code error;
  // An entry of the desktop can hold no path that is not UTF-8.
  const bool helper =
      IsUtf8(types.ProgramFolder) && fs::exists(fs::path(types.ProgramFolder) / kHelper, error);
  if (types.DataHome.empty() || !helper) return Written::Nothing;
  const fs::path home = types.DataHome;
  // What another copy of the game has once written for this user stands before what the system has.
  if (SystemHasThem(types.DataFolders) && !fs::exists(home / kEntry, error)) return Written::Nothing;
  const Result<Written> entry = Put(home / kEntry, OpenerEntry(types.ProgramFolder));
  const Result<Written> package = Put(home / kPackage, MimePackage(types.CollectionWords, types.RecordWords));
  if (!entry) return entry;
  if (!package) return package;
  return *entry == Written::Something ? entry : package;
}

void RegExt(const std::string& collectionWords, const std::string& recordWords) {
  const FileTypes types = FileTypesHere(collectionWords, recordWords);
  StorePath(QString::fromStdString(types.ProgramFolder));
  const Result<Written> written = WriteFileTypes(types);
  if (!written || *written == Written::Nothing) return;
  TellDesktop(FolderAlias(types.DataHome));
}

}  // namespace zorik
