#include "screens/KeyWords.h"

#include <QStringList>

#include "platform/KeyCaps.h"
#include "platform/PadMap.h"
#include "screens/Marks.h"

namespace zorik {
namespace {

constexpr StartWords kSpaceWords{"caption.keys.space"};
constexpr StartWords kKeypadWords{"caption.keys.keypad"};

}  // namespace

QString WordsOf(const KeyChoice& key, const Skin& skin) {
  const QString cap = key.key == Qt::Key_Space ? kSpaceWords.In(skin) : CapOf(key.key);
  if (key.keypad) return FillMarks(kKeypadWords.In(skin), cap, QString());
  return key.ctrl ? "Ctrl+" + cap : cap;
}

QString WordsOf(const KeyMap::Keys& keys, const Skin& skin) {
  QStringList words;
  for (const KeyChoice& key : keys) {
    if (key.key != 0) words += WordsOf(key, skin);
  }
  return words.join(", ");
}

QString WordsOf(int button) {
  return button == kNoButton ? QString("–") : QString::number(button + 1);
}

}  // namespace zorik
