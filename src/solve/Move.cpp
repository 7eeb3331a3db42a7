#include "solve/Move.h"

#include <array>
#include <string_view>

#include "core/Machine.h"

namespace zorik {

bool Trespasses(const Hra& run, Move move, const Avoided& avoided) {
  constexpr std::array<Step, 4> kSteps{kLeft, kUp, kRight, kDown};
  if (!avoided || move < kStepBase || move >= kChooseBase || run.ActiveDog == 0) return false;
  const auto own = UnitCell(run, run.ActiveDog);
  return own && avoided->Has(*own + kSteps[static_cast<std::size_t>((move - kStepBase) % 4)]);
}

KeySnapshot KeysOf(Move move) {
  KeySnapshot keys;
  const auto press = [&keys](int key) { keys.down.set(static_cast<std::size_t>(key)); };
  if (move >= kChooseBase) {
    press(kKeyPad0 + (move - kChooseBase));
  } else if (move >= kActBase) {
    press(kKeyLeft + (move - kActBase));
    press(kKeySpace);
  } else if (move >= kStepBase) {
    press(kKeyLeft + (move - kStepBase));
  }
  return keys;
}

std::string KeyText(const Plan& plan) {
  constexpr std::string_view kArrows = "LURD";
  std::string text;
  for (const Move move : plan) {
    if (move >= kChooseBase) {
      text += static_cast<char>('0' + (move - kChooseBase));
    } else if (move >= kActBase) {
      text += '!';
      text += kArrows[static_cast<std::size_t>(move - kActBase)];
    } else if (move >= kStepBase) {
      text += kArrows[static_cast<std::size_t>(move - kStepBase)];
    } else {
      text += '.';
    }
    text += '\n';
  }
  return text;
}

}  // namespace zorik
