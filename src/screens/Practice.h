#pragma once

#include <QTimer>
#include <optional>

#include "run/Timeline.h"
#include "screens/BarCall.h"
#include "screens/LossFinder.h"
#include "screens/PracticeKeys.h"
#include "screens/RunControl.h"
#include "screens/WayHint.h"
#include "screens/WayWatch.h"

namespace zorik {

class PracticeBadge;
class PracticeBar;
class Skin;

// A run in practice: time can be turned back and slowed down, and nothing of it is recorded, as a badge says.
// A light on that tells whether a way to win is known, which is looked for in the background all the while.
// Its bar comes when the mouse moves, and leaves by itself.
//
// With the keys of the beginning: Backspace, as long as it is held: back in time. F5: a mark, F8: back to it.
// F6: slower, slower still, and as fast as play again. F7: what killed the last unit. H: time stands still
// and the next steps of a way that wins are seen, or, as long as it is held, all of it. Enter, when it is
// won: the same in earnest.
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
  void KeysChosen() override;
  void LayOver(Overlay& overlay, CavePainter& painter) const override;

  // A record has been taken over at the end of this.
  void Continue(Timeline past);

  // Time stands still until the player presses a key, and is told so.
  void WaitForKey();

  const PracticeBadge& Badge() const { return *badge_; }
  const PracticeBar& Bar() const { return *bar_; }
  const WayHint& Hint() const { return hint_; }
  bool Waits() const { return waits_; }

 signals:
  // The cave is to be played in earnest.
  void EarnestWanted();

 protected:
  void CouldBeSaved(int tick) override;

 private:
  // A moment to come back to, with the run that led there: what was played since may have been undone.
  struct Mark {
    Timeline run;
    int tick;
  };

  void Begin(Timeline past);
  void OpenBar();
  void CallBar(int milliseconds);
  bool BarInUse() const;
  void Act(PracticeAct act);
  void LetGo(PracticeAct act);
  void LetGoNow();
  TickEnd GoOn(const KeySnapshot& keys);
  void ComeTo(int tick, bool jump = true);
  void GoBack();
  void StartBack();
  void StopBack();
  void SetMark();
  void ToMark();
  void SlowDown();
  void InEarnest();
  void Wait(bool waits);
  bool PadActs(const KeySnapshot& keys);

  // The ways that win
  void ShowWay();
  void SeeWay(const Plan& way);
  void LetGoOfWay();
  void WayAnswered();
  void ShowLastWay();
  void TellOfLoss();
  std::optional<Prospect> Light() const;

  void TellOfLast();
  void TellOfEnd();
  bool Won() const;
  bool MayBeEarnest() const;
  QString BadgeText() const;
  QString Named(const StartWords& words, PracticeAct one, PracticeAct two) const;
  void Refresh();
  void Say(const QString& text, bool stays = false);

  const Skin& skin_;
  PracticeBadge* badge_;
  PracticeBar* bar_;
  BarCall call_;
  std::optional<Timeline> timeline_;
  std::optional<Mark> mark_;
  bool goesBack_ = false;
  bool waits_ = false;     // for the next key of the machine
  bool padActed_ = false;  // when it was looked at last
  int backFor_ = 0;        // times since it began
  int slowness_ = 0;

  WayWatch watch_;
  LossFinder loss_;  // once nothing is left that helps
  WayHint hint_;
  QTimer long_;             // until the key of the way has been held for long
  bool wayHeld_ = false;    // that key
  bool wayWanted_ = false;  // as soon as it is known
  bool ended_ = false;      // and told so
  QTimer reads_;            // until that has been read

  std::optional<PracticeAct> letGo_;  // just now, by its key
  QTimer atOnce_;                     // until that counts
};

}  // namespace zorik
