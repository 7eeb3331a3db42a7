#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <functional>

class QFileDialog;
class QWidget;

namespace zorik {

class Skin;
struct Paths;

// What lies outside of the game, with a message when it is not to be had.

// Says something that was long in coming, over the window that it is about: as soon as that shows and nothing
// stands before it. A box over another screen would stop whatever goes on there.
void WhenInSight(QWidget* window, std::function<void()> say);

// Opens a file with the desktop's program for it.
void OpenFileOrTell(Skin& skin, QWidget* parent, const QString& path);

// Opens a page or a letter, likewise.
void OpenLinkOrTell(Skin& skin, QWidget* parent, const QUrl& link);

// The path of a page of the help, "help.html" for one: the player's own if there is one, else that of the
// installation. A skin of another language names the folder of its pages, within that of the help, by the key
// help.folder.
QString HelpPage(const Paths& paths, const Skin& skin, const QString& name);

// Gives a file box the game's words and letters; it renames and deletes nothing. The words are those of the
// button that takes the file.
void PrepareFileBox(QFileDialog& box, const Skin& skin, const QString& words);

// Lets the player choose a file that exists; empty when he does not. Filters are like "Records (*.zkr)".
QString AskForFile(Skin& skin, QWidget* parent, const QString& title, const QString& folder,
                   const QStringList& filters);

// The filter of records.
QString RecordFilter(const Skin& skin);

}  // namespace zorik
