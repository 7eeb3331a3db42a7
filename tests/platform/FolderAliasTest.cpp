#include <gtest/gtest.h>

#include <QDir>
#include <QFileSystemWatcher>
#include <QSignalSpy>
#include <cstdlib>
#include <filesystem>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/FileTypes.h"
#include "platform/FolderAlias.h"
#include "platform/PathText.h"
#include "platform/Settings.h"
#include "platform/UserFolders.h"
#include "support/TempFolder.h"
#include "support/Waves.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;
using test::Environment;

// A home whose name is that of an old system: "kůň" in Windows-1250.
class FolderAliasTest : public testing::Test {
 protected:
  FolderAliasTest() {
    home_ = root_ + "/k\xF9\xF2";
    fs::create_directory(home_);
  }

  // What lies in the folder of the home; a toolkit that misread its name would have made another beside it.
  std::size_t Homes() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(root_), fs::directory_iterator()));
  }

  test::TempFolder temp_{"alias"};
  const std::string root_ = temp_.Path();
  std::string home_;
};

TEST_F(FolderAliasTest, IsTheFolderItselfWhereItsNameIsUtf8) {
  EXPECT_EQ(FolderAlias("/home/Kůň"), "/home/Kůň");
  EXPECT_EQ(FolderAlias(""), "");
}

TEST_F(FolderAliasTest, LeadsTheToolkitIntoAFolderWhoseNameItCannotSay) {
  const QString alias = FolderAlias(home_);
  QFile file(alias + "/a.txt");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("x");
  file.close();
  const Result<std::string> bytes = ReadWhole(home_ + "/a.txt");
  EXPECT_TRUE(bytes && *bytes == "x");
  EXPECT_EQ(QDir(alias).entryList(QDir::Files), QStringList("a.txt"));
  EXPECT_EQ(FolderAlias(home_), alias) << "the same folder is not opened twice";
}

TEST_F(FolderAliasTest, OfAFolderThatIsNotThereIsItsPath) {
  const std::string nowhere = home_ + "/nowhere";
  EXPECT_EQ(FolderAlias(nowhere), PathText(nowhere));
}

TEST_F(FolderAliasTest, LeadsProgramsThatAreStartedThereToo) {
  const std::string alias = FolderAlias(home_).toStdString();
  EXPECT_EQ(std::system(("test -d " + alias).c_str()), 0);
}

TEST_F(FolderAliasTest, LetsTheToolkitWatchTheFolder) {
  QFileSystemWatcher watcher;
  ASSERT_TRUE(watcher.addPath(FolderAlias(home_)));
  QSignalSpy changed(&watcher, &QFileSystemWatcher::directoryChanged);
  ASSERT_TRUE(WriteWhole(home_ + "/new.zk", "x"));
  EXPECT_TRUE(changed.count() > 0 || changed.wait());
}

TEST_F(FolderAliasTest, KeepsTheSettingsInAHomeWithAnOldName) {
  const Environment config("XDG_CONFIG_HOME", home_ + "/config");
  Settings settings;
  settings.Volume = 3;
  ASSERT_TRUE(StoreSett(settings));
  ASSERT_TRUE(StoreSkin("English"));
  settings.Skin = "English";
  EXPECT_EQ(FindSett(), settings);
  EXPECT_TRUE(fs::is_regular_file(home_ + "/config/Ortvan/Zorik2.ini"));
  EXPECT_EQ(Homes(), 1U);
}

TEST_F(FolderAliasTest, FindsTheSettingsBelowTheHomeToo) {
  const Environment config("XDG_CONFIG_HOME", "");
  const Environment home("HOME", home_);
  ASSERT_TRUE(StoreSkin("English"));
  EXPECT_TRUE(fs::is_regular_file(home_ + "/.config/Ortvan/Zorik2.ini"));
  EXPECT_EQ(PathBytes(HomeText()), home_);
}

TEST_F(FolderAliasTest, TakesNoRelativeFolderForThatOfTheSettings) {
  const Environment config("XDG_CONFIG_HOME", "config");
  const Environment home("HOME", home_);
  EXPECT_EQ(ConfigFolder(), home_ + "/.config");
}

TEST_F(FolderAliasTest, LeavesTheDesktopsFileTypesWhereTheyBelong) {
  const Environment data("XDG_DATA_HOME", home_ + "/data");
  EXPECT_EQ(FileTypesHere("a", "b").DataHome, home_ + "/data");
  const Environment relative("XDG_DATA_HOME", "data");
  const Environment home("HOME", home_);
  EXPECT_EQ(FileTypesHere("a", "b").DataHome, home_ + "/.local/share");
}

// The desktop could not read such an entry.
TEST_F(FolderAliasTest, WritesNoEntryForAProgramInAFolderWithAnOldName) {
  ASSERT_TRUE(WriteWhole(home_ + "/downloader", "x"));
  FileTypes types;
  types.DataHome = root_ + "/data";
  types.ProgramFolder = home_;
  const Result<Written> written = WriteFileTypes(types);
  ASSERT_TRUE(written);
  EXPECT_EQ(*written, Written::Nothing);
  EXPECT_FALSE(fs::exists(types.DataHome));
}

}  // namespace
}  // namespace zorik
