#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

// Windows open on no screen, and what they store stays away from the user's own.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
