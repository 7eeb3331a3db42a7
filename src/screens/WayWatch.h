#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <limits>

#include "run/Timeline.h"
#include "screens/WayFinder.h"

namespace zorik {

// Can a run in practice still be won? Asks about its moments while it goes on, and remembers: who can win at
// some tick could do so at all before, and a run that is lost stays lost.
class WayWatch : public QObject {
  Q_OBJECT

 public:
  explicit WayWatch(int longest = WayFinder::kLongest);

  // Nothing is known and nothing asked: it is another run.
  void Forget();

  // The run has gone one tick on, whatever lay ahead of it before. Asks now and then.
  void WentOn(const Hra& run);

  // Asks about the run as it is, at once. past: all of it that is known, which may go on.
  void Ask(const Hra& run, const Timeline& past);

  // A way was found elsewhere.
  void Know(int tick, Plan way);

  // Whether a way is known from a tick of the run, as far as it has come.
  Prospect At(int tick) const;

  // The way that begins at the tick, if there is one.
  const Plan* WayFrom(int tick) const;

  bool Asking() const { return finder_.Asking(); }

 signals:
  void Answered();

 private:
  static constexpr int kNever = std::numeric_limits<int>::max();

  void AskAbout(const Hra& run, Plan tryFirst);
  void TakeAnswer();
  bool IsDue(int tick) const;

  WayFinder finder_;
  int asked_ = -1;     // the tick, last
  int known_ = -1;     // until this tick
  int none_ = -1;      // was found from this tick, the last of that kind
  int lost_ = kNever;  // from this tick on
  int from_ = -1;      // here begins the way
  Plan way_;
  QElapsedTimer answered_;
};

}  // namespace zorik
