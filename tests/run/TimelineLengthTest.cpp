#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "data/Result.h"
#include "run/Timeline.h"
#include "solve/Move.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

// 80 x 50 cells of everything that stirs, and nobody ever wins.
Picture BusyPicture() {
  Chance chance(3);
  const std::string letters = ";;;;;....RRDDFUL:A;;;X";
  Picture picture(50, std::string(80, ' '));
  for (std::string& row : picture) {
    for (char& letter : row) letter = letters[chance.Below(static_cast<std::uint32_t>(letters.size()))];
  }
  picture[0] = picture[49] = std::string(80, 'W');
  for (std::string& row : picture) row.front() = row.back() = 'W';
  picture[1] = "W1" + std::string(77, ';') + "W";
  picture[2] = std::string(80, 'W');
  return picture;
}

KeySnapshot KeysOfTick(int tick) {
  return KeysOf(static_cast<Move>(tick / 7 % 9));
}

TEST(ATimeline, TakesNoMoreThan64MegabytesForTenThousandTicksOfALargeCave) {
  auto run = std::make_unique<Hra>(Play(BusyPicture(), {.time = 1200, .amoebaTime = 190}));
  run->Kind = RunKind::Practice;
  Timeline timeline(*run);
  for (int tick = 0; tick < 10'000; ++tick) {
    Tick(*run, KeysOfTick(tick));
    timeline.Add(*run, KeysOfTick(tick));
  }
  EXPECT_EQ(timeline.Length(), 10'000);
  EXPECT_LT(timeline.Bytes(), std::size_t{64} << 20U);
  EXPECT_GT(timeline.Bytes(), sizeof(Hra));
}

TEST(ATimeline, DoesNotGrowWithTheRunButForItsKeys) {
  const auto bytesAfter = [](int ticks) {
    auto run = std::make_unique<Hra>(Play({"W1;;;;;;;;;W", "W;;;;FF;;;;W"}, {.time = 1900}));
    run->Kind = RunKind::Practice;
    Timeline timeline(*run);
    for (int tick = 0; tick < ticks; ++tick) {
      Tick(*run, {});
      timeline.Add(*run, {});
    }
    for (const int tick : {0, 1, 100, ticks / 2}) EXPECT_EQ(timeline.At(tick)->Ticks, tick);
    EXPECT_EQ(timeline.At(ticks - 1)->Ticks, ticks - 1);
    EXPECT_EQ(timeline.At(ticks / 3)->Ticks, ticks / 3);
    return timeline.Bytes();
  };
  EXPECT_LT(bytesAfter(200'000), 2 * bytesAfter(5'000));
}

TEST(ATimeline, HoldsTheTickAskedForToThoseThatItKnows) {
  auto run = std::make_unique<Hra>(Play({"1;;;;;;;;;"}));
  Timeline timeline(*run);
  for (int i = 0; i < 5; ++i) {
    Pass(*run, 1, "R");
    timeline.Add(*run, Keys("R"));
  }
  timeline.MoveTo(*run, 99);
  EXPECT_EQ(run->Dog[1].x, 5);
  timeline.MoveTo(*run, -1);
  EXPECT_EQ(run->Dog[1].x, 0);
  timeline.Cut(99);
  EXPECT_EQ(timeline.Length(), 5);
  timeline.Cut(-3);
  EXPECT_EQ(timeline.Length(), 0);
}

TEST(ATimeline, TellsTheStageNothing) {
  Diary diary;
  auto run = std::make_unique<Hra>(Play({"1;D;R;;;;;"}, {}, &diary));
  Timeline timeline(*run);
  for (int i = 0; i < 40; ++i) {
    Pass(*run, 1, "R");
    timeline.Add(*run, Keys("R"));
  }
  diary.Clear();
  timeline.MoveTo(*run, 30);
  timeline.Cut(20);
  timeline.MoveTo(*run, 1);
  EXPECT_TRUE(diary.entries.empty());
  Pass(*run, 1, "R");
  EXPECT_TRUE(diary.Has("gems 1"));
}

// A line without anything begins a record again.
TEST(AWholeReplay, EndsWhereTheRecordBeginsAnewOrWhereItIsLongEnough) {
  const Picture picture{"1;;;;"};
  const std::string step = LineOf({.before = {9}, .direction = 39, .after = {2}});
  const auto length = [&](const std::vector<std::string>& lines, int most) {
    const auto run = std::make_unique<Hra>(1);
    EXPECT_TRUE(Replay(*run, RecordOfLines(picture, lines)));
    return WholeReplay(*run, most).Length();
  };
  EXPECT_EQ(length({step, step, "", step}, 100), 2);
  EXPECT_EQ(length({step, step, step}, 100), 3);
  EXPECT_EQ(length({step, step, step}, 2), 2);
  EXPECT_EQ(length({}, 100), 0);
}

// What a run takes that was played for 64 ticks with these keys by turns.
std::size_t BytesOf(const Picture& picture, const std::vector<std::string>& keys, RunKind kind) {
  auto run = std::make_unique<Hra>(Play(picture, {.needed = 99}));
  run->Kind = kind;
  Timeline timeline(*run);
  for (std::size_t tick = 0; tick < 64; ++tick) {
    const KeySnapshot held = Keys(keys[tick % keys.size()]);
    Tick(*run, held);
    timeline.Add(*run, held);
  }
  return timeline.Bytes();
}

TEST(ATimeline, TakesMemoryForItsKeysItsEventsAndItsRecord) {
  const auto row = [](char of) { return Picture{"1" + std::string(70, of)}; };
  const std::size_t plain = BytesOf(row(';'), {"R"}, RunKind::Practice);
  EXPECT_GE(BytesOf(row(';'), {"R", "RL"}, RunKind::Practice), plain + 63 * sizeof(KeySnapshot));
  EXPECT_GE(BytesOf(row('D'), {"R"}, RunKind::Practice), plain + 64 * sizeof(RunEvent));
  EXPECT_GE(BytesOf(row(';'), {"R"}, RunKind::Play), plain + 64 * std::string_view("ABC\r\n").size());
}

}  // namespace
}  // namespace zorik::test
