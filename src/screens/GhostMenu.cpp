#include "screens/GhostMenu.h"

#include <QActionGroup>
#include <QMenu>
#include <algorithm>

#include "data/Result.h"
#include "flow/Flow.h"
#include "platform/Settings.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/SkinWindow.h"
#include "screens/StartWords.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr int kLetters = 14;

struct Choice {
  bool ghost = false;
  std::string rival;  // empty: the player's own run
};

QString WordsFor(const Skin& skin, const Rival& rival) {
  return kRivalGhostWords.In(skin)
      .replace("?2?", QString::number(rival.Score))
      .replace("?1?", OneLine(ToQString(rival.Player), kMostInCaption));
}

QPalette MenuPalette(const Skin& skin) {
  const Tones tones = TonesOf(skin.Colour("dialog.color", kPlainGround));
  QPalette colours = PaletteOf(tones);
  for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base})
    colours.setColor(ground, tones.ground);
  colours.setColor(QPalette::Text, tones.text);
  colours.setColor(QPalette::Highlight, tones.line);
  colours.setColor(QPalette::HighlightedText, tones.text);
  return colours;
}

// Who would go beside the player by now: one without a record of this cave gives way to the player's own.
Choice Current(const Flow& flow, const Settings& settings, const std::vector<Rival>& rivals) {
  const auto chosen = [&](const Rival& rival) { return rival.Folder == flow.ChosenGhost(); };
  const bool there = std::any_of(rivals.begin(), rivals.end(), chosen);
  return {settings.Ghost, there ? flow.ChosenGhost() : std::string()};
}

// An entry that is marked if it is what holds by now.
void Offer(QActionGroup& group, const QString& words, const Choice& choice, const Choice& current,
           std::vector<Choice>& choices) {
  QAction* const action = group.addAction(InMenu(words));
  action->setCheckable(true);
  action->setChecked(choice.ghost == current.ghost && (!choice.ghost || choice.rival == current.rival));
  choices.push_back(choice);
}

void Keep(Skin& skin, Flow& flow, Settings& settings, QWidget& window, const Choice& choice) {
  if (choice.ghost) flow.ChooseGhost(choice.rival);
  if (choice.ghost == settings.Ghost) return;
  settings.Ghost = choice.ghost;
  if (!StoreSett(settings)) Tell(skin, &window, skin.Text(TextId::Program), kNotStoredWords.In(skin));
}

}  // namespace

void AskForGhost(Skin& skin, Flow& flow, Settings& settings, QWidget& window, const QPoint& at) {
  const std::vector<Rival> rivals = flow.Rivals();
  const Choice current = Current(flow, settings, rivals);
  QMenu menu(&window);
  menu.setObjectName("ghostMenu");
  menu.setPalette(MenuPalette(skin));
  menu.setFont(GameFont(kLetters));
  QActionGroup group(&menu);
  std::vector<Choice> choices;
  Offer(group, kNoGhostWords.In(skin), {}, current, choices);
  Offer(group, kOwnGhostWords.In(skin), {true, {}}, current, choices);
  for (const Rival& rival : rivals)
    Offer(group, WordsFor(skin, rival), {true, rival.Folder}, current, choices);
  menu.addActions(group.actions());
  menu.setActiveAction(group.checkedAction());
  const QAction* const chosen = menu.exec(at);
  if (chosen == nullptr) return;
  const auto place = static_cast<std::size_t>(group.actions().indexOf(chosen));
  Keep(skin, flow, settings, window, choices[place]);
}

}  // namespace zorik
