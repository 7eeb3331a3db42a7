#include "screens/PlainText.h"

#include <QLabel>
#include <algorithm>

namespace zorik {
namespace {

constexpr QChar kBlank(' ');
constexpr QChar kDots(0x2026);

bool TurnsWriting(QChar character) {
  const char16_t code = character.unicode();
  return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
         (code >= 0x2066 && code <= 0x2069);
}

bool EndsLine(QChar character) {
  return character == '\n' || character == '\r' || character == QChar::LineSeparator ||
         character == QChar::ParagraphSeparator || character == QChar(0x85);
}

bool IsHidden(QChar character) {
  return character.category() == QChar::Other_Control || TurnsWriting(character);
}

// What follows is not looked at, so a text of any length takes no more time than one that is shown.
QString Held(const QString& text, qsizetype most) {
  if (text.size() <= most) return text;
  QString held = text.left(most);
  if (!held.isEmpty() && held.back().isHighSurrogate()) held.chop(1);
  return held + kDots;
}

}  // namespace

QString OneLine(const QString& text, qsizetype most) {
  QString line = Held(text, most);
  line.replace("\r\n", kBlank);
  const auto strange = [](QChar character) { return EndsLine(character) || IsHidden(character); };
  std::replace_if(line.begin(), line.end(), strange, kBlank);
  return line;
}

QString InLines(const QString& text, qsizetype most) {
  QString lines = Held(text, most);
  lines.replace("\r\n", "\n");
  std::replace_if(lines.begin(), lines.end(), EndsLine, QChar('\n'));
  const auto strange = [](QChar character) { return character != '\n' && IsHidden(character); };
  std::replace_if(lines.begin(), lines.end(), strange, kBlank);
  return lines;
}

QString InMenu(const QString& text) {
  return OneLine(text, kMostInCaption).replace("&", "&&");
}

QLabel* NewLabel(QWidget* parent) {
  auto* const label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void KeepLabelsPlain(QWidget& window) {
  for (QLabel* const label : window.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
}

// The toolkit takes "[*]" for the place of its mark, and two of them for the letters.
void SetTitle(QWidget& window, const QString& title, ChangeMark mark) {
  const QString name = OneLine(title).replace("[*]", "[*][*]");
  window.setWindowTitle(mark == ChangeMark::With ? name + "[*]" : name);
}

}  // namespace zorik
