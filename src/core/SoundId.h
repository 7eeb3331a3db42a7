#pragma once

#include <cstddef>

namespace zorik {

// The sounds of the game, by the numbers that they have had from the beginning. src/skin/Sounds.cpp tells
// which recordings of a skin they are.
enum class SoundId {
  Dirt = 0,
  FallGem = 1,
  CollectGem = 2,
  Boulder = 3,
  BoulderPush = 4,
  Explosion = 5,
  BoxPush = 6,
  Dog = 7,  // another dog is steered
  ExitOpen = 8,
  MagicWall = 9,
  Back = 10,  // of the background: nothing starts it
  Sensor = 11,
  AmoebaEnclosed = 12,
  Amoeba = 13,
  SensorOut = 14,
  AmoebaDead = 15,
};

inline constexpr std::size_t kSoundCount = 16;

}  // namespace zorik
