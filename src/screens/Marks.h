#pragma once

#include <QString>

namespace zorik {

// Puts names in place of the marks ?1? and ?2? of a text. A mark within a name stays as it is.
QString FillMarks(const QString& text, const QString& one, const QString& two);

}  // namespace zorik
