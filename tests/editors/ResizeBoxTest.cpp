#include <QDialog>
#include <QPushButton>
#include <QSpinBox>

#include "editors/EditorScreen.h"
#include "editors/ResizeBox.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

using test::Full;
using test::Picture;

const Picture kRoom = {"WWWWW", "W1.DW", "W...W", "WR..W", "WWWWW"};

class ResizeBoxTest : public testing::Test, public test::EditorScreen {
 protected:
  ResizeBoxTest() { Open(kRoom); }

  // Opens the box and does something in it.
  void InBox(const std::function<void(QDialog&)>& act) const {
    test::InDialogNamed box("frmResize", [&](QWidget& it) { act(static_cast<QDialog&>(it)); });
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(box.opened);
  }
  static QSpinBox& Side(const QDialog& box, const char* name) { return *box.findChild<QSpinBox*>(name); }
};

TEST_F(ResizeBoxTest, MovesEverySide) {
  InBox([](QDialog& box) {
    Side(box, "spnLeft").setValue(1);
    Side(box, "spnTop").setValue(2);
    Side(box, "spnRight").setValue(3);
    Side(box, "spnBottom").setValue(-1);
    EXPECT_EQ(box.findChild<QLabel*>("lblNewSize")->text(), "5 × 5   →   9 × 6");
    box.accept();
  });
  EXPECT_EQ(Letters(),
            (Picture{".........", ".........", ".WWWWW...", ".W1.DW...", ".W...W...", ".WR..W..."}));
  Action("mnuUndo").trigger();
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(ResizeBoxTest, ChangesNothingWhenItIsLeft) {
  InBox([](QDialog& box) {
    Side(box, "spnLeft").setValue(4);
    box.reject();
  });
  EXPECT_EQ(Letters(), kRoom);
}

TEST_F(ResizeBoxTest, KeepsToTheLimitsOfACave) {
  InBox([](QDialog& box) {
    Side(box, "spnLeft").setValue(99);
    EXPECT_EQ(Side(box, "spnLeft").value(), 75);
    EXPECT_EQ(Side(box, "spnRight").maximum(), 0);
    Side(box, "spnTop").setValue(-9);
    EXPECT_EQ(Side(box, "spnTop").value(), 0);
    Side(box, "spnBottom").setValue(10);
    Side(box, "spnTop").setValue(-99);
    EXPECT_EQ(Side(box, "spnTop").value(), -10);
    box.reject();
  });
}

TEST_F(ResizeBoxTest, ShowsWhatTheCaveWouldLookLike) {
  InBox([](QDialog& box) {
    auto* const picture = box.findChild<QWidget*>("imgResized");
    const QImage before = picture->grab().toImage();
    Side(box, "spnRight").setValue(5);
    EXPECT_NE(picture->grab().toImage(), before);
    Side(box, "spnRight").setValue(0);
    EXPECT_EQ(picture->grab().toImage(), before);
    box.reject();
  });
}

TEST_F(ResizeBoxTest, HasTheSkinsWordOnItsButton) {
  test::TestSkin own;
  own.Data("caption.dialog.ok=Budiz\n");
  own.Apply();
  EditTiles tiles;
  const ResizeBox box(own.Skin(), test::Opened(kRoom), tiles, nullptr);
  EXPECT_EQ(box.findChild<QPushButton*>()->text(), "Budiz");
}

}  // namespace
}  // namespace zorik
