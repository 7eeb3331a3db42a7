#include "editors/Palette.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "editors/ToolButtons.h"
#include "editors/ToolHint.h"
#include "screens/Hint.h"

namespace zorik {
namespace {

constexpr int kColumns = 17;
constexpr int kPlaces = static_cast<int>(kToolCount);
constexpr int kRows = (kPlaces + kColumns - 1) / kColumns;
constexpr int kGap = 3;
constexpr int kPitch = Palette::kTile + kGap;

// The number of the tile at a place, counted row by row, and the way back.
int NumberAt(int place) {
  return kTools[static_cast<std::size_t>(place)];
}
int PlaceOf(int palette) {
  return static_cast<int>(std::lower_bound(kTools.begin(), kTools.end(), palette) - kTools.begin());
}

constexpr int kFrame = 20;  // smaller than a tile, so that all three can be seen on the same one

}  // namespace

Palette::Palette(EditTiles& tiles, std::function<QString(int)> caption, QWidget* parent)
    : QWidget(parent), tiles_(tiles), caption_(std::move(caption)) {
  setObjectName("imgS");
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Palette::sizeHint() const {
  return {kColumns * kPitch + kGap, kRows * kPitch + kGap};
}

QRect Palette::TileRect(int palette) const {
  const int place = PlaceOf(palette);
  return {kGap + place % kColumns * kPitch, kGap + place / kColumns * kPitch, kTile, kTile};
}

// The left one lies in the upper left corner, the right one in the lower right, the middle one in the middle.
QRect Palette::FrameRect(ToolButton button) const {
  const int palette = Tool(button);
  if (palette < 0) return {};
  const QRect tile = TileRect(palette);
  QRect frame(QPoint(), QSize(kFrame, kFrame));
  if (button == ToolButton::Left) frame.moveTopLeft(tile.topLeft());
  if (button == ToolButton::Right) frame.moveBottomRight(tile.bottomRight());
  if (button == ToolButton::Middle)
    frame.moveTopLeft(tile.topLeft() + QPoint(1, 1) * ((kTile - frame.width()) / 2));
  return frame;
}

int Palette::PaletteAt(QPoint position) const {
  for (int place = 0; place < kPlaces; ++place) {
    if (TileRect(NumberAt(place)).contains(position)) return NumberAt(place);
  }
  return -1;
}

void Palette::SelectTool(ToolButton button, int palette) {
  int& tool = tools_[static_cast<std::size_t>(button)];
  if (tool == palette) return;
  tool = palette;
  update();
  emit ToolSelected();
}

void Palette::SetCurrentDog(int dog) {
  dog_ = dog;
  update();
}

// Painting

void Palette::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int size = qRound(kTile * devicePixelRatioF());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  for (int place = 0; place < kPlaces; ++place) {
    const int palette = NumberAt(place);
    painter.drawImage(TileRect(palette), tiles_.Tile(palette, dog_, size));
  }
  for (const ToolButton button : {ToolButton::Left, ToolButton::Right, ToolButton::Middle}) {
    if (Tool(button) >= 0) PaintFrame(painter, button);
  }
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(TileRect(NumberAt(cursor_)).adjusted(-1, -1, 1, 1));
}

void Palette::PaintFrame(QPainter& painter, ToolButton button) const {
  const QRect frame = FrameRect(button);
  painter.setPen(Qt::black);
  painter.drawRect(frame.adjusted(0, 0, -1, -1));
  painter.drawRect(frame.adjusted(3, 3, -4, -4));
  painter.setPen(QPen(ColourOfTool(button), 2));
  painter.drawRect(frame.adjusted(2, 2, -2, -2));
}

bool Palette::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const int palette = PaletteAt(help.pos());
  const bool none = palette < 0;
  ShowHint(help.globalPos(), none ? QString() : caption_(palette), *this, none ? QRect() : TileRect(palette));
  return true;
}

// Mouse and keys

void Palette::Click(ToolButton button, int palette) {
  if (palette < 0) return;
  cursor_ = PlaceOf(palette);
  update();
  SelectTool(button, palette);
}

void Palette::mousePressEvent(QMouseEvent* event) {
  if (const auto button = ToolOfButtons(event->button()))
    Click(*button, PaletteAt(event->position().toPoint()));
}

void Palette::mouseMoveEvent(QMouseEvent* event) {
  emit Pointed(PaletteAt(event->position().toPoint()));
}

void Palette::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  emit Pointed(-1);
}

void Palette::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
      MoveCursor(event->key());
      break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Click(ToolOfModifiers(event->modifiers()), NumberAt(cursor_));
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void Palette::MoveCursor(int key) {
  int place = cursor_;
  if (key == Qt::Key_Left) --place;
  if (key == Qt::Key_Right) ++place;
  if (key == Qt::Key_Up) place -= kColumns;
  if (key == Qt::Key_Down) place += kColumns;
  if (key == Qt::Key_Home) place = 0;
  if (key == Qt::Key_End) place = kPlaces - 1;
  if (place < 0 || place >= kPlaces) return;
  cursor_ = place;
  update();
  emit Pointed(NumberAt(cursor_));
}

void Palette::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  emit Pointed(NumberAt(cursor_));
}

void Palette::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  emit Pointed(-1);
}

}  // namespace zorik
