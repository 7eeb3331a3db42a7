#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zorik {

// Something in a skin that cannot be used as it is.
struct SkinFlaw {
  enum class Kind : std::uint8_t {
    NotUnderstood,    // the value of a key is no number or no colour
    Held,             // a number that no screen can show was held to what one can
    TooManyKeys,      // this many keys found no room
    ShortLanguage,    // the language file is missing or ends too early
    PictureTooLarge,  // has more pixels than are read
    PictureBroken,
    SoundTooLong,  // lasts longer, or is larger, than what is read
    SoundBroken,
  };

  Kind kind;
  std::string what;  // the key, or the number of keys; empty where the file tells all
  std::string file;  // empty where there is none

  bool operator==(const SkinFlaw&) const = default;
};

using SkinFlaws = std::vector<SkinFlaw>;

}  // namespace zorik
