#include "platform/Settings.h"

#include <algorithm>
#include <array>

#include "data/Result.h"
#include "platform/PathText.h"
#include "platform/UserStore.h"

namespace zorik {
namespace {

// What belongs to the start screen.
struct StartStore : UserStore {
  StartStore() : UserStore("Zorik") {}
};

int ReadSpeed(const QSettings& store, const char* name) {
  return std::clamp(store.value(name).toInt(), 1, 10);
}

struct Flag {
  const char* name;
  bool Settings::*value;
};
constexpr std::array kFlags{Flag{"NoSurprise", &Settings::NoSurprise},
                            Flag{"Sound", &Settings::Sound},
                            Flag{"Joystick", &Settings::Joystick},
                            Flag{"Loops", &Settings::Loops},
                            Flag{"Ghost", &Settings::Ghost},
                            Flag{"SmoothMotion", &Settings::SmoothMotion},
                            Flag{"LessFlashing", &Settings::LessFlashing},
                            Flag{"PauseOnFocusLoss", &Settings::PauseOnFocusLoss}};

// One that is not stored stays as it is.
void ReadFlag(const QSettings& store, const Flag& flag, Settings& settings) {
  bool& value = settings.*flag.value;
  value = store.value(flag.name, value ? 1 : 0).toInt() != 0;
}

// A value that is no number must not make the game mute.
int ReadVolume(const QSettings& store) {
  bool number = false;
  const int volume = store.value("Volume", kFullVolume).toInt(&number);
  return number ? std::clamp(volume, 0, kFullVolume) : kFullVolume;
}

bool HoldsSettings(const QSettings& store) {
  return store.value("Speed").toInt() != 0;
}

Result<Done> Write(QSettings& store) {
  store.sync();
  if (store.status() == QSettings::NoError) return Done{};
  return Failure{"cannot write the settings to " + PathBytes(store.fileName())};
}

// Spares the disk what it holds already.
void StoreIfNew(QSettings& store, const char* name, const QString& value) {
  if (store.value(name).toString() != value) store.setValue(name, value);
}

}  // namespace

bool IsFirstStart() {
  const ZorikStore store;
  return !HoldsSettings(store) && !store.contains("Skin");
}

Settings FindSett() {
  Settings settings;
  const ZorikStore store;
  settings.Skin = store.value("Skin", settings.Skin).toString();
  if (!HoldsSettings(store)) {
    Disregard(StoreSett(settings));  // without a store these defaults come at every start
    return settings;
  }
  settings.Speed = ReadSpeed(store, "Speed");
  settings.SpeedR = ReadSpeed(store, "SpeedR");
  settings.Volume = ReadVolume(store);
  for (const Flag& flag : kFlags) ReadFlag(store, flag, settings);
  settings.Keys = KeyMap::Read(store);
  settings.Pad = PadMap::Read(store);
  return settings;
}

Result<Done> StoreSett(const Settings& settings) {
  ZorikStore store;
  store.setValue("Speed", settings.Speed);
  store.setValue("SpeedR", settings.SpeedR);
  store.setValue("Volume", settings.Volume);
  for (const Flag& flag : kFlags) store.setValue(flag.name, settings.*flag.value ? 1 : 0);
  settings.Keys.Write(store);
  settings.Pad.Write(store);
  return Write(store);
}

Result<Done> StoreSkin(const QString& skin) {
  ZorikStore store;
  store.setValue("Skin", skin);
  return Write(store);
}

void StorePath(const QString& folder) {
  ZorikStore store;
  StoreIfNew(store, "Path", folder);
}

int ReadPosledniHrac() {
  return std::max(0, StartStore().value("PosledniHrac").toInt());
}

void StorePosledniHrac(int place) {
  StartStore store;
  StoreIfNew(store, "PosledniHrac", QString::number(place));
}

void StoreMaximized(bool maximized) {
  StartStore().setValue("Maximized", maximized ? 1 : 0);
}

}  // namespace zorik
