#pragma once

#include <QLockFile>
#include <QSettings>

namespace zorik {

// What this user's games and editors keep, by the name of a store. A game that was killed while it wrote may
// have left the store locked, and the next one would wait half a minute for that; the lock of a game that
// lives stays.
struct UserStore : QSettings {
  explicit UserStore(const char* name)
      : QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", name) {
    QLockFile(fileName() + ".lock").removeStaleLockFile();
  }
};

// What the player has chosen, and the places of the editors' windows.
struct ZorikStore : UserStore {
  ZorikStore() : UserStore("Zorik2") {}
};

}  // namespace zorik
