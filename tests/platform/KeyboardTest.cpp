#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

#include "platform/Keyboard.h"

namespace zorik {
namespace {

QKeyEvent Pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeat = false) {
  return QKeyEvent(QEvent::KeyPress, key, modifiers, {}, repeat);
}

QKeyEvent Released(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeat = false) {
  return QKeyEvent(QEvent::KeyRelease, key, modifiers, {}, repeat);
}

// An event of a key at a place of the keyboard.
QKeyEvent AtPlace(QEvent::Type type, quint32 place, int key, Qt::KeyboardModifiers modifiers) {
  return QKeyEvent(type, key, modifiers, place, 0, 0);
}

std::vector<int> Down(const KeySnapshot& keys) {
  std::vector<int> down;
  for (int key = 0; key < 256; ++key) {
    if (keys.Down(key)) down.push_back(key);
  }
  return down;
}

using Codes = std::vector<int>;

TEST(Keyboard, ReportsAHeldKeyInEveryTick) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Left));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyLeft});
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyLeft});
  keyboard.Release(Released(Qt::Key_Left));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, CountsATapBetweenTwoTicksForOneTick) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Up));
  keyboard.Release(Released(Qt::Key_Up));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyUp});
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, CountsSeveralTapsBetweenTwoTicksOnce) {
  Keyboard keyboard;
  for (int i = 0; i < 3; ++i) {
    keyboard.Press(Pressed(Qt::Key_Down));
    keyboard.Release(Released(Qt::Key_Down));
  }
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyDown});
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, IsNotSteeredByRepeats) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Right, Qt::NoModifier, true));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
  keyboard.Press(Pressed(Qt::Key_Right));
  keyboard.Release(Released(Qt::Key_Right, Qt::NoModifier, true));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyRight}) << "the release between two repeats lets nothing go";
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyRight});
}

TEST(Keyboard, GivesACommandOnceForEachPressAndEachRepeat) {
  for (const int key : {Qt::Key_Tab, Qt::Key_R, Qt::Key_C, Qt::Key_P, Qt::Key_F12}) {
    Keyboard keyboard;
    keyboard.Press(Pressed(key));
    EXPECT_EQ(keyboard.Take().down.count(), 1U) << key;
    EXPECT_EQ(keyboard.Take().down.count(), 0U) << "still held, " << key;
    keyboard.Press(Pressed(key, Qt::NoModifier, true));
    EXPECT_EQ(keyboard.Take().down.count(), 1U) << key;
    keyboard.Release(Released(key));
    EXPECT_EQ(keyboard.Take().down.count(), 0U) << key;
  }
}

TEST(Keyboard, LosesNoCommandThatComesAgainAfterAnother) {
  Keyboard keyboard;
  for (const int key : {Qt::Key_Tab, Qt::Key_Right, Qt::Key_Tab}) {
    keyboard.Press(Pressed(key));
    keyboard.Release(Released(key));
  }
  int tabs = 0;
  for (int tick = 0; tick < 4; ++tick) tabs += keyboard.Take().Down(kKeyTab) ? 1 : 0;
  EXPECT_EQ(tabs, 2);
}

TEST(Keyboard, KnowsRWithCtrlForARestart) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Control, Qt::ControlModifier));
  keyboard.Press(Pressed(Qt::Key_R, Qt::ControlModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyCtrl, kKeyR}));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyCtrl});
}

TEST(Keyboard, TakesTabWithShiftForTab) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Press(Pressed(Qt::Key_Backtab, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyTab, kKeyShift}));
}

TEST(Keyboard, TakesDigitsOfTheMainRowForThoseOfTheKeypad) {
  Keyboard keyboard;
  for (int digit = 0; digit <= 9; ++digit) {
    keyboard.Press(Pressed(Qt::Key_0 + digit));
    EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyPad0 + digit});
    keyboard.Release(Released(Qt::Key_0 + digit));
    EXPECT_EQ(Down(keyboard.Take()), Codes{});
  }
  keyboard.Press(Pressed(Qt::Key_3, Qt::KeypadModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyPad0 + 3});
  EXPECT_EQ(Down(keyboard.Take()), Codes{}) << "a digit is a command";
}

TEST(Keyboard, KnowsTheDigitsOfAMainRowThatWritesLettersByTheirPlace) {
  const std::vector<int> czech{Qt::Key_Plus, u'Ě',           u'Š',           u'Č',           u'Ř',
                               u'Ž',         Qt::Key_Yacute, Qt::Key_Aacute, Qt::Key_Iacute, Qt::Key_Eacute};
  for (quint32 i = 0; i < 10; ++i) {
    Keyboard keyboard;
    keyboard.Press(AtPlace(QEvent::KeyPress, 10 + i, czech[i], Qt::NoModifier));
    EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyPad0 + static_cast<int>((i + 1) % 10)});
  }
  Keyboard keyboard;
  keyboard.Press(AtPlace(QEvent::KeyPress, 20, Qt::Key_Equal, Qt::NoModifier));
  keyboard.Press(AtPlace(QEvent::KeyPress, 9, Qt::Key_Escape, Qt::NoModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{}) << "what lies beside the digits";
}

TEST(Keyboard, IsSteeredByTheKeysThatThePlayerHasChosen) {
  KeyMap keys;
  keys.Choose(KeyUse::Left, {Qt::Key_A});
  keys.Choose(KeyUse::Action, {Qt::Key_Less});
  keys.Choose(KeyUse::Pause, {Qt::Key_F9});
  keys.Choose(KeyUse::NextUnit, {Qt::Key_Q});
  Keyboard keyboard;
  keyboard.SetKeys(keys);
  keyboard.Press(Pressed(Qt::Key_Less));
  keyboard.Press(Pressed(Qt::Key_A));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeySpace, kKeyLeft}));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeySpace, kKeyLeft})) << "they are held";
  keyboard.ReleaseAll();
  keyboard.Press(Pressed(Qt::Key_F9));
  keyboard.Press(Pressed(Qt::Key_Q));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyTab, kKeyP}));
  for (const int key : {Qt::Key_Left, Qt::Key_Shift, Qt::Key_Control, Qt::Key_Space, Qt::Key_P, Qt::Key_Tab})
    keyboard.Press(Pressed(key));
  EXPECT_EQ(Down(keyboard.Take()), Codes{}) << "these have done it before";
}

TEST(Keyboard, LetsGoAChosenKeyThatChangedItsSignWithShift) {
  KeyMap keys;
  keys.Choose(KeyUse::Right, {Qt::Key_Period, false, false, 60});
  Keyboard keyboard;
  keyboard.SetKeys(keys);
  keyboard.Press(AtPlace(QEvent::KeyPress, 50, Qt::Key_Shift, Qt::NoModifier));
  keyboard.Press(AtPlace(QEvent::KeyPress, 60, Qt::Key_Greater, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyRight}));
  keyboard.Release(AtPlace(QEvent::KeyRelease, 50, Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Release(AtPlace(QEvent::KeyRelease, 60, Qt::Key_Period, Qt::NoModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, RestartsByAChosenKeyAloneOrByItWithCtrl) {
  KeyMap keys;
  keys.Choose(KeyUse::Restart, {Qt::Key_F9});
  Keyboard keyboard;
  keyboard.SetKeys(keys);
  keyboard.Press(Pressed(Qt::Key_F9));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyCtrl, kKeyR}));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
  keys.Choose(KeyUse::Restart, {Qt::Key_N, false, true});
  keys.Choose(KeyUse::Action, {Qt::Key_X});
  keyboard.SetKeys(keys);
  keyboard.Press(Pressed(Qt::Key_N));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyR}) << "no restart without Ctrl";
  keyboard.Press(Pressed(Qt::Key_Control, Qt::ControlModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{}) << "Ctrl is no key of action any more";
  keyboard.Press(Pressed(Qt::Key_N, Qt::ControlModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyCtrl, kKeyR}));
}

TEST(Keyboard, TakesNoShiftFromAnotherWindowForActionWhenThePlayerActsByAnotherKey) {
  KeyMap keys;
  keys.Choose(KeyUse::Action, {Qt::Key_X});
  Keyboard keyboard;
  keyboard.SetKeys(keys);
  keyboard.Press(Pressed(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyRight});
}

TEST(Keyboard, LeavesTheKeysOfPracticeToOthers) {
  for (const int key : {Qt::Key_Backspace, Qt::Key_F5, Qt::Key_F8})
    EXPECT_EQ(GameKey(Pressed(key)), -1) << key;
  KeyMap keys;
  keys.Choose(KeyUse::Rewind, {Qt::Key_C});
  EXPECT_EQ(GameKey(Pressed(Qt::Key_C), keys), -1) << "what is chosen goes before what it meant";
}

TEST(Keyboard, TakesPlusAndMinusFromTheKeypadOnly) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Plus));
  keyboard.Press(Pressed(Qt::Key_Minus));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
  keyboard.Press(Pressed(Qt::Key_Plus, Qt::KeypadModifier));
  keyboard.Press(Pressed(Qt::Key_Minus, Qt::KeypadModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyPadPlus, kKeyPadMinus}));
}

TEST(Keyboard, SteersWithTheKeypadsArrowsWhenTheNumberLockIsOff) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Left, Qt::KeypadModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyLeft});
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyLeft}) << "an arrow steers while it is held";
}

TEST(Keyboard, LetsGoAKeyWhoseMeaningChangedWhileItWasHeld) {
  Keyboard keyboard;
  keyboard.Press(AtPlace(QEvent::KeyPress, 83, Qt::Key_Left, Qt::KeypadModifier));
  keyboard.Release(AtPlace(QEvent::KeyRelease, 83, Qt::Key_4, Qt::KeypadModifier));
  keyboard.Take();
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, HoldsShiftWhileOneOfTwoShiftsIsHeld) {
  Keyboard keyboard;
  keyboard.Press(AtPlace(QEvent::KeyPress, 50, Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Press(AtPlace(QEvent::KeyPress, 62, Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Take();
  keyboard.Release(AtPlace(QEvent::KeyRelease, 50, Qt::Key_Shift, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyShift});
  keyboard.Release(AtPlace(QEvent::KeyRelease, 62, Qt::Key_Shift, Qt::NoModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, LetsEverythingGoWhenTheFocusIsLost) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_Left));
  keyboard.Press(Pressed(Qt::Key_Space));
  keyboard.Press(Pressed(Qt::Key_Tab));
  keyboard.ReleaseAll();
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, KnowsTheKeysOfAction) {
  Keyboard keyboard;
  for (const int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Space, Qt::Key_S, Qt::Key_A}) {
    keyboard.Press(Pressed(key));
  }
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyCtrl, kKeySpace, kKeyA, kKeyS}));
}

TEST(Keyboard, DisregardsAllOtherKeys) {
  Keyboard keyboard;
  for (const int key : {Qt::Key_Q, Qt::Key_Return, Qt::Key_F1, Qt::Key_Clear}) keyboard.Press(Pressed(key));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

// What a hand does, and when, in milliseconds.
struct Move {
  int at;
  bool down;
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;  // as they were before
};

// The snapshots of a keyboard that is asked in a beat while a hand moves.
std::vector<Codes> Heard(std::vector<Move> moves, int interval, int phase) {
  std::int64_t now = 0;
  Keyboard keyboard([&now] { return now; });
  std::vector<Codes> heard;
  std::stable_sort(moves.begin(), moves.end(), [](const Move& a, const Move& b) { return a.at < b.at; });
  auto next = moves.begin();
  for (; now < 1500; ++now) {
    for (; next != moves.end() && next->at == now; ++next) {
      if (next->down) {
        keyboard.Press(Pressed(next->key, next->modifiers));
      } else {
        keyboard.Release(Released(next->key, next->modifiers));
      }
    }
    if ((now + phase) % interval == 0) heard.push_back(Down(keyboard.Take()));
  }
  return heard;
}

bool Has(const Codes& codes, int key) {
  return std::find(codes.begin(), codes.end(), key) != codes.end();
}

// Every interval of play, and every fifth place of the beat in which a hand may begin.
template <class Check>
void AtEverySpeed(const Check& check) {
  for (int interval = 17; interval <= 181; interval = interval == 17 ? 21 : interval + 20) {
    for (int phase = 0; phase < interval; phase += 5) check(interval, phase);
  }
}

constexpr int kHolds[] = {5, 20, 40, 60, 100, 150};

TEST(Keyboard, RestartsOnceForEveryCtrlAndRHoweverShortEitherIs) {
  AtEverySpeed([](int interval, int phase) {
    for (const int hold : kHolds) {
      for (const int ctrlUp : {1, hold / 2, hold, hold + 60}) {
        const auto heard = Heard({{100, true, Qt::Key_Control, {}},
                                  {160, true, Qt::Key_R, Qt::ControlModifier},
                                  {160 + ctrlUp, false, Qt::Key_Control, Qt::ControlModifier},
                                  {160 + hold, false, Qt::Key_R, {}}},
                                 interval, phase);
        const auto restarts = std::count_if(heard.begin(), heard.end(), [](const Codes& codes) {
          return Has(codes, kKeyR) && Has(codes, kKeyCtrl);
        });
        EXPECT_EQ(restarts, 1) << interval << ' ' << phase << ' ' << hold << ' ' << ctrlUp;
      }
    }
  });
}

TEST(Keyboard, ActsAndNeverWalksForAnArrowThatWentDownWithAKeyOfAction) {
  const std::map<Qt::Key, Qt::KeyboardModifiers> modifiers{
      {Qt::Key_Shift, Qt::ShiftModifier}, {Qt::Key_Control, Qt::ControlModifier}, {Qt::Key_Space, {}}};
  AtEverySpeed([&modifiers](int interval, int phase) {
    for (const auto& [key, flag] : modifiers) {
      for (const int hold : kHolds) {
        for (const int up : {1, hold / 2, hold, hold + 60}) {
          const auto heard = Heard({{100, true, key, {}},
                                    {160, true, Qt::Key_Right, flag},
                                    {160 + up, false, key, flag},
                                    {160 + hold, false, Qt::Key_Right, {}}},
                                   interval, phase);
          int acts = 0;
          for (const Codes& codes : heard) {
            if (!Has(codes, kKeyRight)) continue;
            ++acts;
            EXPECT_EQ(codes.size(), 2U) << "walked: " << interval << ' ' << phase << ' ' << hold << ' ' << up;
          }
          EXPECT_GE(acts, 1) << "lost: " << interval << ' ' << phase << ' ' << hold << ' ' << up;
        }
      }
    }
  });
}

TEST(Keyboard, StepsBackForShiftAndTabHoweverSoonShiftIsUp) {
  AtEverySpeed([](int interval, int phase) {
    for (const int hold : kHolds) {
      const auto heard = Heard({{100, true, Qt::Key_Shift, {}},
                                {130, true, Qt::Key_Backtab, Qt::ShiftModifier},
                                {131, false, Qt::Key_Shift, Qt::ShiftModifier},
                                {130 + hold, false, Qt::Key_Tab, {}}},
                               interval, phase);
      std::vector<Codes> tabs;
      std::copy_if(heard.begin(), heard.end(), std::back_inserter(tabs),
                   [](const Codes& codes) { return Has(codes, kKeyTab); });
      EXPECT_EQ(tabs, (std::vector<Codes>{{kKeyTab, kKeyShift}})) << interval << ' ' << phase << ' ' << hold;
    }
  });
}

TEST(Keyboard, WalksForAPressThatWasOverBeforeShiftWentDown) {
  AtEverySpeed([](int interval, int phase) {
    const auto heard = Heard({{100, true, Qt::Key_Right, {}},
                              {120, false, Qt::Key_Right, {}},
                              {125, true, Qt::Key_Shift, {}},
                              {130, true, Qt::Key_Down, Qt::ShiftModifier},
                              {140, false, Qt::Key_Down, Qt::ShiftModifier},
                              {145, false, Qt::Key_Shift, Qt::ShiftModifier}},
                             interval, phase);
    int walks = 0;
    int acts = 0;
    for (const Codes& codes : heard) {
      if (codes.empty()) continue;
      EXPECT_TRUE(codes == Codes{kKeyRight} || codes == Codes{kKeyShift} ||
                  codes == (Codes{kKeyShift, kKeyDown}))
          << interval << ' ' << phase;
      walks += Has(codes, kKeyRight) ? 1 : 0;
      acts += Has(codes, kKeyDown) ? 1 : 0;
    }
    EXPECT_GE(walks, 1) << interval << ' ' << phase;
    EXPECT_GE(acts, 1) << interval << ' ' << phase;
  });
}

TEST(Keyboard, LosesNoneOfTwoArrowsThatAreTappedOneAfterTheOther) {
  AtEverySpeed([](int interval, int phase) {
    const auto heard = Heard({{100, true, Qt::Key_Right, {}},
                              {110, false, Qt::Key_Right, {}},
                              {120, true, Qt::Key_Left, {}},
                              {130, false, Qt::Key_Left, {}}},
                             interval, phase);
    std::vector<int> steps;
    for (const Codes& codes : heard) steps.insert(steps.end(), codes.begin(), codes.end());
    EXPECT_EQ(steps, (Codes{kKeyRight, kKeyLeft})) << interval << ' ' << phase;
  });
}

TEST(Keyboard, KeepsTheOrderOfKeysThatATickReadsInAnother) {
  const std::vector<std::pair<Qt::Key, Qt::Key>> pairs{
      {Qt::Key_S, Qt::Key_Right}, {Qt::Key_A, Qt::Key_S}, {Qt::Key_Right, Qt::Key_Tab}};
  for (const auto& [first, second] : pairs) {
    const auto heard = Heard(
        {{10, true, first, {}}, {20, false, first, {}}, {30, true, second, {}}, {40, false, second, {}}}, 100,
        0);
    ASSERT_GE(heard.size(), 3U);
    EXPECT_EQ(heard[1], Codes{GameKey(Pressed(first))});
    EXPECT_EQ(heard[2], Codes{GameKey(Pressed(second))});
  }
}

// Shift, and then the arrow to the right, which a tick reads together.
void HoldChord(Keyboard& keyboard) {
  keyboard.Press(Pressed(Qt::Key_Shift));
  keyboard.Press(Pressed(Qt::Key_Right, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyRight}));
}

TEST(Keyboard, WalksWithAnArrowThatIsHeldAMomentAfterShiftWasLetGo) {
  std::int64_t now = 0;
  Keyboard keyboard([&now] { return now; });
  HoldChord(keyboard);
  now = 1000;
  keyboard.Release(Released(Qt::Key_Shift, Qt::ShiftModifier));
  now = 1149;
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyRight}));
  keyboard.Release(Released(Qt::Key_Tab));  // makes the moment no longer
  now = 1150;
  EXPECT_EQ(Down(keyboard.Take()), Codes{kKeyRight});
}

TEST(Keyboard, ActsAMomentLongerAfterEachTimeThatShiftIsLetGo) {
  std::int64_t now = 0;
  Keyboard keyboard([&now] { return now; });
  HoldChord(keyboard);
  keyboard.Release(Released(Qt::Key_Shift, Qt::ShiftModifier));
  now = 100;
  keyboard.Press(Pressed(Qt::Key_Shift, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyRight}));
  now = 2000;
  keyboard.Release(Released(Qt::Key_Shift, Qt::ShiftModifier));
  now = 2149;
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyRight}));
}

TEST(Keyboard, WalksAtOnceWithAnotherArrowAfterShiftWasLetGo) {
  std::int64_t now = 0;
  Keyboard keyboard([&now] { return now; });
  HoldChord(keyboard);
  keyboard.Release(Released(Qt::Key_Shift, Qt::ShiftModifier));
  keyboard.Press(Pressed(Qt::Key_Up));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyUp, kKeyRight}));
}

TEST(Keyboard, KnowsShiftThatWentDownInAnotherWindow) {
  Keyboard keyboard;
  keyboard.Press(AtPlace(QEvent::KeyPress, 114, Qt::Key_Right, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyRight}));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyShift, kKeyRight}));
  keyboard.Release(AtPlace(QEvent::KeyRelease, 114, Qt::Key_Right, Qt::ShiftModifier));
  keyboard.Release(AtPlace(QEvent::KeyRelease, 50, Qt::Key_Shift, Qt::ShiftModifier));
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

TEST(Keyboard, HoldsAKeyOnWhoseRepeatsDoNotCallThemselvesRepeats) {
  Keyboard keyboard;
  keyboard.Press(Pressed(Qt::Key_S));
  keyboard.Take();
  for (quint64 time = 600; time < 800; time += 40) {
    QKeyEvent up = Released(Qt::Key_S);
    QKeyEvent down = Pressed(Qt::Key_S);
    up.setTimestamp(time);
    down.setTimestamp(time);
    keyboard.Release(up);
    keyboard.Press(down);
  }
  keyboard.Press(Pressed(Qt::Key_Left));
  EXPECT_EQ(Down(keyboard.Take()), (Codes{kKeyLeft, kKeyS})) << "nothing but the arrow is new";
}

TEST(Keyboard, IsNeverMoreThanAFewTicksBehindTheHand) {
  Keyboard keyboard;
  for (int i = 0; i < 20; ++i) {
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right}) {
      keyboard.Press(Pressed(key));
      keyboard.Release(Released(key));
    }
  }
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(Down(keyboard.Take()).empty());
  EXPECT_EQ(Down(keyboard.Take()), Codes{});
}

}  // namespace
}  // namespace zorik
