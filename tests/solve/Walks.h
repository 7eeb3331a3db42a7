#pragma once

#include <gtest/gtest.h>

#include <string>

#include "data/Result.h"
#include "solve/Review.h"
#include "solve/Win.h"
#include "support/Scene.h"

namespace zorik::test {

// A plan in the letters of key scripts: L U R D steps, l u r d at arm's length, . nothing, digits units.
inline Plan PlanOf(const std::string& letters) {
  const std::string steps = "LURD", acts = "lurd";
  Plan plan;
  for (const char letter : letters) {
    const std::size_t step = steps.find(letter), act = acts.find(letter);
    if (step != std::string::npos) plan.push_back(static_cast<Move>(kStepBase + step));
    if (act != std::string::npos) plan.push_back(static_cast<Move>(kActBase + act));
    if (letter == '.') plan.push_back(kWait);
    if (letter >= '0' && letter <= '9') plan.push_back(static_cast<Move>(kChooseBase + (letter - '0')));
  }
  return plan;
}

// A walk through a cave by these keys.
struct Walk {
  Picture picture;
  Numbers numbers{.needed = 1};
  std::string keys;
};

inline std::string RecordOf(const Walk& run) {
  return RecordOfPlan({CaveTextOf(run.picture, run.numbers), "sada"}, PlanOf(run.keys));
}
inline Review ReviewOf(const Walk& run) {
  const Result<Review> review = ReviewRecord(RecordOf(run));
  if (review) return *review;
  ADD_FAILURE() << review.Message();
  return {};
}

// Whether the win used the thing of that word.
inline bool Uses(const Review& review, std::string_view word) {
  for (std::size_t i = 0; i < kThings.size(); ++i) {
    if (kThings[i].word == word) return (review.used >> i & 1U) != 0;
  }
  ADD_FAILURE() << word;
  return false;
}

}  // namespace zorik::test
