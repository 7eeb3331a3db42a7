#include "editors/FrmStats.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <vector>

#include "editors/CaveModel.h"
#include "editors/CheckWords.h"
#include "editors/EditTiles.h"
#include "editors/ToolNames.h"
#include "editors/ToolTable.h"
#include "editors/WindowPlace.h"
#include "screens/PlainText.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kTile = 26;
constexpr int kFirstHeight = 480;

// The letters in the order of the palette, those without a tile last.
std::vector<char> AllLetters() {
  std::vector<char> letters;
  for (const int palette : kTools) {
    const int dogs = palette == kDogTool ? kDogs : 1;
    for (int dog = 1; dog <= dogs; ++dog) letters.push_back(LetterOfTool(palette, dog));
  }
  for (int code = 1; code < 256; ++code) {
    if (ToolOfLetter(static_cast<char>(code)) < 0) letters.push_back(static_cast<char>(code));
  }
  return letters;
}

QTableWidgetItem* Item(const QString& text) {
  auto* const item = new QTableWidgetItem(text);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  return item;
}

QLabel* GemsLine(const Skin& skin, const CaveModel& cave, QWidget* parent) {
  QLabel* const line = NewLabel(parent);
  line->setObjectName("lblGems");
  line->setWordWrap(true);
  line->setText(GemsInWords(skin, GemsOf(cave.Cave())));
  return line;
}

}  // namespace

FrmStats::FrmStats(Skin& skin, const CaveModel& cave, EditTiles& tiles, QWidget* parent) : QDialog(parent) {
  setObjectName("frmStats");
  SetTitle(*this, skin.Caption("caption.main.stats"));
  auto* const table = new QTableWidget(0, 3, this);
  table->setObjectName("lstStats");
  table->horizontalHeader()->hide();
  table->verticalHeader()->hide();
  table->setShowGrid(false);
  table->setIconSize(QSize(kTile, kTile));
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  for (const char letter : AllLetters()) {
    const int count = cave.NuOfOb(letter);
    if (count == 0) continue;
    const int row = table->rowCount();
    table->insertRow(row);
    auto* const picture = Item(QString());
    const int size = qRound(kTile * devicePixelRatioF());
    const int palette = ToolOfLetter(letter);
    if (palette >= 0) picture->setIcon(QIcon(QPixmap::fromImage(tiles.Tile(palette, ValueOf(letter), size))));
    table->setItem(row, 0, picture);
    table->setItem(row, 1, Item(OneLine(NameOfLetter(skin, letter), kMostInCaption)));
    auto* const number = Item(QString::number(count));
    number->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table->setItem(row, 2, number);
  }
  table->verticalHeader()->setDefaultSectionSize(kTile + 4);
  table->resizeColumnsToContents();
  table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  auto* const buttons = new QDialogButtonBox(this);
  auto* const shut =
      buttons->addButton(InMenu(skin.Caption("caption.sada.close")), QDialogButtonBox::RejectRole);
  connect(shut, &QPushButton::clicked, this, &QDialog::reject);
  shut->setFocus();
  auto* const rows = new QVBoxLayout(this);
  rows->addWidget(table);
  rows->addWidget(GemsLine(skin, cave, this));
  rows->addWidget(buttons);
  if (!RestoreSize(*this)) ResizeWithinScreen(*this, QSize(sizeHint().width(), kFirstHeight));
}

void FrmStats::done(int result) {
  StoreSize(*this);
  QDialog::done(result);
}

}  // namespace zorik
