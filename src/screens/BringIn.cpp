#include "screens/BringIn.h"

#include <filesystem>
#include <system_error>

#include "data/Result.h"
#include "platform/PathText.h"
#include "platform/Trash.h"
#include "screens/MsgBox.h"
#include "screens/StartFolders.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

// Places in the language table.
constexpr int kCopyQuestion = 112;
constexpr int kDeleteQuestion = 113;
constexpr int kTitle = 194;
constexpr int kFaultTitle = 99;

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
  const auto agrees = [&](int question) {
    return Ask(skin, &window, skin.Text(kTitle), skin.Text(question) + what);
  };
  if (!agrees(kCopyQuestion)) return path;
  const auto copy = CopyColl(PathBytes(path), folder);
  if (!copy) {
    Tell(skin, &window, skin.Text(kFaultTitle), kNotStoredWords.In(skin) + '\n' + ShownPath(folder));
    return path;
  }
  if (agrees(kDeleteQuestion) && !PutAway(path)) {
    Tell(skin, &window, skin.Text(kFaultTitle), kNotDeletedWords.Before(skin) + '\n' + ShownPath(path));
  }
  return PathText(*copy);
}

}  // namespace zorik
