#include "data/Scramble.h"

#include <cstddef>

namespace zorik {

namespace {

constexpr int kLetterA = 65;
constexpr int kSmallestDivisor = 10;

char LetterOf(int number) {
  return static_cast<char>(number + kLetterA);
}

int NumberOf(char letter) {
  return static_cast<unsigned char>(letter) - kLetterA;
}

// Rounds down, for numbers below zero too: letters before "A" give those.
int FloorOfQuarter(int number) {
  return number >= 0 ? number / 4 : -((3 - number) / 4);
}

}  // namespace

std::string ScrambleText(std::string_view text, Chance& decoration) {
  std::string scrambled;
  scrambled.reserve(text.size() * 3);
  for (const char character : text) {
    const int code = static_cast<unsigned char>(character);
    const int step = static_cast<int>(decoration.Below(5));
    const int divisor = step + kSmallestDivisor;
    const int noise = static_cast<int>(decoration.Below(3));
    scrambled += LetterOf(code / divisor);
    scrambled += LetterOf(code % divisor);
    scrambled += LetterOf(step * 4 + noise);
  }
  return scrambled;
}

std::string UnscrambleText(std::string_view text) {
  std::string plain;
  plain.reserve(text.size() / 3 + 1);
  // What a group cannot give keeps its value from the group before it.
  int quotient = 0;
  int remainder = 0;
  int mixed = 0;
  bool hasCharacter = false;
  char character = 0;
  for (std::size_t i = 0; i < text.size(); i += 3) {
    quotient = NumberOf(text[i]);
    if (i + 1 < text.size()) remainder = NumberOf(text[i + 1]);
    if (i + 2 < text.size()) mixed = NumberOf(text[i + 2]);
    const int code = quotient * (FloorOfQuarter(mixed) + kSmallestDivisor) + remainder;
    if (code >= 0 && code <= 255) {
      character = static_cast<char>(code);
      hasCharacter = true;
    }
    if (hasCharacter) plain += character;
  }
  return plain;
}

bool IsScrambled(std::string_view text) {
  if (text.size() % 3 != 0) return false;
  for (std::size_t i = 0; i < text.size(); i += 3) {
    const std::string_view group = text.substr(i, 3);
    for (const char letter : group) {
      if (letter < 'A' || letter > 'Z') return false;
    }
    const int divisor = FloorOfQuarter(NumberOf(group[2])) + kSmallestDivisor;
    if (NumberOf(group[0]) * divisor + NumberOf(group[1]) > 255) return false;
  }
  return true;
}

}  // namespace zorik
