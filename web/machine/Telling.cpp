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
      .Text("name", cave.Name)
      .Text("description", cave.Description)
      .Number("width", cave.Width)
      .Number("height", cave.Height)
      .Number("gems", cave.GemsNeeded)
      .Number("time", cave.Time)
      .Text("scheme", SchemeOf(cave))
      .Truth("bonus", JeBonus(cave.Name))
      .Truth("open", collection.OpenCaves[number])
      .Text("record", RecordFileName(collection.Name, cave.Name))
      .Done();
}

}  // namespace

JsonObject& JsonObject::Text(std::string_view name, std::string_view text) {
  return Raw(name, JsonText(ToUtf8(text)));
}

JsonObject& JsonObject::Raw(std::string_view name, std::string_view json) {
  if (!members_.empty()) members_ += ',';
  members_ += JsonText(name) + ':' + std::string(json);
  return *this;
}

std::string JsonList(const std::vector<std::string>& items) {
  std::string list = "[";
  for (const std::string& item : items) list += (list.size() > 1 ? "," : "") + item;
  return list + "]";
}

std::string JsonNumbers(const std::vector<int>& numbers) {
  std::vector<std::string> items;
  items.reserve(numbers.size());
  for (const int number : numbers) items.push_back(std::to_string(number));
  return JsonList(items);
}

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
      .Text("name", collection.Name)
      .Text("author", collection.Author)
      .Text("description", collection.Description)
      .Text("mail", collection.AuthorMail)
      .Text("congratulation", collection.Congratulation)
      .Raw("caves", JsonList(caves))
      .Done();
}

}  // namespace zorik
