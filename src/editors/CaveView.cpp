#include "editors/CaveView.h"

#include <QApplication>
#include <QGridLayout>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/UserStore.h"

namespace zorik {
namespace {

// All even, since the scroll bars step by half a cell.
constexpr std::array<int, 8> kCellSizes{14, 20, EditKom::kCell, 32, 40, 52, 78, 104};
constexpr int kWheelStep = 120;  // units of the wheel
constexpr int kLeastSize = 4;    // to see a whole cave
constexpr const char* kCellSize = "Editors/CellSize";
constexpr const char* kGrid = "Editors/Grid";

std::size_t PlaceOf(int cell) {
  const auto* const place = std::find(kCellSizes.begin(), kCellSizes.end(), cell);
  return static_cast<std::size_t>(place - kCellSizes.begin());
}

// The size that is so many places after a size, which may lie between two places.
int SizeAfter(int cell, int steps) {
  if (cell < kCellSizes.front() && steps < 0) return cell;
  const auto* const place = steps > 0 ? std::upper_bound(kCellSizes.begin(), kCellSizes.end(), cell)
                                      : std::lower_bound(kCellSizes.begin(), kCellSizes.end(), cell);
  const int wanted = static_cast<int>(place - kCellSizes.begin()) + (steps > 0 ? steps - 1 : steps);
  const int last = static_cast<int>(kCellSizes.size()) - 1;
  return kCellSizes[static_cast<std::size_t>(std::clamp(wanted, 0, last))];
}

// Steps to scroll through so many pixels, the last one perhaps a shorter one.
int StepsThrough(int pixels, int step) {
  return std::max(0, (pixels + step - 1) / step);
}

int Offset(const QScrollBar& bar, int step, int whole, int seen) {
  return std::max(0, std::min(bar.value() * step, whole - seen));
}

}  // namespace

CaveView::CaveView(const CaveModel& cave, EditTiles& tiles, QWidget* parent)
    : QWidget(parent),
      ram_(new QWidget(this)),
      edit_(new EditKom(cave, tiles, ram_)),
      hScroll_(new QScrollBar(Qt::Horizontal, this)),
      vScroll_(new QScrollBar(Qt::Vertical, this)),
      pan_(*edit_, *hScroll_, *vScroll_),
      autoScroll_(*edit_, *hScroll_, *vScroll_, nullptr) {
  ram_->setObjectName("Ram");
  ram_->setMinimumSize(kLeastColumns * EditKom::kCell, kLeastRows * EditKom::kCell);
  ram_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  ram_->setAutoFillBackground(true);
  ram_->setBackgroundRole(QPalette::Dark);
  ram_->installEventFilter(this);
  edit_->installEventFilter(this);
  hScroll_->setObjectName("HScroll1");
  vScroll_->setObjectName("VScroll1");
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(ram_, 0, 0);
  grid->addWidget(vScroll_, 0, 1);
  grid->addWidget(hScroll_, 1, 0);
  for (QScrollBar* const bar : {hScroll_, vScroll_}) {
    bar->setFocusPolicy(Qt::NoFocus);
    connect(bar, &QScrollBar::valueChanged, this, &CaveView::MovePicture);
  }
  connect(edit_, &EditKom::LedByKeys, this, &CaveView::Show);
  edit_->Marks().grid = ZorikStore().value(kGrid).toBool();
  const int stored = ZorikStore().value(kCellSize).toInt();
  if (PlaceOf(stored) < kCellSizes.size()) edit_->SetCellSize(stored);
}

QSize CaveView::sizeHint() const {
  const QSize bars(vScroll_->sizeHint().width(), hScroll_->sizeHint().height());
  return QSize(kColumns, kRows) * EditKom::kCell + bars;
}

void CaveView::TakeSize() {
  edit_->SetRozm();
  SetRanges();
  MovePicture();
}

void CaveView::SetRozm() {
  TakeSize();
  SetPlace({0, 0});
}

void CaveView::SetRanges() {
  const int step = edit_->CellSize() / 2;
  hScroll_->setRange(0, StepsThrough(edit_->width() - ram_->width(), step));
  vScroll_->setRange(0, StepsThrough(edit_->height() - ram_->height(), step));
  hScroll_->setPageStep(std::max(1, ram_->width() / step));
  vScroll_->setPageStep(std::max(1, ram_->height() / step));
}

void CaveView::MovePicture() {
  const int step = edit_->CellSize() / 2;
  edit_->move(-Offset(*hScroll_, step, edit_->width(), ram_->width()),
              -Offset(*vScroll_, step, edit_->height(), ram_->height()));
}

// Scrolls no further than a cell needs to be seen.
void CaveView::Show(QPoint cell) {
  const int size = edit_->CellSize();
  const int step = size / 2;
  const auto show = [size, step](QScrollBar& bar, int at, int seen) {
    const int first = std::min(bar.value(), at * size / step);
    bar.setValue(std::max(first, StepsThrough((at + 1) * size - seen, step)));
  };
  show(*hScroll_, cell.x(), ram_->width());
  show(*vScroll_, cell.y(), ram_->height());
}

// Zoom

void CaveView::SetCellSize(int cell, QPoint around) {
  const int before = edit_->CellSize();
  if (cell == before) return;
  const QPoint seen = around + edit_->pos();  // keeps its place in the window
  edit_->SetCellSize(cell);
  SetRanges();
  const auto value = [cell, before](int at, int place) {
    return qRound((static_cast<double>(at) * cell / before - place) / (cell / 2.0));
  };
  hScroll_->setValue(value(around.x(), seen.x()));
  vScroll_->setValue(value(around.y(), seen.y()));
  MovePicture();
  emit Zoomed();
}

void CaveView::Zoom(int steps, QPoint around) {
  const int cell = SizeAfter(edit_->CellSize(), steps);
  SetCellSize(cell, around);
  ZorikStore().setValue(kCellSize, cell);
}

QPoint CaveView::Middle() const {
  return ram_->rect().center() - edit_->pos();
}

void CaveView::Zoom(int steps) {
  Zoom(steps, Middle());
}

void CaveView::ZoomUsual() {
  SetCellSize(EditKom::kCell, Middle());
  ZorikStore().setValue(kCellSize, EditKom::kCell);
}

void CaveView::ZoomToWhole() {
  const QSize cave = edit_->CaveSize();
  const int fits = std::min(ram_->width() / cave.width(), ram_->height() / cave.height());
  SetCellSize(std::clamp(fits / 2 * 2, kLeastSize, kCellSizes.back()), Middle());
}

QPoint CaveView::Place() const {
  return {hScroll_->value(), vScroll_->value()};
}

void CaveView::SetPlace(QPoint place) {
  hScroll_->setValue(place.x());
  vScroll_->setValue(place.y());
}

void CaveView::SetGrid(bool grid) {
  edit_->Marks().grid = grid;
  edit_->update();
  ZorikStore().setValue(kGrid, grid);
}

void CaveView::Wheel(QWheelEvent& event) {
  if (!(event.modifiers() & Qt::ControlModifier)) {
    const bool across = (event.modifiers() & Qt::ShiftModifier) || event.angleDelta().y() == 0;
    QApplication::sendEvent(across ? hScroll_ : vScroll_, &event);
    return;
  }
  wheel_ += event.angleDelta().y();
  const int steps = wheel_ / kWheelStep;
  wheel_ %= kWheelStep;
  if (steps != 0) Zoom(steps, edit_->mapFromGlobal(event.globalPosition()).toPoint());
}

// The mouse on the picture, before the picture itself hears of it.
bool CaveView::Pans(QEvent& event) {
  if (event.type() == QEvent::MouseMove) {
    const auto& mouse = static_cast<QMouseEvent&>(event);
    if (pan_.Move(mouse)) return true;
    autoScroll_.Follow(mouse.position().toPoint());
  }
  if (event.type() == QEvent::MouseButtonPress) return pan_.Press(static_cast<QMouseEvent&>(event));
  if (event.type() == QEvent::MouseButtonRelease) return pan_.Release(static_cast<QMouseEvent&>(event));
  return false;
}

bool CaveView::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    Wheel(static_cast<QWheelEvent&>(*event));
    return true;
  }
  if (object == edit_ && Pans(*event)) return true;
  if (object == ram_ && event->type() == QEvent::Resize) {
    SetRanges();
    MovePicture();
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace zorik
