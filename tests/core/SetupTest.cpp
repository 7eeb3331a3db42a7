#include <gtest/gtest.h>

#include "data/Result.h"
#include "data/Scramble.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

using Entries = std::vector<std::string>;

// Starts a run in a game that has lived before.
void Paint(Hra& hra, const Picture& picture, const Numbers& numbers = {}, RunKind kind = RunKind::Play) {
  const auto painted = PaintCave(hra, CaveTextOf(picture, numbers), kind);
  ASSERT_TRUE(painted) << painted.Message();
}

std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find("\r\n"));
}

Picture Filled(int width, int height, char letter) {
  return Picture(static_cast<std::size_t>(height), std::string(static_cast<std::size_t>(width), letter));
}

TEST(ARunInPlay, RecordsAndAReplayKeepsTheFlagOfTheRunBeforeIt) {
  Hra hra;
  Paint(hra, {"1"}, {}, RunKind::Replay);
  EXPECT_FALSE(hra.Recording);
  EXPECT_TRUE(hra.ReplayPlaying());
  Paint(hra, {"1"}, {}, RunKind::Test);
  EXPECT_TRUE(hra.Recording);
  EXPECT_TRUE(hra.EditorRun());
  EXPECT_FALSE(hra.ReplayPlaying());
  Paint(hra, {"1"}, {}, RunKind::Replay);
  EXPECT_TRUE(hra.Recording);
  EXPECT_FALSE(hra.EditorRun());
}

TEST(TheRecord, StartsWithTheScrambledCaveAndALineEnd) {
  const std::string text = CaveTextOf({"1.D"});
  Hra hra;
  ASSERT_TRUE(PaintCave(hra, text, RunKind::Play));
  EXPECT_EQ(hra.RecordText.size(), text.size() * 3 + 2);
  EXPECT_EQ(hra.RecordText.substr(text.size() * 3), "\r\n");
  EXPECT_EQ(UnscrambleText(FirstLine(hra.RecordText)), text);
}

TEST(TheRecord, StaysEmptyWhenNothingIsRecorded) {
  for (const RunKind kind : {RunKind::Replay, RunKind::Practice}) {
    Hra hra;
    Paint(hra, {"1.D"}, {}, kind);
    EXPECT_FALSE(hra.Recording);
    EXPECT_EQ(hra.RecordText, "");
  }
}

TEST(TheRecord, HoldsTheCaveWithTheMarkerThatItHasInItsCollection) {
  const std::string text = CaveTextOf({"1.D"}) + "---AB";
  Hra hra;
  ASSERT_TRUE(PaintCave(hra, text, RunKind::Play));
  EXPECT_EQ(UnscrambleText(FirstLine(hra.RecordText)), text);
  EXPECT_EQ(hra.CaveText, text);
}

class ACaveThatCannotBePlayed : public testing::TestWithParam<std::string> {};

TEST_P(ACaveThatCannotBePlayed, IsRefusedWithAReasonAndLeavesTheRunThatThereIs) {
  Diary diary;
  Hra hra = Play({"1.D", "WWW"}, {}, &diary);
  Pass(hra, 1, "R");
  const Picture before = Drawn(hra);
  const std::string record = hra.RecordText;
  diary.Clear();
  const auto painted = PaintCave(hra, GetParam(), RunKind::Replay);
  ASSERT_FALSE(painted);
  EXPECT_FALSE(painted.Message().empty());
  EXPECT_EQ(Drawn(hra), before);
  EXPECT_EQ(hra.RecordText, record);
  EXPECT_FALSE(hra.ReplayPlaying());
  EXPECT_EQ(hra.Ticks, 1);
  EXPECT_EQ(diary.entries, Entries{});
}

INSTANTIATE_TEST_SUITE_P(Setup, ACaveThatCannotBePlayed,
                         testing::Values("", "@", "nonsense\x01", CaveTextOf({"1.D"}).substr(0, 8),
                                         CaveTextOf(Filled(101, 1, '1')), CaveTextOf(Filled(1, 61, '1'))));

TEST(TheLargestCave, OfAHundredBySixtyStaysInsideAllGridsWithItsFrame) {
  Hra hra = Play(Filled(100, 60, 'R'));
  for (const Cell c :
       {Cell(100, 60), Cell(-1, -1), Cell(100, -1), Cell(-1, 60), Cell(100, 30), Cell(50, 60)}) {
    EXPECT_EQ(hra.Field(c), kSteel);
    hra.SetFieldMoved(c, true);
    EXPECT_TRUE(hra.FieldMoved(c));
    hra.SetFieldMoved(c, false);
  }
  Pass(hra, 5);
  EXPECT_EQ(hra.Field({99, 59}), kBoulder);
}

TEST(TheFrame, IsFlatSteelRoundACaveOfAnySizeAndNothingFurtherOut) {
  for (const auto& [width, height] : {std::pair{1, 1}, {3, 2}, {100, 60}}) {
    const Hra hra = Play(Filled(width, height, '.'));
    for (int x = -1; x <= width; ++x) {
      for (const int y : {-1, height}) {
        EXPECT_EQ(hra.Field({x, y}), kSteel) << x << ' ' << y;
        EXPECT_EQ(hra.FieldState({x, y}), kFlat);
      }
    }
    for (int y = -1; y <= height; ++y) {
      EXPECT_EQ(hra.Field({-1, y}), kSteel) << y;
      EXPECT_EQ(hra.Field({width, y}), kSteel) << y;
    }
    EXPECT_EQ(hra.Field({-2, 0}), kSpace);
    EXPECT_EQ(hra.Field({0, height + 1}), kSpace);
  }
}

TEST(Setup, CopiesTheNumbersOfTheCave) {
  const Hra hra = Play({"1.", ".."}, {.time = 123,
                                      .needed = 45,
                                      .before = 6,
                                      .after = 7,
                                      .magicTime = 8,
                                      .amoebaTime = 9,
                                      .permeability = 5,
                                      .name = "Jmeno"});
  EXPECT_EQ(hra.CaveName, "Jmeno");
  EXPECT_EQ(hra.CaveWidth, 2);
  EXPECT_EQ(hra.CaveHeight, 2);
  EXPECT_EQ(hra.TimeLimit, 123);
  EXPECT_EQ(hra.ClockShown, 123);
  EXPECT_EQ(hra.GemsNeeded, 45);
  EXPECT_EQ(hra.GemValue, 6);
  EXPECT_EQ(hra.GemValueBefore, 6);
  EXPECT_EQ(hra.GemValueAfter, 7);
  EXPECT_EQ(hra.MagicTime, 8);
  EXPECT_EQ(hra.AmoebaTime, 9);
  EXPECT_EQ(hra.SlimePermeability, 5);
}

TEST(Setup, ShowsTheFourFigures) {
  Diary diary;
  Play({"1"}, {.time = 123, .needed = 45, .before = 6}, &diary);
  for (const char* figure : {"clock 123", "needed 45", "value 6", "gems 0"})
    EXPECT_EQ(diary.Count(figure), 1);
}

TEST(Setup, StartsAllCountersAnew) {
  Hra hra = Play({"1.DR", "WWWW"}, {.time = 9, .needed = 1});
  Pass(hra, 10, "R");
  hra.MagicState = kMagicSpent;
  hra.MagicStart = 3;
  hra.AmoebaState = kAmoebaFast;
  hra.AmoebaRoom = hra.PrevAmoebaRoom = 4;
  ASSERT_TRUE(hra.ExitOpen);
  Paint(hra, {"1"});
  EXPECT_EQ(hra.Ticks, 0);
  EXPECT_EQ(hra.Elapsed, 0);
  EXPECT_EQ(hra.MagicStart, 10000);
  EXPECT_EQ(hra.MagicState, kMagicDormant);
  EXPECT_EQ(hra.AmoebaState, kAmoebaSlow);
  EXPECT_EQ(hra.AmoebaRoom + hra.PrevAmoebaRoom, 0);
  EXPECT_EQ(hra.GemsCollected, 0);
  EXPECT_FALSE(hra.ExitOpen);
}

TEST(TheScore, OutlivesANewCave) {
  Hra hra = Play({"1D"}, {.before = 6});
  Pass(hra, 1, "R");
  ASSERT_EQ(hra.Score, 6);
  Paint(hra, {"1"});
  EXPECT_EQ(hra.Score, 6);
}

TEST(Setup, LetsNothingLeakFromTheRunBefore) {
  Hra hra = Play({"1S.", "JW.", "WS."}, {.script = "*A-N/F"});
  Pass(hra, 6, "RUs");
  hra.SetFieldMark({0, 0}, 9);
  hra.SetFieldMoved({0, 0}, true);
  hra.TeleportStage = 3;
  hra.TeleportDogBusy = hra.CatInTransit = true;
  Paint(hra, {"12."});
  EXPECT_EQ(hra.FieldMark({0, 0}), 0);
  EXPECT_FALSE(hra.FieldMoved({0, 0}));
  EXPECT_EQ(hra.KeyHeld, (std::array<int, 4>{}));
  EXPECT_FALSE(hra.ActionLatch);
  EXPECT_EQ(hra.KeyDirection, 0);
  EXPECT_EQ(hra.RecordLine, "");
  EXPECT_EQ(hra.TeleportStage, 0);
  EXPECT_FALSE(hra.TeleportActive);
  EXPECT_FALSE(hra.TeleportDogBusy);
  EXPECT_FALSE(hra.CatInTransit);
  EXPECT_FALSE(hra.CatPresent);
  EXPECT_EQ(hra.CatX, 240);
  EXPECT_EQ(hra.CatProgram, "");
  EXPECT_EQ(hra.CatPC, 1);
  EXPECT_EQ(hra.CatWait, 0);
  EXPECT_EQ(hra.CatLastDir, -1);
  EXPECT_FALSE(hra.CatLastAdvanced);
  EXPECT_EQ(hra.CatPose, 1);
  EXPECT_EQ(hra.Field({0, 2}), kSpace);
}

TEST(TheColouring, PicksASchemeAndItsHueForEachOfFifteenValues) {
  struct Row {
    const char* scheme;
    int hue;
    std::vector<int> colourings;
  };
  for (const Row& row : std::vector<Row>{{"Classic", 300, {3, 4, 9}},
                                         {"Cold", 120, {2, 5, 10}},
                                         {"Hot", 340, {0, 8, 11}},
                                         {"Natural", 230, {6, 7, 12}},
                                         {"Mystery", 60, {1, 13, 14}}}) {
    for (const int colouring : row.colourings) {
      const Hra hra = Play({"1"}, {.colouring = colouring});
      EXPECT_EQ(hra.Scheme, row.scheme) << colouring;
      EXPECT_EQ(hra.SchemeHue, row.hue) << colouring;
    }
  }
}

TEST(TheColouring, ThatIsNoneOfTheFifteenKeepsTheLastScheme) {
  Hra hra;
  EXPECT_EQ(hra.Scheme, "Classic");
  EXPECT_EQ(hra.SchemeHue, 300);
  Paint(hra, {"1"}, {.colouring = 15});
  EXPECT_EQ(hra.Scheme, "Classic");
  Paint(hra, {"1"}, {.colouring = 2});
  Paint(hra, {"1"}, {.colouring = 190});
  EXPECT_EQ(hra.Scheme, "Cold");
  EXPECT_EQ(hra.SchemeHue, 120);
}

TEST(Letters, ArePlacedWithTheirCodeStateAndMark) {
  std::string row;
  for (const ObjectLetter& object : kObjectLetters) row += object.letter;
  const Hra hra = Play({std::string(row.size(), ';'), row});
  for (std::size_t x = 0; x < row.size(); ++x) {
    const Cell c(static_cast<int>(x), 1);
    EXPECT_EQ(hra.Field(c), kObjectLetters[x].code) << row[x];
    EXPECT_EQ(hra.FieldState(c), kObjectLetters[x].state) << row[x];
    EXPECT_EQ(hra.FieldMark(c), kObjectLetters[x].mark) << row[x];
  }
}

TEST(AnUnknownLetter, LeavesAnEmptyCell) {
  const Hra hra = Play({"0hz", "\xFF\x01 ", "1.."});
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(hra.Field({i % 3, i / 3}), kSpace);
    EXPECT_EQ(hra.FieldState({i % 3, i / 3}), kFlat);
  }
}

TEST(OfSeveralCats, TheLastOneCounts) {
  const Hra hra = Play({"J.J", "J1."});
  EXPECT_TRUE(hra.CatPresent);
  EXPECT_EQ(hra.CatX, 0);
  EXPECT_EQ(hra.CatY, 1);
}

TEST(TheSwarm, StandsAtItsLastFleaAndLives) {
  const Hra hra = Play({"N.N", "1N."});
  EXPECT_TRUE(hra.Dog[0].Alive);
  EXPECT_EQ(hra.Dog[0].x, 1);
  EXPECT_EQ(hra.Dog[0].y, 1);
}

TEST(Dogs, StandAtTheLastOfTheirNumberAndTheHighestNumberIsTheirCount) {
  const Hra hra = Play({"H5.", "1.2"});
  EXPECT_EQ(hra.DogCount, 5);
  EXPECT_EQ(hra.Dog[1].x, 0);
  EXPECT_EQ(hra.Dog[1].y, 1);
  EXPECT_EQ(hra.Dog[2].x, 2);
  EXPECT_EQ(hra.Dog[5].x, 1);
  EXPECT_TRUE(hra.Dog[5].Alive);
  for (const std::size_t n : {0U, 3U, 4U, 6U, 9U}) {
    EXPECT_EQ(hra.Dog[n].x, 250) << n;
    EXPECT_EQ(hra.Dog[n].y, 250) << n;
    EXPECT_FALSE(hra.Dog[n].Alive) << n;
  }
}

// Notes the pose and the steered unit with each cell.
class Poses : public Stage {
 public:
  explicit Poses(const Hra& hra) : hra_(hra) {}
  void CellChanged(int x, int y) override {
    entries.push_back(std::to_string(x) + "," + std::to_string(y) + " " + std::to_string(hra_.DogPose) + " " +
                      std::to_string(hra_.ActiveDog) + " " + std::to_string(hra_.Elapsed));
  }
  void ShowMessage(TextId, Colour, int) override { entries.push_back("message"); }

  Entries entries;

 private:
  const Hra& hra_;
};

TEST(Dogs, ArePlacedInTheirWaitingPoseAndTheFirstAsTheSteeredOneAtTimeNought) {
  Hra hra = Play({"9"});
  Pass(hra, 3);
  Poses poses(hra);
  hra.SetStage(poses);
  Paint(hra, {"2H9"});
  Entries placing(poses.entries.begin(), poses.entries.begin() + 3);
  EXPECT_EQ(placing, (Entries{"0,0 6 1 0", "1,0 0 1 0", "2,0 13 1 0"}));
  EXPECT_EQ(hra.DogPose, 0);
}

TEST(Cells, ArePlacedAndPaintedRowByRowFromTheTopLeft) {
  Diary diary;
  Play({"1.", "..", ";;"}, {}, &diary);
  Entries cells;
  for (const std::string& entry : diary.entries) {
    if (entry.starts_with("cell")) cells.push_back(entry);
  }
  EXPECT_EQ(cells, (Entries{"cell 0,0", "cell 1,0", "cell 0,1", "cell 1,1", "cell 0,2", "cell 1,2"}));
}

TEST(Steel, RepaintsTheTwoCellsToItsLeftWhichMayBeASplitterNow) {
  Diary diary;
  Play({"1WEW"}, {}, &diary);
  Entries cells(diary.entries.begin() + diary.Place("cell 0,0"),
                diary.entries.begin() + diary.Place("message 89 white"));
  EXPECT_EQ(cells, (Entries{"cell 0,0", "cell 1,0", "cell 0,0", "cell -1,0", "cell 2,0", "cell 3,0",
                            "cell 2,0", "cell 1,0"}));
}

TEST(ATeleport, GoesFromTheSlimeOverSteelToTheSlimeUnderSteelBothTurnedToSpace) {
  Diary diary;
  const Hra hra = Play({"....", "1S.W", ".W.S"}, {}, &diary);
  EXPECT_TRUE(hra.TeleportActive);
  EXPECT_EQ(hra.TeleportIn, Cell(1, 1));
  EXPECT_EQ(hra.TeleportOut, Cell(3, 2));
  EXPECT_EQ(Drawn(hra), (Picture{"....", "1..W", ".W.."}));
  for (const char* pad : {"cell 1,1", "cell 1,2", "cell 3,1", "cell 3,2"})
    EXPECT_GE(diary.Count(pad), 2) << pad;
}

TEST(ATeleport, UsesTheFirstOfSeveralEntrancesAndExitsAndLeavesTheOthersAsSlime) {
  const Hra hra = Play({"1....", ".S.S.", ".W.W.", "..W.W", "..S.S"});
  EXPECT_EQ(hra.TeleportIn, Cell(1, 1));
  EXPECT_EQ(hra.TeleportOut, Cell(2, 4));
  EXPECT_EQ(Drawn(hra), (Picture{"1....", "...S.", ".W.W.", "..W.W", "....S"}));
}

TEST(ASlimeBetweenTwoSteels, BecomesTheExitAndNoEntrance) {
  const Hra hra = Play({"1W..", ".S..", ".W..", "...S", "...W"});
  EXPECT_TRUE(hra.TeleportActive);
  EXPECT_EQ(hra.TeleportOut, Cell(1, 1));
  EXPECT_EQ(hra.TeleportIn, Cell(3, 3));
}

TEST(ASlimeInTheTopRow, LiesUnderTheSteelOfTheFrameAndIsAnExit) {
  const Hra hra = Play({"1S.", "..S", "..W"});
  EXPECT_TRUE(hra.TeleportActive);
  EXPECT_EQ(hra.TeleportOut, Cell(1, 0));
}

TEST(ASlimeInTheLastRow, LiesOverTheFrameAndIsNoEntrance) {
  const Hra hra = Play({"1.W", "S.S"});
  EXPECT_FALSE(hra.TeleportActive);
  EXPECT_EQ(Drawn(hra), (Picture{"1.W", "S.."}));
}

TEST(ALonePad, IsNoTeleportAndItsSlimeIsLost) {
  Hra entrance = Play({"1...", "...S", "...W"});
  EXPECT_FALSE(entrance.TeleportActive);
  EXPECT_EQ(Drawn(entrance), (Picture{"1...", "....", "...W"}));
  Hra exit = Play({"1..W", "...S", "...."});
  EXPECT_FALSE(exit.TeleportActive);
  EXPECT_EQ(Drawn(exit), (Picture{"1..W", "....", "...."}));
  Put(entrance, 3, 1, 'K');
  Pass(entrance, 5);
  EXPECT_EQ(Drawn(entrance)[1], "...K");
}

TEST(Amoeba, HumsFromTheStartOfItsCaveOn) {
  Diary diary;
  Play({"1A"}, {}, &diary);
  EXPECT_EQ(diary.Count("sound 13"), 1);
  diary.Clear();
  Play({"1C"}, {}, &diary);
  EXPECT_FALSE(diary.Has("sound 13"));
}

TEST(OneDog, IsToldByMessage89AndHasNoStrip) {
  Diary diary;
  const Hra hra = Play({"1.."}, {}, &diary);
  EXPECT_FALSE(hra.MultiDog);
  EXPECT_EQ(diary.Count("message *"), 1);
  EXPECT_TRUE(diary.Has("message 89 white"));
  EXPECT_EQ(diary.Count("dog *"), 0);
}

TEST(SeveralDogs, AreShownSteeredAndWaitingThenSteadiedThenTold) {
  Diary diary;
  const Hra hra = Play({"1.3"}, {}, &diary);
  EXPECT_TRUE(hra.MultiDog);
  const Entries last(diary.entries.begin() + diary.Place("dog 1 0"), diary.entries.end());
  EXPECT_EQ(last, (Entries{"dog 1 0", "dog 3 1", "dog 1 1", "cell 0,0", "cell 0,0", "dog 1 0",
                           "message 90 white 3", "jump"}));
}

TEST(FiveDogsOrMore, AreToldByText91AndNotByText90) {
  for (const auto& [row, message] : {std::pair{"1234", "message 90 white 4"},
                                     {"12345", "message 91 white 5"},
                                     {"1....9", "message 91 white 9"}}) {
    Diary diary;
    Play({row}, {}, &diary);
    EXPECT_EQ(diary.Count("message *"), 1);
    EXPECT_TRUE(diary.Has(message)) << row;
  }
}

TEST(OneDogWithASwarm, AreTwoUnitsToSteer) {
  Diary diary;
  const Hra hra = Play({"1N"}, {}, &diary);
  EXPECT_TRUE(hra.MultiDog);
  EXPECT_EQ(hra.ActiveDog, 1);
  EXPECT_TRUE(diary.Has("dog 0 1"));
  EXPECT_TRUE(diary.Has("message 90 white 1"));
}

TEST(TheLowestUnitThatLives, IsSteeredFirstWhenThereIsNoDogOne) {
  EXPECT_EQ(Play({"..42"}).ActiveDog, 2);
  EXPECT_EQ(Play({".4N2"}).ActiveDog, 0);
  EXPECT_EQ(Play({"N..."}).ActiveDog, 0);
}

TEST(ACaveWithoutADog, StartsAndCanOnlyBeRestarted) {
  Diary diary;
  Hra hra = Play({"...", ".D."}, {}, &diary);
  EXPECT_EQ(diary.Count("message *"), 1);
  EXPECT_TRUE(diary.Has("message 90 white 0"));
  EXPECT_EQ(hra.DogCount, 0);
  EXPECT_EQ(hra.ActiveDog, 1);
  Pass(hra, 3, "R>1!");
  EXPECT_EQ(hra.DogCount, 1);
  EXPECT_FALSE(hra.Dog[1].Alive);
  EXPECT_EQ(hra.Dog[1].x, 250);
  EXPECT_EQ(Drawn(hra), (Picture{"...", ".D."}));
  EXPECT_EQ(hra.DogIdleTicks, 0);
  KeySnapshot restart;
  restart.down.set(kKeyR).set(kKeyCtrl);
  EXPECT_EQ(Tick(hra, restart), TickEnd::Restarted);
  EXPECT_EQ(hra.Ticks, 0);
}

TEST(TheCatsProgram, IsReadWhenThereIsACatAndStartsBehindItsFirstLabel) {
  const Hra cat = Play({"1J"}, {.script = "*A-N/Z"});
  EXPECT_EQ(cat.CatProgram, "*A-N/Z");
  EXPECT_EQ(cat.CatPC, 1);
  EXPECT_EQ(cat.CatWait, 0);
  EXPECT_EQ(Play({"1."}, {.script = "*A-N/Z"}).CatProgram, "");
}

// Notes what can be known when the cave opens.
class Opening : public Stage {
 public:
  explicit Opening(const Hra& hra) : hra_(hra) {}
  void CaveOpens() override {
    seen = hra_.CaveName + " " + std::to_string(hra_.CaveWidth) + "x" + std::to_string(hra_.CaveHeight) +
           " " + hra_.Scheme + " " + std::to_string(hra_.Field({0, 0}));
  }

  std::string seen;

 private:
  const Hra& hra_;
};

TEST(TheStage, HearsThatACaveOpensWhenItsSizeAndSchemeAreKnownAndNothingIsPlacedYet) {
  Hra hra = Play({"D"});
  Opening opening(hra);
  hra.SetStage(opening);
  Paint(hra, {"DDD", "1DD"}, {.colouring = 2, .name = "Druha"});
  EXPECT_EQ(opening.seen, "Druha 3x2 Cold 0");
}

TEST(Setup, EndsWithAJumpOfTheViewAndTellsOfTheCaveBeforeItsCells) {
  Diary diary;
  Hra hra = Play({"1N2"}, {}, &diary);
  EXPECT_EQ(diary.entries.back(), "jump");
  EXPECT_GE(diary.Place("opens"), 0);
  EXPECT_LT(diary.Place("opens"), diary.Place("cell 0,0"));
  EXPECT_EQ(hra.DogIdleTicks, 0);
}

TEST(Setup, SetsOffNoSensor) {
  const Hra hra = Play({"1G2", "RGF", "DG."});
  for (int y = 0; y < 3; ++y) EXPECT_EQ(hra.FieldMark({1, y}), 0) << y;
}

}  // namespace
}  // namespace zorik::test
