// Runs, their time and their view.
#include <array>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Machine.h"
#include "data/Collection.h"
#include "data/Cp1250.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "machine/Answer.h"
#include "machine/Collection.h"
#include "machine/Machine.h"
#include "machine/PageRun.h"
#include "run/TickText.h"
#include "zktool/Json.h"

using namespace zorik;

struct ZkRun {
  explicit ZkRun(std::uint64_t seed) : run(seed) {}
  PageRun run;
};

namespace {

std::uint64_t Seed(unsigned low, unsigned high) {
  return (std::uint64_t{high} << 32U) | low;
}

// What the function answers for a step that may fail.
int Told(const Result<Done>& step) {
  if (step) return 1;
  Answer() = step.Message();
  return 0;
}

// The machine has to know the names of a run when that starts.
template <class Step>
int Begin(ZkRun& run, std::string collection, std::string player, Step step) {
  Hra& hra = run.run.Machine();
  const std::string collectionBefore = std::exchange(hra.CollectionName, std::move(collection));
  const std::string playerBefore = std::exchange(hra.PlayerName, std::move(player));
  run.run.Forget();
  const Result<Done> begun = step(hra);
  if (begun) {
    run.run.Started();
  } else {
    hra.CollectionName = collectionBefore;
    hra.PlayerName = playerBefore;
  }
  return Told(begun);
}

}  // namespace

ZkRun* zk_run_new(unsigned seedLow, unsigned seedHigh) {
  return new ZkRun(Seed(seedLow, seedHigh));
}

void zk_run_free(ZkRun* run) {
  delete run;
}

int zk_run_start(ZkRun* run, ZkCollection* collection, int number, int kind, const char* player,
                 int playerSize) {
  const PlayedCollection& played = collection->collection;
  if (number < 1 || static_cast<std::size_t>(number) > played.Caves.size())
    return Told(Failure{"there is no such cave"});
  const PlayedCave& cave = played.Caves[static_cast<std::size_t>(number) - 1];
  return Begin(*run, played.Name, FromUtf8Lossy(Bytes(player, playerSize)),
               [&](Hra& hra) { return OpenCave(hra, cave, static_cast<RunKind>(kind)); });
}

int zk_run_start_record(ZkRun* run, const char* bytes, int size, int kind, const char* player,
                        int playerSize) {
  RecordLines lines{std::string(Bytes(bytes, size))};
  const RecordHead head = ReadRecordHead(lines);
  return Begin(*run, head.CollectionName, FromUtf8Lossy(Bytes(player, playerSize)),
               [&](Hra& hra) { return PaintCave(hra, head.CaveText, static_cast<RunKind>(kind)); });
}

int zk_run_replay(ZkRun* run, const char* bytes, int size) {
  return Begin(*run, {}, kNobody, [&](Hra& hra) { return Replay(hra, std::string(Bytes(bytes, size))); });
}

void zk_run_restart(ZkRun* run) {
  run->run.Restart();
}

void zk_run_seed(ZkRun* run, unsigned seedLow, unsigned seedHigh) {
  run->run.Sow(Seed(seedLow, seedHigh));
}

void zk_run_press(ZkRun* run, int key) {
  run->run.Press(key);
}

int zk_run_tick(ZkRun* run) {
  return static_cast<int>(run->run.Pass());
}

const int* zk_run_events(ZkRun* run) {
  return run->run.Happened().empty() ? nullptr : run->run.Happened().front().data();
}

int zk_run_event_count(ZkRun* run) {
  return static_cast<int>(run->run.Happened().size());
}

void zk_run_remark(ZkRun* run, int number) {
  Answer() = run->run.RemarkAt(static_cast<std::size_t>(number));
}

const int* zk_run_state(ZkRun* run) {
  return run->run.State().data();
}

void zk_run_tell(ZkRun* run) {
  const Hra& hra = run->run.Machine();
  Answer() = JsonObject()
                 .Text("cave", ToUtf8(hra.CaveName))
                 .Text("collection", ToUtf8(hra.CollectionName))
                 .Text("player", ToUtf8(hra.ReplayPlaying() ? hra.RecordPlayer : hra.PlayerName))
                 .Text("scheme", ToUtf8(hra.Scheme))
                 .Number("hue", hra.SchemeHue)
                 .Done();
}

void zk_run_hash(ZkRun* run) {
  std::array<char, 17> text{};
  std::snprintf(text.data(), text.size(), "%016llx",
                static_cast<unsigned long long>(CellHash(run->run.Machine())));
  Answer() = text.data();
}

void zk_run_line(ZkRun* run) {
  Answer() = TickLine(run->run.Machine());
}

int zk_run_record(ZkRun* run) {
  Hra& hra = run->run.Machine();
  std::string record = hra.Win ? SaveRecord(hra, hra.Win->Score) : std::string();
  if (record.empty()) return Told(Failure{"only a run that was won in play has a record"});
  Answer() = std::move(record);
  return 1;
}

int zk_run_record_name(ZkRun* run) {
  const Hra& hra = run->run.Machine();
  if (hra.Kind != RunKind::Play || !hra.Win)
    return Told(Failure{"only a run that was won in play has a record"});
  Answer() = ToUtf8(RecordFileName(hra.CollectionName, hra.CaveName));
  return 1;
}

int zk_run_breakdown(ZkRun* run) {
  const Hra& hra = run->run.Machine();
  if (!hra.Win) return Told(Failure{"the run is not won"});
  Answer() = ToUtf8(ScoreBreakdown(hra, *hra.Win));
  return 1;
}

// Time

int zk_timeline_begin(ZkRun* run, int whole) {
  return Told(run->run.BeginTimeline(whole != 0));
}

int zk_timeline_tell(ZkRun* run) {
  const Timeline* timeline = run->run.Known();
  if (timeline == nullptr) return Told(Failure{"there is no timeline"});
  std::vector<std::string> events;
  for (const RunEvent& event : timeline->Events())
    events.push_back(JsonNumbers({event.tick, static_cast<int>(event.kind)}));
  Answer() = JsonObject().Number("length", timeline->Length()).Raw("events", JsonList(events)).Done();
  return 1;
}

int zk_timeline_seek(ZkRun* run, int tick) {
  if (run->run.Known() == nullptr) return Told(Failure{"there is no timeline"});
  run->run.Seek(tick);
  return 1;
}

void zk_run_take_over(ZkRun* run) {
  run->run.TakeOverNow();
}

// The view

void zk_view_whole(ZkRun* run, int on) {
  run->run.View().SetScrollView(on == 0);
}

void zk_view_still(ZkRun* run, int on) {
  run->run.View().SetStill(on != 0);
}

void zk_view_smooth(ZkRun* run, int on) {
  run->run.SetSmooth(on != 0);
}

void zk_view_reach(ZkRun* run, double columns, double rows) {
  run->run.View().SetReach(run->run.Machine(), columns, rows);
}

const int* zk_view_look(ZkRun* run, int frameWidth, int frameHeight, double way) {
  return run->run.Plan({frameWidth, frameHeight}, way).data();
}

int zk_view_plan_size(ZkRun* run) {
  return static_cast<int>(run->run.LastPlan().size());
}

int zk_view_moves(ZkRun* run) {
  return run->run.View().Moves(run->run.Machine()) ? 1 : 0;
}
