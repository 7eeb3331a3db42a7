#include "editors/ResizeBox.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "editors/CaveModel.h"
#include "editors/EditTiles.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

enum SidePlace : std::size_t { kLeftSide, kTopSide, kRightSide, kBottomSide };

struct SideRow {
  const char* name;
  const char* caption;
  int row, column;  // as the side lies
};
constexpr std::array<SideRow, 4> kSides{{
    {"spnLeft", "caption.main.side.left", 1, 0},
    {"spnTop", "caption.main.side.top", 0, 1},
    {"spnRight", "caption.main.side.right", 1, 2},
    {"spnBottom", "caption.main.side.bottom", 2, 1},
}};

}  // namespace

// The picture

ResizePicture::ResizePicture(const CaveRecord& cave, EditTiles& tiles, QWidget* parent)
    : QWidget(parent), cave_(cave), tiles_(tiles) {
  setObjectName("imgResized");
  setMinimumSize(sizeHint() / 2);
}

void ResizePicture::Show(const CaveSides& sides) {
  sides_ = sides;
  update();
}

// What is new has a light frame of its own.
void ResizePicture::paintEvent(QPaintEvent* /*event*/) {
  const CaveRecord cave = CanResize(cave_, sides_) ? Resized(cave_, sides_) : cave_;
  const double ratio = devicePixelRatioF();
  const int pixels =
      std::max(1, static_cast<int>(std::min(width() * ratio / cave.Width, height() * ratio / cave.Height)));
  QPainter painter(this);
  painter.scale(1 / ratio, 1 / ratio);
  painter.translate(qRound((width() * ratio - pixels * cave.Width) / 2),
                    qRound((height() * ratio - pixels * cave.Height) / 2));
  for (int x = 0; x < cave.Width; ++x) {
    for (int y = 0; y < cave.Height; ++y) {
      const char letter = cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
      painter.drawImage(x * pixels, y * pixels, tiles_.Tile(ToolOfLetter(letter), ValueOf(letter), pixels));
    }
  }
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2 * ratio));
  const QRect before(sides_.left, sides_.top, cave_.Width, cave_.Height);
  const QRect kept = before & QRect(0, 0, cave.Width, cave.Height);
  painter.drawRect(QRect(kept.topLeft() * pixels, kept.size() * pixels));
}

// The box

ResizeBox::ResizeBox(Skin& skin, const CaveModel& cave, EditTiles& tiles, QWidget* parent)
    : QDialog(parent),
      cave_(cave),
      picture_(new ResizePicture(cave.Cave(), tiles, this)),
      size_(NewLabel(this)) {
  setObjectName("frmResize");
  SetTitle(*this, skin.Caption("caption.main.resize"));
  size_->setObjectName("lblNewSize");
  size_->setAlignment(Qt::AlignCenter);
  QLabel* const how = NewLabel(this);
  how->setText(skin.Caption("caption.main.side.how"));
  how->setWordWrap(true);
  QWidget* const sides = MakeSides(skin);
  auto* const buttons = new QDialogButtonBox(this);
  auto* const ok = buttons->addButton(InMenu(kOkWords.In(skin)), QDialogButtonBox::AcceptRole);
  auto* const no = buttons->addButton(InMenu(skin.Text(TextId::CancelButton)), QDialogButtonBox::RejectRole);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(no, &QPushButton::clicked, this, &QDialog::reject);
  ok->setDefault(true);
  auto* const rows = new QVBoxLayout(this);
  rows->addWidget(how);
  rows->addWidget(sides, 1);
  rows->addWidget(size_);
  rows->addWidget(buttons);
  sides_[kLeftSide]->setFocus();
  Update();
}

QWidget* ResizeBox::MakeSides(Skin& skin) {
  auto* const around = new QWidget(this);
  auto* const grid = new QGridLayout(around);
  grid->setContentsMargins(0, 0, 0, 0);
  for (std::size_t i = 0; i < kSides.size(); ++i) {
    const SideRow& row = kSides[i];
    auto* const column = new QVBoxLayout;
    QLabel* const label = NewLabel(around);
    label->setText(skin.Caption(row.caption));
    label->setAlignment(Qt::AlignCenter);
    sides_[i] = new QSpinBox(around);
    sides_[i]->setObjectName(row.name);
    sides_[i]->setAccessibleName(skin.Caption(row.caption));
    connect(sides_[i], &QSpinBox::valueChanged, this, &ResizeBox::Update);
    column->addStretch();
    column->addWidget(label);
    column->addWidget(sides_[i], 0, Qt::AlignHCenter);
    column->addStretch();
    grid->addLayout(column, row.row, row.column);
  }
  grid->addWidget(picture_, 1, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(1, 1);
  return around;
}

CaveSides ResizeBox::Sides() const {
  return {sides_[kLeftSide]->value(), sides_[kTopSide]->value(), sides_[kRightSide]->value(),
          sides_[kBottomSide]->value()};
}

void ResizeBox::Update() {
  const auto limit = [this](SidePlace one, SidePlace other, int now, int most) {
    for (const auto& [side, across] : {std::pair{one, other}, std::pair{other, one}}) {
      const int rest = now + sides_[across]->value();
      sides_[side]->setRange(CaveModel::kLeastSide - rest, most - rest);
    }
  };
  limit(kLeftSide, kRightSide, cave_.Width(), CaveModel::kMostWidth);
  limit(kTopSide, kBottomSide, cave_.Height(), CaveModel::kMostHeight);
  const CaveSides sides = Sides();
  size_->setText(QString("%1 × %2   →   %3 × %4")
                     .arg(cave_.Width())
                     .arg(cave_.Height())
                     .arg(cave_.Width() + sides.left + sides.right)
                     .arg(cave_.Height() + sides.top + sides.bottom));
  picture_->Show(sides);
}

}  // namespace zorik
