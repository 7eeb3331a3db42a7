#include "run/TickText.h"

#include <array>
#include <cstdio>

#include "core/Machine.h"
#include "data/Cp1250.h"

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

}  // namespace zorik
