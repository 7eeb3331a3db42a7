// The walks over the cave that every tick makes. What an object does in them tells its row in Objects.h.
#include "core/Scans.h"

#include <bit>

#include "core/Patterns.h"

namespace zorik {
namespace {

constexpr std::size_t kTogether = CellSet::kTogether;

// Those of the cells from place on that have one of the set beside them.
std::uint64_t Beside(const CellSet& set, std::size_t place) {
  const std::uint64_t own = set.From(place);
  return own << 1 | set.From(place - 1) >> 63 | own >> 1 | set.From(place + kTogether) << 63 |
         set.From(place - Cell::kStride) | set.From(place + Cell::kStride);
}

// Visits the cells that are due, row by row from the top left: question(place) gives the question that tells
// which of the cells kept together from place on are so. It is asked afresh after every cell, so what an
// action changes further on counts at once. It seldom does, so the walk goes on with the cells that it knew
// of, and the processor need not wait for the answer.
template <class Question, class Action>
void ForEachDue(const RunState& run, Question question, Action action) {
  if (run.CaveWidth == 0 || run.CaveHeight == 0) return;
  const std::size_t first = Cell(0, 0).place() / kTogether * kTogether;
  const std::size_t last = Cell(run.CaveWidth - 1, run.CaveHeight - 1).place();
  for (std::size_t place = first; place <= last; place += kTogether) {
    const auto due = question(place);
    std::uint64_t cells = due();
    while (cells != 0) {
      const auto bit = static_cast<std::size_t>(std::countr_zero(cells));
      const std::uint64_t ahead = ~std::uint64_t{1} << bit;
      const std::uint64_t before = due();
      action(Cell::AtPlace(place + bit));
      cells &= ahead;
      const std::uint64_t now = due();
      if (((before ^ now) & ahead) != 0) [[unlikely]]
        cells = now & ahead;
    }
  }
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

// Every test is made afresh on the cell as it is then, so an object that has just landed gets a second
// chance, and the space that something left can take in amoeba.
void Act(Hra& hra, Cell c, AmoebaList& room) {
  if (hra.FieldState(c) == kFalling) NewGravitace(hra, c);
  if (hra.FieldState(c) == kResting) NewGravitace(hra, c);
  switch (kActs[hra.Field(c) % kCodes]) {
    case Acting::Nothing:
      return;
    case Acting::GivesRoom:
      return FindAmoebaRoom(hra, c, room);
    case Acting::GoesOff:
      if (IsStruckBomb(hra, c)) Exploze(hra, c);
      return;
    case Acting::Steps:
      return Potvory(hra, c);
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

// What the end of the tick makes of every mark. One above 4 is the moved-in-this-tick form of a heading, ten
// times itself: a tenth, ties to the even number.
constexpr std::array<std::uint8_t, 256> kSettledMarks = [] {
  std::array<std::uint8_t, 256> marks{};
  for (std::size_t mark = 0; mark < marks.size(); ++mark) {
    const bool up = mark % 10 > 5 || (mark % 10 == 5 && mark / 10 % 2 == 1);
    marks[mark] = static_cast<std::uint8_t>(mark <= 4 ? mark : mark / 10 + (up ? 1 : 0));
  }
  return marks;
}();

// Ends a move: the heading holds again, and what was vacated is open.
void EndMove(Hra& hra, Cell c) {
  const std::uint16_t code = hra.Field(c);
  const std::uint8_t mark = hra.FieldMark(c);
  // A product, since monsters and what they left stand mixed: no processor could guess a branch here.
  const auto codeNow = static_cast<std::uint16_t>(code * (code != kVacated));
  const std::uint8_t markNow = kSettledMarks[mark];
  if (((code ^ codeNow) | (mark ^ markNow)) == 0) return;
  hra.EndStep(c, codeNow, markNow);
  PREKR(hra, c);
}

// What the closing scan gathers.
struct Closing {
  int amoebaCells = 0;
  std::optional<SoundId> sound;

  void Due(std::optional<SoundId> due) {
    if (due) sound = due;
  }
};

// Ends the tick in a cell of those objects that have something of their own to end.
void SettleOwn(Hra& hra, Cell c, Ending ends, Closing& closing) {
  if (ends == Ending::Repaints) PREKR(hra, c);
  if (ends == Ending::Counts) closing.Due(CountSensor(hra, c));
  hra.SetFieldMoved(c, false);
  if (ends == Ending::Petrifies) closing.Due(SettleAmoeba(hra, c, closing.amoebaCells));
  if (ends != Ending::Burns && ends != Ending::Counts) EndMove(hra, c);
  Contact(hra, c);
}

void Settle(Hra& hra, Cell c, Closing& closing) {
  const Ending ends = kEnds[hra.Field(c) % kCodes];
  if (ends != Ending::Nothing) return SettleOwn(hra, c, ends, closing);
  // Cleared here and not all at once: a bomb that is lit below from above or from the left waits one tick
  // longer than one that the scan has still to reach.
  hra.SetFieldMoved(c, false);
  EndMove(hra, c);
  if (BesideDeadly(hra, c)) Contact(hra, c);
}

}  // namespace

void ExplosionScan(Hra& hra) {
  if (hra.Count(kExplosion) + hra.Count(kSensor) == 0) return;
  const auto burning = [&hra](std::size_t place) {
    return [&hra, place] { return hra.Burning().From(place); };
  };
  ForEachDue(hra, burning, [&hra](Cell c) {
    if (hra.Field(c) == kExplosion) {
      Burn(hra, c);
    } else if (hra.FieldMark(c) == 1) {
      hra.SetFieldMark(c, 2);
    }
  });
}

void ObjectScan(Hra& hra, AmoebaList& room) {
  const bool amoeba = hra.Count(kAmoeba) > 0;
  const auto acting = [&hra, amoeba](std::size_t place) {
    const std::uint64_t beside = amoeba ? Beside(hra.Amoeba(), place) : 0;
    return [&hra, place, beside] { return (hra.Acting().From(place) | beside) & ~hra.Moved().From(place); };
  };
  ForEachDue(hra, acting, [&](Cell c) { Act(hra, c, room); });
}

std::optional<SoundId> ClosingScan(Hra& hra) {
  Closing closing;
  const auto settling = [&hra](std::size_t place) {
    return [&hra, place] { return hra.Settling().From(place) | hra.Moved().From(place); };
  };
  ForEachDue(hra, settling, [&](Cell c) { Settle(hra, c, closing); });
  return closing.sound;
}

}  // namespace zorik
