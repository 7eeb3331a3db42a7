// The menus of the cave editor, and what they say.
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "editors/CaveView.h"
#include "editors/FrmMain.h"
#include "editors/Marks.h"
#include "editors/Palette.h"
#include "screens/PlainText.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

// Random replacement: so many cells, 0 for half of them, and the least number of cells that it takes.
struct RandomRow {
  int wanted;
  int least;
  const char* name;
  const char* key;
  const char* words;
};
constexpr std::array<RandomRow, 4> kRandom{{
    {0, 2, "mnuReplRan(0)", "main.ran0", "Náhodně 50%"},
    {1, 1, "mnuReplRan(1)", "main.ran1", "Náhodně 1"},
    {5, 5, "mnuReplRan(5)", "main.ran5", "Náhodně 5"},
    {10, 10, "mnuReplRan(10)", "main.ran10", "Náhodně 10"},
}};

}  // namespace

QAction* FrmMain::Add(QMenu* menu, const char* name, const char* key, const char* words,
                      const QKeySequence& shortcut, std::function<void()> act) {
  QAction* const action = menu->addAction(QString());
  action->setObjectName(name);
  action->setShortcut(shortcut);
  connect(action, &QAction::triggered, this, std::move(act));
  captions_.push_back({action, key, words});
  return action;
}

void FrmMain::MakeMenus() {
  MakeEditMenu();
  MakeCaveMenu();
  MakeDogMenu();
  MakeViewMenu();
}

void FrmMain::MakeEditMenu() {
  mnuEd_ = menuBar()->addMenu(QString());
  mnuEd_->setObjectName("mnuEd");
  captions_.push_back({mnuEd_->menuAction(), "main.menu.edit", "Editace"});
  connect(mnuEd_, &QMenu::aboutToShow, this, &FrmMain::UpdateMenus);
  mnuUndo_ = Add(mnuEd_, "mnuUndo", "main.undo", "Zpět", QKeySequence("Ctrl+Z"), [this] { Undo(false); });
  mnuRedo_ = Add(mnuEd_, "mnuRedo", "main.redo", "Znovu", QKeySequence("Ctrl+Y"), [this] { Undo(true); });
  mnuRedo_->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
  mnuEd_->addSeparator();
  Add(mnuEd_, "mnuRestore", "main.restore", "Vrátit do původního stavu", {}, [this] { Restore(); });
  sep1_ = mnuEd_->addSeparator();
  sep1_->setObjectName("Sep1");
  mnuObjbyObj_ = mnuEd_->addMenu(QString());
  mnuObjbyObj_->setObjectName("mnuObjbyObj");
  mnuReplEvery_[0] = Add(mnuObjbyObj_, "mnuReplEvery(1)", "main.every1", "Každý", QKeySequence("Ctrl+H"),
                         [this] { Replace(1); });
  mnuReplEvery_[1] = Add(mnuObjbyObj_, "mnuReplEvery(2)", "main.every2", "Každý druhý",
                         QKeySequence("Ctrl+Shift+H"), [this] { Replace(2); });
  mnuObjbyObj_->addSeparator();
  for (std::size_t i = 0; i < kRandom.size(); ++i) {
    const RandomRow& row = kRandom[i];
    mnuReplRan_[i] =
        Add(mnuObjbyObj_, row.name, row.key, row.words, {}, [this, &row] { ReplaceRandom(row.wanted); });
  }
  mnuOkraj_ = mnuEd_->addAction(QString(), QKeySequence("Ctrl+B"), this, [this] { MakeFrame(); });
  mnuOkraj_->setObjectName("mnuOkraj");
  mnuEd_->addSeparator();
  Add(mnuEd_, "mnuStats", "main.stats", "Statistika", QKeySequence("F7"), [this] { ShowStats(); });
}

void FrmMain::MakeCaveMenu() {
  mnuCave_ = menuBar()->addMenu(QString());
  mnuCave_->setObjectName("mnuCave");
  captions_.push_back({mnuCave_->menuAction(), "sada.menu.cave", "Komnata"});
  Add(mnuCave_, "mnuProps", "main.props", "Vlastnosti", QKeySequence("F4"), [this] { ShowProperties(); });
  Add(mnuCave_, "mnuCat", "main.cat", "Program kočky", QKeySequence("F6"), [this] { EditScript(); });
  Add(mnuCave_, "mnuTest", "main.test", "Odzkoušet", QKeySequence("F5"), [this] { Test(); });
  mnuCave_->addSeparator();
  QAction* const leave = Add(mnuCave_, "mnuLeave", "sada.close", "Zavřít", {}, [this] { close(); });
  leave->setShortcuts({QKeySequence("Ctrl+W"), QKeySequence("Esc")});
}

void FrmMain::MakeDogMenu() {
  PesMenu_ = menuBar()->addMenu(QString());
  PesMenu_->setObjectName("PesMenu");
  captions_.push_back({PesMenu_->menuAction(), "main.dogs", "Výběr Zoríka"});
  dogs_ = new QActionGroup(this);
  for (int n = 1; n <= kDogs; ++n) {
    QAction* const dog = dogs_->addAction(QString());
    dog->setObjectName(QString("Dog(%1)").arg(n));
    dog->setCheckable(true);
    dog->setShortcut(QKeySequence(QString::number(n)));
    connect(dog, &QAction::triggered, this, [this, n] { Dog(n); });
    // A mark behind a picture is hard to see.
    connect(dog, &QAction::toggled, dog, [dog](bool current) {
      QFont letters = dog->font();
      letters.setBold(current);
      dog->setFont(letters);
    });
    PesMenu_->addAction(dog);
  }
}

void FrmMain::MakeViewMenu() {
  mnuView_ = menuBar()->addMenu(QString());
  mnuView_->setObjectName("mnuView");
  captions_.push_back({mnuView_->menuAction(), "main.menu.view", "Zobrazení"});
  QAction* const larger =
      Add(mnuView_, "mnuLarger", "main.larger", "Zvětšit", {}, [this] { view_->Zoom(1); });
  larger->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
  Add(mnuView_, "mnuSmaller", "main.smaller", "Zmenšit", QKeySequence("Ctrl+-"), [this] { view_->Zoom(-1); });
  Add(mnuView_, "mnuUsual", "main.usual", "Původní velikost", QKeySequence("Ctrl+0"),
      [this] { view_->ZoomUsual(); });
}

// What changes with the tools.
void FrmMain::UpdateCaptions() {
  const QString p = NameOf(ToolButton::Right);
  const QString l = NameOf(ToolButton::Left);
  mnuObjbyObj_->setTitle(InMenu(FillMarks(skin_.Text(75), p, l)));
  mnuOkraj_->setText(InMenu(FillMarks(skin_.Text(193), p, l)));
  UpdateMenus();
}

void FrmMain::UpdateMenus() {
  mnuUndo_->setEnabled(model_.CanUndo());
  mnuRedo_->setEnabled(model_.CanRedo());
  // A dog stands only once.
  const bool many = palette_->Tool(ToolButton::Left) != kDogTool;
  sep1_->setEnabled(many);
  mnuObjbyObj_->setEnabled(many);
  mnuObjbyObj_->menuAction()->setEnabled(many);
  mnuOkraj_->setEnabled(many);
  for (QAction* const every : mnuReplEvery_) every->setEnabled(many);
  const int count = palette_->Tool(ToolButton::Right) < 0 ? 0 : model_.NuOfOb(LetterOf(ToolButton::Right));
  for (std::size_t i = 0; i < kRandom.size(); ++i) {
    mnuReplRan_[i]->setEnabled(many && count >= kRandom[i].least);
  }
}

}  // namespace zorik
