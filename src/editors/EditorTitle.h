#pragma once

#include <QString>
#include <string>

#include "editors/CaveOrigin.h"

class QWidget;

namespace zorik {

// The titles of the editors: their own words, what is being edited and its file, and the mark of what has
// changed. Texts are bytes in Windows-1250, paths UTF-8.

void SetCollectionTitle(QWidget& window, const QString& editor, const std::string& name,
                        const std::string& file);

// A cave of a collection that has no file is told by the collection's name.
void SetCaveTitle(QWidget& window, const QString& editor, const std::string& name, const CaveOrigin& origin);

}  // namespace zorik
