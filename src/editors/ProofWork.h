#pragma once

#include <QObject>
#include <QTimer>
#include <atomic>
#include <memory>
#include <optional>
#include <string>

#include "screens/Background.h"
#include "solve/Rating.h"

namespace zorik {

// What takes long: the search for a way to win a cave, and the rating of a proof. One of them at a time, in
// the background; it can be given up at any moment.
class ProofWork : public QObject {
  Q_OBJECT

 public:
  enum class Kind { None, Solve, Rate };

  // How far it has come.
  struct Progress {
    std::uint64_t ticks = 0;  // of the search
    int gems = 0;             // the most that it has come to
    int tries = 0;            // of the rating
  };

  static constexpr int kTries = 20;  // other chances under which a plan is tried

  ProofWork();

  void Solve(const std::string& caveText, const std::string& collection);
  // record: one that wins this cave.
  void Rate(const std::string& caveText, const std::string& record);
  void GiveUp();

  Kind Doing() const { return background_.Busy() ? kind_ : Kind::None; }
  Progress Done() const;

 signals:
  void WentOn();
  // A win was found: the bytes of its record.
  void Solved(const std::string& record);
  // The cave can certainly not be won.
  void Impossible();
  // It cannot even be begun.
  void NotPlayable();
  void Rated(const zorik::Rating& rating);
  // The record does not win this cave.
  void NotRated();

 private:
  struct Shared {
    std::atomic<std::uint64_t> ticks = 0;
    std::atomic<int> gems = 0;
    std::atomic<int> tries = 0;
  };
  struct Answer {
    bool playable = false;
    std::string record;
    std::optional<Rating> rating;
  };
  using Flag = std::atomic<bool>;

  static void Look(const std::string& caveText, const std::string& collection, Shared& shared, Answer& answer,
                   const Flag& dropped);
  static void Weigh(const std::string& caveText, const std::string& record, Shared& shared, Answer& answer,
                    const Flag& dropped);
  void Begin(Kind kind, std::function<void(Shared&, Answer&, const Flag&)> work);
  void Finish(const Answer& answer);

  Kind kind_ = Kind::None;
  std::shared_ptr<Shared> shared_;
  QTimer tells_;
  Background background_;
};

}  // namespace zorik
