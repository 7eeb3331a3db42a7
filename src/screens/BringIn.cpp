#include "screens/BringIn.h"

#include <filesystem>
#include <system_error>

#include "platform/PathText.h"
#include "platform/Trash.h"
#include "screens/MsgBox.h"
#include "screens/StartFolders.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

bool PutAway(const QString& path) {
  std::error_code error;
  return MoveToTrash(path) || std::filesystem::remove(PathBytes(path), error);
}

}  // namespace

QString BringIn(Skin& skin, QWidget& window, const QString& path, const std::string& folder) {
  if (LiesIn(PathBytes(path), folder)) return path;
  const QString what = "\n\n" + CollName(PathBytes(path)) + '\n' + ShownPath(path);
  const auto agrees = [&](TextId question) {
    return Ask(skin, &window, skin.Text(TextId::FromOutside), skin.Text(question) + what);
  };
  if (!agrees(TextId::CopyCollection)) return path;
  const auto copy = CopyColl(PathBytes(path), folder);
  if (!copy) {
    Tell(skin, &window, skin.Text(TextId::Program), kNotStoredWords.In(skin) + '\n' + ShownPath(folder));
    return path;
  }
  if (agrees(TextId::DeleteOriginal) && !PutAway(path)) {
    Tell(skin, &window, skin.Text(TextId::Program), kNotDeletedWords.Before(skin) + '\n' + ShownPath(path));
  }
  return PathText(*copy);
}

}  // namespace zorik
