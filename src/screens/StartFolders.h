#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik {

struct FileFailure;

// What the start screen's lists are made of.

// A collection: its file in the folder, without a path, and what the list calls it.
struct CollRow {
  QString file;  // as PathText writes it
  QString name;

  bool operator==(const CollRow&) const = default;
};

// What a collection is called in the list.
QString CollName(const std::string& path);

// The collections (*.zk) of a folder, sorted by file as people sort: first those in this language, two
// letters, then those that tell none, then those in another language of the game. A file tells its language
// by the end of its name, "-en.zk". One whose first line holds no name goes by the name of its file.
std::vector<CollRow> ReadColls(const std::string& folder, const QString& language);

// The players of a folder, which are its folders, sorted as people sort, as PathText writes them. A folder
// with a name that no player can have, since Windows-1250 lacks one of its letters, is none.
QStringList ReadPlayers(const std::string& folder);

enum class Added { Yes, ThereAlready, NotWritten };

// Makes the folder of a new player (name in Windows-1250), and the one above if it is missing. There may be
// such a player already, in whatever letter case.
Added AddPlayer(const std::string& folder, const std::string& name);

// Copies a collection into the folder and answers the copy's path. As long as a file there has the copy's
// name, that gets one more "~".
Result<std::string, FileFailure> CopyColl(const std::string& path, const std::string& folder);

// Whether a file lies in this very folder.
bool LiesIn(const std::string& path, const std::string& folder);

}  // namespace zorik
