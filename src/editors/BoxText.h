#pragma once

#include <QString>
#include <string>

class QLineEdit;

namespace zorik {

// Between the texts of the files, Windows-1250 with any line ends, and what stands in a text box.

// What a box shows; its line breaks are LF.
QString ToBox(const std::string& bytes);

// What is kept of it; its line breaks are CR LF, and letters that Windows-1250 lacks become "?".
std::string FromBox(const QString& text);

// A text as it will be shown again when it has been kept.
QString AsKept(const QString& text);

// A text in one line, as a box of one line holds it.
QString InOneLine(QString text);

// Selects all that stands in a box, of which the beginning is seen then.
void SelectFromEnd(QLineEdit& box);

}  // namespace zorik
