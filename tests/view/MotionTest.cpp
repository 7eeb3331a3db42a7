#include <gtest/gtest.h>

#include <ostream>

#include "view/Motion.h"

namespace zorik {
namespace {

constexpr std::uint16_t kOne = 7, kOther = 9;
constexpr Cell kA(1, 1), kB(2, 1), kC(2, 2);

// The moves that there are in the end: of what, from where to where.
struct Way {
  std::uint16_t code;
  Cell from, to;

  bool operator==(const Way&) const = default;
};
void PrintTo(const Way& way, std::ostream* out) {
  *out << way.code << " from " << way.from.x() << "," << way.from.y() << " to " << way.to.x() << ","
       << way.to.y();
}

std::vector<Way> WaysOf(const Motion& motion) {
  std::vector<Way> ways;
  for (const Motion::Move& move : motion.Moves()) {
    if (move.from != move.to) ways.push_back({move.code, move.from, move.to});
  }
  return ways;
}

TEST(Motion, LeadsAllTheWayWhatGoesOnInTheSameTick) {
  Motion motion;
  motion.Add(kA, kB, kOne);
  motion.Add(kB, kC, kOne);
  EXPECT_EQ(WaysOf(motion), (std::vector<Way>{{kOne, kA, kC}}));
}

TEST(Motion, LetsOneFollowAnother) {
  Motion motion;
  motion.Add(kB, kC, kOne);
  motion.Add(kA, kB, kOther);
  EXPECT_EQ(WaysOf(motion), (std::vector<Way>{{kOne, kB, kC}, {kOther, kA, kB}}));
}

TEST(Motion, LetsTwoChangePlaces) {
  Motion motion;
  motion.Add(kB, kA, kOne);
  motion.Add(kA, kB, kOther);
  EXPECT_EQ(WaysOf(motion), (std::vector<Way>{{kOne, kB, kA}, {kOther, kA, kB}}));
}

TEST(Motion, ForgetsWhatWasInTheWay) {
  Motion motion;
  motion.Add(kC, kB, kOne);
  motion.Add(kA, kB, kOther);
  EXPECT_EQ(WaysOf(motion), (std::vector<Way>{{kOther, kA, kB}}));
}

TEST(Motion, KnowsWhatHasBeenLeft) {
  Motion motion;
  motion.Add(kA, kB, kOne);
  EXPECT_TRUE(motion.HasLeft(kA));
  EXPECT_FALSE(motion.HasLeft(kB));
}

TEST(Motion, BeginsAnewWhenItIsCleared) {
  Motion motion;
  motion.Add(kA, kB, kOne);
  motion.Clear();
  EXPECT_TRUE(WaysOf(motion).empty());
  EXPECT_FALSE(motion.HasLeft(kA));
  motion.Add(kB, kC, kOne);
  EXPECT_EQ(WaysOf(motion), (std::vector<Way>{{kOne, kB, kC}}));
}

TEST(Motion, LetsOneGoOnAndAnotherTakeItsPlaceBesideAThird) {
  constexpr Cell kFar(8, 8), kFarther(9, 8), kD(1, 2);
  Motion motion;
  motion.Add(kFar, kFarther, kOther);
  motion.Add(kA, kB, kOne);
  motion.Add(kB, kC, kOne);
  motion.Add(kD, kB, kOther);
  EXPECT_EQ(WaysOf(motion), (std::vector<Way>{{kOther, kFar, kFarther}, {kOne, kA, kC}, {kOther, kD, kB}}));
}

}  // namespace
}  // namespace zorik
