#include "screens/BringIn.h"

#include <filesystem>
#include <system_error>

#include "data/FileTrouble.h"
#include "data/Result.h"
#include "platform/PathText.h"
#include "platform/Trash.h"
#include "screens/MsgBox.h"
#include "screens/StartFolders.h"
#include "screens/StartWords.h"
#include "screens/TroubleWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

Result<Done> PutAway(const QString& path) {
  if (MoveToTrash(path)) return Done{};
  std::error_code error;
  if (std::filesystem::remove(PathBytes(path), error)) return Done{};
  return Failure{"cannot delete " + PathBytes(path) + ": " + error.message()};
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
    Tell(skin, &window, skin.Text(TextId::Program),
         kNotStoredWords.In(skin) + '\n' + ShownPath(folder) + LineOfTrouble(skin, copy.Why().Trouble));
    return path;
  }
  if (agrees(TextId::DeleteOriginal) && !PutAway(path)) {
    Tell(skin, &window, skin.Text(TextId::Program), kNotDeletedWords.Before(skin) + '\n' + ShownPath(path));
  }
  return PathText(*copy);
}

}  // namespace zorik
