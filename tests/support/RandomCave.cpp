#include "support/RandomCave.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/Objects.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Scramble.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

int Between(Chance& chance, int low, int high) {
  return low + static_cast<int>(chance.Below(static_cast<std::uint32_t>(high - low + 1)));
}

bool OneIn(Chance& chance, int n) {
  return Between(chance, 1, n) == 1;
}

char AnyOf(Chance& chance, std::string_view letters) {
  return letters[chance.Below(static_cast<std::uint32_t>(letters.size()))];
}

struct Size {
  int width;
  int height;
};

Size AnySize(Chance& chance) {
  switch (Between(chance, 0, 19)) {
    case 0:
      return {kMaxWidth, kMaxHeight};
    case 1:
    case 2:
      return {Between(chance, 1, kMaxWidth), Between(chance, 1, kMaxHeight)};
    case 3:
    case 4:
    case 5:
    case 6:
      return {Between(chance, 10, 40), Between(chance, 5, 24)};
    default:
      return {Between(chance, 3, 14), Between(chance, 3, 10)};
  }
}

// Some caves hold a bit of everything, others a lot of a few things.
std::string AnyPalette(Chance& chance) {
  std::string palette;
  const int sparse = Between(chance, 1, 4);
  for (const ObjectLetter& object : kObjectLetters) {
    if (DogNumber(object.letter) == 0 && OneIn(chance, sparse))
      palette.append(static_cast<std::size_t>(Between(chance, 1, 3)), object.letter);
  }
  palette.append(static_cast<std::size_t>(Between(chance, 1, 40)), '.');
  palette.append(static_cast<std::size_t>(Between(chance, 0, 20)), ';');
  palette.append(static_cast<std::size_t>(Between(chance, 0, 6)), 'R');
  palette.append(static_cast<std::size_t>(Between(chance, 0, 6)), 'D');
  if (OneIn(chance, 20)) palette += "0hz\xFF";
  return palette;
}

void Plant(Chance& chance, Picture& picture, const Picture& patch) {
  const int width = static_cast<int>(picture.front().size());
  const int height = static_cast<int>(picture.size());
  const int patchWidth = static_cast<int>(patch.front().size());
  const int patchHeight = static_cast<int>(patch.size());
  if (patchWidth > width || patchHeight > height) return;
  const int left = Between(chance, 0, width - patchWidth);
  const int top = Between(chance, 0, height - patchHeight);
  for (int y = 0; y < patchHeight; ++y) {
    for (int x = 0; x < patchWidth; ++x) {
      const char letter = patch[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
      if (letter != ' ')
        picture[static_cast<std::size_t>(top + y)][static_cast<std::size_t>(left + x)] = letter;
    }
  }
}

void PlantPatterns(Chance& chance, Picture& picture) {
  if (OneIn(chance, 3)) Plant(chance, picture, {" R ", " . ", "WEW", ". ."});
  if (OneIn(chance, 3)) Plant(chance, picture, {"RD!", "...", "MMM", "..."});
  if (OneIn(chance, 4)) Plant(chance, picture, {"XXX", "XAX", "XXX"});
  if (OneIn(chance, 5)) Plant(chance, picture, {"I.I", ".R.", "III"});
}

// Last of all, so that nothing covers them.
void PlantWays(Chance& chance, Picture& picture) {
  if (OneIn(chance, 2)) Plant(chance, picture, {"W1DT", "WWWW"});
  if (!OneIn(chance, 2)) return;
  const char rider = AnyOf(chance, ".1JRF2");
  Plant(chance, picture,
        OneIn(chance, 2) ? Picture{std::string(1, rider), "S", "W"}
                         : Picture{std::string(1, rider) + "S.", ".W."});
  Plant(chance, picture, {"W", "S", "."});
}

void PlaceDogs(Chance& chance, Picture& picture) {
  if (OneIn(chance, 15)) return;
  const int dogs = OneIn(chance, 2) ? 1 : Between(chance, 1, 9);
  for (int i = 0; i < dogs; ++i) {
    const bool first = i == 0 && !OneIn(chance, 10);
    Plant(chance, picture, {std::string(1, first ? '1' : AnyOf(chance, "H123456789"))});
  }
}

std::string AnyProgram(Chance& chance) {
  if (OneIn(chance, 10)) return {};
  std::string program = OneIn(chance, 10) ? "" : "*A";
  const int tokens = Between(chance, 0, 24);
  for (int i = 0; i < tokens; ++i) {
    switch (Between(chance, 0, 9)) {
      case 0:
        program += std::string("*") + AnyOf(chance, "ABCDEFGHI");
        break;
      case 1:
      case 2:
        program += std::string("/") + AnyOf(chance, "DEFGHZ");
        break;
      case 3:
        program += "+A";
        break;
      default:
        program += std::string("-") + AnyOf(chance, "ABCDEFGHIJKLMNP");
    }
  }
  if (OneIn(chance, 15)) program.insert(program.size() / 2, 1, AnyOf(chance, "x*-\xFF"));
  return OneIn(chance, 3) ? program : program + "/Z";
}

Numbers AnyNumbers(Chance& chance) {
  Numbers numbers;
  numbers.time = OneIn(chance, 3) ? Between(chance, 0, 8) : Between(chance, 9, OneIn(chance, 8) ? 1200 : 60);
  numbers.needed = OneIn(chance, 4) ? Between(chance, 0, 200) : Between(chance, 0, 2);
  numbers.before = Between(chance, 0, 190);
  numbers.after = Between(chance, 0, 190);
  numbers.magicTime = Between(chance, 0, 5);
  numbers.amoebaTime = OneIn(chance, 2) ? Between(chance, 0, 3) : Between(chance, 0, 190);
  numbers.permeability = Between(chance, 0, 9);
  numbers.colouring = Between(chance, 0, 20);
  numbers.script = AnyProgram(chance);
  numbers.name = OneIn(chance, 8) ? "bonus" : "Any";
  return numbers;
}

std::string AnyCave(Chance& chance) {
  const Size size = AnySize(chance);
  const std::string palette = AnyPalette(chance);
  Picture picture(static_cast<std::size_t>(size.height),
                  std::string(static_cast<std::size_t>(size.width), '.'));
  for (std::string& row : picture) {
    for (char& letter : row) letter = AnyOf(chance, palette);
  }
  PlantPatterns(chance, picture);
  PlaceDogs(chance, picture);
  PlantWays(chance, picture);
  return CaveTextOf(picture, AnyNumbers(chance));
}

void Hold(KeySnapshot& keys, int key) {
  keys.down.set(static_cast<std::size_t>(key));
}

// Directions are held for a while, as a hand does; the rest comes and goes.
KeyScript AnyKeys(Chance& chance, int ticks) {
  KeyScript script(static_cast<std::size_t>(ticks));
  std::array<int, 4> left{};
  const bool joystick = OneIn(chance, 8);
  const int calm = Between(chance, 4, 30);
  for (KeySnapshot& keys : script) {
    for (int i = 0; i < 4; ++i) {
      int& rest = left[static_cast<std::size_t>(i)];
      if (rest == 0 && OneIn(chance, 8)) rest = Between(chance, 1, 12);
      if (rest > 0) Hold(keys, kKeyLeft + i);
      rest = std::max(0, rest - 1);
    }
    if (OneIn(chance, calm)) Hold(keys, kKeyTab);
    if (OneIn(chance, calm)) Hold(keys, Between(chance, kKeyPad0, kKeyPad9));
    if (OneIn(chance, calm)) Hold(keys, AnyOf(chance, "SA"));
    if (OneIn(chance, calm))
      Hold(keys, OneIn(chance, 2) ? kKeySpace : OneIn(chance, 2) ? kKeyShift : kKeyCtrl);
    if (OneIn(chance, 40)) Hold(keys, AnyOf(chance, "CP{km"));
    if (joystick && OneIn(chance, 3)) keys.joyDirection = Between(chance, 0, 4);
    if (joystick && OneIn(chance, 5)) keys.joyButtons = Between(chance, 0, 3);
  }
  return script;
}

std::size_t AnyPlace(Chance& chance, const std::string& text) {
  return chance.Below(static_cast<std::uint32_t>(text.size() + 1));
}

void DamageOnce(std::string& text, Chance& chance) {
  const std::size_t place = AnyPlace(chance, text);
  switch (Between(chance, 0, 4)) {
    case 0:
      if (place < text.size()) text[place] = static_cast<char>(Between(chance, 0, 255));
      break;
    case 1:
      text.resize(place);
      break;
    case 2:
      text.erase(place, static_cast<std::size_t>(Between(chance, 1, 40)));
      break;
    case 3:
      text.insert(place, static_cast<std::size_t>(Between(chance, 1, 6)), AnyOf(chance, "A\xFE\r\n@\x01"));
      break;
    default:
      if (const std::size_t end = text.find("\r\n", place); end != std::string::npos) {
        text.erase(place, end + 2 - place);
      }
  }
}

// The cave of a record is scrambled, so it is damaged in the clear to come through as a cave.
std::string WithDamagedCave(const std::string& record, Chance& chance) {
  RecordLines lines{record};
  RecordHead head = ReadRecordHead(lines);
  std::string bytes = BuildRecordHead(head.CollectionName, head.Score, head.Player, chance);
  for (int i = Between(chance, 1, 8); i > 0; --i) DamageOnce(head.CaveText, chance);
  bytes += ScrambleText(head.CaveText, chance) + "\r\n";
  while (!lines.AtEnd()) bytes += std::string(lines.Next()) + "\r\n";
  return bytes;
}

}  // namespace

RandomRun MakeRun(std::uint64_t number) {
  Chance chance(number * 2654435761U + 12345U);
  RandomRun run;
  run.seed = number;
  run.caveText = AnyCave(chance);
  const bool large = run.caveText.size() > 1500;
  run.keys = AnyKeys(chance, large ? Between(chance, 20, 80) : Between(chance, 100, 300));
  return run;
}

std::string Damaged(std::string record, Chance& chance) {
  if (OneIn(chance, 3)) record = WithDamagedCave(record, chance);
  for (int i = Between(chance, 1, 6); i > 0; --i) DamageOnce(record, chance);
  return record;
}

int HowMany(int usual) {
#ifdef ZORIK_SANITIZED
  usual /= 4;
#endif
  const char* asked = std::getenv("ZORIK_MANY");
  return asked == nullptr ? usual : std::max(usual, std::atoi(asked));
}

}  // namespace zorik::test
