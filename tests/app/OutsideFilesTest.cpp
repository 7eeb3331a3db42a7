#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <utility>

#include "app/GameScreens.h"
#include "app/OutsideFiles.h"
#include "screens/StartWords.h"
#include "screens/Toast.h"
#include "skin/Skin.h"

namespace zorik::test {
namespace {

// The files without a game around them: what shows, and what becomes of each, is the test's.
class OutsideFilesTest : public testing::Test {
 protected:
  static const Toast* Sign() {
    const auto* const sign = Screen<Toast>();
    return sign != nullptr && sign->isVisible() ? sign : nullptr;
  }

  OnScreen Looked() {
    ++looks_;
    return shows_;
  }

  bool Asked(const QString& question, const QString& path) {
    done_ << question + " " + path;
    const auto meanwhile = std::exchange(whileAsked_, [] {});
    meanwhile();
    return yes_.contains(question + " " + path);
  }

  OnScreen shows_;
  int looks_ = 0;
  QStringList done_;
  QStringList yes_;  // the questions that are answered so
  std::function<void()> whileAsked_ = [] {};
  std::function<void(const QString& path)> meanwhile_ = [](const QString&) {};
  Skin skin_;
  OutsideFiles files_{
      skin_,
      {[this] { return Looked(); }, [this](const QString& path) { return Asked("end?", path); },
       [this](const QString& path) { return Asked("open?", path); },
       [this](const QString& path) {
         done_ << "open " + path;
         meanwhile_(path);
         done_ << "opened " + path;
       }}};
};

TEST_F(OutsideFilesTest, AreOpenedOneAfterTheOtherThoughNothingShowsOfTheFirst) {
  meanwhile_ = [this](const QString& path) {
    if (path == "a") files_.Add("b");
  };
  files_.Add("a");
  EXPECT_TRUE(Wait([this] { return done_.size() == 4; }));
  EXPECT_EQ(done_, QStringList({"open a", "opened a", "open b", "opened b"}));
}

TEST_F(OutsideFilesTest, SayOnceThatTheyWait) {
  shows_.Editors = true;
  files_.Add("a");
  ASSERT_NE(Sign(), nullptr);
  EXPECT_TRUE(QTest::qWaitFor([] { return Sign() == nullptr; }, 6000)) << "it is not said again and again";
  EXPECT_TRUE(done_.isEmpty());
  shows_.Editors = false;
  EXPECT_TRUE(Wait([this] { return done_.size() == 2; }));
}

TEST_F(OutsideFilesTest, AreOpenedAtOnceWhereNothingIsInTheirWay) {
  files_.Add("a");
  EXPECT_EQ(done_, QStringList({"open a", "opened a"}));
  EXPECT_EQ(Sign(), nullptr);
}

// Who waits looks about five times a second, and not at all when there is nothing to wait for.
TEST_F(OutsideFilesTest, CostNoMoreThanALookNowAndThen) {
  shows_.Editors = true;
  files_.Add("a");
  QElapsedTimer clock;
  clock.start();
  EXPECT_TRUE(Wait([this] { return looks_ >= 4; }));
  EXPECT_GE(clock.elapsed(), 450) << "three times a fifth of a second, as the toolkit's timers keep it";
  shows_.Editors = false;
  EXPECT_TRUE(Wait([this] { return done_.size() == 2; }));
  const int looks = looks_;
  QTest::qWait(700);
  EXPECT_EQ(looks_, looks);
}

TEST_F(OutsideFilesTest, AreNamedOnTheSign) {
  ASSERT_TRUE(skin_.Apply(SkinPlaces{ZORIK_BUILT_SKINS, "English"}));
  shows_.Score = true;
  files_.Add("/some/folder/sada.zk");
  ASSERT_NE(Sign(), nullptr);
  EXPECT_EQ(Sign()->text(), "sada.zk\n" + kWaitsWords.In(skin_));
  files_.Add("/some/folder/druha.zk");
  EXPECT_EQ(Sign()->text(), "druha.zk\n" + kWaitsWords.In(skin_));
}

TEST_F(OutsideFilesTest, WaitWithoutAWordWhileTheGameHidesOrLoads) {
  for (bool OnScreen::*const silent : {&OnScreen::Hidden, &OnScreen::Notice}) {
    done_.clear();
    shows_.*silent = true;
    files_.Add("a");
    EXPECT_EQ(Sign(), nullptr);
    EXPECT_TRUE(done_.isEmpty());
    shows_.*silent = false;
    EXPECT_TRUE(Wait([this] { return done_ == QStringList({"open a", "opened a"}); }));
  }
}

TEST_F(OutsideFilesTest, EndARunWhenThePlayerSaysYes) {
  shows_.Run = true;
  yes_ << "end? a";
  files_.Add("a");
  EXPECT_EQ(done_, QStringList({"end? a", "open a", "opened a"}));
}

TEST_F(OutsideFilesTest, AreAskedAboutOnceInARunAndAgainBehindIt) {
  shows_.Run = true;
  files_.Add("/x/a.zk");
  EXPECT_EQ(done_, QStringList("end? /x/a.zk"));
  EXPECT_EQ(Sign(), nullptr) << "the player knows that it waits";
  files_.Add("/x/b.zk");
  EXPECT_EQ(done_, QStringList("end? /x/a.zk")) << "one question in a run is enough";
  ASSERT_NE(Sign(), nullptr);
  EXPECT_TRUE(Sign()->text().startsWith("b.zk\n"));
  yes_ << "open? /x/b.zk";
  shows_.Run = false;
  EXPECT_TRUE(Wait([this] { return done_.size() == 5; })) << done_.join(", ").toStdString();
  EXPECT_EQ(done_.mid(1), QStringList({"open? /x/a.zk", "open? /x/b.zk", "open /x/b.zk", "opened /x/b.zk"}));
}

TEST_F(OutsideFilesTest, ThatComeBehindAQuestionAskNoOther) {
  shows_.Run = true;
  whileAsked_ = [this] {
    files_.Add("/x/b.zk");
    EXPECT_EQ(done_, QStringList("end? /x/a.zk"));
  };
  files_.Add("/x/a.zk");
  EXPECT_EQ(done_, QStringList("end? /x/a.zk")) << "one answer is for all that wait";
  ASSERT_NE(Sign(), nullptr) << "yet nothing was said of the other";
  EXPECT_TRUE(Sign()->text().startsWith("b.zk\n"));
}

}  // namespace
}  // namespace zorik::test
