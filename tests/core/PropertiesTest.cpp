#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "data/Result.h"
#include "support/RandomRuns.h"
#include "support/Scene.h"

// What holds in every cave, whatever the player does. Each test tries hundreds of caves made by chance; with
// ZORIK_MANY=N in the environment each tries at least N.
namespace zorik::test {
namespace {

// Plays the keys to their end or to a win.
Trace RunOn(Hra& hra, const KeyScript& keys, std::size_t from = 0) {
  Trace trace;
  for (std::size_t t = from; t < keys.size(); ++t) {
    const TickEnd end = Tick(hra, keys[t]);
    trace.push_back(GameState(hra));
    if (end == TickEnd::Won) break;
  }
  return trace;
}

testing::AssertionResult Same(const Trace& one, const Trace& other) {
  for (std::size_t t = 0; t < std::min(one.size(), other.size()); ++t) {
    if (one[t] == other[t]) continue;
    return testing::AssertionFailure() << "tick " << t + 1 << "\n" << one[t] << "\n" << other[t];
  }
  if (one.size() == other.size()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << one.size() << " and " << other.size() << " ticks";
}

TEST(EveryRun, IsRebuiltTickByTickByTheReplayOfItsRecord) {
  ForEachRun(400, [](const RandomRun& run) {
    Hra played = Begin(run);
    const Trace trace = RunOn(played, run.keys);
    Hra replayed = BeginReplay(SaveRecord(played, 0));
    EXPECT_TRUE(Same(RunReplay(replayed), trace));
    EXPECT_EQ(replayed.Win.has_value(), played.Win.has_value());
    if (played.Win) {
      EXPECT_EQ(replayed.Win->Score, played.Win->Score);
      EXPECT_GE(played.GemsCollected, played.GemsNeeded);
    }
  });
}

TEST(EveryRun, HasARecordWhoseReplayAsksForEachCharacterAndForNoneMore) {
  ForEachRun(400, [](const RandomRun& run) {
    Hra played = Begin(run);
    RunOn(played, run.keys);
    Hra replayed = BeginReplay(SaveRecord(played, 0));
    for (TickEnd end = TickEnd::Running; end == TickEnd::Running;) {
      end = Tick(replayed, {});
      ASSERT_TRUE(replayed.RecordLine.empty()) << "tick " << replayed.Ticks;
      ASSERT_FALSE(replayed.RanDry) << "tick " << replayed.Ticks;
      ASSERT_NE(end, TickEnd::Restarted);
    }
    EXPECT_TRUE(replayed.Record.AtEnd());
  });
}

TEST(EveryRun, GivesTheSameRecordForTheSameSeedAndKeys) {
  ForEachRun(200, [](const RandomRun& run) {
    Hra one = Begin(run);
    Hra other = Begin(run);
    RunOn(one, run.keys);
    RunOn(other, run.keys);
    EXPECT_EQ(SaveRecord(one, 7), SaveRecord(other, 7));
  });
}

TEST(EveryRun, GoesOnInACopyOfItsStateAsInItself) {
  ForEachRun(200, [](const RandomRun& run) {
    Hra hra = Begin(run);
    const std::size_t middle = run.keys.size() / 2;
    RunOn(hra, KeyScript(run.keys.begin(), run.keys.begin() + static_cast<std::ptrdiff_t>(middle)));
    if (hra.Win) return;
    Hra copy = hra;
    EXPECT_TRUE(Same(RunOn(copy, run.keys, middle), RunOn(hra, run.keys, middle)));
    EXPECT_EQ(copy.RecordText, hra.RecordText);
  });
}

TEST(EveryReplay, GoesOnInACopyOfItsStateAsInItself) {
  ForEachRun(150, [](const RandomRun& run) {
    Hra played = Begin(run);
    RunOn(played, run.keys);
    auto replayed = std::make_unique<Hra>(BeginReplay(SaveRecord(played, 0)));
    for (std::size_t t = 0; t < run.keys.size() / 2; ++t) Tick(*replayed, {});
    if (replayed->Win) return;
    Hra copy = *replayed;
    const Trace rest = RunReplay(*replayed);
    replayed.reset();
    EXPECT_TRUE(Same(RunReplay(copy), rest));
  });
}

TEST(EveryRun, CountsWhatItsCellsHold) {
  ForEachRun(150, [](const RandomRun& run) {
    Hra hra = Begin(run);
    for (const KeySnapshot& keys : run.keys) {
      const TickEnd end = Tick(hra, keys);
      std::array<int, kCodes> counts{};
      ForEachCell(hra, [&](Cell c) { ++counts[hra.Field(c) % counts.size()]; });
      for (const std::uint16_t code :
           {kGem, kFinish, kAmoeba, kExplosion, kKeyRed, kKeyGreen, kKeyBlue, kSensor, kCatKey}) {
        ASSERT_EQ(hra.Count(code), counts[code]) << "code " << code << ", tick " << hra.Ticks;
      }
      if (end == TickEnd::Won) break;
    }
  });
}

// The three scans as they are told: every cell, every test.
void PlainExplosionScan(Hra& hra) {
  ForEachCell(hra, [&](Cell c) {
    if (hra.Field(c) == kSensor && hra.FieldMark(c) == 1) hra.SetFieldMark(c, 2);
    if (hra.Field(c) == kExplosion) Burn(hra, c);
  });
}

void PlainObjectScan(Hra& hra, AmoebaList& room) {
  ForEachCell(hra, [&](Cell c) {
    if (hra.FieldMoved(c)) return;
    if (hra.FieldState(c) == 3) NewGravitace(hra, c);
    if (hra.FieldState(c) == 2) NewGravitace(hra, c);
    const auto is = [&](std::uint16_t code) { return hra.Field(c) == code; };
    if (is(kFireFly) || is(kButterFly) || is(kFly) || is(kDragonFly)) Potvory(hra, c);
    if (is(kSlime)) Slime(hra, c);
    if (is(kWallH)) GrowWallH(hra, c);
    if (is(kWallV)) GrowWallV(hra, c);
    FindAmoebaRoom(hra, c, room);
    if (is(kBoulder) && hra.FieldState(c) == 0) Exploze(hra, c);
  });
}

void PlainEndOfMove(Hra& hra, Cell c) {
  if (hra.FieldMark(c) <= 4 || hra.Field(c) == kExplosion || hra.Field(c) == kSensor) return;
  const int mark = hra.FieldMark(c);
  const bool tieToEven = mark % 20 == 5;
  const int tenth = tieToEven ? mark / 10 : (mark + 5) / 10;
  hra.SetFieldMark(c, static_cast<std::uint8_t>(tenth));
  PREKR(hra, c);
}

std::optional<SoundId> PlainClosingScan(Hra& hra) {
  int cells = 0;
  std::optional<SoundId> sound;
  ForEachCell(hra, [&](Cell c) {
    if (hra.Field(c) == kSlime || hra.Field(c) == kFlea) PREKR(hra, c);
    if (hra.Field(c) == kSensor) {
      const std::optional<SoundId> due = CountSensor(hra, c);
      if (due) sound = due;
    }
    hra.SetFieldMoved(c, false);
    if (hra.Field(c) == kAmoeba) {
      const std::optional<SoundId> due = SettleAmoeba(hra, c, cells);
      if (due) sound = due;
    }
    PlainEndOfMove(hra, c);
    if (hra.Field(c) == kVacated) {
      hra.SetField(c, kSpace);
      PREKR(hra, c);
    }
    Contact(hra, c);
  });
  return sound;
}

void ExpectAllKeptRight(const Hra& hra) {
  int wrong = 0;
  ForEachCell(hra, [&](Cell c) { wrong += hra.KeptRight(c) ? 0 : 1; });
  EXPECT_EQ(wrong, 0);
}

// Hands the state once to the machine's scans and once to the plain ones.
void CompareScans(const Hra& hra) {
  Hra quick = hra;
  Hra plain = hra;
  quick.SensorsListen = plain.SensorsListen = true;
  AmoebaList quickRoom;
  AmoebaList plainRoom;
  ExplosionScan(quick);
  PlainExplosionScan(plain);
  ASSERT_EQ(GameState(quick), GameState(plain)) << "explosion scan";
  ObjectScan(quick, quickRoom);
  PlainObjectScan(plain, plainRoom);
  ASSERT_EQ(GameState(quick), GameState(plain)) << "object scan";
  ASSERT_EQ(quickRoom.count, plainRoom.count);
  const auto listed = static_cast<std::size_t>(std::min(plainRoom.count, kAmoebaListSize));
  for (std::size_t i = 0; i < listed; ++i) ASSERT_EQ(quickRoom.places[i], plainRoom.places[i]);
  quick.AmoebaRoom = plain.AmoebaRoom = plainRoom.count;
  ASSERT_EQ(ClosingScan(quick), PlainClosingScan(plain)) << "sound of the closing scan";
  ASSERT_EQ(GameState(quick), GameState(plain)) << "closing scan";
  ExpectAllKeptRight(quick);
}

TEST(EveryScan, DoesWhatALookAtEachCellWouldDo) {
  ForEachRun(250, [](const RandomRun& run) {
    Hra hra = Begin(run);
    for (std::size_t t = 0; t < run.keys.size() && !testing::Test::HasFailure(); ++t) {
      SCOPED_TRACE("before tick " + std::to_string(t + 1));
      CompareScans(hra);
      if (Tick(hra, run.keys[t]) == TickEnd::Won) break;
    }
  });
}

// Objects with states and headings that they seldom have, and cells that are marked as moved.
void MakeNoise(Hra& hra, Chance& chance) {
  ForEachCell(hra, [&](Cell c) {
    const auto drawn = static_cast<std::uint16_t>(chance.Below(60));
    const std::uint16_t code = IsObject(drawn) ? drawn : drawn == kObjectCount ? +kVacated : +kSpace;
    const bool heading = code > kDirt && code != kVacated && chance.Below(2) == 0;
    const bool flat = code == kAmoeba;  // it is the one thing that never falls
    hra.SetObject(c, code, static_cast<std::uint8_t>(flat ? 0 : chance.Below(4)));
    hra.SetFieldMark(c,
                     static_cast<std::uint8_t>(heading ? chance.Below(chance.Below(8) == 0 ? 256 : 46) : 0));
    hra.SetFieldMoved(c, chance.Below(4) == 0);
  });
}

TEST(EveryScan, DoesSoInCavesOfNoiseToo) {
  ForEachRun(300, [](const RandomRun& run) {
    Chance chance(run.seed);
    Hra hra = Begin(run);
    MakeNoise(hra, chance);
    for (int i = 0; i < 3 && !testing::Test::HasFailure(); ++i) {
      CompareScans(hra);
      ExplosionScan(hra);
      AmoebaList room;
      ObjectScan(hra, room);
      hra.AmoebaRoom = room.count;
      ClosingScan(hra);
    }
  });
}

TEST(EveryRun, IsTheSameOnASilentStageAndOnOneThatKeepsADiary) {
  ForEachRun(200, [](const RandomRun& run) {
    Hra silent = Begin(run);
    Hra told = Begin(run);
    Diary diary;
    told.SetStage(diary);
    for (const KeySnapshot& keys : run.keys) {
      const TickEnd end = Tick(silent, keys);
      diary.Clear();
      ASSERT_EQ(Tick(told, keys), end);
      ASSERT_EQ(GameState(told), GameState(silent));
      if (end == TickEnd::Won) break;
    }
    EXPECT_EQ(told.RecordText, silent.RecordText);
  });
}

TEST(EveryRun, NeverStartsTheSoundOfTheBackground) {
  int sounds = 0;
  ForEachRun(100, [&sounds](const RandomRun& run) {
    Hra hra = Begin(run);
    Diary diary;
    hra.SetStage(diary);
    RunOn(hra, run.keys);
    sounds += diary.Count("sound *");
    EXPECT_EQ(diary.Count("sound 10"), 0);
  });
  EXPECT_GT(sounds, 0);
}

TEST(ARunThatWasRestartedOnTheWay, HasARecordOfItsLastPartOnly) {
  ForEachRun(250, [](const RandomRun& run) {
    Chance chance(run.seed);
    Hra played = Begin(run);
    Trace trace;
    for (const KeySnapshot& keys : run.keys) {
      KeySnapshot held = keys;
      if (chance.Below(40) == 0) held.down.set(kKeyR).set(kKeyCtrl);
      const TickEnd end = Tick(played, held);
      if (end == TickEnd::Restarted) {
        trace.clear();
        played.Score = 0;  // only a replay forgets the gems of the runs before
      } else {
        trace.push_back(GameState(played));
      }
      if (end == TickEnd::Won) break;
    }
    Hra replayed = BeginReplay(SaveRecord(played, 0));
    EXPECT_TRUE(Same(RunReplay(replayed), trace));
  });
}

TEST(EveryReplay, IsTheSameAfterARestartInItsMiddle) {
  ForEachRun(100, [](const RandomRun& run) {
    Hra played = Begin(run);
    RunOn(played, run.keys);
    const std::string record = SaveRecord(played, 0);
    Hra replayed = BeginReplay(record);
    for (std::size_t t = 0; t < run.keys.size() / 3; ++t) Tick(replayed, {});
    if (replayed.Win) return;
    KeySnapshot restart;
    restart.down.set(kKeyR).set(kKeyCtrl);
    if (Tick(replayed, restart) != TickEnd::Restarted) return;
    Hra fresh = BeginReplay(record);
    EXPECT_TRUE(Same(RunReplay(replayed), RunReplay(fresh)));
  });
}

TEST(EveryNewCave, StartsFromNothingWhateverWentBefore) {
  ForEachRun(150, [](const RandomRun& run) {
    Hra used = Begin(MakeRun(run.seed + 1000));
    RunOn(used, MakeRun(run.seed + 1000).keys);
    Hra fresh = Begin(run);
    used.Luck.Seed(run.seed);
    used.Score = 0;
    ASSERT_TRUE(PaintCave(used, run.caveText, RunKind::Play));
    EXPECT_EQ(GridLines(used), GridLines(fresh));
    EXPECT_TRUE(Same(RunOn(used, run.keys), RunOn(fresh, run.keys)));
  });
}

TEST(ADamagedRecord, NeverHangsAndNeverCrashes) {
  constexpr int kTicks = 150;
  int started = 0;
  ForEachRun(400, [&](const RandomRun& run) {
    Hra played = Begin(run);
    RunOn(played, run.keys);
    Chance chance(run.seed);
    Hra replayed(1);
    const auto begun = Replay(replayed, Damaged(SaveRecord(played, 0), chance));
    if (!begun) {
      EXPECT_FALSE(begun.Message().empty());
      return;
    }
    ++started;
    for (int t = 0; t < kTicks; ++t) Tick(replayed, {});
  });
  EXPECT_GT(started, HowMany(400) / 3);
}

// Would the tests above see anything? Each of these must come about in some of the caves.
struct Seen {
  int wins, cats, rides, dogRides, catRides, deaths, timeUps, changes, swarms, gems, walls, fastAmoebas,
      endedAmoebas, sensors, catSteps, catDeaths, largest;
};

int Living(const Hra& hra) {
  return static_cast<int>(
      std::count_if(hra.Dog.begin(), hra.Dog.end(), [](const Unit& u) { return u.Alive; }));
}

void LookAt(const Hra& hra, Seen& seen) {
  seen.rides = hra.TeleportStage > 0 || seen.rides;
  seen.catRides = hra.CatInTransit || seen.catRides;
  seen.dogRides = hra.TeleportDogBusy || seen.dogRides;
  seen.swarms = (hra.ActiveDog == 0 && hra.KeyDirection != 0) || seen.swarms;
  seen.fastAmoebas = hra.AmoebaState == kAmoebaFast || seen.fastAmoebas;
  ForEachCell(hra, [&](Cell c) {
    seen.sensors = (hra.Field(c) == kSensor && hra.FieldMark(c) > 20) || seen.sensors;
  });
}

Seen WhatHappens(const RandomRun& run) {
  Seen seen{};
  Hra hra = Begin(run);
  const Hra start = hra;
  for (const KeySnapshot& keys : run.keys) {
    const TickEnd end = Tick(hra, keys);
    LookAt(hra, seen);
    if (end == TickEnd::Won) break;
  }
  seen.wins = hra.Win.has_value();
  seen.cats = start.CatPresent;
  seen.deaths = Living(hra) < Living(start);
  seen.timeUps = hra.Elapsed == hra.TimeLimit * kTicksPerSecond;
  seen.changes = hra.ActiveDog != start.ActiveDog;
  seen.gems = hra.GemsCollected > 1;
  seen.walls = hra.MagicState == kMagicSpent;
  seen.endedAmoebas = hra.AmoebaState == kAmoebaEnclosed || hra.AmoebaState == kAmoebaTooBig;
  seen.catSteps = hra.CatX != start.CatX || hra.CatY != start.CatY;
  seen.catDeaths = start.CatPresent && !hra.CatPresent;
  seen.largest = hra.CaveWidth == kMaxWidth && hra.CaveHeight == kMaxHeight;
  return seen;
}

TEST(TheRandomCaves, ShowAllThatTheGameHas) {
  const std::vector<std::pair<const char*, int Seen::*>> kinds{{"wins", &Seen::wins},
                                                               {"cats", &Seen::cats},
                                                               {"rides", &Seen::rides},
                                                               {"dogs that ride", &Seen::dogRides},
                                                               {"cats that ride", &Seen::catRides},
                                                               {"deaths", &Seen::deaths},
                                                               {"time up", &Seen::timeUps},
                                                               {"units changed", &Seen::changes},
                                                               {"swarms steered", &Seen::swarms},
                                                               {"several gems", &Seen::gems},
                                                               {"magic walls spent", &Seen::walls},
                                                               {"fast amoeba", &Seen::fastAmoebas},
                                                               {"amoeba at its end", &Seen::endedAmoebas},
                                                               {"sensors counting", &Seen::sensors},
                                                               {"cats that walk", &Seen::catSteps},
                                                               {"cats that die", &Seen::catDeaths},
                                                               {"caves of the largest size", &Seen::largest}};
  std::vector<int> counts(kinds.size());
  ForRuns(std::max(400, HowMany(400)), [&](const RandomRun& run) {
    const Seen seen = WhatHappens(run);
    for (std::size_t i = 0; i < kinds.size(); ++i) counts[i] += seen.*kinds[i].second;
  });
  for (std::size_t i = 0; i < kinds.size(); ++i) EXPECT_GE(counts[i], 5) << kinds[i].first;
  if (std::getenv("ZORIK_MANY") != nullptr) {
    for (std::size_t i = 0; i < kinds.size(); ++i) std::printf("%d %s, ", counts[i], kinds[i].first);
    std::printf("\n");
  }
}

// With ZORIK_TICKS=N it plays on for N ticks; meant for a build with sanitizers.
TEST(Ticks, PassByTheMillionWithoutAReport) {
  const char* asked = std::getenv("ZORIK_TICKS");
  const std::int64_t wanted = asked == nullptr ? 20000 : std::atoll(asked);
  std::int64_t ticks = 0;
  std::uint64_t number = 1000000;
  while (ticks < wanted) {
    const RandomRun run = MakeRun(number++);
    Hra hra = Begin(run);
    for (const KeySnapshot& keys : run.keys) {
      ++ticks;
      if (Tick(hra, keys) == TickEnd::Won) break;
    }
    ASSERT_GT(hra.Ticks, 0);
  }
  std::printf("%lld ticks in %llu caves\n", static_cast<long long>(ticks),
              static_cast<unsigned long long>(number - 1000000));
}

}  // namespace
}  // namespace zorik::test
