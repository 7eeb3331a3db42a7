#pragma once

#include <optional>

#include "run/Timeline.h"
#include "screens/BarCall.h"
#include "screens/RunControl.h"

namespace zorik {

class Skin;
class TheatreBar;

// A record that plays: it can stand still, go tick by tick and to any moment of the run, at a speed of its
// own for this once, and be taken over. Its bar comes when the mouse moves or one of its keys is pressed, and
// at the beginning of every record, and leaves by itself.
//
// Space: play, or stand still. Full stop and comma: a tick on or back; left and right: five seconds; Home,
// End. Up and down: faster, slower. Enter: take over. F7: what killed the
// last unit. W: the record as a page for a browser.
class Theatre : public RunControl {
  Q_OBJECT

 public:
  Theatre(HraWindow& window, Skin& skin, const Settings& settings);

  void Starts(bool again) override;
  void Stops() override;
  TickEnd Pass(const KeySnapshot& keys) override;
  bool Press(const QKeyEvent& event) override;
  int Interval() const override;
  void SpeedChosen() override;
  void RecordEnds() override;
  void Arrange() override;

  // The record that was played, once more at the speed of play.
  void PlayAgain();

  // The bytes of the record that plays; the end of its last line is left out.
  std::string RecordBytes() const;

  // The player takes over at a tick of the record.
  void TakeOverAt(int tick);

  // The run as far as it was played, of which the player takes over the moment that is seen.
  Timeline HandOver();

  const TheatreBar& Bar() const { return *bar_; }
  bool Stands() const { return stands_; }

 signals:
  void TakeOverWanted();

 protected:
  void CouldBeSaved(int tick) override;

 private:
  using Act = void (Theatre::*)();
  static Act ActOf(int key);

  void TogglePlay();
  void StepOn() { Step(1); }
  void StepBack() { Step(-1); }
  void SeekOn();
  void SeekBack();
  void ToStart();
  void ToEnd();
  void Faster() { ChangeSpeed(1); }
  void Slower() { ChangeSpeed(-1); }
  void TakeOver();
  void WhatKilledMe();
  void AsPage();

  int Position() const;
  void Step(int ticks);
  void Seek(int ticks);
  void SeekTo(int tick);
  void Stand(bool stands);
  void ChangeSpeed(int delta);
  double SpeedNow() const;
  int PlayInterval() const;
  void ShowBar();
  void ShowPosition();
  bool BarInUse() const;

  Skin& skin_;
  TheatreBar* bar_;
  std::optional<Timeline> timeline_;
  bool fresh_ = false;  // has not gone on yet: a dialog may stand before the record
  bool stands_ = false;
  bool over_ = false;            // the record has been played to its end
  std::optional<double> speed_;  // for this record, in speeds of play
  BarCall call_;
};

}  // namespace zorik
