#include <ostream>

#include "data/Files.h"
#include "data/Result.h"
#include "trace/Trace.h"
#include "zktool/Commands.h"

namespace zorik {

Exit ReplayCommand(const CommandLine& line, Console& console) {
  const std::string& path = line.operands[0];
  const Result<int> ticks = NumberBehind(line, "--ticks", TraceOptions().ticks);
  if (!ticks) return Fail(console, Exit::Usage, ticks.Message());
  Result<std::string> bytes = ReadStream(path);
  if (!bytes) return Fail(console, Exit::CannotRead, bytes.Message());
  Hra hra;
  const Result<Done> started = Replay(hra, std::move(*bytes));
  if (!started) return Fail(console, Exit::BadCave, path + ": " + started.Message());
  TraceRun(hra, {}, {.grid = line.Has("--grid"), .ticks = *ticks},
           [&console](std::string_view text) { console.out << text; });
  return Exit::Fine;
}

}  // namespace zorik
