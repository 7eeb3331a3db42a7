#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zorik {

// What an author should look at: faults are certain, hints only suspicious.
enum class DoubtKind : std::uint8_t {
  NumberOutOfRange,
  TooLarge,
  UnknownLetter,
  NoDog,
  DogMissing,
  DogTwice,
  NoFinish,
  FinishShut,
  KeyShut,
  SensorShut,
  TeleportHalf,
  HoleInRing,
  TooFewGems,
  TimeTooShort,
  CatMissing,
  CatStuck,
  CatToken,
  CatLabel,
  NameTooLong,
  NameTwice,
  NoCave,
  OpenCave,
  BadLine,
  Mirror,
  LooseLimit,
  IdleStretch,
  LowOdds,
  NotWon,
  GemShut,
  SlimeShut,
  CatKeyIdle,
  UnfairStart,
  AboveEditor,
};

struct DoubtRow {
  DoubtKind kind;
  bool fault = true;
  std::string_view word;  // for scripts, never changed
  std::string_view meaning;
};

// All kinds, in the order of the enumeration.
std::span<const DoubtRow> DoubtRows();
const DoubtRow& RowOf(DoubtKind kind);

// A place in a cave, from 0.
struct Spot {
  int x = 0;
  int y = 0;

  bool operator==(const Spot&) const = default;
};

struct Doubt {
  DoubtKind kind = DoubtKind::NoCave;
  std::string sentence;
  std::string_view key = "cells";  // of the entry in the cave's readable text
  std::optional<Spot> cell{};
  // For who tells it in other words: what the sentence names, in its order, and which of the sentences of its
  // kind it is.
  std::vector<std::string> values{};
  int form = 0;
};

}  // namespace zorik
