#pragma once

#include <QString>

class QWidget;

namespace zorik {

// Dialogs of the game; each returns when the player has answered.

void Tell(QWidget* parent, const QString& title, const QString& text);

// Closing the question is a no.
bool Ask(QWidget* parent, const QString& title, const QString& text);

}  // namespace zorik
