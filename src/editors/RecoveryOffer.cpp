#include "editors/RecoveryOffer.h"

#include <QDateTime>

#include "data/Result.h"
#include "editors/RecoveryWords.h"
#include "flow/RecoveryStore.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kLeftWords{"caption.recovery.left"};
constexpr StartWords kFactsWords{"caption.recovery.facts"};
constexpr StartWords kAgeWords{"caption.recovery.age"};
constexpr StartWords kOpenItWords{"caption.recovery.open"};

std::optional<bool> AskFor(Skin& skin, QWidget* parent, const KeptEntry& left) {
  const QString age = AgeOfKept(skin, left, QDateTime::currentSecsSinceEpoch());
  const QString facts = FillMarks(kFactsWords.In(skin), NameOfKept(left), QString::number(left.Caves));
  const QString question = kLeftWords.In(skin) + "\n\n" + facts + '\n' +
                           FillMarks(kAgeWords.In(skin), TimeOfKept(skin, left), age) + "\n\n" +
                           kOpenItWords.In(skin);
  return AnswerTo(skin, parent, skin.Text(TextId::Program), question);
}

}  // namespace

std::optional<KeptEntry> OfferLeft(Skin& skin, QWidget* parent, RecoveryStore& store) {
  std::optional<KeptEntry> chosen;
  for (const KeptEntry& left : store.Left()) {
    const std::optional<bool> wanted = chosen ? false : AskFor(skin, parent, left);
    if (!wanted) return std::nullopt;
    if (*wanted) {
      chosen = left;
      continue;
    }
    // One that cannot be moved is offered again.
    Disregard(store.Discard(left, QDateTime::currentSecsSinceEpoch()));
  }
  return chosen;
}

}  // namespace zorik
