#pragma once

#include <optional>

#include "run/Timeline.h"
#include "screens/RunControl.h"

namespace zorik {

class PracticeBadge;
class Skin;

// A run in practice: time can be turned back and slowed down, and nothing of it is recorded, as a badge says.
//
// With the keys of the beginning: Backspace, as long as it is held: back in time. F5: a mark, F8: back to it.
// F6: slower, slower still, and as fast as play again. Whatever the player's keys are, F7: what killed the
// last unit; Enter, when it is won: the same in earnest.
class Practice : public RunControl {
  Q_OBJECT

 public:
  Practice(HraWindow& window, const Skin& skin, const Settings& settings);

  void Starts(bool again) override;
  void Stops() override;
  TickEnd Pass(const KeySnapshot& keys) override;
  bool Press(const QKeyEvent& event) override;
  bool Release(const QKeyEvent& event) override;
  void ReleaseKeys() override;
  int Interval() const override;
  void Arrange() override;

  // A record has been taken over at the end of this.
  void Continue(Timeline past);

  const PracticeBadge& Badge() const { return *badge_; }

 signals:
  // The cave is to be played in earnest.
  void EarnestWanted();

 protected:
  void CouldBeSaved(int tick) override;

 private:
  using Act = void (Practice::*)();
  Act ActOf(const QKeyEvent& event) const;

  // A moment to come back to, with the run that led there: what was played since may have been undone.
  struct Mark {
    Timeline run;
    int tick;
  };

  void Begin();
  void OpenBadge();
  TickEnd GoOn(const KeySnapshot& keys);
  void GoBack();
  void StartBack();
  void StopBack();
  void SetMark();
  void ToMark();
  void SlowDown();
  void InEarnest();
  void WhatKilledMe();
  void Wait(bool waits);
  void TellOfLast();
  bool Won() const;
  bool MayBeEarnest() const;
  QString BadgeText() const;
  void Say(const QString& text, bool stays = false);

  const Skin& skin_;
  PracticeBadge* badge_;
  std::optional<Timeline> timeline_;
  std::optional<Mark> mark_;
  bool goesBack_ = false;
  bool waits_ = false;  // for the next key of the machine
  int backFor_ = 0;     // times since it began
  int slowness_ = 0;
};

}  // namespace zorik
