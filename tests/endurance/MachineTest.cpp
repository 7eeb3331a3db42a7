// Random caves, live and replayed, and what is damaged of their records.
#include <gtest/gtest.h>

#include <memory>

#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "endurance/Endurance.h"
#include "support/RandomCave.h"

namespace zorik::test {
namespace {

constexpr int kRounds = 5;

// The cells after each tick, up to a win, the record's end or a restart.
struct Run {
  std::vector<std::uint64_t> cells;
  TickEnd end = TickEnd::Running;
};

Run RunOn(Hra& hra, const KeyScript& keys) {
  Run run;
  for (std::size_t t = 0; t < keys.size() && run.end == TickEnd::Running; ++t) {
    run.end = Tick(hra, keys[t]);
    run.cells.push_back(CellHash(hra));
  }
  return run;
}

// Plays a cave live and answers its record, after a replay has shown the same.
std::string PlayAndReplay(const std::string& caveText, const RandomRun& run) {
  auto live = std::make_unique<Hra>(run.seed);
  live->PlayerName = "hrac";
  const auto begun = PaintCave(*live, caveText, RunKind::Play);
  if (!begun) {
    EXPECT_FALSE(begun.Message().empty());
    return {};
  }
  const Run played = RunOn(*live, run.keys);
  const std::string record = SaveRecord(*live, 0);
  auto again = std::make_unique<Hra>(1);
  EXPECT_TRUE(Replay(*again, record));
  const Run replayed = RunOn(*again, KeyScript(played.cells.size()));
  // An empty line, which a run whose time is over may hold in a damaged cave, begins the cave again.
  if (replayed.end == TickEnd::Restarted) return record;
  EXPECT_EQ(replayed.cells, played.cells);
  EXPECT_EQ(replayed.end, played.end);
  EXPECT_FALSE(again->RanDry);
  return record;
}

bool ReplayForAWhile(const std::string& record) {
  constexpr int kTicks = 150;
  auto hra = std::make_unique<Hra>(1);
  if (!Replay(*hra, record)) return false;
  for (int t = 0; t < kTicks; ++t) Tick(*hra, {});
  return true;
}

std::string CaveOf(const std::string& record) {
  RecordLines lines{record};
  return ReadRecordHead(lines).CaveText;
}

TEST(EnduringMachine, PlaysRandomCavesAndReplaysThemAndWhatIsDamagedOfThem) {
  constexpr int kDamages = 4;
  const Evidence evidence("machine.zkr");
  Chance chance = ChanceOfNow();
  std::uint64_t number = SeedOfNow();
  long records = 0;
  long caves = 0;
  Patience patience(kRounds);
  while (!testing::Test::HasFailure() && patience.Lasts()) {
    SCOPED_TRACE("random run " + std::to_string(number));
    const RandomRun run = MakeRun(number++);
    evidence.Hold(run.caveText);
    const std::string record = PlayAndReplay(run.caveText, run);
    ASSERT_FALSE(record.empty());
    for (int i = 0; i < kDamages && !testing::Test::HasFailure(); ++i) {
      const std::string damaged = Damaged(record, chance);
      evidence.Hold(damaged);
      records += ReplayForAWhile(damaged) ? 1 : 0;
      const std::string cave = CaveOf(damaged);
      if (cave != run.caveText) caves += PlayAndReplay(cave, run).empty() ? 0 : 1;
    }
  }
  EXPECT_GT(records, 0);
  Count(patience.Rounds(), "random caves played and replayed");
  Count(records, "damaged records replayed");
  Count(caves, "damaged caves played and replayed");
}

}  // namespace
}  // namespace zorik::test
