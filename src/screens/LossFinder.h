#pragma once

#include <QObject>
#include <optional>

#include "run/Outlook.h"
#include "run/Timeline.h"
#include "screens/Background.h"

namespace zorik {

// What became of the ways to win a run.
struct Loss {
  int knownUntil = -1;  // the last tick from which a way was found, -1 for none
  int lostFrom = 0;     // the first tick for which it was looked for in vain, and not only its followers
  Plan way;             // from the last that is known
};

// Looks in the background for the tick of a lost run in practice from which no way was found any more: for
// five seconds at most from one moment, and half a minute in all.
class LossFinder : public QObject {
  Q_OBJECT

 public:
  static constexpr int kLongest = 5000;  // milliseconds of a question
  static constexpr int kLongestInAll = 30'000;

  explicit LossFinder(int longest = kLongest, int longestInAll = kLongestInAll)
      : longest_(longest), longestInAll_(longestInAll) {}

  // Asks about all of the run; an older question is dropped.
  void Ask(const Timeline& run);

  // Nothing is found, nothing asked.
  void Forget();

  bool Asking() const { return background_.Busy(); }

  // Once it has been answered.
  const std::optional<Loss>& Found() const { return found_; }

 signals:
  void Answered();

 private:
  static Loss Look(const Timeline& run, int longest, int longestInAll, const std::atomic<bool>& dropped);

  int longest_;
  int longestInAll_;
  std::optional<Loss> found_;
  Background background_;
};

}  // namespace zorik
