#pragma once

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <filesystem>
#include <system_error>

#include "data/Cp1250.h"
#include "platform/FolderAlias.h"
#include "platform/UserFolders.h"

namespace zorik {

// Where this user's stores lie. The names tell the toolkit's own way to them, and of no file that it would
// read.
inline QString StoreFolder() {
  const std::string config = ConfigFolder();
  if (!IsUtf8(config)) {
    std::error_code error;
    std::filesystem::create_directories(config + "/Ortvan", error);
    return FolderAlias(config + "/Ortvan");
  }
  const QSettings other(QSettings::IniFormat, QSettings::UserScope, "Ortvan.none", "none");
  return QFileInfo(QFileInfo(other.fileName()).path()).path() + "/Ortvan";
}

// A pipe or device; the toolkit would wait for somebody at its other end.
inline bool IsNoFile(const QString& path) {
  struct stat status = {};
  const bool there = stat(QFile::encodeName(path).constData(), &status) == 0;
  return there && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

// The file of a store. Where something else is in its place there is none, and none can be made.
inline QString StoreFile(const char* name) {
  const QString file = StoreFolder() + '/' + name + ".ini";
  if (IsNoFile(file)) return file + "/none";
  return IsNoFile(file + ".lock") ? file + ".lock/none" : file;
}

// What this user's games and editors keep, by the name of a store. A game that was killed while it wrote may
// have left the store locked, and the next one would wait half a minute for that; the lock of a game that
// lives stays.
struct UserStore : QSettings {
  explicit UserStore(const char* name) : QSettings(StoreFile(name), QSettings::IniFormat) {
    QLockFile(fileName() + ".lock").removeStaleLockFile();
  }
};

// What the player has chosen, and the places of the editors' windows.
struct ZorikStore : UserStore {
  ZorikStore() : UserStore("Zorik2") {}
};

}  // namespace zorik
