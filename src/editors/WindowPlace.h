#pragma once

#include <QSize>

class QWidget;

namespace zorik {

// What a desktop's frame around a window takes of the screen, in logical pixels; nobody knows it before the
// window is shown.
inline constexpr QSize kDesktopFrame(4, 36);

// The sizes of the editors' windows, kept for the user from one start of the program to the next. A window
// goes by its object name.
void StoreSize(const QWidget& window);

// The first size of a window: this one, or what the screen holds with a frame.
void ResizeWithinScreen(QWidget& window, QSize size);

// Gives a window the size that it had last. False when there is none.
bool RestoreSize(QWidget& window);

// Puts a window in the middle of its screen, no larger than that holds with a frame if it can be smaller. Of
// one that is too large for it the title and the menus are seen.
void PutInMiddle(QWidget& window);

}  // namespace zorik
