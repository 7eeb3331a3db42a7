#include "skin/Decoration.h"

namespace zorik {

Decoration LoadDecoration(PictureCache& pictures, const SkinPlaces& places, std::string_view scheme) {
  const PictureFinder finder(places, scheme);
  const auto load = [&](std::string_view name) { return pictures.Load(places, finder.GetSchPicPath(name)); };
  return {load("Border1"),
          load("Border2"),
          load("Bar"),
          WithoutBlack(load("Restart")),
          WithoutBlack(load("Settings")),
          finder.Has("Leave") ? WithoutBlack(load("Leave")) : QImage()};
}

}  // namespace zorik
