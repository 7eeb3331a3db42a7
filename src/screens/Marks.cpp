#include "screens/Marks.h"

namespace zorik {

QString FillMarks(const QString& text, const QString& one, const QString& two) {
  constexpr qsizetype kMarkLength = 3;
  QString filled;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const auto mark = QStringView(text).mid(i, kMarkLength);
    const bool first = mark == QStringLiteral("?1?");
    if (!first && mark != QStringLiteral("?2?")) {
      filled += text.at(i);
      continue;
    }
    filled += first ? one : two;
    i += kMarkLength - 1;
  }
  return filled;
}

}  // namespace zorik
