#pragma once

namespace zorik::sound {

// Nothing in here and in what is built on it asks the system's library for a sine or a power: these differ in
// their last bits from one to the next, and a recipe has to give the same bytes everywhere.

// Samples a second, as the game's sound buffers have it.
constexpr int kRate = 22050;

// The sine of a whole turn times `turns`; any number of turns, within 1e-11 of the true value.
double SineOfTurns(double turns);

// 2 to the power of x, for x within -1000 to 1000.
double PowerOfTwo(double x);

// The factor that so many decibels are.
double Gain(double decibels);

// What a sound is multiplied with from sample to sample when it falls by 60 dB in this time.
double FadeFactor(double seconds);

}  // namespace zorik::sound
