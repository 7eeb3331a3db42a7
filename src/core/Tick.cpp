// A tick from start to end; docs/tick.md tells it in words.
#include <algorithm>
#include <cassert>

#include "core/Machine.h"
#include "core/Rules.h"
#include "core/Scans.h"
#include "data/Scramble.h"

namespace zorik {
namespace {

// In a replay. Says what the record ends the tick with, and nothing when it goes on.
std::optional<TickEnd> NextRecordLine(Hra& hra) {
  if (!hra.ReplayPlaying()) return std::nullopt;
  if (hra.Record.AtEnd()) return TickEnd::RecordOver;
  hra.RecordLine = hra.Record.Next();
  hra.RanDry = false;
  if (!hra.RecordLine.empty()) return std::nullopt;
  RestartCave(hra);
  return TickEnd::Restarted;
}

void Input(Hra& hra, const KeySnapshot& keys) {
  hra.KeyDirection = 0;
  hra.KeyAction = 0;
  if (hra.Elapsed >= hra.TimeLimit * kTicksPerSecond || hra.TeleportDogBusy) return;
  if (hra.ReplayPlaying()) {
    ReadInput(hra);
  } else {
    Klavesy(hra, keys);
  }
}

// A dog is not told that it dies: it is dead when it is found missing. The numbers up to the highest that
// the cave does not have are found missing too.
void CheckDogs(Hra& hra) {
  if (hra.TeleportDogBusy) return;
  hra.DogCount = std::max(hra.DogCount, 1);
  for (int n = 1; n <= hra.DogCount; ++n) {
    const auto c = UnitCell(hra, n);
    if (c && hra.Field(*c) == kDog) continue;
    hra.stage().DrawDogN(n, 2);
    hra.Dog[static_cast<std::size_t>(n)].Alive = false;
  }
}

void StepUnit(Hra& hra) {
  const bool direction = hra.KeyDirection >= kKeyLeft && hra.KeyDirection <= kKeyDown;
  if (!direction || !ActiveUnit(hra).Alive || hra.TeleportDogBusy) return;
  if (hra.ActiveDog == 0) {
    PohybB(hra);
  } else {
    PohybH(hra);
  }
}

void IdleUnit(Hra& hra) {
  if (!ActiveUnit(hra).Alive || hra.ActiveDog == 0) return;
  ++hra.DogIdleTicks;
  if (hra.TeleportDogBusy) return;
  if (const auto c = UnitCell(hra, hra.ActiveDog)) PREKR(hra, *c);
}

void ShowClock(Hra& hra, int seconds) {
  hra.ClockShown = seconds;
  hra.stage().Label(LabelId::Clock, seconds);
}

// A limit of four digits stays on the clock until the rest has three.
void RunClock(Hra& hra) {
  const int limit = hra.TimeLimit * kTicksPerSecond;
  if (hra.Elapsed >= limit) {
    if (hra.ClockShown != 0) ShowClock(hra, 0);
    return;
  }
  ++hra.Elapsed;
  const int rest = (limit - hra.Elapsed) / kTicksPerSecond;
  if (rest == hra.ClockShown) return;
  if (rest < 1000) ShowClock(hra, rest);
  if (hra.ClockShown < 11) hra.stage().PZvukTime(hra.ClockShown);
}

// What nobody asked for in a line is a remark that somebody wrote into the record.
void ShowRemark(Hra& hra) {
  if (!hra.ReplayPlaying() || hra.RecordLine.empty()) return;
  hra.stage().ShowRemark(UnscrambleText(hra.RecordLine), Colour::Cyan);
}

// Gems and keys glitter in every tick, and the sensors beside them hear it.
void Shimmer(Hra& hra) {
  if (!IsHeard(hra)) return;
  for (int x = 0; x <= hra.CaveWidth; ++x) {
    for (std::uint64_t due = hra.Glitter(x); due != 0; due &= due - 1) {
      PREKR(hra, {x, Cell::kMinY + std::countr_zero(due)});
    }
  }
}

bool RestartAsked(const Hra& hra, const KeySnapshot& keys) {
  return !hra.Win && keys.Down(kKeyR) && keys.Down(kKeyCtrl);
}

void CommandKeys(const Hra& hra, const KeySnapshot& keys) {
  if (hra.Win) return;
  Stage& stage = hra.stage();
  if (keys.Down(kKeyP)) stage.Post(Request::Pause);
  if (keys.Down(kKeyF12)) stage.Post(Request::HideAway);
  if (keys.Down(kKeyPadPlus)) stage.Post(Request::Faster);
  if (keys.Down(kKeyPadMinus)) stage.Post(Request::Slower);
}

// The last line of a won run has no end.
void EndRecordLine(Hra& hra) {
  if (hra.Practising()) return hra.RecordText.clear();
  if (hra.Recording && !hra.ReplayPlaying() && !hra.Win) hra.RecordText += "\r\n";
}

// In a build with assertions a walk looks after what the grids keep for the scans: another row in each tick.
[[maybe_unused]] bool RowIsKeptRight(const Hra& hra) {
  const int y = hra.CaveHeight == 0 ? 0 : hra.Ticks % hra.CaveHeight;
  for (int x = 0; x < hra.CaveWidth; ++x) {
    if (!hra.KeptRight({x, y})) return false;
  }
  return true;
}

void World(Hra& hra) {
  Kocka(hra);
  if (hra.TeleportActive) Teleport(hra);
  ExplosionScan(hra);
  AmoebaList room;
  ObjectScan(hra, room);
  GrowAmoeba(hra, room);
}

}  // namespace

TickEnd Tick(Hra& hra, const KeySnapshot& keys) {
  if (hra.Win) return TickEnd::Won;
  hra.SensorsListen = true;
  Animace(hra);
  if (const auto ended = NextRecordLine(hra)) {
    hra.SensorsListen = false;
    return *ended;
  }
  World(hra);
  Input(hra, keys);
  CheckDogs(hra);
  StepUnit(hra);
  IdleUnit(hra);
  if (const std::optional<SoundId> sound = ClosingScan(hra)) hra.stage().PZvuk(*sound);
  RunClock(hra);
  HurryAmoeba(hra);
  ShowRemark(hra);
  EndRecordLine(hra);
  hra.stage().MoveView(false);
  TickEnd end = hra.Win ? TickEnd::Won : TickEnd::Running;
  if (RestartAsked(hra, keys)) {
    RestartCave(hra);
    end = TickEnd::Restarted;
  }
  if (keys.Down(kKeyC) && !hra.Win && (hra.ReplayPlaying() || hra.EditorRun()))
    hra.stage().Post(Request::ViewToggle);
  Shimmer(hra);
  CommandKeys(hra, keys);
  assert(RowIsKeptRight(hra));
  hra.SensorsListen = false;
  return end;
}

}  // namespace zorik
