#pragma once

#include <QRect>
#include <QSize>

namespace zorik {

// Heights of the bars above and below the play picture, in the desktop's units.
inline constexpr int kTopBar = 44;
inline constexpr int kBottomBar = 20;

// Where the play picture and the bars lie in the game window. Rectangles are in the desktop's units, of which
// a dense screen has more than one pixel each; only cells are counted in pixels.
struct GameLayout {
  int cellSize = 0;  // pixels of the screen, 0 when the window is too small for any
  QRect imOk1;       // the bar above
  QRect ram;         // the play picture
  QRect imOk2;       // the bar below, 1 apart
};

// The largest cells of whole pixels with which 19.5 x 11.5 of them and the bars fit; what remains is around
// the picture. scale is the pixels of the screen for each unit, 1 or more.
GameLayout LayOut(QSize window, qreal scale);

// What lies in the bar above, in its own coordinates, its height being kTopBar: at the right the buttons, of
// which Label1 shows only in a replay and a test run and the one that leaves the cave only where the window
// has no frame to do so, and the strip of units left of them; at the left the panels of the figures.
struct TopBarLayout {
  qreal scale = 1;    // of all that lies in it, below 1 where it would not find room otherwise
  int panelsEnd = 0;  // where the part of its picture with the panels ends
  QRect leave;
  QRect picRestart;
  QRect Command4;
  QRect Label1;
  QRect psi;
  QRect clock;
  QRect gems;
  QRect value;
};

// The first part of the bar's picture, with the panels, keeps its width; the rest is stretched.
inline constexpr int kPanelsEnd = 420;

// For a bar of this width. stripWidth is the width of the strip of units, 0 without one. In a bar that is too
// narrow for all of it everything is smaller.
TopBarLayout LayOutTopBar(int width, bool label1, int stripWidth, bool leave = false);

}  // namespace zorik
