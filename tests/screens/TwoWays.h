#pragma once

#include "run/Outlook.h"
#include "support/Practised.h"

namespace zorik::test {

// A run in practice in which the finish can be reached above a block of steel and below it, in as many steps.
class TwoWays {
 public:
  static constexpr int kWaited = 3;  // ticks, before it begins

  std::unique_ptr<Hra> Begin(int waited = kWaited) const {
    return Practise({"WWWWWWWWWWW", "WWWWW;;;WWW", "W1D;;;W;;TW", "WWWWW;;;WWW", "WWWWWWWWWWW"},
                    {.needed = 1}, waited);
  }

  // The way that is not found by itself: its mirror image is.
  Plan Other() const {
    constexpr auto kUp = static_cast<Move>(kStepBase + 1);
    constexpr auto kRight = static_cast<Move>(kStepBase + 2);
    constexpr auto kDown = static_cast<Move>(kStepBase + 3);
    const auto around = [](Move out, Move back) {
      return Plan{kRight, kRight, kRight, kRight, out, kRight, kRight, back, kRight, kRight};
    };
    const Plan above = around(kUp, kDown);
    const Plan below = around(kDown, kUp);
    Outlook outlook(*Begin());
    EXPECT_EQ(outlook.Go(200'000), Prospect::Known);
    EXPECT_TRUE(outlook.Way() == above || outlook.Way() == below);
    return outlook.Way() == above ? below : above;
  }
};

}  // namespace zorik::test
