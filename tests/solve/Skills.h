#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/Machine.h"
#include "solve/Search.h"
#include "support/Scene.h"

namespace zorik::test {

// A cave that asks for one skill, and the ticks within which eight searches together should find their
// wins: by chance alone it takes several times as long.
struct Task {
  const char* skill;
  Picture picture;
  Numbers numbers;
  std::uint64_t ticks;
};

inline void Expect(const Task& task) {
  const Hra begin = Play(task.picture, task.numbers);
  std::uint64_t ticks = 0;
  for (std::uint64_t seed = 1; seed < 9; ++seed) {
    Search search(begin, seed, {});
    ASSERT_TRUE(search.Go(20 * task.ticks)) << task.skill << seed;
    Hra run = begin;
    TickEnd end = TickEnd::Running;
    for (const Move move : *search.Found()) {
      EXPECT_EQ(end, TickEnd::Running) << task.skill;
      end = Tick(run, KeysOf(move));
    }
    EXPECT_EQ(end, TickEnd::Won) << task.skill;
    ticks += search.Ticks();
  }
  EXPECT_LT(ticks, task.ticks) << task.skill << ": it looks in the wrong places";
}

// The wide room in which chance alone goes astray, with this row of things below.
inline Picture Room(const std::string& things) {
  Picture picture(12, "W" + std::string(38, ';') + "W");
  picture[0] = picture[11] = std::string(40, 'W');
  picture[1][1] = '1';
  picture.insert(picture.end() - 1, things);
  return picture;
}

// A room with this in its door, and the finish behind.
inline Picture RoomWithDoor(char door) {
  Picture picture = Room(std::string(40, 'W'));
  picture[11][19] = door;
  picture.insert(picture.end() - 1, std::string(19, 'W') + "." + std::string(20, 'W'));
  picture.insert(picture.end() - 1, std::string(19, 'W') + "..T" + std::string(18, 'W'));
  picture.insert(picture.end() - 1, std::string(19, 'W') + "." + std::string(20, 'W'));
  return picture;
}

}  // namespace zorik::test
