#include <ostream>

#include "data/Collection.h"
#include "data/Files.h"
#include "data/Result.h"
#include "zktool/Commands.h"

namespace zorik {

Exit FetchCommand(const CommandLine& line, Console& console) {
  const std::string& path = line.operands[0];
  const Result<int> number = ReadNumber<int>(line.operands[1]);
  if (!number) return Fail(console, Exit::Usage, number.Message());
  if (*number > kMostCaves) return Fail(console, Exit::Usage, "caves have numbers up to 99");
  const Result<std::string> text = FetchCaveText(path, *number);
  if (!text) return Fail(console, Exit::CannotRead, text.Message());
  if (text->empty()) {
    return Fail(console, Exit::NoSuchCave, path + " has no cave with the number " + std::to_string(*number));
  }
  console.out << *text;
  return Exit::Fine;
}

}  // namespace zorik
