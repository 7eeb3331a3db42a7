#include "screens/CaveList.h"

#include <QAbstractListModel>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <array>
#include <utility>

#include "screens/PlainText.h"
#include "screens/SkinPlacing.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kPadding = 6;
constexpr int kNumberWidth = 24;
constexpr int kScoreWidth = 42;
constexpr QColor kMarkGround(0xB0, 0x20, 0x10);
constexpr QColor kMarkInk(0xFF, 0xFF, 0xFF);

// By the number of the state.
constexpr std::array kColourKeys = {"cantcolor", "textcolor", "solvcolor", "elsecolor"};
using StateColours = std::array<QColor, kColourKeys.size()>;

QString Digits(int number, int count) {
  return QString("%1").arg(number, count, 10, QChar('0'));
}

// An exclamation mark on a plate of its own, for the skins' colours of a row are any.
void DrawMark(QPainter& painter, const QRect& line) {
  QRect plate(0, 0, kRowHeight - 2, kRowHeight - 2);
  plate.moveCenter(line.center());
  plate.moveRight(line.right() - kScoreWidth);
  painter.save();
  painter.setPen(Qt::NoPen);
  painter.setBrush(kMarkGround);
  painter.drawEllipse(plate);
  painter.setPen(kMarkInk);
  painter.drawText(plate, Qt::AlignCenter, "!");
  painter.restore();
}

}  // namespace

class CaveRows : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Set(std::vector<CaveList::Row> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
  }
  const std::vector<CaveList::Row>& All() const { return rows_; }
  const CaveList::Row& At(int place) const { return rows_[static_cast<std::size_t>(place)]; }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    return role == Qt::DisplayRole ? At(index.row()).name : QVariant();
  }

 private:
  std::vector<CaveList::Row> rows_;
};

class CaveDelegate : public QStyledItemDelegate {
 public:
  CaveDelegate(const CaveRows& rows, QObject* parent) : QStyledItemDelegate(parent), rows_(rows) {}

  void SkinIt(const Skin& skin) {
    for (std::size_t state = 0; state < kColourKeys.size(); ++state) {
      colours_[state] = skin.Colour(std::string("select.caves.") + kColourKeys[state], Qt::white);
      selectedColours_[state] = skin.Colour(std::string("select.caves.selection.") + kColourKeys[state]);
    }
  }

  QColor Colour(CaveState state, bool selected) const {
    return (selected ? selectedColours_ : colours_)[static_cast<std::size_t>(state)];
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const CaveList::Row& row = rows_.At(index.row());
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->setRenderHint(QPainter::Antialiasing);
    if (selected) {
      painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
      painter->setPen(Colour(CaveState::Open, true));
      painter->setBrush(Qt::NoBrush);
      painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter->setPen(Colour(row.state, selected));
    const QRect line = option.rect.adjusted(kPadding, 0, -kPadding, 0);
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, Digits(index.row() + 1, 2));
    painter->drawText(line, Qt::AlignRight | Qt::AlignVCenter, Digits(row.score, 5));
    const QRect name = line.adjusted(kNumberWidth, 0, -kScoreWidth - (row.stored ? 0 : kRowHeight), 0);
    if (!row.stored) DrawMark(*painter, line);
    painter->drawText(name, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(OneLine(row.name), Qt::ElideRight, name.width()));
  }

 private:
  const CaveRows& rows_;
  StateColours colours_{};
  StateColours selectedColours_{};
};

CaveList::CaveList(QWidget* parent)
    : ListView(Qt::Vertical, parent), rows_(new CaveRows(this)), delegate_(new CaveDelegate(*rows_, this)) {
  setFont(GameFont(kRowLetters));
  KeepFromEdge(1);
  setItemDelegate(delegate_);
  setModel(rows_);
  connect(this, &ListView::Chosen, this, [this](int place) { emit CaveClicked(place + 1); });
  connect(this, &ListView::Opened, this, [this](int place) { emit CaveDoubleClicked(place + 1); });
}

void CaveList::SkinIt(const Skin& skin) {
  delegate_->SkinIt(skin);
  ListLook look;
  look.ground = skin.Colour("select.caves.color");
  look.text = delegate_->Colour(CaveState::Open, false);
  look.selectionGround = skin.Colour("select.caves.selection.bgcolor", Qt::lightGray);
  look.border = skin.Colour("select.caves.border.color", Qt::gray);
  look.borderSize = std::max(0, skin.Data().SkinInt("select.caves.border.size"));
  SetLook(look);

  const int lines = std::max(0, skin.Data().SkinInt("select.caves.lines"));
  const QRect plain(0, 0, 0, lines * kRowHeight + 2 * look.borderSize);
  const QRect box = HeldIn(parentWidget(), BoxOf(skin, "select.caves", plain));
  setFixedSize(box.size());
  move(box.topLeft());
}

void CaveList::SetRows(std::vector<Row> rows) {
  const int selected = Current();
  rows_->Set(std::move(rows));
  setCurrentIndex(rows_->index(selected));
  Scroll(0);
}

const std::vector<CaveList::Row>& CaveList::Rows() const {
  return rows_->All();
}

QColor CaveList::TextColour(int number) const {
  return delegate_->Colour(rows_->At(number - 1).state, number == Selected());
}

}  // namespace zorik
