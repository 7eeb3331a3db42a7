// The menus of the collection editor, opened and chosen from with the mouse.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <algorithm>
#include <map>

#include "editors/FrmSada.h"
#include "editors/MenuLines.h"
#include "editors/SadaScreen.h"
#include "editors/ShortcutRows.h"
#include "support/DesktopStandIn.h"

namespace zorik {
namespace {

using test::Names;

class FrmSadaMenusTest : public test::SadaWindowTest {
 protected:
  // Clicks an item, and before it the menus that lead there.
  void Choose(const char* name) const {
    Activate();
    const std::vector<QMenu*> way = MenusTo(Action(name));
    ASSERT_FALSE(way.empty()) << name;
    QMenuBar& bar = *window->menuBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(way.front()->menuAction()).center());
    for (std::size_t i = 0; i < way.size(); ++i) {
      QMenu& menu = *way[i];
      ASSERT_TRUE(QTest::qWaitFor([&menu] { return menu.isVisible(); })) << name;
      QAction* const next = i + 1 < way.size() ? way[i + 1]->menuAction() : &Action(name);
      QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(next).center());
    }
  }

  // What the menus are called, that of caves to be added last.
  QStringList MenuTitles() const {
    QStringList titles;
    for (const char* menu : {"mnuFile", "mnuCave", "mnuHelp"}) titles << Child<QMenu>(menu).title();
    titles << Action("mnuAdd").text();
    for (QString& title : titles) title = WithoutMnemonic(title);
    return titles;
  }

  // Wears the default skin with these keys besides its own.
  void WearKeys(const std::map<std::string, std::string>& keys) {
    std::string lines = "\xEF\xBB\xBF";
    for (const auto& [key, value] : keys) {
      const std::size_t dot = key.find('.');
      lines += key.substr(0, dot) + ":\n" + key.substr(dot + 1) + "=" + value + "\n";
    }
    folder.File("Skins/Default/Menu/skindata.txt", lines);
    skin.Apply(SkinPlaces{folder.Root() + "/Skins", "Default"});
    window->SetLWEd();
  }

 private:
  std::vector<QMenu*> MenusTo(QAction& item) const {
    std::vector<QMenu*> way;
    for (QAction* next = &item; !window->menuBar()->actions().contains(next);) {
      QMenu* const menu = MenuWith(*next);
      if (menu == nullptr) return {};
      way.insert(way.begin(), menu);
      next = menu->menuAction();
    }
    return way;
  }
  QMenu* MenuWith(QAction& item) const {
    for (QMenu* const menu : window->findChildren<QMenu*>()) {
      if (menu->actions().contains(&item)) return menu;
    }
    return nullptr;
  }
};

// Menus

struct MenuRow {
  const char* name;
  const char* caption;
  const char* english;
  const char* key;
};

const std::vector<MenuRow> kMenus = {
    {"mnuNew", "Nová", "New", "Ctrl+N"},
    {"mnuOpen", "Otevřít", "Open", "Ctrl+O"},
    {"mnuSave", "Uložit", "Save", "Ctrl+S"},
    {"mnuSaveAs", "Uložit jako", "Save as", ""},
    {"mnuDiscarded", "Zahozené", "Discarded", ""},
    {"mnuGratulace", "Gratulace při výhře", "Congratulation", "Ctrl+G"},
    {"mnuClose", "Zavřít", "Close", ""},
    {"mnuCopy", "Zkopírovat do schránky", "Copy", "Ctrl+Ins"},
    {"mnuPaste", "Vložit ze schránky", "Paste", "Shift+Ins"},
    {"mnuAdd(0)", "Malou", "Small", "F3"},
    {"mnuAdd(1)", "Velkou", "Large", ""},
    {"mnuEdit", "Editovat", "Edit", "F4"},
    {"mnuUp", "Nahoru", "Up", "F5"},
    {"mnuDown", "Dolu", "Down", "F6"},
    {"mnuDelete", "Vymazat", "Delete", "F8"},
};

const std::vector<MenuRow> kHelp = {
    {"mnuHelp(0)", "O programu", "About the program", ""},
    {"mnuHelp(1)", "Pravidla", "Rules", ""},
    {"mnuHelp(2)", "Přispět", "Contribute", ""},
    {"mnuHelp(3)", "Editování", "Editing", ""},
    {"mnuHelp(4)", "Obsah", "Contents", "F1"},
};

TEST_F(FrmSadaMenusTest, HasTheMenusWithTheirKeys) {
  for (const MenuRow& row : kMenus) {
    EXPECT_EQ(Action(row.name).text(), row.caption);
    EXPECT_EQ(Action(row.name).shortcut().toString(), row.key);
    const auto menus = window->menuBar()->findChildren<QMenu*>();
    EXPECT_TRUE(std::any_of(menus.begin(), menus.end(), [&](const QMenu* menu) {
      return menu->actions().contains(&Action(row.name));
    })) << row.name;
  }
  EXPECT_EQ(window->windowTitle(), "Zoríkův editor sady komnat - Nová sada[*]");
  EXPECT_EQ(MenuTitles(), (QStringList{"Soubor", "Komnata", "Nápověda", "Přidat"}));
}

TEST_F(FrmSadaMenusTest, HasItsItemsInTheirOrderWithTheirKeys) {
  const QStringList lines{
      "mnuFile | Soubor",
      "  mnuNew | Nová | Ctrl+N",
      "  mnuOpen | Otevřít | Ctrl+O",
      "  -",
      "  mnuSave | Uložit | Ctrl+S",
      "  mnuSaveAs | Uložit jako",
      "  mnuDiscarded | Zahozené",
      "  -",
      "  mnuFromTexts | Otevřít složku textů",
      "  mnuToTexts | Uložit jako složku textů",
      "  mnuSheet | Uložit přehled komnat",
      "  -",
      "  mnuGratulace | Gratulace při výhře | Ctrl+G",
      "  -",
      "  mnuClose | Zavřít",
      "mnuUndoSteps | Editace",
      "  mnuUndo | Zpět | Ctrl+Z",
      "  mnuRedo | Znovu | Ctrl+Y | Ctrl+Shift+Z",
      "  mnuSteps | Kroky",
      "mnuCave | Komnata",
      "  mnuAdd | Přidat",
      "    mnuAdd(0) | Malou | F3",
      "    mnuAdd(1) | Velkou",
      "    -",
      "    mnuAddEnd(0) | Malou na konec | Shift+F3",
      "    mnuAddEnd(1) | Velkou na konec",
      "  mnuEdit | Editovat | F4",
      "  -",
      "  mnuCopy | Zkopírovat do schránky | Ctrl+Ins",
      "  mnuCut | Vyjmout do schránky",
      "  mnuPaste | Vložit ze schránky | Shift+Ins",
      "  mnuPasteEnd | Vložit na konec",
      "  -",
      "  mnuUp | Nahoru | F5",
      "  mnuDown | Dolu | F6",
      "  mnuMark | Otevřená od začátku",
      "  -",
      "  mnuDelete | Vymazat | F8",
      "mnuHelp | Nápověda",
      "  mnuHelp(0) | O programu",
      "  mnuHelp(1) | Pravidla",
      "  mnuHelp(2) | Přispět",
      "  mnuHelp(3) | Editování",
      "  mnuHelp(4) | Obsah | F1",
      "  mnuShortcuts | Klávesové zkratky | Ctrl+?",
      "  -",
      "  mnuWeb | Stránky hry",
      "  mnuMail | Napsat tvůrcům",
      "  mnuAbout | O hře",
  };
  const QStringList found = test::MenuLines(window->menuBar()->actions());
  EXPECT_EQ(found.join('\n').toStdString(), lines.join('\n').toStdString());
}

TEST_F(FrmSadaMenusTest, GivesEachEntryALetterOfItsOwnInBothLanguages) {
  for (const char* const name : {"Default", "English"}) {
    ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, name}));
    window->SetLWEd();
    EXPECT_EQ(test::MnemonicFaults(window->menuBar()->actions()), QStringList()) << name;
  }
}

TEST_F(FrmSadaMenusTest, SpeaksTheLanguageOfTheSkinWhenItOpens) {
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  Open();
  for (const auto* rows : {&kMenus, &kHelp}) {
    for (const MenuRow& row : *rows) EXPECT_EQ(Action(row.name).text(), row.english);
  }
  EXPECT_EQ(MenuTitles(), (QStringList{"File", "Cave", "Help", "Add"}));
  EXPECT_EQ(Box("Text3").text(), "New collection");
  EXPECT_EQ(Rows(), Names{"*New small cave"});
  EXPECT_EQ(window->windowTitle(), "Zorík's collection editor - New collection[*]");
}

TEST_F(FrmSadaMenusTest, TellsOfEachKeyInAHint) {
  EXPECT_EQ(Action("mnuUp").toolTip(), "Nahoru (F5)");
  EXPECT_EQ(Action("mnuAdd(1)").toolTip(), "Velkou");
}

// Files

TEST_F(FrmSadaMenusTest, MakesOpensAndSavesCollections) {
  OpenCaves({"A", "B"});
  Choose("mnuNew");
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"});
  dialogs.Type(Path("b.zk"));
  Choose("mnuSave");
  EXPECT_EQ(Lines("b.zk").size(), 5U);
  dialogs.Type(Path("a.zk"));
  Choose("mnuOpen");
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  dialogs.Type(Path("c.zk"));
  Choose("mnuSaveAs");
  EXPECT_EQ(Lines("c.zk"), Lines("a.zk"));
  EXPECT_EQ(Sada().FileName(), Path("c.zk"));
}

TEST_F(FrmSadaMenusTest, EditsTheCongratulationAndCloses) {
  OpenCaves({"A"});
  dialogs.Then([](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QPlainTextEdit*>("Text1")->toPlainText(), "Hura");
    dialog.close();
  });
  Choose("mnuGratulace");
  Choose("mnuClose");
  EXPECT_EQ(closed, 1);
}

// Caves

TEST_F(FrmSadaMenusTest, ChangesTheListAsEachItemSays) {
  struct Row {
    const char* name;
    Names rows;
    int selected;
  };
  const std::vector<Row> rows = {
      {"mnuAdd(0)", {"*A", "Nová malá komnata", "B", "*C"}, 2},
      {"mnuAdd(1)", {"*A", "Nová velká komnata", "B", "*C"}, 2},
      {"mnuPaste", {"*A", "B", "B", "*C"}, 2},
      {"mnuUp", {"*B", "*A", "*C"}, 1},
      {"mnuDown", {"*A", "*C", "B"}, 3},
      {"mnuMark", {"*A", "*B", "*C"}, 2},
      {"mnuDelete", {"*A", "*C"}, 2},
  };
  for (const Row& row : rows) {
    OpenCaves({"A", "B", "*C"});
    ClickCave(2);
    Choose("mnuCopy");
    EXPECT_FALSE(window->isWindowModified()) << "by copying";
    if (row.name == std::string("mnuDelete")) dialogs.Press("yes");
    Choose(row.name);
    EXPECT_EQ(Rows(), row.rows) << row.name;
    EXPECT_EQ(Sada().ListSelected(), row.selected) << row.name;
    EXPECT_TRUE(window->isWindowModified()) << row.name;
  }
}

TEST_F(FrmSadaMenusTest, HandsACaveToTheEditor) {
  OpenCaves({"A", "B"});
  ClickCave(2);
  Choose("mnuEdit");
  EXPECT_EQ(edited, Names{test::OneStepCave("B")});
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FrmSadaMenusTest, LeavesTheDesktopsClipboardAlone) {
  QApplication::clipboard()->setText("Cizi");
  OpenCaves({"A"});
  Choose("mnuCopy");
  Choose("mnuPaste");
  EXPECT_EQ(QApplication::clipboard()->text(), "Cizi");
  EXPECT_EQ(Rows(), (Names{"*A", "*A"}));
}

// Help

TEST_F(FrmSadaMenusTest, HasFivePagesOfHelpAndTheCredits) {
  for (const MenuRow& row : kHelp) {
    EXPECT_EQ(Action(row.name).text(), row.caption);
    EXPECT_EQ(Action(row.name).shortcut().toString(), row.key);
  }
  dialogs.Then([](QWidget& dialog) {
    EXPECT_TRUE(dialog.findChild<QLabel*>("lblText")->text().contains("Zorík"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Action("mnuAbout").trigger();
  EXPECT_FALSE(Action("mnuWeb").isVisible() || Action("mnuMail").isVisible())
      << "the skin names no such places";
}

TEST_F(FrmSadaMenusTest, TellsOfEachPageThatIsNotThere) {
  Open();
  const QStringList pages = {"oprogramu", "pravidla", "prispet", "editovat", "help"};
  for (int i = 0; i < pages.size(); ++i) {
    dialogs.Press("ok");
    Action(qPrintable(QString("mnuHelp(%1)").arg(i))).trigger();
    ASSERT_EQ(dialogs.said.size(), i + 1);
    EXPECT_TRUE(dialogs.Last().endsWith(pages[i] + ".html")) << dialogs.Last().toStdString();
  }
}

TEST_F(FrmSadaMenusTest, OpensEachPageOfTheHelp) {
  Open();
  const std::vector<const char*> pages = {"oprogramu", "pravidla", "prispet", "editovat", "help"};
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const std::string page = "Help/" + std::string(pages[i]) + ".html";
    folder.File(page, "<html>");
    const test::DesktopStandIn desktop(0);
    Choose(("mnuHelp(" + std::to_string(i) + ")").c_str());
    EXPECT_EQ(desktop.Opened().toStdString(), folder.Root() + "/" + page);
  }
}

TEST_F(FrmSadaMenusTest, OpensThePageOnEditingFromTheCongratulation) {
  Open();
  folder.File("Help/editovat.html", "<html>");
  const test::DesktopStandIn desktop(0);
  dialogs.Then([](QWidget& dialog) {
    QTest::mouseClick(dialog.findChild<SkinButton*>("help"), Qt::LeftButton);
    EXPECT_TRUE(dialog.isVisible());
    dialog.close();
  });
  Choose("mnuGratulace");
  EXPECT_EQ(desktop.Opened().toStdString(), folder.Root() + "/Help/editovat.html");
}

TEST_F(FrmSadaMenusTest, HasASheetOfAllShortcuts) {
  Open();
  Activate();
  dialogs.Then([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Klávesové zkratky");
    const QStringList rows = test::Rows(dialog);
    EXPECT_TRUE(rows.contains("Soubor | Uložit | Ctrl+S")) << rows.join('\n').toStdString();
    EXPECT_TRUE(rows.contains("Komnata | Přidat: Malou | F3"));
    EXPECT_TRUE(rows.contains("Nápověda | Obsah | F1"));
    EXPECT_TRUE(rows.contains("Seznam komnat | dá komnatě značku P, nebo ji vezme | mezerník"));
    EXPECT_TRUE(rows.contains("Seznam komnat | zkopíruje, vyjme, vloží komnatu | Ctrl+C, Ctrl+X, Ctrl+V"));
    EXPECT_TRUE(rows.contains("Seznam komnat | vymaže komnatu | Delete"));
    dialog.close();
  });
  Key(Qt::Key_Question, Qt::ControlModifier);
}

TEST_F(FrmSadaMenusTest, ShowsTheSheetOverTheCongratulationToo) {
  Open();
  Activate();
  QString sheet;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&sheet] {
    QWidget* const shown = QApplication::activeModalWidget();
    if (shown == nullptr || shown->objectName() != "frmShortcuts") return;
    sheet = shown->windowTitle();
    shown->close();
  });
  dialogs.Then([&look](QWidget& dialog) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    look.start(5);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Question, Qt::ControlModifier);
    look.stop();
    EXPECT_TRUE(dialog.isVisible());
    dialog.close();
  });
  Choose("mnuGratulace");
  EXPECT_EQ(sheet, "Klávesové zkratky");
}

TEST_F(FrmSadaMenusTest, LeadsToTheMakersWhoseAddressesTheSkinTells) {
  Open();
  WearKeys({{"maker.web", "https://priklad.cz/hra"}, {"maker.mail", "hra@priklad.cz"}});
  {
    const test::DesktopStandIn desktop(0);
    Choose("mnuWeb");
    EXPECT_EQ(desktop.Opened(), "https://priklad.cz/hra");
  }
  const test::DesktopStandIn desktop(0);
  Choose("mnuMail");
  EXPECT_TRUE(desktop.Opened().startsWith("mailto:hra@priklad.cz?subject="))
      << desktop.Opened().toStdString();
}

}  // namespace
}  // namespace zorik
