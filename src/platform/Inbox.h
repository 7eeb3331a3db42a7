#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>

class QLocalSocket;

namespace zorik {

// Where the running game of this user takes files that are opened from the desktop: the path of its socket.
QString InboxPlace();

// The game's end. Only the first of several games of a user has one that listens.
class Inbox {
 public:
  // arrived is told the absolute path of each file.
  explicit Inbox(std::function<void(const QString& path)> arrived, const QString& place = InboxPlace());

  bool Listening() const { return server_.isListening(); }

 private:
  void Welcome();
  void Take(QLocalSocket& guest);

  std::function<void(const QString&)> arrived_;
  QLocalServer server_;
};

// The other end: hands an absolute path to the running game. False when no game answers.
bool HandOver(const QString& path, const QString& place = InboxPlace());

// The path of the file that the game was started for, and empty from the second time on.
QString TakeFileFromStart();

// The name under which the surroundings hold that path.
inline constexpr const char* kOpenVariable = "ZORIK_OPEN";

}  // namespace zorik
