#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QSet>

#include "editors/Mnemonics.h"

namespace zorik::test {

// All menus of a bar, a line an item: its name, its caption without its letter, its keys. What a menu holds
// stands below it, with two blanks more in front.
inline QStringList MenuLines(const QList<QAction*>& actions, const QString& before = QString()) {
  QStringList lines;
  for (const QAction* const action : actions) {
    if (action->isSeparator()) {
      lines << before + '-';
      continue;
    }
    QStringList parts{action->objectName(), WithoutMnemonic(action->text())};
    for (const QKeySequence& keys : action->shortcuts()) parts << keys.toString();
    const QMenu* const menu = action->menu<QMenu*>();
    if (menu != nullptr && parts[0].isEmpty()) parts[0] = menu->objectName();
    lines << before + parts.join(" | ");
    if (menu != nullptr) lines << MenuLines(menu->actions(), before + "  ");
  }
  return lines;
}

// Opens a list of steps and tells them from the top, the present moment with an arrow in front.
inline QStringList StepLines(QMenu& menu) {
  menu.popup({});
  QStringList steps;
  for (const QAction* const step : menu.actions()) {
    if (step->isSeparator()) continue;
    steps << (step->isChecked() ? "> " : "") + WithoutMnemonic(step->text());
  }
  menu.close();
  return steps;
}

// Opens every menu below these entries, as people do, and tells what is wrong with the letters by which they
// are chosen.
inline QStringList MnemonicFaults(const QList<QAction*>& actions) {
  QStringList faults;
  QSet<QChar> seen;
  for (const QAction* const action : actions) {
    if (action->isSeparator()) continue;
    const QChar letter = MnemonicOf(action->text());
    if (letter.isNull()) faults << action->text() + " has none";
    if (seen.contains(letter)) faults << action->text() + " has one that is taken";
    seen.insert(letter);
    QMenu* const menu = action->menu<QMenu*>();
    if (menu == nullptr) continue;
    menu->popup(QPoint(0, 0));
    faults << MnemonicFaults(menu->actions());
    menu->close();
  }
  return faults;
}

}  // namespace zorik::test
