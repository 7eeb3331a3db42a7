#pragma once

#include <optional>

#include "core/Machine.h"
#include "core/Rules.h"
#include "core/SoundId.h"

namespace zorik {

// The first step of a tick: the magic wall's time, the opening of the finish, the glow of both.
void Animace(Hra& hra);

// The walks over the whole cave that every tick makes, row by row from the top left.

// Explosions burn on; sensors that were set off begin to count.
void ExplosionScan(Hra& hra);

// All that moves by itself moves, once; collects the room of the amoeba.
void ObjectScan(Hra& hra, AmoebaList& room);

// Ends what the tick has begun: headings, vacated cells, contacts, the end of amoeba. Answers the one sound
// that is due after it, if there is one.
std::optional<SoundId> ClosingScan(Hra& hra);

}  // namespace zorik
