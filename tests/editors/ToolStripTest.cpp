// The column of tools beside the picture.
#include <QToolButton>

#include "editors/EditorScreen.h"
#include "editors/ToolStrip.h"

namespace zorik {
namespace {

class ToolStripTest : public testing::Test {
 protected:
  ToolStripTest() {
    for (const char* const name : {"mnuA", "mnuB", "mnuC"}) Add(name);
    strip_.AddGap();
    Add("mnuD");
    strip_.show();
  }

  void Add(const char* name) {
    auto* const action = new QAction(&strip_);
    action->setObjectName(name);
    strip_.Add(*action);
  }
  QRect At(const char* name) const { return strip_.findChild<QToolButton*>(name)->geometry(); }

  ToolStrip strip_{nullptr};
};

TEST_F(ToolStripTest, HasItsButtonsBelowEachOtherWhereThereIsRoom) {
  strip_.resize(strip_.sizeHint());
  EXPECT_EQ(At("btnA").left(), At("btnB").left());
  EXPECT_GT(At("btnB").top(), At("btnA").bottom());
  EXPECT_GT(At("btnD").top() - At("btnC").bottom(), At("btnB").top() - At("btnA").bottom()) << "a gap";
}

TEST_F(ToolStripTest, LaysNoButtonOverAnotherInTwoColumns) {
  strip_.resize(strip_.width(), strip_.minimumSizeHint().height());
  EXPECT_EQ(At("btnA").top(), At("btnB").top());
  EXPECT_GT(At("btnC").top(), At("btnA").bottom());
  EXPECT_GT(At("btnD").top(), At("btnC").bottom()) << "the next group begins below the last row";
}

}  // namespace
}  // namespace zorik
