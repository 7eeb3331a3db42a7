#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QUrl>
#include <cstdio>
#include <string>

#include "platform/Inbox.h"
#include "platform/Paths.h"

namespace {

// What the desktop opens is named by its path or, now and then, by its link.
QString PathOf(const QString& name) {
  const QString path = name.startsWith("file:") ? QUrl(name).toLocalFile() : name;
  return QFileInfo(path).absoluteFilePath();
}

bool StartGame(const QString& path) {
  QProcess game;
  game.setProgram(QCoreApplication::applicationDirPath() + "/zorik");
  QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
  surroundings.insert(zorik::kOpenVariable, path);
  game.setProcessEnvironment(surroundings);
  return game.startDetached();
}

}  // namespace

// Hands a file that was opened from the desktop to the game: to the one that runs on
// the same home folder, or to a new one.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2 || arguments[1].isEmpty()) {
    std::fputs("usage: downloader FILE\nOpens a collection (.zk) or a record (.zkr) in Zorík.\n", stderr);
    return 2;
  }
  const QString path = PathOf(arguments[1]);
  const std::string programs = QCoreApplication::applicationDirPath().toStdString();
  const std::string home = zorik::OwnFolder(zorik::ReadSurroundings(programs));
  if (zorik::HandOver(path, zorik::InboxPlace(home)) || StartGame(path)) return 0;
  std::fputs("downloader: the game does not start\n", stderr);
  return 1;
}
