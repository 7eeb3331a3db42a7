#pragma once

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>

#include "support/Scene.h"

// What tests of the cat share.
namespace zorik::test {

// Lets the cat take its part of a tick; it must draw all outcomes and none beyond them.
inline void LetAct(Hra& hra, std::initializer_list<int> outcomes = {}) {
  Foretell(hra, outcomes);
  Kocka(hra);
  EXPECT_TRUE(Drained(hra));
}

inline Hra CatIn(const Picture& picture, const std::string& program) {
  return Live(picture, {.script = program});
}

inline Cell CatCell(const Hra& hra) {
  return {hra.CatX, hra.CatY};
}

inline const Picture kOpen{".....", ".....", "..J..", ".....", "....."};
inline const Picture kWalled{"WWW", "WJW", "WWW"};
inline constexpr Cell kMiddle(2, 2);

// By direction of the language: left, right, up, down.
inline constexpr std::array<zorik::Step, 4> kWays{kLeft, kRight, kUp, kDown};

}  // namespace zorik::test
