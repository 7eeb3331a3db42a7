// Sensors: set off when something stirs beside them (repainting tells them, see PREKR, and so does the
// growth of amoeba), they count for 28 ticks and blow up alone.
#include "core/Rules.h"

namespace zorik {
namespace {

constexpr int kEnd = 30;
constexpr int kLastFlame = 5;  // burns shorter than other explosions

}  // namespace

void TestCidla(Hra& hra, Cell c) {
  for (const Step way : {kLeft, kRight, kDown, kUp}) {
    const Cell sensor = c + way;
    if (hra.Field(sensor) == kSensor && hra.FieldMark(sensor) == 0) hra.SetFieldMark(sensor, 1);
  }
}

std::optional<SoundId> CountSensor(Hra& hra, Cell c) {
  if (hra.FieldMark(c) <= 1) return std::nullopt;
  const int mark = hra.FieldMark(c) + 1;
  hra.SetFieldMark(c, static_cast<std::uint8_t>(mark));
  if (mark == kEnd) {
    hra.SetField(c, kExplosion);
    hra.SetFieldMark(c, kLastFlame);
    hra.stage().PZvuk(SoundId::SensorOut);
    return std::nullopt;
  }
  if (mark % 2 == 0) PREKR(hra, c);
  return mark % 4 == 0 ? std::optional(SoundId::Sensor) : std::nullopt;
}

}  // namespace zorik
