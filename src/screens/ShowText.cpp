#include "screens/ShowText.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace zorik {
namespace {

constexpr QChar kReturn('\r');
constexpr QChar kBlank(' ');

bool Breaks(QChar character) {
  return character == kReturn || character == kBlank;
}

// Where the first line ends: at a return, or at the last blank up to which the text fits; -1 when not even
// the first word fits.
qsizetype LineEnd(const QString& rest, const QFontMetrics& metrics, int maxWidth) {
  qsizetype end = -1;
  for (qsizetype at = 0; at < rest.size(); ++at) {
    if (!Breaks(rest[at])) continue;
    if (metrics.horizontalAdvance(rest.left(at)) > maxWidth) break;
    end = at;
    if (rest[at] == kReturn) break;
  }
  return end;
}

// How much of a word fits, at least one character as a reader counts them.
qsizetype WordEnd(const QString& rest, const QFontMetrics& metrics, int maxWidth) {
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, rest);
  qsizetype end = characters.toNextBoundary();
  for (qsizetype next = characters.toNextBoundary(); next >= 0; next = characters.toNextBoundary()) {
    if (metrics.horizontalAdvance(rest.left(next)) > maxWidth) break;
    end = next;
  }
  return end;
}

}  // namespace

WrappedText WrapText(const QString& text, const QFontMetrics& metrics, int maxWidth) {
  QString rest = text;
  rest.replace("\r\n", kReturn).replace('\n', kReturn);
  rest += kBlank;
  WrappedText wrapped;
  while (!rest.isEmpty()) {
    qsizetype end = LineEnd(rest, metrics, maxWidth);
    if (end < 0) end = WordEnd(rest, metrics, maxWidth);
    wrapped.lines.push_back(rest.left(end));
    wrapped.width = std::max(wrapped.width, metrics.horizontalAdvance(wrapped.lines.back()));
    rest.remove(0, Breaks(rest[end]) ? end + 1 : end);
  }
  return wrapped;
}

}  // namespace zorik
