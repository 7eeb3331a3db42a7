// What the tests of windows answer dialogs with, on a machine so busy that it looks earlier, or later, than
// it does elsewhere.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "screens/DialogScript.h"

namespace zorik {
namespace {

using test::DialogScript;

constexpr int kManyLooks = 50;  // milliseconds

void Accept(QWidget& dialog) {
  static_cast<QDialog&>(dialog).accept();
}

// A dialog that is there already, as the score is.
class DialogScriptTest : public testing::Test {
 protected:
  DialogScriptTest() {
    score_.setModal(true);
    score_.show();
  }

  QDialog score_;
};

TEST_F(DialogScriptTest, WaitsForTheDialogThatOpensAfterIt) {
  QDialog box;
  const DialogScript script = {[&](QWidget& dialog) {
    EXPECT_EQ(&dialog, &box);
    Accept(box);
  }};
  QTest::qWait(kManyLooks);
  EXPECT_EQ(box.exec(), QDialog::Accepted);
  EXPECT_TRUE(score_.isVisible());
}

TEST_F(DialogScriptTest, LeavesTheOneBeforeItAloneWhenThatComesBack) {
  const DialogScript script = {Accept};
  score_.hide();
  QDialog box;
  EXPECT_EQ(box.exec(), QDialog::Accepted);
  score_.show();
  QTest::qWait(kManyLooks);
  EXPECT_TRUE(score_.isVisible());
}

TEST_F(DialogScriptTest, TakesItsTimeWithTheLast) {
  const DialogScript script = {[](QWidget& dialog) {
    QTest::qWait(kManyLooks);
    EXPECT_TRUE(dialog.isVisible());
    Accept(dialog);
  }};
  QDialog box;
  EXPECT_EQ(box.exec(), QDialog::Accepted);
}

TEST_F(DialogScriptTest, TellsOfADialogTooMany) {
  EXPECT_NONFATAL_FAILURE(
      {
        const DialogScript script = {Accept};
        QDialog box;
        EXPECT_EQ(box.exec(), QDialog::Accepted);
        EXPECT_EQ(box.exec(), QDialog::Rejected);
      },
      "a dialog too many");
}

TEST_F(DialogScriptTest, TellsOfADialogThatDoesNotOpen) {
  EXPECT_NONFATAL_FAILURE({ const DialogScript script = {Accept}; }, "1 dialogs did not open");
}

}  // namespace
}  // namespace zorik
