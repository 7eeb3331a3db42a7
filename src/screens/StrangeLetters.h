#pragma once

#include <QList>
#include <QString>
#include <cstddef>

class QLineEdit;
class QPlainTextEdit;

namespace zorik {

// Texts of collections and caves are kept in Windows-1250. What that lacks becomes question marks there, so a
// box shows it while it is typed.

// A letter of a text, with the accents that belong to it.
struct LetterPlace {
  qsizetype place;
  qsizetype length;

  bool operator==(const LetterPlace&) const = default;
};

// The letters of a text that Windows-1250 lacks.
QList<LetterPlace> StrangeLetters(const QString& text);

// The same, each of them once, with blanks between; those that cannot be seen by their numbers. Of many only
// the first ones, and dots.
QString StrangeLettersInWords(const QString& text);

// How many bytes of Windows-1250 a text takes; a line break takes two.
std::size_t KeptLength(const QString& text);

// From here on a box marks such letters.
void MarkStrangeLetters(QLineEdit& box);
void MarkStrangeLetters(QPlainTextEdit& box);

}  // namespace zorik
