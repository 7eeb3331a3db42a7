#include "editors/EditorTitle.h"

#include <QStringList>
#include <filesystem>

#include "editors/BoxText.h"
#include "platform/PathText.h"
#include "screens/PlainText.h"

namespace zorik {
namespace {

QString FileName(const std::string& path) {
  return ShownPath(std::filesystem::path(path).filename().string());
}

// No part is so long that the next one is out of sight.
void SetParts(QWidget& window, QStringList parts) {
  constexpr qsizetype kMostInPart = 60;
  for (QString& part : parts) part = OneLine(part.left(kMostInLine).trimmed(), kMostInPart);
  parts.removeAll(QString());
  SetTitle(window, parts.join(" - "), ChangeMark::With);
}

}  // namespace

void SetCollectionTitle(QWidget& window, const QString& editor, const std::string& name,
                        const std::string& file) {
  SetParts(window, {editor, ToBox(name), FileName(file)});
}

void SetCaveTitle(QWidget& window, const QString& editor, const std::string& name, const CaveOrigin& origin) {
  QString cave = ToBox(name);
  if (origin.Number > 0) cave = QString::number(origin.Number) + ". " + cave;
  SetParts(window, {editor, cave, origin.File.empty() ? ToBox(origin.Collection) : FileName(origin.File)});
}

}  // namespace zorik
