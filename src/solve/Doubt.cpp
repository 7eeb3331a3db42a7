#include "solve/Doubt.h"

#include <array>
#include <cstddef>

namespace zorik {
namespace {

constexpr std::array<DoubtRow, 33> kRows{{
    {DoubtKind::NumberOutOfRange, true, "number", "a number that the game cannot use"},
    {DoubtKind::TooLarge, true, "size", "no cells, or more than 100 x 60"},
    {DoubtKind::UnknownLetter, true, "letter", "a letter that means no object"},
    {DoubtKind::NoDog, true, "no-dog", "there is no dog"},
    {DoubtKind::DogMissing, true, "dog-missing", "a gap in the numbers of the dogs"},
    {DoubtKind::DogTwice, true, "dog-twice", "two dogs of one number"},
    {DoubtKind::NoFinish, true, "no-finish", "there is no finish"},
    {DoubtKind::FinishShut, true, "finish-shut", "a finish to which no dog can ever come"},
    {DoubtKind::KeyShut, true, "key-shut", "a key that nobody can ever take"},
    {DoubtKind::SensorShut, true, "sensor-shut", "a sensor that nothing can set off"},
    {DoubtKind::TeleportHalf, true, "teleport-half", "an entrance without an exit, or the other way round"},
    {DoubtKind::HoleInRing, true, "hole-in-ring", "a lone pad that leaves a hole in the cave's edge"},
    {DoubtKind::TooFewGems, true, "too-few-gems", "more gems are needed than can ever be had"},
    {DoubtKind::TimeTooShort, true, "time-too-short", "the time is below the way to the finish"},
    {DoubtKind::CatMissing, true, "cat-missing", "a program, but no cat"},
    {DoubtKind::CatStuck, true, "cat-stuck", "a program that never moves the cat"},
    {DoubtKind::CatToken, true, "cat-token", "a command that means nothing, or that is never come to"},
    {DoubtKind::CatLabel, true, "cat-label", "a label of an event that never comes"},
    {DoubtKind::NameTooLong, true, "name-too-long", "no disk can hold a record under this name"},
    {DoubtKind::NameTwice, true, "name-twice", "two caves whose records have one name"},
    {DoubtKind::NoCave, true, "no-cave", "a collection without caves"},
    {DoubtKind::OpenCave, true, "open-cave", "an open cave that there is none of"},
    {DoubtKind::BadLine, true, "line", "a line of a collection that is damaged"},
    {DoubtKind::Mirror, false, "mirror", "more than 0.8 of the cells equal their mirror"},
    {DoubtKind::LooseLimit, false, "loose-limit", "the time is above 4 times the proof's"},
    {DoubtKind::IdleStretch, false, "idle-stretch", "the proof waits for more than 15 s in one piece"},
    {DoubtKind::LowOdds, false, "low-odds", "the proof's plan wins with less than 90 % of the seeds"},
    {DoubtKind::NotWon, false, "proof-fails", "the proof is of another cave, or does not win"},
    {DoubtKind::GemShut, false, "gem-shut", "a gem to which no dog can ever come"},
    {DoubtKind::SlimeShut, false, "slime-shut", "slime on steel that is no pad lets nothing through"},
    {DoubtKind::CatKeyIdle, false, "cat-key-idle", "a cat key, and no cat that waits for one"},
    {DoubtKind::UnfairStart, false, "unfair-start", "a dog dies within a second if no key is pressed"},
    {DoubtKind::AboveEditor, false, "above-editor", "more than 80 x 50 cells, the editor would cut them"},
}};

constexpr bool InOrder() {
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    if (static_cast<std::size_t>(kRows[i].kind) != i) return false;
  }
  return true;
}
static_assert(InOrder());

}  // namespace

std::span<const DoubtRow> DoubtRows() {
  return kRows;
}

const DoubtRow& RowOf(DoubtKind kind) {
  return kRows[static_cast<std::size_t>(kind)];
}

}  // namespace zorik
