#include <QCoreApplication>
#include <QProcess>
#include <QUrl>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

#include "data/Result.h"
#include "platform/Inbox.h"
#include "platform/PathText.h"
#include "platform/Paths.h"

namespace {

using zorik::Done;
using zorik::Failure;
using zorik::Result;

// What the desktop opens is named by its path or, now and then, by its link.
QString PathOf(const QByteArray& name) {
  const QUrl link = name.startsWith("file:") ? QUrl::fromEncoded(name) : QUrl();
  const QByteArray path =
      link.isLocalFile() ? QByteArray::fromPercentEncoding(link.path(QUrl::FullyEncoded).toLatin1()) : name;
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(path.toStdString(), error);
  return zorik::PathText(error ? path.toStdString() : whole.lexically_normal().string());
}

Result<Done> StartGame(const QString& path) {
  QProcess game;
  game.setProgram(QCoreApplication::applicationDirPath() + "/zorik");
  qputenv(zorik::kOpenVariable, QByteArray::fromStdString(zorik::PathBytes(path)));
  if (game.startDetached()) return Done{};
  return Failure{"the game does not start"};
}

}  // namespace

// Hands a file that was opened from the desktop to the game: to the one that runs on
// the same home folder, or to a new one.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QByteArray name = argc == 2 ? argv[1] : "";
  if (name.isEmpty()) {
    std::fputs("usage: downloader FILE\nOpens a collection (.zk) or a record (.zkr) in Zorík.\n", stderr);
    return 2;
  }
  const QString path = PathOf(name);
  const std::string programs = QCoreApplication::applicationDirPath().toStdString();
  const std::string home = zorik::OwnFolder(zorik::ReadEnvironment(programs));
  if (zorik::HandOver(path, zorik::InboxPlace(home))) return 0;
  const Result<Done> started = StartGame(path);
  if (started) return 0;
  std::fprintf(stderr, "downloader: %s\n", started.Message().c_str());
  return 1;
}
