#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "support/TempFolder.h"

using zorik::test::TempFolder;

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir user;
  qputenv("XDG_DATA_HOME", user.path().toUtf8() + "/data");
  qputenv("XDG_CONFIG_HOME", user.path().toUtf8() + "/config");
  const TempFolder sockets("run", TempFolder::kShort);
  qputenv("XDG_RUNTIME_DIR", sockets.Path().c_str());
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, user.path() + "/config");
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
