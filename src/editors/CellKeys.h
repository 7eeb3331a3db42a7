#pragma once

#include <QPoint>
#include <QSize>
#include <optional>

#include "editors/ToolTable.h"

class QKeyEvent;

namespace zorik {

class EditKom;

// The cell that an arrow key, Page Up, Page Down, Home or End leads to; with Ctrl further than without. The
// page is how many cells are seen. Nothing for other keys.
std::optional<QPoint> CellOfKey(const QKeyEvent& event, QPoint from, QSize cave, QSize page);

// The keys in the picture of the cave. Space draws where the mark is; held while the mark is led elsewhere it
// draws along. Shift leads a selection, Ctrl with arrows moves what is selected, K picks, Enter puts down,
// Esc gives up.
class CellKeys {
 public:
  explicit CellKeys(EditKom& picture) : picture_(picture) {}

  // These tell whether the key was meant for the picture.
  bool Press(QKeyEvent& event);
  bool Release(const QKeyEvent& event);

  // Space is held, and nothing was drawn with it.
  bool SpaceWaits() const { return state_ == State::Waits; }
  // A stroke goes on by keys.
  bool Strokes() const { return state_ == State::Held || state_ == State::Latched; }
  // Whatever is held counts no more.
  void Forget();

 private:
  enum class State {
    Idle,
    Waits,    // Space went down
    Held,     // and the mark was led on with it
    Latched,  // a shape was begun by a tap, and waits for its end
  };

  void Space(const QKeyEvent& event);
  bool Lead(const QKeyEvent& event);
  void Begin();
  void LeadStroke(QPoint cell);
  void LeadSelection(QPoint from, QPoint to);

  EditKom& picture_;
  State state_ = State::Idle;
  ToolButton button_ = ToolButton::Left;
  std::optional<QPoint> anchor_;  // where the selection was begun
};

}  // namespace zorik
