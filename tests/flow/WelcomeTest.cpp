#include <gtest/gtest.h>

#include "flow/Welcome.h"

namespace zorik {
namespace {

TEST(Welcome, OpensAFileWhereNothingIsInItsWay) {
  EXPECT_EQ(WelcomeOf({}), Welcome::Opens);
}

TEST(Welcome, AsksInARun) {
  EXPECT_EQ(WelcomeOf({.Run = true}), Welcome::AsksToEndTheRun);
}

TEST(Welcome, SaysThatTheFileWaitsWhereAQuestionWouldDisturb) {
  EXPECT_EQ(WelcomeOf({.Box = true}), Welcome::WaitsAndSays);
  EXPECT_EQ(WelcomeOf({.Box = true, .Run = true}), Welcome::WaitsAndSays);
  EXPECT_EQ(WelcomeOf({.Score = true}), Welcome::WaitsAndSays);
  EXPECT_EQ(WelcomeOf({.Editors = true}), Welcome::WaitsAndSays);
  EXPECT_EQ(WelcomeOf({.Editors = true, .Run = true}), Welcome::WaitsAndSays);
}

TEST(Welcome, KeepsQuietWhileSomethingIsLoadedAndWhileTheGameHides) {
  EXPECT_EQ(WelcomeOf({.Notice = true, .Box = true, .Run = true}), Welcome::Waits);
  EXPECT_EQ(WelcomeOf({.Hidden = true, .Editors = true}), Welcome::Waits);
}

}  // namespace
}  // namespace zorik
