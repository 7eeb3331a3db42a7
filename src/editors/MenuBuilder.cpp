#include "editors/MenuBuilder.h"

#include <QMenu>
#include <QMenuBar>

#include "editors/Mnemonics.h"
#include "screens/Hint.h"
#include "screens/PlainText.h"
#include "skin/Skin.h"

namespace zorik {

MenuBuilder::MenuBuilder(QMainWindow& window) : MenuBuilder(window, *window.menuBar()) {}

QMenu* MenuBuilder::AddMenu(const char* name, const char* key) {
  return Keep(bar_.addMenu(QString()), name, key);
}

QMenu* MenuBuilder::AddMenu(QMenu& menu, const char* name, const char* key) {
  return Keep(menu.addMenu(QString()), name, key);
}

QAction* MenuBuilder::Add(QMenu& menu, const char* name, const char* key, const char* shortcuts,
                          std::function<void()> act) {
  QAction* const action = menu.addAction(QString());
  if (*shortcuts != '\0') action->setShortcuts(QKeySequence::listFromString(shortcuts));
  QObject::connect(action, &QAction::triggered, &window_, std::move(act));
  Keep(action, name, key);
  return action;
}

void MenuBuilder::SetCaptions(const Skin& skin) const {
  for (const Caption& caption : captions_) caption.action->setText(InMenu(skin.Caption(caption.key)));
  GiveMnemonics(bar_.actions());
}

void MenuBuilder::SetHints(const Skin& skin) const {
  for (const Caption& caption : captions_) {
    const QString words = skin.Caption(caption.key);
    const QString keys = caption.action->shortcut().toString(QKeySequence::NativeText);
    SetHint(*caption.action, keys.isEmpty() ? words : words + " (" + keys + ')');
  }
}

QMenu* MenuBuilder::Keep(QMenu* menu, const char* name, const char* key) {
  menu->setObjectName(name);
  KeepMnemonics(*menu);
  Keep(menu->menuAction(), name, key);
  return menu;
}

void MenuBuilder::Keep(QAction* action, const char* name, const char* key) {
  action->setObjectName(name);
  if (key != nullptr) captions_.push_back({action, key});
}

}  // namespace zorik
