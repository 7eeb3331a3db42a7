#include "screens/ShowText.h"

#include <QStringView>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace zorik {
namespace {

constexpr QChar kReturn('\r');
constexpr QChar kFeed('\n');
constexpr QChar kBlank(' ');
constexpr qsizetype kFirstGuess = 32;
// Letters behind a place that may belong to the character in front of it.
constexpr qsizetype kAccents = 8;

// Lays out a text without breaks of its own, and nothing beyond the line that is asked for.
class Paragraph {
 public:
  Paragraph(QStringView text, const TextMeasure& measure, int maxWidth)
      : rest_(text), measure_(measure), maxWidth_(maxWidth), path_(text.startsWith('/')) {}

  bool AtEnd() const { return done_; }

  QString Next() {
    const qsizetype fitting = Fitting();
    if (fitting == rest_.size()) {
      done_ = true;
      return rest_.toString();
    }
    const qsizetype end = LineEnd(fitting);
    const QString line = rest_.first(end).toString();
    done_ = end == rest_.size();
    if (!done_) rest_ = rest_.sliced(rest_[end] == kBlank ? end + 1 : end);
    guess_ = std::max(kFirstGuess, line.size() + line.size() / 4);
    return line;
  }

 private:
  bool Fits(qsizetype length) const { return measure_(rest_.first(length).toString()) <= maxWidth_; }

  // How many letters from the front fit. Looks about as far as the line goes, not to the end of the text.
  qsizetype Fitting() const {
    qsizetype fits = 0;
    qsizetype wide = std::min(guess_, rest_.size());
    while (Fits(wide)) {
      if (wide == rest_.size()) return wide;
      fits = wide;
      wide = std::min(2 * wide, rest_.size());
    }
    while (wide - fits > 1) {
      const qsizetype middle = fits + (wide - fits) / 2;
      (Fits(middle) ? fits : wide) = middle;
    }
    return fits;
  }

  // Where a line ends of which so many letters fit. The names within a path stay whole, and those of a line
  // that is a path may have blanks.
  qsizetype LineEnd(qsizetype fitting) const {
    const qsizetype blank = rest_.first(fitting + 1).lastIndexOf(kBlank);
    const qsizetype name = NameEnd(fitting);
    if (path_ && name > 1) return name;
    if (blank >= 0) return blank;
    return name > 1 ? name : WordEnd(fitting);
  }

  // Behind the last separator of a path that fits; 0 for none.
  qsizetype NameEnd(qsizetype fitting) const {
    const QStringView seen = rest_.first(fitting);
    return std::max(seen.lastIndexOf('/'), seen.lastIndexOf('\\')) + 1;
  }

  // Where a word is broken of which so many letters fit: between characters as a reader counts them, behind
  // one of them at least.
  qsizetype WordEnd(qsizetype fitting) const {
    const QString seen = rest_.first(std::min(fitting + kAccents, rest_.size())).toString();
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, seen);
    qsizetype end = characters.toNextBoundary();
    for (qsizetype next = characters.toNextBoundary(); next >= 0 && next <= fitting;
         next = characters.toNextBoundary()) {
      end = next;
    }
    return end;
  }

  QStringView rest_;
  const TextMeasure& measure_;
  int maxWidth_;
  bool path_;  // whether the text is a path from its first letter on
  qsizetype guess_ = kFirstGuess;
  bool done_ = false;
};

// Takes what stands in front of the next line end; nothing is left behind the last one.
QStringView TakeParagraph(QStringView& rest, bool& more) {
  const auto* const end =
      std::find_if(rest.begin(), rest.end(), [](QChar c) { return c == kReturn || c == kFeed; });
  const QStringView taken(rest.begin(), end);
  more = end != rest.end();
  if (!more) return taken;
  const bool two = *end == kReturn && end + 1 != rest.end() && end[1] == kFeed;
  rest = QStringView(end + (two ? 2 : 1), rest.end());
  return taken;
}

}  // namespace

WrappedText WrapText(const QString& text, const TextMeasure& measure, int maxWidth, qsizetype mostLines) {
  WrappedText wrapped;
  QStringView rest(text);
  for (bool more = true; more;) {
    Paragraph paragraph(TakeParagraph(rest, more), measure, maxWidth);
    while (!paragraph.AtEnd()) {
      if (wrapped.lines.size() >= mostLines) {
        wrapped.whole = false;
        return wrapped;
      }
      wrapped.lines.push_back(paragraph.Next());
      wrapped.width = std::max(wrapped.width, measure(wrapped.lines.back()));
    }
  }
  return wrapped;
}

WrappedText WrapText(const QString& text, const QFontMetrics& metrics, int maxWidth, qsizetype mostLines) {
  return WrapText(
      text, [&metrics](const QString& piece) { return metrics.horizontalAdvance(piece); }, maxWidth,
      mostLines);
}

}  // namespace zorik
