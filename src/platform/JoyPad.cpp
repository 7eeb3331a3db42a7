#include "platform/JoyPad.h"

#include <SDL.h>

#include <array>

namespace zorik {
namespace {

constexpr int kSensitivity = 2;
constexpr int kAxisShift = 32768;  // SDL counts from -32768
constexpr int kAxisMost = 65535;
constexpr int kButtons = 2;

// A pad as it reports itself.
struct Raw {
  std::array<int, 2> axes{};
  Uint8 hat = SDL_HAT_CENTERED;
  unsigned buttons = 0;

  void Press(int button, bool down) {
    if (button >= kButtons) return;
    const unsigned bit = 1U << static_cast<unsigned>(button);
    buttons = down ? buttons | bit : buttons & ~bit;
  }
};

// A hat that is pushed stands for an axis at its end.
void PushByHat(Uint8 hat, JoyInfo& info) {
  if ((hat & SDL_HAT_LEFT) != 0) info.x = 0;
  if ((hat & SDL_HAT_RIGHT) != 0) info.x = kAxisMost;
  if ((hat & SDL_HAT_UP) != 0) info.y = 0;
  if ((hat & SDL_HAT_DOWN) != 0) info.y = kAxisMost;
}

JoyInfo InfoOf(const Raw& raw) {
  JoyInfo info{raw.axes[0] + kAxisShift, raw.axes[1] + kAxisShift, raw.buttons};
  PushByHat(raw.hat, info);
  return info;
}

Raw ReadAll(SDL_Joystick* joystick) {
  Raw raw;
  raw.axes = {SDL_JoystickGetAxis(joystick, 0), SDL_JoystickGetAxis(joystick, 1)};
  if (SDL_JoystickNumHats(joystick) > 0) raw.hat = SDL_JoystickGetHat(joystick, 0);
  for (int i = 0; i < kButtons && i < SDL_JoystickNumButtons(joystick); ++i)
    raw.Press(i, SDL_JoystickGetButton(joystick, i) != 0);
  return raw;
}

// What an event of the pad changes.
void Follow(const SDL_Event& event, SDL_JoystickID pad, Raw& raw) {
  switch (event.type) {
    case SDL_JOYAXISMOTION:
      if (event.jaxis.which == pad && event.jaxis.axis < raw.axes.size())
        raw.axes[event.jaxis.axis] = event.jaxis.value;
      break;
    case SDL_JOYHATMOTION:
      if (event.jhat.which == pad && event.jhat.hat == 0) raw.hat = event.jhat.value;
      break;
    case SDL_JOYBUTTONDOWN:
    case SDL_JOYBUTTONUP:
      if (event.jbutton.which == pad) raw.Press(event.jbutton.button, event.jbutton.state == SDL_PRESSED);
      break;
    default:
      break;
  }
}

}  // namespace

struct JoyPad::Device {
  SDL_Joystick* joystick = nullptr;
  bool ready = false;
  Raw raw;

  void Close() {
    if (joystick != nullptr) SDL_JoystickClose(joystick);
    joystick = nullptr;
  }
};

JoyPad::JoyPad() : device_(std::make_unique<Device>()) {
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  device_->ready = SDL_InitSubSystem(SDL_INIT_JOYSTICK) == 0;
  Listen();
}

JoyPad::~JoyPad() {
  device_->Close();
  if (device_->ready) SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
}

// The pad's events tell what was pushed and let go again since the last time. False without a pad.
bool JoyPad::Listen() {
  if (!device_->ready) return false;
  SDL_JoystickUpdate();
  if (device_->joystick != nullptr && SDL_JoystickGetAttached(device_->joystick) == SDL_FALSE)
    device_->Close();
  if (device_->joystick == nullptr) {
    if (SDL_NumJoysticks() < 1) return false;
    device_->joystick = SDL_JoystickOpen(0);
    if (device_->joystick == nullptr) return false;
    SDL_FlushEvents(SDL_JOYAXISMOTION, SDL_JOYDEVICEREMOVED);
    Raw centre = ReadAll(device_->joystick);
    device_->raw = centre;
    centre.hat = SDL_HAT_CENTERED;  // a hat that is pushed by now is no centre
    stick_ = JoyStick();
    stick_.JoyInit(InfoOf(centre));
  }
  const SDL_JoystickID pad = SDL_JoystickInstanceID(device_->joystick);
  SDL_Event event;
  while (SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_JOYAXISMOTION, SDL_JOYDEVICEREMOVED) == 1) {
    Follow(event, pad, device_->raw);
    stick_.Read(InfoOf(device_->raw));
  }
  device_->raw = ReadAll(device_->joystick);
  stick_.Read(InfoOf(device_->raw));
  return true;
}

void JoyPad::Sample(KeySnapshot& keys) {
  if (!Listen()) return;
  keys.joyDirection = stick_.JoyDirection(kSensitivity);
  keys.joyButtons = stick_.JoyButtons();
}

void JoyPad::Forget() {
  if (Listen()) stick_.Forget();
}

}  // namespace zorik
