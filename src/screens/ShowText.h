#pragma once

#include <QFontMetrics>
#include <QString>
#include <QStringList>

namespace zorik {

// A text laid out in lines.
struct WrappedText {
  QStringList lines;
  int width = 0;  // of the widest line, in logical pixels
};

// Breaks a text at CR, LF and CR LF, and at the last blank up to which a line still fits. A word that is
// wider than a line is broken where it must be.
WrappedText WrapText(const QString& text, const QFontMetrics& metrics, int maxWidth);

}  // namespace zorik
