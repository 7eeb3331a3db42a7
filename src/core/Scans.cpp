// The walks over the cave that every tick makes. What an object does in them tells its row in Objects.h.
#include "core/Scans.h"

#include <bit>

#include "core/Patterns.h"

namespace zorik {
namespace {

constexpr std::size_t kTogether = CellSet::kTogether;

// Those of the cells from place on that have one of the set at their left, and at their right.
std::uint64_t FromTheLeft(const CellSet& set, std::size_t place) {
  return set.From(place) << 1 | set.From(place - 1) >> 63;
}
std::uint64_t FromTheRight(const CellSet& set, std::size_t place) {
  return set.From(place) >> 1 | set.From(place + kTogether) << 63;
}

// Those that have one of the set beside them.
std::uint64_t Beside(const CellSet& set, std::size_t place) {
  return FromTheLeft(set, place) | FromTheRight(set, place) | set.From(place - Cell::kStride) |
         set.From(place + Cell::kStride);
}

// Visits the cells that are due, row by row from the top left: due(place, ahead) tells which they are of the
// cells kept together from place on, of those ahead of the walk. The action answers whether it may have
// changed that: then it is asked afresh.
template <class Due, class Action>
void ForEachDue(const RunState& run, Due due, Action action) {
  if (run.CaveWidth == 0 || run.CaveHeight == 0) return;
  const std::size_t first = Cell(0, 0).place() / kTogether * kTogether;
  const std::size_t last = Cell(run.CaveWidth - 1, run.CaveHeight - 1).place();
  for (std::size_t place = first; place <= last; place += kTogether) {
    std::uint64_t cells = due(place, ~std::uint64_t{0});
    while (cells != 0) {
      const auto bit = static_cast<std::size_t>(std::countr_zero(cells));
      cells &= cells - 1;
      if (action(Cell::AtPlace(place + bit))) cells = due(place, ~std::uint64_t{1} << bit);
    }
  }
}

// Of the things that rest those that could fall or roll, and some more: what is below is not looked at, but
// what acts there may be the mouth of a splitter.
std::uint64_t Loose(const Grids& grids, std::size_t place) {
  const std::uint64_t resting = grids.Resting().From(place);
  if (resting == 0) return 0;
  const CellSet& taken = grids.Taken();
  const std::size_t below = place + Cell::kStride;
  const std::uint64_t left = FromTheLeft(taken, place) | FromTheLeft(taken, below);
  const std::uint64_t right = FromTheRight(taken, place) | FromTheRight(taken, below);
  return resting & (~(taken.From(below) & left & right) | grids.Acting().From(below));
}

// What the table tells of each code.
constexpr auto kActs = [] {
  std::array<Acting, kCodes> acts{};
  for (const ObjectRow& object : kObjects) acts[object.code] = object.acts;
  return acts;
}();
constexpr auto kEnds = [] {
  std::array<Ending, kCodes> ends{};
  for (const ObjectRow& object : kObjects) ends[object.code] = object.ends;
  return ends;
}();

// What may reach far, and happens less often than the rest.
void ActByItself(Hra& hra, Cell c, Acting acts, AmoebaList& room) {
  switch (acts) {
    case Acting::Nothing:
    case Acting::GivesRoom:
    case Acting::Steps:
      return;  // seen to by Act
    case Acting::GoesOff:
      if (IsStruckBomb(hra, c)) Exploze(hra, c);
      return;
    case Acting::Hunts:
      Potvory(hra, c);
      return FindAmoebaRoom(hra, c, room);
    case Acting::LetsThrough:
      return Slime(hra, c);
    case Acting::GrowsAside:
      return GrowWallH(hra, c);
    case Acting::GrowsUpright:
      return GrowWallV(hra, c);
  }
}

// Every test is made afresh on the cell as it is then, so an object that has just landed gets a second
// chance, and the space that something left can take in amoeba. Answers whether others in its row may be due
// now, or no longer. A fall leaves a cell into which nothing can roll; a step leaves a cell closed and enters
// one that nobody waits in.
bool Act(Hra& hra, Cell c, AmoebaList& room) {
  bool more = false;
  if (hra.FieldState(c) >= kResting) {
    if (hra.FieldState(c) == kFalling) more = NewGravitace(hra, c);
    if (hra.FieldState(c) == kResting) more = NewGravitace(hra, c) || more;
  }
  const Acting acts = kActs[hra.Field(c) % kCodes];
  if (acts == Acting::Steps) {
    Potvory(hra, c);
    return more;
  }
  if (acts == Acting::Nothing || acts == Acting::GivesRoom) {
    if (acts == Acting::GivesRoom && hra.Count(kAmoeba) > 0) FindAmoebaRoom(hra, c, room);
    return more;
  }
  ActByItself(hra, c, acts, room);
  return true;
}

void EndStep(Hra& hra, Cell c) {
  hra.EndStep(c);
  PREKR(hra, c);
}

// A mark that other things have taken over ends like that of a monster.
void EndMark(Hra& hra, Cell c) {
  const std::uint8_t mark = hra.FieldMark(c);
  if (mark <= kHighestHeading) return;
  hra.SetFieldMark(c, Grids::EndedMark(mark));
  PREKR(hra, c);
}

// What the closing scan gathers.
struct Closing {
  int amoebaCells = 0;
  std::optional<SoundId> sound;
  std::uint64_t touched = 0;  // of the cells at which the scan is those beside something deadly

  bool IsTouched(Cell c) const { return (touched >> (c.place() % kTogether) & 1) != 0; }

  void Due(std::optional<SoundId> due) {
    if (due) sound = due;
  }
};

// Ends the tick in a cell of those objects that have something of their own to end.
void SettleOwn(Hra& hra, Cell c, Ending ends, Closing& closing) {
  if (ends == Ending::Repaints) PREKR(hra, c);
  if (ends == Ending::Counts) closing.Due(CountSensor(hra, c));
  if (ends == Ending::Petrifies) closing.Due(SettleAmoeba(hra, c, closing.amoebaCells));
  if (ends != Ending::Counts) EndMark(hra, c);
}

// Answers whether more than the cell itself may have changed.
bool Settle(Hra& hra, Cell c, Closing& closing) {
  if (hra.Stepped().Has(c)) {
    EndStep(hra, c);
  } else {
    SettleOwn(hra, c, kEnds[hra.Field(c) % kCodes], closing);
  }
  if (!closing.IsTouched(c)) return false;
  Contact(hra, c);
  return true;
}

// Amoeba that lives on ends nothing but its picture.
bool AmoebaEnds(const Hra& hra) {
  return hra.AmoebaRoom == 0 || hra.AmoebaState == kAmoebaTooBig || IsAmoebaTooBig(hra, hra.Count(kAmoeba));
}

}  // namespace

void ExplosionScan(Hra& hra) {
  if (hra.Count(kExplosion) + hra.Count(kSensor) == 0) return;
  const auto burning = [&hra](std::size_t place, std::uint64_t ahead) {
    return hra.Burning().From(place) & ahead;
  };
  ForEachDue(hra, burning, [&hra](Cell c) {
    if (hra.Field(c) == kExplosion) {
      Burn(hra, c);
    } else if (hra.FieldMark(c) == 1) {
      hra.SetFieldMark(c, 2);
    }
    return false;
  });
}

void ObjectScan(Hra& hra, AmoebaList& room) {
  const bool amoeba = hra.Count(kAmoeba) > 0;
  const auto moving = [&hra, amoeba](std::size_t place, std::uint64_t ahead) {
    const std::uint64_t beside = amoeba ? Beside(hra.Amoeba(), place) : 0;
    const std::uint64_t due =
        hra.Falling().From(place) | Loose(hra, place) | hra.Acting().From(place) | beside;
    return due & ~hra.Moved().From(place) & ahead;
  };
  ForEachDue(hra, moving, [&](Cell c) { return Act(hra, c, room); });
}

// The marks of the moved are cleared as the scan passes and not all at once: a bomb that is lit below from
// above or from the left waits one tick longer than one that the scan has still to reach.
std::optional<SoundId> ClosingScan(Hra& hra) {
  Closing closing;
  const bool heard = IsHeard(hra);
  const bool amoeba = hra.Count(kAmoeba) > 0 && (heard || AmoebaEnds(hra));
  const auto settling = [&hra, &closing, heard, amoeba](std::size_t place, std::uint64_t ahead) {
    hra.ClearMoved(place, ahead);
    if (!heard) hra.EndSteps(place, ahead);  // then the order in which they end makes no difference
    closing.touched = Beside(hra.Deadly(), place);
    const std::uint64_t touched = hra.Acting().From(place) & closing.touched;
    const std::uint64_t own = hra.Settling().From(place) | (amoeba ? hra.Amoeba().From(place) : 0);
    return (hra.Stepped().From(place) | own | touched) & ahead;
  };
  ForEachDue(hra, settling, [&](Cell c) { return Settle(hra, c, closing); });
  return closing.sound;
}

}  // namespace zorik
