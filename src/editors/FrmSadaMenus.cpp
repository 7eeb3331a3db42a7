// The menus of the collection editor, what they say, and how the window is laid out.
#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QToolButton>
#include <array>

#include "editors/FrmSada.h"
#include "editors/SadaBoxes.h"
#include "editors/SadaList.h"
#include "platform/Shell.h"
#include "screens/DesktopServices.h"
#include "screens/FrmAbout.h"
#include "screens/Hint.h"
#include "screens/PlainText.h"
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

constexpr int kGap = 16;

// The word for so many caves.
TextId WordOfCaves(int count) {
  if (count == 1) return TextId::OneCave;
  return count < 5 ? TextId::FewCaves : TextId::ManyCaves;
}

}  // namespace

QAction* FrmSada::Add(QMenu& menu, const char* name, const char* key, const QString& shortcut,
                      std::function<void()> act) {
  QAction* const action = menu.addAction(QString());
  action->setObjectName(name);
  action->setShortcut(QKeySequence(shortcut));
  connect(action, &QAction::triggered, this, std::move(act));
  captions_.push_back({action, key});
  return action;
}

QMenu* FrmSada::AddMenu(const char* name, const char* key) {
  QMenu* const menu = menuBar()->addMenu(QString());
  menu->setObjectName(name);
  captions_.push_back({menu->menuAction(), key});
  return menu;
}

void FrmSada::MakeMenus() {
  MakeFileMenu();
  MakeCaveMenu();
  MakeHelpMenu();
}

void FrmSada::MakeFileMenu() {
  QMenu& menu = *AddMenu("mnuFile", "caption.sada.menu.file");
  Add(menu, "mnuNew", "caption.sada.new", "Ctrl+N", [this] { mnuNew_Click(); });
  Add(menu, "mnuOpen", "caption.sada.open", "Ctrl+O", [this] { mnuOpen_Click(); });
  menu.addSeparator();
  Add(menu, "mnuSave", "caption.sada.save", "Ctrl+S", [this] { mnuSave_Click(); });
  Add(menu, "mnuSaveAs", "caption.sada.saveas", "", [this] { mnuSaveAs_Click(); });
  menu.addSeparator();
  Add(menu, "mnuGratulace", "caption.sada.congrat", "Ctrl+G", [this] { mnuGratulace_Click(); });
  menu.addSeparator();
  Add(menu, "mnuClose", "caption.sada.close", "", [this] { close(); });
}

void FrmSada::MakeCaveMenu() {
  mnuCave_ = AddMenu("mnuCave", "caption.sada.menu.cave");
  const auto change = [this](auto act) {
    return [this, act] {
      act(sada_);
      AfterChange();
    };
  };
  QMenu& menu = *mnuCave_;
  mnuAdd_ = menu.addMenu(QString());
  mnuAdd_->menuAction()->setObjectName("mnuAdd");
  captions_.push_back({mnuAdd_->menuAction(), "caption.sada.menu.add"});
  Add(*mnuAdd_, "mnuAdd(0)", "caption.sada.small", "F3",
      change([](SadaModel& sada) { sada.AddCave(NewCaveSize::Small); }));
  Add(*mnuAdd_, "mnuAdd(1)", "caption.sada.large", "",
      change([](SadaModel& sada) { sada.AddCave(NewCaveSize::Large); }));
  Add(menu, "mnuEdit", "caption.sada.edit", "F4", [this] { mnuEdit_Click(); });
  menu.addSeparator();
  Add(menu, "mnuCopy", "caption.sada.copy", "Ctrl+Ins", [this] {
    sada_.Copy();
    UpdateActions();
  });
  mnuPaste_ =
      Add(menu, "mnuPaste", "caption.sada.paste", "Shift+Ins", change([](SadaModel& sada) { sada.Paste(); }));
  menu.addSeparator();
  mnuUp_ = Add(menu, "mnuUp", "caption.sada.up", "F5", change([](SadaModel& sada) { sada.Up(); }));
  mnuDown_ = Add(menu, "mnuDown", "caption.sada.down", "F6", change([](SadaModel& sada) { sada.Down(); }));
  mnuMark_ = Add(menu, "mnuMark", "caption.sada.mark", "",
                 change([](SadaModel& sada) { sada.ToggleOpen(sada.ListSelected()); }));
  mnuMark_->setCheckable(true);
  menu.addSeparator();
  mnuDelete_ = Add(menu, "mnuDelete", "caption.sada.delete", "F8", [this] { mnuDelete_Click(); });
}

void FrmSada::MakeHelpMenu() {
  QMenu& menu = *AddMenu("mnuHelp", "caption.sada.menu.help");
  for (const PageRow& row : kPages) {
    Add(menu, row.name, row.key, row.shortcut, [this, &row] { ShowPage(row.page); });
  }
  menu.addSeparator();
  MakeLinks(menu);
  Add(menu, "mnuAbout", "caption.sada.help.about", "", [this] { FrmAbout(skin_, paths_, this).exec(); });
}

void FrmSada::MakeLinks(QMenu& menu) {
  web_ = Add(menu, "mnuWeb", "caption.sada.help.web", "", [this] {
    OpenLinkOrTell(skin_, this, QUrl(QString::fromStdString(skin_.Data().SkinText(kWeb))));
  });
  mail_ = Add(menu, "mnuMail", "caption.sada.help.mail", "", [this] {
    const QString address = QString::fromStdString(skin_.Data().SkinText(kMail));
    OpenLinkOrTell(skin_, this, MailLink(address, kProgramTitle));
  });
}

void FrmSada::SetIcons() {
  for (const IconRow& row : kIcons) {
    findChild<QAction*>(row.action)->setIcon(style()->standardIcon(row.icon));
  }
}

void FrmSada::LayOut() {
  auto* const centre = new QWidget(this);
  auto* const sides = new QHBoxLayout(centre);
  sides->setSpacing(kGap);
  boxes_ = new SadaBoxes(sada_, centre);
  connect(boxes_, &SadaBoxes::Changed, this, &FrmSada::UpdateTitle);
  sides->addWidget(boxes_, 2);
  sides->addWidget(MakeListSide(), 3);
  setCentralWidget(centre);
}

QWidget* FrmSada::MakeListSide() {
  auto* const side = new QWidget(this);
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins({});
  list_ = new SadaList(sada_, side);
  list_->setObjectName("CaveList");
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list_, &QWidget::customContextMenuRequested, this,
          [this](QPoint place) { mnuCave_->popup(list_->viewport()->mapToGlobal(place)); });
  connect(list_, &SadaList::CaveClicked, this, [this](int number) {
    sada_.Select(number);
    GetNames();
  });
  connect(list_, &SadaList::MarkClicked, this, [this](int number) {
    sada_.ToggleOpen(number);
    AfterChange();
  });
  connect(list_, &SadaList::Activated, this, &FrmSada::mnuEdit_Click);
  column->addWidget(list_, 1);
  auto* const row = new QHBoxLayout;
  for (QAction* const action :
       {mnuAdd_->menuAction(), findChild<QAction*>("mnuEdit"), mnuUp_, mnuDown_, mnuDelete_}) {
    auto* const button = new QToolButton(side);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::TabFocus);
    row->addWidget(button);
  }
  row->addStretch();
  lblCount_ = NewLabel(side);
  lblCount_->setObjectName("lblCount");
  row->addWidget(lblCount_);
  column->addLayout(row);
  return side;
}

void FrmSada::SetLWEd() {
  sada_.SetWords(WordsOf(skin_));
  boxes_->SetLWEd(skin_);
  list_->SetMarkHint(skin_.Text(TextId::MarkHint));
  for (const Caption& caption : captions_) {
    const QString words = skin_.Caption(caption.key);
    caption.action->setText(InMenu(words));
    const QString keys = caption.action->shortcut().toString(QKeySequence::NativeText);
    SetHint(*caption.action, keys.isEmpty() ? words : words + " (" + keys + ')');
  }
  web_->setVisible(!skin_.Data().SkinText(kWeb).empty());
  mail_->setVisible(!skin_.Data().SkinText(kMail).empty());
  UpdateTitle();
  UpdateActions();
}

void FrmSada::UpdateActions() {
  const int selected = sada_.ListSelected();
  mnuPaste_->setEnabled(!sada_.ClipCave().empty());
  mnuUp_->setEnabled(selected > 1);
  mnuDown_->setEnabled(selected < sada_.ListCount());
  mnuDelete_->setEnabled(sada_.ListCount() > 1);
  mnuMark_->setEnabled(selected > 1);
  mnuMark_->setChecked(sada_.IsOpen(selected));
  const int count = sada_.ListCount();
  lblCount_->setText(QString::number(count) + ' ' + OneLine(skin_.Text(WordOfCaves(count)), kMostInCaption));
}

}  // namespace zorik
