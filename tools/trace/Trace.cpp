#include "trace/Trace.h"

#include "data/Result.h"

namespace zorik {
namespace {

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
  write(std::string("end reason=") + Word(end) + " score=" + std::to_string(win.Score) +
        " base=" + std::to_string(win.BaseScore) + "\n");
  return end;
}

}  // namespace zorik
