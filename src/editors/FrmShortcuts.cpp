#include "editors/FrmShortcuts.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "editors/Mnemonics.h"
#include "editors/WindowPlace.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kShortcutsWords{"caption.shortcuts.title"};

constexpr QSize kUsualSize(620, 520);
constexpr int kGap = 24;  // between the two columns

// What stands on a menu or an item, as it is read.
QString WordsOf(const QAction& action) {
  return WithoutMnemonic(action.text()).replace("&&", "&");
}

QString KeysOf(const QAction& action) {
  return QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText).replace("; ", ", ");
}

QTreeWidgetItem& AddPart(QTreeWidget& list, const QString& head) {
  auto* const part = new QTreeWidgetItem(&list, {OneLine(head, kMostInCaption)});
  QFont letters = list.font();
  letters.setBold(true);
  part->setFont(0, letters);
  part->setFirstColumnSpanned(true);
  return *part;
}

void AddRow(QTreeWidgetItem& part, const QString& keys, const QString& words) {
  new QTreeWidgetItem(&part, {OneLine(keys, kMostInCaption), OneLine(words, kMostInCaption)});
}

void AddItems(QTreeWidgetItem& part, const QList<QAction*>& actions, const QString& before) {
  for (const QAction* const action : actions) {
    const QString words = before + WordsOf(*action);
    if (const QMenu* const menu = action->menu<QMenu*>()) {
      AddItems(part, menu->actions(), words + ": ");
    } else if (!action->shortcuts().isEmpty()) {
      AddRow(part, KeysOf(*action), words);
    }
  }
}

void AddMenus(QTreeWidget& list, const QMenuBar& menus) {
  for (const QAction* const top : menus.actions()) {
    const QMenu* const menu = top->menu<QMenu*>();
    if (menu == nullptr) continue;
    QTreeWidgetItem& part = AddPart(list, WordsOf(*top));
    AddItems(part, menu->actions(), QString());
    if (part.childCount() == 0) delete &part;
  }
}

void AddBesides(QTreeWidget& list, const Skin& skin, const KeysPart& besides) {
  QTreeWidgetItem& part = AddPart(list, skin.Caption(besides.head));
  for (const KeysRow& row : besides.rows) {
    const QString caption = skin.Caption(row.key);
    const qsizetype stroke = caption.indexOf('|');
    AddRow(part, caption.left(std::max<qsizetype>(stroke, 0)), caption.mid(stroke + 1));
  }
}

}  // namespace

FrmShortcuts::FrmShortcuts(const Skin& skin, const QMenuBar& menus, std::initializer_list<KeysPart> besides,
                           QWidget* parent)
    : QDialog(parent), list_(new QTreeWidget(this)) {
  setObjectName("frmShortcuts");
  SetTitle(*this, kShortcutsWords.In(skin));
  list_->setObjectName("lstShortcuts");
  list_->setColumnCount(2);
  list_->header()->hide();
  list_->setRootIsDecorated(false);
  list_->setItemsExpandable(false);
  list_->setWordWrap(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  AddMenus(*list_, menus);
  for (const KeysPart& part : besides) AddBesides(*list_, skin, part);
  list_->expandAll();
  list_->resizeColumnToContents(0);
  list_->setColumnWidth(0, list_->columnWidth(0) + kGap);
  auto* const buttons = new QDialogButtonBox(this);
  auto* const shut =
      buttons->addButton(InMenu(skin.Caption("caption.sada.close")), QDialogButtonBox::RejectRole);
  connect(shut, &QPushButton::clicked, this, &QDialog::reject);
  auto* const rows = new QVBoxLayout(this);
  rows->addWidget(list_);
  rows->addWidget(buttons);
  list_->setFocus();
  if (!RestoreSize(*this)) ResizeWithinScreen(*this, kUsualSize);
}

void FrmShortcuts::done(int result) {
  StoreSize(*this);
  QDialog::done(result);
}

}  // namespace zorik
