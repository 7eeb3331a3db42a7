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
constexpr const char* kCellSize = "Editors/CellSize";

std::size_t PlaceOf(int cell) {
  const auto* const place = std::find(kCellSizes.begin(), kCellSizes.end(), cell);
  return static_cast<std::size_t>(place - kCellSizes.begin());
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
      vScroll_(new QScrollBar(Qt::Vertical, this)) {
  ram_->setObjectName("Ram");
  ram_->setMinimumSize(kColumns * EditKom::kCell, kRows * EditKom::kCell);
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
  const int stored = ZorikStore().value(kCellSize).toInt();
  if (PlaceOf(stored) < kCellSizes.size()) edit_->SetCellSize(stored);
}

void CaveView::SetRozm() {
  edit_->SetRozm();
  SetRanges();
  hScroll_->setValue(0);
  vScroll_->setValue(0);
  MovePicture();
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
  ZorikStore().setValue(kCellSize, cell);
  emit Zoomed();
}

void CaveView::Zoom(int steps, QPoint around) {
  const int last = static_cast<int>(kCellSizes.size()) - 1;
  const int place = std::clamp(static_cast<int>(PlaceOf(edit_->CellSize())) + steps, 0, last);
  SetCellSize(kCellSizes[static_cast<std::size_t>(place)], around);
}

void CaveView::Zoom(int steps) {
  Zoom(steps, ram_->rect().center() - edit_->pos());
}

void CaveView::ZoomUsual() {
  SetCellSize(EditKom::kCell, ram_->rect().center() - edit_->pos());
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

bool CaveView::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    Wheel(static_cast<QWheelEvent&>(*event));
    return true;
  }
  if (object == ram_ && event->type() == QEvent::Resize) {
    SetRanges();
    MovePicture();
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace zorik
