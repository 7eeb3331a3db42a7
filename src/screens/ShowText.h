#pragma once

#include <QFontMetrics>
#include <QString>
#include <QStringList>
#include <functional>
#include <limits>

namespace zorik {

// A text laid out in lines.
struct WrappedText {
  QStringList lines;
  int width = 0;      // of the widest line, in logical pixels
  bool whole = true;  // whether there was room for all of it
};

// How wide a piece of text is, in logical pixels.
using TextMeasure = std::function<int(const QString& text)>;

inline constexpr qsizetype kAllLines = std::numeric_limits<qsizetype>::max();

// Breaks a text at CR, LF and CR LF, and at the last blank up to which a line still fits; a path breaks
// behind its separators. A word or name that is wider than a line is broken where it must be. What comes
// behind the last line that there is room for is not looked at, and a text twice as long takes twice the
// time.
WrappedText WrapText(const QString& text, const QFontMetrics& metrics, int maxWidth,
                     qsizetype mostLines = kAllLines);
WrappedText WrapText(const QString& text, const TextMeasure& measure, int maxWidth,
                     qsizetype mostLines = kAllLines);

}  // namespace zorik
