#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

class QAction;
class QWidget;

namespace zorik {

// What is said of a thing while the pointer rests on it. All hints of the game are shown from here: as they
// are written, whatever stands in them, and in lines that any screen has room for.

// Gives a widget its hint, or the buttons of an action theirs.
void SetHint(QWidget& widget, const QString& text);
void SetHint(QAction& action, const QString& text);

// Shows a hint at a place of the screen, as long as the pointer stays in this part of the widget, or in all
// of it; an empty one hides what is shown.
void ShowHint(QPoint place, const QString& text, QWidget& widget, const QRect& part = QRect());

// From here on the hints and messages that the toolkit makes by itself, of folders and files, are shown so,
// too.
void KeepHintsPlain();

}  // namespace zorik
