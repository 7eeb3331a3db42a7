#include <ostream>

#include "data/Collection.h"
#include "data/Result.h"
#include "zktool/Commands.h"

namespace zorik {

Exit NewCommand(const CommandLine& line, Console& console) {
  const std::string& size = line.operands[0];
  if (size != "small" && size != "large") {
    return Fail(console, Exit::Usage, "a new cave is small or large, not \"" + size + "\"");
  }
  const Result<std::string> text = NewCaveText(size == "small" ? NewCaveSize::Small : NewCaveSize::Large);
  if (!text) return Fail(console, Exit::BadCave, text.Message());
  console.out << *text;
  return Exit::Fine;
}

}  // namespace zorik
