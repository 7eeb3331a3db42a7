#include <ostream>
#include <utility>

#include "zktool/Commands.h"
#include "zktool/Frames.h"

namespace zorik {
namespace {

// Two values that differ, and what they are of.
struct Parting {
  std::string what;
  std::string a;
  std::string b;
};

// The text up to the separator, which goes with it.
std::string_view Cut(std::string_view& text, char separator) {
  const std::string_view piece = text.substr(0, text.find(separator));
  text.remove_prefix(piece.size() < text.size() ? piece.size() + 1 : piece.size());
  return piece;
}

Parting Of(std::string what, std::string_view a, std::string_view b) {
  return {std::move(what), std::string(a), std::string(b)};
}

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
  return Cut(rest, ' ');
}

// The first counter that differs in two lines of a trace.
std::optional<Parting> PartingOfLines(const std::optional<std::string>& a,
                                      const std::optional<std::string>& b) {
  if (a == b) return std::nullopt;
  if (EndIn(a) != EndIn(b)) return Of("end", EndIn(a), EndIn(b));
  std::string_view restA = *a;
  std::string_view restB = *b;
  while (!restA.empty() && !restB.empty()) {
    std::string_view valueA = Cut(restA, ' ');
    std::string_view valueB = Cut(restB, ' ');
    if (valueA == valueB) continue;
    const std::string_view keyA = Cut(valueA, '=');
    const std::string_view keyB = Cut(valueB, '=');
    return keyA == keyB ? Of(std::string(keyA), valueA, valueB) : Of("line", *a, *b);
  }
  return Of("line", *a, *b);
}

// The first cell that differs; nothing if one of the grids is not known.
std::optional<Parting> PartingOfGrids(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    std::string_view rowA = Cut(a, '\n');
    std::string_view rowB = Cut(b, '\n');
    std::string_view name = Cut(rowA, ' ');
    Cut(rowB, ' ');
    Cut(name, '=');
    for (int x = 0; !rowA.empty() && !rowB.empty(); ++x) {
      const std::string_view cellA = Cut(rowA, ' ');
      const std::string_view cellB = Cut(rowB, ' ');
      if (cellA != cellB) return Of(std::to_string(x) + "," + std::string(name), cellA, cellB);
    }
  }
  return std::nullopt;
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
          Of("name", "\"" + std::string(headA.name) + "\"", "\"" + std::string(headB.name) + "\""), out);
  } else if (headA.size != headB.size) {
    Print(0, "counter", Of("size", headA.size, headB.size), out);
  }
  return headA.name == headB.name && headA.size == headB.size;
}

bool SameRun(Frames& a, Frames& b, std::ostream& out) {
  for (int tick = 1;; ++tick) {
    const std::optional<std::string> lineA = a.Next();
    const std::optional<std::string> lineB = b.Next();
    const std::optional<Parting> counter = PartingOfLines(lineA, lineB);
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
