#include "screens/GameLayout.h"

#include <algorithm>
#include <cmath>

#include "view/ZornePole.h"

namespace zorik {
namespace {

constexpr int kBelowRam = 1;  // between the picture and the bar below
constexpr int kApart = 4;     // between the buttons
constexpr int kButton = 40;   // but the one that begins anew is as high as the bar
constexpr int kStripHeight = 29;

// The panels as the picture of the bar has them, each without its icon.
constexpr QRect kClock{42, 6, 75, 32};
constexpr QRect kGems{166, 6, 121, 32};
constexpr QRect kValue{335, 6, 74, 32};

// A view in half cells: half a cell is rounded up to whole pixels, so that what is drawn has cells of this
// size.
constexpr int kHalfColumns = static_cast<int>(2 * kViewColumns);
constexpr int kHalfRows = static_cast<int>(2 * kViewRows);

int Pixels(int units, qreal scale) {
  return static_cast<int>(std::ceil(units * scale));
}

// As many units as hold these pixels.
int Units(int pixels, qreal scale) {
  return static_cast<int>(std::ceil(pixels / scale));
}

}  // namespace

GameLayout LayOut(QSize window, qreal scale) {
  const int across = static_cast<int>(std::floor(window.width() * scale));
  const int down =
      static_cast<int>(std::floor(window.height() * scale)) - Pixels(kTopBar + kBelowRam + kBottomBar, scale);
  GameLayout layout;
  layout.cellSize = std::max(0, std::min(across * 2 / kHalfColumns, down * 2 / kHalfRows));
  const QSize ram(Units((layout.cellSize * kHalfColumns + 1) / 2, scale),
                  Units((layout.cellSize * kHalfRows + 1) / 2, scale));
  const int height = kTopBar + ram.height() + kBelowRam + kBottomBar;
  const int left = std::max(0, (window.width() - ram.width()) / 2);
  const int top = std::max(0, (window.height() - height) / 2);
  layout.imOk1 = QRect(left, top, ram.width(), kTopBar);
  layout.ram = QRect(QPoint(left, top + kTopBar), ram);
  layout.imOk2 = QRect(left, layout.ram.bottom() + 1 + kBelowRam, ram.width(), kBottomBar);
  return layout;
}

TopBarLayout LayOutTopBar(int width, bool label1, int stripWidth, bool leave) {
  const int buttons = 1 + (label1 ? 1 : 0) + (leave ? 1 : 0);
  const int needed = kPanelsEnd + kTopBar + kApart + buttons * (kButton + kApart) + stripWidth;
  const qreal scale = std::min(1.0, static_cast<qreal>(width) / needed);
  const auto scaled = [scale](int units) { return static_cast<int>(units * scale); };
  TopBarLayout layout;
  layout.scale = scale;
  layout.panelsEnd = scaled(kPanelsEnd);
  int right = width;
  const auto place = [&](int size, int height) {
    const QSize small(scaled(size), scaled(height));
    const QRect rect(QPoint(right - small.width(), (kTopBar - small.height()) / 2), small);
    right = rect.left() - scaled(kApart);
    return rect;
  };
  if (leave) layout.leave = place(kButton, kButton);
  layout.picRestart = place(kTopBar, kTopBar);
  layout.Command4 = place(kButton, kButton);
  if (label1) layout.Label1 = place(kButton, kButton);
  if (stripWidth > 0) layout.psi = place(stripWidth, kStripHeight);
  // The bar's picture is as high as ever, only narrower.
  const auto panel = [&](const QRect& wide) {
    return QRect(scaled(wide.left()), wide.top(), scaled(wide.width()), wide.height());
  };
  layout.clock = panel(kClock);
  layout.gems = panel(kGems);
  layout.value = panel(kValue);
  return layout;
}

}  // namespace zorik
