#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "data/Chance.h"
#include "data/Collection.h"

// Small caves and collections for the tests of the data files.
namespace zorik::samples {

// The character that stands for a number.
inline char Letter(int number) {
  return static_cast<char>(number + 65);
}

// A text behind the character of its length.
inline std::string Measured(std::string_view text) {
  return Letter(static_cast<int>(text.size())) + std::string(text);
}

// The ten characters of a cave's properties: 3 x 2 cells, time 255, gems 17, points 10 and 15, magic wall 20,
// amoeba 30, colouring 4.
inline std::string Properties(int width = 3, int height = 2) {
  std::string text;
  for (const int number : {width, height, 25, 57, 1, 10, 15, 20, 30, 4}) text += Letter(number);
  return text;
}

// A cave text without marker: permeability 4, no description, six cells.
inline std::string CaveText(std::string_view name, std::string_view cells = "W1;DTW",
                            std::string_view script = "") {
  return Letter(4) + Measured(name) + Measured("") + Properties() + std::string(cells) + std::string(script);
}

// A file of scrambled lines.
inline std::string Scrambled(const std::vector<std::string>& lines) {
  Chance chance(7);
  return ScrambleLines(lines, chance);
}

// A file of a collection with the name "Sada", the author "Autor" and these lines behind the head.
inline std::string CollectionFile(const std::vector<std::string>& body, std::string_view open = "A") {
  std::vector<std::string> lines = {Measured("Sada") + std::string(open), Measured("Autor") + "Popis",
                                    "a@b.cz0"};
  lines.insert(lines.end(), body.begin(), body.end());
  return Scrambled(lines);
}

// Any bytes.
inline std::string RandomBytes(Chance& chance, std::size_t longest) {
  std::string bytes(chance.Below(static_cast<std::uint32_t>(longest) + 1), '\0');
  for (char& byte : bytes) byte = static_cast<char>(chance.Below(256));
  return bytes;
}

// Bytes of which most are of the kinds that the formats give a meaning.
inline std::string OddBytes(Chance& chance, std::size_t longest) {
  constexpr std::string_view kMeaning = "AABCW;1-- \r\n\\|:#x\xA0\x81";
  std::string bytes = RandomBytes(chance, longest);
  for (char& byte : bytes) {
    if (chance.Below(4) != 0) byte = kMeaning[chance.Below(static_cast<std::uint32_t>(kMeaning.size()))];
  }
  return bytes;
}

}  // namespace zorik::samples
