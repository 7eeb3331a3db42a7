#include "editors/ToolNames.h"

#include <string>

#include "editors/ToolTable.h"
#include "screens/Marks.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {

QString NameOfTool(const Skin& skin, int palette, int dog) {
  const QString name = skin.Text(*ObjectOfTool(palette)->name);
  if (palette != kDogTool) return name;
  const QString number = QString::number(dog);
  return name.contains("?1?") ? FillMarks(name, number, QString()) : name + " " + number;
}

QString NameOfLetter(const Skin& skin, char letter) {
  const int palette = ToolOfLetter(letter);
  if (palette >= 0) return NameOfTool(skin, palette, ValueOf(letter));
  return QString("\"%1\"").arg(ToQString(std::string(1, letter)));
}

}  // namespace zorik
