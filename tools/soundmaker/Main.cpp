// soundmaker LIST RECIPE.txt FOLDER   the recordings of one sound, which has the recipe's name in the list

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>

#include "data/Files.h"
#include "data/Result.h"
#include "soundmaker/Finish.h"
#include "soundmaker/SoundList.h"
#include "soundmaker/Synth.h"
#include "soundmaker/Wave.h"

namespace {

namespace sound = zorik::sound;
using zorik::Done;
using zorik::Failure;
using zorik::Result;

// Chance differs from sound to sound and from recording to recording, and is the same in each build.
std::uint64_t SeedOf(const std::string& file) {
  std::uint64_t seed = 0;
  for (const char letter : file) seed = seed * 257 + static_cast<unsigned char>(letter);
  return seed;
}

Result<Done> Record(const sound::SoundEntry& entry, const sound::Recipe& recipe, const std::string& folder) {
  for (std::size_t i = 0; i < entry.pitches.size(); ++i) {
    const std::string file = entry.FileOf(i + 1);
    sound::Stereo stereo = sound::Play(recipe, {.seconds = entry.seconds,
                                                .loop = entry.loop,
                                                .shift = 1 + entry.pitches[i] / 100,
                                                .seed = SeedOf(file)});
    if (recipe.press) sound::Press(*recipe.press, stereo);
    const Result<Done> finished = sound::Finish(entry.loudness, entry.loop, stereo);
    if (!finished) return Failure{file + ": " + finished.Message()};
    const std::string path = (std::filesystem::path(folder) / file).string();
    if (const Result<Done> written = zorik::WriteWhole(path, sound::WaveFile(stereo)); !written)
      return written;
  }
  return Done{};
}

Result<Done> Run(const std::string& listPath, const std::string& recipePath, const std::string& folder) {
  const Result<std::string> listText = zorik::ReadWhole(listPath);
  if (!listText) return Failure{listText.Message()};
  const Result<std::vector<sound::SoundEntry>> list = sound::ParseSoundList(*listText);
  if (!list) return Failure{listPath + ": " + list.Message()};
  const Result<std::string> recipeText = zorik::ReadWhole(recipePath);
  if (!recipeText) return Failure{recipeText.Message()};
  const Result<sound::Recipe> recipe = sound::ParseRecipe(*recipeText);
  if (!recipe) return Failure{recipePath + ": " + recipe.Message()};

  const std::string name = std::filesystem::path(recipePath).stem().string();
  const auto entry = std::find_if(list->begin(), list->end(), [&](const auto& e) { return e.name == name; });
  if (entry == list->end()) return Failure{listPath + " knows no sound " + name};
  return Record(*entry, *recipe, folder);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage: soundmaker LIST RECIPE.txt FOLDER\n", stderr);
    return 2;
  }
  const Result<Done> made = Run(argv[1], argv[2], argv[3]);
  if (made) return 0;
  std::fprintf(stderr, "%s\n", made.Message().c_str());
  return 1;
}
