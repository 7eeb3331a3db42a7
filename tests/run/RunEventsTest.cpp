#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "data/Result.h"
#include "run/Timeline.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

using Events = std::vector<std::string>;

// As "3 gem": the tick and what is found in it.
Events Told(const Timeline& timeline) {
  static const std::array<std::string, 8> kWords{"gem",  "key",  "lock",   "explosion",
                                                 "unit", "lost", "finish", "win"};
  Events told;
  for (const RunEvent& event : timeline.Events())
    told.push_back(std::to_string(event.tick) + " " + kWords[static_cast<std::size_t>(event.kind)]);
  return told;
}

// What is found in a run with the keys of each tick.
Events EventsOf(const Picture& picture, const std::vector<std::string>& keys, const Numbers& numbers = {}) {
  const auto run = std::make_unique<Hra>(Play(picture, numbers));
  Timeline timeline(*run);
  for (const std::string& held : keys) {
    Tick(*run, Keys(held));
    timeline.Add(*run, Keys(held));
  }
  return Told(timeline);
}

TEST(RunEvents, AreNoneWhereNothingComesAbout) {
  EXPECT_EQ(EventsOf({"1;;R;", "WWWWW"}, {"R", "R", "", "L"}), Events{});
}

TEST(RunEvents, TellOfEachGemInItsTick) {
  EXPECT_EQ(EventsOf({"1D;D", "WWWW"}, {"R", "R", "", "R!"}), (Events{"1 gem", "4 gem"}));
}

TEST(RunEvents, TellOfTheKeyAndOfTheLocksThatItOpens) {
  EXPECT_EQ(EventsOf({"1;#&", "WWWW"}, {"R", "R", ""}), (Events{"2 key", "2 lock"}));
  EXPECT_EQ(EventsOf({"1;#;", "WWWW"}, {"R", "R", ""}), (Events{"2 key"}));
  EXPECT_EQ(EventsOf({"1$;;", "WWWW"}, {"R", ""}), (Events{"1 key"}));
}

// A firefly beside a dog blows up at the end of the tick, and the dog is found missing in the next. The key
// and the lock burn, which is no taking and no opening.
TEST(RunEvents, TellOfAnExplosionOnceAndOfWhomItKills) {
  EXPECT_EQ(EventsOf({"W1WWW", "W.F#&", "WWWWW"}, {"", "", "", "", "", "", "", ""}),
            (Events{"1 explosion", "2 lost"}));
}

TEST(RunEvents, TellOfTheUnitThatIsChosen) {
  EXPECT_EQ(EventsOf({"1;2", "WWW"}, {"", ">", "", "1"}), (Events{"2 unit", "4 unit"}));
}

// The finish opens in the tick after the last gem.
TEST(RunEvents, TellOfTheFinishAndOfTheWin) {
  EXPECT_EQ(EventsOf({"1DT", "WWW"}, {"R", "", "R"}, {.needed = 1}), (Events{"1 gem", "2 finish", "3 win"}));
}

TEST(RunEvents, OfAReplayAreThoseOfTheRun) {
  const Picture picture{"1;D;!%2;T", "WWWWWWWWW"};
  const std::vector<std::string> keys{"R", "R", "R", "R", ">", "R", "R"};
  const auto run = std::make_unique<Hra>(Play(picture, {.needed = 1}));
  for (const std::string& held : keys) Tick(*run, Keys(held));
  ASSERT_TRUE(run->Win);
  const auto replay = std::make_unique<Hra>(1);
  ASSERT_TRUE(Replay(*replay, SaveRecord(*run, 0)));
  const Events events = Told(WholeReplay(*replay));
  EXPECT_EQ(events, EventsOf(picture, keys, {.needed = 1}));
  EXPECT_EQ(events, (Events{"2 gem", "3 finish", "4 key", "4 lock", "5 unit", "7 win"}));
}

// Of two gems, one on each side, the second try takes the other in the same tick.
TEST(RunEvents, BehindACutAreForgottenAndFoundAnew) {
  const auto run = std::make_unique<Hra>(Play({"D1D;;", "WWWWW"}));
  Timeline timeline(*run);
  const auto pass = [&](const char* held) {
    Tick(*run, Keys(held));
    timeline.Add(*run, Keys(held));
  };
  pass("");
  pass("R");
  EXPECT_EQ(Told(timeline), (Events{"2 gem"}));
  timeline.MoveTo(*run, 1);
  timeline.Cut(1);
  EXPECT_EQ(Told(timeline), Events{});
  pass("L");
  EXPECT_EQ(Told(timeline), (Events{"2 gem"}));
}

}  // namespace
}  // namespace zorik::test
