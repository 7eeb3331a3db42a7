#include "editors/FrmCat.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>

#include "data/Files.h"
#include "data/Result.h"
#include "editors/WindowPlace.h"
#include "screens/Hint.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
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
  const Result<std::string> bytes = ReadWhole(path);
  return bytes ? ReadCatData(*bytes) : CatData();
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
      swap_(MakeButton("Label1")) {
  setObjectName("frmCat");
  setModal(true);
  lstScript_->setObjectName("lstScript");
  lstCmds_->setObjectName("lstCmds");
  LayOut();
  for (QListWidget* const list : {lstScript_, lstCmds_}) {
    list->setUniformItemSizes(true);
    list->installEventFilter(this);
  }
  connect(lstScript_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (showing_) return;
    script_.Select(row);
    UpdateButtons();
  });
  connect(lstCmds_, &QListWidget::itemDoubleClicked, this, &FrmCat::Insert);
  connect(lstCmds_, &QListWidget::currentRowChanged, this, &FrmCat::UpdateButtons);
  connect(delete_, &QPushButton::clicked, this, &FrmCat::Delete);
  connect(insert_, &QPushButton::clicked, this, &FrmCat::Insert);
  connect(swap_, &QPushButton::clicked, this, &FrmCat::Swap);
  connect(ok_, &QPushButton::clicked, this, &FrmCat::accept);
  if (!RestoreSize(*this)) resize(kUsualSize);
}

QPushButton* FrmCat::MakeButton(const char* name) {
  auto* const button = new QPushButton(this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
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
  end->addStretch();
  end->addWidget(ok_);
  auto* const window = new QVBoxLayout(this);
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
  return script_.Program();
}

std::optional<std::string> FrmCat::Program() const {
  if (!isVisible()) return std::nullopt;
  return script_.Program();
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
  script_ = CatScript(std::move(found.CatCommands));
  SetWords();
}

void FrmCat::SetWords() {
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
  script_.Load(script);
  Show();
}

// Brings the list in step with the program.
void FrmCat::Show() {
  showing_ = true;
  const std::vector<std::string>& lines = script_.Lines();
  const int count = static_cast<int>(lines.size());
  while (lstScript_->count() > count) delete lstScript_->takeItem(count);
  while (lstScript_->count() < count) lstScript_->addItem(QString());
  for (int i = 0; i < count; ++i) {
    lstScript_->item(i)->setText(OneLine(QString::fromStdString(lines[static_cast<std::size_t>(i)])));
  }
  lstScript_->setCurrentRow(script_.Selected());
  showing_ = false;
  UpdateButtons();
}

void FrmCat::UpdateButtons() {
  delete_->setEnabled(script_.CanDelete());
  insert_->setEnabled(script_.CanInsert());
}

void FrmCat::Insert() {
  if (lstCmds_->currentRow() < 0) return;
  script_.Insert(static_cast<std::size_t>(lstCmds_->currentRow()));
  Show();
}

void FrmCat::Delete() {
  script_.Delete();
  Show();
}

void FrmCat::Swap() {
  script_.Swap();
  Show();
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
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Insert;
  if (object == lstCmds_ && enter) {
    Insert();
    return true;
  }
  if (object == lstScript_ && key == Qt::Key_Delete) {
    Delete();
    return true;
  }
  return QDialog::eventFilter(object, event);
}

}  // namespace zorik
