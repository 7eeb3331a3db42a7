#include <QDialog>
#include <QPushButton>
#include <QSpinBox>

#include "data/Result.h"
#include "editors/CaveModel.h"
#include "editors/EditTiles.h"
#include "editors/EditorScreen.h"
#include "editors/Paints.h"
#include "editors/ResizeBox.h"
#include "editors/ToolTable.h"
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

TEST_F(ResizeBoxTest, PaintsWhatTheCaveWouldLookLikeAtOnce) {
  InBox([](QDialog& box) {
    QCoreApplication::processEvents();
    test::Paints paints(*box.findChild<QWidget*>("imgResized"));
    Side(box, "spnRight").setValue(1);
    EXPECT_TRUE(QTest::qWaitFor([&paints] { return paints.count > 0; }));
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

TEST_F(ResizeBoxTest, SaysWhichSizesThereAreForEachSide) {
  InBox([](QDialog& box) {
    const auto size = [&box] { return box.findChild<QLabel*>("lblNewSize")->text(); };
    EXPECT_EQ(size(), "5 × 5   →   5 × 5");
    Side(box, "spnLeft").setValue(2);
    EXPECT_EQ(size(), "5 × 5   →   7 × 5");
    Side(box, "spnTop").setValue(3);
    EXPECT_EQ(size(), "5 × 5   →   7 × 8");
    Side(box, "spnRight").setValue(4);
    EXPECT_EQ(size(), "5 × 5   →   11 × 8");
    Side(box, "spnBottom").setValue(-1);
    EXPECT_EQ(size(), "5 × 5   →   11 × 7");
    EXPECT_EQ(static_cast<ResizeBox&>(box).Sides(), (CaveSides{2, 3, 4, -1}));
  });
}

TEST_F(ResizeBoxTest, LetsEachSideGoAsFarAsTheOppositeLeavesRoom) {
  InBox([](QDialog& box) {
    for (const auto& [one, other, most] : {std::tuple{"spnLeft", "spnRight", CaveModel::kMostWidth},
                                           std::tuple{"spnTop", "spnBottom", CaveModel::kMostHeight}}) {
      EXPECT_EQ(Side(box, one).minimum(), 0) << "it is as small as can be";
      EXPECT_EQ(Side(box, one).maximum(), most - 5);
      EXPECT_EQ(Side(box, other).minimum(), 0);
      EXPECT_EQ(Side(box, other).maximum(), most - 5);
      Side(box, other).setValue(3);
      EXPECT_EQ(Side(box, one).minimum(), -3);
      EXPECT_EQ(Side(box, one).maximum(), most - 8);
      EXPECT_EQ(Side(box, other).minimum(), 0);
    }
  });
}

TEST_F(ResizeBoxTest, IsTakenWithItsFirstButton) {
  InBox([](QDialog& box) {
    Side(box, "spnLeft").setValue(1);
    box.findChildren<QPushButton*>()[0]->click();
    EXPECT_FALSE(box.isVisible());
  });
  EXPECT_EQ(window->Model().Width(), 6);
}

TEST_F(ResizeBoxTest, IsLeftWithItsSecondButton) {
  InBox([](QDialog& box) {
    Side(box, "spnLeft").setValue(1);
    ASSERT_EQ(box.findChildren<QPushButton*>().size(), 2);
    box.findChildren<QPushButton*>()[1]->click();
    EXPECT_FALSE(box.isVisible());
  });
  EXPECT_EQ(window->Model().Width(), 5);
}

// The picture alone, of twenty pixels for each cell of a cave of five cells a side.
class ResizePictureTest : public ResizeBoxTest {
 protected:
  static constexpr int kCell = 20;

  ResizePictureTest() : cave(window->Model().Cave()) {
    tiles.Load(SkinPlaces{ZORIK_SKINS, "Default"}, "Classic");
  }

  QImage Shown(const CaveSides& sides, QSize size) {
    ResizePicture picture(cave, tiles, nullptr);
    picture.resize(size);
    picture.Show(sides);
    return picture.grab().toImage().convertToFormat(QImage::Format_RGB32);
  }
  // The middle of a tile, in which no frame is drawn.
  static QImage Middle(const QImage& picture, QPoint corner) {
    return picture.copy(QRect(corner, QSize(kCell, kCell)).adjusted(3, 3, -3, -3));
  }
  QImage TileOf(char letter) {
    const QImage& tile = tiles.Tile(ToolOfLetter(letter), ValueOf(letter), kCell);
    return Middle(tile.convertToFormat(QImage::Format_RGB32), {});
  }
  // Whether nothing is drawn there.
  static bool Bare(const QImage& picture, const QRect& part) {
    QImage bare(part.size(), picture.format());
    bare.fill(picture.pixelColor(0, 0));
    return picture.copy(part) == bare;
  }
  static bool Highlit(const QImage& picture, int x, int y) {
    return picture.pixelColor(x, y) == QApplication::palette().color(QPalette::Highlight);
  }

  CaveRecord cave;
  EditTiles tiles;
};

TEST_F(ResizePictureTest, ShowsEachCellInTheMiddleOfItsRoom) {
  for (const QSize size : {QSize(200, 100), QSize(163, 104), QSize(160, 103)}) {
    const QImage picture = Shown({}, size);
    const QPoint corner((size.width() - 5 * kCell + 1) / 2, (size.height() - 5 * kCell + 1) / 2);
    for (int x = 0; x < 5; ++x) {
      for (int y = 0; y < 5; ++y) {
        const char letter = kRoom[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
        EXPECT_EQ(Middle(picture, corner + QPoint(x, y) * kCell), TileOf(letter)) << x << ", " << y;
      }
    }
  }
}

TEST_F(ResizePictureTest, ShowsNothingBesideTheCave) {
  const QImage wide = Shown({}, {200, 100});
  EXPECT_TRUE(Bare(wide, {0, 0, 48, 100}));
  EXPECT_TRUE(Bare(wide, {153, 0, 47, 100}));
  const QImage high = Shown({.left = 1, .top = 0, .right = 2, .bottom = 0}, {160, 150});
  EXPECT_TRUE(Bare(high, {0, 0, 160, 23}));
  EXPECT_TRUE(Bare(high, {0, 127, 160, 23}));
}

TEST_F(ResizePictureTest, FramesWhatIsThereAlready) {
  // Seven cells by five at a height of a hundred, thirty pixels from either edge.
  const QImage wider = Shown({.left = 1, .top = 0, .right = 1, .bottom = 0}, {200, 100});
  EXPECT_TRUE(Highlit(wider, 30 + kCell, 50));
  EXPECT_TRUE(Highlit(wider, 30 + 6 * kCell, 50));
  EXPECT_FALSE(Highlit(wider, 31, 50)) << "a new column";
  EXPECT_FALSE(Highlit(wider, 30 + 7 * kCell - 1, 50));
  EXPECT_EQ(Middle(wider, {30 + kCell, 0}), TileOf('W'));
  EXPECT_EQ(Middle(wider, {30 + 2 * kCell, kCell}), TileOf('1')) << "all is moved by the new column";
  // Seven rows at a height of a hundred and forty.
  const QImage higher = Shown({.left = 0, .top = 2, .right = 0, .bottom = 0}, {160, 140});
  EXPECT_TRUE(Highlit(higher, 80, 2 * kCell));
  EXPECT_FALSE(Highlit(higher, 80, 1));
  EXPECT_EQ(Middle(higher, {30 + kCell, 3 * kCell}), TileOf('1'));
}

TEST_F(ResizePictureTest, ShowsWhatIsLeftOfTheCave) {
  cave = *ParseCaveText(test::CaveTextOf(Full(7, 6, ';')));
  // Six cells by five.
  const QImage picture = Shown({.left = -1, .top = 0, .right = 0, .bottom = -1}, {160, 100});
  EXPECT_TRUE(Highlit(picture, 20, 50));
  EXPECT_TRUE(Highlit(picture, 20 + 6 * kCell, 50));
  EXPECT_EQ(Middle(picture, {20, 0}), TileOf(';'));
  EXPECT_EQ(Middle(picture, {20 + 5 * kCell, 4 * kCell}), TileOf(';'));
}

TEST_F(ResizePictureTest, IsAsLargeAsItsWidthAllows) {
  cave = *ParseCaveText(test::CaveTextOf(Full(7, 6, ';')));
  // Eight cells by six.
  const QImage picture = Shown({.left = 1, .top = 0, .right = 0, .bottom = 0}, {160, 150});
  EXPECT_TRUE(Highlit(picture, kCell, 75));
  EXPECT_FALSE(Highlit(picture, 1, 75));
  EXPECT_EQ(Middle(picture, {kCell, 15}), TileOf(';'));
  EXPECT_EQ(Middle(picture, {7 * kCell, 15 + 5 * kCell}), TileOf(';'));
  EXPECT_EQ(Middle(picture, {0, 15}), TileOf('.'));
}

TEST_F(ResizePictureTest, KeepsHalfOfItsWishAtLeast) {
  const ResizePicture picture(cave, tiles, nullptr);
  EXPECT_EQ(picture.minimumSize(), picture.sizeHint() / 2);
}

}  // namespace
}  // namespace zorik
