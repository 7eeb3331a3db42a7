#include "soundmaker/Recording.h"

#include "data/Result.h"
#include "soundmaker/Finish.h"
#include "soundmaker/Synth.h"
#include "soundmaker/Wave.h"

namespace zorik::sound {
namespace {

// Chance differs from sound to sound and from recording to recording, and is the same in each build.
std::uint64_t SeedOf(const std::string& file) {
  std::uint64_t seed = 0;
  for (const char letter : file) seed = seed * 257 + static_cast<unsigned char>(letter);
  return seed;
}

}  // namespace

Result<std::string> MakeRecording(const SoundEntry& entry, const Recipe& recipe, std::size_t number) {
  const std::string file = entry.FileOf(number);
  Stereo stereo = Play(recipe, {.seconds = entry.seconds,
                                .loop = entry.loop,
                                .shift = 1 + entry.pitches[number - 1] / 100,
                                .seed = SeedOf(file)});
  if (recipe.press) Press(*recipe.press, stereo);
  const Result<Done> finished = Finish(entry.loudness, entry.loop, stereo);
  if (!finished) return Failure{file + ": " + finished.Message()};
  return WaveFile(stereo);
}

}  // namespace zorik::sound
