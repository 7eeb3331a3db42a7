#include "solve/Rating.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>

#include "solve/Lint.h"

namespace zorik {
namespace {

constexpr int kMostPaws = 5;
// PawsOf gives ten points at the most; half of them are enough for the last paw, since a cave may be hard in
// one way and easy in another.
constexpr double kPointsOfAPaw = 1.25;

std::string Rounded(double number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f", number);
  return text.data();
}

// A point for so many, up to so many points.
double Points(double number, double forOne, double most) {
  return std::min(most, number / forOne);
}

int PawsOf(const Rating& rating) {
  // What is done counts most; danger, length and variety can each make up for one another. Twenty seconds and
  // a single kind of thing are a beginner's cave. A win that needs luck is harder whatever else it takes.
  const Review& review = rating.review;
  const int kinds = std::popcount(review.used);
  const double luck = rating.survived < kLeastOdds * rating.tries ? 1 : 0;
  const double points = Points(review.decisions, 5, 3) + Points(review.closeCalls, 3, 2) +
                        Points(review.ticks, 20 * kTicksPerSecond, 2) + Points(std::max(0, kinds - 1), 3, 2) +
                        luck;
  return std::clamp(1 + static_cast<int>(points / kPointsOfAPaw), 1, kMostPaws);
}

}  // namespace

Rating RateCave(const CaveRecord& cave, std::vector<Review> wins, int tries, int survived) {
  Rating rating;
  rating.wins = static_cast<int>(wins.size());
  rating.untouched.assign(Cell::kPlaces, true);
  for (const Review& win : wins) {
    for (std::size_t place = 0; place < win.touched.size(); ++place)
      rating.untouched[place] = rating.untouched[place] && !win.touched[place];
  }
  rating.review = std::move(wins.front());
  rating.tries = tries;
  rating.survived = survived;
  rating.limitRatio = static_cast<double>(cave.Time * kTicksPerSecond) / std::max(1, rating.review.ticks);
  rating.mirror = MirrorShare(cave);
  rating.paws = PawsOf(rating);
  return rating;
}

std::vector<std::string> UntouchedRows(const CaveRecord& cave, const Rating& rating) {
  std::vector<std::string> rows(cave.Height);
  for (int y = 0; y < cave.Height; ++y) {
    for (int x = 0; x < cave.Width; ++x) {
      const char letter = cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
      const bool shown = letter == 'W' || rating.untouched[Cell(x, y).place()];
      rows[static_cast<std::size_t>(y)] += shown ? letter : ' ';
    }
  }
  return rows;
}

std::vector<Doubt> DoubtsAboutProof(const Rating& rating) {
  std::vector<Doubt> doubts;
  const Review& review = rating.review;
  if (rating.limitRatio > kMostLimitRatio)
    doubts.push_back({DoubtKind::LooseLimit,
                      "the time is " + Rounded(rating.limitRatio) + " times that of the proof",
                      "time",
                      {},
                      {Rounded(rating.limitRatio)}});
  if (review.idleStretch > kLongestIdle) {
    const std::string seconds = Rounded(static_cast<double>(review.idleStretch) / kTicksPerSecond);
    const std::string tick = std::to_string(review.idleFrom + 1);
    doubts.push_back({DoubtKind::IdleStretch,
                      "the proof does nothing for " + seconds + " s from tick " + tick + " on",
                      "cells",
                      {},
                      {seconds, tick}});
  }
  if (rating.survived < kLeastOdds * rating.tries)
    doubts.push_back({DoubtKind::LowOdds,
                      "the proof's plan wins with " + std::to_string(rating.survived) + " of " +
                          std::to_string(rating.tries) + " other seeds",
                      "cells",
                      {},
                      {std::to_string(rating.survived), std::to_string(rating.tries)}});
  return doubts;
}

}  // namespace zorik
