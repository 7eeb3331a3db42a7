#pragma once

#include <SDL.h>

namespace zorik {

// What the game uses of SDL.
#define ZORIK_SDL_FUNCTIONS(FUNCTION) \
  FUNCTION(InitSubSystem)             \
  FUNCTION(QuitSubSystem)             \
  FUNCTION(SetHint)                   \
  FUNCTION(SetHintWithPriority)       \
  FUNCTION(ResetHint)                 \
  FUNCTION(OpenAudioDevice)           \
  FUNCTION(CloseAudioDevice)          \
  FUNCTION(PauseAudioDevice)          \
  FUNCTION(GetCurrentAudioDriver)     \
  FUNCTION(RWFromConstMem)            \
  FUNCTION(LoadWAV_RW)                \
  FUNCTION(FreeWAV)                   \
  FUNCTION(BuildAudioCVT)             \
  FUNCTION(ConvertAudio)              \
  FUNCTION(NumJoysticks)              \
  FUNCTION(JoystickOpen)              \
  FUNCTION(JoystickClose)             \
  FUNCTION(JoystickUpdate)            \
  FUNCTION(JoystickGetAttached)       \
  FUNCTION(JoystickInstanceID)        \
  FUNCTION(JoystickGetAxis)           \
  FUNCTION(JoystickNumHats)           \
  FUNCTION(JoystickGetHat)            \
  FUNCTION(JoystickNumButtons)        \
  FUNCTION(JoystickGetButton)         \
  FUNCTION(FlushEvents)               \
  FUNCTION(PeepEvents)

// Its functions, by their names without "SDL_".
struct Sdl {
#define ZORIK_SDL_POINTER(name) decltype(&SDL_##name) name = nullptr;
  ZORIK_SDL_FUNCTIONS(ZORIK_SDL_POINTER)
#undef ZORIK_SDL_POINTER
};

// SDL, which is loaded when somebody asks for it first and then stays. It brings some fifty other libraries
// along, whose loading the start of the program would wait for. Null where it is not installed.
const Sdl* FindSdl();

}  // namespace zorik
