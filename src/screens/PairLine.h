#pragma once

#include <QColor>
#include <QWidget>
#include <array>
#include <optional>
#include <vector>

namespace zorik {

// The colours of two runs that are seen together.
inline constexpr std::array<QColor, 2> kPairColours{QColor(0xF2, 0xB8, 0x3C), QColor(0x5C, 0xB8, 0xF2)};

// The common time of two runs as a line: where the first differs from the second, and the moment that is
// seen, as a knob to be dragged. Above it each run's gems over time as a small curve.
class PairLine : public QWidget {
  Q_OBJECT

 public:
  explicit PairLine(QWidget* parent);

  // Both runs together take so many ticks; the ticks in which each took a gem.
  void SetRuns(int length, std::optional<int> difference, std::array<std::vector<int>, 2> gems);
  void ShowTick(int tick);

  // Where a tick lies on the line.
  int PlaceOf(int tick) const;
  int TickAt(int x) const;

  QSize sizeHint() const override;

 signals:
  void Sought(int tick);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QRect Line() const;
  void DrawCurve(QPainter& painter, std::size_t run) const;

  int length_ = 0;
  int tick_ = 0;
  std::optional<int> difference_;
  std::array<std::vector<int>, 2> gems_;
};

}  // namespace zorik
