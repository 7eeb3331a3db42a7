#include "data/Scramble.h"

#include <functional>
#include <istream>
#include <ostream>

#include "zktool/Commands.h"

namespace zorik {
namespace {

// Turns what stands between the ends of lines into something else.
Exit EachLine(Console& console, const std::function<std::string(std::string_view)>& turn) {
  std::string line;
  while (std::getline(console.in, line)) {
    const bool lineFeed = !console.in.eof();
    const bool carriageReturn = lineFeed && !line.empty() && line.back() == '\r';
    if (carriageReturn) line.pop_back();
    console.out << turn(line) << (carriageReturn ? "\r" : "") << (lineFeed ? "\n" : "");
  }
  if (console.in.bad()) return Fail(console, Exit::CannotRead, "cannot read the standard input");
  return Exit::Fine;
}

}  // namespace

Exit ScrambleCommand(const CommandLine&, Console& console) {
  Chance decoration;
  return EachLine(console, [&decoration](std::string_view line) { return ScrambleText(line, decoration); });
}

Exit UnscrambleCommand(const CommandLine&, Console& console) {
  return EachLine(console, UnscrambleText);
}

}  // namespace zorik
