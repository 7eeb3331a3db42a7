#pragma once

#include <QDialog>
#include <QTreeWidget>

namespace zorik::test {

// The parts of a sheet of shortcuts.
inline QStringList Heads(const QWidget& sheet) {
  const auto& list = *sheet.findChild<QTreeWidget*>("lstShortcuts");
  QStringList heads;
  for (int i = 0; i < list.topLevelItemCount(); ++i) heads << list.topLevelItem(i)->text(0);
  return heads;
}

// Its rows, a line each: head, what is done, keys.
inline QStringList Rows(const QWidget& sheet) {
  const auto& list = *sheet.findChild<QTreeWidget*>("lstShortcuts");
  QStringList rows;
  for (int i = 0; i < list.topLevelItemCount(); ++i) {
    const QTreeWidgetItem& part = *list.topLevelItem(i);
    for (int k = 0; k < part.childCount(); ++k) {
      rows << QStringList{part.text(0), part.child(k)->text(1), part.child(k)->text(0)}.join(" | ");
    }
  }
  return rows;
}

}  // namespace zorik::test
