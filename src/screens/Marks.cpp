#include "screens/Marks.h"

namespace zorik {
namespace {

constexpr qsizetype kMarkLength = 3;

// The place of the name that a mark stands for, -1 where there is no mark.
qsizetype PlaceOfMark(QStringView text) {
  if (text.size() < kMarkLength || text[0] != '?' || text[2] != '?') return -1;
  return text[1] < '1' || text[1] > '9' ? -1 : text[1].unicode() - '1';
}

}  // namespace

QString FillMarks(const QString& text, const QStringList& names) {
  QString filled;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const qsizetype place = PlaceOfMark(QStringView(text).mid(i, kMarkLength));
    if (place < 0 || place >= names.size()) {
      filled += text.at(i);
      continue;
    }
    filled += names[place];
    i += kMarkLength - 1;
  }
  return filled;
}

QString FillMarks(const QString& text, const QString& one, const QString& two) {
  return FillMarks(text, QStringList{one, two});
}

}  // namespace zorik
