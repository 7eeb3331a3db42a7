#pragma once

#include <QString>
#include <string>

class QWidget;

namespace zorik {

class Skin;

// Offers to copy a collection from outside to those of the game, which lie in a folder, and to put the
// original away: into the desktop's trash where there is one. Both questions name the collection and its
// file. Answers where the collection is to be opened: its copy if there is one, else itself.
QString BringIn(Skin& skin, QWidget& window, const QString& path, const std::string& folder);

}  // namespace zorik
