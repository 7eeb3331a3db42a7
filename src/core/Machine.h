#pragma once

#include <bit>

#include "core/Hra.h"
#include "data/CaveO.h"

namespace zorik {

// What the rules ask of the machine.

// The only chance that may touch the game: a number from 1 to range (held to 190). In play it is drawn and
// goes into the record; in a replay it comes from the record, whatever the range, and is 0 when the line
// holds nothing more.
int Nahoda(Hra& hra, int range);

// Puts into the record what a rule has chosen by itself; the replay reads value + 1 with Nahoda. -1 to 189.
void PseudoNahoda(Hra& hra, int value);

// Turns the dog in the cell towards us when it has been idle; part of repainting.
void ChoosePose(Hra& hra, Cell c);

// Tells the sensors beside the cell that something stirs in it; part of repainting.
void Stir(Hra& hra, Cell c);

// Old records hold the draws of sensors that were set off by a mere repainting beside them, so it shall stay.
inline constexpr bool kRepaintingArmsSensors = true;

inline bool SensorsHear(const Hra& hra) {
  return kRepaintingArmsSensors && hra.SensorsListen && hra.Count(kSensor) > 0;
}

// Whether it makes a difference that a cell is repainted, if that cell is no dog.
inline bool IsHeard(const Hra& hra) {
  return hra.Watched() || SensorsHear(hra);
}

// Repaints a cell. Every rule that changes a cell calls it. It is a rule itself: repainting tells sensors
// next to the cell that something has changed there.
inline void PREKR(Hra& hra, Cell c) {
  if (hra.Field(c) == kDog) ChoosePose(hra, c);
  if (SensorsHear(hra)) Stir(hra, c);
  if (hra.Watched()) hra.stage().CellChanged(c.x(), c.y());
}

// Tells whoever watches that what is in a cell has come from the other one, unless that is the same.
inline void TellMove(const Hra& hra, Cell from, Cell to) {
  if (hra.Watched() && from != to) hra.stage().Moved(from, to);
}

// The object and the state become 0; the mark stays.
inline void ClearField(Hra& hra, Cell c) {
  hra.SetObject(c, kSpace, kFlat);
  PREKR(hra, c);
}

// The cell of unit n (0 to 9); none while it is absent.
inline std::optional<Cell> UnitCell(const Hra& hra, int n) {
  const Unit& unit = hra.Dog[static_cast<std::size_t>(n)];
  return CellAt(unit.x, unit.y);
}

// The number of the dog in a cell, the highest if there are several, 0 for none.
inline int DogIn(const Hra& hra, Cell c) {
  for (int n = hra.DogCount; n > 0; --n) {
    if (UnitCell(hra, n) == c) return n;
  }
  return 0;
}

// The way of a key direction, 37 to 40.
inline Step StepOf(int keyDirection) {
  constexpr std::array<Step, 4> kWays{kLeft, kUp, kRight, kDown};
  return kWays[static_cast<std::size_t>(keyDirection - kKeyLeft)];
}

inline bool BesideAmoeba(const RunState& run, Cell c) {
  return run.Field(c + kLeft) == kAmoeba || run.Field(c + kRight) == kAmoeba ||
         run.Field(c + kUp) == kAmoeba || run.Field(c + kDown) == kAmoeba;
}

// A dog, amoeba or the cat stands beside the cell.
inline bool BesideDeadly(const RunState& run, Cell c) {
  const int traits = Grids::Traits(run.Field(c + kLeft)) | Grids::Traits(run.Field(c + kRight)) |
                     Grids::Traits(run.Field(c + kUp)) | Grids::Traits(run.Field(c + kDown));
  return (traits & trait::kDeadly) != 0;
}

inline Unit& ActiveUnit(Hra& hra) {
  return hra.Dog[static_cast<std::size_t>(hra.ActiveDog)];
}

// Copies a whole cell, state, object and mark, and repaints nothing. No rule moves a cell as a whole today;
// one that does shall do it with this.
inline void ValRVal(Hra& hra, Cell to, Cell from) {
  hra.SetObject(to, hra.Field(from), hra.FieldState(from));
  hra.SetFieldMark(to, hra.FieldMark(from));
}

// Changes the steered unit. A selector above 1 names unit selector / 10 - 1; 1 steps forward through the
// units, -1 back, 0 stays.
void ZmenitPsa(Hra& hra, int selector);

// Reads the player's keys into the tick's input and the record.
void Klavesy(Hra& hra, const KeySnapshot& keys);

// Reads the tick's input from the record line.
void ReadInput(Hra& hra);

// Parses a cave text and refuses what cannot be played: an empty text, a cave above 100 x 60 cells.
Result<CaveRecord> ReadCave(std::string_view caveText);

// Starts a run of a cave that has been read from the text.
void StartRun(Hra& hra, std::string caveText, const CaveRecord& cave, RunKind kind);

// The steered dog stands in the open finish.
void WinGame(Hra& hra);

// How many dogs are left; the swarm of fleas is none.
int LiveDogs(const RunState& run);

// Calls action(cell) for every cell of the cave, row by row from the top, each from the left.
template <class Action>
void ForEachCell(const RunState& run, Action action) {
  for (int y = 0; y < run.CaveHeight; ++y) {
    Cell c(0, y);
    for (int x = 0; x < run.CaveWidth; ++x, c = c + kRight) action(c);
  }
}

// The same for those that are in the set, which action does not change.
template <class Action>
void ForEachOf(const RunState& run, const CellSet& set, Action action) {
  const std::size_t end = Cell(0, run.CaveHeight).place();
  for (std::size_t place = Cell(0, 0).place() / CellSet::kTogether * CellSet::kTogether; place < end;
       place += CellSet::kTogether) {
    for (std::uint64_t cells = set.From(place); cells != 0; cells &= cells - 1)
      action(Cell::AtPlace(place + static_cast<std::size_t>(std::countr_zero(cells))));
  }
}

// The same column by column from the left, each from the top.
template <class Action>
void ForEachCellByColumn(const RunState& run, Action action) {
  for (int x = 0; x < run.CaveWidth; ++x) {
    Cell c(x, 0);
    for (int y = 0; y < run.CaveHeight; ++y, c = c + kDown) action(c);
  }
}

}  // namespace zorik
