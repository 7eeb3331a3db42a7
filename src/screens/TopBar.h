#pragma once

#include <QImage>
#include <QWidget>

#include "screens/GameLayout.h"
#include "skin/DogStrip.h"

namespace zorik {

class BarButton;
class KeyMap;
class Skin;

// The bar above the play picture: the clock, the gems collected and needed, the value of a gem; the strip of
// units; the buttons.
class TopBar : public QWidget {
  Q_OBJECT

 public:
  explicit TopBar(QWidget* parent);

  void SetPictures(const QImage& border1, const QImage& restart, const QImage& settings, const QImage& leave);

  // What the buttons say under the pointer.
  void SetTips(const Skin& skin, const KeyMap& keys);

  // What the button that begins anew says beside that; nothing for an empty text.
  void AddToRestartTip(const QString& more);

  void SetFigure(LabelId label, int value);
  void SetClock(int seconds);
  void SetGems(int collected);
  void SetNeeded(int needed);
  void SetValue(int points);

  // Label1 shows in a replay and a test run, and tells whether the view scrolls.
  void ShowLabel1(bool visible);
  void SetScrollView(bool scrolls);

  // The button that leaves the cave.
  void ShowLeave(bool visible);

  // Nothing but the restart can help: its button pulses.
  void PulseRestart(bool pulses);
  bool RestartPulses() const;

  // The strip for units 0 to dogCount in a hue of 0 to 359 degrees; all slots are empty at first.
  void ShowUnits(int dogCount, int hue);
  void HideUnits();
  // Unit n: 0 steered, 1 waiting, 2 dead.
  void DrawDogN(int n, int state);

  QString ClockText() const;
  QString GemsText() const;
  QString ValueText() const;
  bool UnitsShown() const { return units_; }
  const DogStrip& Units() const { return psi_; }
  const TopBarLayout& Places() const { return layout_; }

 signals:
  void RestartClicked();
  void SettingsClicked();
  void ViewClicked();
  void LeaveClicked();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Arrange();
  void Change(int& number, int value, const QRect& place);
  void DrawGround(QPainter& painter);
  void DrawFigures(QPainter& painter, const QRegion& part) const;
  void DrawUnits(QPainter& painter) const;

  QImage border1_;
  QImage ground_;  // all that lies below figures and buttons, as it is on the screen; empty until it is drawn
  TopBarLayout layout_;
  DogStrip psi_;
  QString restartTip_;
  QString moreOfRestart_;
  bool units_ = false;
  int clock_ = 0;
  int gems_ = 0;
  int needed_ = 0;
  int value_ = 0;
  BarButton* picRestart_;
  BarButton* settings_;
  BarButton* view_;
  BarButton* leave_;
};

}  // namespace zorik
