#include "editors/ProofWork.h"

#include <QElapsedTimer>
#include <memory>
#include <utility>

#include "data/CaveO.h"
#include "data/Result.h"
#include "solve/Impossible.h"
#include "solve/Odds.h"
#include "solve/Shorten.h"
#include "solve/Solver.h"
#include "solve/Win.h"

namespace zorik {
namespace {

constexpr std::uint64_t kSlice = 2'000;  // ticks between two looks whether the search is still wanted
constexpr std::size_t kMostBytes = std::size_t{256} << 20U;
constexpr int kShortening = 2'000;  // milliseconds
constexpr int kTell = 200;          // milliseconds between two words about the progress
constexpr std::uint64_t kFirstSeed = 1'001;

}  // namespace

ProofWork::ProofWork() {
  tells_.setInterval(kTell);
  connect(&tells_, &QTimer::timeout, this, &ProofWork::WentOn);
}

void ProofWork::Solve(const std::string& caveText, const std::string& collection) {
  Begin(Kind::Solve, [caveText, collection](Shared& shared, Answer& answer, const Flag& dropped) {
    Look(caveText, collection, shared, answer, dropped);
  });
}

void ProofWork::Rate(const std::string& caveText, const std::string& record) {
  Begin(Kind::Rate, [caveText, record](Shared& shared, Answer& answer, const Flag& dropped) {
    Weigh(caveText, record, shared, answer, dropped);
  });
}

void ProofWork::Begin(Kind kind, std::function<void(Shared&, Answer&, const Flag&)> work) {
  kind_ = kind;
  shared_ = std::make_shared<Shared>();
  const auto answer = std::make_shared<Answer>();
  background_.Start([shared = shared_, answer,
                     work = std::move(work)](const Flag& dropped) { work(*shared, *answer, dropped); },
                    [this, answer] { Finish(*answer); });
  tells_.start();
  emit WentOn();
}

void ProofWork::GiveUp() {
  background_.Drop();
  tells_.stop();
  emit WentOn();
}

ProofWork::Progress ProofWork::Done() const {
  if (!shared_) return {};
  return {shared_->ticks, shared_->gems, shared_->tries};
}

void ProofWork::Finish(const Answer& answer) {
  tells_.stop();
  emit WentOn();
  if (kind_ == Kind::Solve && !answer.playable) {
    emit NotPlayable();
  } else if (kind_ == Kind::Solve && answer.record.empty()) {
    emit Impossible();
  } else if (kind_ == Kind::Solve) {
    emit Solved(answer.record);
  } else if (answer.rating) {
    emit Rated(*answer.rating);
  } else {
    emit NotRated();
  }
}

void ProofWork::Look(const std::string& caveText, const std::string& collection, Shared& shared,
                     Answer& answer, const Flag& dropped) {
  const RunTerms terms{caveText, collection, 1, {}};
  const auto begin = BeginRun(terms);
  answer.playable = static_cast<bool>(begin);
  if (!begin || WhyImpossible(**begin)) return;
  const auto solver = std::make_unique<Solver>(**begin, terms.seed, kMostBytes);
  while (!dropped && !solver->Go(kSlice)) {
    shared.ticks = solver->Ticks();
    shared.gems = solver->MostGems();
  }
  if (dropped) return;
  QElapsedTimer clock;
  clock.start();
  const Plan plan =
      Shorten(**begin, *solver->Found(), [&] { return dropped || clock.elapsed() >= kShortening; });
  answer.record = RecordOfPlan(terms, plan);
}

void ProofWork::Weigh(const std::string& caveText, const std::string& record, Shared& shared, Answer& answer,
                      const Flag& dropped) {
  const auto cave = ParseCaveText(caveText);
  Result<Review> review = ReviewRecord(record);
  if (!cave || !review) return;
  int survived = 0;
  for (int i = 0; i < kTries && !dropped; ++i) {
    survived += FollowPlan(caveText, review->deeds, kFirstSeed + static_cast<std::uint64_t>(i),
                           [&] { return dropped.load(); })
                    ? 1
                    : 0;
    shared.tries = i + 1;
  }
  if (dropped) return;
  std::vector<Review> wins;
  wins.push_back(std::move(*review));
  answer.rating = RateCave(*cave, std::move(wins), kTries, survived);
}

}  // namespace zorik
