#include "zktool/Frames.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "data/Files.h"
#include "data/Lines.h"
#include "data/Result.h"
#include "trace/Trace.h"

namespace zorik {
namespace {

constexpr std::string_view kCaveStart = "cave name=\"";

bool StartsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

std::string WithoutLineEnd(std::string text) {
  if (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

// Replays as far as it is asked for, so that even the longest record needs little room.
class RecordFrames : public Frames {
 public:
  Result<Done> Open(std::string bytes) { return Replay(hra_, std::move(bytes)); }

  std::string CaveLine() const override { return zorik::CaveLine(hra_); }

  std::optional<std::string> Next() override {
    if (due_.empty() && !over_) PlayTick();
    if (due_.empty()) return std::nullopt;
    std::string line = std::move(due_.front());
    due_.pop_front();
    return line;
  }

  // Plays the last tick once more, since a win shows the moment in which it happens.
  std::string Grid() override {
    Hra again = before_;
    std::string rows;
    TraceRun(again, {}, {.grid = true, .ticks = 1}, [&rows](std::string_view text) {
      if (StartsWith(text, "tick=")) rows = text.substr(std::min(text.find('\n') + 1, text.size()));
    });
    return rows;
  }

 private:
  void PlayTick() {
    before_ = hra_;
    std::vector<std::string> lines;
    const TraceEnd end = TraceRun(hra_, {}, {.grid = false, .ticks = 1}, [&lines](std::string_view text) {
      lines.push_back(WithoutLineEnd(std::string(text)));
    });
    over_ = end != TraceEnd::Ticks;
    if (!over_) lines.pop_back();  // the end of this one tick is not that of the record
    due_.assign(lines.begin() + 1, lines.end());
  }

  Hra hra_;
  Hra before_;
  std::deque<std::string> due_;
  bool over_ = false;
};

class TraceFrames : public Frames {
 public:
  // Fails at a line that is none of a trace. The name of a cave may hold line ends, so all that stands in
  // front of the first tick belongs to the cave.
  Result<Done> Open(std::string bytes) {
    RecordLines lines(std::move(bytes), LineEnds::CrLfOrLf);
    caveLine_ = lines.Next();
    for (int number = 2; !lines.AtEnd(); ++number) {
      const std::string_view line = lines.Next();
      const bool isRow = StartsWith(line, "row=");
      if (StartsWith(line, "tick=") || StartsWith(line, "end ")) {
        ticks_.push_back({std::string(line), {}});
      } else if (ticks_.empty()) {
        caveLine_.append("\n").append(line);
      } else if (isRow) {
        ticks_.back().rows.append(line).append("\n");
        holdsGrids_ = true;
      } else {
        return Failure{"line " + std::to_string(number) + " is none of a trace"};
      }
    }
    return Done{};
  }

  std::string CaveLine() const override { return caveLine_; }

  std::optional<std::string> Next() override {
    if (place_ == ticks_.size()) return std::nullopt;
    return ticks_[place_++].line;
  }

  std::string Grid() override { return place_ == 0 ? std::string() : ticks_[place_ - 1].rows; }

  bool HoldsGrids() const override { return holdsGrids_; }

 private:
  struct TickText {
    std::string line;
    std::string rows;
  };

  std::string caveLine_;
  std::vector<TickText> ticks_;
  std::size_t place_ = 0;
  bool holdsGrids_ = false;
};

template <class Kind>
Needed<std::unique_ptr<Frames>> OpenAs(Exit exit, const std::string& path, std::string bytes) {
  auto frames = std::make_unique<Kind>();
  const Result<Done> opened = frames->Open(std::move(bytes));
  if (!opened) return Refusal{{path + ": " + opened.Message()}, exit};
  return std::unique_ptr<Frames>(std::move(frames));
}

}  // namespace

Needed<std::unique_ptr<Frames>> OpenFrames(const std::string& path) {
  Result<std::string> bytes = ReadStream(path);
  if (!bytes) return Refusal{{bytes.Message()}, Exit::CannotRead};
  if (StartsWith(*bytes, kCaveStart)) return OpenAs<TraceFrames>(Exit::BadTrace, path, std::move(*bytes));
  return OpenAs<RecordFrames>(Exit::BadCave, path, std::move(*bytes));
}

}  // namespace zorik
