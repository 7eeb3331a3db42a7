#include <gtest/gtest.h>

#include <set>

#include "core/Objects.h"
#include "data/Result.h"
#include "solve/Lint.h"
#include "support/Scene.h"

namespace zorik::test {
namespace {

using Words = std::vector<std::string>;

CaveRecord RecordOfCave(const Picture& picture, Numbers numbers = {.needed = 1}) {
  return *ParseCaveText(CaveTextOf(picture, numbers));
}

// The doubts about a cave as "word" or "word x,y".
Words Told(const std::vector<Doubt>& doubts) {
  Words words;
  for (const Doubt& doubt : doubts) {
    std::string word(RowOf(doubt.kind).word);
    if (doubt.cell) word += " " + std::to_string(doubt.cell->x) + "," + std::to_string(doubt.cell->y);
    words.push_back(word);
  }
  return words;
}
Words Lint(const Picture& picture, const Numbers& numbers = {.needed = 1}) {
  return Told(DoubtsAboutCave(RecordOfCave(picture, numbers)));
}

// The same without the hint at the mirror, for caves so small are often their own.
Words LintPlain(const Picture& picture, const Numbers& numbers = {.needed = 1}) {
  Words words = Lint(picture, numbers);
  std::erase(words, "mirror");
  return words;
}

// The same of the cat alone: she stands in a cave with all that raises events, and has this program.
Words LintCat(const std::string& script, const std::string& things = "$MA") {
  std::string row = "W1;D;;;;;;;;JRRT";
  row.replace(4, things.size(), things);
  const CaveRecord cave = RecordOfCave({"WWWWWWWWWWWWWWWW", row, "W;;;;;;;;;;;;;;W"},
                                       {.needed = 1, .magicTime = 10, .script = script});
  Hra run = Play({"WWWWWWWWWWWWWWWW", row, "W;;;;;;;;;;;;;;W"}, {.needed = 1, .script = script});
  return Told(DoubtsAboutCat(cave, run));
}

TEST(Lint, SaysNothingOfACaveThatIsAsItShouldBe) {
  EXPECT_EQ(LintPlain({"WWWWWWW", "W1;R;DT", "W;;;X;W", "WWWWWWW"}), Words{});
}

TEST(Lint, FindsNumbersThatTheGameCannotUse) {
  EXPECT_EQ(LintPlain({"W1;DT"}, {.time = 4, .needed = 1}), Words{"number"});
  EXPECT_EQ(LintPlain({"W1;DT"}, {.needed = 1, .permeability = 9}), Words{"number"});
  EXPECT_EQ(LintPlain({"W1;DT"}, {.needed = 1, .colouring = 15}), Words{"number"});
}

TEST(Lint, FindsCavesThatAreTooLargeForTheGameOrForTheEditor) {
  const std::string row = "1DT" + std::string(98, ';');
  EXPECT_EQ(LintPlain({row}), Words{"size"});
  EXPECT_EQ(LintPlain({row.substr(0, 100)}, {.needed = 1}), Words{"above-editor"});
}

TEST(Lint, FindsLettersThatMeanNoObjectWhereTheyStandFirst) {
  EXPECT_EQ(LintPlain({"W1;DT", "W;x;x"}), Words{"letter 2,1"});
}

TEST(Lint, FindsDogsThatAreMissingOrStandThereTwice) {
  EXPECT_EQ(LintPlain({"WN;DT"}), Words{"no-dog"});
  EXPECT_EQ(LintPlain({"W3;DT", "W;1;;"}), Words{"dog-missing"});
  EXPECT_EQ(LintPlain({"W1;DT", "W;H;;"}), Words{"dog-twice"});
}

TEST(Lint, FindsThatThereIsNoFinishOrNoneThatADogCanReach) {
  EXPECT_EQ(LintPlain({"W1;D;"}), Words{"no-finish"});
  EXPECT_EQ(LintPlain({"1;DWT", ";;;W;"}), Words{"finish-shut 4,0"});
}

// Without anything that blows up a brick stands for ever, with a firefly it need not.
TEST(Lint, KnowsWhatCanEverGiveWay) {
  for (const char wall : std::string("XCEVM&"))
    EXPECT_EQ(LintPlain({std::string("1;D") + wall + ".T"}), Words{"finish-shut 5,0"}) << wall;
  for (const char wall : std::string(";RDKIFA#")) {
    const Words words = LintPlain({std::string("1;D") + wall + ".T"});
    EXPECT_EQ(std::count(words.begin(), words.end(), "finish-shut 5,0"), 0) << wall;
  }
  EXPECT_EQ(LintPlain({"1;DX.T", ";F;X.;"}), Words{});
  EXPECT_EQ(LintPlain({"1#D&.T"}), Words{});
  EXPECT_EQ(LintPlain({"1@D&.T"}), Words{"finish-shut 5,0"});
}

TEST(Lint, FindsKeysThatNobodyCanTake) {
  EXPECT_EQ(LintPlain({"1;DTW#", ";;;;W;"}), Words{"key-shut 5,0"});
  EXPECT_EQ(LintPlain({"1;DTW$J", ";;;;W;;"}, {.needed = 1, .script = "*A-A*I-B/Z"}), Words{});
}

// A lock whose key lies behind it stays shut, and all behind it.
TEST(Lint, KnowsThatALockGuardsItsOwnKey) {
  EXPECT_EQ(LintPlain({"1;DT&#", ";;;;&;"}), Words{"key-shut 5,0"});
}

TEST(Lint, FindsASensorBesideWhichNothingCanStir) {
  EXPECT_EQ(LintPlain({"WWW;DT", "WGW1;;", "WWW;;;"}), Words{"sensor-shut 1,1"});
  EXPECT_EQ(LintPlain({"WWW;DT", "WG;1;;", "WWW;;;"}), Words{});
}

TEST(Lint, FindsATeleportThatLacksItsOtherHalf) {
  EXPECT_EQ(LintPlain({"W;;;;;;", "W1;DS;T", "W;;;W;W", "WWWWWWW"}), Words{"teleport-half 4,1"});
  EXPECT_EQ(LintPlain({"WWWWWWW", "W1;D;;T", "W;;;W;W", "W;;;S;W", "W;;;;;W", "WWWWWWW"}),
            Words{"teleport-half 4,3"});
  EXPECT_EQ(LintPlain({"W;;;;;;", "W1;DS;T", "W;;;W;W", "W;;;S;W", "W;;;;;W", "WWWWWWW"}), Words{});
}

TEST(Lint, FindsALonePadThatLeavesAHoleInTheRing) {
  EXPECT_EQ(LintPlain({"WWWWWSW", "W1;D;;T", "W;;;X;W", "WWWWWWW"}),
            (Words{"teleport-half 5,0", "hole-in-ring 5,0"}));
}

TEST(Lint, FindsSlimeOnSteelThatIsNoPad) {
  EXPECT_EQ(LintPlain({"W;;;;;;;;", "W1;DS;S;T", "W;;;W;W;W", "W;;;S;;RW", "W;;;;;;;W", "WWWWWWWWW"}),
            Words{"slime-shut 6,1"});
}

TEST(Lint, FindsMoreGemsNeededThanCanEverBe) {
  EXPECT_EQ(LintPlain({"1;DDT"}, {.needed = 2}), Words{});
  EXPECT_EQ(LintPlain({"1;DDT"}, {.needed = 3}), Words{"too-few-gems"});
  EXPECT_EQ(LintPlain({"1;DTWD", ";;;;W;"}, {.needed = 2}), (Words{"gem-shut 5,0", "too-few-gems"}));
}

TEST(Lint, CountsTheGemsThatCanComeToBe) {
  const Picture butterfly{"1;DT", ";;;;", "XXXX", "X..U"};
  EXPECT_EQ(LintPlain(butterfly, {.needed = 10}), Words{});
  EXPECT_EQ(LintPlain(butterfly, {.needed = 11}), Words{"too-few-gems"});
  const Picture magic{"1;DT", "R;;;", ".R;;", "MMM;"};
  EXPECT_EQ(LintPlain(magic, {.needed = 3}), Words{});
  EXPECT_EQ(LintPlain(magic, {.needed = 4}), Words{"too-few-gems"});
  EXPECT_EQ(LintPlain({"1;DT", ";;;A"}, {.needed = 99}), Words{});
}

// Gems come through a splitter where no dog can go, and it makes two of each.
TEST(Lint, KnowsThatGemsFallThroughASplitter) {
  EXPECT_EQ(LintPlain({"WW.D.WW", "WW...WW", "WWWEWWW", "W;.W.;W", "W1;;;;T", "WWWWWWW"}, {.needed = 2}),
            Words{});
}

// What a butterfly leaves behind lies also around the corner of a wall.
TEST(Lint, KnowsThatABlastLeavesGemsAcrossACorner) {
  const Words words = LintPlain({"1;;WX", "T;;WX", "WWWUX", "XXXXX"}, {.needed = 1});
  EXPECT_EQ(std::count(words.begin(), words.end(), "too-few-gems"), 0);
}

TEST(Lint, FindsATimeBelowTheWayToTheFinish) {
  std::string row = "1D" + std::string(55, '.') + "T";
  EXPECT_EQ(LintPlain({row, "R" + std::string(57, ';')}, {.time = 5, .needed = 1}), Words{"time-too-short"});
  EXPECT_EQ(LintPlain({row, "R" + std::string(57, ';')}, {.time = 6, .needed = 1}), Words{});
}

TEST(Lint, FindsAProgramWithoutACat) {
  EXPECT_EQ(LintPlain({"W1;DT"}, {.needed = 1, .script = "*A-A/Z"}), Words{"cat-missing"});
}

TEST(Lint, SaysNothingOfAProgramThatIsAsItShouldBe) {
  EXPECT_EQ(LintCat(""), Words{"cat-key-idle 4,1"});
  EXPECT_EQ(LintCat("*A-E-N/D*B-M*C-A*D+A*E-P*F-I*I/E/Z"), Words{});
}

TEST(Lint, FindsAProgramThatNeverMovesTheCat) {
  EXPECT_EQ(LintCat("*A-N-M*I/Z"), Words{"cat-stuck 12,1"});
  EXPECT_EQ(LintCat("*A-M*I-A/Z"), Words{});
}

TEST(Lint, FindsCommandsThatMeanNothingOrAreNeverComeTo) {
  EXPECT_EQ(LintCat("*A-A?A*I/Z"), Words{"cat-token 12,1"});
  EXPECT_EQ(LintCat("-A-B*I/Z"), Words{"cat-token 12,1"});
  EXPECT_EQ(LintCat("*A-A-M-B*I/Z"), Words{"cat-token 12,1"});
  EXPECT_EQ(LintCat("*A/E-B*I/Z"), Words{"cat-token 12,1"});
  EXPECT_EQ(LintCat("*A-A-"), (Words{"cat-token 12,1", "cat-key-idle 4,1"}));
}

// The end of a wait counts on from where an event has led meanwhile.
TEST(Lint, KnowsThatAnEventInAWaitPassesACommandOver) {
  EXPECT_EQ(LintCat("*A-A-N*I-M-B/Z"), Words{});
  EXPECT_EQ(LintCat("*A-A*I-M-B/Z"), Words{"cat-token 12,1"});
}

TEST(Lint, FindsLabelsOfEventsThatNeverCome) {
  EXPECT_EQ(LintCat("*A-A*I/Z*Q-B"), Words{"cat-label 12,1"});
  EXPECT_EQ(LintCat("*A-A*C-B*I/Z", "$A"), Words{"cat-label 12,1"});
  EXPECT_EQ(LintCat("*A-A*E-B*I/Z", "$M"), Words{"cat-label 12,1"});
  EXPECT_EQ(LintCat("*A-A*I-B/Z", "MA"), Words{"cat-label 12,1"});
}

TEST(Lint, FindsADogThatDiesBeforeAKeyIsPressed) {
  EXPECT_EQ(LintPlain({";.R;;", ";..;;", ";.1DT", ";;;;X"}), Words{"unfair-start"});
  EXPECT_EQ(LintPlain({";;R;;", ";;;;;", ";.1DT", ";;;;X"}), Words{});
}

TEST(Lint, MeasuresHowMuchOfACaveIsItsOwnMirror) {
  EXPECT_DOUBLE_EQ(MirrorShare(RecordOfCave({"AB;;BA", "AB;;BA"})), 1);
  EXPECT_DOUBLE_EQ(MirrorShare(RecordOfCave({"ABCDEF", "GHIJKL", "ABCDEF"})), 1);
  EXPECT_DOUBLE_EQ(MirrorShare(RecordOfCave({"ABCD", "EFFG"})), 0.25);
  EXPECT_EQ(Lint({"WWWWWWWW", "W1;;;;DT", "W;;;;;;W", "WWWWWWWW"}), Words{"mirror"});
  EXPECT_DOUBLE_EQ(MirrorShare(RecordOfCave({"ABA"})), 1);
  EXPECT_DOUBLE_EQ(MirrorShare(RecordOfCave({"ABC"})), 0);
}

TEST(Lint, FindsRecordsWhoseFilesNoDiskCanHoldOrTellApart) {
  const std::string longest(190, 'x');
  const std::vector<std::string> caves{"One?", longest, "one"};
  const std::vector<NameDoubt> fine = DoubtsAboutNames("Set", std::vector<std::string>{"a", "b"});
  EXPECT_TRUE(fine.empty());
  const std::vector<NameDoubt> doubts = DoubtsAboutNames(longest, caves);
  ASSERT_EQ(doubts.size(), 2U);
  EXPECT_EQ(doubts[0].cave, 1U);
  EXPECT_EQ(doubts[0].doubt.kind, DoubtKind::NameTooLong);
  EXPECT_EQ(doubts[1].cave, 2U);
  EXPECT_EQ(doubts[1].doubt.kind, DoubtKind::NameTwice);
}

TEST(Doubts, HaveWordsOfTheirOwn) {
  std::set<std::string_view> words;
  for (const DoubtRow& row : DoubtRows()) EXPECT_TRUE(words.insert(row.word).second) << row.word;
}

}  // namespace
}  // namespace zorik::test
