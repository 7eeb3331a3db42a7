#include "core/Objects.h"

namespace zorik {
namespace {

constexpr std::array<std::int8_t, 256> LetterRows() {
  std::array<std::int8_t, 256> rows{};
  rows.fill(-1);
  for (std::size_t i = 0; i < kObjectLetters.size(); ++i) {
    const char letter = kObjectLetters[i].letter;
    rows[static_cast<unsigned char>(letter)] = static_cast<std::int8_t>(i);
  }
  return rows;
}

constexpr auto kLetterRows = LetterRows();

}  // namespace

const ObjectLetter* FindLetter(char letter) {
  const int row = kLetterRows[static_cast<unsigned char>(letter)];
  return row < 0 ? nullptr : &kObjectLetters[static_cast<std::size_t>(row)];
}

int DogNumber(char letter) {
  if (letter == 'H') return 1;
  return letter >= '1' && letter <= '9' ? letter - '0' : 0;
}

}  // namespace zorik
