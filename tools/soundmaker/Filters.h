#pragma once

#include <vector>

#include "soundmaker/Recipe.h"

namespace zorik::sound {

// A sound on one channel.
using Samples = std::vector<double>;

// Sends the samples through the filter, all of whose pitches are multiplied with `shift`. What is `endless`
// is one turn of a loop: the filter has already heard it when it begins, so that the end leads to the
// beginning.
void Pass(const Filter& filter, double shift, bool endless, Samples& samples);

}  // namespace zorik::sound
