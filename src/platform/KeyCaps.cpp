#include "platform/KeyCaps.h"

#include <algorithm>
#include <array>

namespace zorik {
namespace {

constexpr int kFirstNamed = 0x01000000;  // keys from here on have no sign

struct CapRow {
  int key;
  const char* cap;
};
constexpr std::array kCaps = std::to_array<CapRow>({{Qt::Key_Left, "←"},
                                                    {Qt::Key_Up, "↑"},
                                                    {Qt::Key_Right, "→"},
                                                    {Qt::Key_Down, "↓"},
                                                    {Qt::Key_Shift, "Shift"},
                                                    {Qt::Key_Control, "Ctrl"},
                                                    {Qt::Key_Tab, "Tab"},
                                                    {Qt::Key_Backspace, "Backspace"},
                                                    {Qt::Key_Return, "Enter"},
                                                    {Qt::Key_Insert, "Insert"},
                                                    {Qt::Key_Delete, "Delete"},
                                                    {Qt::Key_Home, "Home"},
                                                    {Qt::Key_End, "End"},
                                                    {Qt::Key_PageUp, "PgUp"},
                                                    {Qt::Key_PageDown, "PgDn"},
                                                    {Qt::Key_Pause, "Pause"}});

}  // namespace

bool HasSign(int key) {
  return key > Qt::Key_Space && key < kFirstNamed;
}

QString CapOf(int key) {
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 'F' + QString::number(key - Qt::Key_F1 + 1);
  if (HasSign(key)) {
    const QChar sign(static_cast<char16_t>(key));
    return key <= 0xFFFF && sign.isPrint() && !sign.isSpace() ? QString(sign.toUpper()) : QString();
  }
  const auto* const row =
      std::find_if(kCaps.begin(), kCaps.end(), [key](const CapRow& its) { return its.key == key; });
  return row == kCaps.end() ? QString() : QString::fromUtf8(row->cap);
}

}  // namespace zorik
