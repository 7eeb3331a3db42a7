#include "solve/Move.h"

#include <string_view>

namespace zorik {

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
