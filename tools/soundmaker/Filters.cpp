#include "soundmaker/Filters.h"

#include <algorithm>

#include "soundmaker/Arithmetic.h"

namespace zorik::sound {

namespace {

// A second-order section: two zeros, two poles, and what it remembers.
struct Section {
  double b0 = 1, b1 = 0, b2 = 0, a1 = 0, a2 = 0;
  double s1 = 0, s2 = 0;

  void Tune(const Filter& filter, double hertz) {
    const double turns = std::clamp(hertz, 5.0, 0.47 * kRate) / kRate;
    const double cosine = SineOfTurns(turns + 0.25);
    const double alpha = SineOfTurns(turns) / (2 * filter.q);
    const double root = filter.kind == Filter::Kind::kPeak ? Gain(filter.gain / 2) : 1;
    const double a0 = 1 + alpha / root;
    switch (filter.kind) {
      case Filter::Kind::kLow:
        Set(a0, (1 - cosine) / 2, 1 - cosine, (1 - cosine) / 2);
        break;
      case Filter::Kind::kHigh:
        Set(a0, (1 + cosine) / 2, -1 - cosine, (1 + cosine) / 2);
        break;
      case Filter::Kind::kBand:
        Set(a0, alpha, 0, -alpha);
        break;
      case Filter::Kind::kPeak:
        Set(a0, 1 + alpha * root, -2 * cosine, 1 - alpha * root);
        break;
    }
    a1 = -2 * cosine / a0;
    a2 = (1 - alpha / root) / a0;
  }

  double Next(double in) {
    const double out = b0 * in + s1;
    s1 = b1 * in - a1 * out + s2;
    s2 = b2 * in - a2 * out;
    return out;
  }

 private:
  void Set(double a0, double zero0, double zero1, double zero2) {
    b0 = zero0 / a0;
    b1 = zero1 / a0;
    b2 = zero2 / a0;
  }
};

void Run(const Filter& filter, double shift, Section& section, Samples& samples) {
  constexpr std::size_t kStep = 16;  // a filter that moves is tuned anew after so many samples
  for (std::size_t i = 0; i < samples.size(); ++i) {
    if (i % kStep == 0 && (i == 0 || filter.hertz.Moves())) {
      section.Tune(filter, shift * filter.hertz.At(static_cast<double>(i) / kRate));
    }
    samples[i] = section.Next(samples[i]);
  }
}

}  // namespace

void Pass(const Filter& filter, double shift, bool endless, Samples& samples) {
  Section section;
  if (endless) {
    Samples before = samples;
    Run(filter, shift, section, before);
  }
  Run(filter, shift, section, samples);
}

}  // namespace zorik::sound
