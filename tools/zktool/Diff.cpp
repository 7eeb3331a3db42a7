#include <ostream>

#include "run/Parting.h"
#include "zktool/Commands.h"
#include "zktool/Frames.h"

namespace zorik {
namespace {

struct CaveHead {
  std::string_view name;
  std::string_view size;
};

CaveHead HeadOf(std::string_view caveLine) {
  constexpr std::string_view kBefore = "cave name=\"";
  constexpr std::string_view kBetween = "\" size=";
  const std::size_t end = caveLine.rfind(kBetween);
  if (end == std::string_view::npos || end < kBefore.size()) return {caveLine, {}};
  return {caveLine.substr(kBefore.size(), end - kBefore.size()), caveLine.substr(end + kBetween.size())};
}

// How a line stands for a run that ends: the reason of its end, or that it does not end yet.
std::string_view EndIn(const std::optional<std::string>& line) {
  constexpr std::string_view kEnd = "end reason=";
  if (!line) return "cut";
  if (line->compare(0, kEnd.size(), kEnd) != 0) return "none";
  std::string_view rest = std::string_view(*line).substr(kEnd.size());
  return rest.substr(0, rest.find(' '));
}

// What differs in two lines of a trace; nothing where they are the same.
std::optional<Parting> PartingOfEnds(const std::optional<std::string>& a,
                                     const std::optional<std::string>& b) {
  if (a == b) return std::nullopt;
  if (EndIn(a) != EndIn(b)) return Parting{"end", std::string(EndIn(a)), std::string(EndIn(b))};
  return PartingOfLines(*a, *b);
}

void Print(int tick, std::string_view kind, const Parting& parting, std::ostream& out) {
  out << "tick=" << tick << " " << kind << "=" << parting.what << " a=" << parting.a << " b=" << parting.b
      << "\n";
}

// True when the runs start alike.
bool SameStart(const Frames& a, const Frames& b, std::ostream& out) {
  const std::string lineA = a.CaveLine();
  const std::string lineB = b.CaveLine();
  const CaveHead headA = HeadOf(lineA);
  const CaveHead headB = HeadOf(lineB);
  if (headA.name != headB.name) {
    Print(0, "counter",
          {"name", "\"" + std::string(headA.name) + "\"", "\"" + std::string(headB.name) + "\""}, out);
  } else if (headA.size != headB.size) {
    Print(0, "counter", {"size", std::string(headA.size), std::string(headB.size)}, out);
  }
  return headA.name == headB.name && headA.size == headB.size;
}

bool SameRun(Frames& a, Frames& b, std::ostream& out) {
  for (int tick = 1;; ++tick) {
    const std::optional<std::string> lineA = a.Next();
    const std::optional<std::string> lineB = b.Next();
    const std::optional<Parting> counter = PartingOfEnds(lineA, lineB);
    const bool ticksGoOn = EndIn(lineA) == "none" && EndIn(lineB) == "none";
    const bool gridsAreThere = a.HoldsGrids() && b.HoldsGrids();
    std::optional<Parting> cell;
    if (ticksGoOn && (counter || gridsAreThere)) cell = PartingOfGrids(a.Grid(), b.Grid());
    if (counter) Print(tick, "counter", *counter, out);
    if (cell) Print(tick, "cell", *cell, out);
    if (counter || cell) return false;
    if (!ticksGoOn) {
      out << "equal ticks=" << tick - 1 << "\n";
      return true;
    }
  }
}

}  // namespace

Exit DiffCommand(const CommandLine& line, Console& console) {
  const auto a = OpenFrames(line.operands[0]);
  if (!a) return Fail(console, a.Why());
  const auto b = OpenFrames(line.operands[1]);
  if (!b) return Fail(console, b.Why());
  return SameStart(**a, **b, console.out) && SameRun(**a, **b, console.out) ? Exit::Fine : Exit::No;
}

}  // namespace zorik
