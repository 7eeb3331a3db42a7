#include "zktool/CommandLine.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "data/CaveO.h"
#include "data/Cp1250.h"
#include "data/Result.h"

namespace zorik {
namespace {

Result<Done> CheckCounts(const CommandLine& line, std::span<const Option> options, Operands operands) {
  for (const Option& option : options) {
    if (option.required && !line.Has(option.name)) {
      return Failure{std::string(option.name) + " is missing"};
    }
  }
  if (line.operands.size() < operands.least) return Failure{"an argument is missing"};
  if (line.operands.size() > operands.most) {
    return Failure{"\"" + line.operands[operands.most] + "\" is one argument too many"};
  }
  return Done{};
}

bool LooksLikeOption(const std::string& argument) {
  return argument.size() > 1 && argument[0] == '-';
}

}  // namespace

Result<CommandLine> ReadCommandLine(std::span<const std::string> arguments, std::span<const Option> options,
                                    Operands operands) {
  CommandLine line;
  bool optionsOver = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (optionsOver || !LooksLikeOption(argument)) {
      line.operands.push_back(argument);
      continue;
    }
    if (argument == "--") {
      optionsOver = true;
      continue;
    }
    const auto option = std::find_if(options.begin(), options.end(),
                                     [&](const Option& known) { return known.name == argument; });
    if (option == options.end()) return Failure{"\"" + argument + "\" is no option of this command"};
    if (option->hasValue && i + 1 == arguments.size()) {
      return Failure{argument + " needs something behind it"};
    }
    const std::string value = option->hasValue ? arguments[++i] : std::string();
    if (!line.options.emplace(argument, value).second) return Failure{argument + " stands there twice"};
  }
  const Result<Done> counts = CheckCounts(line, options, operands);
  if (!counts) return Failure{counts.Message()};
  return line;
}

Result<std::string> PlayerBehind(const CommandLine& line, std::string otherwise) {
  if (!line.Has("--player")) return otherwise;
  const std::optional<std::string> name = FromUtf8(line.Value("--player"));
  const bool holds = name && !name->empty() && name->size() <= kHighestNumber &&
                     std::none_of(name->begin(), name->end(), IsControl);
  if (!holds) return Failure{"--player: no name that a record can hold"};
  return *name;
}

}  // namespace zorik
