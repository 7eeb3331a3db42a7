#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zorik {

// A text in quotes as JSON has it. A byte that is no UTF-8, as file names may hold, becomes \udc80 to \udcff.
std::string JsonText(std::string_view text);

// An object, member by member.
class JsonObject {
 public:
  JsonObject& Text(std::string_view name, std::string_view utf8) { return Raw(name, JsonText(utf8)); }
  JsonObject& Number(std::string_view name, int number) { return Raw(name, std::to_string(number)); }
  JsonObject& Truth(std::string_view name, bool truth) { return Raw(name, truth ? "true" : "false"); }
  // A value that is JSON already.
  JsonObject& Raw(std::string_view name, std::string_view json);

  std::string Done() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

// A list of what is JSON already, and one of numbers.
std::string JsonList(const std::vector<std::string>& items);
std::string JsonNumbers(const std::vector<int>& numbers);

}  // namespace zorik
