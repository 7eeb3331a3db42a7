#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>
#include <QStringList>
#include <functional>
#include <string>

#include "data/ResultFwd.h"

class QLocalSocket;

namespace zorik {

// Where the game of a home folder takes what comes from outside: the path of its socket. Games of different
// homes have different ones, however the way to the home is written.
QString InboxPlace(const std::string& home);

// The game's end. Only one game of a home has it; the system frees it when that game ends, in whatever way.
class Inbox {
 public:
  explicit Inbox(const QString& place);

  // Whether another game has this place, so that this one has no business here.
  bool Taken() const { return taken_; }

  bool Listening() const { return server_.isListening(); }

  // Who is told the absolute path of each file, and an empty one when the game is to show itself. What came
  // before is told now.
  void Deliver(std::function<void(const QString& path)> arrived);

 private:
  void Welcome();
  void Take(QLocalSocket& guest);
  void TellLater();
  void TellAll();

  std::function<void(const QString&)> arrived_;
  QStringList kept_;  // until somebody is there to be told
  QLockFile lock_;
  bool taken_ = false;
  QLocalServer server_;
};

// The other end: hands an absolute path to the running game, or an empty one to make it show itself. Fails
// when no game answers.
Result<Done> HandOver(const QString& path, const QString& place);

// The same for a game that is known to be there, but may have been started just now.
Result<Done> HandOverPatiently(const QString& path, const QString& place);

// The path of the file that the game was started for, and empty from the second time on.
QString TakeFileFromStart();

// The name under which the environment hold that path.
inline constexpr const char* kOpenVariable = "ZORIK_OPEN";

}  // namespace zorik
