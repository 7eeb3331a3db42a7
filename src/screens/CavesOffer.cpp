#include "screens/CavesOffer.h"

#include <QString>
#include <algorithm>
#include <string>
#include <vector>

#include "data/Result.h"
#include "platform/PathText.h"
#include "platform/Paths.h"
#include "platform/ShippedCaves.h"
#include "screens/MsgBox.h"
#include "screens/StartFolders.h"
#include "screens/StartWords.h"

namespace zorik {
namespace {

constexpr StartWords kLackingWords{"caption.caves.lacking"};
constexpr StartWords kAgainWords{"caption.caves.again"};

// What the collections of these files are called, a line each.
QString NamesOf(const Paths& paths, const std::vector<std::string>& files, const QString& language) {
  QString names;
  for (const CollRow& row : ReadColls(paths.ShippedCaves, language)) {
    if (std::find(files.begin(), files.end(), PathBytes(row.file)) != files.end()) names += row.name + '\n';
  }
  return names;
}

void TellNotStored(Skin& skin, const std::string& path) {
  Tell(skin, nullptr, skin.Text(TextId::Program), kNotStoredWords.In(skin) + '\n' + ShownPath(path));
}

}  // namespace

void OfferCaves(Skin& skin, Paths& paths) {
  if (!paths.CavesFailure.empty()) return TellNotStored(skin, paths.CavesFailure);
  const std::vector<std::string> lacking = LackingCaves(paths);
  if (lacking.empty()) return;
  const QString names = NamesOf(paths, lacking, LanguageOf(skin));
  const QString question = kLackingWords.In(skin) + '\n' + names + kAgainWords.In(skin);
  if (!Ask(skin, nullptr, skin.Text(TextId::Program), question)) {
    // Where this cannot be kept the question comes again.
    Disregard(DeclineCaves(paths, lacking));
    return;
  }
  const Result<Done> brought = BringCaves(paths, lacking);
  FindFolders(paths);
  if (!brought) TellNotStored(skin, brought.Message());
}

}  // namespace zorik
