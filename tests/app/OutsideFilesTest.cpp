#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "app/GameScreens.h"
#include "app/OutsideFiles.h"
#include "screens/Toast.h"

namespace zorik::test {
namespace {

// The files without a game around them: what shows, and what becomes of each, is the test's.
class OutsideFilesTest : public testing::Test {
 protected:
  static const Toast* Sign() {
    const auto* const sign = Screen<Toast>();
    return sign != nullptr && sign->isVisible() ? sign : nullptr;
  }

  OnScreen shows_;
  QStringList done_;
  std::function<void(const QString& path)> meanwhile_ = [](const QString&) {};
  Skin skin_;
  OutsideFiles files_{
      skin_,
      {[this] { return shows_; }, [](const QString&) { return true; }, [](const QString&) { return true; },
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

}  // namespace
}  // namespace zorik::test
