#pragma once

#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/Result.h"

namespace zorik::sound {

// The words of a line; '#' begins a remark.
inline std::vector<std::string_view> WordsOf(std::string_view line) {
  line = line.substr(0, line.find('#'));
  std::vector<std::string_view> words;
  constexpr std::string_view kBlanks = " \t\r";
  for (std::size_t from = line.find_first_not_of(kBlanks); from != std::string_view::npos;) {
    const std::size_t to = line.find_first_of(kBlanks, from);
    words.push_back(line.substr(from, to - from));
    from = line.find_first_not_of(kBlanks, to);
  }
  return words;
}

// The lines of a text, without their ends.
inline std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

// Hands the words of each line to `read`, but for the lines that have none; fails on the line of which it
// says no.
template <class Read>
Result<Done> ReadLines(std::string_view text, Read read) {
  int number = 0;
  for (const std::string_view line : LinesOf(text)) {
    ++number;
    const std::vector<std::string_view> words = WordsOf(line);
    if (words.empty() || read(words)) continue;
    return Failure{"line " + std::to_string(number) + " makes no sense: " + std::string(line)};
  }
  return Done{};
}

// A word that is a number as a whole, and lies within the bounds.
inline std::optional<double> NumberOf(std::string_view word, double lowest, double highest) {
  if (!word.empty() && word.front() == '+') word.remove_prefix(1);
  // from_chars would do, if all libraries had it for these.
  if (word.empty() || word.front() == '+' || word.find_first_not_of("0123456789.eE+-") != word.npos)
    return {};
  const std::string text(word);
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  if (end != text.c_str() + text.size()) return {};
  if (!(number >= lowest && number <= highest)) return {};
  return number;
}

}  // namespace zorik::sound
