#include <gtest/gtest.h>

#include "solve/Skills.h"

// More of what a search must be able to do: each cave asks for just that, and hardly anything else helps.
namespace zorik::test {
namespace {

// The cat stands in the door, and goes down into the nook when its key is taken.
TEST(SearchSkill, IsToFetchTheCatsKey) {
  Picture picture = RoomWithDoor('J');
  picture[2][35] = '$';
  Expect({"cat key", picture, {.needed = 0, .script = "*A/Z*I-H/Z"}, 2400});
}

// An amoeba in a room of so many cells over the way, with slime below.
Picture UnderAnAmoeba(std::size_t cells) {
  Picture picture(10, std::string(16, 'W'));
  picture[1].replace(2, cells, "A" + std::string(cells - 1, '.'));
  picture[2].replace(2, cells, std::string(cells, 'S'));
  picture[3] = "W1;;;;;;;;;;;;;T";
  return picture;
}

// It fills its room in some three hundred ticks, and only then gems fall out of it.
TEST(SearchSkill, IsToWaitLongForTheGemsOfTheAmoeba) {
  Expect({"gems of the amoeba",
          UnderAnAmoeba(11),
          {.time = 190, .needed = 5, .amoebaTime = 180, .permeability = 8},
          9000});
}

// As soon as there are enough of them the time is nearly up.
TEST(SearchSkill, IsToWaitNoLongerThanForAGem) {
  Expect({"two gems of the amoeba",
          UnderAnAmoeba(8),
          {.time = 20, .needed = 2, .amoebaTime = 180, .permeability = 8},
          6200});
}

// A boulder lies on a box, over a shaft with a bomb in it that opens the way to the finish. From below nobody
// comes to the box, and nothing is to be had in its cell.
TEST(SearchSkill, IsToPushABoxAwayFromUnderABoulder) {
  Picture picture = Room(std::string(40, 'W'));
  for (std::string& row : picture) row += "WWW";
  for (std::size_t y = 2; y < 10; ++y) picture[y].replace(37, 2, "WW");
  picture[4].replace(37, 3, ";K.");
  picture[3][38] = 'R';
  for (std::size_t y = 5; y < 8; ++y) picture[y][38] = '.';
  for (std::size_t y = 7; y < 10; ++y) picture[y][39] = 'X';
  picture[8].replace(38, 3, "IXT");
  Expect({"box under a boulder", picture, {.needed = 0}, 4000});
  // Though there are bombs as well, which are mostly worth more.
  for (std::size_t x = 4; x < 20; x += 4) {
    picture[3].replace(x, 2, "I.");
    picture[4][x] = '.';
  }
  Expect({"box, not bombs", picture, {.needed = 0}, 5000});
}

// Boulders drip through the slime, down a shaft beside the room. The bomb must come into the shaft, so that
// one of them strikes it; there are boxes that can be pushed as well, to no end.
TEST(SearchSkill, IsToPushABombUnderWhatFalls) {
  for (const std::size_t boxes : {0U, 4U}) {
    Picture picture(14, "W" + std::string(22, ';') + "WWWW");
    picture[0] = picture[11] = picture[12] = picture[13] = std::string(27, 'W');
    picture[1][1] = '1';
    for (std::size_t y = 1; y < 8; ++y) picture[y][23] = 'R';
    picture[8][23] = 'S';
    for (std::size_t y = 9; y < 13; ++y) picture[y][23] = '.';
    for (std::size_t y = 9; y < 12; ++y) picture[y][24] = 'X';
    picture[10].replace(22, 4, "I.XT");
    for (std::size_t i = 0; i < boxes; ++i) {
      picture[3].replace(4 + 3 * i, 2, "K.");
      picture[4][4 + 3 * i] = '.';
    }
    Expect({"bomb", picture, {.needed = 0, .permeability = 2}, boxes == 0 ? 8000U : 17300U});
  }
}

// There are more gems nearby than anybody wants to fetch for nothing.
TEST(SearchSkill, IsToLeaveTheGemsOnceTheFinishIsOpen) {
  Picture picture(9, "W" + std::string(68, ';') + "W");
  picture[0] = picture[8] = std::string(70, 'W');
  picture[1][1] = '1';
  for (std::size_t y = 2; y < 8; ++y) picture[y].replace(3, 8, "DDDDDDDD");
  picture[7][69] = 'T';
  Expect({"gems for nothing", picture, {.time = 20, .needed = 0}, 1600});
}

// The gems far off are too far for the time that there is; one is near.
TEST(SearchSkill, IsToFetchTheNearGem) {
  const std::string rock(70, 'W');
  Expect({"near gem",
          {rock, "WDWWWWWWWWT" + std::string(59, 'W'), "W;;;1" + std::string(63, ';') + "DW", rock},
          {.time = 4, .needed = 1},
          2700});
  Expect({"nearer gems",
          {rock, "WT;;;;;;D;;1" + std::string(55, ';') + "DDW", rock},
          {.time = 4, .needed = 1},
          3000});
}

// What circles in a nook beside the way kills who goes by at the wrong moment.
TEST(SearchSkill, IsToLetPassWhatCirclesBesideTheWay) {
  Expect(
      {"butterfly",
       {"WWWWWWWWWWWWWWWW", "W1;;;;;;;;;;;;DT", "WWWWW..WWWWWWWWW", "WWWWW.UWWWWWWWWW", "WWWWWWWWWWWWWWWW"},
       {.needed = 1},
       1050});
  Expect({"fireflies",
          {"WWWWWWWWWWWWWWWWWWWW", "W1;;;;;;;;;;;;;;;;DT", "WWWWWO.WWWWO.WWWWWWW", "WWWWW..WWWW..WWWWWWW",
           "WWWWWWWWWWWWWWWWWWWW"},
          {.needed = 1},
          800});
}

// Fireflies in nooks on both sides: by some of them only he comes who dares.
TEST(SearchSkill, IsToDareToGoByAtTimes) {
  Picture picture(7, std::string(30, 'W'));
  picture[3] = "W1" + std::string(26, ';') + "DT";
  for (const std::size_t x : {6U, 16U}) picture[4][x] = '.', picture[5][x] = 'F';
  for (const std::size_t x : {11U, 21U}) picture[2][x] = '.', picture[1][x] = 'F';
  Expect({"nooks", picture, {.needed = 1}, 24000});
}

// Death is at the nearest gem, unless it is taken at arm's length; but one of those farther off will do.
TEST(SearchSkill, IsToFetchAnotherGemThanTheNearest) {
  const std::string rock(40, 'W');
  Expect({"another gem", {rock, "WFD;;1" + std::string(31, ';') + "DTW", rock}, {.needed = 1}, 2000});
}

// There is time for thousands of ticks, but it leads nowhere to stand about for so long: neither in a room of
// gems nor beside an amoeba that has all the room that it wants.
TEST(SearchSkill, IsToWaitNoLongerThanItHelps) {
  Picture picture = Room("W" + std::string(38, ';') + "T");
  for (const auto& [x, y] : {std::pair(30U, 2U), {4U, 9U}, {37U, 9U}, {20U, 5U}, {35U, 3U}})
    picture[y][x] = 'D';
  Expect({"gems", picture, {.time = 1900, .needed = 5}, 6600});
  picture.push_back(std::string(40, 'W'));
  picture.insert(picture.end(), 6, "W" + std::string(38, '.') + "W");
  picture[picture.size() - 6][1] = 'A';
  picture.push_back(std::string(40, 'W'));
  Expect({"beside an amoeba", picture, {.time = 1900, .needed = 5, .amoebaTime = 180}, 9600});
}

// He is walled in until a firefly has come all the way to the cat, and nothing that he does meanwhile changes
// anything.
TEST(SearchSkill, IsToWaitWhereNothingElseCanBeDone) {
  for (const auto& [length, ticks] : {std::pair(30U, 5000U), {40U, 8000U}}) {
    Picture picture(7, std::string(length + 6, 'W'));
    picture[1] = "WP" + std::string(length, '.') + "J.TW";
    picture[2].replace(length, 3, "XXX");
    picture[3][length + 1] = '1';
    Expect({"walled in", picture, {.needed = 0, .script = "*A-M/Z"}, ticks});
  }
}

// The boulder lies on earth in the roof, over a shaft with a bomb in it: who digs from below must be gone
// before it comes.
TEST(SearchSkill, IsToDigAwayTheEarthUnderABoulderFromBelow) {
  Expect({"earth in the roof",
          {"WWWWWWWWWWWW", "WWWWRWWWWWWW", "WWWW;WWWWWWW", "W1;;;;;;;;;W", "WWWW.WWWWWWW", "WWWW.WWWWWWW",
           "WWWWIWWWWWWW", "WWWXXXWWWWWW", "WWWWTWWWWWWW", "WWWWWWWWWWWW"},
          {.needed = 0},
          2700});
}

// Over the way, which is high enough to go by under it.
TEST(SearchSkill, IsToTakeTheEarthAwayThatHoldsABoulder) {
  Picture picture(15, std::string(40, 'W'));
  for (std::size_t y = 5; y < 9; ++y) picture[y] = "W" + std::string(38, ';') + "W";
  picture[5][1] = '1';
  picture[3][30] = 'R';
  picture[4][30] = ';';
  for (std::size_t y = 5; y < 11; ++y) picture[y][30] = '.';
  picture[11][30] = 'I';
  picture[12].replace(29, 3, "XXX");
  picture[13][30] = 'T';
  Expect({"boulder in the roof", picture, {.needed = 0}, 4900});
}

}  // namespace
}  // namespace zorik::test
