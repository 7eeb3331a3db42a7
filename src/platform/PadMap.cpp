#include "platform/PadMap.h"

#include <QSettings>
#include <algorithm>
#include <utility>

namespace zorik {
namespace {

constexpr std::array<const char*, kPadUses> kNames{"PadAction", "PadNextUnit", "PadRestart", "PadPause"};

}  // namespace

std::optional<PadUse> PadMap::UseOf(int button) const {
  if (button == kNoButton) return std::nullopt;
  const auto* const found = std::find(buttons_.begin(), buttons_.end(), button);
  if (found == buttons_.end()) return std::nullopt;
  return static_cast<PadUse>(found - buttons_.begin());
}

std::optional<PadUse> PadMap::Choose(PadUse use, int button) {
  const auto other = UseOf(button);
  const int had = std::exchange(buttons_[static_cast<std::size_t>(use)], button);
  if (!other || *other == use) return std::nullopt;
  buttons_[static_cast<std::size_t>(*other)] = had;
  return other;
}

PadMap PadMap::Read(const QSettings& store) {
  PadMap map;
  for (std::size_t i = 0; i < kPadUses; ++i) {
    bool number = false;
    const int button = store.value(kNames[i]).toInt(&number);
    if (number && button >= kNoButton && button < kPadButtons) map.buttons_[i] = button;
  }
  for (std::size_t i = 0; i < kPadUses; ++i) {
    const int button = map.buttons_[i];
    if (button != kNoButton && map.UseOf(button) != static_cast<PadUse>(i)) return {};
  }
  return map;
}

void PadMap::Write(QSettings& store) const {
  for (std::size_t i = 0; i < kPadUses; ++i) store.setValue(kNames[i], buttons_[i]);
}

}  // namespace zorik
