#pragma once

#include <QString>
#include <QTextDocument>

namespace zorik {

// What stands in a box of several lines, whose own answer has plain blanks for those that do not break.
inline QString WholeText(const QTextDocument& document) {
  QString text = document.toRawText();
  return text.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
}

}  // namespace zorik
