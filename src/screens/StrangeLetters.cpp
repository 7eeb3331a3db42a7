#include "screens/StrangeLetters.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringList>
#include <QSyntaxHighlighter>
#include <QTextBoundaryFinder>

#include "data/Cp1250.h"

namespace zorik {
namespace {

constexpr qsizetype kMostNamed = 8;
constexpr QColor kMarkColour(0xD0, 0x20, 0x20);
constexpr int kShade = 48;  // of 255

// A letter and its accent may come apart.
QString Composed(const QString& text) {
  return text.normalized(QString::NormalizationForm_C);
}

// A break becomes another break, or a blank.
bool IsBreak(const QString& letter) {
  return letter == QChar::LineSeparator || letter == QChar::ParagraphSeparator;
}

bool IsStrange(const QString& letter) {
  return !IsBreak(letter) && !FromUtf8(Composed(letter).toStdString());
}

QString NameOf(const QString& letter) {
  const bool seen = letter.size() > 1 || (letter[0].isPrint() && !letter[0].isSpace());
  return seen ? letter : QString("U+%1").arg(letter[0].unicode(), 4, 16, QChar('0')).toUpper();
}

QTextCharFormat MarkFormat() {
  QTextCharFormat format;
  format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
  format.setUnderlineColor(kMarkColour);
  QColor shade = kMarkColour;
  shade.setAlpha(kShade);
  format.setBackground(shade);
  return format;
}

class StrangeHighlighter : public QSyntaxHighlighter {
 public:
  using QSyntaxHighlighter::QSyntaxHighlighter;

 protected:
  void highlightBlock(const QString& text) override {
    for (const LetterPlace& letter : StrangeLetters(text)) {
      setFormat(static_cast<int>(letter.place), static_cast<int>(letter.length), MarkFormat());
    }
  }
};

// The looks of letters in such a box can be set in one way only: as an input method does with what is being
// composed. Their places count from the caret.
void MarkNow(QLineEdit& box) {
  QList<QInputMethodEvent::Attribute> looks;
  for (const LetterPlace& letter : StrangeLetters(box.text())) {
    looks.append({QInputMethodEvent::TextFormat, static_cast<int>(letter.place) - box.cursorPosition(),
                  static_cast<int>(letter.length), MarkFormat()});
  }
  QInputMethodEvent event(QString(), looks);
  QCoreApplication::sendEvent(&box, &event);
}

}  // namespace

QList<LetterPlace> StrangeLetters(const QString& text) {
  if (!IsStrange(text)) return {};
  QList<LetterPlace> letters;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype place = 0, next = finder.toNextBoundary(); next >= 0; next = finder.toNextBoundary()) {
    if (IsStrange(text.mid(place, next - place))) letters.append({place, next - place});
    place = next;
  }
  return letters;
}

QString StrangeLettersInWords(const QString& text) {
  QStringList names;
  for (const LetterPlace& letter : StrangeLetters(text)) {
    const QString name = NameOf(text.mid(letter.place, letter.length));
    if (names.contains(name)) continue;
    if (names.size() == kMostNamed) return names.join(' ') + " …";
    names << name;
  }
  return names.join(' ');
}

std::size_t KeptLength(const QString& text) {
  return FromUtf8Lossy(Composed(text).replace('\n', "\r\n").toStdString()).size();
}

void MarkStrangeLetters(QLineEdit& box) {
  QObject::connect(&box, &QLineEdit::textChanged, &box, [&box] { MarkNow(box); });
}

void MarkStrangeLetters(QPlainTextEdit& box) {
  new StrangeHighlighter(box.document());
}

}  // namespace zorik
