#pragma once

#include <QObject>
#include <cstdint>
#include <map>
#include <optional>

class QKeyEvent;

namespace zorik {

// A key means something to the window in which it went down, and to no other until it has been let go: who
// holds Enter does not run through all windows that follow. A window that was hidden is another one when it
// shows again. Works on all windows of the program for as long as it lives.
class HeldKeys : public QObject {
  Q_OBJECT

 public:
  HeldKeys();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  struct Hold {
    const QObject* window;   // in which the key went down; none when that is gone
    bool sure = true;        // that the key has not been let go elsewhere
    std::uint64_t last = 0;  // when it was heard of, milliseconds of the desktop; 0 where that is not known
  };
  struct Released {
    std::uint64_t place;
    Hold hold;
    std::uint64_t time;
  };

  // Whether the press means nothing to the window.
  bool Stale(const QKeyEvent& event, const QObject* window);
  static bool IsPressAnew(const QKeyEvent& event, const Hold& hold);
  Hold Found(const QKeyEvent& event, const QObject* window) const;
  void LetGo(const QKeyEvent& event);
  void Forget(const QObject* window);

  std::map<std::uint64_t, Hold> held_;  // by place on the keyboard
  std::optional<Released> released_;    // the last
};

}  // namespace zorik
