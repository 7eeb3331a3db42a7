#include "editors/ProofOverlay.h"

#include <QPainter>
#include <QPen>
#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/Objects.h"

namespace zorik {
namespace {

// The dogs' ways, by their numbers.
constexpr std::array<QRgb, 9> kWays{0xFFFFD23F, 0xFF4FC3F7, 0xFFF06292, 0xFF81C784, 0xFFBA68C8,
                                    0xFFFF8A65, 0xFF90A4AE, 0xFFD4E157, 0xFFA1887F};
constexpr int kFaint = 170;  // of 255
constexpr QRgb kBroken = 0xFFFF3030;
constexpr QRgb kMissing = 0xFFFF9A20;
const QColor kVeil(20, 24, 60, 150);

QColor ColourOf(int unit) {
  const auto place = static_cast<std::size_t>(std::clamp(unit, 1, 9) - 1);
  return QColor::fromRgb(kWays[place]);
}

QPointF MiddleOf(Cell c, int cellSize) {
  return {(c.x() + 0.5) * cellSize, (c.y() + 0.5) * cellSize};
}

bool IsSteel(char letter) {
  const ObjectLetter* const object = FindLetter(letter);
  return object != nullptr && object->code == kSteel;
}

bool Beside(Cell a, Cell b) {
  return std::abs(a.x() - b.x()) + std::abs(a.y() - b.y()) <= 1;
}

}  // namespace

void ProofOverlay::SetVerdict(const ProofVerdict* verdict) {
  verdict_.reset();
  stretches_.clear();
  if (verdict == nullptr) return;
  verdict_ = *verdict;
  std::array<std::optional<std::size_t>, kUnits> last;
  for (const Footstep& step : verdict_->way) {
    auto& before = last[static_cast<std::size_t>(step.unit)];
    const std::size_t place = step.cell.place();
    if (before) stretches_.insert({step.unit, std::min(*before, place), std::max(*before, place)});
    before = place;
  }
}

std::optional<int> ProofOverlay::TickAt(QPoint cell) const {
  std::optional<int> first;
  if (!verdict_ || !way_) return first;
  for (const Footstep& step : verdict_->way) {
    if (QPoint(step.cell.x(), step.cell.y()) != cell) continue;
    const int tick = std::min(step.tick, verdict_->ticks - 1);
    if (tick > tick_) return tick;
    if (!first) first = tick;
  }
  return first;
}

void ProofOverlay::Paint(QPainter& painter, const QRect& cells, int cellSize) const {
  if (!verdict_) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (untouched_) PaintUntouched(painter, cells, cellSize);
  if (way_) PaintWay(painter, cells, cellSize);
  if (way_) PaintDogs(painter, cellSize);
  if (verdict_->missing) PaintFlaw(painter, *verdict_->missing, QColor::fromRgb(kMissing), cellSize);
  if (verdict_->flaw) PaintFlaw(painter, *verdict_->flaw, QColor::fromRgb(kBroken), cellSize);
  painter.restore();
}

// Steel is there to be left alone.
void ProofOverlay::PaintUntouched(QPainter& painter, const QRect& cells, int cellSize) const {
  for (int y = cells.top(); y <= cells.bottom(); ++y) {
    for (int x = cells.left(); x <= cells.right(); ++x) {
      if (!cave_.Inside(x, y) || IsSteel(cave_.At(x, y))) continue;
      const std::size_t place = Cell(x, y).place();
      if (place < verdict_->touched.size() && verdict_->touched[place]) continue;
      painter.fillRect(QRect(x * cellSize, y * cellSize, cellSize, cellSize), kVeil);
    }
  }
}

// Where a dog was carried from one cell to a far one, the way goes on there.
void ProofOverlay::PaintWay(QPainter& painter, const QRect& cells, int cellSize) const {
  for (const Stretch& stretch : stretches_) {
    const Cell from = Cell::AtPlace(stretch.from), to = Cell::AtPlace(stretch.to);
    const QRect around(QPoint(std::min(from.x(), to.x()) - 1, std::min(from.y(), to.y()) - 1),
                       QPoint(std::max(from.x(), to.x()) + 1, std::max(from.y(), to.y()) + 1));
    if (!around.intersects(cells)) continue;
    QColor colour = ColourOf(stretch.unit);
    colour.setAlpha(kFaint);
    const Qt::PenStyle line = Beside(from, to) ? Qt::SolidLine : Qt::DotLine;
    painter.setPen(QPen(colour, std::max(2.0, cellSize / 9.0), line, Qt::FlatCap));
    painter.drawLine(MiddleOf(from, cellSize), MiddleOf(to, cellSize));
  }
}

void ProofOverlay::PaintDogs(QPainter& painter, int cellSize) const {
  std::array<std::optional<Cell>, kUnits> places;
  for (const Footstep& step : verdict_->way) {
    if (step.tick <= tick_) places[static_cast<std::size_t>(step.unit)] = step.cell;
  }
  for (int n = 1; n < kUnits; ++n) {
    const auto& place = places[static_cast<std::size_t>(n)];
    if (!place) continue;
    painter.setPen(QPen(Qt::black, std::max(3.0, cellSize / 6.0)));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(MiddleOf(*place, cellSize), cellSize * 0.36, cellSize * 0.36);
    painter.setPen(QPen(ColourOf(n), std::max(1.5, cellSize / 11.0)));
    painter.drawEllipse(MiddleOf(*place, cellSize), cellSize * 0.36, cellSize * 0.36);
  }
}

// A frame, and the tick in a small plate above it, or below it in the first row.
void ProofOverlay::PaintFlaw(QPainter& painter, const ProofFlaw& flaw, const QColor& colour,
                             int cellSize) const {
  if (flaw.why == ProofBreak::NoCave) return;
  const QRectF cell(flaw.cell.x() * cellSize, flaw.cell.y() * cellSize, cellSize, cellSize);
  const double line = std::max(2.0, cellSize / 9.0);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::black, line + 2));
  painter.drawRect(cell);
  painter.setPen(QPen(colour, line));
  painter.drawRect(cell);
  QFont font = painter.font();
  font.setPixelSize(std::max(10, cellSize / 2));
  font.setBold(true);
  painter.setFont(font);
  const QString text = QString::number(flaw.tick);
  const QFontMetricsF metrics(font);
  const double width = metrics.horizontalAdvance(text) + 8;
  const double height = metrics.height() + 2;
  const double top = flaw.cell.y() > 0 ? cell.top() - height - line : cell.bottom() + line;
  const double most = cave_.Width() * cellSize - width;
  const QRectF plate(std::clamp(cell.center().x() - width / 2, 0.0, std::max(0.0, most)), top, width, height);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(plate, 3, 3);
  painter.setPen(Qt::white);
  painter.drawText(plate, Qt::AlignCenter, text);
}

}  // namespace zorik
