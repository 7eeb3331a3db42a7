#include "platform/Sdl.h"

#include <dlfcn.h>

namespace zorik {
namespace {

constexpr const char* kLibrary = "libSDL2-2.0.so.0";

template <class Function>
bool Find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  return function != nullptr;
}

bool Load(Sdl& sdl) {
  void* const library = dlopen(kLibrary, RTLD_LAZY);
  if (library == nullptr) return false;
#define ZORIK_SDL_FIND(name) &&Find(library, "SDL_" #name, sdl.name)
  return true ZORIK_SDL_FUNCTIONS(ZORIK_SDL_FIND);
#undef ZORIK_SDL_FIND
}

}  // namespace

const Sdl* FindSdl() {
  static Sdl sdl;
  static const bool loaded = Load(sdl);
  return loaded ? &sdl : nullptr;
}

}  // namespace zorik
