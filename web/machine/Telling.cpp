#include "machine/Telling.h"

#include <memory>

#include "core/Hra.h"
#include "data/Cp1250.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "zktool/Json.h"

namespace zorik {
namespace {

std::string TellCave(const PlayedCollection& collection, std::size_t number) {
  const CaveRecord& cave = collection.Caves[number - 1].Record;
  return JsonObject()
      .Number("number", static_cast<int>(number))
      .Text("name", ToUtf8(cave.Name))
      .Text("description", ToUtf8(cave.Description))
      .Number("width", cave.Width)
      .Number("height", cave.Height)
      .Number("gems", cave.GemsNeeded)
      .Number("time", cave.Time)
      .Text("scheme", SchemeOf(cave))
      .Truth("bonus", JeBonus(cave.Name))
      .Truth("open", collection.OpenCaves[number])
      .Text("record", ToUtf8(RecordFileName(collection.Name, cave.Name)))
      .Done();
}

}  // namespace

// Set-up knows it: a colouring that means none leaves the one before.
std::string SchemeOf(const CaveRecord& cave) {
  const auto scratch = std::make_unique<Hra>();
  const Result<Done> opened = OpenCave(*scratch, {"-", cave});
  return opened ? scratch->Scheme : Hra().Scheme;
}

std::string TellCollection(const PlayedCollection& collection) {
  std::vector<std::string> caves;
  for (std::size_t number = 1; number <= collection.Caves.size(); ++number)
    caves.push_back(TellCave(collection, number));
  return JsonObject()
      .Text("name", ToUtf8(collection.Name))
      .Text("author", ToUtf8(collection.Author))
      .Text("description", ToUtf8(collection.Description))
      .Text("mail", ToUtf8(collection.AuthorMail))
      .Text("congratulation", ToUtf8(collection.Congratulation))
      .Raw("caves", JsonList(caves))
      .Done();
}

}  // namespace zorik
