#include "screens/ChoiceMenu.h"

#include <QActionGroup>
#include <QMenu>

#include "screens/PlainText.h"
#include "screens/SkinWindow.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLetters = 14;

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

}  // namespace

std::optional<std::size_t> ChooseFromMenu(const Skin& skin, QWidget& window, const char* name,
                                          const QStringList& lines, std::optional<std::size_t> marked,
                                          const QPoint& at) {
  QMenu menu(&window);
  menu.setObjectName(name);
  menu.setPalette(MenuPalette(skin));
  menu.setFont(GameFont(kLetters));
  QActionGroup group(&menu);
  for (const QString& line : lines) group.addAction(InMenu(line))->setCheckable(marked.has_value());
  const QList<QAction*> actions = group.actions();
  if (marked) actions[static_cast<qsizetype>(*marked)]->setChecked(true);
  menu.addActions(actions);
  menu.setActiveAction(marked ? group.checkedAction() : actions.constFirst());
  QAction* const chosen = menu.exec(at);
  if (chosen == nullptr) return std::nullopt;
  return static_cast<std::size_t>(actions.indexOf(chosen));
}

}  // namespace zorik
