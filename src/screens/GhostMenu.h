#pragma once

class QPoint;
class QWidget;

namespace zorik {

class Flow;
class Skin;
struct Settings;

// Asks in a menu, at this place of the screen, who goes beside the player as a ghost in the chosen cave:
// nobody, his own best run, or another player who has won it. The answer is kept by the flow, and by the
// settings as far as they know of it.
void AskForGhost(Skin& skin, Flow& flow, Settings& settings, QWidget& window, const QPoint& at);

}  // namespace zorik
