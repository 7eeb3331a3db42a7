#include "platform/PathText.h"

#include <optional>

#include "data/Cp1250.h"

namespace zorik {
namespace {

constexpr char16_t kByteZero = 0xDC00;  // what stands for a byte that is no UTF-8, less that byte
constexpr char16_t kFirstByte = kByteZero + 0x80;
constexpr char16_t kLastByte = kByteZero + 0xFF;

// The second half of a pair has the first before it; one that stands for a byte has not.
bool StandsForByte(const QString& text, qsizetype place) {
  const char16_t unit = text[place].unicode();
  const bool second = place > 0 && text[place - 1].isHighSurrogate();
  return unit >= kFirstByte && unit <= kLastByte && !second;
}

std::string ShownName(const std::string& name) {
  return WithoutControls(IsUtf8(name) ? name : ToUtf8(name));
}

}  // namespace

QString PathText(std::string_view path) {
  QString text;
  while (!path.empty()) {
    const auto byte = static_cast<unsigned char>(path[0]);
    const std::optional<char32_t> codePoint = TakeCodePoint(path);
    if (codePoint) {
      text += QChar::fromUcs4(*codePoint);
    } else {
      text += QChar(static_cast<char16_t>(kByteZero + byte));
    }
  }
  return text;
}

std::string PathBytes(const QString& text) {
  std::string path;
  qsizetype start = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!StandsForByte(text, i)) continue;
    path += text.mid(start, i - start).toStdString();
    path += static_cast<char>(text[i].unicode() - kByteZero);
    start = i + 1;
  }
  return path + text.mid(start).toStdString();
}

QString ShownPath(std::string_view path) {
  std::string shown;
  for (;;) {
    const std::size_t length = path.find('/');
    shown += ShownName(std::string(path.substr(0, length)));
    if (length == std::string_view::npos) return QString::fromStdString(shown);
    shown += '/';
    path.remove_prefix(length + 1);
  }
}

QString ShownPath(const QString& text) {
  return ShownPath(PathBytes(text));
}

}  // namespace zorik
