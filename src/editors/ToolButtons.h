#pragma once

#include <QtCore/qnamespace.h>

#include <optional>

#include "editors/ToolTable.h"

namespace zorik {

// The tool of the mouse buttons that are held; several at once have none.
std::optional<ToolButton> ToolOfButtons(Qt::MouseButtons buttons);

// The tool of a key that acts like a mouse button: the left one, with Shift the right, with Ctrl the middle.
ToolButton ToolOfModifiers(Qt::KeyboardModifiers modifiers);

}  // namespace zorik
