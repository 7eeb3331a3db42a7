#pragma once

#include <QImage>
#include <string_view>

#include "skin/Pictures.h"

namespace zorik {

// The pictures around the play picture. One that is missing or broken is error.bmp, unless said otherwise.
struct Decoration {
  QImage Border1;  // the bar above the play picture
  QImage Border2;  // the bar below it
  QImage Bar;      // behind both, and what remains around the play picture
  // Pictures of buttons; their black is clear.
  QImage Restart;   // starts the cave anew
  QImage Settings;  // opens the settings
  QImage Leave;     // leaves the cave; none when no skin has it
};

// Those of a skin in one scheme. Files that have not changed since the last time are not read again.
Decoration LoadDecoration(PictureCache& pictures, const SkinPlaces& places, std::string_view scheme);

}  // namespace zorik
