#include "editors/ToolButtons.h"

namespace zorik {

std::optional<ToolButton> ToolOfButtons(Qt::MouseButtons buttons) {
  if (buttons == Qt::LeftButton) return ToolButton::Left;
  if (buttons == Qt::RightButton) return ToolButton::Right;
  if (buttons == Qt::MiddleButton) return ToolButton::Middle;
  return std::nullopt;
}

ToolButton ToolOfModifiers(Qt::KeyboardModifiers modifiers) {
  if (modifiers & Qt::ControlModifier) return ToolButton::Middle;
  if (modifiers & Qt::ShiftModifier) return ToolButton::Right;
  return ToolButton::Left;
}

}  // namespace zorik
