#include <SDL.h>
#include <gtest/gtest.h>

#include <utility>

#include "platform/JoyPad.h"

namespace zorik {
namespace {

constexpr Sint16 kLeast = -32768;
constexpr Sint16 kMost = 32767;

// What a tick hears of the pad: its direction and its buttons.
using Heard = std::pair<int, int>;

// A pad with two axes, four buttons and a hat that is made of nothing.
class VirtualPad {
 public:
  VirtualPad() : index_(SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, 2, 4, 1)) {
    EXPECT_GE(index_, 0) << SDL_GetError();
    joystick_ = SDL_JoystickOpen(index_);
    Axes(0, 0);
  }
  ~VirtualPad() {
    SDL_JoystickClose(joystick_);
    SDL_JoystickDetachVirtual(index_);
  }
  VirtualPad(const VirtualPad&) = delete;
  VirtualPad& operator=(const VirtualPad&) = delete;

  void Axes(Sint16 x, Sint16 y) {
    SDL_JoystickSetVirtualAxis(joystick_, 0, x);
    SDL_JoystickSetVirtualAxis(joystick_, 1, y);
    SDL_JoystickUpdate();
  }
  void Hat(Uint8 value) {
    SDL_JoystickSetVirtualHat(joystick_, 0, value);
    SDL_JoystickUpdate();
  }
  void Button(int button, bool down) {
    SDL_JoystickSetVirtualButton(joystick_, button, down ? 1 : 0);
    SDL_JoystickUpdate();
  }

 private:
  int index_;
  SDL_Joystick* joystick_ = nullptr;
};

class JoyPadTest : public testing::Test {
 protected:
  Heard Sample() {
    KeySnapshot keys;
    pad_.Sample(keys);
    return {keys.joyDirection, keys.joyButtons};
  }

  JoyPad pad_;
};

TEST_F(JoyPadTest, HearsNothingWhereThereIsNoPad) {
  EXPECT_EQ(Sample(), Heard(0, 0));
}

TEST_F(JoyPadTest, TellsTheDirectionOfTheAxes) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(kLeast, 0);
  EXPECT_EQ(Sample(), Heard(1, 0));
  pad.Axes(0, kLeast);
  EXPECT_EQ(Sample(), Heard(2, 0));
  pad.Axes(kMost, 0);
  EXPECT_EQ(Sample(), Heard(3, 0));
  pad.Axes(0, kMost);
  EXPECT_EQ(Sample(), Heard(4, 0));
  pad.Axes(0, 0);
  EXPECT_EQ(Sample(), Heard(0, 0));
}

TEST_F(JoyPadTest, ShiftsTheAxesSoThatTheDeadZoneIsHalfTheWay) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(-16384, 0);
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(-16385, 0);
  EXPECT_EQ(Sample(), Heard(1, 0));
  pad.Axes(16384, 0);
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(16385, 0);
  EXPECT_EQ(Sample(), Heard(3, 0));
}

TEST_F(JoyPadTest, TakesAPushedHatForAnAxisAtItsEnd) {
  VirtualPad pad;
  EXPECT_EQ(Sample(), Heard(0, 0));
  const std::pair<Uint8, int> directions[] = {
      {SDL_HAT_LEFT, 1}, {SDL_HAT_UP, 2}, {SDL_HAT_RIGHT, 3}, {SDL_HAT_DOWN, 4}, {SDL_HAT_CENTERED, 0}};
  for (const auto& [hat, direction] : directions) {
    pad.Hat(hat);
    EXPECT_EQ(Sample(), Heard(direction, 0));
  }
}

TEST_F(JoyPadTest, HasItsCentreWhereTheAxesAreWhenAHatIsPushedAtFirst) {
  VirtualPad pad;
  pad.Hat(SDL_HAT_LEFT);
  EXPECT_EQ(Sample(), Heard(1, 0));
  pad.Hat(SDL_HAT_CENTERED);
  EXPECT_EQ(Sample(), Heard(0, 0));
}

TEST_F(JoyPadTest, TakesWhereItStandsAtFirstForTheCentre) {
  VirtualPad pad;
  pad.Axes(-12768, 0);  // 20000 of 65535
  EXPECT_EQ(Sample(), Heard(0, 0));
  pad.Axes(-22769, 0);  // 9999, below a half of it
  EXPECT_EQ(Sample(), Heard(1, 0));
}

TEST_F(JoyPadTest, KnowsTwoButtons) {
  VirtualPad pad;
  pad.Button(0, true);
  EXPECT_EQ(Sample(), Heard(0, 1));
  pad.Button(1, true);
  EXPECT_EQ(Sample(), Heard(0, 3));
  pad.Button(0, false);
  pad.Button(2, true);
  EXPECT_EQ(Sample(), Heard(0, 2));
}

TEST_F(JoyPadTest, MayBePluggedInAndOutWhileTheGameRuns) {
  EXPECT_EQ(Sample(), Heard(0, 0));
  {
    VirtualPad pad;
    EXPECT_EQ(Sample(), Heard(0, 0));
    pad.Axes(kLeast, 0);
    EXPECT_EQ(Sample(), Heard(1, 0));
  }
  EXPECT_EQ(Sample(), Heard(0, 0)) << "a pad that is gone pushes nothing";
  VirtualPad another;
  EXPECT_EQ(Sample(), Heard(0, 0));
  another.Axes(0, kMost);
  EXPECT_EQ(Sample(), Heard(4, 0));
}

}  // namespace
}  // namespace zorik
