#include "platform/Inbox.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <filesystem>
#include <system_error>
#include <utility>

#include "data/Result.h"
#include "platform/PathText.h"

namespace zorik {
namespace {

// A message is a path and a zero byte; the answer is one byte.
constexpr char kEnd = '\0';
constexpr char kTaken = '+';
constexpr qint64 kLongestMessage = 65536;

constexpr int kPatience = 3000;       // milliseconds; a game that is busy may answer late
constexpr int kLongPatience = 10000;  // for one that is just starting
constexpr int kBetweenTries = 100;
constexpr int kNameLetters = 16;

}  // namespace

QString InboxPlace(const std::string& home) {
  std::error_code error;
  // A folder that is not there yet has the name by which it will be known once it is.
  const std::filesystem::path below = std::filesystem::absolute(home, error) / "zorik.socket";
  const std::filesystem::path whole = std::filesystem::weakly_canonical(below, error);
  const QByteArray name = QByteArray::fromStdString(error ? home : whole.string());
  const QByteArray hash = QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex();
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/zorik-" +
         QString::fromLatin1(hash.left(kNameLetters)) + ".socket";
}

// Without a place for the lock a game goes on by itself. Only who has the lock touches the socket: listening
// pushes aside what a game that did not end in order has left behind, and would do so to one that lives.
Inbox::Inbox(const QString& place) : lock_(place + ".lock") {
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Welcome(); });
  lock_.setStaleLockTime(0);  // however long a game runs
  if (!lock_.tryLock()) {
    taken_ = lock_.error() == QLockFile::LockFailedError;
    return;
  }
  QLocalServer::removeServer(place);
  server_.listen(place);
}

void Inbox::Deliver(std::function<void(const QString& path)> arrived) {
  arrived_ = std::move(arrived);
  TellLater();
}

// Whoever is told may open a dialog, and the guest goes meanwhile.
void Inbox::TellLater() {
  QMetaObject::invokeMethod(
      &server_, [this] { TellAll(); }, Qt::QueuedConnection);
}

void Inbox::TellAll() {
  while (arrived_ && !kept_.isEmpty()) arrived_(kept_.takeFirst());
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
  kept_.push_back(PathText(message.left(end).toStdString()));
  TellLater();
}

Result<Done> HandOver(const QString& path, const QString& place) {
  const Failure failure{"no game answers at " + PathBytes(place)};
  QLocalSocket socket;
  socket.connectToServer(place);
  if (!socket.waitForConnected(kPatience)) return failure;
  socket.write(QByteArray::fromStdString(PathBytes(path)) + kEnd);
  char answer = 0;
  while (socket.bytesAvailable() == 0 && socket.waitForReadyRead(kPatience)) {
  }
  if (socket.read(&answer, 1) != 1 || answer != kTaken) return failure;
  return Done{};
}

Result<Done> HandOverPatiently(const QString& path, const QString& place) {
  QElapsedTimer clock;
  clock.start();
  for (;;) {
    Result<Done> handed = HandOver(path, place);
    if (handed || clock.elapsed() > kLongPatience) return handed;
    QThread::msleep(kBetweenTries);
  }
}

QString TakeFileFromStart() {
  const QString path = PathText(qgetenv(kOpenVariable).toStdString());
  qunsetenv(kOpenVariable);
  return path;
}

}  // namespace zorik
