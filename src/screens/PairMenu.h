#pragma once

class QPoint;
class QWidget;

namespace zorik {

class Flow;
class Skin;

// Shows the player's record of the chosen cave and another one side by side: that of another player who has
// won it, chosen from a menu at this place of the screen, or one from a file. Where there are no two records
// that go together the player is told why. interval: milliseconds of a tick while they play.
void ShowPairOfRecords(Skin& skin, const Flow& flow, int interval, QWidget& window, const QPoint& at);

}  // namespace zorik
