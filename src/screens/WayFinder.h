#pragma once

#include <QObject>
#include <QThreadPool>
#include <atomic>
#include <memory>

#include "run/Outlook.h"

namespace zorik {

// Can it still be won? Looks in the background for a way from the moment of a run that it was asked about
// last, for five seconds at most. What it has found holds until the next question is answered.
class WayFinder : public QObject {
  Q_OBJECT

 public:
  static constexpr int kLongest = 5000;  // milliseconds of a question

  explicit WayFinder(QObject* parent = nullptr, int longest = kLongest);
  ~WayFinder() override;

  // Asks about the run as it is now; an older question that is not answered yet is dropped.
  void Ask(const Hra& run);

  // Another run: nothing is known, nothing asked.
  void Forget();

  bool Asking() const { return question_ != nullptr; }
  Prospect Answer() const { return answer_; }

  // When a way is known: the tick of the run from which it leads, and its moves.
  int WayFrom() const { return from_; }
  const Plan& Way() const { return way_; }

 signals:
  void Answered();

 private:
  struct Question {
    std::atomic<bool> dropped{false};
    std::unique_ptr<Hra> run;
    Plan tryFirst;
    Prospect answer = Prospect::NoneYet;
    Plan way;
  };

  void Drop();
  void Look(Question& question) const;
  void Take(const std::shared_ptr<Question>& question);

  int longest_;
  QThreadPool pool_;
  std::shared_ptr<Question> question_;
  Prospect answer_ = Prospect::NoneYet;
  int from_ = 0;
  Plan way_;
};

}  // namespace zorik
