#pragma once

#include <array>
#include <cstddef>
#include <optional>

class QSettings;

namespace zorik {

// What the buttons of a pad can do.
enum class PadUse { Action, NextUnit, Restart, Pause };
inline constexpr std::size_t kPadUses = 4;

inline constexpr int kPadButtons = 32;  // that are listened to, from 0
inline constexpr int kNoButton = -1;

// Which button of a pad does what. No two uses ever share a button. At first two buttons do something, and
// nothing begins a cave again: pads number their buttons in different ways.
class PadMap {
 public:
  bool operator==(const PadMap&) const = default;

  int Of(PadUse use) const { return buttons_[static_cast<std::size_t>(use)]; }
  std::optional<PadUse> UseOf(int button) const;

  // From now on this button does it, or none. Another use that had the button gets the one that this one had.
  // Answers that other use, if there was one.
  std::optional<PadUse> Choose(PadUse use, int button);

  // Reads what is stored. A use whose button is not stored, or not as a button, has that of the beginning,
  // and so have all when two would share one.
  static PadMap Read(const QSettings& store);
  void Write(QSettings& store) const;

 private:
  std::array<int, kPadUses> buttons_{0, 1, kNoButton, kNoButton};
};

}  // namespace zorik
