#pragma once

class QWidget;

namespace zorik {

class JoyPad;
class Skin;
struct Settings;

// Tells that the run waits, until the player ends the pause: by OK, by his key of the pause or by its button
// of the pad, if there is one.
void ShowPause(Skin& skin, QWidget* parent, const Settings& settings, JoyPad* pad);

}  // namespace zorik
