#pragma once

#include <array>
#include <cstdint>
#include <optional>

class QKeyEvent;
class QSettings;

namespace zorik {

// What a player can give a key of his own. The last four are keys of practice.
enum class KeyUse {
  Left,
  Up,
  Right,
  Down,
  Action,
  Restart,
  Pause,
  NextUnit,
  Rewind,
  SetMark,
  BackToMark,
  SlowMotion
};
inline constexpr std::size_t kKeyUses = 12;

// A key of the keyboard. Its place is known of a key with a letter or sign that the player has pressed, since
// the sign changes with Shift; such a key is known by its place, too.
struct KeyChoice {
  int key = 0;              // as Qt numbers it, 0 for none
  bool keypad = false;      // a digit or sign of the numeric keypad
  bool ctrl = false;        // together with Ctrl; of Restart alone
  std::uint32_t place = 0;  // 0 where it is not known

  bool operator==(const KeyChoice&) const = default;

  // Whether it is the same key on the keyboard, with Ctrl or without.
  bool IsSameKey(const KeyChoice& other) const { return key == other.key && keypad == other.keypad; }
};

// The key of an event, without Ctrl.
KeyChoice KeyOf(const QKeyEvent& event);

// Whether a player can choose the key. Not those that lead out of trouble and to the settings: Esc, F1, F2,
// F11 and F12; and none of which nobody could say what stands on it.
bool CanBeChosen(const KeyChoice& key);

// Which keys do what. No two uses ever share a key, and none is without one.
class KeyMap {
 public:
  static constexpr std::size_t kMostKeys = 3;  // of one use
  using Keys = std::array<KeyChoice, kMostKeys>;

  // The keys that everybody has at first.
  KeyMap();

  bool operator==(const KeyMap&) const = default;

  const Keys& Of(KeyUse use) const { return keys_[static_cast<std::size_t>(use)]; }

  // What the key of an event does, if it does any of this. Whether Ctrl is held makes no difference.
  std::optional<KeyUse> UseOf(const QKeyEvent& event) const;
  // The same for a key as Qt numbers it, not of the keypad.
  std::optional<KeyUse> UseOf(int key) const;

  // Whether the key does any of this.
  bool Has(const KeyChoice& key) const { return Find(key).has_value(); }

  // From now on this key alone does it. Another use that would have no key left takes over the keys that this
  // one had. Answers that other use, if there was one.
  std::optional<KeyUse> Choose(KeyUse use, const KeyChoice& key);

  // Reads what is stored. A use whose keys are not stored, or not as keys, has those of the beginning, and so
  // have all when two would share one.
  static KeyMap Read(const QSettings& store);
  void Write(QSettings& store) const;

 private:
  std::optional<KeyUse> Find(const KeyChoice& key) const;
  bool IsClear() const;

  std::array<Keys, kKeyUses> keys_;
};

// The keys of the beginning.
const KeyMap& DefaultKeys();

}  // namespace zorik
