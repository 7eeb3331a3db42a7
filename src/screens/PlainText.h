#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace zorik {

// The way of texts from collections, records, skins, players and folders into a control: as they are written,
// and no longer than a place can show.

// So many characters at most are shown of a text in one line, in several lines, of a caption, and in a box
// that can be scrolled; over a word of a million letters the toolkit's boxes would freeze.
inline constexpr qsizetype kMostInLine = 300;
inline constexpr qsizetype kMostInLines = 4000;
inline constexpr qsizetype kMostInCaption = 100;
inline constexpr qsizetype kMostInBox = 20000;

// A text in one line. Line ends, tabs, other control characters and marks that turn the way of writing become
// blanks; a text that is too long ends in dots.
QString OneLine(const QString& text, qsizetype most = kMostInLine);

// The same for a text that keeps its lines; their ends are LF.
QString InLines(const QString& text, qsizetype most = kMostInLines);

// A caption where a single ampersand would underline a letter: in menus, on buttons, beside boxes.
QString InMenu(const QString& text);

// A new label, which shows its text as it is written.
QLabel* NewLabel(QWidget* parent);

// Makes the labels that the toolkit has put into a window show their texts so, too.
void KeepLabelsPlain(QWidget& window);

// Names a window. The mark, if it is wanted, stands behind the name while the window counts as modified.
enum class ChangeMark { Without, With };
void SetTitle(QWidget& window, const QString& title, ChangeMark mark = ChangeMark::Without);

}  // namespace zorik
