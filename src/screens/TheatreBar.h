#pragma once

#include <QString>
#include <array>
#include <vector>

#include "run/Timeline.h"
#include "screens/FloatingBar.h"

namespace zorik {

class BarButton;
class Skin;

// The bar of a record that plays: the whole run as a line on which its events are marks and the moment that
// is seen is a knob to be dragged; below that buttons, the clock and the tick of the moment, and the speed.
class TheatreBar : public FloatingBar {
  Q_OBJECT

 public:
  explicit TheatreBar(QWidget* parent);

  void SetWords(const Skin& skin);

  // A run of so many ticks.
  void SetRun(int length, std::vector<RunEvent> events);

  // The moment that is seen, and whether the run stands still there.
  void ShowMoment(int tick, bool stands);

  // The speed, as a number for people.
  void SetSpeed(const QString& speed);

  // The run is over: it can be had again. That takes the place of taking it over.
  void OfferAgain(bool offered);

  bool Dragging() const { return dragging_; }
  int Length() const { return length_; }
  int Tick() const { return tick_; }
  QString MomentText() const;
  const QString& SpeedText() const { return speed_; }

  // Where a tick lies on the line, and the line in the bar.
  int PlaceOf(int tick) const;
  QRect Line() const;

 signals:
  void Sought(int tick);  // by a press of the mouse or while the knob is dragged
  void Dropped();         // the knob has been let go
  void PlayClicked();
  void Stepped(int ticks);
  void SpeedClicked(int faster);  // 1 or -1
  void AgainClicked();
  void TakeOverClicked();

 protected:
  int NeededWidth() const override;
  void Arrange() override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  int TickAt(int x) const;
  void PlaceWide(BarButton& button, int right);
  void DrawLine(QPainter& painter) const;
  void DrawWords(QPainter& painter) const;

  int length_ = 0;
  std::vector<RunEvent> events_;
  int tick_ = 0;
  bool stands_ = false;
  bool dragging_ = false;
  QString speed_;
  QRect moment_;  // where the clock and the tick are written
  QRect number_;  // and the speed

  BarButton* back_;
  BarButton* play_;
  BarButton* forward_;
  BarButton* slower_;
  BarButton* faster_;
  BarButton* again_;
  BarButton* takeOver_;
};

}  // namespace zorik
