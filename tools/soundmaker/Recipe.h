#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik::sound {

// A recipe is a text of one instruction a line; '#' starts a remark. `tone` and `noise` begin a layer, and
// what follows belongs to it; a sound is the sum of its layers. Times are in seconds, gains in decibels,
// pitches in Hertz. A CURVE is a number, or TIME:VALUE TIME:VALUE ..., between which it moves gently; its
// times count from the layer's start.
//
//   tone HERTZ                 a sine
//   noise                      even noise, to be filtered
//     at SECONDS               when the layer begins; 0
//     for SECONDS              how long it lasts; to the end of the sound
//     gain DB                  0
//     attack SECONDS           how softly it begins; 0.004
//     release SECONDS          how softly it ends; 0.01
//     fade SECONDS             falls by 60 dB in this time
//     level CURVE              of factors
//     pitch CURVE              of factors; of the tone only
//     partials R:LEVEL[:FADE]  sines at R times the pitch instead of the one, each with a fade of its own
//     vibrato HERTZ PERCENT    of the pitch
//     tremolo HERTZ PERCENT    of the level
//     pan -1..1                left to right
//     low CURVE, high CURVE    lets pass what is lower, higher than so many Hertz
//     band CURVE q Q           lets a band pass
//     peak CURVE q Q gain DB   raises a band
//     scatter COUNT over SECONDS pitch PERCENT gain DB pan WIDTH
//                              plays the layer so many times, spread over that time (to the end of the
//                              sound), each time elsewhere within these bounds: higher or lower, softer, left
//                              or right
//     swell CURVE, drift CURVE of factors: the gain, the pitch of what is scattered, by its time
//     notes FACTOR...          of which each of the scattered takes one for its pitch
//
// and for the whole sound, on lines before the first layer:
//
//   seed NUMBER                other chance, 0
//   press DB                   drives the sound that far into a soft ceiling
//   room SIZE FADE GAIN        echoes of a small space: the longest way and the fade in seconds, how loud

// A value that moves gently from point to point, and stands still before the first and after the last.
struct Curve {
  struct Point {
    double time = 0, value = 0;
  };
  std::vector<Point> points;

  bool Given() const { return !points.empty(); }
  bool Moves() const { return points.size() > 1; }
  // Only for a curve that is given.
  double At(double time) const;
};

struct Partial {
  double ratio = 1, level = 1;
  std::optional<double> fade;
};

struct Filter {
  enum class Kind { kLow, kHigh, kBand, kPeak };
  Kind kind = Kind::kLow;
  Curve hertz;
  double q = 0.7071;
  double gain = 0;
};

// Something that swings: how often a second, and how far, 0 to 1.
struct Swing {
  double hertz = 0, depth = 0;
};

struct Scatter {
  int count = 1;
  std::optional<double> over;
  double pitch = 0, gain = 0, pan = 0;
  Curve swell, drift;
  std::vector<double> notes;
};

struct Layer {
  std::optional<double> hertz;  // none: noise
  double at = 0;
  std::optional<double> length;
  double gain = 0, attack = 0.004, release = 0.01;
  std::optional<double> fade;
  Curve level, pitch;
  std::vector<Partial> partials;
  Swing vibrato, tremolo;
  double pan = 0;
  std::vector<Filter> filters;
  std::optional<Scatter> scatter;
};

struct Room {
  double size = 0, fade = 0, gain = 0;
};

struct Recipe {
  int seed = 0;
  std::optional<double> press;
  std::optional<Room> room;
  std::vector<Layer> layers;
};

// Fails with the line's number at the first line that is none of the above or has a number out of bounds.
Result<Recipe> ParseRecipe(std::string_view text);

}  // namespace zorik::sound
