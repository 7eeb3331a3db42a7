#include <QMenu>
#include <QMenuBar>

#include "editors/EditorScreen.h"
#include "editors/MenuLines.h"

namespace zorik {
namespace {

using test::Boxes;
using test::Full;
using test::Picture;

const Picture kDirt = {";;;;;;", ";1...;", ";....;", ";...A;", ";;;;;;"};  // 18 cells of dirt

class FrmMainMenusTest : public testing::Test, public test::EditorScreen {
 protected:
  FrmMainMenusTest() { Open(kDirt); }

  // Opens a menu, looks at it and shuts it.
  void Shown(const char* name, const std::function<void(QMenu& menu)>& look) const {
    QMenu* const menu = window->findChild<QMenu*>(name);
    ASSERT_NE(menu, nullptr);
    menu->popup(window->mapToGlobal(QPoint(10, 10)));
    look(*menu);
    menu->close();
  }

  // The menu is opened first, as people do.
  void Choose(const char* action) const {
    Shown("mnuEd", [](QMenu& /*menu*/) {});
    ASSERT_TRUE(Action(action).isEnabled());
    Action(action).trigger();
  }
  int Count(char letter) const { return window->Model().NuOfOb(letter); }
};

TEST_F(FrmMainMenusTest, HasItsCaptions) {
  const std::pair<const char*, const char*> kCaptions[] = {
      {"mnuRestore", "Vrátit do původního stavu"},
      {"mnuReplEvery(1)", "Každý"},
      {"mnuReplEvery(2)", "Každý druhý"},
      {"mnuReplRan(0)", "Náhodně 50%"},
      {"mnuReplRan(1)", "Náhodně 1"},
      {"mnuReplRan(5)", "Náhodně 5"},
      {"mnuReplRan(10)", "Náhodně 10"},
      {"mnuOkraj", "Udělat okraj z „Balvan“"},
      {"mnuStats", "Statistika"},
  };
  for (const auto& [name, caption] : kCaptions) EXPECT_EQ(Action(name).text(), caption);
  EXPECT_EQ(WithoutMnemonic(window->findChild<QMenu*>("mnuEd")->title()), "Editace");
  EXPECT_EQ(window->findChild<QMenu*>("mnuObjbyObj")->title(), "Nahradit „Hlína“ za „Balvan“");
}

TEST_F(FrmMainMenusTest, HasItsItemsInTheirOrderWithTheirKeys) {
  QStringList lines{
      "mnuEd | Editace",
      "  mnuUndo | Zpět | Ctrl+Z",
      "  mnuRedo | Znovu | Ctrl+Y | Ctrl+Shift+Z",
      "  mnuSteps | Kroky",
      "  -",
      "  mnuRestore | Vrátit do původního stavu",
      "  -",
      "  mnuObjbyObj | Nahradit „Hlína“ za „Balvan“",
      "    mnuReplEvery(1) | Každý | Ctrl+H",
      "    mnuReplEvery(2) | Každý druhý | Ctrl+Shift+H",
      "    -",
      "    mnuReplRan(0) | Náhodně 50%",
      "    mnuReplRan(1) | Náhodně 1",
      "    mnuReplRan(5) | Náhodně 5",
      "    mnuReplRan(10) | Náhodně 10",
      "  mnuOkraj | Udělat okraj z „Balvan“ | Ctrl+B",
      "  -",
      "  mnuStats | Statistika | F7",
      "mnuDraw | Kreslení",
      "  mnuPencil | Tužka | P",
      "  mnuLine | Čára | L",
      "  mnuRectangle | Obdélník | R",
      "  mnuBox | Plný obdélník | B",
      "  mnuFill | Výplň | F",
      "  mnuSelect | Označení | S",
      "mnuSelection | Označení",
      "  mnuSelectAll | Označit vše | Ctrl+A",
      "  -",
      "  mnuCut | Vyjmout | Ctrl+X",
      "  mnuCopy | Kopírovat | Ctrl+C",
      "  mnuPaste | Vložit | Ctrl+V",
      "  mnuClear | Vyprázdnit | Del",
      "  -",
      "  mnuMirrorAside | Zrcadlit zleva doprava | M",
      "  mnuMirrorUpright | Zrcadlit shora dolů | Shift+M",
      "  mnuTurnRight | Otočit doprava | T",
      "  mnuTurnLeft | Otočit doleva | Shift+T",
      "mnuCave | Komnata",
      "  mnuProps | Vlastnosti | F4",
      "  mnuCat | Program kočky | F6",
      "  mnuTest | Odzkoušet | F5",
      "  mnuTryDog | Zkusit se Zoríkem u ukazatele | Shift+F5",
      "  mnuTry | Zkusit od tiku | Ctrl+F5",
      "  -",
      "  mnuInsertRow | Vložit řádek | Ctrl+Shift+Down",
      "  mnuDeleteRow | Odstranit řádek | Ctrl+Shift+Up",
      "  mnuInsertColumn | Vložit sloupec | Ctrl+Shift+Right",
      "  mnuDeleteColumn | Odstranit sloupec | Ctrl+Shift+Left",
      "  mnuResize | Změnit velikost | Ctrl+R",
      "  -",
      "  mnuPicture | Uložit jako obrázek s políčky",
      "    mnuPicture(16) | 16 × 16",
      "    mnuPicture(26) | 26 × 26",
      "    mnuPicture(40) | 40 × 40",
      "    mnuPicture(80) | 80 × 80",
      "  -",
      "  mnuStore | Uložit do sady | Ctrl+S",
      "  mnuLeave | Zavřít | Ctrl+W | Esc",
      "PesMenu | Výběr Zoríka",
  };
  for (int n = 1; n <= kDogs; ++n) lines << QString("  Dog(%1) | Zorík %1 | %1").arg(n);
  lines << QStringList{
      "mnuView | Zobrazení",
      "  mnuLarger | Zvětšit | Ctrl++ | Ctrl+=",
      "  mnuSmaller | Zmenšit | Ctrl+-",
      "  mnuUsual | Původní velikost | Ctrl+0",
      "  mnuWhole | Celá komnata | W",
      "  -",
      "  mnuGrid | Mřížka | G",
      "  -",
      "  mnuPanel | Panel vedle komnaty | F9",
      "mnuHelp | Nápověda",
      "  mnuEditing | Editování | F1",
      "  mnuShortcuts | Klávesové zkratky | Ctrl+?",
  };
  const QStringList found = test::MenuLines(window->menuBar()->actions());
  EXPECT_EQ(found.join('\n').toStdString(), lines.join('\n').toStdString());
}

TEST_F(FrmMainMenusTest, NamesTheToolsInItsCaptions) {
  Pick(10);
  Pick(34, Qt::RightButton);
  EXPECT_EQ(window->findChild<QMenu*>("mnuObjbyObj")->title(), "Nahradit „Vážka“ za „Améba“");
  EXPECT_EQ(Action("mnuOkraj").text(), "Udělat okraj z „Améba“");
  Pick(kDogTool, Qt::RightButton);
  Action("Dog(3)").trigger();
  EXPECT_EQ(window->findChild<QMenu*>("mnuObjbyObj")->title(), "Nahradit „Zorík č. 3“ za „Améba“");
}

TEST_F(FrmMainMenusTest, PopsUpUnderTheLabel) {
  auto& label = Child<QToolButton>("Label7");
  QTest::mouseClick(&label, Qt::LeftButton);
  auto* const menu = window->findChild<QMenu*>("mnuEd");
  ASSERT_TRUE(menu->isVisible());
  EXPECT_GE(menu->pos().y(), label.mapToGlobal(label.rect().bottomLeft()).y());
  menu->close();
}

TEST_F(FrmMainMenusTest, PopsUpTheDogsUnderTheirButton) {
  auto& button = Child<QToolButton>("Command2");
  QTest::mouseClick(&button, Qt::LeftButton);
  auto* const menu = window->findChild<QMenu*>("PesMenu");
  ASSERT_TRUE(menu->isVisible());
  EXPECT_GE(menu->pos().y(), button.mapToGlobal(button.rect().bottomLeft()).y());
  EXPECT_EQ(menu->actions().size(), 9);
  menu->close();
}

TEST_F(FrmMainMenusTest, MarksTheCurrentDogAlone) {
  for (int n = 1; n <= kDogs; ++n) {
    const QString name = QString("Dog(%1)").arg(n);
    EXPECT_EQ(Action(qPrintable(name)).text(), QString("Zorík %1").arg(n));
    Action(qPrintable(name)).trigger();
    EXPECT_EQ(Tiles().CurrentDog(), n);
    for (int other = 1; other <= kDogs; ++other) {
      const QAction& dog = Action(qPrintable(QString("Dog(%1)").arg(other)));
      EXPECT_EQ(dog.isChecked(), other == n);
      EXPECT_EQ(dog.font().bold(), other == n);
    }
  }
}

TEST_F(FrmMainMenusTest, ShowsTheChosenDogOnItsButtonAndMakesNoOtherPictureAnew) {
  const auto looks = [this](const char* name) {
    return Child<QToolButton>(name).icon().pixmap(20).toImage();
  };
  const auto keys = [this] {
    std::vector<qint64> all{Child<QToolButton>("Command1").icon().cacheKey()};
    for (int n = 1; n <= kDogs; ++n)
      all.push_back(Action(qPrintable(QString("Dog(%1)").arg(n))).icon().cacheKey());
    return all;
  };
  const QImage first = looks("Command2");
  const std::vector<qint64> before = keys();
  Action("Dog(3)").trigger();
  EXPECT_NE(looks("Command2"), first);
  EXPECT_EQ(looks("Command2"), Action("Dog(3)").icon().pixmap(20).toImage());
  EXPECT_EQ(keys(), before);
  Action("Dog(1)").trigger();
  EXPECT_EQ(looks("Command2"), first);
}

TEST_F(FrmMainMenusTest, ChoosesADogByItsDigit) {
  Pick(kDogTool);
  QTest::keyClick(window.get(), Qt::Key_4);
  Click(2, 2);
  EXPECT_EQ(window->Model().At(2, 2), '4');
}

TEST_F(FrmMainMenusTest, ReplacesEveryAndEverySecond) {
  Choose("mnuReplEvery(2)");
  EXPECT_EQ(Letters(), (Picture{";R;R;R", ";1...R", ";....R", ";...AR", ";R;R;R"}));
  Choose("mnuReplEvery(1)");
  EXPECT_EQ(Letters(), (Picture{"RRRRRR", "R1...R", "R....R", "R...AR", "RRRRRR"}));
}

TEST_F(FrmMainMenusTest, ReplacesByChance) {
  Choose("mnuReplRan(10)");
  EXPECT_EQ(Count('R'), 10);
  Choose("mnuReplRan(5)");
  EXPECT_EQ(Count('R'), 15);
  Choose("mnuReplRan(1)");
  EXPECT_EQ(Count('R'), 16);
  Choose("mnuReplRan(0)");
  EXPECT_EQ(Count('R'), 17);
  EXPECT_EQ(Count(';'), 1);
}

TEST_F(FrmMainMenusTest, OffersRandomReplacementByTheNumberOfCells) {
  struct Row {
    int cells;
    bool half, one, five, ten;
  };
  constexpr Row kRows[] = {
      {0, false, false, false, false}, {1, false, true, false, false}, {2, true, true, false, false},
      {3, true, true, false, false},   {4, true, true, false, false},  {5, true, true, true, false},
      {9, true, true, true, false},    {10, true, true, true, true},
  };
  for (const Row& row : kRows) {
    Picture picture = Full(6, 6, '.');
    for (int i = 0; i < row.cells; ++i) {
      picture[static_cast<std::size_t>(i / 6)][static_cast<std::size_t>(i % 6)] = ';';
    }
    Open(picture);
    Shown("mnuEd", [&](QMenu& /*menu*/) {
      EXPECT_EQ(Action("mnuReplRan(0)").isEnabled(), row.half) << row.cells;
      EXPECT_EQ(Action("mnuReplRan(1)").isEnabled(), row.one) << row.cells;
      EXPECT_EQ(Action("mnuReplRan(5)").isEnabled(), row.five) << row.cells;
      EXPECT_EQ(Action("mnuReplRan(10)").isEnabled(), row.ten) << row.cells;
    });
  }
}

TEST_F(FrmMainMenusTest, CountsTheRightTool) {
  Pick(10, Qt::RightButton);
  Shown("mnuEd", [&](QMenu& /*menu*/) {
    EXPECT_TRUE(Action("mnuReplRan(1)").isEnabled());
    EXPECT_FALSE(Action("mnuReplRan(0)").isEnabled());
  });
}

TEST_F(FrmMainMenusTest, OffersNoReplacementAndNoFrameOfDogs) {
  const char* const kNames[] = {"Sep1", "mnuOkraj", "mnuReplEvery(1)", "mnuReplEvery(2)", "mnuReplRan(0)"};
  Pick(kDogTool);
  Shown("mnuEd", [&](QMenu& /*menu*/) {
    for (const char* const name : kNames) EXPECT_FALSE(Action(name).isEnabled()) << name;
    EXPECT_FALSE(window->findChild<QMenu*>("mnuObjbyObj")->menuAction()->isEnabled());
  });
  QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
  QTest::keyClick(window.get(), Qt::Key_H, Qt::ControlModifier);
  EXPECT_EQ(Letters(), kDirt);
  Pick(8);
  Shown("mnuEd", [&](QMenu& /*menu*/) {
    for (const char* const name : kNames) EXPECT_TRUE(Action(name).isEnabled()) << name;
    EXPECT_TRUE(window->findChild<QMenu*>("mnuObjbyObj")->menuAction()->isEnabled());
  });
}

TEST_F(FrmMainMenusTest, ReplacesADogByOtherThings) {
  Pick(kDogTool, Qt::RightButton);
  Choose("mnuReplEvery(1)");
  EXPECT_EQ(window->Model().At(1, 1), 'R');
}

TEST_F(FrmMainMenusTest, MakesAFrameOfTheLeftTool) {
  Choose("mnuOkraj");
  EXPECT_EQ(Letters(), (Picture{"RRRRRR", "R1...R", "R....R", "R...AR", "RRRRRR"}));
}

TEST_F(FrmMainMenusTest, LeavesTheAmoebaCounterTooHighAfterAFrame) {
  Pick(10);
  Click(0, 0);
  EXPECT_EQ(Amoebas(), "2");
  Pick(8);
  Choose("mnuOkraj");
  EXPECT_EQ(Count('A'), 1);
  EXPECT_EQ(Amoebas(), "2");
}

TEST_F(FrmMainMenusTest, RestoresTheCaveAsItWasOpened) {
  Click(2, 2);
  Choose("mnuOkraj");
  Pick(9);
  Choose("mnuRestore");
  EXPECT_EQ(Letters(), kDirt);
  EXPECT_EQ(Tool(ToolButton::Left), 2);
  EXPECT_EQ(Amoebas(), "1");
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Count('R'), 19) << "a restore can be undone, too";
}

TEST_F(FrmMainMenusTest, WarnsOnceMoreWhenItRestores) {
  test::Numbers numbers;
  numbers.permeability = 9;
  Boxes boxes;
  Open(kDirt, numbers);
  Click(2, 2);
  Choose("mnuRestore");
  EXPECT_EQ(boxes.said.size(), 2);
}

TEST_F(FrmMainMenusTest, RestoresOnlyWhatHasChanged) {
  const auto offers = [this] {
    Shown("mnuEd", [](QMenu& /*menu*/) {});
    return Action("mnuRestore").isEnabled();
  };
  EXPECT_FALSE(offers());
  Click(2, 2);
  EXPECT_TRUE(offers());
  QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(offers());
  Choose("mnuOkraj");
  EXPECT_TRUE(offers());
  Choose("mnuRestore");
  EXPECT_FALSE(offers());
}

TEST_F(FrmMainMenusTest, UndoesAndRedoesByItsItems) {
  EXPECT_FALSE(Action("mnuUndo").isEnabled());
  Choose("mnuOkraj");
  Choose("mnuUndo");
  EXPECT_EQ(Letters(), kDirt);
  EXPECT_FALSE(Action("mnuUndo").isEnabled());
  Choose("mnuRedo");
  EXPECT_EQ(Count('R'), 18);
  EXPECT_FALSE(Action("mnuRedo").isEnabled());
}

TEST_F(FrmMainMenusTest, IsEnabledAgainWithoutBeingOpenedAfterAStroke) {
  Click(2, 2);
  EXPECT_TRUE(Action("mnuUndo").isEnabled());
}

TEST_F(FrmMainMenusTest, GivesEachEntryALetterOfItsOwnInBothLanguages) {
  for (const char* const name : {"Default", "English"}) {
    Wear(name);
    window->SetLW();
    EXPECT_EQ(test::MnemonicFaults(window->menuBar()->actions()), QStringList()) << name;
  }
}

TEST_F(FrmMainMenusTest, OpensAMenuAndChoosesFromItByLetters) {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_EQ(window->findChild<QMenu*>("mnuCave")->title(), "Ko&mnata");
  QTest::keyClick(window->windowHandle(), Qt::Key_M, Qt::AltModifier);
  auto* const menu = window->findChild<QMenu*>("mnuCave");
  ASSERT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible(); }));
  EXPECT_EQ(Action("mnuTest").text(), "&Odzkoušet");
  QTest::keyClick(menu, Qt::Key_O);
  EXPECT_EQ(tested.size(), 1U);
}

TEST_F(FrmMainMenusTest, GivesEachShortcutToOneItem) {
  QStringList shortcuts;
  for (const QAction* const action : window->findChildren<QAction*>()) {
    for (const QKeySequence& keys : action->shortcuts()) {
      if (!keys.isEmpty()) shortcuts << keys.toString();
    }
  }
  EXPECT_EQ(shortcuts.removeDuplicates(), 0);
  EXPECT_GE(shortcuts.size(), 20);
}

}  // namespace
}  // namespace zorik
