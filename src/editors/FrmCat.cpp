#include "editors/FrmCat.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "data/FileTrouble.h"
#include "editors/EditorKeys.h"
#include "editors/StepsMenu.h"
#include "editors/WindowPlace.h"
#include "platform/PathText.h"
#include "screens/Hint.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "screens/TroubleWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kDeleteWords{"caption.cat.delete"};
constexpr StartWords kInsertWords{"caption.cat.insert"};
constexpr StartWords kSwapWords{"caption.cat.swap"};
constexpr StartWords kCatOkWords{"caption.cat.ok"};
constexpr StartWords kDeleteHint{"caption.cat.delete.hint"};
constexpr StartWords kInsertHint{"caption.cat.insert.hint"};
constexpr StartWords kSwapHint{"caption.cat.swap.hint"};
constexpr StartWords kScriptWords{"caption.cat.program"};
constexpr StartWords kCommandWords{"caption.cat.commands"};

// What each step is called, before the line that it was done with.
constexpr std::array<StartWords, kCatActs> kActs{{{"caption.cat.insert"},
                                                  {"caption.cat.delete"},
                                                  {"caption.cat.swap"},
                                                  {"caption.cat.up"},
                                                  {"caption.cat.down"}}};

constexpr int kFirstCommand = 9;  // is selected at the beginning
constexpr QSize kUsualSize(660, 460);

// What the skins say about the cat's language; nothing when the author gives up the search for the file.
CatData FindCatData(Skin& skin, QWidget* parent) {
  if (skin.Places().SkinsPath.empty()) return {};
  const std::string path = SkinDataPath(skin.Places(), "menu\\catdata", [&](const std::string& name) {
    const std::string question = skin.QuestionOfFile(name);
    return AskRetry(skin, parent, skin.Text(TextId::Program), QString::fromStdString(question));
  });
  if (path.empty()) return {};
  const Result<std::string, FileFailure> bytes = ReadFile(path);
  if (bytes) return ReadCatData(*bytes);
  Tell(skin, parent, skin.Text(TextId::Program),
       kNotOpenedWords.Before(skin) + '\n' + ShownPath(path) + LineOfTrouble(skin, bytes.Why().Trouble));
  return {};
}

}  // namespace

FrmCat::FrmCat(Skin& skin, QWidget* parent)
    : QDialog(parent),
      skin_(skin),
      lblProgram_(NewLabel(this)),
      lblCommands_(NewLabel(this)),
      lstScript_(new QListWidget(this)),
      lstCmds_(new QListWidget(this)),
      delete_(MakeButton("Command1")),
      insert_(MakeButton("Command3")),
      ok_(MakeButton("Command4")),
      swap_(MakeButton("Label1")),
      menus_(*this, *new QMenuBar(this)) {
  setObjectName("frmCat");
  setModal(true);
  lstScript_->setObjectName("lstScript");
  lstCmds_->setObjectName("lstCmds");
  MakeMenus();
  LayOut();
  for (QListWidget* const list : {lstScript_, lstCmds_}) {
    list->setUniformItemSizes(true);
    list->installEventFilter(this);
  }
  connect(lstScript_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (showing_) return;
    editing_.Select(row);
    UpdateButtons();
  });
  connect(lstCmds_, &QListWidget::itemDoubleClicked, this, &FrmCat::Insert);
  connect(delete_, &QPushButton::clicked, mnuDelete_, &QAction::trigger);
  connect(insert_, &QPushButton::clicked, this, &FrmCat::Insert);
  connect(swap_, &QPushButton::clicked, this, [this] { Do(&CatEditing::Swap); });
  connect(ok_, &QPushButton::clicked, this, &FrmCat::accept);
  if (!RestoreSize(*this)) ResizeWithinScreen(*this, kUsualSize);
}

QPushButton* FrmCat::MakeButton(const char* name) {
  auto* const button = new QPushButton(this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

void FrmCat::MakeMenus() {
  QMenu& menu = *menus_.AddMenu("mnuEd", "caption.main.menu.edit");
  mnuUndo_ =
      menus_.Add(menu, "mnuUndo", "caption.main.undo", "Ctrl+Z", [this] { GoTo(editing_.Done() - 1); });
  mnuRedo_ = menus_.Add(menu, "mnuRedo", "caption.main.redo", "Ctrl+Y; Ctrl+Shift+Z",
                        [this] { GoTo(editing_.Done() + 1); });
  mnuSteps_ = menus_.AddMenu(menu, "mnuSteps", "caption.steps.menu");
  MakeStepsMenu(
      *mnuSteps_, skin_,
      {[this] { return editing_.Steps(); }, [this] { return editing_.Done(); },
       [this](std::size_t place) { return WordsOfStep(place); }, [this](std::size_t done) { GoTo(done); }});
  menu.addSeparator();
  mnuInsert_ = menus_.Add(menu, "mnuInsert", "caption.cat.insert", "", [this] { Insert(); });
  mnuDelete_ = menus_.Add(menu, "mnuDelete", "caption.cat.delete", "", [this] { Do(&CatEditing::Delete); });
  menus_.Add(menu, "mnuSwap", "caption.cat.swap", "", [this] { Do(&CatEditing::Swap); });
  menu.addSeparator();
  mnuMoveUp_ = menus_.Add(menu, "mnuMoveUp", "caption.cat.up", "Alt+Up", [this] { Do(&CatEditing::MoveUp); });
  mnuMoveDown_ =
      menus_.Add(menu, "mnuMoveDown", "caption.cat.down", "Alt+Down", [this] { Do(&CatEditing::MoveDown); });
  MakeHelpMenu();
}

void FrmCat::MakeHelpMenu() {
  QMenu& menu = *menus_.AddMenu("mnuHelp", "caption.sada.menu.help");
  menus_.Add(menu, "mnuEditing", "caption.sada.help.editing", kHelpKey,
             [this] { emit HelpWanted("kocka.html"); });
  menus_.Add(menu, "mnuShortcuts", "caption.shortcuts.title", kSheetKeys, [this] {
    FrmShortcuts(skin_, menus_.Bar(), {{"caption.keys.cat.head", kCatKeys}}, this).exec();
  });
}

// The steps and the moves at hand; keys do the same, so nobody walks through them.
QWidget* FrmCat::MakeBar() {
  const std::pair<QAction*, QStyle::StandardPixmap> buttons[] = {
      {mnuUndo_, QStyle::SP_ArrowBack},
      {mnuRedo_, QStyle::SP_ArrowForward},
      {mnuSteps_->menuAction(), QStyle::SP_FileDialogListView},
      {mnuMoveUp_, QStyle::SP_ArrowUp},
      {mnuMoveDown_, QStyle::SP_ArrowDown}};
  auto* const bar = new QWidget(this);
  auto* const row = new QHBoxLayout(bar);
  row->setContentsMargins({});
  for (const auto& [action, icon] : buttons) {
    action->setIcon(style()->standardIcon(icon));
    auto* const button = new QToolButton(bar);
    button->setDefaultAction(action);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    row->addWidget(button);
  }
  return bar;
}

void FrmCat::LayOut() {
  insert_->setIcon(style()->standardIcon(QStyle::SP_ArrowLeft));
  delete_->setIcon(style()->standardIcon(QStyle::SP_TrashIcon));
  ok_->setIcon(style()->standardIcon(QStyle::SP_DialogOkButton));
  auto* const middle = new QVBoxLayout;
  middle->addStretch();
  middle->addWidget(insert_);
  middle->addWidget(delete_);
  middle->addWidget(swap_);
  middle->addStretch();
  lblProgram_->setBuddy(lstScript_);
  lblCommands_->setBuddy(lstCmds_);
  auto* const lists = new QGridLayout;
  lists->addWidget(lblProgram_, 0, 0);
  lists->addWidget(lstScript_, 1, 0);
  lists->addLayout(middle, 1, 1);
  lists->addWidget(lblCommands_, 0, 2);
  lists->addWidget(lstCmds_, 1, 2);
  for (const int column : {0, 2}) lists->setColumnStretch(column, 1);
  auto* const end = new QHBoxLayout;
  end->addWidget(MakeBar());
  end->addStretch();
  end->addWidget(ok_);
  auto* const window = new QVBoxLayout(this);
  window->setMenuBar(&menus_.Bar());
  window->addLayout(lists, 1);
  window->addLayout(end);
  QWidget* before = lstScript_;
  for (QWidget* const next : std::initializer_list<QWidget*>{lstCmds_, insert_, delete_, swap_, ok_}) {
    setTabOrder(before, next);
    before = next;
  }
}

std::optional<std::string> FrmCat::Edit(const std::string& script) {
  LoadNames();
  LoadScript(script);
  lstScript_->setFocus();
  if (exec() != Accepted) return std::nullopt;
  return editing_.Script().Program();
}

std::optional<std::string> FrmCat::Program() const {
  if (!isVisible()) return std::nullopt;
  return editing_.Script().Program();
}

void FrmCat::LoadNames() {
  CatData found = FindCatData(skin_, parentWidget());
  SetTitle(*this, QString::fromStdString(found.Caption));
  closeQuestion_ = QString::fromStdString(found.CloseQuestion);
  const QSignalBlocker quiet(lstCmds_);
  lstCmds_->clear();
  for (const CatCommand& command : found.CatCommands)
    lstCmds_->addItem(OneLine(QString::fromStdString(command.Caption)));
  lstCmds_->setCurrentRow(std::min(kFirstCommand, lstCmds_->count() - 1));
  editing_ = CatEditing(std::move(found.CatCommands));
  SetWords();
}

void FrmCat::SetWords() {
  menus_.SetCaptions(skin_);
  menus_.SetHints(skin_);
  delete_->setText(InMenu(kDeleteWords.In(skin_)));
  insert_->setText(InMenu(kInsertWords.In(skin_)));
  swap_->setText(InMenu(kSwapWords.In(skin_)));
  ok_->setText(InMenu(kCatOkWords.In(skin_)));
  SetHint(*delete_, kDeleteHint.In(skin_));
  SetHint(*insert_, kInsertHint.In(skin_));
  SetHint(*swap_, kSwapHint.In(skin_));
  lblProgram_->setText(InMenu(kScriptWords.In(skin_)));
  lblCommands_->setText(InMenu(kCommandWords.In(skin_)));
}

void FrmCat::LoadScript(const std::string& script) {
  editing_.Load(script);
  Show();
}

// Brings the list in step with the program.
void FrmCat::Show() {
  showing_ = true;
  const std::vector<std::string>& lines = editing_.Script().Lines();
  const int count = static_cast<int>(lines.size());
  while (lstScript_->count() > count) delete lstScript_->takeItem(count);
  while (lstScript_->count() < count) lstScript_->addItem(QString());
  for (int i = 0; i < count; ++i) {
    lstScript_->item(i)->setText(OneLine(QString::fromStdString(lines[static_cast<std::size_t>(i)])));
  }
  lstScript_->setCurrentRow(editing_.Script().Selected());
  showing_ = false;
  UpdateButtons();
}

void FrmCat::UpdateButtons() {
  const CatScript& script = editing_.Script();
  delete_->setEnabled(script.CanDelete());
  insert_->setEnabled(script.CanInsert());
  mnuDelete_->setEnabled(script.CanDelete());
  mnuInsert_->setEnabled(script.CanInsert());
  mnuMoveUp_->setEnabled(script.CanMoveUp());
  mnuMoveDown_->setEnabled(script.CanMoveDown());
  mnuUndo_->setEnabled(editing_.Done() > 0);
  mnuRedo_->setEnabled(editing_.Done() < editing_.Steps());
  mnuSteps_->setEnabled(editing_.Steps() > 0);
}

// Steps

void FrmCat::Do(void (CatEditing::*act)()) {
  (editing_.*act)();
  Show();
}

void FrmCat::Insert() {
  if (lstCmds_->currentRow() < 0) return;
  editing_.Insert(static_cast<std::size_t>(lstCmds_->currentRow()));
  Show();
}

void FrmCat::GoTo(std::size_t done) {
  editing_.GoTo(done);
  Show();
}

QString FrmCat::WordsOfStep(std::size_t place) const {
  const CatStep& step = editing_.Step(place);
  return kActs[static_cast<std::size_t>(step.act)].Before(skin_) + ' ' + QString::fromStdString(step.caption);
}

void FrmCat::reject() {
  done(Ask(skin_, this, windowTitle(), closeQuestion_) ? Accepted : Rejected);
}

void FrmCat::done(int result) {
  StoreSize(*this);
  QDialog::done(result);
}

bool FrmCat::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
  const auto* const pressed = static_cast<QKeyEvent*>(event);
  const int key = pressed->key();
  // Where a line cannot be moved any further the list would select another one.
  const bool moves = pressed->modifiers() == Qt::AltModifier && (key == Qt::Key_Up || key == Qt::Key_Down);
  if (object == lstScript_ && moves) return true;
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Insert;
  if (object == lstCmds_ && enter) {
    Insert();
    return true;
  }
  if (object == lstScript_ && key == Qt::Key_Delete) {
    Do(&CatEditing::Delete);
    return true;
  }
  return QDialog::eventFilter(object, event);
}

}  // namespace zorik
