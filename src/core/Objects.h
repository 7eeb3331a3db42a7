#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zorik {

// What a cell of the cave can hold: the codes of the Field grid.
enum Object : std::uint16_t {
  kSpace = 0,
  kDirt = 1,
  kBoulder = 2,  // with state 0: a struck bomb
  kGem = 3,
  kDog = 4,
  kBrick = 5,  // with state 0: a magic wall
  kFireFly = 6,
  kButterFly = 7,
  kSteel = 8,
  kFinish = 9,
  kAmoeba = 10,
  kBox = 11,    // with state 0: a bomb
  kWallH = 12,  // grows left and right; between two Steels: the mouth of a splitter
  kWallV = 13,  // grows up and down
  kSlime = 14,
  kFly = 15,
  kExplosion = 16,
  kKeyRed = 17,
  kKeyGreen = 18,
  kKeyBlue = 19,
  kLockRed = 20,  // a lock is its key + 3
  kLockGreen = 21,
  kLockBlue = 22,
  kBiomass = 23,
  kFlea = 24,
  kSensor = 25,
  kCat = 26,
  kDragonFly = 27,
  kCatKey = 28,
  kFleaInTransit = 65534,  // only while the swarm steps
  kVacated = 65535,        // left in this tick, closed to all but the dog until the tick's end
};

// The physics of a cell: the values of the FieldState grid.
enum State : std::uint8_t {
  kFlat = 0,     // nothing rolls off it, gravity does not touch it
  kRounded = 1,  // things roll off it, it never falls
  kResting = 2,  // rounded, falls when it can
  kFalling = 3,
};

// One row for each letter of a cave text. Set-up, painter, editors and tools all read this table.
struct ObjectLetter {
  char letter;
  Object code;
  State state;           // at the start of a cave
  std::uint8_t mark;     // at the start of a cave
  std::uint8_t image;    // number of the tile set that draws it
  std::int8_t palette;   // place in the editor's palette, -1 when it has none
  std::int16_t tooltip;  // place of its name in the language table, -1 when it has none
};

inline constexpr std::array<ObjectLetter, 45> kObjectLetters{{
    {'.', kSpace, kFlat, 0, 0, 0, 10},         {';', kDirt, kFlat, 0, 1, 1, 11},
    {'R', kBoulder, kResting, 0, 2, 2, 12},    {'D', kGem, kResting, 0, 3, 3, 13},
    {'H', kDog, kFlat, 0, 4, 4, 58},           {'1', kDog, kFlat, 0, 4, 4, 58},
    {'2', kDog, kFlat, 0, 4, 4, 58},           {'3', kDog, kFlat, 0, 4, 4, 58},
    {'4', kDog, kFlat, 0, 4, 4, 58},           {'5', kDog, kFlat, 0, 4, 4, 58},
    {'6', kDog, kFlat, 0, 4, 4, 58},           {'7', kDog, kFlat, 0, 4, 4, 58},
    {'8', kDog, kFlat, 0, 4, 4, 58},           {'9', kDog, kFlat, 0, 4, 4, 58},
    {'X', kBrick, kRounded, 0, 5, 5, 14},      {'!', kKeyRed, kResting, 0, 17, 6, 15},
    {'@', kKeyGreen, kResting, 0, 17, 7, 16},  {'W', kSteel, kFlat, 0, 8, 8, 17},
    {'T', kFinish, kFlat, 0, 9, 9, 18},        {'A', kAmoeba, kFlat, 0, 10, 10, 19},
    {'M', kBrick, kFlat, 0, 5, 11, 20},        {'K', kBox, kRounded, 0, 11, 12, 21},
    {'#', kKeyBlue, kResting, 0, 17, 13, 22},  {'%', kLockRed, kRounded, 0, 18, 14, 23},
    {'S', kSlime, kFlat, 0, 14, 15, 24},       {'L', kFly, kFlat, 0, 15, 16, 25},
    {'F', kFireFly, kFlat, 1, 6, 17, 26},      {'O', kFireFly, kFlat, 2, 6, 18, 27},
    {'P', kFireFly, kFlat, 3, 6, 19, 28},      {'Q', kFireFly, kFlat, 4, 6, 20, 29},
    {'U', kButterFly, kFlat, 1, 7, 21, 30},    {'Y', kButterFly, kFlat, 2, 7, 22, 31},
    {'Z', kButterFly, kFlat, 3, 7, 23, 32},    {'B', kButterFly, kFlat, 4, 7, 24, 33},
    {'E', kWallH, kFlat, 0, 5, 25, 34},        {'V', kWallV, kFlat, 0, 5, 26, 35},
    {'&', kLockBlue, kRounded, 0, 18, 27, 36}, {'^', kLockGreen, kRounded, 0, 18, 28, 37},
    {'I', kBox, kFlat, 0, 22, 30, 38},         {'N', kFlea, kFlat, 0, 24, 31, 39},
    {'G', kSensor, kFlat, 0, 25, 32, 40},      {'J', kCat, kFlat, 0, 21, 33, 41},
    {':', kDragonFly, kFlat, 0, 20, 34, 42},   {'C', kBiomass, kFlat, 0, 23, -1, -1},
    {'$', kCatKey, kResting, 0, 26, -1, -1},
}};

// The row of a letter, or nothing for a letter that means no object.
const ObjectLetter* FindLetter(char letter);

// The number of the dog that a letter stands for, 0 for all other letters.
int DogNumber(char letter);

// Names of the tile sets, by number; they are the base names of the picture files.
inline constexpr std::array<std::string_view, 28> kTileSets{
    "Space",     "Dirt",  "Boulder",   "Gem",    "Dog",    "Brick",     "FireFly",
    "ButterFly", "Steel", "Finish",    "Amoeba", "Box",    "MagicWall", "1to2",
    "Slime",     "Fly",   "Explosion", "Keys",   "Locks",  "Teleport",  "DragonFly",
    "Cat",       "Bomb",  "Biomasa",   "Flea",   "Sensor", "CatKey",    "NoSurprise"};

}  // namespace zorik
