#include <ostream>
#include <utility>

#include "data/Files.h"
#include "data/Result.h"
#include "trace/Trace.h"
#include "zktool/Commands.h"

namespace zorik {
namespace {

constexpr std::string_view kPlayer = "hrac";
constexpr std::string_view kCollection = "sada";

// The key script of a file.
Needed<KeyScript> ReadKeys(const std::string& path) {
  const Result<std::string> text = ReadStream(path);
  if (!text) return Refusal{{text.Message()}, Exit::CannotRead};
  Result<KeyScript> keys = ReadKeyScript(*text);
  if (!keys) return Refusal{{path + ": " + keys.Message()}, Exit::BadKeys};
  return std::move(*keys);
}

Exit WriteRecord(Hra& hra, const std::string& path, bool always, Console& console) {
  if (!hra.Win && !always) {
    console.err << "zktool: the run was not won, so " << path << " was not written\n";
    return Exit::Fine;
  }
  const Result<Done> written = WriteWhole(path, SaveRecord(hra, hra.Win ? hra.Win->Score : 0));
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace

Exit RunCommand(const CommandLine& line, Console& console) {
  if (line.Has("--record-always") && !line.Has("--record")) {
    return Fail(console, Exit::Usage, "--record-always needs --record");
  }
  const Result<std::uint64_t> seed = NumberBehind<std::uint64_t>(line, "--seed", 0);
  if (!seed) return Fail(console, Exit::Usage, seed.Message());
  const Result<int> ticks = NumberBehind(line, "--ticks", 0);
  if (!ticks) return Fail(console, Exit::Usage, ticks.Message());

  const std::string& cavePath = line.Value("--cave");
  const Result<std::string> cave = ReadStream(cavePath);
  if (!cave) return Fail(console, Exit::CannotRead, cave.Message());
  const Needed<KeyScript> keys = ReadKeys(line.Value("--keys"));
  if (!keys) return Fail(console, keys.Why());

  Hra hra(*seed);
  hra.PlayerName = kPlayer;
  hra.CollectionName = kCollection;
  const Result<Done> started = PaintCave(hra, *cave, RunKind::Play);
  if (!started) return Fail(console, Exit::BadCave, cavePath + ": " + started.Message());
  const int length = line.Has("--ticks") ? *ticks : static_cast<int>(keys->size());
  TraceRun(hra, *keys, {.grid = line.Has("--grid"), .ticks = length},
           [&console](std::string_view text) { console.out << text; });
  if (!line.Has("--record")) return Exit::Fine;
  return WriteRecord(hra, line.Value("--record"), line.Has("--record-always"), console);
}

}  // namespace zorik
