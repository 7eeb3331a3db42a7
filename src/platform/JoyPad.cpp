#include "platform/JoyPad.h"

#include <array>
#include <bit>
#include <utility>

#include "platform/Sdl.h"

namespace zorik {
namespace {

constexpr int kSensitivity = 2;
constexpr int kAxisShift = 32768;  // SDL counts from -32768
constexpr int kAxisMost = 65535;

// A pad as it reports itself.
struct Raw {
  std::array<int, 2> axes{};
  Uint8 hat = SDL_HAT_CENTERED;
  unsigned buttons = 0;  // a bit for each

  void Press(int button, bool down) {
    if (button >= kPadButtons) return;
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

// The bits of the stick for the buttons, in the order of their uses.
unsigned WordOf(unsigned buttons, const PadMap& map) {
  constexpr std::array<unsigned, kPadUses> kBits{1, 2, JoyStick::kRestart, JoyStick::kPause};
  unsigned word = 0;
  for (int i = 0; i < kPadButtons; ++i) {
    const auto use = (buttons >> static_cast<unsigned>(i) & 1U) != 0 ? map.UseOf(i) : std::nullopt;
    if (use) word |= kBits[static_cast<std::size_t>(*use)];
  }
  return word;
}

JoyInfo InfoOf(const Raw& raw, const PadMap& map) {
  JoyInfo info{raw.axes[0] + kAxisShift, raw.axes[1] + kAxisShift, WordOf(raw.buttons, map)};
  PushByHat(raw.hat, info);
  return info;
}

Raw ReadAll(const Sdl& sdl, SDL_Joystick* joystick) {
  Raw raw;
  raw.axes = {sdl.JoystickGetAxis(joystick, 0), sdl.JoystickGetAxis(joystick, 1)};
  if (sdl.JoystickNumHats(joystick) > 0) raw.hat = sdl.JoystickGetHat(joystick, 0);
  for (int i = 0; i < kPadButtons && i < sdl.JoystickNumButtons(joystick); ++i)
    raw.Press(i, sdl.JoystickGetButton(joystick, i) != 0);
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
  const Sdl* sdl = FindSdl();  // null: there is none, or it knows no pads
  SDL_Joystick* joystick = nullptr;
  Raw raw;
  PadMap map;
  unsigned pressed = 0;  // since somebody asked

  // What the stick reads of the pad as it is by now.
  JoyInfo Info() const { return InfoOf(raw, map); }

  // What goes down from now on is a press.
  void Change(const Raw& now) {
    pressed |= now.buttons & ~raw.buttons;
    raw = now;
  }

  void Close() {
    if (joystick != nullptr) sdl->JoystickClose(joystick);
    joystick = nullptr;
  }
};

JoyPad::JoyPad() : device_(std::make_unique<Device>()) {
  const Sdl*& sdl = device_->sdl;
  if (sdl == nullptr) return;
  sdl->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  sdl->SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  if (sdl->InitSubSystem(SDL_INIT_JOYSTICK) != 0) sdl = nullptr;
  Listen();
}

JoyPad::~JoyPad() {
  device_->Close();
  if (device_->sdl != nullptr) device_->sdl->QuitSubSystem(SDL_INIT_JOYSTICK);
}

// The pad's events tell what was pushed and let go again since the last time. False without a pad.
bool JoyPad::Listen() {
  if (device_->sdl == nullptr) return false;
  const Sdl& sdl = *device_->sdl;
  sdl.JoystickUpdate();
  if (device_->joystick != nullptr && sdl.JoystickGetAttached(device_->joystick) == SDL_FALSE)
    device_->Close();
  if (device_->joystick == nullptr) {
    if (sdl.NumJoysticks() < 1) return false;
    device_->joystick = sdl.JoystickOpen(0);
    if (device_->joystick == nullptr) return false;
    sdl.FlushEvents(SDL_JOYAXISMOTION, SDL_JOYDEVICEREMOVED);
    Raw centre = ReadAll(sdl, device_->joystick);
    device_->raw = centre;
    device_->pressed = 0;
    centre.hat = SDL_HAT_CENTERED;  // a hat that is pushed by now is no centre
    stick_ = JoyStick();
    stick_.JoyInit(InfoOf(centre, device_->map));
  }
  const SDL_JoystickID pad = sdl.JoystickInstanceID(device_->joystick);
  SDL_Event event;
  while (sdl.PeepEvents(&event, 1, SDL_GETEVENT, SDL_JOYAXISMOTION, SDL_JOYDEVICEREMOVED) == 1) {
    Raw now = device_->raw;
    Follow(event, pad, now);
    device_->Change(now);
    stick_.Read(device_->Info());
  }
  device_->Change(ReadAll(sdl, device_->joystick));
  stick_.Read(device_->Info());
  return true;
}

// A button that is held was not pressed just now, whatever it does from now on.
void JoyPad::SetButtons(const PadMap& map) {
  device_->map = map;
  Forget();
}

void JoyPad::Sample(KeySnapshot& keys) {
  if (!Listen()) return;
  keys.joyDirection = stick_.JoyDirection(kSensitivity);
  keys.joyButtons = stick_.JoyButtons();
  const unsigned commands = stick_.JoyCommands();
  const auto press = [&keys](int key) { keys.down.set(static_cast<std::size_t>(key)); };
  if ((commands & JoyStick::kPause) != 0) press(kKeyP);
  if ((commands & JoyStick::kRestart) == 0) return;
  press(kKeyR);
  press(kKeyCtrl);
}

bool JoyPad::PausePressed() {
  if (!Listen()) return false;
  const bool pressed = (stick_.JoyCommands() & JoyStick::kPause) != 0;
  stick_.Forget();
  return pressed;
}

std::optional<int> JoyPad::PressedButton() {
  if (!Listen()) return std::nullopt;
  const unsigned pressed = std::exchange(device_->pressed, 0U);
  return pressed == 0 ? std::nullopt : std::optional(std::countr_zero(pressed));
}

void JoyPad::Forget() {
  if (Listen()) stick_.Forget();
}

}  // namespace zorik
