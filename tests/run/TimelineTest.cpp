#include <gtest/gtest.h>

#include <memory>

#include "data/Result.h"
#include "run/Timeline.h"
#include "solve/Move.h"
#include "support/RandomRuns.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// Plays the keys from where the run is, to their end or to a win.
Trace PlayOn(Hra& hra, const KeyScript& keys, Timeline* timeline = nullptr) {
  Trace trace;
  for (auto t = static_cast<std::size_t>(hra.Ticks); t < keys.size() && !hra.Win; ++t) {
    Tick(hra, keys[t]);
    if (timeline != nullptr) timeline->Add(hra, keys[t]);
    trace.push_back(GameState(hra));
  }
  return trace;
}

Trace After(const Trace& trace, int ticks) {
  return {trace.begin() + ticks, trace.end()};
}

int AnyTick(Chance& chance, const Timeline& timeline) {
  return static_cast<int>(chance.Below(static_cast<std::uint32_t>(timeline.Length() + 1)));
}

// Calls check(run, chance) for each of the random runs, until one fails.
template <class Check>
void ForEachChance(int usual, Check check) {
  ForEachRun(usual, [&check](const RandomRun& run) {
    Chance chance(run.seed);
    check(run, chance);
  });
}

TEST(ARunThatGoesBack, GoesOnWithTheSameKeysAsItDid) {
  for (const RunKind kind : {RunKind::Practice, RunKind::Play}) {
    ForEachChance(150, [kind](const RandomRun& run, Chance& chance) {
      Hra hra = Begin(run, kind);
      Timeline timeline(hra);
      const Trace whole = PlayOn(hra, run.keys, &timeline);
      ASSERT_EQ(timeline.Length(), static_cast<int>(whole.size()));
      const std::string record = hra.RecordText;
      const int tick = AnyTick(chance, timeline);
      timeline.MoveTo(hra, tick);
      EXPECT_EQ(hra.Ticks, tick);
      EXPECT_EQ(PlayOn(hra, run.keys), After(whole, tick));
      EXPECT_EQ(hra.RecordText, record);
    });
  }
}

TEST(ARunThatGoesBack, GoesOnWithOtherKeysAsOneThatHadThemAtOnce) {
  ForEachChance(150, [](const RandomRun& run, Chance& chance) {
    Hra hra = Begin(run, RunKind::Practice);
    Timeline timeline(hra);
    PlayOn(hra, run.keys, &timeline);
    const int tick = AnyTick(chance, timeline);
    KeyScript other = run.keys;
    for (std::size_t t = static_cast<std::size_t>(tick); t < other.size(); ++t)
      other[t] = KeysOf(static_cast<Move>(chance.Below(9)));
    timeline.MoveTo(hra, tick);
    timeline.Cut(tick);
    EXPECT_EQ(timeline.Length(), tick);
    PlayOn(hra, other, &timeline);

    Hra straight = Begin(run, RunKind::Practice);
    Timeline fresh(straight);
    const Trace whole = PlayOn(straight, other, &fresh);
    EXPECT_EQ(GameState(hra), GameState(straight));
    EXPECT_EQ(timeline.Events(), fresh.Events());
    const int again = AnyTick(chance, timeline);
    timeline.MoveTo(hra, again);
    EXPECT_EQ(PlayOn(hra, other), After(whole, again));
  });
}

TEST(AReplayThatGoesBack, GoesOnAsItDid) {
  ForEachChance(150, [](const RandomRun& run, Chance& chance) {
    Hra played = Begin(run, RunKind::Play);
    PlayOn(played, run.keys);
    Hra hra = BeginReplay(SaveRecord(played, 0));
    const Timeline timeline = WholeReplay(hra);
    const Trace whole = RunReplay(hra);
    ASSERT_EQ(timeline.Length(), static_cast<int>(whole.size()));
    const int tick = AnyTick(chance, timeline);
    timeline.MoveTo(hra, tick);
    EXPECT_EQ(RunReplay(hra), After(whole, tick));
  });
}

TEST(AReplayThatGoesBack, LivesLongerThanItsTimeline) {
  Hra played = Play({"1;;;;;;;;;"}, {.needed = 1});
  for (int i = 0; i < 9; ++i) Pass(played, 1, "R");
  Hra hra = BeginReplay(SaveRecord(played, 0));
  {
    const Timeline timeline = WholeReplay(hra);
    EXPECT_EQ(timeline.Length(), 9);
    timeline.MoveTo(hra, 4);
  }
  EXPECT_EQ(hra.Dog[1].x, 4);
  EXPECT_EQ(RunReplay(hra).size(), 5U);
  EXPECT_EQ(hra.Dog[1].x, 9);
}

TEST(AReplayThatIsTakenOver, GoesOnAsTheRunDidWithItsKeysAndItsChance) {
  ForEachChance(200, [](const RandomRun& run, Chance& chance) {
    Hra played = Begin(run, RunKind::Play);
    const std::size_t taken = chance.Below(static_cast<std::uint32_t>(run.keys.size()));
    PlayOn(played, KeyScript(run.keys.begin(), run.keys.begin() + static_cast<std::ptrdiff_t>(taken)));
    const Hra moment = played;
    const Trace rest = PlayOn(played, run.keys);

    Hra hra = BeginReplay(SaveRecord(played, 0));
    while (hra.Ticks < moment.Ticks) Tick(hra, {});
    TakeOver(hra);
    EXPECT_TRUE(hra.Practising());
    hra.Luck = moment.Luck;
    hra.KeyHeld = moment.KeyHeld;
    hra.ActionLatch = moment.ActionLatch;
    EXPECT_EQ(PlayOn(hra, run.keys), rest);
    EXPECT_EQ(SaveRecord(hra, 0), "");
  });
}

TEST(AReplayThatIsTakenOver, IsFollowedByItsTimelineIntoPracticeAndBack) {
  ForEachChance(150, [](const RandomRun& run, Chance& chance) {
    Hra played = Begin(run, RunKind::Play);
    PlayOn(played, run.keys);
    Hra hra = BeginReplay(SaveRecord(played, 0));
    Timeline timeline = WholeReplay(hra);
    const Trace watched = RunReplay(hra);

    const int taken = AnyTick(chance, timeline);
    timeline.MoveTo(hra, taken);
    if (hra.Win) return;
    TakeOver(hra);
    timeline.Cut(taken);
    KeyScript keys(static_cast<std::size_t>(taken) + 60);
    for (KeySnapshot& held : keys) held = KeysOf(static_cast<Move>(chance.Below(9)));
    const Trace practised = PlayOn(hra, keys, &timeline);
    Trace whole{watched.begin(), watched.begin() + taken};
    whole.insert(whole.end(), practised.begin(), practised.end());
    ASSERT_EQ(timeline.Length(), static_cast<int>(whole.size()));

    for (int i = 0; i < 4; ++i) {
      const int tick = 1 + static_cast<int>(chance.Below(static_cast<std::uint32_t>(whole.size())));
      timeline.MoveTo(hra, tick);
      EXPECT_TRUE(hra.Practising());
      EXPECT_EQ(GameState(hra), whole[static_cast<std::size_t>(tick - 1)]);
    }
    timeline.MoveTo(hra, taken);
    EXPECT_EQ(PlayOn(hra, keys), practised);
  });
}

TEST(Timeline, TellsInMovesWhatWasDone) {
  const Picture picture{"WWWWWWW", "W1...;W", "W..2..W", "WWWWWWW"};
  auto run = std::make_unique<Hra>(Play(picture));
  run->Kind = RunKind::Practice;
  Timeline timeline(*run);
  for (const char* const held : {"R", "", "R", "D", "2", "L"}) {
    Tick(*run, Keys(held));
    timeline.Add(*run, Keys(held));
  }
  const auto step = [](int direction) { return static_cast<Move>(kStepBase + direction); };
  EXPECT_EQ(timeline.Moves(0, 6),
            (Plan{step(2), kWait, step(2), step(3), static_cast<Move>(kChooseBase + 2), step(0)}));
  EXPECT_EQ(timeline.Moves(2, 4), (Plan{step(2), step(3)}));
  EXPECT_EQ(timeline.Moves(5, 99).size(), 1U);
}

// A replay of eight steps to the right, taken over after four, from where the dog goes back to the left.
class ATakenOverTimeline : public testing::Test {
 protected:
  ATakenOverTimeline() {
    Hra played = Play({"1;;;;;;;;;;;"});
    for (int i = 0; i < 8; ++i) Tick(played, Keys("R"));
    hra = BeginReplay(SaveRecord(played, 0));
    timeline = std::make_unique<Timeline>(hra);
    Watch(4);
    TakeOver(hra);
    for (int i = 0; i < 4; ++i) {
      Tick(hra, Keys("L"));
      timeline->Add(hra, Keys("L"));
    }
  }
  void Watch(int ticks) {
    for (int i = 0; i < ticks; ++i) {
      Tick(hra, {});
      timeline->Add(hra, {});
    }
  }
  int PlaceAt(int tick) const { return timeline->At(tick)->Dog[1].x; }

  Hra hra;
  std::unique_ptr<Timeline> timeline;
};

TEST_F(ATakenOverTimeline, IsStillTakenOverWhereItIsCutLater) {
  timeline->Cut(6);
  EXPECT_EQ(PlaceAt(4), 4);
  EXPECT_EQ(PlaceAt(5), 3);
  EXPECT_EQ(PlaceAt(6), 2);
  EXPECT_TRUE(timeline->At(4)->ReplayPlaying());
  EXPECT_TRUE(timeline->At(6)->Practising());
}

TEST_F(ATakenOverTimeline, IsAReplayAgainWhereItIsCutAtTheTakingOverOrBefore) {
  for (const int tick : {4, 3}) {
    hra = std::move(*timeline->At(tick));
    ASSERT_TRUE(hra.ReplayPlaying());
    timeline->Cut(tick);
    Watch(8 - tick);
    EXPECT_TRUE(timeline->At(6)->ReplayPlaying()) << tick;
    EXPECT_EQ(PlaceAt(6), 6) << tick;
    EXPECT_EQ(PlaceAt(8), 8) << tick;
  }
}

TEST_F(ATakenOverTimeline, HoldsTheRecordBeforeTheTakingOverAndNoneBehindIt) {
  for (int i = 0; i < 50; ++i) {
    Tick(hra, {});
    timeline->Add(hra, {});
  }
  for (int tick = 0; tick <= 58; ++tick) {
    const auto run = timeline->At(tick);
    EXPECT_EQ(run->Ticks, tick);
    EXPECT_EQ(run->ReplayPlaying(), tick <= 4) << tick;
    EXPECT_EQ(run->Practising(), tick > 4) << tick;
    EXPECT_EQ(run->WholeRecord.AtEnd(), tick > 4) << tick;
    EXPECT_EQ(run->Record.AtEnd(), tick > 4) << tick;
    EXPECT_EQ(run->RecordText, "") << tick;
  }
}

// A record that was written by hand may hold other directions than the four, by which nobody goes anywhere.
TEST(Timeline, TellsInMovesWhatARecordHolds) {
  const Hra replay =
      PlayBack({"WWWWWW", "W1;;;W", "WWWWWW"}, {{.before = {1}, .direction = 36},
                                                {.before = {1}, .direction = 41},
                                                {.before = {1}, .direction = 41, .action = 1},
                                                {.before = {1}, .direction = 39, .action = 1, .after = {1}},
                                                {.before = {1}, .direction = 39, .after = {1}},
                                                {.before = {1}, .direction = 37, .after = {1}}});
  const Timeline timeline = WholeReplay(replay);
  ASSERT_EQ(timeline.Length(), 6);
  EXPECT_EQ(timeline.Moves(0, 6), (Plan{kWait, kWait, kWait, static_cast<Move>(kActBase + 2),
                                        static_cast<Move>(kStepBase + 2), static_cast<Move>(kStepBase + 0)}));
}

}  // namespace
}  // namespace zorik::test
