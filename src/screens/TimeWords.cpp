#include "screens/TimeWords.h"

#include <QLocale>

#include "core/Hra.h"
#include "screens/StartWords.h"

namespace zorik {

QString TimeWords(std::int64_t ticks, const Skin& skin) {
  const std::int64_t seconds = ticks / kTicksPerSecond, minutes = seconds / 60, hours = minutes / 60;
  const QString point = QLocale(LanguageOf(skin)).decimalPoint();
  const auto two = [](std::int64_t value) { return QString("%1").arg(value, 2, 10, QChar('0')); };
  const QString start =
      hours > 0 ? QString::number(hours) + ':' + two(minutes % 60) : QString::number(minutes);
  return start + ':' + two(seconds % 60) + point + QString::number(ticks % kTicksPerSecond);
}

}  // namespace zorik
