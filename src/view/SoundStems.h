#pragma once

#include <array>
#include <string_view>

#include "core/SoundId.h"

namespace zorik {

// How the files of a sound's recordings begin.
struct SoundStem {
  SoundId id;
  std::string_view name;
  bool looping = false;
};

// In the order in which they are loaded. Nothing ever starts the sound of the background.
inline constexpr auto kSoundStems = std::to_array<SoundStem>({
    {SoundId::Dirt, "dirt"},
    {SoundId::FallGem, "fallgem"},
    {SoundId::CollectGem, "collectgem"},
    {SoundId::Boulder, "boulder"},
    {SoundId::BoulderPush, "boulderpush"},
    {SoundId::Explosion, "explosion"},
    {SoundId::BoxPush, "boxpush"},
    {SoundId::ExitOpen, "exitopen"},
    {SoundId::Back, "back", true},
    {SoundId::Dog, "dog"},
    {SoundId::Sensor, "sensor"},
    {SoundId::AmoebaEnclosed, "asuffocate"},
    {SoundId::Amoeba, "amoeba", true},
    {SoundId::SensorOut, "sensorout"},
    {SoundId::AmoebaDead, "adeath"},
    {SoundId::MagicWall, "magicwall", true},
});
static_assert(kSoundStems.size() == kSoundCount, "each sound has one row");

}  // namespace zorik
