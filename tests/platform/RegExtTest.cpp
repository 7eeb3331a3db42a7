#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>
#include <algorithm>
#include <filesystem>

#include "data/Files.h"
#include "data/Result.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 5000;  // milliseconds

// A game that registers its types, on a desktop whose programs write down how they are called.
class RegExtTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* const folder : {"game", "bin", "home", "usr", "config"})
      fs::create_directory(root_ / folder);
    fs::copy_file(ZORIK_REGEXT, root_ / "game/zorik");
    ASSERT_TRUE(WriteWhole((root_ / "game/downloader").string(), "x"));
  }

  void DesktopHas(const std::string& program) const {
    const fs::path path = root_ / "bin" / program;
    ASSERT_TRUE(WriteWhole(
        path.string(), "#!/bin/sh\necho said\necho warned >&2\necho \"${0##*/} $*\" >>'" + Asked() + "'\n"));
    fs::permissions(path, fs::perms::owner_all);
  }

  void Register(const QString& collectionWords) const {
    QProcessEnvironment around = QProcessEnvironment::systemEnvironment();
    around.insert("PATH", At("bin"));
    around.insert("XDG_DATA_HOME", At("home"));
    around.insert("XDG_DATA_DIRS", At("usr"));
    around.insert("XDG_CONFIG_HOME", At("config"));
    QProcess game;
    game.setProcessEnvironment(around);
    game.setStandardOutputFile(At("said"));
    game.setStandardErrorFile(At("warned"));
    game.start(At("game/zorik"), {collectionWords, "Záznam hry"});
    ASSERT_TRUE(game.waitForFinished(kPatience));
    ASSERT_EQ(game.exitCode(), 0);
  }

  // What the desktop's programs were called with, once there are so many calls; sorted, since nobody waits
  // for them.
  QStringList Calls(int number) const {
    QStringList calls;
    const auto read = [&] {
      QFile file(QString::fromStdString(Asked()));
      if (!file.open(QIODevice::ReadOnly)) return false;
      calls = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
      return calls.size() >= number;
    };
    EXPECT_TRUE(QTest::qWaitFor(read, kPatience)) << "calls: " << calls.size();
    calls.sort();
    return calls;
  }

  QString At(const char* name) const { return QString::fromStdString((root_ / name).string()); }
  std::string Asked() const { return (root_ / "asked").string(); }

  test::TempFolder temp_{"regext"};
  const fs::path root_ = temp_.Path();
};

TEST_F(RegExtTest, HasTheDesktopLookThroughTheFoldersThatItHasWrittenInto) {
  DesktopHas("update-mime-database");
  DesktopHas("update-desktop-database");
  DesktopHas("xdg-mime");
  Register("Sada komnat");
  EXPECT_TRUE(fs::exists(root_ / "home/mime/packages/zorik.xml"));
  EXPECT_TRUE(fs::exists(root_ / "home/applications/zorik-open.desktop"));
  EXPECT_EQ(Calls(2), (QStringList{"update-desktop-database " + At("home/applications"),
                                   "update-mime-database " + At("home/mime")}));
}

// A player who starts the game in a terminal reads there what the game says, not what its helpers do.
TEST_F(RegExtTest, KeepsTheWordsOfTheDesktopsProgramsToThem) {
  for (const char* const program : {"update-mime-database", "update-desktop-database"}) DesktopHas(program);
  Register("Sada komnat");
  ASSERT_EQ(Calls(2).size(), 2);
  for (const char* const words : {"said", "warned"})
    EXPECT_EQ(*ReadWhole(At(words).toStdString()), "") << words;
}

TEST_F(RegExtTest, NamesItsEntryForItsTypesWhereNothingLooksThroughAllEntries) {
  DesktopHas("xdg-mime");
  Register("Sada komnat");
  EXPECT_EQ(Calls(1),
            QStringList{"xdg-mime default zorik-open.desktop application/x-morvek application/x-morvek-cave "
                        "application/x-morvek-record application/x-morvek-data"});
}

TEST_F(RegExtTest, LeavesTheDesktopAloneWhereNothingHasChanged) {
  DesktopHas("update-mime-database");
  DesktopHas("update-desktop-database");
  Register("Sada komnat");
  ASSERT_EQ(Calls(2).size(), 2);
  Register("Sada komnat");
  QTest::qWait(300);
  EXPECT_EQ(Calls(2).size(), 2) << "it is told of nothing new";
  Register("Cave collection");
  EXPECT_EQ(Calls(4).size(), 4);
}

TEST_F(RegExtTest, IsNoFaultOfADesktopWithoutSuchPrograms) {
  Register("Sada komnat");
  EXPECT_TRUE(fs::exists(root_ / "home/applications/zorik-open.desktop"));
}

}  // namespace
}  // namespace zorik
