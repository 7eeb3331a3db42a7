#pragma once

#include "core/Machine.h"

namespace zorik {

enum class Push { None, Pushed, Swapped };

// Pushes the box or the bomb in the target cell, if there is one, one step on. If it is blocked and may
// turn, the step is turned round and the box goes to the pusher's own cell, with two scrapes.
Push PushBox(Hra& hra, Cell target, Step& step, bool mayTurn);

// Pushes a boulder that rests in the target cell one step sideways into a free cell; false when there is
// nothing to push. The pushed boulder counts as moved in this tick over a flat floor when the cat pushes
// (markedOver kFlat), over any other floor when the dog does (markedOver kRounded); records depend on both.
bool PushBoulder(Hra& hra, Cell target, Step step, State markedOver);

}  // namespace zorik
