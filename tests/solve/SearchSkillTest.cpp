#include <gtest/gtest.h>

#include <algorithm>

#include "solve/Skills.h"

namespace zorik::test {
namespace {

TEST(SearchSkill, IsToFetchGemsOneAfterAnotherAndThenToLeave) {
  Picture picture = Room("W" + std::string(38, ';') + "T");
  for (const auto& [x, y] : {std::pair(30U, 2U), {4U, 9U}, {37U, 9U}, {20U, 5U}, {35U, 3U}})
    picture[y][x] = 'D';
  Expect({"gems", picture, {.needed = 5}, 5000});
}

TEST(SearchSkill, IsToPushABoxOutOfADoor) {
  Expect({"box", RoomWithDoor('K'), {.needed = 0}, 800});
}

// A green lock becomes a box, a blue one opens.
TEST(SearchSkill, IsToFetchAKeyForADoor) {
  for (const auto& [key, lock] : {std::pair('@', '^'), {'#', '&'}}) {
    Picture picture = RoomWithDoor(lock);
    picture[2][35] = key;
    Expect({"key", picture, {.needed = 0}, 1400});
  }
}

TEST(SearchSkill, IsToWaitForWhatComesInTime) {
  Expect({"wait",
          {"WWWWWWWWW", "WWWWDWWWW", "WWWWSWWWW", "W1;;.;;;T", "WWWWWWWWW"},
          {.needed = 1, .permeability = 3},
          700});
}

// It fills its room behind a box, and becomes gems.
TEST(SearchSkill, IsToWaitUntilTheAmoebaIsShutIn) {
  Expect({"amoeba",
          {"WWWWWWWWWW", "W1;KA...WW", "W;WWWWWWWW", "W;;;;;;;;T", "WWWWWWWWWW"},
          {.time = 400, .needed = 2, .amoebaTime = 1},
          1400});
}

TEST(SearchSkill, IsToTakeTurnsOfDogsAndSwarm) {
  Expect({"dogs", {"1;;DWWWWW", "WWWWWWWWW", "2;;;;D;WW", "WWWWWWWWW", "3;;D;;;;T"}, {.needed = 3}, 4000});
  Expect({"swarm", {"WWWWWWWWW", "W1;;DN;;T", "WWWWW.WWW", "WWWWW.WWW", "WWWWWWWWW"}, {.needed = 1}, 4000});
}

// A shaft crosses the way, in which it flies up and down.
TEST(SearchSkill, IsToWaitForWhatFliesAbout) {
  for (const char monster : {'F', 'U'}) {
    Picture picture(8, "WWWWWWWW.WWWW");
    picture[0] = picture[7] = std::string(13, 'W');
    picture[3] = "W1.;;;;;.;D;T";
    picture[6][8] = monster;
    Expect({"monsters", picture, {.needed = 1}, 800});
  }
}

// Who stands in the gem's cell is beside the firefly, from whatever side he comes.
TEST(SearchSkill, IsToTakeAtArmsLength) {
  const std::string row = "WFD;;1;;;;;;T", rock(row.size(), 'W');
  const std::string back(row.rbegin(), row.rend());
  Expect({"arm", {rock, row, rock}, {.needed = 1}, 3500});
  Expect({"arm to the right", {rock, back, rock}, {.needed = 1}, 2400});
  Picture down, up;
  for (std::size_t i = 0; i < row.size(); ++i) {
    up.push_back(std::string{'W', row[i], 'W'});
    down.push_back(std::string{'W', back[i], 'W'});
  }
  Expect({"arm upwards", up, {.needed = 1}, 2900});
  Expect({"arm downwards", down, {.needed = 1}, 2800});
}

TEST(SearchSkill, IsToPushTheRightOneOfManyBoxes) {
  Picture picture = RoomWithDoor('K');
  for (std::size_t x = 4; x < 36; x += 4) picture[3][x] = picture[7][x] = 'K';
  Expect({"boxes", picture, {.needed = 0}, 800});
}

TEST(SearchSkill, IsToPushABoulderAside) {
  Expect({"boulder",
          {"WWWWWWWWWWWW", "W1;;;;;;R..W", "WWWWWWWW;WWW", "WWWWWWWW;;TW", "WWWWWWWWWWWW"},
          {.needed = 0},
          600});
}

// The last of them stands where only the finish is, and the others must have fetched the gems before.
TEST(SearchSkill, IsToSendEachDogForHisGems) {
  Expect({"three dogs",
          {"WWWWWWWWWWWW", "W1;;D;;D;;;W", "WWWWWWWWWWWW", "W2D;;;;;;D;W", "WWWWWWWWWWWW", "W3;;;;;;;;;T"},
          {.needed = 4},
          2600});
}

// A boulder at the end of the room, over the edge of a shaft with a bomb in it: the blast opens the way to
// the finish. No way leads by the boulder's cell, so only who wants to push it comes upon that. All the
// others lie under holes, where they cannot be pushed from below.
TEST(SearchSkill, IsToPushABoulderOverAnEdge) {
  for (const bool left : {false, true}) {
    Picture picture = Room(std::string(40, 'W'));
    for (std::string& row : picture) row += "WWW";
    picture[4][38] = 'R';
    for (std::size_t y = 4; y < 9; ++y) picture[y][39] = '.';
    for (std::size_t y = 8; y < 11; ++y) picture[y][40] = 'X';
    picture[9][39] = 'I';
    picture[9][41] = 'T';
    for (std::size_t x = 3; x < 36; x += 2) {
      picture[7][x] = 'R';
      picture[6][x] = '.';
    }
    for (std::string& row : picture) {
      if (left) std::reverse(row.begin(), row.end());
    }
    Expect({"edge", picture, {.needed = 0}, 5000});
  }
}

}  // namespace
}  // namespace zorik::test
