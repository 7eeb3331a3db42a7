#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include "platform/PadMap.h"

namespace zorik {
namespace {

std::array<int, kPadUses> ButtonsOf(const PadMap& map) {
  return {map.Of(PadUse::Action), map.Of(PadUse::NextUnit), map.Of(PadUse::Restart), map.Of(PadUse::Pause)};
}

using Buttons = std::array<int, kPadUses>;

class PadMapStore : public testing::Test {
 protected:
  QTemporaryDir folder_;
  QSettings store_{folder_.filePath("pad.ini"), QSettings::IniFormat};
};

TEST(PadMap, HasTwoButtonsAtFirst) {
  EXPECT_EQ(ButtonsOf(PadMap()), (Buttons{0, 1, kNoButton, kNoButton}));
  EXPECT_EQ(PadMap().UseOf(kNoButton), std::nullopt);
}

TEST(PadMap, ExchangesAButtonWithTheUseThatHadIt) {
  PadMap map;
  EXPECT_EQ(map.Choose(PadUse::Pause, 7), std::nullopt);
  EXPECT_EQ(map.Choose(PadUse::Pause, 1), PadUse::NextUnit);
  EXPECT_EQ(ButtonsOf(map), (Buttons{0, 7, kNoButton, 1}));
  EXPECT_EQ(map.Choose(PadUse::Restart, 0), PadUse::Action);
  EXPECT_EQ(ButtonsOf(map), (Buttons{kNoButton, 7, 0, 1}));
  EXPECT_EQ(map.Choose(PadUse::Restart, kNoButton), std::nullopt);
  EXPECT_EQ(ButtonsOf(map), (Buttons{kNoButton, 7, kNoButton, 1}));
}

TEST_F(PadMapStore, GivesBackWhatWasWritten) {
  PadMap map;
  map.Choose(PadUse::Pause, 31);
  map.Choose(PadUse::NextUnit, kNoButton);
  map.Write(store_);
  EXPECT_EQ(PadMap::Read(store_), map);
}

TEST_F(PadMapStore, ReplacesWhatIsNoButtonByThatOfTheBeginning) {
  for (const char* bad : {"", "one", "-2", "32", "1e3"}) {
    store_.setValue("PadPause", 5);
    store_.setValue("PadAction", bad);
    EXPECT_EQ(ButtonsOf(PadMap::Read(store_)), (Buttons{0, 1, kNoButton, 5})) << bad;
  }
}

TEST_F(PadMapStore, HasAllButtonsOfTheBeginningWhereTwoUsesShareOne) {
  store_.setValue("PadPause", 4);
  store_.setValue("PadRestart", 4);
  EXPECT_EQ(PadMap::Read(store_), PadMap());
}

}  // namespace
}  // namespace zorik
