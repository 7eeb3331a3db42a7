#pragma once

#include <QAction>
#include <QList>
#include <QString>
#include <QStringList>

class QMenu;

namespace zorik {

// The letters by which the entries of a menu are chosen from the keyboard. Captions come from skins, which
// know nothing of them; so each entry gets one by itself. Captions here are as a menu has them: "&&" for an
// ampersand, a single one before the letter.

// A caption without its letter.
QString WithoutMnemonic(const QString& caption);

// The letter of a caption, a capital; a null character when it has none.
QChar MnemonicOf(const QString& caption);

// The captions of one menu with a letter each, no two alike: a digit that ends a caption, else the beginning
// of a word, else any letter, those that every keyboard has before others. One whose letters are all taken
// gets a free one behind it. Where nothing is free any more it gets none.
QStringList WithMnemonics(const QStringList& captions);

// Gives them to the entries of a menu.
void GiveMnemonics(const QList<QAction*>& actions);

// Gives them anew whenever the menu shows, whoever has named its entries meanwhile.
void KeepMnemonics(QMenu& menu);

}  // namespace zorik
