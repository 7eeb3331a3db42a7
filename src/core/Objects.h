#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/TextId.h"

namespace zorik {

// What a cell of the cave can hold: the codes of the Field grid.
enum Object : std::uint16_t {
  kSpace = 0,
  kDirt = 1,
  kBoulder = 2,
  kGem = 3,
  kDog = 4,
  kBrick = 5,
  kFireFly = 6,
  kButterFly = 7,
  kSteel = 8,
  kFinish = 9,
  kAmoeba = 10,
  kBox = 11,
  kWallH = 12,  // grows left and right
  kWallV = 13,  // grows up and down
  kSlime = 14,
  kFly = 15,
  kExplosion = 16,
  kKeyRed = 17,
  kKeyGreen = 18,
  kKeyBlue = 19,
  kLockRed = 20,
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

// Tables by code have so many places, a power of two. The two codes above fall on the last of them.
inline constexpr std::size_t kCodes = 32;

// The physics of a cell: the values of the FieldState grid. Some codes mean something else when they are
// flat: Patterns.h tells them.
enum State : std::uint8_t {
  kFlat = 0,     // nothing rolls off it, gravity does not touch it
  kRounded = 1,  // things roll off it, it never falls
  kResting = 2,  // rounded, falls when it can
  kFalling = 3,
};

// The tile sets. Skins know them by their names, which are the base names of the picture files.
enum TileSet : std::uint8_t {
  kSetSpace,
  kSetDirt,
  kSetBoulder,
  kSetGem,
  kSetDog,
  kSetBrick,
  kSetFireFly,
  kSetButterFly,
  kSetSteel,
  kSetFinish,
  kSetAmoeba,
  kSetBox,
  kSetMagicWall,
  kSetSplitter,
  kSetSlime,
  kSetFly,
  kSetExplosion,
  kSetKeys,
  kSetLocks,
  kSetTeleport,
  kSetDragonFly,
  kSetCat,
  kSetBomb,
  kSetBiomass,
  kSetFlea,
  kSetSensor,
  kSetCatKey,
  kSetNoSurprise,
  kSetEnd,  // how many there are; a new one comes before it
};
inline constexpr std::array<std::string_view, kSetEnd> kTileSets{
    "Space",     "Dirt",  "Boulder",   "Gem",    "Dog",    "Brick",     "FireFly",
    "ButterFly", "Steel", "Finish",    "Amoeba", "Box",    "MagicWall", "1to2",
    "Slime",     "Fly",   "Explosion", "Keys",   "Locks",  "Teleport",  "DragonFly",
    "Cat",       "Bomb",  "Biomasa",   "Flea",   "Sensor", "CatKey",    "NoSurprise"};
inline constexpr std::size_t kTileSetCount = kTileSets.size();

// Which row of its tile set's frames an object shows.
enum class Rows : std::uint8_t {
  Still,        // the first
  ByLot,        // any, another one at each repainting
  MostlyFirst,  // likewise, but the first one most of the time
  ByPlace,      // a fixed pattern over the cave
  ByClock,      // the next one in every tick
  Own,          // view/CellPictures.cpp has a rule for it
};

// What the object scan does with an object, whatever its state; what can fall has fallen before.
enum class Acting : std::uint8_t {
  Nothing,
  GivesRoom,  // is counted as room where amoeba is beside it
  GoesOff,    // when it is flat: a struck bomb
  Steps,      // goes by its heading, once in a tick
  Hunts,
  LetsThrough,
  GrowsAside,
  GrowsUpright,
};

// What the closing scan does with it beside ending its move.
enum class Ending : std::uint8_t {
  Nothing,
  Repaints,
  Petrifies,
  Counts,  // its mark is a countdown and no heading
  Burns,   // its mark is a phase and no heading
};

// What else is to be known of an object.
namespace trait {
inline constexpr std::uint16_t kBlocks = 1;       // no dog enters it
inline constexpr std::uint16_t kCatEnters = 2;    // the cat does; a gem only while it rests
inline constexpr std::uint16_t kDeadly = 4;       // monsters die beside it
inline constexpr std::uint16_t kMonster = 8;      // dies beside what is deadly
inline constexpr std::uint16_t kSquashable = 16;  // blows up when something falls on it
inline constexpr std::uint16_t kRings = 32;       // lands with a ring, others with a thud
inline constexpr std::uint16_t kStirring = 64;    // sensors notice its repainting, whatever its state
inline constexpr std::uint16_t kGlitters = 128;   // repainted in every tick; Count() must know it
inline constexpr std::uint16_t kCounted = 256;    // Count() knows how many there are
}  // namespace trait

// What stays hidden in the game: frames of set NoSurprise.
enum Secret : std::int8_t {
  kNoSecret = -1,
  kSecretMagicWall = 0,
  kSecretWallH = 1,
  kSecretWallV = 2,
  kSecretFinish = 3,
};

// A mark above it is ten times the heading that a monster has followed in this tick.
inline constexpr std::uint8_t kHighestHeading = 4;

// A way in which an object stands in a new cave, and the letters that mean it in a cave text.
struct Form {
  std::string_view letters;
  State state = kFlat;
  std::uint8_t mark = 0;
  int palette = -1;                // place in the editor's palette, -1 when it has none
  std::optional<TextId> name{};    // its name, when it has one
  Secret secret = kNoSecret;       // what the editor shows of it, since there nothing is hidden
  std::optional<TileSet> tiles{};  // that draws it, when that is not the object's
};

// One row for each object, at the place of its code. Set-up, scans, rules, painter, editors and tools read
// this table.
struct ObjectRow {
  Object code;
  TileSet tiles;
  std::uint8_t column = 0;  // of its tile set
  Rows rows = Rows::Still;
  Acting acts = Acting::Nothing;
  Ending ends = Ending::Nothing;
  std::uint16_t traits = 0;
  std::array<Form, 4> forms{};  // those without letters do not count
};

inline constexpr auto kObjects = [] {
  using namespace trait;
  return std::to_array<ObjectRow>({
      {.code = kSpace,
       .tiles = kSetSpace,
       .rows = Rows::ByPlace,
       .acts = Acting::GivesRoom,
       .traits = kCatEnters | kStirring,
       .forms = {{{".", kFlat, 0, 0, TextId::Space}}}},
      {.code = kDirt,
       .tiles = kSetDirt,
       .rows = Rows::ByLot,
       .acts = Acting::GivesRoom,
       .traits = kCatEnters,
       .forms = {{{";", kFlat, 0, 1, TextId::Dirt}}}},
      {.code = kBoulder,
       .tiles = kSetBoulder,
       .rows = Rows::ByLot,
       .acts = Acting::GoesOff,
       .traits = kBlocks,
       .forms = {{{"R", kResting, 0, 2, TextId::Boulder}}}},
      {.code = kGem,
       .tiles = kSetGem,
       .rows = Rows::ByClock,
       .traits = kCatEnters | kRings | kGlitters | kCounted,
       .forms = {{{"D", kResting, 0, 3, TextId::Gem}}}},
      {.code = kDog,
       .tiles = kSetDog,
       .column = 1,
       .rows = Rows::ByLot,
       .traits = kBlocks | kDeadly | kSquashable | kStirring | kCounted,
       .forms = {{{"H123456789", kFlat, 0, 4, TextId::Dog}}}},
      {.code = kBrick,
       .tiles = kSetBrick,
       .rows = Rows::MostlyFirst,
       .traits = kBlocks,
       .forms = {{{"X", kRounded, 0, 5, TextId::Brick},
                  {"M", kFlat, 0, 11, TextId::MagicWall, kSecretMagicWall}}}},
      {.code = kFireFly,
       .tiles = kSetFireFly,
       .rows = Rows::ByClock,
       .acts = Acting::Steps,
       .traits = kBlocks | kMonster | kSquashable | kStirring,
       .forms = {{{"F", kFlat, 1, 17, TextId::FireFlyLeft},
                  {"O", kFlat, 2, 18, TextId::FireFlyUp},
                  {"P", kFlat, 3, 19, TextId::FireFlyRight},
                  {"Q", kFlat, 4, 20, TextId::FireFlyDown}}}},
      {.code = kButterFly,
       .tiles = kSetButterFly,
       .rows = Rows::ByClock,
       .acts = Acting::Steps,
       .traits = kBlocks | kMonster | kSquashable | kStirring,
       .forms = {{{"U", kFlat, 1, 21, TextId::ButterFlyLeft},
                  {"Y", kFlat, 2, 22, TextId::ButterFlyUp},
                  {"Z", kFlat, 3, 23, TextId::ButterFlyRight},
                  {"B", kFlat, 4, 24, TextId::ButterFlyDown}}}},
      {.code = kSteel,
       .tiles = kSetSteel,
       .rows = Rows::ByLot,
       .traits = kBlocks,
       .forms = {{{"W", kFlat, 0, 8, TextId::Steel}}}},
      {.code = kFinish,
       .tiles = kSetFinish,
       .rows = Rows::ByClock,
       .traits = kBlocks | kStirring | kCounted,
       .forms = {{{"T", kFlat, 0, 9, TextId::Finish}}}},
      {.code = kAmoeba,
       .tiles = kSetAmoeba,
       .rows = Rows::ByClock,
       .ends = Ending::Petrifies,
       .traits = kBlocks | kDeadly | kCounted,
       .forms = {{{"A", kFlat, 0, 10, TextId::Amoeba}}}},
      {.code = kBox,
       .tiles = kSetBox,
       .rows = Rows::ByLot,
       .traits = kBlocks | kStirring,
       .forms = {{{"K", kRounded, 0, 12, TextId::Box},
                  {"I", kFlat, 0, 30, TextId::Bomb, kNoSecret, kSetBomb}}}},
      {.code = kWallH,
       .tiles = kSetBrick,
       .rows = Rows::MostlyFirst,
       .acts = Acting::GrowsAside,
       .traits = kBlocks | kStirring,
       .forms = {{{"E", kFlat, 0, 25, TextId::WallH, kSecretWallH}}}},
      {.code = kWallV,
       .tiles = kSetBrick,
       .rows = Rows::MostlyFirst,
       .acts = Acting::GrowsUpright,
       .traits = kBlocks | kStirring,
       .forms = {{{"V", kFlat, 0, 26, TextId::WallV, kSecretWallV}}}},
      {.code = kSlime,
       .tiles = kSetSlime,
       .rows = Rows::ByClock,
       .acts = Acting::LetsThrough,
       .ends = Ending::Repaints,
       .traits = kBlocks,
       .forms = {{{"S", kFlat, 0, 15, TextId::Slime}}}},
      {.code = kFly,
       .tiles = kSetFly,
       .rows = Rows::ByClock,
       .acts = Acting::Steps,
       .traits = kBlocks | kMonster | kSquashable | kStirring,
       .forms = {{{"L", kFlat, 0, 16, TextId::Fly}}}},
      {.code = kExplosion,
       .tiles = kSetExplosion,
       .rows = Rows::Own,
       .ends = Ending::Burns,
       .traits = kBlocks | kStirring | kCounted},
      {.code = kKeyRed,
       .tiles = kSetKeys,
       .column = 0,
       .rows = Rows::ByClock,
       .traits = kCatEnters | kRings | kGlitters | kCounted,
       .forms = {{{"!", kResting, 0, 6, TextId::KeyRed}}}},
      {.code = kKeyGreen,
       .tiles = kSetKeys,
       .column = 1,
       .rows = Rows::ByClock,
       .traits = kCatEnters | kRings | kGlitters | kCounted,
       .forms = {{{"@", kResting, 0, 7, TextId::KeyGreen}}}},
      {.code = kKeyBlue,
       .tiles = kSetKeys,
       .column = 2,
       .rows = Rows::ByClock,
       .traits = kCatEnters | kRings | kGlitters | kCounted,
       .forms = {{{"#", kResting, 0, 13, TextId::KeyBlue}}}},
      {.code = kLockRed,
       .tiles = kSetLocks,
       .column = 0,
       .rows = Rows::ByLot,
       .traits = kBlocks,
       .forms = {{{"%", kRounded, 0, 14, TextId::LockRed}}}},
      {.code = kLockGreen,
       .tiles = kSetLocks,
       .column = 1,
       .rows = Rows::ByLot,
       .traits = kBlocks,
       .forms = {{{"^", kRounded, 0, 28, TextId::LockGreen}}}},
      {.code = kLockBlue,
       .tiles = kSetLocks,
       .column = 2,
       .rows = Rows::ByLot,
       .traits = kBlocks,
       .forms = {{{"&", kRounded, 0, 27, TextId::LockBlue}}}},
      {.code = kBiomass, .tiles = kSetBiomass, .rows = Rows::ByClock, .traits = kBlocks, .forms = {{{"C"}}}},
      {.code = kFlea,
       .tiles = kSetFlea,
       .rows = Rows::ByClock,
       .ends = Ending::Repaints,
       .traits = kBlocks | kSquashable | kStirring,
       .forms = {{{"N", kFlat, 0, 31, TextId::Flea}}}},
      {.code = kSensor,
       .tiles = kSetSensor,
       .rows = Rows::Own,
       .ends = Ending::Counts,
       .traits = kBlocks | kCounted,
       .forms = {{{"G", kFlat, 0, 32, TextId::Sensor}}}},
      {.code = kCat,
       .tiles = kSetCat,
       .rows = Rows::Own,
       .traits = kBlocks | kDeadly | kSquashable | kStirring | kCounted,
       .forms = {{{"J", kFlat, 0, 33, TextId::Cat}}}},
      {.code = kDragonFly,
       .tiles = kSetDragonFly,
       .rows = Rows::ByClock,
       .acts = Acting::Hunts,
       .traits = kBlocks | kMonster | kSquashable | kStirring,
       .forms = {{{":", kFlat, 0, 34, TextId::DragonFly}}}},
      {.code = kCatKey,
       .tiles = kSetCatKey,
       .rows = Rows::ByClock,
       .traits = kCatEnters | kGlitters | kCounted,
       .forms = {{{"$", kResting}}}},
  });
}();
inline constexpr std::size_t kObjectCount = kObjects.size();

// Whether a cell holds an object, and none of the two codes that a tick has for its own use.
constexpr bool IsObject(std::uint16_t code) {
  return code < kObjectCount;
}

// A lock is opened by the key of its colour, and locks stand in the order of their keys.
constexpr bool IsKey(std::uint16_t code) {
  return code >= kKeyRed && code <= kKeyBlue;
}
constexpr std::uint16_t LockOf(std::uint16_t key) {
  return static_cast<std::uint16_t>(key - kKeyRed + kLockRed);
}

// A letter of a cave text, with all that the table tells of it.
struct ObjectLetter {
  char letter = 0;
  Object code = kSpace;
  State state = kFlat;
  std::uint8_t mark = 0;
  TileSet image = kSetSpace;
  std::uint8_t column = 0;
  int palette = -1;
  std::optional<TextId> name{};
  Secret secret = kNoSecret;
};

inline constexpr std::size_t kLetterCount = [] {
  std::size_t count = 0;
  for (const ObjectRow& object : kObjects) {
    for (const Form& form : object.forms) count += form.letters.size();
  }
  return count;
}();

// All letters, in the order of the table.
inline constexpr auto kObjectLetters = [] {
  std::array<ObjectLetter, kLetterCount> letters{};
  std::size_t place = 0;
  for (const ObjectRow& object : kObjects) {
    for (const Form& form : object.forms) {
      const TileSet image = form.tiles.value_or(object.tiles);
      for (const char letter : form.letters) {
        letters[place++] = {letter,        object.code,  form.state, form.mark,  image,
                            object.column, form.palette, form.name,  form.secret};
      }
    }
  }
  return letters;
}();

// The row of a letter, or nothing for a letter that means no object.
const ObjectLetter* FindLetter(char letter);

// The number of the dog that a letter stands for, 0 for all other letters.
int DogNumber(char letter);

}  // namespace zorik
