#include "platform/JoyPad.h"

#include <SDL.h>

namespace zorik {
namespace {

constexpr int kSensitivity = 2;
constexpr int kAxisShift = 32768;  // SDL counts from -32768
constexpr int kAxisMost = 65535;

// A hat that is pushed stands for an axis at its end.
void PushByHat(Uint8 hat, JoyInfo& info) {
  if ((hat & SDL_HAT_LEFT) != 0) info.x = 0;
  if ((hat & SDL_HAT_RIGHT) != 0) info.x = kAxisMost;
  if ((hat & SDL_HAT_UP) != 0) info.y = 0;
  if ((hat & SDL_HAT_DOWN) != 0) info.y = kAxisMost;
}

JoyInfo ReadAxes(SDL_Joystick* joystick) {
  JoyInfo info;
  info.x = SDL_JoystickGetAxis(joystick, 0) + kAxisShift;
  info.y = SDL_JoystickGetAxis(joystick, 1) + kAxisShift;
  return info;
}

JoyInfo ReadAll(SDL_Joystick* joystick) {
  JoyInfo info = ReadAxes(joystick);
  if (SDL_JoystickNumHats(joystick) > 0) PushByHat(SDL_JoystickGetHat(joystick, 0), info);
  for (int i = 0; i < 2 && i < SDL_JoystickNumButtons(joystick); ++i) {
    if (SDL_JoystickGetButton(joystick, i) != 0) info.buttons |= 1U << static_cast<unsigned>(i);
  }
  return info;
}

}  // namespace

struct JoyPad::Device {
  SDL_Joystick* joystick = nullptr;
  bool ready = false;

  void Close() {
    if (joystick != nullptr) SDL_JoystickClose(joystick);
    joystick = nullptr;
  }
};

JoyPad::JoyPad() : device_(std::make_unique<Device>()) {
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  device_->ready = SDL_InitSubSystem(SDL_INIT_JOYSTICK) == 0;
  if (device_->ready) SDL_JoystickEventState(SDL_IGNORE);  // it is asked, it does not report
}

JoyPad::~JoyPad() {
  device_->Close();
  if (device_->ready) SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
}

void JoyPad::Sample(KeySnapshot& keys) {
  if (!device_->ready) return;
  SDL_JoystickUpdate();
  if (device_->joystick != nullptr && SDL_JoystickGetAttached(device_->joystick) == SDL_FALSE)
    device_->Close();
  if (device_->joystick == nullptr) {
    if (SDL_NumJoysticks() < 1) return;
    device_->joystick = SDL_JoystickOpen(0);
    if (device_->joystick == nullptr) return;
    stick_ = JoyStick();
    stick_.JoyInit(ReadAxes(device_->joystick));  // a hat that is pushed by now is no centre
  }
  stick_.Read(ReadAll(device_->joystick));
  keys.joyDirection = stick_.JoyDirection(kSensitivity);
  keys.joyButtons = stick_.JoyButtons();
}

}  // namespace zorik
