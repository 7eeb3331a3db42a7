#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

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
}

TEST_F(SettingsTest, TheSkinIsStoredByItself) {
  FindSett();
  StoreSkin("English");
  StoreSett(Settings());
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

}  // namespace
}  // namespace zorik
