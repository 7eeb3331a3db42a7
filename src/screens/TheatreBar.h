#pragma once

#include <QString>
#include <vector>

#include "run/Timeline.h"
#include "screens/FloatingBar.h"

namespace zorik {

class BarButton;
class Skin;
class SeekLine;

// The bar of a record that plays: the whole run as a line on which its events are marks and the moment that
// is seen is a knob to be dragged; below that buttons, the clock and the tick of the moment, and the speed.
class TheatreBar : public FloatingBar {
  Q_OBJECT

 public:
  explicit TheatreBar(QWidget* parent);

  void SetWords(const Skin& skin);

  // A run of so many ticks.
  void SetRun(int length, const std::vector<RunEvent>& events);

  // The moment that is seen, and whether the run stands still there.
  void ShowMoment(int tick, bool stands);

  // The speed, as a number for people.
  void SetSpeed(const QString& speed);

  // The run is over: it can be had again. That takes the place of taking it over.
  void OfferAgain(bool offered);

  SeekLine& Line() const { return *line_; }
  QString MomentText() const;
  const QString& SpeedText() const { return speed_; }

 signals:
  void PlayClicked();
  void Stepped(int ticks);
  void SpeedClicked(int faster);  // 1 or -1
  void PageClicked();
  void AgainClicked();
  void TakeOverClicked();

 protected:
  int NeededWidth() const override;
  void Arrange() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PlaceWide(BarButton& button, int right);
  void DrawWords(QPainter& painter) const;
  void DrawSigns();

  bool stands_ = false;
  bool signsDrawn_ = false;
  QString speed_;
  QRect moment_;  // where the clock and the tick are written
  QRect number_;  // and the speed

  SeekLine* line_;
  BarButton* back_;
  BarButton* play_;
  BarButton* forward_;
  BarButton* slower_;
  BarButton* faster_;
  BarButton* page_;
  BarButton* again_;
  BarButton* takeOver_;
};

}  // namespace zorik
