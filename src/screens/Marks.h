#pragma once

#include <QString>
#include <QStringList>

namespace zorik {

// Puts names in place of the marks ?1?, ?2? and so on to ?9? of a text, as many as there are; the others
// stay. A mark within a name stays as it is, too.
QString FillMarks(const QString& text, const QStringList& names);
QString FillMarks(const QString& text, const QString& one, const QString& two);

}  // namespace zorik
