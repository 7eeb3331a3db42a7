#pragma once

#include <QObject>
#include <memory>

#include "run/Outlook.h"
#include "screens/Background.h"

namespace zorik {

// Can it still be won? Looks in the background for a way from the moment of a run that it was asked about
// last, for five seconds at most. What it has found holds until the next question is answered.
class WayFinder : public QObject {
  Q_OBJECT

 public:
  static constexpr int kLongest = 5000;  // milliseconds of a question

  explicit WayFinder(QObject* parent = nullptr, int longest = kLongest)
      : QObject(parent), longest_(longest) {}

  // Asks about the run as it is now; an older question that is not answered yet is dropped. tryFirst: a way
  // that may well lead there; without one it is what is left of the last one.
  void Ask(const Hra& run, Plan tryFirst = {});

  // The question is not to be answered any more.
  void Drop() { background_.Drop(); }

  // Another run: nothing is known, nothing asked.
  void Forget();

  bool Asking() const { return background_.Busy(); }
  Prospect Answer() const { return answer_; }

  // When a way is known: the tick of the run from which it leads, and its moves.
  int WayFrom() const { return from_; }
  const Plan& Way() const { return way_; }

 signals:
  void Answered();

 private:
  struct Question {
    std::unique_ptr<Hra> run;
    Plan tryFirst;
    Prospect answer = Prospect::NoneYet;
    Plan way;
  };

  static void Look(Question& question, int longest, const std::atomic<bool>& dropped);
  void Take(Question& question);

  int longest_;
  Prospect answer_ = Prospect::NoneYet;
  int from_ = 0;
  Plan way_;
  Background background_;
};

}  // namespace zorik
