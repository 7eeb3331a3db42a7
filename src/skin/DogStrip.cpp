#include "skin/DogStrip.h"

#include <QColor>
#include <QFontMetrics>
#include <algorithm>
#include <cstdint>
#include <utility>

#include "core/Hra.h"
#include "skin/DrText.h"
#include "skin/GameFont.h"
#include "skin/HslColor.h"

namespace zorik {
namespace {

constexpr int kLargestLetters = 60;
constexpr int kSaturation = 255;

// Passes that draw a number, the widest outline first.
constexpr std::array<int, 3> kOutlines{2, 1, 0};
// Lightness by state and pass.
constexpr std::array<std::array<int, 3>, 3> kLightness{{{31, 127, 191}, {0, 63, 127}, {0, 31, 63}}};

// The largest letters that fit. Each size that is tried is a font to be loaded, so the search starts where
// the share of the largest one's height says.
QFont StripFont() {
  QFont font = GameFont(kLargestLetters);
  font.setBold(true);
  const int height = std::max(1, QFontMetrics(font).height());
  font.setPixelSize(std::clamp(kLargestLetters * kStripHeight / height + 2, 1, kLargestLetters));
  while (QFontMetrics(font).height() > kStripHeight && font.pixelSize() > 1) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  return font;
}

QColor ColourOf(std::uint32_t colour) {
  return {static_cast<int>(colour & 255U), static_cast<int>(colour >> 8U & 255U),
          static_cast<int>(colour >> 16U & 255U)};
}

}  // namespace

DogStrip::DogStrip() {
  states_.fill(kEmpty);
}

void DogStrip::Open(int dogCount, int hue) {
  if (slotWidth_ == 0) {
    font_ = StripFont();
    slotWidth_ = QFontMetrics(font_).horizontalAdvance("14");
  }
  slots_ = std::clamp(dogCount + 1, 0, kUnits);
  hue_ = hue;
  states_.fill(kEmpty);
}

bool DogStrip::DrawDogN(int n, int state) {
  if (n < 0 || n >= slots_ || state < 0 || state >= static_cast<int>(kLightness.size())) return false;
  return std::exchange(states_[static_cast<std::size_t>(n)], state) != state;
}

std::optional<int> DogStrip::State(int n) const {
  if (n < 0 || n >= slots_) return std::nullopt;
  const int state = states_[static_cast<std::size_t>(n)];
  return state == kEmpty ? std::nullopt : std::optional(state);
}

int DogStrip::Width() const {
  return slots_ * slotWidth_;
}

void DogStrip::Paint(QPainter& painter, QPoint topLeft) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(font_);
  for (int n = 0; n < slots_; ++n) {
    const int state = states_[static_cast<std::size_t>(n)];
    if (state == kEmpty) continue;
    const QRectF slot(topLeft.x() + n * slotWidth_, topLeft.y(), slotWidth_, kStripHeight);
    for (std::size_t pass = 0; pass < kOutlines.size(); ++pass) {
      const int lightness = kLightness[static_cast<std::size_t>(state)][pass];
      painter.setPen(ColourOf(HslColor(hue_, kSaturation, lightness)));
      DrText(painter, slot, QString::number(n), kOutlines[pass]);
    }
  }
  painter.restore();
}

}  // namespace zorik
