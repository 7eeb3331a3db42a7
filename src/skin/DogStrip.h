#pragma once

#include <QFont>
#include <QPainter>
#include <QPoint>
#include <array>
#include <optional>

#include "core/Hra.h"

namespace zorik {

// Height of the strip of units, in the desktop's units.
inline constexpr int kStripHeight = 29;

// The strip of units, Psi: a slot for each number from 0 to the highest dog's. A slot shows its number in the
// colour of the cave's scheme, bright, plain or dim; one that nobody has drawn yet is empty.
class DogStrip {
 public:
  DogStrip();

  // Empties the strip and gives it slots 0 to dogCount. hue is the scheme's, in degrees.
  void Open(int dogCount, int hue);

  // Unit n: 0 steered, 1 waiting, 2 dead. Numbers that have no slot are passed over. Whether the strip looks
  // different now.
  bool DrawDogN(int n, int state);

  // What slot n shows, nothing while it is empty.
  std::optional<int> State(int n) const;

  // Of the whole strip, in the desktop's units.
  int Width() const;

  // Paints the strip with its upper left corner there, as fine as the painter's device is.
  void Paint(QPainter& painter, QPoint topLeft) const;

 private:
  static constexpr int kEmpty = -1;

  QFont font_;  // looked for when the first cave opens
  int slotWidth_ = 0;
  int slots_ = 0;
  int hue_ = 0;
  std::array<int, kUnits> states_{};
};

}  // namespace zorik
