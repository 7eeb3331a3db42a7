#pragma once

#include <QMenu>
#include <QMenuBar>

namespace zorik::test {

// All menus of a bar, a line an item: its name, its caption, its keys. What a menu holds stands below it,
// with two blanks more in front.
inline QStringList MenuLines(const QList<QAction*>& actions, const QString& before = QString()) {
  QStringList lines;
  for (const QAction* const action : actions) {
    if (action->isSeparator()) {
      lines << before + '-';
      continue;
    }
    QStringList parts{action->objectName(), action->text()};
    for (const QKeySequence& keys : action->shortcuts()) parts << keys.toString();
    const QMenu* const menu = action->menu<QMenu*>();
    if (menu != nullptr && parts[0].isEmpty()) parts[0] = menu->objectName();
    lines << before + parts.join(" | ");
    if (menu != nullptr) lines << MenuLines(menu->actions(), before + "  ");
  }
  return lines;
}

}  // namespace zorik::test
