#pragma once

#include <QString>

class QWidget;

namespace zorik {

class Skin;

// What a box for a new file asks for.
struct SaveWish {
  QString title;
  QString kind;    // what such files are called
  QString suffix;  // "zk" for one; put behind a name that does not end in it
  QString path;    // the file that is proposed
};

// Lets the player choose a file to be written; empty when he does not. A file that is there already is taken
// only after a question.
QString AskForNewFile(Skin& skin, QWidget* parent, const SaveWish& wish);

}  // namespace zorik
