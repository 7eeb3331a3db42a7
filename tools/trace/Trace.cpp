#include "trace/Trace.h"

#include <array>
#include <cstdio>

#include "core/Machine.h"
#include "data/Cp1250.h"
#include "data/Result.h"

namespace zorik {
namespace {

template <class... Values>
std::string Printed(const char* format, Values... values) {
  std::array<char, 256> text{};
  std::snprintf(text.data(), text.size(), format, values...);
  return text.data();
}

std::string Units(const RunState& run) {
  std::string text;
  for (int n = 0; n < kUnits; ++n) {
    const Unit& unit = run.Dog[static_cast<std::size_t>(n)];
    if (unit.x == kAbsentUnit) continue;
    if (!text.empty()) text += ';';
    text += Printed("%d:%d,%d,%d", n, unit.x, unit.y, unit.Alive ? 1 : 0);
  }
  return text;
}

std::string TheCat(const RunState& run) {
  if (run.CatX == kAbsent) return "-";
  return Printed("%d,%d,%d,%d,%d", run.CatX, run.CatY, run.CatPresent ? 1 : 0, run.CatPC, run.CatWait);
}

const char* Word(TraceEnd end) {
  switch (end) {
    case TraceEnd::Win:
      return "win";
    case TraceEnd::RecordOver:
      return "eof";
    case TraceEnd::Restart:
      return "restart";
    default:
      return "ticks";
  }
}

// A win is shown as it is at its moment, though the tick goes on.
class WinWatch : public Stage {
 public:
  WinWatch(const Hra& hra, bool grid) : hra_(hra), grid_(grid) {}

  void Won(const WinResult&) override { lines = TickLine(hra_) + "\n" + (grid_ ? GridLines(hra_) : ""); }

  std::string lines;

 private:
  const Hra& hra_;
  bool grid_;
};

std::optional<int> KeyOf(char letter) {
  switch (letter) {
    case 'L':
      return kKeyLeft;
    case 'U':
      return kKeyUp;
    case 'R':
      return kKeyRight;
    case 'D':
      return kKeyDown;
    case '!':
      return kKeySpace;
    case 's':
      return kKeyS;
    case 'a':
      return kKeyA;
    case '>':
      return kKeyTab;
    default:
      break;
  }
  if (letter >= '0' && letter <= '9') return kKeyPad0 + (letter - '0');
  return std::nullopt;
}

const KeySnapshot& KeysOf(const KeyScript& keys, int tick) {
  static const KeySnapshot kNothing;
  const auto place = static_cast<std::size_t>(tick);
  return place < keys.size() ? keys[place] : kNothing;
}

}  // namespace

std::string CaveLine(const RunState& run) {
  return "cave name=\"" + ToUtf8(run.CaveName) + "\"" + Printed(" size=%dx%d", run.CaveWidth, run.CaveHeight);
}

std::uint64_t CellHash(const RunState& run) {
  std::uint64_t hash = 0xcbf29ce484222325;
  const auto add = [&hash](unsigned byte) { hash = (hash ^ byte) * 0x100000001b3; };
  ForEachCell(run, [&](Cell c) {
    add(run.Field(c) & 0xFFU);
    add(run.Field(c) >> 8U);
    add(run.FieldState(c));
    add(run.FieldMark(c));
  });
  return hash;
}

std::string TickLine(const Hra& hra) {
  return Printed(
             "tick=%d time=%d shown=%d gems=%d score=%d value=%d exit=%d magic=%d amoeba=%d unit=%d dogs=",
             hra.Ticks, hra.Elapsed, hra.ClockShown, hra.GemsCollected, hra.Score, hra.GemValue,
             hra.ExitOpen ? 1 : 0, hra.MagicState, hra.AmoebaState, hra.ActiveDog) +
         Units(hra) + " cat=" + TheCat(hra) +
         Printed(" tele=%d hash=%016llx", hra.TeleportStage, static_cast<unsigned long long>(CellHash(hra)));
}

std::string GridLines(const RunState& run) {
  std::string lines;
  ForEachCell(run, [&](Cell c) {
    if (c.x() == 0) lines += Printed("row=%d", c.y());
    lines += Printed(" %04x/%x/%02x", unsigned{run.Field(c)}, unsigned{run.FieldState(c)},
                     unsigned{run.FieldMark(c)});
    if (c.x() == run.CaveWidth - 1) lines += '\n';
  });
  return lines;
}

Result<KeyScript> ReadKeyScript(std::string_view text) {
  KeyScript keys;
  bool newLine = true;
  for (const char letter : text) {
    if (newLine) keys.emplace_back();
    newLine = letter == '\n';
    if (newLine || letter == '.' || letter == '\r') continue;
    const auto key = KeyOf(letter);
    if (!key) {
      return Failure{"line " + std::to_string(keys.size()) + ": '" + letter + "' is no key"};
    }
    keys.back().down.set(static_cast<std::size_t>(*key));
  }
  return keys;
}

TraceEnd TraceRun(Hra& hra, const KeyScript& keys, const TraceOptions& options,
                  const std::function<void(std::string_view)>& write) {
  WinWatch watch(hra, options.grid);
  Stage& before = hra.stage();
  hra.SetStage(watch);
  write(CaveLine(hra) + "\n");
  TraceEnd end = TraceEnd::Ticks;
  for (int tick = 0; tick < options.ticks; ++tick) {
    const TickEnd ended = Tick(hra, KeysOf(keys, tick));
    if (ended == TickEnd::RecordOver || ended == TickEnd::Restarted) {
      end = ended == TickEnd::Restarted ? TraceEnd::Restart : TraceEnd::RecordOver;
      break;
    }
    if (ended == TickEnd::Won) {
      write(watch.lines);
      end = TraceEnd::Win;
      break;
    }
    write(TickLine(hra) + "\n" + (options.grid ? GridLines(hra) : ""));
  }
  hra.SetStage(before);
  const WinResult win = hra.Win.value_or(WinResult{});
  write(Printed("end reason=%s score=%d base=%d\n", Word(end), win.Score, win.BaseScore));
  return end;
}

}  // namespace zorik
