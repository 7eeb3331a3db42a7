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

// The amoeba fills its room over the slime in some three hundred ticks, and only then gems fall out of it.
TEST(SearchSkill, IsToWaitLongForTheGemsOfTheAmoeba) {
  Picture picture(10, std::string(16, 'W'));
  picture[1] = "WWA..........WWW";
  picture[2] = "WWSSSSSSSSSSSWWW";
  picture[3] = "W1;;;;;;;;;;;;;T";
  Expect({"gems of the amoeba",
          picture,
          {.time = 190, .needed = 5, .amoebaTime = 180, .permeability = 8},
          9000});
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
    for (std::size_t i = 0; i < boxes; ++i) picture[3][4 + 3 * i] = 'K';
    Expect({"bomb", picture, {.needed = 0, .permeability = 2}, 8000});
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

}  // namespace
}  // namespace zorik::test
