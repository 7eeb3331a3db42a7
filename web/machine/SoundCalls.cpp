// Sounds, made of their recipes.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "data/Result.h"
#include "machine/Answer.h"
#include "machine/Machine.h"
#include "soundmaker/Recording.h"
#include "view/SoundStems.h"
#include "zktool/Json.h"

using namespace zorik;

namespace {

Result<std::string> Recorded(std::string_view list, std::string_view name, std::string_view recipeText,
                             std::size_t number) {
  const Result<std::vector<sound::SoundEntry>> entries = sound::ParseSoundList(list);
  if (!entries) return Failure{entries.Message()};
  const auto entry =
      std::find_if(entries->begin(), entries->end(), [&](const auto& e) { return e.name == name; });
  if (entry == entries->end() || number < 1 || number > entry->pitches.size())
    return Failure{"the list knows no such recording"};
  const Result<sound::Recipe> recipe = sound::ParseRecipe(recipeText);
  if (!recipe) return Failure{recipe.Message()};
  return sound::MakeRecording(*entry, *recipe, number);
}

}  // namespace

int zk_sounds_tell(const char* list, int size) {
  const Result<std::vector<sound::SoundEntry>> entries = sound::ParseSoundList(Bytes(list, size));
  if (!entries) {
    Answer() = entries.Message();
    return 0;
  }
  std::vector<std::string> sounds;
  for (const SoundStem& stem : kSoundStems) {
    const auto entry =
        std::find_if(entries->begin(), entries->end(), [&](const auto& e) { return e.name == stem.name; });
    const std::size_t recordings = entry == entries->end() ? 0 : entry->pitches.size();
    sounds.push_back(JsonObject()
                         .Number("sound", static_cast<int>(stem.id))
                         .Text("name", stem.name)
                         .Number("recordings", static_cast<int>(recordings))
                         .Truth("loop", stem.looping)
                         .Done());
  }
  Answer() = JsonList(sounds);
  return 1;
}

int zk_sound_make(const char* list, int listSize, const char* name, int nameSize, const char* recipe,
                  int recipeSize, int number) {
  return AnswerWith(Recorded(Bytes(list, listSize), Bytes(name, nameSize), Bytes(recipe, recipeSize),
                             static_cast<std::size_t>(number)));
}
