#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace zorik::test {

// Stands in for the desktop's opener: the only program that is found. It writes what it is asked to open into
// a file and ends with an exit code.
class DesktopStandIn {
 public:
  explicit DesktopStandIn(int exitCode) : path_(qgetenv("PATH")) {
    Script("xdg-open", "#!/bin/sh\nread -r process </proc/$$/stat\necho \"$process\" >'" + folder_.path() +
                           "/process'\nprintf '%s' \"$1\" >'" + Asked() + "'\nexit " +
                           QString::number(exitCode) + '\n');
    qputenv("PATH", QFile::encodeName(folder_.path()));
  }
  ~DesktopStandIn() {
    // Until the opener has ended the game waits for its answer.
    static_cast<void>(QTest::qWaitFor([] { return !HasChildren(); }, 5000));
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qputenv("PATH", path_);
  }
  DesktopStandIn(const DesktopStandIn&) = delete;
  DesktopStandIn& operator=(const DesktopStandIn&) = delete;

  // What was to be opened; waits for it.
  QString Opened() const {
    QString asked;
    const auto read = [&] {
      QFile file(Asked());
      if (file.open(QIODevice::ReadOnly)) asked = QString::fromUtf8(file.readAll());
      return !asked.isEmpty();
    };
    static_cast<void>(QTest::qWaitFor(read, 5000));
    return asked;
  }

  // The session in which the opener ran; 0 if none did.
  int Session() const {
    QFile file(folder_.path() + "/process");
    if (!file.open(QIODevice::ReadOnly)) return 0;
    // Behind the name: the state, and the numbers of the parent, the group and the session.
    const QByteArray about = file.readAll();
    return about.mid(about.lastIndexOf(')') + 2).split(' ').value(3).toInt();
  }

  bool Called() const { return QFile::exists(Asked()); }

 private:
  // Whether a process that this one has started is still there.
  static bool HasChildren() {
    QFile children("/proc/thread-self/children");
    return children.open(QIODevice::ReadOnly) && !children.readAll().trimmed().isEmpty();
  }

  QString Asked() const { return folder_.path() + "/asked"; }

  void Script(const QString& name, const QString& lines) const {
    QFile file(folder_.path() + '/' + name);
    if (!file.open(QIODevice::WriteOnly)) return;
    file.write(lines.toUtf8());
    file.setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
  }

  QTemporaryDir folder_;
  QByteArray path_;
};

}  // namespace zorik::test
