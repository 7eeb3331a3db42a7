#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "support/Scene.h"

namespace zorik::test {
namespace {

using Sounds = std::vector<SoundId>;

const std::string kStands = "*A/Z";
const std::string kStepRight = "*A-B/Z";

// Lets the cat take its part of a tick; it must draw all outcomes and none beyond them.
void LetAct(Hra& hra, std::initializer_list<int> outcomes = {}) {
  Foretell(hra, outcomes);
  Kocka(hra);
  EXPECT_TRUE(Drained(hra));
}

Cell CatCell(const Hra& hra) {
  return {hra.CatX, hra.CatY};
}

// What it can enter

constexpr std::array<std::uint16_t, 6> kEntered{kSpace, kDirt, kKeyRed, kKeyGreen, kKeyBlue, kCatKey};

bool Enters(std::uint16_t code, int state) {
  const bool restingGem = code == kGem && state == kResting;
  return restingGem || std::find(kEntered.begin(), kEntered.end(), code) != kEntered.end();
}

std::vector<std::uint16_t> AllCodes() {
  std::vector<std::uint16_t> codes{kFleaInTransit, kVacated};
  for (std::uint16_t code = kSpace; code < kObjectCount; ++code) codes.push_back(code);
  return codes;
}

TEST(Cat, EntersSpaceDirtKeysItsOwnKeyAndRestingGemsAndNothingElse) {
  for (const std::uint16_t code : AllCodes()) {
    for (const std::uint8_t state : {kFlat, kRounded, kResting, kFalling}) {
      SCOPED_TRACE(std::to_string(code) + " " + std::to_string(state));
      Hra hra = Play({"J.W"}, {.script = kStepRight});
      hra.SetObject({1, 0}, code, state);
      const bool lockKey = IsKey(code);
      lockKey ? LetAct(hra, {2, 1, 1}) : LetAct(hra, {2});
      const bool enters = Enters(code, state);
      EXPECT_EQ(hra.CatX, enters ? 1 : 0);
      EXPECT_EQ(hra.Field({0, 0}), enters ? kSpace : kCat);
      EXPECT_EQ(hra.Field({1, 0}), enters ? +kCat : +code);
      EXPECT_EQ(hra.FieldState({1, 0}), enters ? +kFlat : +state);
    }
  }
}

TEST(Cat, DoesNotEnterAnOpenFinish) {
  Hra hra = Play({"JT"}, {.script = kStepRight});
  hra.ExitOpen = true;
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{"JT"}));
}

TEST(Cat, TakesAGemWithoutCountingItSoTheDogLacksIt) {
  Diary diary;
  Hra hra = Play({"JD"}, {.needed = 1, .script = kStepRight}, &diary);
  diary.Clear();
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{".J"}));
  EXPECT_EQ(hra.Count(kGem), 0);
  EXPECT_EQ(hra.GemsCollected, 0);
  EXPECT_EQ(hra.Score, 0);
  EXPECT_FALSE(hra.ExitOpen);
  EXPECT_FALSE(diary.Has("gems *"));
  EXPECT_EQ(SoundsOf(diary), Sounds{});
}

TEST(Cat, TakesAKeyWhoseLocksOpenAfterTheDrawOfItsMove) {
  Hra red = Play({"J!%", ".%."}, {.script = kStepRight});
  LetAct(red, {2, 3, 1, 2, 2});
  EXPECT_EQ(Drawn(red), (Picture{".JR", ".R."}));
  Hra green = Play({"J@^", "@^."}, {.script = kStepRight});
  LetAct(green, {2, 3, 1});
  EXPECT_EQ(Drawn(green), (Picture{".JK", "@^."}));
  Hra blue = Play({"J#&"}, {.script = kStepRight});
  LetAct(blue, {2, 3, 1});
  EXPECT_EQ(Drawn(blue), (Picture{".J."}));
}

TEST(Cat, ThatTakesItsKeyJumpsInTheSameTickAndDoesNotAdvance) {
  Hra hra = Play({"J$"}, {.script = "*A-B/Z*I-A/Z"});
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{".J"}));
  EXPECT_EQ(hra.CatPC, 4);
  EXPECT_FALSE(hra.CatLastAdvanced);
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{"J."}));
}

TEST(Cat, WithoutAHandlerTakesItsKeyAndGoesOn) {
  Hra hra = Play({"J$"}, {.script = "*A-B-A/Z"});
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{".J"}));
  EXPECT_EQ(hra.CatPC, 2);
  EXPECT_TRUE(hra.CatLastAdvanced);
}

TEST(Cat, IsNotHeldByAJumpToTheVeryTokenThatTakesTheKey) {
  Hra hra = Play({"J$"}, {.script = "*I-B/Z"});
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{".J"}));
  EXPECT_EQ(hra.CatPC, 2);
}

// Its cell

TEST(Cat, IsWrittenIntoItsCellAndRepaintedInEveryTick) {
  Diary diary;
  Hra hra = Play({".J."}, {.script = kStands}, &diary);
  Put(hra, 1, 0, 'R');
  diary.Clear();
  LetAct(hra);
  EXPECT_EQ(hra.Field({1, 0}), kCat);
  EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 1,0"}));
}

TEST(Cat, ThatMovesEmptiesItsOldCellAndRepaintsBothCells) {
  Diary diary;
  Hra hra = Play({"J."}, {.script = kStepRight}, &diary);
  diary.Clear();
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{".J"}));
  EXPECT_EQ(hra.FieldState({0, 0}), kFlat);
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"cell 0,0", "cell 1,0"}));
}

TEST(Cat, ShowsTheDirectionThatItWantsAlsoWhereItIsBlocked) {
  struct Pose {
    std::string token;
    int direction;
    int pose;
  };
  for (const auto& [token, direction, pose] : {Pose{"-A", 0, 0}, {"-B", 1, 2}, {"-C", 2, 3}, {"-D", 3, 1}}) {
    SCOPED_TRACE(token);
    Hra hra = Play({"J"}, {.script = "*A" + token});
    hra.CatPose = -1;
    LetAct(hra, {2});
    EXPECT_EQ(hra.CatPose, pose);
    EXPECT_EQ(hra.CatLastDir, direction);
  }
  Hra stands = Play({"J"}, {.script = kStands});
  stands.CatPose = 2;
  stands.CatLastDir = 2;
  LetAct(stands);
  EXPECT_EQ(stands.CatPose, 1);
  EXPECT_EQ(stands.CatLastDir, -1);
}

TEST(Cat, RemembersWhereItStoodBeforeTheTick) {
  Hra hra = Play({"W..", ".J."}, {.script = "*A-B-C/Z"});
  LetAct(hra, {2});
  EXPECT_EQ(hra.CatLastX, 1);
  EXPECT_EQ(hra.CatLastY, 1);
  LetAct(hra, {2});
  EXPECT_EQ(hra.CatLastX, 2);
  EXPECT_EQ(hra.CatLastY, 1);
  EXPECT_EQ(CatCell(hra), Cell(2, 0));
  LetAct(hra);
  EXPECT_EQ(hra.CatLastX, 2);
  EXPECT_EQ(hra.CatLastY, 0);
}

TEST(Cat, IsNotThereInACaveWithoutOne) {
  Diary diary;
  Hra hra = Play({"..."}, {.script = kStepRight}, &diary);
  EXPECT_FALSE(hra.CatPresent);
  hra.CatProgram = kStepRight;
  diary.Clear();
  LetAct(hra);
  EXPECT_TRUE(diary.entries.empty());
  EXPECT_EQ(hra.CatPC, 1);
  EXPECT_EQ(hra.CatX, kAbsent);
  EXPECT_EQ(Drawn(hra), (Picture{"..."}));
}

TEST(Cat, OfSeveralInACaveTheLastOneActs) {
  Hra hra = Play({"J..", "J..", "..."}, {.script = kStepRight});
  LetAct(hra, {2});
  EXPECT_EQ(Drawn(hra), (Picture{"J..", ".J.", "..."}));
}

// Its place in the tick

TEST(Cat, ActsBeforeAnythingFalls) {
  Hra hra = Live({"r..", "J..", "WWW"}, {.script = kStepRight});
  Pass(hra);
  EXPECT_TRUE(hra.CatPresent);
  EXPECT_EQ(Drawn(hra), (Picture{"...", "rJ.", "WWW"}));
}

TEST(Cat, MovesOncePerTick) {
  Hra hra = Play({"J....", "WWWWW"}, {.script = "*A/F"});
  for (int x = 1; x <= 3; ++x) {
    Pass(hra);
    EXPECT_EQ(hra.CatX, x);
  }
  EXPECT_EQ(Drawn(hra), (Picture{"...J.", "WWWWW"}));
}

TEST(Cat, RidesTheTeleportRestingMeanwhileAndGoesOnFromTheExit) {
  const RecordTick quiet{.before = {32}};
  const RecordTick step{.before = {2, 32}};
  Hra hra = PlayBack({"...W.", "JS.S.", ".W..."}, {step, quiet, quiet, quiet, step}, {.script = "*A-B-D/Z"});
  Pass(hra);
  EXPECT_TRUE(hra.CatInTransit);
  EXPECT_EQ(CatCell(hra), Cell(1, 1));
  for (int tick = 2; tick <= 3; ++tick) {
    Pass(hra);
    EXPECT_TRUE(hra.CatInTransit);
    EXPECT_EQ(hra.CatPC, 2);
    EXPECT_EQ(Drawn(hra), (Picture{"...W.", ".W.W.", ".W..."}));
  }
  Pass(hra);
  EXPECT_FALSE(hra.CatInTransit);
  EXPECT_EQ(CatCell(hra), Cell(3, 1));
  EXPECT_EQ(Drawn(hra), (Picture{"...W.", "...J.", ".W..."}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{"...W.", ".....", ".W.J."}));
  EXPECT_FALSE(hra.RanDry);
}

TEST(Cat, DrawsFromOneToFourForItsMoveAndForARandomStep) {
  for (const std::string& program : {std::string("*A/F"), std::string("*A-P")}) {
    SCOPED_TRACE(program);
    Hra hra = Play({"WWW", "WJW", "WWW"}, {.script = program});
    hra.RecordText.clear();
    for (int tick = 0; tick < 300; ++tick) {
      hra.CatPC = 1;
      Kocka(hra);
    }
    EXPECT_EQ(hra.RecordText.find_first_not_of("BCDE"), std::string::npos);
    // Every other draw of the random step is that of the move.
    for (const std::size_t first : {0U, 1U}) {
      std::string outcomes;
      for (std::size_t i = first; i < hra.RecordText.size(); i += 2) outcomes += hra.RecordText[i];
      for (const char letter : std::string("BCDE")) EXPECT_NE(outcomes.find(letter), std::string::npos);
    }
  }
}

// Its death

TEST(Cat, DiesWithTheMonsterThatTouchesItAtTheEndOfTheTick) {
  for (const char monster : std::string_view("FU")) {
    SCOPED_TRACE(monster);
    Hra hra = PlayBack({"WWWW", std::string("WJ") + monster + "W", "WWWW"}, {{.before = {32}}},
                       {.script = kStands});
    Pass(hra);
    EXPECT_EQ(Drawn(hra), (Picture{"WWWW", "WxxW", "WWWW"}));
    EXPECT_FALSE(hra.CatPresent);
  }
}

TEST(Cat, IsNotHarmedByWalkingAgainstAMonster) {
  Hra hra = Play({"JF"}, {.script = kStepRight});
  LetAct(hra, {2});
  EXPECT_TRUE(hra.CatPresent);
  EXPECT_EQ(Drawn(hra), (Picture{"JF"}));
}

TEST(Cat, DiesOfAnExplosionWhoseBlockCoversItsCellOnly) {
  const Picture field(5, ".....");
  for (int y = 0; y < 5; ++y) {
    for (int x = 0; x < 5; ++x) {
      SCOPED_TRACE(std::to_string(x) + "," + std::to_string(y));
      Picture picture = field;
      picture[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = 'J';
      Hra hra = Play(picture, {.script = kStands});
      Exploze(hra, {2, 2});
      const bool covered = x >= 1 && x <= 3 && y >= 1 && y <= 3;
      EXPECT_EQ(hra.CatPresent, !covered);
    }
  }
}

TEST(Cat, DiesOfAFallingObjectOnIt) {
  for (const char falling : std::string_view("rd")) {
    SCOPED_TRACE(falling);
    Hra hra = Live({std::string("W") + falling + "W", "WJW", "WWW"}, {.script = kStands});
    Pass(hra);
    EXPECT_FALSE(hra.CatPresent);
    EXPECT_EQ(Drawn(hra), (Picture{"WxW", "WxW", "WWW"}));
  }
}

TEST(Cat, CarriesARestingObjectUnharmed) {
  Hra hra = Live({"WRW", "WJW", "WWW"}, {.script = kStands});
  Pass(hra, 3);
  EXPECT_TRUE(hra.CatPresent);
  EXPECT_EQ(Drawn(hra), (Picture{"WRW", "WJW", "WWW"}));
}

TEST(Cat, OnceDeadDoesNothingWhileEventsStillMoveItsProgram) {
  Diary diary;
  Hra hra = Play({"J.."}, {.script = "*A/F*B/F"}, &diary);
  Exploze(hra, {0, 0});
  ASSERT_FALSE(hra.CatPresent);
  diary.Clear();
  LetAct(hra);
  EXPECT_EQ(hra.CatPC, 1);
  EXPECT_TRUE(diary.entries.empty());
  KockaEvent(hra, 'B');
  EXPECT_EQ(hra.CatPC, 3);
  LetAct(hra);
  EXPECT_TRUE(diary.entries.empty());
  EXPECT_EQ(Drawn(hra), (Picture{"xx."}));
}

// Boxes

struct Way {
  std::string step;
  std::string push;
  zorik::Step way;
};
const std::array<Way, 4> kWays{
    {{"-A", "-I", kLeft}, {"-B", "-J", kRight}, {"-C", "-K", kUp}, {"-D", "-L", kDown}}};

TEST(Cat, PushesABoxOrABombIntoAFreeCellWithAnyDraw) {
  for (const Way& way : kWays) {
    for (const char letter : std::string_view("KI")) {
      for (const int chance : {1, 2, 3, 4}) {
        SCOPED_TRACE(way.step + letter + std::to_string(chance));
        Diary diary;
        Hra hra = Play({".....", ".....", "..J..", ".....", "....."}, {.script = "*A" + way.step}, &diary);
        const Cell box = Cell(2, 2) + way.way;
        Put(hra, box.x(), box.y(), letter);
        const std::uint8_t state = hra.FieldState(box);
        diary.Clear();
        LetAct(hra, {chance});
        EXPECT_EQ(hra.Field(box + way.way), kBox);
        EXPECT_EQ(hra.FieldState(box + way.way), state);
        EXPECT_EQ(hra.Field(box), kCat);
        EXPECT_EQ(hra.FieldState(box), kFlat);
        EXPECT_EQ(hra.Field({2, 2}), kSpace);
        EXPECT_EQ(SoundsOf(diary), Sounds{SoundId::BoxPush});
        const Cell pushed = box + way.way;
        EXPECT_TRUE(diary.Has("cell " + std::to_string(pushed.x()) + "," + std::to_string(pushed.y())));
      }
    }
  }
}

TEST(Cat, ChangesPlacesWithABlockedBoxInOneDrawOfFour) {
  for (const char letter : std::string_view("KI")) {
    for (const int chance : {1, 2, 3, 4}) {
      SCOPED_TRACE(letter + std::to_string(chance));
      Diary diary;
      Hra hra = Play({std::string("J") + letter + "W"}, {.script = kStepRight}, &diary);
      const std::uint8_t state = hra.FieldState({1, 0});
      diary.Clear();
      LetAct(hra, {chance});
      const Cell box(chance == 1 ? 0 : 1, 0);
      EXPECT_EQ(hra.Field(box), kBox);
      EXPECT_EQ(hra.FieldState(box), state);
      EXPECT_EQ(CatCell(hra), Cell(chance == 1 ? 1 : 0, 0));
      EXPECT_EQ(hra.Field(CatCell(hra)), kCat);
      EXPECT_EQ(hra.FieldState(CatCell(hra)), kFlat);
      EXPECT_EQ(SoundsOf(diary), chance == 1 ? (Sounds{SoundId::BoxPush, SoundId::BoxPush}) : Sounds{});
      EXPECT_EQ(diary.Count("cell 0,0"), 1);  // as the box in it, or as the cat that stayed
    }
  }
}

TEST(Cat, ChangesPlacesInAllFourDirections) {
  for (const Way& way : kWays) {
    SCOPED_TRACE(way.push);
    Hra hra = Play({".....", ".....", "..J..", ".....", "....."}, {.script = "*A" + way.push});
    const Cell box = Cell(2, 2) + way.way;
    hra.SetObject(box, kBox, kRounded);
    hra.SetField(box + way.way, kSteel);
    LetAct(hra, {1});
    EXPECT_EQ(CatCell(hra), box);
    EXPECT_EQ(hra.Field({2, 2}), kBox);
    EXPECT_EQ(hra.FieldState({2, 2}), kRounded);
    EXPECT_EQ(hra.Field(box + way.way), kSteel);
    EXPECT_EQ(hra.CatPC, 2);
  }
}

TEST(Cat, FindsABoxBlockedByAnythingButSpace) {
  for (const std::uint16_t behind : AllCodes()) {
    if (behind == kSpace) continue;
    SCOPED_TRACE(behind);
    Hra hra = Play({"JK."}, {.script = kStepRight});
    hra.SetField({2, 0}, behind);
    LetAct(hra, {2});
    EXPECT_EQ(hra.Field({0, 0}), kCat);
    EXPECT_EQ(hra.Field({1, 0}), kBox);
    EXPECT_EQ(hra.Field({2, 0}), behind);
  }
}

// Boulders

TEST(Cat, PushesARestingBoulderSidewaysInOneDrawOfFour) {
  for (const int chance : {1, 2, 3, 4}) {
    SCOPED_TRACE(chance);
    Diary diary;
    Hra right = Play({"JR."}, {.script = "*A-B"}, &diary);
    diary.Clear();
    LetAct(right, {chance});
    EXPECT_EQ(Drawn(right), chance == 1 ? (Picture{".JR"}) : (Picture{"JR."}));
    EXPECT_EQ(SoundsOf(diary), chance == 1 ? Sounds{SoundId::BoulderPush} : Sounds{});
    EXPECT_EQ(diary.Has("cell 2,0"), chance == 1);
    Hra left = Play({".RJ"}, {.script = "*A-A"});
    LetAct(left, {chance});
    EXPECT_EQ(Drawn(left), chance == 1 ? (Picture{"RJ."}) : (Picture{".RJ"}));
  }
}

TEST(Cat, LeavesAPushedBoulderAtRest) {
  Hra hra = Play({"JR."}, {.script = kStepRight});
  LetAct(hra, {1});
  EXPECT_EQ(hra.FieldState({2, 0}), kResting);
  EXPECT_EQ(hra.FieldState({1, 0}), kFlat);
}

TEST(Cat, NeverPushesABoulderUpOrDown) {
  Hra up = Play({".", "R", "J"}, {.script = "*A-K"});
  LetAct(up, {1});
  EXPECT_EQ(Drawn(up), (Picture{".", "R", "J"}));
  EXPECT_EQ(up.CatPC, 1);
  Hra down = Play({"J", "R", "."}, {.script = "*A-L"});
  LetAct(down, {1});
  EXPECT_EQ(Drawn(down), (Picture{"J", "R", "."}));
  EXPECT_EQ(down.CatPC, 1);
}

TEST(Cat, PushesNoBoulderThatDoesNotRestNorAGem) {
  for (const std::uint8_t state : {kFlat, kRounded, kFalling}) {
    for (const auto code : std::initializer_list<std::uint16_t>{kBoulder, kGem}) {
      SCOPED_TRACE(std::to_string(code) + " " + std::to_string(state));
      Hra hra = Play({"J.."}, {.script = "*A-J"});
      hra.SetObject({1, 0}, code, state);
      LetAct(hra, {1});
      EXPECT_EQ(hra.Field({0, 0}), kCat);
      EXPECT_EQ(hra.Field({1, 0}), code);
      EXPECT_EQ(hra.Field({2, 0}), kSpace);
      EXPECT_EQ(hra.CatPC, 1);
    }
  }
}

TEST(Cat, PushesABoulderIntoSpaceOnly) {
  for (const std::uint16_t behind : AllCodes()) {
    if (behind == kSpace) continue;
    SCOPED_TRACE(behind);
    Hra hra = Play({"JR."}, {.script = "*A-J"});
    hra.SetField({2, 0}, behind);
    LetAct(hra, {1});
    EXPECT_EQ(hra.Field({1, 0}), kBoulder);
    EXPECT_EQ(hra.Field({2, 0}), behind);
    EXPECT_EQ(hra.CatPC, 1);
  }
}

TEST(Cat, MarksAPushedBoulderAsMovedOverAFlatFloorOnly) {
  for (const char floor : std::string_view("XKR;W.")) {
    SCOPED_TRACE(floor);
    Hra hra = Play({"JR.", "WW."}, {.script = kStepRight});
    Put(hra, 2, 1, floor);
    LetAct(hra, {1});
    EXPECT_EQ(hra.Field({2, 0}), kBoulder);
    EXPECT_EQ(hra.FieldMoved({2, 0}), hra.FieldState({2, 1}) == kFlat);
  }
}

TEST(Cat, ABoulderThatItPushesOverADropHangsForATick) {
  const RecordTick push{.before = {1, 32}};
  Hra hra = PlayBack({"JR.", "WW.", "WW."}, {push, {.before = {32}}}, {.script = kStepRight});
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{".JR", "WW.", "WW."}));
  Pass(hra);
  EXPECT_EQ(Drawn(hra), (Picture{".J.", "WWr", "WW."}));
}

}  // namespace
}  // namespace zorik::test
