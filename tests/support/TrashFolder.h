#pragma once

#include <QString>
#include <QtGlobal>

namespace zorik::test {

// The trash of the desktop lies in the user's data folder, which is HOME/data while this lives.
class TrashFolder {
 public:
  explicit TrashFolder(const QString& home) {
    qputenv("HOME", home.toUtf8());
    qputenv("XDG_DATA_HOME", (home + "/data").toUtf8());
  }
  ~TrashFolder() {
    qputenv("HOME", home_);
    data_.isEmpty() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", data_);
  }
  TrashFolder(const TrashFolder&) = delete;
  TrashFolder& operator=(const TrashFolder&) = delete;

 private:
  QByteArray home_ = qgetenv("HOME");
  QByteArray data_ = qgetenv("XDG_DATA_HOME");
};

}  // namespace zorik::test
