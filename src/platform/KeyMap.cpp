#include "platform/KeyMap.h"

#include <QKeyEvent>
#include <QSettings>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "platform/KeyCaps.h"

namespace zorik {
namespace {

struct UseRow {
  const char* name;  // in the store
  std::array<int, KeyMap::kMostKeys> keys;
  bool ctrl = false;
};

constexpr std::array<UseRow, kKeyUses> kUses{{{"KeyLeft", {Qt::Key_Left}},
                                              {"KeyUp", {Qt::Key_Up}},
                                              {"KeyRight", {Qt::Key_Right}},
                                              {"KeyDown", {Qt::Key_Down}},
                                              {"KeyAction", {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Space}},
                                              {"KeyRestart", {Qt::Key_R}, true},
                                              {"KeyPause", {Qt::Key_P}},
                                              {"KeyNextUnit", {Qt::Key_Tab}},
                                              {"KeyRewind", {Qt::Key_Backspace}},
                                              {"KeySetMark", {Qt::Key_F5}},
                                              {"KeyBackToMark", {Qt::Key_F8}},
                                              {"KeySlowMotion", {Qt::Key_F6}}}};

constexpr char kCtrlMark = 'c';
constexpr char kKeypadMark = 'n';

KeyMap::Keys KeysOf(const UseRow& row) {
  KeyMap::Keys keys;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    keys[i].key = row.keys[i];
    keys[i].ctrl = row.ctrl && row.keys[i] != 0;
  }
  return keys;
}

// A key is stored as its marks and its number, and its place behind an @.
QString TextOf(const KeyChoice& key) {
  QString text;
  if (key.ctrl) text += kCtrlMark;
  if (key.keypad) text += kKeypadMark;
  text += QString::number(key.key);
  if (key.place != 0) text += '@' + QString::number(key.place);
  return text;
}

bool TakeMark(QString& text, char mark) {
  if (!text.startsWith(mark)) return false;
  text.remove(0, 1);
  return true;
}

std::optional<KeyChoice> KeyFrom(QString text, KeyUse use) {
  KeyChoice key;
  key.ctrl = TakeMark(text, kCtrlMark);
  key.keypad = TakeMark(text, kKeypadMark);
  const QStringList parts = text.split('@');
  bool number = false;
  key.key = parts[0].toInt(&number);
  if (!number || key.key <= 0 || parts.size() > 2) return std::nullopt;
  if ((key.ctrl && use != KeyUse::Restart) || !CanBeChosen(key)) return std::nullopt;
  if (parts.size() == 1) return key;
  key.place = parts[1].toUInt(&number);
  return number ? std::optional(key) : std::nullopt;
}

std::optional<KeyMap::Keys> KeysFrom(const QString& text, KeyUse use) {
  const QStringList parts = text.split(' ', Qt::SkipEmptyParts);
  if (parts.isEmpty() || parts.size() > static_cast<qsizetype>(KeyMap::kMostKeys)) return std::nullopt;
  KeyMap::Keys keys;
  for (qsizetype i = 0; i < parts.size(); ++i) {
    const auto key = KeyFrom(parts[i], use);
    if (!key) return std::nullopt;
    keys[static_cast<std::size_t>(i)] = *key;
  }
  return keys;
}

// Takes the key away; what is left moves up.
void Remove(KeyMap::Keys& keys, const KeyChoice& key) {
  auto* const end =
      std::remove_if(keys.begin(), keys.end(), [&key](const KeyChoice& its) { return its.IsSameKey(key); });
  std::fill(end, keys.end(), KeyChoice());
}

bool HasAny(const KeyMap::Keys& keys) {
  return keys.front().key != 0;
}

}  // namespace

KeyChoice KeyOf(const QKeyEvent& event) {
  const int key = event.key() == Qt::Key_Backtab ? static_cast<int>(Qt::Key_Tab) : event.key();
  const bool sign = HasSign(key);
  const bool keypad = sign && event.modifiers().testFlag(Qt::KeypadModifier);
  return {key, keypad, false, sign && !keypad ? event.nativeScanCode() : 0};
}

bool CanBeChosen(const KeyChoice& key) {
  constexpr std::array kFixed{Qt::Key_Escape, Qt::Key_F1, Qt::Key_F2, Qt::Key_F11, Qt::Key_F12};
  if (std::find(kFixed.begin(), kFixed.end(), key.key) != kFixed.end()) return false;
  return key.key == Qt::Key_Space || !CapOf(key.key).isEmpty();
}

KeyMap::KeyMap() {
  std::transform(kUses.begin(), kUses.end(), keys_.begin(), KeysOf);
}

std::optional<KeyUse> KeyMap::Find(const KeyChoice& key) const {
  if (key.key == 0) return std::nullopt;
  const auto* const found = std::find_if(keys_.begin(), keys_.end(), [&key](const Keys& keys) {
    return std::any_of(keys.begin(), keys.end(), [&key](const KeyChoice& its) { return its.IsSameKey(key); });
  });
  if (found == keys_.end()) return std::nullopt;
  return static_cast<KeyUse>(found - keys_.begin());
}

std::optional<KeyUse> KeyMap::UseOf(const QKeyEvent& event) const {
  const KeyChoice key = KeyOf(event);
  const auto use = Find(key);
  if (use || key.place == 0) return use;
  for (const Keys& keys : keys_) {
    const bool there = std::any_of(keys.begin(), keys.end(),
                                   [&key](const KeyChoice& its) { return its.place == key.place; });
    if (there) return static_cast<KeyUse>(&keys - keys_.data());
  }
  return std::nullopt;
}

std::optional<KeyUse> KeyMap::UseOf(int key) const {
  return Find({key, false, false, 0});
}

std::optional<KeyUse> KeyMap::Choose(KeyUse use, const KeyChoice& key) {
  const auto other = Find(key);
  const Keys had = std::exchange(keys_[static_cast<std::size_t>(use)], Keys{key});
  if (!other || *other == use) return std::nullopt;
  Keys& its = keys_[static_cast<std::size_t>(*other)];
  Remove(its, key);
  if (HasAny(its)) return other;
  its = had;
  for (KeyChoice& one : its) one.ctrl = one.ctrl && *other == KeyUse::Restart;
  return other;
}

// Every key is that of one use.
bool KeyMap::IsClear() const {
  for (const Keys& keys : keys_) {
    for (const KeyChoice& key : keys) {
      if (key.key != 0 && Find(key) != static_cast<KeyUse>(&keys - keys_.data())) return false;
    }
  }
  return true;
}

KeyMap KeyMap::Read(const QSettings& store) {
  KeyMap map;
  for (std::size_t i = 0; i < kKeyUses; ++i) {
    const auto keys = KeysFrom(store.value(kUses[i].name).toString(), static_cast<KeyUse>(i));
    if (keys) map.keys_[i] = *keys;
  }
  return map.IsClear() ? map : KeyMap();
}

void KeyMap::Write(QSettings& store) const {
  for (std::size_t i = 0; i < kKeyUses; ++i) {
    QStringList parts;
    for (const KeyChoice& key : keys_[i]) {
      if (key.key != 0) parts += TextOf(key);
    }
    store.setValue(kUses[i].name, parts.join(' '));
  }
}

const KeyMap& DefaultKeys() {
  static const KeyMap kDefault;
  return kDefault;
}

}  // namespace zorik
