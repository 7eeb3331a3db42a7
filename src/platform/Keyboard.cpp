#include "platform/Keyboard.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace zorik {
namespace {

constexpr std::array<std::pair<int, int>, 15> kKeys{{{Qt::Key_Tab, kKeyTab},
                                                     {Qt::Key_Backtab, kKeyTab},
                                                     {Qt::Key_Shift, kKeyShift},
                                                     {Qt::Key_Control, kKeyCtrl},
                                                     {Qt::Key_Space, kKeySpace},
                                                     {Qt::Key_Left, kKeyLeft},
                                                     {Qt::Key_Up, kKeyUp},
                                                     {Qt::Key_Right, kKeyRight},
                                                     {Qt::Key_Down, kKeyDown},
                                                     {Qt::Key_A, kKeyA},
                                                     {Qt::Key_C, kKeyC},
                                                     {Qt::Key_P, kKeyP},
                                                     {Qt::Key_R, kKeyR},
                                                     {Qt::Key_S, kKeyS},
                                                     {Qt::Key_F12, kKeyF12}}};

int KeypadKey(int key) {
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return kKeyPad0 + (key - Qt::Key_0);
  if (key == Qt::Key_Plus) return kKeyPadPlus;
  if (key == Qt::Key_Minus) return kKeyPadMinus;
  return -1;
}

// These act once for each press, not for as long as they are held.
bool IsCommand(int key) {
  constexpr std::array kCommands{kKeyTab, kKeyR, kKeyC, kKeyP, kKeyF12, kKeyPadPlus, kKeyPadMinus};
  return (key >= kKeyPad0 && key <= kKeyPad9) ||
         std::find(kCommands.begin(), kCommands.end(), key) != kCommands.end();
}

}  // namespace

int GameKey(const QKeyEvent& event) {
  if (event.modifiers().testFlag(Qt::KeypadModifier)) {
    const int key = KeypadKey(event.key());
    if (key >= 0) return key;
  }
  const auto* const row = std::find_if(kKeys.begin(), kKeys.end(),
                                       [&event](const auto& pair) { return pair.first == event.key(); });
  return row == kKeys.end() ? -1 : row->second;
}

std::uint64_t Keyboard::PlaceOf(const QKeyEvent& event) {
  constexpr std::uint64_t kByMeaning = std::uint64_t{1} << 32U;  // events that nobody's finger made
  if (event.nativeScanCode() != 0) return event.nativeScanCode();
  const int key = event.key() == Qt::Key_Backtab ? static_cast<int>(Qt::Key_Tab) : event.key();
  return kByMeaning | static_cast<std::uint32_t>(key);
}

void Keyboard::Press(const QKeyEvent& event) {
  const int key = GameKey(event);
  if (key < 0) return;
  if (IsCommand(key)) {
    tapped_.set(static_cast<std::size_t>(key));
    return;
  }
  if (event.isAutoRepeat()) return;
  held_[PlaceOf(event)] = key;
  tapped_.set(static_cast<std::size_t>(key));
}

void Keyboard::Release(const QKeyEvent& event) {
  if (!event.isAutoRepeat()) held_.erase(PlaceOf(event));
}

void Keyboard::ReleaseAll() {
  held_.clear();
  tapped_.reset();
}

KeySnapshot Keyboard::Take() {
  KeySnapshot keys;
  keys.down = tapped_;
  for (const auto& [place, key] : held_) keys.down.set(static_cast<std::size_t>(key));
  tapped_.reset();
  return keys;
}

}  // namespace zorik
