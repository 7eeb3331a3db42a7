// The menus of the collection editor, and what they say.
#include <QAction>
#include <QMenu>
#include <QStatusBar>
#include <QStyle>
#include <array>

#include "editors/EditorKeys.h"
#include "editors/FrmSada.h"
#include "editors/SadaBoxes.h"
#include "editors/SadaList.h"
#include "editors/SadaUndoMenu.h"
#include "platform/Shell.h"
#include "screens/DesktopServices.h"
#include "screens/FrmAbout.h"
#include "screens/Marks.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

struct PageRow {
  const char* name;
  const char* key;
  const char* page;
  const char* shortcut;
};
constexpr std::array<PageRow, 5> kPages{{
    {"mnuHelp(0)", "caption.sada.help.program", "oprogramu.html", ""},
    {"mnuHelp(1)", "caption.sada.help.rules", "pravidla.html", ""},
    {"mnuHelp(2)", "caption.sada.help.contribute", "prispet.html", ""},
    {"mnuHelp(3)", "caption.sada.help.editing", "editovat.html", ""},
    {"mnuHelp(4)", "caption.sada.help.index", "help.html", "F1"},
}};

// Where the makers of the game are to be found, if the skin tells.
constexpr const char* kWeb = "maker.web";
constexpr const char* kMail = "maker.mail";

constexpr StartWords kAddedOpenWords{"caption.sada.addedopen"};
constexpr StartWords kAddedClosedWords{"caption.sada.addedclosed"};

struct IconRow {
  const char* action;
  QStyle::StandardPixmap icon;
};
constexpr std::array<IconRow, 7> kIcons{{
    {"mnuNew", QStyle::SP_FileIcon},
    {"mnuOpen", QStyle::SP_DialogOpenButton},
    {"mnuSave", QStyle::SP_DialogSaveButton},
    {"mnuUp", QStyle::SP_ArrowUp},
    {"mnuDown", QStyle::SP_ArrowDown},
    {"mnuDelete", QStyle::SP_TrashIcon},
    {"mnuHelp(4)", QStyle::SP_DialogHelpButton},
}};

}  // namespace

void FrmSada::MakeMenus() {
  MakeFileMenu();
  MakeUndoMenu();
  MakeCaveMenu();
  MakeHelpMenu();
}

void FrmSada::MakeFileMenu() {
  QMenu& menu = *menus_.AddMenu("mnuFile", "caption.sada.menu.file");
  menus_.Add(menu, "mnuNew", "caption.sada.new", "Ctrl+N", [this] { mnuNew_Click(); });
  menus_.Add(menu, "mnuOpen", "caption.sada.open", "Ctrl+O", [this] { mnuOpen_Click(); });
  menu.addSeparator();
  menus_.Add(menu, "mnuSave", "caption.sada.save", "Ctrl+S", [this] { mnuSave_Click(); });
  menus_.Add(menu, "mnuSaveAs", "caption.sada.saveas", "", [this] { mnuSaveAs_Click(); });
  menus_.Add(menu, "mnuDiscarded", "caption.sada.discarded", "", [this] { mnuDiscarded_Click(); });
  menu.addSeparator();
  menus_.Add(menu, "mnuFromTexts", "caption.sada.fromtexts", "", [this] { mnuFromTexts_Click(); });
  menus_.Add(menu, "mnuToTexts", "caption.sada.totexts", "", [this] { mnuToTexts_Click(); });
  menus_.Add(menu, "mnuSheet", "caption.sada.sheet", "", [this] { mnuSheet_Click(); });
  menu.addSeparator();
  menus_.Add(menu, "mnuGratulace", "caption.sada.congrat", "Ctrl+G", [this] { mnuGratulace_Click(); });
  menu.addSeparator();
  menus_.Add(menu, "mnuClose", "caption.sada.close", "", [this] { close(); });
}

void FrmSada::MakeUndoMenu() {
  undo_ = new SadaUndoMenu(menus_, skin_, sada_, this);
  connect(undo_, &SadaUndoMenu::Changed, this, [this] {
    boxes_->Load();
    AfterChange();
  });
}

void FrmSada::MakeAddMenu() {
  mnuAdd_ = menus_.AddMenu(*mnuCave_, "mnuAdd", "caption.sada.menu.add");
  const auto add = [this](const char* name, const char* key, const char* keys, NewCaveSize size,
                          NewCavePlace place) {
    menus_.Add(*mnuAdd_, name, key, keys,
               [this, size, place] { Add([=](SadaModel& sada) { sada.AddCave(size, place); }); });
  };
  add("mnuAdd(0)", "caption.sada.small", "F3", NewCaveSize::Small, NewCavePlace::Chosen);
  add("mnuAdd(1)", "caption.sada.large", "", NewCaveSize::Large, NewCavePlace::Chosen);
  mnuAdd_->addSeparator();
  add("mnuAddEnd(0)", "caption.sada.smallend", "Shift+F3", NewCaveSize::Small, NewCavePlace::End);
  add("mnuAddEnd(1)", "caption.sada.largeend", "", NewCaveSize::Large, NewCavePlace::End);
}

void FrmSada::Add(const std::function<void(SadaModel& sada)>& act) {
  const int count = sada_.ListCount();
  act(sada_);
  AfterChange();
  if (sada_.ListCount() == count) return;
  const int number = sada_.ListSelected();
  const StartWords& words = sada_.IsOpen(number) ? kAddedOpenWords : kAddedClosedWords;
  statusBar()->showMessage(FillMarks(words.In(skin_), QString::number(number), QString()));
}

// Within the list the usual keys do what its menu does; in the boxes they belong to the text.
void FrmSada::AddKeys() {
  list_->AddKey(QKeySequence::Copy, findChild<QAction*>("mnuCopy"));
  list_->AddKey(QKeySequence::Cut, mnuCut_);
  list_->AddKey(QKeySequence::Paste, mnuPaste_);
  list_->AddKey(QKeySequence::Delete, mnuDelete_);
}

void FrmSada::MakeCaveMenu() {
  mnuCave_ = menus_.AddMenu("mnuCave", "caption.sada.menu.cave");
  const auto change = [this](auto act) {
    return [this, act] {
      act(sada_);
      AfterChange();
    };
  };
  QMenu& menu = *mnuCave_;
  MakeAddMenu();
  menus_.Add(menu, "mnuEdit", "caption.sada.edit", "F4", [this] { mnuEdit_Click(); });
  menu.addSeparator();
  menus_.Add(menu, "mnuCopy", "caption.sada.copy", "Ctrl+Ins", [this] {
    sada_.Copy();
    UpdateActions();
  });
  mnuCut_ = menus_.Add(menu, "mnuCut", "caption.sada.cut", "", change([](SadaModel& sada) { sada.Cut(); }));
  mnuPaste_ = menus_.Add(menu, "mnuPaste", "caption.sada.paste", "Shift+Ins",
                         [this] { Add([](SadaModel& sada) { sada.Paste(); }); });
  mnuPasteEnd_ = menus_.Add(menu, "mnuPasteEnd", "caption.sada.pasteend", "",
                            [this] { Add([](SadaModel& sada) { sada.Paste(NewCavePlace::End); }); });
  menu.addSeparator();
  mnuUp_ = menus_.Add(menu, "mnuUp", "caption.sada.up", "F5", change([](SadaModel& sada) { sada.Up(); }));
  mnuDown_ =
      menus_.Add(menu, "mnuDown", "caption.sada.down", "F6", change([](SadaModel& sada) { sada.Down(); }));
  mnuMark_ = menus_.Add(menu, "mnuMark", "caption.sada.mark", "",
                        change([](SadaModel& sada) { sada.ToggleOpen(sada.ListSelected()); }));
  mnuMark_->setCheckable(true);
  menu.addSeparator();
  mnuDelete_ = menus_.Add(menu, "mnuDelete", "caption.sada.delete", "F8", [this] { mnuDelete_Click(); });
}

void FrmSada::MakeHelpMenu() {
  QMenu& menu = *menus_.AddMenu("mnuHelp", "caption.sada.menu.help");
  for (const PageRow& row : kPages) {
    menus_.Add(menu, row.name, row.key, row.shortcut, [this, &row] { ShowPage(row.page); });
  }
  menus_.Add(menu, "mnuShortcuts", "caption.shortcuts.title", kSheetKeys, [this] { ShowShortcuts(*this); });
  menu.addSeparator();
  MakeLinks(menu);
  menus_.Add(menu, "mnuAbout", "caption.sada.help.about", "",
             [this] { FrmAbout(skin_, paths_, this).exec(); });
}

void FrmSada::ShowShortcuts(QWidget& over) {
  FrmShortcuts(skin_, menus_.Bar(), {{"caption.keys.caves.head", kCaveListKeys}}, &over).exec();
}

void FrmSada::MakeLinks(QMenu& menu) {
  web_ = menus_.Add(menu, "mnuWeb", "caption.sada.help.web", "", [this] {
    OpenLinkOrTell(skin_, this, QUrl(QString::fromStdString(skin_.Data().SkinText(kWeb))));
  });
  mail_ = menus_.Add(menu, "mnuMail", "caption.sada.help.mail", "", [this] {
    const QString address = QString::fromStdString(skin_.Data().SkinText(kMail));
    OpenLinkOrTell(skin_, this, MailLink(address, kProgramTitle));
  });
}

// Only those of which the skin tells.
void FrmSada::ShowLinks() {
  web_->setVisible(!skin_.Data().SkinText(kWeb).empty());
  mail_->setVisible(!skin_.Data().SkinText(kMail).empty());
}

void FrmSada::SetIcons() {
  for (const IconRow& row : kIcons) {
    findChild<QAction*>(row.action)->setIcon(style()->standardIcon(row.icon));
  }
}

void FrmSada::UpdateActions() {
  const int selected = sada_.ListSelected();
  mnuPaste_->setEnabled(!sada_.ClipCave().empty());
  mnuPasteEnd_->setEnabled(mnuPaste_->isEnabled());
  mnuCut_->setEnabled(sada_.ListCount() > 1);
  mnuUp_->setEnabled(selected > 1);
  mnuDown_->setEnabled(selected < sada_.ListCount());
  mnuDelete_->setEnabled(sada_.ListCount() > 1);
  mnuMark_->setEnabled(selected > 1);
  mnuMark_->setChecked(sada_.IsOpen(selected));
}

}  // namespace zorik
