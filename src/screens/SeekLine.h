#pragma once

#include <QColor>
#include <QWidget>
#include <vector>

namespace zorik {

// The time of a run, or of several that are seen together, as a line: with marks on it and the moment that is
// seen as a knob to be dragged. Above the line, where there is room, stand curves of what was counted.
class SeekLine : public QWidget {
  Q_OBJECT

 public:
  struct Mark {
    static constexpr int kThrough = 0;  // as high as all of the line and its curves

    int tick = 0;
    QRgb colour = 0;
    int height = kThrough;  // in the desktop's units
  };

  // A step up in each of these ticks.
  struct Curve {
    QColor colour;
    std::vector<int> ticks;
  };

  // The height of the line without curves, and the least one with them.
  static constexpr int kHeight = 28;
  static constexpr int kHeightWithCurves = 66;

  explicit SeekLine(QWidget* parent);

  // So many ticks. Later marks lie over earlier ones.
  void SetRun(int length, std::vector<Mark> marks, std::vector<Curve> curves = {});
  void ShowTick(int tick);

  // Below 1 all is drawn smaller.
  void SetScale(qreal scale);

  bool Dragging() const { return dragging_; }
  int Length() const { return length_; }
  int Tick() const { return tick_; }

  // Where a tick lies on the line.
  int PlaceOf(int tick) const;
  QRect Rail() const;

 signals:
  void Sought(int tick);  // by a press of the mouse or while the knob is dragged
  void Dropped();         // the knob has been let go

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  int Scaled(int units) const;
  int TickAt(int x) const;
  void DrawRail(QPainter& painter) const;
  void DrawMarks(QPainter& painter) const;
  void DrawCurve(QPainter& painter, const Curve& curve) const;
  void DrawKnob(QPainter& painter) const;

  int length_ = 0;
  int tick_ = 0;
  bool dragging_ = false;
  qreal scale_ = 1;
  std::vector<Mark> marks_;
  std::vector<Curve> curves_;
};

}  // namespace zorik
