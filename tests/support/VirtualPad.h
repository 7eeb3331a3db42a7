#pragma once

#include <SDL.h>
#include <gtest/gtest.h>

namespace zorik::test {

// A pad with two axes or more, four buttons and a hat that is made of nothing.
class VirtualPad {
 public:
  explicit VirtualPad(int axes = 2)
      : index_(SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, axes, 4, 1)) {
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
    Axis(0, x);
    Axis(1, y);
  }
  void Axis(int axis, Sint16 value) {
    SDL_JoystickSetVirtualAxis(joystick_, axis, value);
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

}  // namespace zorik::test
