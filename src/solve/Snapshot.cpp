#include "solve/Snapshot.h"

#include <array>
#include <cstring>
#include <type_traits>

#include "solve/Mix.h"

namespace zorik {
namespace {

static_assert(std::is_trivially_copyable_v<Grids> && std::is_trivially_copyable_v<Chance>);

constexpr std::size_t kLine = 16;  // bytes
constexpr std::uint16_t kOfLuck = 0x8000;

template <class T>
void KeepLines(const T& now, const T& begin, std::uint16_t mark, Snapshots::Snapshot& kept) {
  const auto* const a = reinterpret_cast<const unsigned char*>(&now);
  const auto* const b = reinterpret_cast<const unsigned char*>(&begin);
  for (std::size_t at = 0; at < sizeof(T); at += kLine) {
    const std::size_t length = std::min(kLine, sizeof(T) - at);
    if (std::memcmp(a + at, b + at, length) == 0) continue;
    std::array<std::uint64_t, kLine / sizeof(std::uint64_t)> words{};
    std::memcpy(words.data(), a + at, length);
    kept.lines.push_back(static_cast<std::uint16_t>(at / kLine) | mark);
    kept.words.insert(kept.words.end(), words.begin(), words.end());
  }
}

template <class T>
void PutLine(T& now, std::size_t line, const std::uint64_t* words) {
  const std::size_t at = line * kLine;
  std::memcpy(reinterpret_cast<unsigned char*>(&now) + at, words, std::min(kLine, sizeof(T) - at));
}

}  // namespace

Snapshots::Snapshots(const Hra& begin) : grids_(begin), luck_(begin.Luck) {}

Snapshots::Snapshot Snapshots::Keep(const Hra& run) const {
  Snapshot kept;
  kept.facts = run;
  kept.score = run.Score;
  kept.facts.RecordText.clear();
  kept.facts.RecordText.shrink_to_fit();
  KeepLines<Grids>(run, grids_, 0, kept);
  KeepLines<Chance>(run.Luck, luck_, kOfLuck, kept);
  return kept;
}

void Snapshots::Restore(Hra& run, const Snapshot& snapshot) const {
  static_cast<RunFacts&>(run) = snapshot.facts;
  run.Score = snapshot.score;
  static_cast<Grids&>(run) = grids_;
  run.Luck = luck_;
  const std::uint64_t* words = snapshot.words.data();
  for (const std::uint16_t line : snapshot.lines) {
    if ((line & kOfLuck) != 0) {
      PutLine<Chance>(run.Luck, line & (kOfLuck - 1U), words);
    } else {
      PutLine<Grids>(run, line, words);
    }
    words += kWords;
  }
}

std::uint64_t Snapshots::HashOfCells(const Snapshot& snapshot) {
  std::uint64_t hash = 0;
  const std::uint64_t* words = snapshot.words.data();
  for (const std::uint16_t line : snapshot.lines) {
    if ((line & kOfLuck) != 0) break;  // they come last
    for (const std::uint64_t value : {std::uint64_t{line}, words[0], words[1]}) hash = Mix(hash, value);
    words += kWords;
  }
  return hash;
}

std::size_t Snapshots::SizeOf(const Snapshot& snapshot) {
  return sizeof(Snapshot) + snapshot.lines.capacity() * sizeof(std::uint16_t) +
         snapshot.words.capacity() * sizeof(std::uint64_t) + snapshot.facts.CatProgram.capacity();
}

}  // namespace zorik
