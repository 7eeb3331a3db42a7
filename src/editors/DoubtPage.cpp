#include "editors/DoubtPage.h"

#include <QLabel>
#include <QListWidget>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <map>

#include "editors/CheckWords.h"
#include "screens/Marks.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kPageWords{"caption.main.checks"};
constexpr StartWords kFineWords{"caption.main.fine"};
constexpr StartWords kFaultWords{"caption.main.fault"};
constexpr StartWords kHintWords{"caption.main.hint"};
constexpr StartWords kMoreWords{"caption.main.manymore"};

constexpr int kPause = 250;        // milliseconds without a change
constexpr std::size_t kMost = 20;  // of a kind
constexpr int kCellRole = Qt::UserRole;
constexpr int kIcon = 16;

QLabel* Line(QWidget* parent, const char* name) {
  QLabel* const label = NewLabel(parent);
  label->setObjectName(name);
  label->setWordWrap(true);
  label->setMargin(4);
  return label;
}

// In one piece, wherever its line ends.
QString PlaceWords(Spot cell) {
  return QString("(%1,%2%3)").arg(cell.x + 1).arg(QChar(QChar::Nbsp)).arg(cell.y + 1);
}

}  // namespace

DoubtPage::DoubtPage(const Skin& skin, QWidget* parent)
    : QWidget(parent),
      skin_(skin),
      lblGems_(Line(this, "lblGems")),
      lblFine_(Line(this, "lblFine")),
      list_(new QListWidget(this)) {
  setObjectName("doubts");
  list_->setObjectName("lstDoubts");
  list_->setWordWrap(true);
  list_->setFrameShape(QFrame::NoFrame);
  list_->setIconSize(QSize(kIcon, kIcon));
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setFocusPolicy(Qt::TabFocus);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(lblGems_);
  rows->addWidget(lblFine_);
  rows->addWidget(list_, 1);
  rows->addStretch();
  lblFine_->hide();
  list_->hide();
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, &DoubtPage::Ask);
  const auto choose = [this](const QListWidgetItem* item) { Choose(*item); };
  connect(list_, &QListWidget::itemClicked, this, choose);
  connect(list_, &QListWidget::itemActivated, this, choose);
}

void DoubtPage::Look(const CaveRecord& cave) {
  if (cave_ == cave) return;
  cave_ = cave;
  LookAgain();
}

void DoubtPage::LookAtProof(const ProofStanding& proof) {
  if (proof_ == proof) return;
  proof_ = proof;
  if (cave_) LookAgain();
}

void DoubtPage::LookAgain() {
  fresh_ = false;
  work_.Drop();
  if (isVisible()) pause_.start();
}

void DoubtPage::SetLW() {
  list_->setAccessibleName(kPageWords.In(skin_));
  if (found_) Show();
}

void DoubtPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (cave_ && !fresh_) pause_.start();
}

void DoubtPage::Ask() {
  if (!isVisible()) return;
  const auto found = std::make_shared<Found>();
  const auto look = [cave = *cave_, proof = proof_, found](const std::atomic<bool>& dropped) {
    found->doubts = DoubtsAboutCave(cave);
    found->gems = GemsOf(cave);
    if (dropped) return;
    const std::vector<Doubt> more = DoubtsAboutStanding(cave, proof);
    found->doubts.insert(found->doubts.end(), more.begin(), more.end());
    std::stable_partition(found->doubts.begin(), found->doubts.end(),
                          [](const Doubt& doubt) { return RowOf(doubt.kind).fault; });
  };
  work_.Start(look, [this, found] {
    fresh_ = true;
    found_ = found;
    Show();
  });
}

// Where a cave has very much of a kind, the first of them say it all.
void DoubtPage::Show() {
  const int row = list_->currentRow();
  list_->clear();
  std::map<DoubtKind, std::size_t> all, told;
  for (const Doubt& doubt : found_->doubts) ++all[doubt.kind];
  for (const Doubt& doubt : found_->doubts) {
    const std::size_t count = ++told[doubt.kind];
    if (count <= kMost) AddRow(doubt);
    if (count == kMost + 1) AddMore(doubt.kind, all[doubt.kind] - kMost);
  }
  list_->setCurrentRow(std::min(row, list_->count() - 1));
  list_->setVisible(list_->count() > 0);
  lblFine_->setText(kFineWords.In(skin_));
  lblFine_->setVisible(list_->count() == 0);
  lblGems_->setText(GemsInWords(skin_, found_->gems));
}

void DoubtPage::AddRow(const Doubt& doubt) {
  QString words = DoubtInWords(skin_, doubt);
  if (words.isEmpty()) return;
  if (doubt.cell) words += ' ' + PlaceWords(*doubt.cell);
  const bool fault = RowOf(doubt.kind).fault;
  auto* const item = new QListWidgetItem(OneLine(words), list_);
  item->setIcon(
      style()->standardIcon(fault ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxInformation));
  const QString kind = (fault ? kFaultWords : kHintWords).In(skin_);
  item->setData(Qt::ToolTipRole, kind);
  item->setData(Qt::AccessibleTextRole, kind + ' ' + item->text());
  if (doubt.cell) item->setData(kCellRole, QPoint(doubt.cell->x, doubt.cell->y));
}

void DoubtPage::AddMore(DoubtKind kind, std::size_t more) {
  auto* const item = new QListWidgetItem(FillMarks(kMoreWords.In(skin_), {QString::number(more)}), list_);
  item->setData(Qt::ToolTipRole, (RowOf(kind).fault ? kFaultWords : kHintWords).In(skin_));
}

void DoubtPage::Choose(const QListWidgetItem& item) {
  const QVariant cell = item.data(kCellRole);
  if (cell.isValid()) emit Chosen(cell.toPoint());
}

}  // namespace zorik
