#include <gtest/gtest.h>

#include <set>

#include "core/Machine.h"
#include "solve/Worth.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

constexpr int kLevel = 7;  // any will do

std::uint64_t KeyOf(const Hra& run) {
  return Worth(run).Key(run, kLevel);
}
std::uint64_t SituationOf(const Hra& run, Grain grain) {
  return Worth(run).Situation(run, grain);
}

// A cave with dog 1 in its corner and a letter elsewhere.
Hra With(char letter, std::size_t x = 3, std::size_t y = 2) {
  Picture picture(5, std::string(8, '.'));
  picture[0][0] = '1';
  picture[y][x] = letter;
  return Play(picture);
}

TEST(WorthKey, TellsTheLevelsApart) {
  const Hra run = With('D');
  std::set<std::uint64_t> keys;
  for (int level = -30; level < 30; ++level) keys.insert(Worth(run).Key(run, level));
  EXPECT_EQ(keys.size(), 60U);
}

TEST(WorthKey, TellsTheVeryCellsOfTheSteeredDogApart) {
  std::set<std::uint64_t> keys;
  for (std::size_t y = 0; y < 60; y += 3) {
    for (std::size_t x = 0; x < 100; x += 3) {
      Hra run = With('.');
      run.Dog[1].x = static_cast<int>(x);
      run.Dog[1].y = static_cast<int>(y);
      EXPECT_TRUE(keys.insert(KeyOf(run)).second) << x << ' ' << y;
    }
  }
}

// Squares of two by two cells.
TEST(WorthKey, TellsWhereAnotherDogIsAboutApart) {
  const auto key = [](int x, int y) {
    Hra run = With('2');
    run.Dog[2].x = x;
    run.Dog[2].y = y;
    return KeyOf(run);
  };
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 6; ++x) {
      for (const auto& [otherX, otherY] : {std::pair(2, 2), {0, 4}, {5, 1}}) {
        const bool same = x / 2 == otherX / 2 && y / 2 == otherY / 2;
        EXPECT_EQ(key(x, y) == key(otherX, otherY), same) << x << ' ' << y << ' ' << otherX << ' ' << otherY;
      }
    }
  }
}

TEST(WorthKey, TellsApartWhichDogsLiveButNotWhereTheOthersLie) {
  const Hra begin = Play({"1.....", "..23..", "......"});
  std::set<std::uint64_t> keys;
  for (unsigned dead = 0; dead < 4; ++dead) {
    Hra run = begin;
    run.Dog[2].Alive = (dead & 1U) == 0;
    run.Dog[3].Alive = (dead & 2U) == 0;
    keys.insert(KeyOf(run));
  }
  EXPECT_EQ(keys.size(), 4U);
  Hra one = begin, other = begin;
  one.Dog[2].Alive = other.Dog[2].Alive = false;
  other.Dog[2].x = 5;
  EXPECT_EQ(KeyOf(one), KeyOf(other));
}

TEST(WorthKey, TellsApartWhoIsSteeredAndWhetherTheSwarmLives) {
  const Hra begin = Play({"12N...", "......", "......"});
  Hra other = begin;
  other.ActiveDog = 2;
  EXPECT_NE(KeyOf(begin), KeyOf(other));
  Hra dead = begin;
  dead.Dog[0].Alive = !dead.Dog[0].Alive;
  EXPECT_NE(KeyOf(begin), KeyOf(dead));
}

TEST(WorthKey, TellsThePlacesInACatsProgramApart) {
  const auto key = [](char letter, int place) {
    Hra run = With(letter);
    run.CatPresent = letter == 'J';
    run.CatPC = place;
    return KeyOf(run);
  };
  EXPECT_NE(key('J', 1), key('J', 2));
  EXPECT_EQ(key('.', 1), key('.', 2)) << "no cat runs it";
}

// Where heavy things are is told roughly only: two heaps in thirty may be taken for each other.
TEST(WorthKey, TellsHeapsOfBouldersAndBoxesApart) {
  for (const char heavy : {'R', 'K'}) {
    std::set<std::uint64_t> keys;
    for (std::size_t x = 0; x < 8; ++x) keys.insert(KeyOf(With(heavy, x, 3)));
    EXPECT_GT(keys.size(), 4U) << heavy;
    EXPECT_NE(KeyOf(With(heavy)), KeyOf(With('.'))) << heavy;
  }
  for (const char light : {';', 'D', 'X', '!'}) EXPECT_EQ(KeyOf(With(light)), KeyOf(With('.'))) << light;
}

constexpr std::string_view kLasting = "XC!@#$EVT%^&GI";

TEST(WorthSituation, IsOfWhatLastsWithEveryGrain) {
  for (const Grain grain : {Grain::Bombs, Grain::Heaps, Grain::Things}) {
    const std::uint64_t empty = SituationOf(With('.'), grain);
    std::set<std::uint64_t> all{empty};
    for (const char letter : kLasting) {
      EXPECT_TRUE(all.insert(SituationOf(With(letter), grain)).second) << letter;
      EXPECT_TRUE(all.insert(SituationOf(With(letter, 4), grain)).second) << letter << " elsewhere";
    }
  }
}

TEST(WorthSituation, WithTheCoarsestGrainIsOfNothingElse) {
  const std::uint64_t empty = SituationOf(With('.'), Grain::Bombs);
  for (const char letter : std::string(";RDKFOPQUYZBL:A"))
    EXPECT_EQ(SituationOf(With(letter), Grain::Bombs), empty) << letter;
}

// What falls is not yet where it will lie.
TEST(WorthSituation, IsNotOfWhatFalls) {
  const auto falling = [](char letter, std::size_t x) {
    Hra run = With(letter, x);
    run.SetFieldState({static_cast<int>(x), 2}, kFalling);
    return run;
  };
  for (const char key : {'!', '@', '#', '$'})
    EXPECT_EQ(SituationOf(falling(key, 2), Grain::Things), SituationOf(falling(key, 5), Grain::Things))
        << key;
  EXPECT_EQ(SituationOf(falling('!', 2), Grain::Things), SituationOf(With('.'), Grain::Things));
  EXPECT_EQ(SituationOf(falling('R', 2), Grain::Things), SituationOf(With('.'), Grain::Things));
  EXPECT_NE(SituationOf(With('R', 2), Grain::Things), SituationOf(With('.'), Grain::Things));
}

TEST(WorthSituation, TellsHeapsRoughlyAndThingsExactly) {
  for (const char heavy : {'R', 'K'}) {
    std::set<std::uint64_t> bombs, heaps, things;
    for (std::size_t i = 1; i < 40; ++i) {
      const Hra run = With(heavy, i % 8, i / 8);
      bombs.insert(SituationOf(run, Grain::Bombs));
      heaps.insert(SituationOf(run, Grain::Heaps));
      things.insert(SituationOf(run, Grain::Things));
    }
    EXPECT_EQ(bombs.size(), 1U) << heavy;
    EXPECT_GT(heaps.size(), 10U) << heavy;
    EXPECT_LE(heaps.size(), 31U) << heavy;
    EXPECT_EQ(things.size(), 39U) << heavy;
  }
}

TEST(WorthSituation, TellsWhichDogsAndWhetherTheSwarmLive) {
  const Hra begin = Play({"123N..", "......"});
  for (const Grain grain : {Grain::Bombs, Grain::Heaps, Grain::Things}) {
    std::set<std::uint64_t> all;
    for (unsigned dead = 0; dead < 16; ++dead) {
      Hra run = begin;
      for (unsigned n = 0; n < 4; ++n) run.Dog[n].Alive = (dead >> n & 1U) == 0;
      all.insert(SituationOf(run, grain));
    }
    EXPECT_EQ(all.size(), 16U);
  }
}

TEST(WorthSituation, TellsTheStatesOfTheMagicWallApart) {
  const auto state = [](auto magic) {
    Hra run = With('M');
    run.MagicState = magic;
    return SituationOf(run, Grain::Bombs);
  };
  EXPECT_NE(state(kMagicDormant), state(kMagicSpent));
}

}  // namespace
}  // namespace zorik::test
