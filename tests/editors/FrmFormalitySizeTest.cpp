// How large the dialog of properties is.
#include <QScrollArea>
#include <QScrollBar>

#include "editors/FormalityScreen.h"

namespace zorik {
namespace {

class FrmFormalitySizeTest : public test::FormalityWindowTest {
 protected:
  static int Scrolls(const QWidget& dialog) {
    QCoreApplication::processEvents();
    return dialog.findChild<QScrollArea*>()->verticalScrollBar()->maximum();
  }
};

TEST_F(FrmFormalitySizeTest, ShowsAllOfItWhereTheScreenHasRoom) {
  Dialog([](QWidget& it) {
    ASSERT_LT(it.height(), it.screen()->availableSize().height()) << "the screen has room";
    EXPECT_EQ(Scrolls(it), 0);
  });
}

TEST_F(FrmFormalitySizeTest, ShowsAllOfItInEnglishToo) {
  Wear("English");
  MakeWindow();
  Open(kRoom);
  Dialog([](QWidget& it) { EXPECT_EQ(Scrolls(it), 0); });
}

TEST_F(FrmFormalitySizeTest, StaysAsItsAuthorHasMadeIt) {
  Dialog([](QWidget& it) { it.resize(it.width(), 300); });
  Dialog([](QWidget& it) {
    EXPECT_EQ(it.height(), 300);
    EXPECT_GT(Scrolls(it), 0);
  });
  MakeWindow();
  Open(kRoom);
  Dialog([](QWidget& it) { EXPECT_EQ(it.height(), 300); });
}

TEST_F(FrmFormalitySizeTest, LeavesItsButtonsInALowWindow) {
  Dialog([](QWidget& it) {
    it.resize(it.minimumSizeHint());
    EXPECT_LE(it.width(), 679);  // a small screen at twice the size
    EXPECT_LE(it.height(), 348);
    const QRect ok = it.findChild<QPushButton*>("Command1")->geometry();
    EXPECT_TRUE(it.rect().contains(ok));
  });
}

}  // namespace
}  // namespace zorik
