#include "screens/Tones.h"

#include <algorithm>
#include <cmath>

namespace zorik {
namespace {

constexpr QColor kLight(0xF0, 0xEC, 0xE0);
constexpr QColor kDark(0x18, 0x14, 0x10);
constexpr QColor kGold(0xF0, 0xB0, 0x40);
constexpr double kSeen = 3;  // the contrast that a sign needs

double Linear(double share) {
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(QColor colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

QColor Mixed(QColor one, QColor other, double share) {
  const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
  return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue()));
}

}  // namespace

double Contrast(QColor one, QColor other) {
  const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

Tones TonesOf(QColor ground) {
  const QColor text = Contrast(kLight, ground) >= Contrast(kDark, ground) ? kLight : kDark;
  const QColor mark = Contrast(kGold, ground) >= kSeen ? kGold : text;
  return {ground, text, Mixed(ground, text, 0.75), Mixed(ground, text, 0.35), mark};
}

QPalette PaletteOf(const Tones& tones) {
  QPalette colours;
  colours.setColor(QPalette::WindowText, tones.text);
  colours.setColor(QPalette::Button, tones.line);
  colours.setColor(QPalette::ButtonText, tones.text);
  colours.setColor(QPalette::Mid, tones.quiet);
  colours.setColor(QPalette::Highlight, tones.mark);
  return colours;
}

}  // namespace zorik
