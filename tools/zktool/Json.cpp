#include "zktool/Json.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace zorik {
namespace {

unsigned ByteAt(std::string_view text, std::size_t place) {
  return place < text.size() ? static_cast<unsigned char>(text[place]) : 0U;
}

// How many bytes the character at the start of the text has; 0 if it is no UTF-8.
std::size_t LengthOfCharacter(std::string_view text) {
  const unsigned first = ByteAt(text, 0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((ByteAt(text, i) & 0xC0U) != 0x80U) return 0;
  }
  const unsigned second = ByteAt(text, 1);
  const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
  const bool noCharacter = (first == 0xED && second >= 0xA0) || (first == 0xF4 && second >= 0x90);
  return overlong || noCharacter ? 0 : length;
}

std::string Escaped(unsigned code) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "\\u";
  for (const unsigned shift : {12U, 8U, 4U, 0U}) text += kDigits[(code >> shift) & 15U];
  return text;
}

}  // namespace

std::string JsonText(std::string_view text) {
  std::string quoted = "\"";
  while (!text.empty()) {
    const std::size_t length = LengthOfCharacter(text);
    const unsigned first = ByteAt(text, 0);
    if (length == 0) {
      quoted += Escaped(0xDC00U + first);
    } else if (first < 0x20 || first == '"' || first == '\\') {
      quoted += Escaped(first);
    } else {
      quoted += text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return quoted + "\"";
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

}  // namespace zorik
