#include <gtest/gtest.h>

#include "soundmaker/Ear.h"
#include "soundmaker/Room.h"

namespace zorik::sound::test {
namespace {

constexpr Room kCave{.size = 0.02, .fade = 0.3, .gain = -6};

Stereo Clap(double seconds) {
  const auto size = static_cast<std::size_t>(seconds * kRate);
  Stereo clap{Samples(size, 0.0), Samples(size, 0.0)};
  clap.left[0] = clap.right[0] = 1;
  return clap;
}

TEST(Room, LeavesTheSoundItselfAlone) {
  Stereo clap = Clap(0.5);
  AddRoom(kCave, false, clap);
  EXPECT_EQ(clap.left[0], 1);
  EXPECT_EQ(clap.right[0], 1);
}

TEST(Room, AnswersAfterItsWaysAndFades) {
  Stereo clap = Clap(0.5);
  AddRoom(kCave, false, clap);
  const auto shortest = static_cast<std::size_t>(kCave.size * 0.64 * kRate);
  EXPECT_EQ(Level(clap.left, 1, shortest), 0);
  const double early = Level(clap.left, shortest, 2000);
  EXPECT_GT(early, 0.001);
  EXPECT_LT(Level(clap.left, 8000, 10000), early / 500);
  EXPECT_GT(Level(clap.left, 3000, 4000), 0);
}

TEST(Room, AnswersBothEarsDifferently) {
  Stereo clap = Clap(0.2);
  AddRoom(kCave, false, clap);
  EXPECT_NE(clap.left, clap.right);
  EXPECT_NEAR(Level(clap.left), Level(clap.right), 0.1 * Level(clap.left));
}

TEST(Room, OfALoopReachesAroundItsEnd) {
  Stereo once = Clap(0.5), end = Clap(0.5);
  std::swap(end.left.front(), end.left.back());
  std::swap(end.right.front(), end.right.back());
  AddRoom(kCave, true, once);
  AddRoom(kCave, true, end);
  for (std::size_t i = 0; i < once.left.size(); ++i) {
    ASSERT_NEAR(once.left[i], end.left[(i + once.left.size() - 1) % once.left.size()], 1e-4) << i;
  }
}

}  // namespace
}  // namespace zorik::sound::test
