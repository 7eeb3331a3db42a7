// The menus of the cave editor, and what they say.
#include <QActionGroup>
#include <QMenu>

#include "editors/CaveSteps.h"
#include "editors/CaveView.h"
#include "editors/DrawMenus.h"
#include "editors/EditorKeys.h"
#include "editors/FrmMain.h"
#include "editors/Palette.h"
#include "editors/PictureOffer.h"
#include "editors/ProofDesk.h"
#include "editors/SidePanel.h"
#include "screens/Marks.h"
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

void FrmMain::MakeMenus() {
  MakeEditMenu();
  drawMenus_ = new DrawMenus(menus_, *hand_, *view_, *strip_, this);
  MakeCaveMenu();
  MakeDogMenu();
  MakeViewMenu();
  MakeHelpMenu();
}

void FrmMain::MakeEditMenu() {
  mnuEd_ = menus_.AddMenu("mnuEd", "caption.main.menu.edit");
  connect(mnuEd_, &QMenu::aboutToShow, this, &FrmMain::UpdateMenus);
  mnuUndo_ = menus_.Add(*mnuEd_, "mnuUndo", "caption.main.undo", "Ctrl+Z", [this] { Undo(false); });
  mnuRedo_ =
      menus_.Add(*mnuEd_, "mnuRedo", "caption.main.redo", "Ctrl+Y; Ctrl+Shift+Z", [this] { Undo(true); });
  mnuSteps_ = menus_.AddMenu(*mnuEd_, "mnuSteps", "caption.steps.menu");
  MakeStepsMenu(*mnuSteps_, skin_, StepsOfCave(skin_, model_, [this] { AfterChange(); }));
  mnuEd_->addSeparator();
  mnuRestore_ = menus_.Add(*mnuEd_, "mnuRestore", "caption.main.restore", "", [this] { Restore(); });
  sep1_ = mnuEd_->addSeparator();
  sep1_->setObjectName("Sep1");
  mnuObjbyObj_ = menus_.AddMenu(*mnuEd_, "mnuObjbyObj");
  mnuReplEvery_[0] =
      menus_.Add(*mnuObjbyObj_, "mnuReplEvery(1)", "caption.main.every1", "Ctrl+H", [this] { Replace(1); });
  mnuReplEvery_[1] = menus_.Add(*mnuObjbyObj_, "mnuReplEvery(2)", "caption.main.every2", "Ctrl+Shift+H",
                                [this] { Replace(2); });
  mnuObjbyObj_->addSeparator();
  for (std::size_t i = 0; i < kRandom.size(); ++i) {
    const RandomRow& row = kRandom[i];
    mnuReplRan_[i] =
        menus_.Add(*mnuObjbyObj_, row.name, row.key, "", [this, &row] { ReplaceRandom(row.wanted); });
  }
  mnuOkraj_ = menus_.Add(*mnuEd_, "mnuOkraj", nullptr, "Ctrl+B", [this] { MakeFrame(); });
  mnuEd_->addSeparator();
  menus_.Add(*mnuEd_, "mnuStats", "caption.main.stats", "F7", [this] { ShowStats(); });
}

void FrmMain::MakeCaveMenu() {
  mnuCave_ = menus_.AddMenu("mnuCave", "caption.sada.menu.cave");
  menus_.Add(*mnuCave_, "mnuProps", "caption.main.props", "F4", [this] { ShowProperties(); });
  menus_.Add(*mnuCave_, "mnuCat", "caption.main.cat", "F6", [this] { EditScript(); });
  menus_.Add(*mnuCave_, "mnuTest", "caption.main.test", "F5", [this] { Test(); });
  menus_.Add(*mnuCave_, "mnuTryDog", "caption.proof.trydog", "Shift+F5", [this] { proof_->TryWithDog(); });
  menus_.Add(*mnuCave_, "mnuTry", "caption.proof.try", "Ctrl+F5", [this] { proof_->Try(); });
  drawMenus_->AddToCave(*mnuCave_, [this] { Resize(); });
  mnuCave_->addSeparator();
  QMenu& pictures = *menus_.AddMenu(*mnuCave_, "mnuPicture", "caption.main.picture");
  for (const int cell : kPictureCells) {
    const std::string name = "mnuPicture(" + std::to_string(cell) + ")";
    QAction* const item = menus_.Add(pictures, name.c_str(), nullptr, "",
                                     [this, cell] { OfferCavePicture(skin_, this, model_.Cave(), cell); });
    item->setText(QString("%1 × %1").arg(cell));
  }
  mnuCave_->addSeparator();
  menus_.Add(*mnuCave_, "mnuStore", "caption.main.store", "Ctrl+S", [this] { Store(); });
  menus_.Add(*mnuCave_, "mnuLeave", "caption.sada.close", "Ctrl+W; Esc", [this] { close(); });
}

void FrmMain::MakeDogMenu() {
  PesMenu_ = menus_.AddMenu("PesMenu", "caption.main.dogs");
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
  mnuView_ = menus_.AddMenu("mnuView", "caption.main.menu.view");
  menus_.Add(*mnuView_, "mnuLarger", "caption.main.larger", "Ctrl++; Ctrl+=", [this] { view_->Zoom(1); });
  menus_.Add(*mnuView_, "mnuSmaller", "caption.main.smaller", "Ctrl+-", [this] { view_->Zoom(-1); });
  menus_.Add(*mnuView_, "mnuUsual", "caption.main.usual", "Ctrl+0", [this] { view_->ZoomUsual(); });
  drawMenus_->AddToView(*mnuView_);
  mnuView_->addSeparator();
  QAction* const panel = menus_.Add(*mnuView_, "mnuPanel", "caption.main.panel", "F9", [] {});
  panel->setCheckable(true);
  panel->setChecked(panel_->IsWanted());
  connect(panel, &QAction::toggled, panel_, &SidePanel::SetWanted);
}

void FrmMain::MakeHelpMenu() {
  QMenu& menu = *menus_.AddMenu("mnuHelp", "caption.sada.menu.help");
  menus_.Add(menu, "mnuEditing", "caption.sada.help.editing", kHelpKey,
             [this] { emit HelpWanted("editovat.html"); });
  menus_.Add(menu, "mnuShortcuts", "caption.shortcuts.title", kSheetKeys, [this] { ShowShortcuts(this); });
}

void FrmMain::ShowShortcuts(QWidget* over) {
  FrmShortcuts(skin_, menus_.Bar(), {{"caption.keys.draw.head", kDrawingKeys}}, over).exec();
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
  UpdateTitle();
  mnuUndo_->setEnabled(model_.CanUndo());
  mnuRedo_->setEnabled(model_.CanRedo());
  mnuSteps_->setEnabled(model_.CanUndo() || model_.CanRedo());
  mnuRestore_->setEnabled(!model_.IsAsOpened());
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
