#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir user;
  qputenv("XDG_DATA_HOME", user.path().toUtf8() + "/data");
  qputenv("XDG_CONFIG_HOME", user.path().toUtf8() + "/config");
  qputenv("XDG_RUNTIME_DIR", user.path().toUtf8());
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, user.path() + "/config");
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
