#include "platform/Inbox.h"

#include <QLocalSocket>
#include <QStandardPaths>
#include <utility>

#include "platform/PathText.h"

namespace zorik {
namespace {

// A message is a path and a zero byte; the answer is one byte.
constexpr char kEnd = '\0';
constexpr char kTaken = '+';
constexpr qint64 kLongestMessage = 65536;

constexpr int kPatience = 3000;  // milliseconds; a game that is busy may answer late

bool SomebodyListens(const QString& place) {
  QLocalSocket socket;
  socket.connectToServer(place);
  return socket.waitForConnected(kPatience);
}

}  // namespace

QString InboxPlace() {
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/zorik.socket";
}

Inbox::Inbox(std::function<void(const QString& path)> arrived, const QString& place)
    : arrived_(std::move(arrived)) {
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Welcome(); });
  // Listening would push another game's socket aside.
  if (SomebodyListens(place)) return;
  // What a game that did not end in order has left behind.
  QLocalServer::removeServer(place);
  server_.listen(place);
}

void Inbox::Welcome() {
  while (QLocalSocket* const guest = server_.nextPendingConnection()) {
    QObject::connect(guest, &QLocalSocket::disconnected, guest, &QObject::deleteLater);
    QObject::connect(guest, &QLocalSocket::readyRead, guest, [this, guest] { Take(*guest); });
    Take(*guest);
  }
}

void Inbox::Take(QLocalSocket& guest) {
  const QByteArray message = guest.peek(kLongestMessage);
  const qsizetype end = message.indexOf(kEnd);
  if (end < 0) {
    if (message.size() >= kLongestMessage) guest.abort();
    return;
  }
  guest.readAll();
  guest.write(&kTaken, 1);
  guest.disconnectFromServer();
  // Later, since whoever is told may open a dialog, and the guest goes meanwhile.
  const QString path = PathText(message.left(end).toStdString());
  QMetaObject::invokeMethod(
      &server_, [this, path] { arrived_(path); }, Qt::QueuedConnection);
}

bool HandOver(const QString& path, const QString& place) {
  QLocalSocket socket;
  socket.connectToServer(place);
  if (!socket.waitForConnected(kPatience)) return false;
  socket.write(QByteArray::fromStdString(PathBytes(path)) + kEnd);
  char answer = 0;
  while (socket.bytesAvailable() == 0 && socket.waitForReadyRead(kPatience)) {
  }
  return socket.read(&answer, 1) == 1 && answer == kTaken;
}

QString TakeFileFromStart() {
  const QString path = PathText(qgetenv(kOpenVariable).toStdString());
  qunsetenv(kOpenVariable);
  return path;
}

}  // namespace zorik
