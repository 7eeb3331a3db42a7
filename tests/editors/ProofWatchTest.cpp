// What is asked about a proof in the background: whether it wins, and how well.
#include <QSignalSpy>

#include "editors/ProofScreen.h"
#include "editors/ProofWatch.h"
#include "editors/ProofWork.h"

namespace zorik {
namespace {

using test::kProvenCave;
using test::kWay;
using test::RecordOf;
using test::TextOf;

const test::Picture kWalled{"WWWWWWWWW", "W1;D;W;;T", "W;;;;;;;W", "W;;;;;;;W", "WWWWWWWWW"};

class ProofWatchTest : public testing::Test {
 protected:
  bool Answered() {
    return QTest::qWaitFor([this] { return !watch.Asking(); });
  }

  ProofWatch watch;
  QSignalSpy judged{&watch, &ProofWatch::Judged};
};

TEST_F(ProofWatchTest, KnowsNothingBeforeItHasAProofAndACave) {
  EXPECT_EQ(watch.Verdict(), nullptr);
  EXPECT_FALSE(watch.IsBad());
  watch.SetRecord(RecordOf(kProvenCave, kWay));
  EXPECT_FALSE(watch.Asking()) << "there is no cave";
  EXPECT_EQ(judged.count(), 1);
  EXPECT_EQ(watch.Verdict(), nullptr);
  watch.SetCave(TextOf(kProvenCave));
  EXPECT_TRUE(watch.Asking());
  ASSERT_TRUE(Answered());
  EXPECT_EQ(judged.count(), 2);
  ASSERT_NE(watch.Verdict(), nullptr);
  EXPECT_TRUE(watch.Verdict()->wins);
  EXPECT_EQ(watch.Record(), RecordOf(kProvenCave, kWay));
  EXPECT_EQ(watch.Cave(), TextOf(kProvenCave));
}

TEST_F(ProofWatchTest, AsksNothingAboutACaveThatHasNoProof) {
  watch.SetCave(TextOf(kProvenCave));
  EXPECT_FALSE(watch.Asking());
  EXPECT_EQ(watch.Cave(), TextOf(kProvenCave));
  watch.SetRecord({});
  EXPECT_FALSE(watch.Asking());
  EXPECT_EQ(watch.Verdict(), nullptr);
}

TEST_F(ProofWatchTest, AsksAnewWhenTheCaveIsAnotherAndThenOnly) {
  watch.SetCave(TextOf(kProvenCave));
  watch.SetRecord(RecordOf(kProvenCave, kWay));
  ASSERT_TRUE(Answered());
  watch.SetCave(TextOf(kProvenCave));
  EXPECT_FALSE(watch.Asking());
  watch.SetCave(TextOf(kWalled));
  EXPECT_TRUE(watch.Asking());
  ASSERT_NE(watch.Verdict(), nullptr) << "the last answer stays until then";
  EXPECT_TRUE(watch.Verdict()->wins);
  ASSERT_TRUE(Answered());
  EXPECT_FALSE(watch.Verdict()->wins);
  watch.SetCave(TextOf(kProvenCave));
  ASSERT_TRUE(Answered());
  EXPECT_TRUE(watch.Verdict()->wins);
}

TEST_F(ProofWatchTest, ForgetsWhatItKnewOfAnEarlierRecord) {
  watch.SetCave(TextOf(kProvenCave));
  watch.SetRecord(RecordOf(kProvenCave, kWay));
  ASSERT_TRUE(Answered());
  watch.SetRecord(RecordOf(kProvenCave, test::kLongerWay));
  EXPECT_EQ(watch.Verdict(), nullptr) << "of this one nothing is known";
  ASSERT_TRUE(Answered());
  ASSERT_NE(watch.Verdict(), nullptr);
  EXPECT_EQ(watch.Verdict()->ticks, 9) << "two more than the short way";
  watch.SetRecord("rubbish");
  EXPECT_EQ(watch.Verdict(), nullptr);
  ASSERT_TRUE(Answered());
  EXPECT_TRUE(watch.IsBad());
  EXPECT_EQ(watch.Verdict(), nullptr);
  watch.SetRecord(RecordOf(kProvenCave, kWay));
  EXPECT_FALSE(watch.IsBad());
  ASSERT_TRUE(Answered());
  EXPECT_FALSE(watch.IsBad());
  EXPECT_TRUE(watch.Verdict()->wins);
}

TEST_F(ProofWatchTest, DropsAQuestionWhoseProofIsGone) {
  watch.SetCave(TextOf(kProvenCave));
  watch.SetRecord(RecordOf(kProvenCave, kWay));
  EXPECT_TRUE(watch.Asking());
  const auto before = judged.count();
  watch.SetRecord({});
  EXPECT_FALSE(watch.Asking());
  EXPECT_EQ(judged.count(), before + 1);
  EXPECT_EQ(watch.Verdict(), nullptr);
}

class ProofWorkTest : public testing::Test {
 protected:
  bool Ended() {
    return QTest::qWaitFor([this] { return work.Doing() == ProofWork::Kind::None; }, 20'000);
  }
  // How often it told of each end: impossible, not playable, not rated, a solution, a rating.
  std::vector<qsizetype> Ends() const {
    return {impossible.count(), unplayable.count(), unrated.count(), solved.count(), rated.count()};
  }

  ProofWork work;
  QSignalSpy went{&work, &ProofWork::WentOn};
  QSignalSpy impossible{&work, &ProofWork::Impossible};
  QSignalSpy unplayable{&work, &ProofWork::NotPlayable};
  QSignalSpy unrated{&work, &ProofWork::NotRated};
  QSignalSpy solved{&work, &ProofWork::Solved};
  QSignalSpy rated{&work, &ProofWork::Rated};
};

TEST_F(ProofWorkTest, HasDoneNothingBeforeItBegins) {
  EXPECT_EQ(work.Doing(), ProofWork::Kind::None);
  EXPECT_EQ(work.Done().ticks, 0U);
  EXPECT_EQ(work.Done().gems, 0);
  EXPECT_EQ(work.Done().tries, 0);
}

TEST_F(ProofWorkTest, FindsARunThatWinsTheCave) {
  work.Solve(TextOf(kProvenCave), "sada");
  EXPECT_EQ(work.Doing(), ProofWork::Kind::Solve);
  EXPECT_EQ(went.count(), 1) << "it has begun";
  ASSERT_TRUE(Ended());
  EXPECT_EQ(Ends(), (std::vector<qsizetype>{0, 0, 0, 1, 0}));
  EXPECT_GE(went.count(), 2) << "and ended";
  ProofWatch watch;
  watch.SetCave(TextOf(kProvenCave));
  watch.SetRecord(solved[0][0].value<std::string>());
  ASSERT_TRUE(QTest::qWaitFor([&watch] { return !watch.Asking(); }));
  ASSERT_NE(watch.Verdict(), nullptr);
  EXPECT_TRUE(watch.Verdict()->wins);
  EXPECT_LE(watch.Verdict()->ticks, 9) << "it is made short";
}

TEST_F(ProofWorkTest, KnowsACaveThatCannotBeWonFromOneThatCannotBeBegun) {
  work.Solve(TextOf({"WWWWWWWWW", "W1;D;;W;T", "W;;;;;W;W", "W;;;;;W;W", "WWWWWWWWW"}), "sada");
  ASSERT_TRUE(Ended());
  EXPECT_EQ(Ends(), (std::vector<qsizetype>{1, 0, 0, 0, 0}));
  work.Solve("this is no cave", "sada");
  ASSERT_TRUE(Ended());
  EXPECT_EQ(Ends(), (std::vector<qsizetype>{1, 1, 0, 0, 0}));
}

TEST_F(ProofWorkTest, RatesARunByTwentyOtherChances) {
  work.Rate(TextOf(kProvenCave), RecordOf(kProvenCave, kWay));
  EXPECT_EQ(work.Doing(), ProofWork::Kind::Rate);
  ASSERT_TRUE(Ended());
  EXPECT_EQ(Ends(), (std::vector<qsizetype>{0, 0, 0, 0, 1}));
  EXPECT_EQ(work.Done().tries, 20);
  const auto rating = rated[0][0].value<Rating>();
  EXPECT_EQ(rating.tries, 20);
  EXPECT_EQ(rating.survived, 20) << "nothing is left to chance in that cave";
}

TEST_F(ProofWorkTest, CannotRateWhatIsNoRecordOrNoCave) {
  work.Rate(TextOf(kProvenCave), "rubbish");
  ASSERT_TRUE(Ended());
  EXPECT_EQ(Ends(), (std::vector<qsizetype>{0, 0, 1, 0, 0}));
  work.Rate("this is no cave", RecordOf(kProvenCave, kWay));
  ASSERT_TRUE(Ended());
  EXPECT_EQ(Ends(), (std::vector<qsizetype>{0, 0, 2, 0, 0}));
}

// Nobody knows that boulders cannot be walked through.
TEST_F(ProofWorkTest, TellsHowFarItHasComeUntilItIsGivenUp) {
  work.Solve(TextOf({"WWWWWWWWW", "W1;DRRRRT", "W;;;RRRRW", "W;;;RRRRW", "WWWWWWWWW"}), "sada");
  EXPECT_TRUE(QTest::qWaitFor([this] { return went.count() > 2; }, 20'000)) << "as time passes";
  EXPECT_TRUE(QTest::qWaitFor([this] { return work.Done().ticks > 0; }, 20'000));
  EXPECT_TRUE(QTest::qWaitFor([this] { return work.Done().gems == 1; }, 20'000)) << "the only one";
  const auto before = went.count();
  work.GiveUp();
  EXPECT_EQ(work.Doing(), ProofWork::Kind::None);
  EXPECT_EQ(went.count(), before + 1);
  EXPECT_EQ(Ends(), (std::vector<qsizetype>{0, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace zorik
