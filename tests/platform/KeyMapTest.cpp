#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QSettings>
#include <QTemporaryDir>

#include "platform/KeyMap.h"

namespace zorik {
namespace {

QKeyEvent Pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 place = 0) {
  return QKeyEvent(QEvent::KeyPress, key, modifiers, place, 0, 0);
}

std::vector<int> KeysOf(const KeyMap& map, KeyUse use) {
  std::vector<int> keys;
  for (const KeyChoice& key : map.Of(use)) {
    if (key.key != 0) keys.push_back(key.key);
  }
  return keys;
}

using Keys = std::vector<int>;

class KeyMapStore : public testing::Test {
 protected:
  QTemporaryDir folder_;
  QSettings store_{folder_.filePath("keys.ini"), QSettings::IniFormat};
};

TEST(KeyMap, HasTheKeysThatTheGameHasHadFromTheBeginning) {
  const KeyMap map;
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Left)), KeyUse::Left);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Up)), KeyUse::Up);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Right)), KeyUse::Right);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Down)), KeyUse::Down);
  for (const int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Space})
    EXPECT_EQ(map.UseOf(Pressed(key)), KeyUse::Action) << key;
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_R)), KeyUse::Restart);
  EXPECT_TRUE(map.Of(KeyUse::Restart).front().ctrl);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_P)), KeyUse::Pause);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Tab)), KeyUse::NextUnit);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Backtab, Qt::ShiftModifier)), KeyUse::NextUnit);
  EXPECT_EQ(map.UseOf(Qt::Key_Backspace), KeyUse::Rewind);
  EXPECT_EQ(map.UseOf(Qt::Key_F5), KeyUse::SetMark);
  EXPECT_EQ(map.UseOf(Qt::Key_F8), KeyUse::BackToMark);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_X)), std::nullopt);
  EXPECT_EQ(map.UseOf(0), std::nullopt) << "no key is no key of a use that has fewer than it could";
}

TEST(KeyMap, GivesAUseTheChosenKeyAlone) {
  KeyMap map;
  EXPECT_EQ(map.Choose(KeyUse::Action, {Qt::Key_X}), std::nullopt);
  EXPECT_EQ(KeysOf(map, KeyUse::Action), Keys{Qt::Key_X});
  EXPECT_EQ(map.UseOf(Qt::Key_Space), std::nullopt);
}

TEST(KeyMap, TakesAKeyFromAUseThatHasMore) {
  KeyMap map;
  EXPECT_EQ(map.Choose(KeyUse::Pause, {Qt::Key_Control}), KeyUse::Action);
  EXPECT_EQ(KeysOf(map, KeyUse::Action), (Keys{Qt::Key_Shift, Qt::Key_Space}));
  EXPECT_EQ(map.UseOf(Qt::Key_Control), KeyUse::Pause);
}

TEST(KeyMap, ExchangesTheKeysWithAUseThatWouldHaveNoneLeft) {
  KeyMap map;
  EXPECT_EQ(map.Choose(KeyUse::Left, {Qt::Key_P}), KeyUse::Pause);
  EXPECT_EQ(KeysOf(map, KeyUse::Left), Keys{Qt::Key_P});
  EXPECT_EQ(KeysOf(map, KeyUse::Pause), Keys{Qt::Key_Left});
  EXPECT_EQ(map.Choose(KeyUse::Restart, {Qt::Key_F5}), KeyUse::SetMark);
  EXPECT_EQ(KeysOf(map, KeyUse::SetMark), Keys{Qt::Key_R});
  EXPECT_FALSE(map.Of(KeyUse::SetMark).front().ctrl) << "Ctrl belongs to the restart";
}

TEST(KeyMap, LeavesTheOthersAloneWhenAUseGetsAKeyThatItHas) {
  KeyMap map;
  EXPECT_EQ(map.Choose(KeyUse::Pause, {Qt::Key_P}), std::nullopt);
  EXPECT_EQ(map, KeyMap());
}

TEST(KeyMap, NeverGivesTwoUsesOneKeyNorOneOfThemNone) {
  const Keys keys = {Qt::Key_Left, Qt::Key_Space, Qt::Key_R, Qt::Key_Tab,
                     Qt::Key_X,    Qt::Key_Shift, Qt::Key_F8};
  KeyMap map;
  for (std::size_t i = 0; i < 500; ++i) {
    map.Choose(static_cast<KeyUse>(i * 7 % kKeyUses), {keys[i * i % keys.size()]});
    for (std::size_t use = 0; use < kKeyUses; ++use) {
      const Keys its = KeysOf(map, static_cast<KeyUse>(use));
      EXPECT_FALSE(its.empty()) << i << ' ' << use;
      for (const int key : its) {
        EXPECT_EQ(map.UseOf(key), static_cast<KeyUse>(use)) << i << ' ' << key;
      }
    }
  }
}

TEST(KeyMap, TellsADigitOfTheKeypadFromThatOfTheMainRow) {
  KeyMap map;
  map.Choose(KeyUse::Left, KeyOf(Pressed(Qt::Key_4, Qt::KeypadModifier)));
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_4, Qt::KeypadModifier)), KeyUse::Left);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_4)), std::nullopt);
}

TEST(KeyMap, TakesTheKeypadsArrowsForArrows) {
  EXPECT_EQ(KeyMap().UseOf(Pressed(Qt::Key_Left, Qt::KeypadModifier)), KeyUse::Left);
}

TEST(KeyMap, KnowsASignThatShiftHasChangedByItsPlace) {
  KeyMap map;
  map.Choose(KeyUse::Left, KeyOf(Pressed(Qt::Key_Comma, Qt::NoModifier, 59)));
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Less, Qt::ShiftModifier, 59)), KeyUse::Left);
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Less, Qt::ShiftModifier, 94)), std::nullopt);
  map.Choose(KeyUse::Up, {Qt::Key_Less});
  EXPECT_EQ(map.UseOf(Pressed(Qt::Key_Less, Qt::ShiftModifier, 59)), KeyUse::Up) << "the sign goes first";
}

TEST(KeyMap, LetsNobodyChooseTheKeysThatLeadOutNorOnesWithoutAName) {
  for (const int key : {Qt::Key_Escape, Qt::Key_F1, Qt::Key_F2, Qt::Key_F11, Qt::Key_F12, Qt::Key_unknown,
                        Qt::Key_Alt, Qt::Key_Meta, Qt::Key_VolumeUp, Qt::Key_Dead_Acute, Qt::Key_nobreakspace,
                        Qt::Key_hyphen /* shown at the end of a line only */, Qt::Key(0)})
    EXPECT_FALSE(CanBeChosen({key})) << key;
  for (const int key : {Qt::Key_A, Qt::Key_9, Qt::Key_Space, Qt::Key_Shift, Qt::Key_F3, Qt::Key_F10,
                        Qt::Key_Return, Qt::Key_Comma, Qt::Key_Adiaeresis})
    EXPECT_TRUE(CanBeChosen({key})) << key;
}

TEST_F(KeyMapStore, GivesBackWhatWasWritten) {
  KeyMap map;
  map.Choose(KeyUse::Left, {Qt::Key_A, false, false, 38});
  map.Choose(KeyUse::Right, {Qt::Key_6, true});
  map.Choose(KeyUse::Restart, {Qt::Key_N, false, true, 57});
  map.Choose(KeyUse::Pause, {Qt::Key_Space});
  map.Write(store_);
  EXPECT_EQ(KeyMap::Read(store_), map);
}

TEST_F(KeyMapStore, HasTheKeysOfTheBeginningWhereNothingIsStored) {
  EXPECT_EQ(KeyMap::Read(store_), KeyMap());
}

TEST_F(KeyMapStore, ReplacesWhatIsNoKeyByThatOfTheBeginningAndKeepsTheRest) {
  for (const char* bad : {"", "left", "-5", "0", "65 x", "65@", "65@x", "65@1@2", "c65", "16777216",
                          "65 66 67 68", "99999999999999", "n", "cn", "16777249@@"}) {
    KeyMap map;
    map.Choose(KeyUse::Pause, {Qt::Key_F9});
    map.Write(store_);
    store_.setValue("KeyLeft", bad);
    EXPECT_EQ(KeyMap::Read(store_), map) << bad;
  }
}

TEST_F(KeyMapStore, HasAllKeysOfTheBeginningWhereTwoUsesShareOne) {
  KeyMap().Write(store_);
  store_.setValue("KeyUp", QString::number(Qt::Key_X));
  ASSERT_EQ(KeyMap::Read(store_).UseOf(Qt::Key_X), KeyUse::Up);
  store_.setValue("KeyDown", QString::number(Qt::Key_X));
  EXPECT_EQ(KeyMap::Read(store_), KeyMap());
  store_.setValue("KeyDown", QString::number(Qt::Key_Left));
  EXPECT_EQ(KeyMap::Read(store_), KeyMap());
}

}  // namespace
}  // namespace zorik
