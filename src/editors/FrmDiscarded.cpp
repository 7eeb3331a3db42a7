#include "editors/FrmDiscarded.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

#include "data/Result.h"
#include "editors/RecoveryWords.h"
#include "editors/WindowPlace.h"
#include "platform/PathText.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kTitleWords{"caption.discarded.title"};
constexpr StartWords kAboutWords{"caption.discarded.about"};
constexpr StartWords kTimeWords{"caption.discarded.when"};
constexpr StartWords kNameWords{"caption.discarded.name"};
constexpr StartWords kCavesWords{"caption.discarded.caves"};
constexpr StartWords kFileWords{"caption.discarded.file"};
constexpr StartWords kOpenItWords{"caption.discarded.open"};
constexpr StartWords kDeleteWords{"caption.discarded.delete"};
constexpr StartWords kSureWords{"caption.discarded.sure"};
constexpr StartWords kShutWords{"caption.sada.close"};

constexpr QSize kUsualSize(620, 360);
enum Column { kTime, kName, kCaves, kFile, kColumns };

QTableWidgetItem* Item(const QString& text, Qt::Alignment side = Qt::AlignLeft) {
  auto* const item = new QTableWidgetItem(text);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  item->setTextAlignment(side | Qt::AlignVCenter);
  return item;
}

QPushButton* NewButton(QWidget* parent, const char* name, const QString& words) {
  auto* const button = new QPushButton(InMenu(words), parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

FrmDiscarded::FrmDiscarded(Skin& skin, RecoveryStore& store, QWidget* parent)
    : QDialog(parent),
      skin_(skin),
      store_(store),
      table_(new QTableWidget(0, kColumns, this)),
      open_(NewButton(this, "btnOpen", kOpenItWords.In(skin))),
      delete_(NewButton(this, "btnDelete", kDeleteWords.In(skin))),
      close_(NewButton(this, "btnClose", kShutWords.In(skin))) {
  setObjectName("frmDiscarded");
  SetTitle(*this, kTitleWords.In(skin));
  LayOut();
  connect(table_, &QTableWidget::itemSelectionChanged, this, &FrmDiscarded::UpdateButtons);
  connect(table_, &QTableWidget::cellDoubleClicked, this, &QDialog::accept);
  connect(open_, &QPushButton::clicked, this, &QDialog::accept);
  connect(delete_, &QPushButton::clicked, this, &FrmDiscarded::Delete);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  if (!RestoreSize(*this)) ResizeWithinScreen(*this, kUsualSize);
}

void FrmDiscarded::LayOut() {
  table_->setObjectName("lstDiscarded");
  QStringList heads;
  for (const StartWords& words : {kTimeWords, kNameWords, kCavesWords, kFileWords}) heads << words.In(skin_);
  table_->setHorizontalHeaderLabels(heads);
  table_->verticalHeader()->hide();
  table_->setShowGrid(false);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->setTextElideMode(Qt::ElideMiddle);
  for (const int column : {kName, kFile})
    table_->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
  for (const int column : {kTime, kCaves})
    table_->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setHighlightSections(false);
  open_->setIcon(style()->standardIcon(QStyle::SP_DialogOpenButton));
  delete_->setIcon(style()->standardIcon(QStyle::SP_TrashIcon));
  auto* const about = NewLabel(this);
  about->setText(kAboutWords.In(skin_));
  about->setWordWrap(true);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(open_);
  buttons->addWidget(delete_);
  buttons->addStretch();
  buttons->addWidget(close_);
  auto* const rows = new QVBoxLayout(this);
  rows->addWidget(about);
  rows->addWidget(table_, 1);
  rows->addLayout(buttons);
}

std::optional<KeptEntry> FrmDiscarded::Choose() {
  Fill();
  table_->setFocus();
  if (exec() != Accepted || table_->currentRow() < 0) return std::nullopt;
  return entries_[static_cast<std::size_t>(table_->currentRow())];
}

void FrmDiscarded::Fill() {
  const int row = std::max(0, table_->currentRow());
  entries_ = store_.Discarded();
  table_->setRowCount(0);
  for (const KeptEntry& entry : entries_) AddRow(entry);
  if (!entries_.empty()) table_->selectRow(std::min(row, table_->rowCount() - 1));
  UpdateButtons();
}

void FrmDiscarded::AddRow(const KeptEntry& entry) {
  const int row = table_->rowCount();
  table_->insertRow(row);
  table_->setItem(row, kTime, Item(TimeOfKept(skin_, entry)));
  table_->setItem(row, kName, Item(NameOfKept(entry)));
  table_->setItem(row, kCaves, Item(QString::number(entry.Caves), Qt::AlignRight));
  table_->setItem(row, kFile, Item(OneLine(ShownPath(entry.FileName))));
}

void FrmDiscarded::UpdateButtons() {
  const bool chosen = !table_->selectedItems().isEmpty();
  open_->setEnabled(chosen);
  delete_->setEnabled(chosen);
}

void FrmDiscarded::Delete() {
  if (table_->currentRow() < 0) return;
  const KeptEntry& entry = entries_[static_cast<std::size_t>(table_->currentRow())];
  const QString question = FillMarks(kSureWords.In(skin_), NameOfKept(entry), TimeOfKept(skin_, entry));
  if (!Ask(skin_, this, windowTitle(), question)) return;
  if (!store_.Delete(entry))
    Tell(skin_, this, skin_.Text(TextId::Program),
         kNotDeletedWords.Before(skin_) + '\n' + ShownPath(entry.Path));
  Fill();
}

// Enter opens, wherever in the list it is pressed.
void FrmDiscarded::keyPressEvent(QKeyEvent* event) {
  const bool list = table_->hasFocus();
  const int key = event->key();
  if (list && key == Qt::Key_Delete) return Delete();
  if (list && open_->isEnabled() && (key == Qt::Key_Return || key == Qt::Key_Enter)) return accept();
  QDialog::keyPressEvent(event);
}

void FrmDiscarded::done(int result) {
  StoreSize(*this);
  QDialog::done(result);
}

}  // namespace zorik
