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
};
constexpr std::array<RandomRow, 4> kRandom{{
    {0, 2, "mnuReplRan(0)", "caption.main.ran0"},
    {1, 1, "mnuReplRan(1)", "caption.main.ran1"},
    {5, 5, "mnuReplRan(5)", "caption.main.ran5"},
    {10, 10, "mnuReplRan(10)", "caption.main.ran10"},
}};

}  // namespace

QAction* FrmMain::Add(QMenu* menu, const char* name, const char* key, const QKeySequence& shortcut,
                      std::function<void()> act) {
  QAction* const action = menu->addAction(QString());
  action->setObjectName(name);
  action->setShortcut(shortcut);
  connect(action, &QAction::triggered, this, std::move(act));
  captions_.push_back({action, key});
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
  captions_.push_back({mnuEd_->menuAction(), "caption.main.menu.edit"});
  connect(mnuEd_, &QMenu::aboutToShow, this, &FrmMain::UpdateMenus);
  mnuUndo_ = Add(mnuEd_, "mnuUndo", "caption.main.undo", QKeySequence("Ctrl+Z"), [this] { Undo(false); });
  mnuRedo_ = Add(mnuEd_, "mnuRedo", "caption.main.redo", QKeySequence("Ctrl+Y"), [this] { Undo(true); });
  mnuRedo_->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
  mnuEd_->addSeparator();
  Add(mnuEd_, "mnuRestore", "caption.main.restore", {}, [this] { Restore(); });
  sep1_ = mnuEd_->addSeparator();
  sep1_->setObjectName("Sep1");
  mnuObjbyObj_ = mnuEd_->addMenu(QString());
  mnuObjbyObj_->setObjectName("mnuObjbyObj");
  mnuReplEvery_[0] = Add(mnuObjbyObj_, "mnuReplEvery(1)", "caption.main.every1", QKeySequence("Ctrl+H"),
                         [this] { Replace(1); });
  mnuReplEvery_[1] = Add(mnuObjbyObj_, "mnuReplEvery(2)", "caption.main.every2", QKeySequence("Ctrl+Shift+H"),
                         [this] { Replace(2); });
  mnuObjbyObj_->addSeparator();
  for (std::size_t i = 0; i < kRandom.size(); ++i) {
    const RandomRow& row = kRandom[i];
    mnuReplRan_[i] = Add(mnuObjbyObj_, row.name, row.key, {}, [this, &row] { ReplaceRandom(row.wanted); });
  }
  mnuOkraj_ = mnuEd_->addAction(QString(), QKeySequence("Ctrl+B"), this, [this] { MakeFrame(); });
  mnuOkraj_->setObjectName("mnuOkraj");
  mnuEd_->addSeparator();
  Add(mnuEd_, "mnuStats", "caption.main.stats", QKeySequence("F7"), [this] { ShowStats(); });
}

void FrmMain::MakeCaveMenu() {
  mnuCave_ = menuBar()->addMenu(QString());
  mnuCave_->setObjectName("mnuCave");
  captions_.push_back({mnuCave_->menuAction(), "caption.sada.menu.cave"});
  Add(mnuCave_, "mnuProps", "caption.main.props", QKeySequence("F4"), [this] { ShowProperties(); });
  Add(mnuCave_, "mnuCat", "caption.main.cat", QKeySequence("F6"), [this] { EditScript(); });
  Add(mnuCave_, "mnuTest", "caption.main.test", QKeySequence("F5"), [this] { Test(); });
  mnuCave_->addSeparator();
  QAction* const leave = Add(mnuCave_, "mnuLeave", "caption.sada.close", {}, [this] { close(); });
  leave->setShortcuts({QKeySequence("Ctrl+W"), QKeySequence("Esc")});
}

void FrmMain::MakeDogMenu() {
  PesMenu_ = menuBar()->addMenu(QString());
  PesMenu_->setObjectName("PesMenu");
  captions_.push_back({PesMenu_->menuAction(), "caption.main.dogs"});
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
  captions_.push_back({mnuView_->menuAction(), "caption.main.menu.view"});
  QAction* const larger = Add(mnuView_, "mnuLarger", "caption.main.larger", {}, [this] { view_->Zoom(1); });
  larger->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
  Add(mnuView_, "mnuSmaller", "caption.main.smaller", QKeySequence("Ctrl+-"), [this] { view_->Zoom(-1); });
  Add(mnuView_, "mnuUsual", "caption.main.usual", QKeySequence("Ctrl+0"), [this] { view_->ZoomUsual(); });
}

// What changes with the tools.
void FrmMain::UpdateCaptions() {
  const QString p = NameOf(ToolButton::Right);
  const QString l = NameOf(ToolButton::Left);
  mnuObjbyObj_->setTitle(InMenu(FillMarks(skin_.Text(TextId::Replace), p, l)));
  mnuOkraj_->setText(InMenu(FillMarks(skin_.Text(TextId::MakeFrame), p, l)));
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
