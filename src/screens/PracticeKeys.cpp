#include "screens/PracticeKeys.h"

#include <QKeyEvent>
#include <algorithm>

#include "screens/KeyWords.h"

namespace zorik {
namespace {

struct ActRow {
  StartWords words;
  StartWords hint;
  std::optional<KeyUse> use;  // that the player can choose a key for
  int key;                    // or the key that it has
};

constexpr std::array<ActRow, kPracticeActs> kActs{
    {{{"caption.practice.rewind"}, {"caption.practice.rewindhint"}, KeyUse::Rewind, 0},
     {{"caption.practice.mark"}, {"caption.practice.markhint"}, KeyUse::SetMark, 0},
     {{"caption.practice.tomark"}, {"caption.practice.tomarkhint"}, KeyUse::BackToMark, 0},
     {{"caption.practice.slow"}, {"caption.practice.slowhint"}, KeyUse::SlowMotion, 0},
     {{"caption.practice.killed"}, {"caption.practice.killedhint"}, std::nullopt, Qt::Key_F7},
     {{"caption.practice.way"}, {"caption.practice.wayhint"}, std::nullopt, Qt::Key_H},
     {{"caption.practice.real"}, {"caption.practice.realhint"}, std::nullopt, Qt::Key_Return}}};

const ActRow& RowOf(PracticeAct act) {
  return kActs[static_cast<std::size_t>(act)];
}

KeyChoice FixedKey(const ActRow& row) {
  return {row.key, false, false, 0};
}

}  // namespace

std::optional<PracticeAct> PracticeActOf(const QKeyEvent& event, const KeyMap& keys) {
  const std::optional<KeyUse> use = keys.UseOf(event);
  const int key = event.key() == Qt::Key_Enter ? static_cast<int>(Qt::Key_Return) : event.key();
  const auto* const row = std::find_if(kActs.begin(), kActs.end(), [&](const ActRow& its) {
    return use ? its.use == use : !its.use && its.key == key;
  });
  if (row == kActs.end()) return std::nullopt;
  return static_cast<PracticeAct>(row - kActs.begin());
}

const StartWords& WordsOf(PracticeAct act) {
  return RowOf(act).words;
}

const StartWords& HintOf(PracticeAct act) {
  return RowOf(act).hint;
}

QString KeyOf(PracticeAct act, const KeyMap& keys, const Skin& skin) {
  const ActRow& row = RowOf(act);
  if (row.use) return WordsOf(keys.Of(*row.use).front(), skin);
  return keys.Has(FixedKey(row)) ? QString() : WordsOf(FixedKey(row), skin);
}

QString NameOf(PracticeAct act, const KeyMap& keys, const Skin& skin) {
  const QString key = KeyOf(act, keys, skin);
  return key.isEmpty() ? WordsOf(act).In(skin) : key;
}

}  // namespace zorik
