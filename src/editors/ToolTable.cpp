#include "editors/ToolTable.h"

#include <algorithm>

namespace zorik {

const ObjectLetter* ObjectOfTool(int palette) {
  if (palette < 0) return nullptr;
  const auto* const row =
      std::find_if(kObjectLetters.begin(), kObjectLetters.end(),
                   [palette](const ObjectLetter& object) { return object.palette == palette; });
  return row == kObjectLetters.end() ? nullptr : row;
}

char LetterOfTool(int palette, int dog) {
  if (palette == kDogTool) return static_cast<char>('0' + dog);
  return ObjectOfTool(palette)->letter;
}

int ToolOfLetter(char letter) {
  const ObjectLetter* const object = FindLetter(letter);
  return object == nullptr ? -1 : object->palette;
}

int ValueOf(char letter) {
  return letter >= '0' && letter <= '9' ? letter - '0' : 0;
}

}  // namespace zorik
