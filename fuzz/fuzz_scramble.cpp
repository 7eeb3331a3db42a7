#include "Input.h"
#include "data/Scramble.h"

namespace zorik {

// Any bytes unscramble to at most a third of them, and any bytes survive being scrambled.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = fuzz::TextOf(data, size);
  const std::string plain = UnscrambleText(input);
  fuzz::Require(plain.size() <= (input.size() + 2) / 3);
  Chance chance(size);
  for (const std::string_view text : {input, std::string_view(plain)}) {
    const std::string scrambled = ScrambleText(text, chance);
    fuzz::Require(scrambled.size() == text.size() * 3);
    fuzz::Require(UnscrambleText(scrambled) == text);
  }
  return 0;
}

}  // namespace zorik
