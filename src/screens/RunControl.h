#pragma once

#include <QObject>
#include <QRect>
#include <memory>

#include "core/Hra.h"
#include "platform/Settings.h"

class QKeyEvent;

namespace zorik {

class CavePainter;
class HraWindow;
class Skin;
struct Overlay;
class Timeline;
class WhatKilled;

// What stands between the timer of the game window and the machine: how a run goes on, how fast, and which
// keys it has beside those of the machine. This one is for play and for a test, where each time is a tick.
class RunControl : public QObject {
  Q_OBJECT

 public:
  // Both live longer.
  RunControl(HraWindow& window, const Settings& settings);
  ~RunControl() override;

  // The run has been started; it is the same again after its restart.
  virtual void Starts(bool /*again*/) {}

  // It is left, or has come to an end; what is shown of it beside the cave goes.
  virtual void Stops() { ForgetQuestion(); }

  // Its time has come.
  virtual TickEnd Pass(const KeySnapshot& keys);

  // Whether a key is its own, and has been used.
  virtual bool Press(const QKeyEvent& /*event*/) { return false; }
  virtual bool Release(const QKeyEvent& /*event*/) { return false; }

  // All keys are let go.
  virtual void ReleaseKeys() {}

  // The milliseconds that are wanted between two times.
  virtual int Interval() const;

  // The player has chosen another speed.
  virtual void SpeedChosen() {}

  // The record has ended short of the finish.
  virtual void RecordEnds() {}

  // The window has another size.
  virtual void Arrange() {}

  // The player may have chosen other keys.
  virtual void KeysChosen() {}

  // Lays over the picture of the run what is its own.
  virtual void LayOver(Overlay& /*overlay*/, CavePainter& /*painter*/) const {}

 protected:
  void ForgetQuestion();

  // Where a bar over the bottom of the cave finds room.
  QRect BarFrame() const;

  // The keys that all runs have, in a run that stands still.
  TickEnd StandStill(const KeySnapshot& keys);

  // Brings the machine to a moment of the run, and shows it. All is silent then.
  void MoveTo(const Timeline& timeline, int tick, bool jump = true);

  // What has killed the last unit: looks for the moment at which another key would have saved it.
  void AskWhatKilled(const Timeline& timeline, const Skin& skin);

  // Such a moment has been found.
  virtual void CouldBeSaved(int /*tick*/) {}

  // Nothing sounds until the run goes on; then what goes on and on is heard again.
  void Hush();
  void SoundAgain();

  HraWindow& window_;
  const Settings& settings_;

 private:
  bool hushed_ = false;
  std::unique_ptr<WhatKilled> whatKilled_;  // once it has been asked
};

}  // namespace zorik
