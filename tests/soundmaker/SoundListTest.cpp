#include <gtest/gtest.h>

#include "data/Result.h"
#include "soundmaker/SoundList.h"

namespace zorik::sound {
namespace {

TEST(SoundList, HasALineForEachSound) {
  const auto list = ParseSoundList("# all\n\ndrop 0.5 -20 0 -5.5 +6  # three\nhum 2 -30 0 1 loop\n");
  ASSERT_TRUE(list) << list.Message();
  ASSERT_EQ(list->size(), 2U);
  EXPECT_EQ((*list)[0].name, "drop");
  EXPECT_EQ((*list)[0].seconds, 0.5);
  EXPECT_EQ((*list)[0].loudness, -20);
  EXPECT_EQ((*list)[0].pitches, (std::vector<double>{0, -5.5, 6}));
  EXPECT_FALSE((*list)[0].loop);
  EXPECT_TRUE((*list)[1].loop);
}

TEST(SoundList, NumbersTheRecordingsFromTheSecondOn) {
  SoundEntry entry;
  entry.name = "drop";
  EXPECT_EQ(entry.FileOf(1), "drop.wav");
  EXPECT_EQ(entry.FileOf(2), "drop2.wav");
}

TEST(SoundList, RefusesALineThatMakesNoSense) {
  for (const char* line :
       {"drop", "drop 0.5 -20", "drop 0.5 -20 0", "drop 0.5 -20 0 loop", "drop x -20 0 1", "drop 0.5 20 0 1",
        "drop 0 -20 0 1", "drop 0.5 -20 0 7", "drop 0.5 -20 0 1 ring", "drop 0.5 -20 0 1 2 3 4 5 6 1 2 3"}) {
    const auto list = ParseSoundList("hum 2 -30 0 1 loop\n" + std::string(line));
    ASSERT_FALSE(list) << line;
    EXPECT_EQ(list.Message(), "line 2 makes no sense: " + std::string(line));
  }
}

}  // namespace
}  // namespace zorik::sound
