// soundmaker LIST RECIPE.txt FOLDER   the recordings of one sound, which has the recipe's name in the list

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>

#include "data/Files.h"
#include "data/Result.h"
#include "soundmaker/Recording.h"
#include "soundmaker/SoundList.h"

namespace {

namespace sound = zorik::sound;
using zorik::Done;
using zorik::Failure;
using zorik::Result;

Result<Done> Record(const sound::SoundEntry& entry, const sound::Recipe& recipe, const std::string& folder) {
  for (std::size_t number = 1; number <= entry.pitches.size(); ++number) {
    const Result<std::string> wave = sound::MakeRecording(entry, recipe, number);
    if (!wave) return Failure{wave.Message()};
    const std::string path = (std::filesystem::path(folder) / entry.FileOf(number)).string();
    if (const Result<Done> written = zorik::WriteWhole(path, *wave); !written) return written;
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
