#include "Input.h"
#include "data/Collection.h"
#include "data/Progress.h"
#include "data/Readable.h"
#include "data/Result.h"

namespace zorik {

namespace {

// What the editor reads it can write, and it reads the same again.
void RequireSameCollection(std::string_view bytes, Chance& chance) {
  const Result<EditedCollection> collection = ReadForEditor(bytes);
  if (!collection) return fuzz::Require(!collection.Message().empty());
  const Result<std::string> written = BuildCollection(*collection, chance);
  if (!written) return fuzz::Require(collection->CaveList.empty());
  const Result<EditedCollection> again = ReadForEditor(*written);
  fuzz::Require(static_cast<bool>(again));
  fuzz::Require(again->Name == collection->Name && again->Author == collection->Author);
  fuzz::Require(again->Description == collection->Description && again->Mail == collection->Mail);
  const bool likeCave = EndsWithMarker(collection->CongratulationText);
  fuzz::Require(again->CongratulationText == (likeCave ? "" : collection->CongratulationText));
  fuzz::Require(again->CaveList.size() == collection->CaveList.size());
  for (std::size_t i = 0; i < collection->CaveList.size(); ++i) {
    fuzz::Require(again->CaveList[i] == collection->CaveList[i]);
  }
}

void RequirePlayable(std::string_view bytes) {
  const Result<PlayedCollection> collection = ReadForPlay(bytes);
  if (!collection) return fuzz::Require(!collection.Message().empty());
  const RecordSource sameFile = [&](const std::string&) { return std::string(bytes); };
  const Progress progress = ReadProgress(*collection, "Morvek", sameFile);
  fuzz::Require(progress.Done + progress.Rest == static_cast<int>(collection->Caves.size()));
  for (const int number : {0, 1, 2}) {
    const std::string text = FindCaveText(bytes, number);
    fuzz::Require(text.empty() || EndsWithMarker(text));
  }
}

void RequireSameLines(std::string_view bytes, Chance& chance) {
  const Result<std::string> packed = PackCollection(UnpackCollection(bytes), chance);
  fuzz::Require(packed && PlainLines(*packed) == PlainLines(bytes));
}

}  // namespace

// The input is taken as a file, and as the plain lines of one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = fuzz::TextOf(data, size);
  Chance chance(size);
  const std::string scrambled = ScrambleLines(fuzz::PiecesOf(input), chance);
  for (const std::string_view bytes : {input, std::string_view(scrambled)}) {
    RequireSameCollection(bytes, chance);
    RequirePlayable(bytes);
    RequireSameLines(bytes, chance);
  }
  return 0;
}

}  // namespace zorik
