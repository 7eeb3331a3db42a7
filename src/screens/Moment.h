#pragma once

#include "core/Hra.h"

namespace zorik {

class CavePainter;
class MessageStrip;
class Sounds;
class TopBar;

// What the stage shows by itself as a run goes on, for a run that has been brought to another moment.

// The cave, the figures and the strip of units become those of the run; messages of another moment go. With
// jump the view is on its target at once.
void ShowMoment(const Hra& hra, bool jump, CavePainter& painter, TopBar& bar, MessageStrip& strip);

// Starts the sounds that go on and on in this moment.
void SoundLoops(const Hra& hra, Sounds& sounds);

}  // namespace zorik
