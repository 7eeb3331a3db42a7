#pragma once

#include <QKeyEvent>
#include <bitset>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>

#include "core/Keys.h"
#include "platform/KeyMap.h"

namespace zorik {

// The key code of an event as the game counts it, -1 for a key that it does not know. What the player has
// chosen goes first. Plus and minus are those of the numeric keypad; its arrows, with the number lock off,
// are arrows. Digits of the main row are those of the keypad, with Shift or without: which way they are
// written depends on the country.
int GameKey(const QKeyEvent& event, const KeyMap& keys = DefaultKeys());

// Whether the key means something in play where the player has not chosen it for anything.
bool HasFixedMeaning(const KeyChoice& key);

// A key is known again by its place on the keyboard: what it means may change with other keys while it is
// held.
std::uint64_t PlaceOfKey(const QKeyEvent& event);

// Gathers key events into one snapshot for each tick. A key that is held, or was tapped since the last tick,
// is down. Keys that give commands are down once for each press and each repeat; a repeat of any other key
// means nothing.
// The keys of action that are held when a key goes down belong to that press and come with it, however soon
// they are up again. What was pressed later and would turn an earlier press into something else waits for the
// next tick.
class Keyboard {
 public:
  using Clock = std::function<std::int64_t()>;  // milliseconds

  explicit Keyboard(Clock clock = {});

  // The keys that the player has chosen. Nothing is held then.
  void SetKeys(const KeyMap& keys);

  void Press(const QKeyEvent& event);
  void Release(const QKeyEvent& event);

  // All keys are let go and forgotten: the window lost the focus, or a dialog stood in its place.
  void ReleaseAll();

  // What the tick reads; the taps are used up.
  KeySnapshot Take();

 private:
  using KeySet = std::bitset<256>;

  // What goes down in one tick.
  struct Turn {
    KeySet keys;                      // without those of action
    std::optional<KeySet> modifiers;  // keys of action that belong to the presses, once that matters
    int rank = -1;                    // of the last key, in the order in which a tick reads them

    bool Heeds() const;  // holds a press that is another one with another key of action
    bool Takes(int key, const KeySet& with) const;
  };

  // An arrow that went down together with keys of action.
  struct Chord {
    std::uint64_t place;
    int key;
    KeySet with;
    std::optional<std::int64_t> until;  // once these have been let go
  };

  bool GoesOn(const QKeyEvent& event);
  bool Waits(int key) const;
  KeySet Modifiers() const;
  Turn& NewTurn();
  void Recall(const QKeyEvent& event);
  KeySet PressedWith(int key, const QKeyEvent& event) const;
  void PressModifier(int key);
  void PressOther(int key, const QKeyEvent& event);
  void EndChord();
  KeySet Lingering();

  struct Released {
    std::uint64_t place;
    std::uint64_t time;
  };

  Clock clock_;
  KeyMap keys_;
  std::map<std::uint64_t, int> held_;  // game key by place
  std::deque<Turn> turns_;             // since the last tick
  std::optional<Chord> chord_;
  std::optional<Released> released_;  // the last
};

}  // namespace zorik
