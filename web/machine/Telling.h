#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/Collection.h"

namespace zorik {

// What the page is told as JSON.

// An object, member by member.
class JsonObject {
 public:
  // A text in Windows-1250.
  JsonObject& Text(std::string_view name, std::string_view text);
  JsonObject& Number(std::string_view name, int number) { return Raw(name, std::to_string(number)); }
  JsonObject& Truth(std::string_view name, bool truth) { return Raw(name, truth ? "true" : "false"); }
  // JSON itself.
  JsonObject& Raw(std::string_view name, std::string_view json);

  std::string Done() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

std::string JsonList(const std::vector<std::string>& items);
std::string JsonNumbers(const std::vector<int>& numbers);

// The name of a cave's colour scheme.
std::string SchemeOf(const CaveRecord& cave);

std::string TellCollection(const PlayedCollection& collection);

}  // namespace zorik
