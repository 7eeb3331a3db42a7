#include "editors/CellKeys.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

#include "editors/CellPlaces.h"
#include "editors/EditKom.h"
#include "editors/ToolButtons.h"

namespace zorik {
namespace {

constexpr int kFar = 5;  // cells that an arrow goes with Ctrl

struct Arrow {
  int key;
  QPoint step;
};
constexpr std::array<Arrow, 4> kArrows{{
    {Qt::Key_Left, {-1, 0}},
    {Qt::Key_Up, {0, -1}},
    {Qt::Key_Right, {1, 0}},
    {Qt::Key_Down, {0, 1}},
}};

std::optional<QPoint> ArrowOf(int key) {
  const auto* const arrow =
      std::find_if(kArrows.begin(), kArrows.end(), [key](const Arrow& row) { return row.key == key; });
  if (arrow == kArrows.end()) return std::nullopt;
  return arrow->step;
}

bool HasCtrl(const QKeyEvent& event) {
  return event.modifiers() & Qt::ControlModifier;
}

}  // namespace

std::optional<QPoint> CellOfKey(const QKeyEvent& event, QPoint from, QSize cave, QSize page) {
  const QRect cells({0, 0}, cave);
  const bool ctrl = HasCtrl(event);
  if (const auto arrow = ArrowOf(event.key())) return Nearest(from + *arrow * (ctrl ? kFar : 1), cells);
  const QPoint leaf = ctrl ? QPoint(page.width(), 0) : QPoint(0, page.height());
  switch (event.key()) {
    case Qt::Key_PageUp:
      return Nearest(from - leaf, cells);
    case Qt::Key_PageDown:
      return Nearest(from + leaf, cells);
    case Qt::Key_Home:
      return ctrl ? cells.topLeft() : QPoint(0, from.y());
    case Qt::Key_End:
      return ctrl ? cells.bottomRight() : QPoint(cells.right(), from.y());
    default:
      return std::nullopt;
  }
}

bool CellKeys::Press(QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Space:
      if (!event.isAutoRepeat()) Space(event);
      return true;
    case Qt::Key_K:
      if (const auto cell = picture_.Marked())
        emit picture_.Picked(*cell, ToolOfModifiers(event.modifiers()));
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (state_ == State::Latched) {
        Forget();
        picture_.FinishStroke();
      } else {
        emit picture_.Confirmed();
      }
      return true;
    case Qt::Key_Escape:
      return picture_.GiveUp();
    default:
      return Lead(event);
  }
}

void CellKeys::Space(const QKeyEvent& event) {
  if (state_ == State::Latched) {
    Forget();
    picture_.FinishStroke();
    return;
  }
  if (state_ != State::Idle || picture_.InStroke()) return;
  if (!picture_.Marked()) {
    picture_.LeadMark(picture_.Cursor());
    return;
  }
  button_ = ToolOfModifiers(event.modifiers());
  state_ = State::Waits;
}

bool CellKeys::Release(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Space) return false;
  if (event.isAutoRepeat()) return true;
  const bool tapped = state_ == State::Waits;
  if (tapped) {
    Begin();
    if (picture_.Latches() && picture_.InStroke()) {
      state_ = State::Latched;
      return true;
    }
  }
  if (tapped || state_ == State::Held) {
    Forget();
    picture_.FinishStroke();
  }
  return true;
}

void CellKeys::Forget() {
  state_ = State::Idle;
}

void CellKeys::Begin() {
  state_ = State::Held;
  if (const auto cell = picture_.Marked()) picture_.BeginStroke(*cell, button_);
}

bool CellKeys::Lead(const QKeyEvent& event) {
  const bool drawing = state_ != State::Idle;
  // What chose the tool may still be held with Space, and is not meant for the way.
  const bool chose = drawing && state_ != State::Latched && button_ != ToolButton::Left;
  const QKeyEvent plain(event.type(), event.key(), chose ? Qt::NoModifier : event.modifiers());
  const QPoint from = picture_.Cursor();
  const auto to = CellOfKey(plain, from, picture_.CaveSize(), picture_.SeenCells().size());
  if (!to) return false;
  if (!picture_.Marked()) {
    picture_.LeadMark(from);
  } else if (drawing) {
    LeadStroke(*to);
  } else if (HasCtrl(event) && ArrowOf(event.key()) && picture_.CanShove()) {
    emit picture_.Shoved(*ArrowOf(event.key()));
  } else if (event.modifiers() & Qt::ShiftModifier) {
    LeadSelection(from, *to);
  } else {
    anchor_.reset();
    picture_.LeadMark(*to);
  }
  return true;
}

void CellKeys::LeadStroke(QPoint cell) {
  if (state_ == State::Waits) Begin();
  picture_.LeadMark(cell);
  picture_.LeadStroke(cell);
}

// The selection goes on from where Shift began it, as long as it is still there.
void CellKeys::LeadSelection(QPoint from, QPoint to) {
  const auto& selection = picture_.Marks().selection;
  if (!anchor_ || !selection || !selection->contains(*anchor_)) anchor_ = from;
  picture_.LeadMark(to);
  emit picture_.SelectedByKeys(*anchor_, to);
}

}  // namespace zorik
