#include "editors/RecoveryWords.h"

#include <QDateTime>
#include <QLocale>

#include "editors/BoxText.h"
#include "flow/RecoveryStore.h"
#include "screens/Marks.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kTimeForm{"caption.recovery.when"};
constexpr StartWords kMomentWords{"caption.recovery.moment"};
constexpr StartWords kMinutesWords{"caption.recovery.minutes"};
constexpr StartWords kHoursWords{"caption.recovery.hours"};
constexpr StartWords kDaysWords{"caption.recovery.days"};

}  // namespace

QString TimeOfKept(const Skin& skin, const KeptEntry& kept) {
  const QDateTime time = QDateTime::fromSecsSinceEpoch(kept.Time);
  return OneLine(QLocale(LanguageOf(skin)).toString(time, kTimeForm.In(skin)), kMostInCaption);
}

QString NameOfKept(const KeptEntry& kept) {
  return OneLine(ToBox(kept.Name), kMostInCaption);
}

// A clock that was put back makes nothing older than it is.
QString AgeOfKept(const Skin& skin, const KeptEntry& kept, std::int64_t now) {
  constexpr std::int64_t kMinute = 60;
  constexpr std::int64_t kHour = 60 * kMinute;
  constexpr std::int64_t kDay = 24 * kHour;
  const std::int64_t age = now - kept.Time;
  const auto in = [&](const StartWords& words, std::int64_t unit) {
    return FillMarks(words.In(skin), QString::number(age / unit), QString());
  };
  if (age < kMinute) return kMomentWords.In(skin);
  if (age < 2 * kHour) return in(kMinutesWords, kMinute);
  return age < 2 * kDay ? in(kHoursWords, kHour) : in(kDaysWords, kDay);
}

}  // namespace zorik
