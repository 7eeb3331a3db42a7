#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>

#include "editors/EditorScreen.h"
#include "editors/FrmShortcuts.h"
#include "editors/ShortcutRows.h"

namespace zorik {
namespace {

using test::Rows;

class FrmShortcutsTest : public testing::Test, public test::EditorScreen {
 protected:
  FrmShortcutsTest() { Open(test::Full(6, 5, ';')); }

  void Sheet(const std::function<void(QWidget& sheet)>& look) const {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    const test::InDialogNamed dialog("frmShortcuts", look);
    QTest::keyClick(window->windowHandle(), Qt::Key_Question, Qt::ControlModifier);
    EXPECT_TRUE(dialog.opened);
  }
  QStringList SheetRows() const {
    QStringList rows;
    Sheet([&rows](QWidget& sheet) { rows = Rows(sheet); });
    return rows;
  }
};

// Every action below these that has keys, whatever menu it stands in.
int ActionsWithKeys(const QList<QAction*>& actions) {
  int count = 0;
  for (const QAction* const action : actions) {
    const auto* const menu = action->menu<QMenu*>();
    if (menu != nullptr) count += ActionsWithKeys(menu->actions());
    if (menu == nullptr && !action->shortcuts().isEmpty()) ++count;
  }
  return count;
}

TEST_F(FrmShortcutsTest, ListsTheKeysOfAllMenusAndThoseBesides) {
  const QStringList rows = SheetRows();
  EXPECT_TRUE(rows.contains("Editace | Znovu | Ctrl+Y, Ctrl+Shift+Z")) << rows.join('\n').toStdString();
  EXPECT_TRUE(rows.contains("Editace | Nahradit „Hlína“ za „Balvan“: Každý druhý | Ctrl+Shift+H"));
  EXPECT_TRUE(rows.contains("Výběr Zoríka | Zorík 9 | 9"));
  EXPECT_TRUE(rows.contains("Nápověda | Editování | F1"));
  EXPECT_TRUE(rows.contains("Paleta a obrázek komnaty | posouvají orámované políčko | šipky"));
  const auto besides = rows.filter("Paleta a obrázek komnaty | ").size();
  EXPECT_EQ(rows.size() - besides, ActionsWithKeys(window->menuBar()->actions()));
  for (const QString& row : rows) EXPECT_FALSE(row.endsWith("| ")) << row.toStdString();
}

TEST_F(FrmShortcutsTest, KnowsTheMenusAsTheyAreAtTheMoment) {
  Action("mnuStats").setShortcut(QKeySequence("Ctrl+Alt+9"));
  QMenu& menu = *window->findChild<QMenu*>("mnuView");
  menu.addAction("R&&B")->setShortcut(QKeySequence("Ctrl+Alt+8"));
  const QStringList rows = SheetRows();
  EXPECT_TRUE(rows.contains("Editace | Statistika | Ctrl+Alt+9"));
  EXPECT_TRUE(rows.contains("Zobrazení | R&B | Ctrl+Alt+8"));
}

TEST_F(FrmShortcutsTest, SpeaksTheLanguageOfTheSkin) {
  Wear("English");
  window->SetLW();
  Sheet([](QWidget& sheet) {
    EXPECT_EQ(sheet.windowTitle(), "Keyboard shortcuts");
    const QStringList rows = Rows(sheet);
    EXPECT_TRUE(rows.contains("Cave | Properties | F4")) << rows.join('\n').toStdString();
    EXPECT_TRUE(rows.contains("Palette and picture of the cave | move the framed cell | arrows"));
  });
}

TEST_F(FrmShortcutsTest, ScrollsOnASmallScreen) {
  Sheet([](QWidget& sheet) {
    EXPECT_LE(sheet.minimumSizeHint().height(), 560);
    EXPECT_LE(sheet.height(), 560);
    sheet.resize(560, 300);
    QCoreApplication::processEvents();
    EXPECT_GT(sheet.findChild<QTreeWidget*>("lstShortcuts")->verticalScrollBar()->maximum(), 0);
  });
}

TEST_F(FrmShortcutsTest, RemembersItsSize) {
  Sheet([](QWidget& sheet) { sheet.resize(471, 332); });
  Sheet([](QWidget& sheet) { EXPECT_EQ(sheet.size(), QSize(471, 332)); });
}

TEST_F(FrmShortcutsTest, StandsBesideTheHelpOnEditing) {
  QStringList pages;
  QObject::connect(window.get(), &FrmMain::HelpWanted, [&pages](const QString& page) { pages << page; });
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window->windowHandle(), Qt::Key_F1);
  EXPECT_EQ(pages, QStringList("editovat.html"));
}

TEST_F(FrmShortcutsTest, LeavesOutAMenuWithoutKeys) {
  QMenuBar menus;
  menus.addMenu("Prázdné")->addAction("Nic");
  menus.addMenu("Plné")->addAction("Něco")->setShortcut(QKeySequence("F2"));
  EXPECT_EQ(test::Heads(FrmShortcuts(skin, menus, {}, nullptr)), QStringList("Plné"));
}

}  // namespace
}  // namespace zorik
