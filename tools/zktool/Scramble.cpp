#include "data/Scramble.h"

#include <cstdint>
#include <functional>
#include <istream>
#include <ostream>
#include <random>

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

// A start of chance that nobody can tell beforehand, as the game itself has.
std::uint64_t AnySeed() {
  std::random_device device;
  return std::uint64_t{device()} << 32U | device();
}

}  // namespace

Exit ScrambleCommand(const CommandLine& line, Console& console) {
  const Result<std::uint64_t> seed = NumberBehind<std::uint64_t>(line, "--seed", AnySeed());
  if (!seed) return Fail(console, Exit::Usage, seed.Message());
  Chance decoration(*seed);
  return EachLine(console, [&decoration](std::string_view text) { return ScrambleText(text, decoration); });
}

Exit UnscrambleCommand(const CommandLine&, Console& console) {
  return EachLine(console, UnscrambleText);
}

}  // namespace zorik
