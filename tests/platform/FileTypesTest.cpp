#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSettings>
#include <QXmlStreamReader>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/FileTypes.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

class FileTypesTest : public testing::Test {
 protected:
  FileTypesTest() {
    types_.DataHome = At("home");
    types_.DataFolders = {At("local"), At("usr")};
    types_.ProgramFolder = At("game");
    types_.CollectionWords = "Sada komnat";
    types_.RecordWords = "Záznam hry";
    File("game/downloader");
  }

  std::string At(const fs::path& path) const { return (root_ / path).string(); }

  void File(const fs::path& path) const {
    fs::create_directories((root_ / path).parent_path());
    std::ofstream(root_ / path) << "x";
  }

  // Whether there was something to write.
  bool HasWritten() const {
    const Result<Written> written = WriteFileTypes(types_);
    EXPECT_TRUE(written) << written.Message();
    return written && *written == Written::Something;
  }

  std::string Entry() const { return *ReadWhole(At("home/applications/zorik-open.desktop")); }
  std::string Package() const { return *ReadWhole(At("home/mime/packages/zorik.xml")); }

  test::TempFolder temp_{"types"};
  const fs::path root_ = temp_.Path();
  FileTypes types_;
};

// The value of a key of a desktop entry.
std::string ValueOf(const std::string& entry, const std::string& key) {
  const std::size_t start = entry.find("\n" + key + "=");
  if (start == std::string::npos) return "absent";
  const std::size_t value = start + key.size() + 2;
  return entry.substr(value, entry.find('\n', value) - value);
}

TEST_F(FileTypesTest, WritesTheEntryAndThePackageForTheUser) {
  EXPECT_TRUE(HasWritten());
  EXPECT_EQ(Entry(), OpenerEntry(types_.ProgramFolder));
  EXPECT_EQ(Package(), MimePackage("Sada komnat", "Záznam hry"));
}

TEST_F(FileTypesTest, HasNothingToDoTheSecondTime) {
  EXPECT_TRUE(HasWritten());
  EXPECT_FALSE(HasWritten());
}

TEST_F(FileTypesTest, OverwritesWhatStandsThere) {
  ASSERT_TRUE(HasWritten());
  ASSERT_TRUE(WriteWhole(At("home/applications/zorik-open.desktop"), "something else"));
  EXPECT_TRUE(HasWritten());
  EXPECT_EQ(Entry(), OpenerEntry(types_.ProgramFolder));
  types_.CollectionWords = "Cave collection";
  EXPECT_TRUE(HasWritten());
  EXPECT_NE(Package().find("<comment>Cave collection</comment>"), std::string::npos);
}

TEST_F(FileTypesTest, LeavesItToAnInstallationForTheWholeSystem) {
  File("usr/applications/zorik-open.desktop");
  EXPECT_TRUE(HasWritten()) << "half an installation is none";
  fs::remove_all(At("home"));
  File("usr/mime/packages/zorik.xml");
  EXPECT_FALSE(HasWritten());
  EXPECT_FALSE(fs::exists(At("home")));
}

TEST_F(FileTypesTest, TheUsersOwnEntryWhichStandsBeforeTheSystemsFollowsTheGameThatIsPlayed) {
  ASSERT_TRUE(HasWritten()) << "played in a build folder";
  File("usr/games/downloader");
  File("usr/applications/zorik-open.desktop");
  File("usr/mime/packages/zorik.xml");
  types_.ProgramFolder = At("usr/games");
  EXPECT_TRUE(HasWritten()) << "installed after that";
  EXPECT_EQ(Entry(), OpenerEntry(At("usr/games")));
}

TEST_F(FileTypesTest, LeavesItToNoInstallationThatHasNoEntry) {
  File("local/mime/packages/zorik.xml");
  File("usr/mime/packages/zorik.xml");
  EXPECT_TRUE(HasWritten());
  fs::remove_all(At("home"));
  File("local/applications/zorik-open.desktop");
  EXPECT_FALSE(HasWritten());
}

TEST_F(FileTypesTest, WritesNothingWithoutTheHelper) {
  fs::remove(At("game/downloader"));
  EXPECT_FALSE(HasWritten());
  EXPECT_FALSE(fs::exists(At("home")));
}

TEST_F(FileTypesTest, GoesOnWhereItMayNotWrite) {
  File("home");  // a file where a folder should be
  const Result<Written> written = WriteFileTypes(types_);
  ASSERT_FALSE(written);
  EXPECT_NE(written.Message().find(At("home")), std::string::npos) << written.Message();
  EXPECT_EQ(*ReadWhole(At("home")), "x");
}

TEST_F(FileTypesTest, TheEntryOpensTheThreeTypesWithTheHelper) {
  const std::string entry = OpenerEntry("/opt/zorik");
  EXPECT_EQ(entry.rfind("[Desktop Entry]\n", 0), 0U);
  EXPECT_EQ(ValueOf(entry, "Type"), "Application");
  EXPECT_EQ(ValueOf(entry, "Exec"), "\"/opt/zorik/downloader\" %f");
  EXPECT_EQ(ValueOf(entry, "TryExec"), "/opt/zorik/downloader");
  EXPECT_EQ(ValueOf(entry, "MimeType"),
            "application/x-morvek;application/x-morvek-cave;application/x-morvek-record;"
            "application/x-morvek-data;");
}

TEST_F(FileTypesTest, TheEntryQuotesOddFolders) {
  // A quoted word has a backslash before each of " ` $ \, and a value doubles its backslashes after that.
  EXPECT_EQ(ValueOf(OpenerEntry("/a b"), "Exec"), "\"/a b/downloader\" %f");
  EXPECT_EQ(ValueOf(OpenerEntry("/$x`\""), "Exec"), R"("/\\$x\\`\\"/downloader" %f)");
  EXPECT_EQ(ValueOf(OpenerEntry("/a\\b"), "Exec"), R"("/a\\\\b/downloader" %f)");
  EXPECT_EQ(ValueOf(OpenerEntry("/100%"), "Exec"), "\"/100%%/downloader\" %f");
  EXPECT_EQ(ValueOf(OpenerEntry("/a\\b"), "TryExec"), R"(/a\\b/downloader)");
}

struct Type {
  QString comment;
  QString pattern;
  QString family;
};

std::map<QString, Type> TypesOf(const std::string& package) {
  std::map<QString, Type> types;
  QXmlStreamReader reader(QByteArray::fromStdString(package));
  Type* type = nullptr;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const auto name = reader.name();
    if (name == u"mime-type") type = &types[reader.attributes().value("type").toString()];
    if (name == u"comment") type->comment = reader.readElementText();
    if (name == u"glob") type->pattern = reader.attributes().value("pattern").toString();
    if (name == u"sub-class-of") type->family = reader.attributes().value("type").toString();
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return types;
}

TEST_F(FileTypesTest, ThePackageNamesThreeKindsOfOneFamily) {
  auto types = TypesOf(MimePackage("Sada komnat", "Záznam hry"));
  EXPECT_EQ(types.size(), 4U);
  EXPECT_EQ(types["application/x-morvek-cave"].pattern, "*.zk");
  EXPECT_EQ(types["application/x-morvek-cave"].comment, "Sada komnat");
  EXPECT_EQ(types["application/x-morvek-record"].pattern, "*.zkr");
  EXPECT_EQ(types["application/x-morvek-record"].comment, "Záznam hry");
  EXPECT_EQ(types["application/x-morvek-data"].pattern, "*.zkd");
  EXPECT_EQ(types["application/x-morvek-data"].comment, "Morvek Data File");
  for (const char* kind : {"cave", "record", "data"}) {
    EXPECT_EQ(types[QString("application/x-morvek-") + kind].family, "application/x-morvek");
  }
}

TEST_F(FileTypesTest, ThePackageSurvivesAnyWords) {
  auto types = TypesOf(MimePackage("<a> & \"b\"\x01", ""));
  EXPECT_EQ(types["application/x-morvek-cave"].comment, "<a> & \"b\"");
}

TEST_F(FileTypesTest, AnInstallationHasTheSameTypesAndTheSameOpener) {
  const auto package = ReadWhole(ZORIK_PACKAGING "/zorik.xml");
  ASSERT_TRUE(package);
  const auto own = TypesOf(MimePackage("", ""));
  const auto shipped = TypesOf(*package);
  ASSERT_EQ(shipped.size(), own.size());
  for (const auto& [name, type] : own) {
    ASSERT_TRUE(shipped.contains(name)) << name.toStdString();
    EXPECT_EQ(shipped.at(name).pattern, type.pattern);
    EXPECT_EQ(shipped.at(name).family, type.family);
  }
  const auto entry = ReadWhole(ZORIK_PACKAGING "/zorik-open.desktop");
  ASSERT_TRUE(entry);
  EXPECT_EQ(ValueOf(*entry, "MimeType"), ValueOf(OpenerEntry("/opt"), "MimeType"));
  EXPECT_EQ(ValueOf(*entry, "Exec"), "downloader %f");
}

TEST_F(FileTypesTest, TheProgramsFolderIsStored) {
  RegExt("Sada komnat", "Záznam hry");
  const QSettings store(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2");
  EXPECT_EQ(store.value("Path").toString(), QCoreApplication::applicationDirPath());
}

TEST_F(FileTypesTest, TheUsersFolderIsTheDesktopsOwn) {
  const FileTypes here = FileTypesHere("Sada", "Záznam");
  EXPECT_EQ(here.DataHome, qgetenv("XDG_DATA_HOME").toStdString());
  EXPECT_EQ(here.ProgramFolder, QCoreApplication::applicationDirPath().toStdString());
  EXPECT_EQ(std::count(here.DataFolders.begin(), here.DataFolders.end(), here.DataHome), 0);
}

TEST_F(FileTypesTest, TheUsersFolderIsBelowHomeWhereTheDesktopNamesNone) {
  const QByteArray home = qgetenv("HOME"), named = qgetenv("XDG_DATA_HOME");
  qputenv("HOME", QByteArray::fromStdString(At("home")));
  for (const char* none : {"", "relative", static_cast<const char*>(nullptr)}) {
    none == nullptr ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", none);
    EXPECT_EQ(FileTypesHere("Sada", "Záznam").DataHome, At("home/.local/share")) << (none ? none : "unset");
  }
  qputenv("HOME", home);
  qputenv("XDG_DATA_HOME", named);
}

}  // namespace
}  // namespace zorik
