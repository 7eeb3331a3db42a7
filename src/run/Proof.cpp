#include "run/Proof.h"

#include <string_view>

#include "core/Machine.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"

namespace zorik {
namespace {

constexpr int kFirstCode = 65;

std::uint64_t SeedOf(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  return hash;
}

// How many characters of its line the tick ahead reads before it comes to the keys; nothing where it does not
// come to them. When the time is up the world goes on and nobody is asked for keys: what such a tick leaves
// of the line begins with the keys of this one.
std::optional<std::size_t> BeforeKeys(const Hra& run, std::size_t length) {
  if (run.Elapsed >= run.TimeLimit * kTicksPerSecond) return std::nullopt;
  const auto copy = std::make_unique<Hra>(run);
  copy->TimeLimit = 0;
  Tick(*copy, {});
  if (copy->TeleportDogBusy || copy->RecordLine.size() <= 1) return std::nullopt;
  return length - copy->RecordLine.size();
}

ProofTick TickAhead(const Hra& run) {
  ProofTick tick;
  RecordLines rest = run.Record;
  const std::string_view line = rest.Next();
  tick.line = line;
  const auto before = BeforeKeys(run, line.size());
  if (!before) return tick;
  const auto value = [&](std::size_t place, int otherwise) {
    return *before + place < line.size() ? static_cast<unsigned char>(line[*before + place]) - kFirstCode
                                         : otherwise;
  };
  tick.keys = true;
  tick.direction = value(0, 0);
  tick.action = value(1, 0);
  tick.unit = value(2, run.ActiveDog);
  return tick;
}

void NoteEnd(const Hra& run, ProofTick& tick) {
  tick.dogs = run.Dog;
  tick.steered = run.ActiveDog;
  tick.gems = run.GemsCollected;
  tick.keysTaken = run.KeysTaken;
  tick.locks = run.LocksOpened;
  tick.won = run.Win.has_value();
}

}  // namespace

Result<std::shared_ptr<const Proof>> Proof::Read(const std::string& record) {
  const auto run = std::make_unique<Hra>();
  if (const Result<Done> started = Replay(*run, record); !started) return Failure{started.Message()};
  const auto proof = std::make_shared<Proof>();
  proof->record_ = record;
  proof->caveText_ = EndsWithMarker(run->CaveText) ? WithoutMarker(run->CaveText) : run->CaveText;
  proof->collection_ = run->CollectionName;
  proof->seed_ = SeedOf(MovesOf(record));
  TickEnd end = TickEnd::Running;
  while (end == TickEnd::Running && !run->Record.AtEnd()) {
    ProofTick tick = TickAhead(*run);
    end = Tick(*run, {});
    NoteEnd(*run, tick);
    proof->ticks_.push_back(std::move(tick));
  }
  if (end != TickEnd::Won) return Failure{"the record does not win"};
  return std::shared_ptr<const Proof>(proof);
}

}  // namespace zorik
