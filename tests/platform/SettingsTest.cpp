#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <csignal>
#include <utility>

#include "data/Result.h"
#include "platform/Settings.h"

namespace zorik {
namespace {

// The stores as they lie on the disk.
struct IniStore : QSettings {
  explicit IniStore(const char* name)
      : QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", name) {}
};

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() {
    IniStore("Zorik").clear();
    IniStore("Zorik2").clear();
  }
};

TEST_F(SettingsTest, TheFirstRunWritesTheDefaults) {
  EXPECT_EQ(FindSett(), Settings());
  const IniStore store("Zorik2");
  EXPECT_EQ(store.value("Speed").toInt(), 8);
  EXPECT_EQ(store.value("SpeedR").toInt(), 1);
  EXPECT_EQ(store.value("Sound").toInt(), 1);
  EXPECT_EQ(store.value("Joystick").toInt(), 0);
  EXPECT_EQ(store.value("NoSurprise").toInt(), 0);
  EXPECT_EQ(store.value("Volume").toInt(), 10);
  EXPECT_EQ(store.value("Loops").toInt(), 1);
  for (const char* name : {"Ghost", "SmoothMotion", "LessFlashing", "PauseOnFocusLoss"})
    EXPECT_EQ(store.value(name).toString(), "0") << name;
}

TEST_F(SettingsTest, AFirstStartIsOneOfWhichNothingIsStored) {
  EXPECT_TRUE(IsFirstStart());
  FindSett();
  EXPECT_FALSE(IsFirstStart());
  IniStore("Zorik2").clear();
  EXPECT_TRUE(StoreSkin("English"));
  EXPECT_FALSE(IsFirstStart()) << "who has chosen a skin is not asked for the language";
}

TEST_F(SettingsTest, TheVolumeAndTheLoopsAreKept) {
  Settings quiet;
  quiet.Volume = 3;
  quiet.Loops = false;
  ASSERT_TRUE(StoreSett(quiet));
  EXPECT_EQ(FindSett(), quiet);
}

TEST_F(SettingsTest, EachOfTheLaterOptionsIsKeptUnderItsOwnName) {
  const std::pair<const char*, bool Settings::*> kOptions[] = {
      {"Ghost", &Settings::Ghost},
      {"SmoothMotion", &Settings::SmoothMotion},
      {"LessFlashing", &Settings::LessFlashing},
      {"PauseOnFocusLoss", &Settings::PauseOnFocusLoss}};
  for (const auto& [name, option] : kOptions) {
    Settings one;
    one.*option = true;
    ASSERT_TRUE(StoreSett(one));
    EXPECT_EQ(FindSett(), one) << name;
    IniStore("Zorik2").setValue(name, 0);
    EXPECT_EQ(FindSett(), Settings()) << name;
  }
}

TEST_F(SettingsTest, ThePlayersOwnKeysAreKept) {
  Settings own;
  own.Keys.Choose(KeyUse::Left, {Qt::Key_J});
  own.Pad.Choose(PadUse::Pause, 7);
  ASSERT_TRUE(StoreSett(own));
  EXPECT_EQ(FindSett(), own);
  IniStore("Zorik2").setValue("KeyLeft", "many");
  IniStore("Zorik2").setValue("PadPause", "some");
  EXPECT_EQ(FindSett(), Settings());
}

TEST_F(SettingsTest, AVolumeOutOfRangeIsLimited) {
  EXPECT_TRUE(StoreSett(Settings()));
  const std::pair<const char*, int> kValues[] = {{"-3", 0}, {"0", 0}, {"11", 10}, {"loud", 10}, {"", 10}};
  for (const auto& [value, volume] : kValues) {
    IniStore("Zorik2").setValue("Volume", value);
    EXPECT_EQ(FindSett().Volume, volume) << value;
  }
}

TEST_F(SettingsTest, ASpeedOutOfRangeIsLimited) {
  for (const auto& [name, speed] :
       {std::pair("Speed", &Settings::Speed), std::pair("SpeedR", &Settings::SpeedR)}) {
    EXPECT_TRUE(StoreSett(Settings()));
    for (const auto& [value, read] :
         {std::pair("-3", 1), std::pair("1", 1), std::pair("10", 10), std::pair("11", 10)}) {
      IniStore("Zorik2").setValue(name, value);
      EXPECT_EQ(FindSett().*speed, read) << name << ' ' << value;
    }
  }
}

TEST_F(SettingsTest, OfAnOlderGameAreFullyLoudAndHaveNoneOfTheLaterOptions) {
  EXPECT_TRUE(StoreSett(Settings()));
  for (const char* name : {"Volume", "Loops", "Ghost", "SmoothMotion", "LessFlashing", "PauseOnFocusLoss"})
    IniStore("Zorik2").remove(name);
  EXPECT_EQ(FindSett(), Settings());
}

TEST_F(SettingsTest, TheSkinIsStoredByItself) {
  FindSett();
  EXPECT_TRUE(StoreSkin("English"));
  EXPECT_TRUE(StoreSett(Settings()));
  EXPECT_EQ(FindSett().Skin, "English");
}

TEST_F(SettingsTest, TheLastPlayerIsTheFirstUntilOneIsStored) {
  EXPECT_EQ(ReadPosledniHrac(), 0);
  StorePosledniHrac(3);
  EXPECT_EQ(ReadPosledniHrac(), 3);
  EXPECT_EQ(IniStore("Zorik").value("PosledniHrac").toInt(), 3);
}

TEST_F(SettingsTest, ALastPlayerThatIsNoPlaceIsTheFirst) {
  for (const char* value : {"-1", "Adam", ""}) {
    IniStore("Zorik").setValue("PosledniHrac", value);
    EXPECT_EQ(ReadPosledniHrac(), 0) << value;
  }
}

TEST_F(SettingsTest, TheStateOfTheGameWindowIsAFlag) {
  StoreMaximized(true);
  EXPECT_EQ(IniStore("Zorik").value("Maximized").toInt(), 1);
  StoreMaximized(false);
  EXPECT_EQ(IniStore("Zorik").value("Maximized", 7).toInt(), 0);
}

TEST_F(SettingsTest, TheProgramsFolderIsStoredAsPath) {
  StorePath("/opt/zorik");
  EXPECT_EQ(IniStore("Zorik2").value("Path").toString(), "/opt/zorik");
}

TEST_F(SettingsTest, AStoreThatIsGarbageGivesTheDefaults) {
  const QString file = IniStore("Zorik2").fileName();
  ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
  QFile garbage(file);
  ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
  garbage.write(QByteArray("\x00\xFF[[[=%%%\n\nSpeed=many\n", 22));
  garbage.close();
  EXPECT_EQ(FindSett(), Settings());
}

TEST_F(SettingsTest, ArePlainlyMissingWhereAPipeIsInTheirPlace) {
  const QString file = IniStore("Zorik2").fileName();
  ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
  for (const QString& pipe : {file, file + ".lock"}) {
    QFile::remove(pipe);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe), 0666), 0);
    alarm(20);
    EXPECT_EQ(FindSett(), Settings());
    EXPECT_FALSE(StoreSett(Settings()));
    alarm(0);
    ASSERT_TRUE(QFile::remove(pipe));
  }
}

TEST_F(SettingsTest, CannotBeStoredWhereAFolderIsInTheirPlace) {
  const QString file = IniStore("Zorik2").fileName();
  QFile::remove(file);
  ASSERT_TRUE(QDir().mkpath(file + "/x"));
  EXPECT_EQ(FindSett(), Settings());
  EXPECT_FALSE(StoreSett(Settings()));
  EXPECT_TRUE(QDir(file).removeRecursively());
}

// What is on the disk, as bytes.
QByteArray StoreBytes() {
  QFile store(IniStore("Zorik2").fileName());
  EXPECT_TRUE(store.open(QIODevice::ReadOnly));
  return store.readAll();
}

const Settings kSlow{.Speed = 10, .SpeedR = 9, .Sound = false, .Joystick = true, .NoSurprise = true};

TEST_F(SettingsTest, AreTheOldOrTheNewOnesWhenTheGameIsKilledWhileItStoresThem) {
  constexpr int kTries = 40;
  constexpr int kMostTries = 200;  // on a disk that is so slow that nothing has been written by then
  const Settings fast;
  EXPECT_TRUE(StoreSett(kSlow));
  const QByteArray slowBytes = StoreBytes();
  EXPECT_TRUE(StoreSett(fast));
  const QByteArray fastBytes = StoreBytes();
  ASSERT_NE(slowBytes, fastBytes);
  int killedAt[2] = {};
  for (int i = 1; i <= kTries || (killedAt[0] == 0 && i <= kMostTries); ++i) {
    const pid_t child = fork();
    if (child == 0) {
      for (;;) {
        Disregard(StoreSett(kSlow));  // this process is killed within one of them
        Disregard(StoreSett(fast));
      }
    }
    ASSERT_GT(child, 0);
    usleep(static_cast<useconds_t>(1000 + i * 300));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const QByteArray bytes = StoreBytes();
    ASSERT_TRUE(bytes == slowBytes || bytes == fastBytes) << bytes.toStdString();
    ++killedAt[bytes == slowBytes ? 0 : 1];
  }
  EXPECT_GT(killedAt[0], 0) << "none came to writing";
  EXPECT_TRUE(StoreSett(kSlow));
  EXPECT_EQ(FindSett(), kSlow) << "what a killed game has left stands in nobody's way";
}

TEST_F(SettingsTest, AreStoredAtOnceThoughAKilledGameHasLeftALock) {
  for (const char* name : {"Zorik", "Zorik2"}) {
    const QString file = IniStore(name).fileName();
    QDir().mkpath(QFileInfo(file).path());
    QFile lock(file + ".lock");
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
  }
  QElapsedTimer clock;
  clock.start();
  EXPECT_TRUE(StoreSett(kSlow));
  StorePosledniHrac(3);
  EXPECT_LT(clock.elapsed(), 5000) << "an empty lock is waited for half a minute";
  EXPECT_EQ(FindSett(), kSlow);
  EXPECT_EQ(ReadPosledniHrac(), 3);
}

TEST_F(SettingsTest, AreStoredWhenTheGameThatIsStoringThemHasDone) {
  QDir().mkpath(QFileInfo(IniStore("Zorik2").fileName()).path());
  QLockFile other(IniStore("Zorik2").fileName() + ".lock");
  ASSERT_TRUE(other.lock());
  const pid_t child = fork();
  if (child == 0) {
    Disregard(StoreSett(kSlow));  // the parent reads what came of it
    _exit(0);
  }
  usleep(100000);
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, WNOHANG), 0) << "it has not waited";
  other.unlock();
  waitpid(child, &status, 0);
  EXPECT_EQ(FindSett(), kSlow);
}

TEST_F(SettingsTest, StayAsTheyWereWhenTheDiskIsFull) {
  EXPECT_TRUE(StoreSett(kSlow));
  const QByteArray before = StoreBytes();
  const pid_t child = fork();
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit most{10, 10};
    setrlimit(RLIMIT_FSIZE, &most);
    const bool stored = StoreSett(Settings()) || StoreSkin("English");
    _exit(stored ? 1 : 0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0) << "it says that it is stored";
  EXPECT_EQ(StoreBytes(), before);
  EXPECT_EQ(FindSett(), kSlow);
}

}  // namespace
}  // namespace zorik
