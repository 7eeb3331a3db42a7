#pragma once

#include <QPoint>
#include <optional>

class QMouseEvent;
class QScrollBar;

namespace zorik {

class EditKom;

// Moves the picture of the cave like a sheet of paper: by the left button while Space is held, or by the
// wheel button with Shift. Space that was held for this draws nothing, and the wheel button without Shift
// draws.
class HandPan {
 public:
  HandPan(EditKom& picture, QScrollBar& across, QScrollBar& down)
      : picture_(picture), across_(across), down_(down) {}

  // What the mouse does to the picture. These tell whether it was meant for this.
  bool Press(const QMouseEvent& event);
  bool Move(const QMouseEvent& event);
  bool Release(const QMouseEvent& event);

 private:
  struct Grip {
    QPoint pointer;  // on the screen
    QPoint bars;
  };

  EditKom& picture_;
  QScrollBar& across_;
  QScrollBar& down_;
  std::optional<Grip> grip_;
};

}  // namespace zorik
