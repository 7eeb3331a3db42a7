#include "screens/GhostMenu.h"

#include <algorithm>

#include "data/Result.h"
#include "flow/Flow.h"
#include "platform/Settings.h"
#include "screens/ChoiceMenu.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

// The lines before those of the rivals.
constexpr std::size_t kNobodys = 0;
constexpr std::size_t kOwn = 1;
constexpr std::size_t kFirstRival = 2;

QString WordsFor(const Skin& skin, const Rival& rival) {
  return FillMarks(kRivalGhostWords.In(skin), OneLine(ToQString(rival.Player), kMostInCaption),
                   QString::number(rival.Score));
}

// Who would go beside the player by now: one without a record of this cave gives way to the player's own.
std::size_t Current(const Flow& flow, const Settings& settings, const std::vector<Rival>& rivals) {
  if (!settings.Ghost) return kNobodys;
  const auto chosen = std::find_if(rivals.begin(), rivals.end(),
                                   [&](const Rival& rival) { return rival.Folder == flow.ChosenGhost(); });
  if (chosen == rivals.end()) return kOwn;
  return kFirstRival + static_cast<std::size_t>(chosen - rivals.begin());
}

}  // namespace

void AskForGhost(Skin& skin, Flow& flow, Settings& settings, QWidget& window, const QPoint& at) {
  const std::vector<Rival> rivals = flow.Rivals();
  QStringList lines{kNoGhostWords.In(skin), kOwnGhostWords.In(skin)};
  for (const Rival& rival : rivals) lines += WordsFor(skin, rival);
  const auto chosen = ChooseFromMenu(skin, window, "ghostMenu", lines, Current(flow, settings, rivals), at);
  if (!chosen) return;
  const bool ghost = *chosen != kNobodys;
  if (ghost) flow.ChooseGhost(*chosen == kOwn ? std::string() : rivals[*chosen - kFirstRival].Folder);
  if (ghost == settings.Ghost) return;
  settings.Ghost = ghost;
  if (!StoreSett(settings)) Tell(skin, &window, skin.Text(TextId::Program), kNotStoredWords.In(skin));
}

}  // namespace zorik
