#pragma once

#include <charconv>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/Result.h"

namespace zorik {

// An option that a command knows.
struct Option {
  std::string_view name;  // with its dashes
  bool hasValue = false;  // the next argument belongs to it
  bool required = false;
};

// How many arguments besides options a command takes.
struct Operands {
  std::size_t least = 0;
  std::size_t most = 0;
};

// What stands behind a command's name.
struct CommandLine {
  std::vector<std::string> operands;
  std::map<std::string, std::string, std::less<>> options;

  bool Has(std::string_view option) const { return options.find(option) != options.end(); }

  // Of a required option, or of one that is there.
  const std::string& Value(std::string_view option) const { return options.find(option)->second; }
};

// Takes the arguments apart. Behind "--" everything is an operand. Fails at an unknown or repeated option, at
// a missing value or option, and at too few or too many operands.
Result<CommandLine> ReadCommandLine(std::span<const std::string> arguments, std::span<const Option> options,
                                    Operands operands);

// The whole text as a number of this type from 0 on.
template <class Number>
Result<Number> ReadNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < Number{}) {
    return Failure{"\"" + std::string(text) + "\" is no number that fits here"};
  }
  return number;
}

// The number behind an option, or the given one if the option is not there.
template <class Number>
Result<Number> NumberBehind(const CommandLine& line, std::string_view option, Number otherwise) {
  if (!line.Has(option)) return otherwise;
  const Result<Number> number = ReadNumber<Number>(line.Value(option));
  if (!number) return Failure{std::string(option) + ": " + number.Message()};
  return *number;
}

// The name behind "--player" in Windows-1250, as a record can hold it; the other one if it is not there.
Result<std::string> PlayerBehind(const CommandLine& line, std::string otherwise);

}  // namespace zorik
