#include "soundmaker/SoundList.h"

#include <optional>

#include "data/Result.h"
#include "soundmaker/Words.h"

namespace zorik::sound {

namespace {

std::optional<SoundEntry> ReadEntry(std::vector<std::string_view> words) {
  SoundEntry entry;
  entry.name = words.front();
  entry.loop = words.back() == "loop";
  if (entry.loop) words.pop_back();
  if (words.size() < 5 || words.size() > 12) return {};
  const std::optional<double> seconds = NumberOf(words[1], 0.01, 10), loudness = NumberOf(words[2], -90, 0);
  if (!seconds || !loudness) return {};
  entry.seconds = *seconds;
  entry.loudness = *loudness;
  for (std::size_t i = 3; i < words.size(); ++i) {
    const std::optional<double> pitch = NumberOf(words[i], -6, 6);
    if (!pitch) return {};
    entry.pitches.push_back(*pitch);
  }
  return entry;
}

}  // namespace

std::string SoundEntry::FileOf(std::size_t recording) const {
  return name + (recording > 1 ? std::to_string(recording) : "") + ".wav";
}

Result<std::vector<SoundEntry>> ParseSoundList(std::string_view text) {
  std::vector<SoundEntry> entries;
  const Result<Done> read = ReadLines(text, [&entries](const auto& words) {
    const std::optional<SoundEntry> entry = ReadEntry(words);
    if (entry) entries.push_back(*entry);
    return entry.has_value();
  });
  if (!read) return Failure{read.Message()};
  return entries;
}

}  // namespace zorik::sound
