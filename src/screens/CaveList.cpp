#include "screens/CaveList.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "screens/PlainText.h"
#include "screens/SkinPlacing.h"
#include "screens/StartLists.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kPadding = 6;
constexpr int kNumberWidth = 24;
constexpr int kScoreWidth = 42;
constexpr int kWheelStep = 120;  // an eighth of a degree each; one notch of a wheel
constexpr int kRowsPerNotch = 3;
constexpr QColor kMarkGround(0xB0, 0x20, 0x10);
constexpr QColor kMarkInk(0xFF, 0xFF, 0xFF);

// By the number of the state.
constexpr std::array kColourKeys = {"cantcolor", "textcolor", "solvcolor", "elsecolor"};

QString Digits(int number, int count) {
  return QString("%1").arg(number, count, 10, QChar('0'));
}

}  // namespace

CaveList::CaveList(QWidget* parent) : QWidget(parent) {
  setFont(GameFont(kRowLetters));
}

void CaveList::SkinIt(const Skin& skin) {
  for (std::size_t state = 0; state < kStates; ++state) {
    colours_[state] = skin.Colour(std::string("select.caves.") + kColourKeys[state], Qt::white);
    selectedColours_[state] = skin.Colour(std::string("select.caves.selection.") + kColourKeys[state]);
  }
  ground_ = skin.Colour("select.caves.color");
  selectedGround_ = skin.Colour("select.caves.selection.bgcolor", Qt::lightGray);
  border_ = skin.Colour("select.caves.border.color", Qt::gray);
  borderSize_ = std::max(0, skin.Data().SkinInt("select.caves.border.size"));

  const int lines = std::max(0, skin.Data().SkinInt("select.caves.lines"));
  const QRect plain(0, 0, 0, lines * kRowHeight + 2 * borderSize_);
  const QRect box = HeldIn(parentWidget(), BoxOf(skin, "select.caves", plain));
  setFixedSize(box.size());
  move(box.topLeft());
  update();
}

void CaveList::SetRows(std::vector<Row> rows) {
  rows_ = std::move(rows);
  top_ = std::clamp(top_, -Range(), 0);
  update();
}

void CaveList::Select(int number) {
  selected_ = number;
  const int rowTop = RowTop(number);
  if (top_ + rowTop + kRowHeight > View().height()) top_ = View().height() - rowTop - kRowHeight - 1;
  if (top_ + rowTop < 0) top_ = 1 - rowTop;
  update();
}

int CaveList::RowTop(int number) const {
  return (number - 1) * kRowHeight;
}

int CaveList::Range() const {
  return std::max(0, static_cast<int>(rows_.size()) * kRowHeight - View().height());
}

void CaveList::Scroll(int rows) {
  top_ = std::clamp(top_ - rows * kRowHeight, -Range(), 0);
  update();
}

int CaveList::Page() const {
  return std::max(1, View().height() / kRowHeight);
}

QColor CaveList::TextColour(int number) const {
  const auto state = static_cast<std::size_t>(rows_[static_cast<std::size_t>(number - 1)].state);
  return number == selected_ ? selectedColours_[state] : colours_[state];
}

QRect CaveList::View() const {
  return rect().adjusted(borderSize_, borderSize_, -borderSize_, -borderSize_);
}

// The number of the cave in a place, 0 for none.
int CaveList::RowAt(QPoint place) const {
  if (!View().contains(place)) return 0;
  const int down = place.y() - View().top() - top_;
  const int number = down < 0 ? 0 : down / kRowHeight + 1;
  return number > static_cast<int>(rows_.size()) ? 0 : number;
}

void CaveList::DrawRow(QPainter& painter, int number) const {
  const Row& row = rows_[static_cast<std::size_t>(number - 1)];
  const QRect place(View().left(), View().top() + top_ + RowTop(number), View().width(), kRowHeight);
  if (number == selected_) {
    painter.fillRect(place, selectedGround_);
    painter.setPen(selectedColours_[static_cast<std::size_t>(CaveState::Open)]);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
  }
  painter.setPen(TextColour(number));
  const QRect line = place.adjusted(kPadding, 0, -kPadding, 0);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, Digits(number, 2));
  painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, Digits(row.score, 5));
  const QRect name = line.adjusted(kNumberWidth, 0, -kScoreWidth - (row.stored ? 0 : kRowHeight), 0);
  if (!row.stored) DrawMark(painter, line);
  painter.drawText(name, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(OneLine(row.name), Qt::ElideRight, name.width()));
}

// An exclamation mark on a plate of its own, for the skins' colours of a row are any.
void CaveList::DrawMark(QPainter& painter, const QRect& line) const {
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

void CaveList::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), border_);
  painter.fillRect(View(), ground_);
  painter.setClipRect(View());
  for (int number = 1; number <= static_cast<int>(rows_.size()); ++number) DrawRow(painter, number);
}

void CaveList::mousePressEvent(QMouseEvent* event) {
  event->accept();
  const int number = RowAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && number > 0) emit CaveClicked(number);
}

void CaveList::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
  const int number = RowAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && number > 0) emit CaveDoubleClicked(number);
}

void CaveList::wheelEvent(QWheelEvent* event) {
  wheel_ += event->angleDelta().y() * kRowsPerNotch;
  const int rows = wheel_ / kWheelStep;
  wheel_ -= rows * kWheelStep;
  if (rows != 0) Scroll(-rows);
  event->accept();
}

}  // namespace zorik
