#include "screens/PageOffer.h"

#include "data/CaveO.h"
#include "data/FileTrouble.h"
#include "data/Files.h"
#include "data/Result.h"
#include "data/WebPage.h"
#include "platform/PathText.h"
#include "platform/UserFolders.h"
#include "screens/MsgBox.h"
#include "screens/SaveBox.h"
#include "screens/StartWords.h"
#include "screens/TroubleWords.h"
#include "skin/Skin.h"

namespace zorik {

void OfferPage(Skin& skin, QWidget* parent, const std::string& record, const std::string& caveName,
               const std::string& programFolder) {
  const auto say = [&](const QString& text) { Tell(skin, parent, skin.Text(TextId::Program), text); };
  const auto where = FindWebPageTemplate(programFolder);
  const Result<std::string> pageTemplate = where ? ReadWhole(*where) : Failure{};
  if (!pageTemplate) return say(kNoPageWords.In(skin));
  const Result<std::string> page = BuildWebPage(*pageTemplate, record);
  if (!page) return say(kNoRecordWords.In(skin));
  const QString proposed = PathText(FileSystemName(CleanFileName(caveName) + ".html"));
  const QString path = AskForNewFile(
      skin, parent, {kAsPageWords.In(skin), kPageKindWords.In(skin), "html", HomeText() + '/' + proposed});
  if (path.isEmpty()) return;
  const Result<Done, FileFailure> written = WriteFile(PathBytes(path), *page);
  if (!written)
    say(kNotStoredWords.In(skin) + '\n' + ShownPath(path) + LineOfTrouble(skin, written.Why().Trouble));
}

}  // namespace zorik
