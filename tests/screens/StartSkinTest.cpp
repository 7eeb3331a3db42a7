#include <QPainter>

#include "screens/StartScreen.h"

namespace zorik {
namespace {

using test::FingerBox;
using test::Press;
using test::Strips;

class StartSkin : public test::StartScreen {
 protected:
  void SetUp() override {
    for (int i = 0; i < 9; ++i) {
      Coll(std::to_string(i) + ".zk", "Sada " + std::to_string(i));
      Player("Hrac " + std::to_string(i));
    }
    Load();
  }

  // Wears the usual keys with these ones changed; empty ones are left out.
  void With(const std::map<std::string, std::string>& changed) {
    WearChanged(changed);
    start_->SkinIt();
  }

  QColor At(QPoint point) const { return start_->grab().toImage().pixelColor(point); }
};

TEST_F(StartSkin, TheHeightOverridesTheLines) {
  With({{"start.caves.height", "60"}, {"start.caves.lines", "9"}});
  EXPECT_EQ(Colls().height(), 60);
  With({{"start.caves.height", ""}, {"start.caves.lines", "9"}});
  EXPECT_EQ(Colls().height(), 9 * 14 + 2 * 2) << "nine rows and the frame";
}

TEST_F(StartSkin, AButtonWithoutAPlaceIsHidden) {
  With({{"start.help.left", ""}});
  EXPECT_FALSE(Find<QWidget>("help").isVisible());
  With({});
  EXPECT_TRUE(Find<QWidget>("help").isVisible());
}

TEST_F(StartSkin, TheWindowIsAsLargeAsThePicture) {
  EXPECT_EQ(start_->size(), test::kPalm);
  EXPECT_FALSE(start_->mask().contains(QPoint(1, 1))) << "what is black like the first pixel is outside";
  EXPECT_TRUE(start_->mask().contains(QPoint(170, 250)));
}

TEST_F(StartSkin, TheLitPalmShowsWhilePlayIsChosen) {
  const QPoint bare(320, 250);
  EXPECT_EQ(At(bare), QColor(220, 190, 120));
  Key(Qt::Key_2);
  EXPECT_EQ(At(bare), QColor(200, 180, 150));
  Key(Qt::Key_1);
  EXPECT_EQ(At(bare), QColor(220, 190, 120));
}

TEST_F(StartSkin, TheChosenFingerIsLit) {
  for (int mode = 1; mode < 4; ++mode) {
    Key(static_cast<Qt::Key>(Qt::Key_1 + mode));
    for (int finger = 1; finger < 4; ++finger) {
      const QColor lit(250, 200, 40);
      EXPECT_EQ(At(FingerBox(finger).center()) == lit, finger == mode) << finger << " in mode " << mode;
    }
  }
}

TEST_F(StartSkin, WithoutALitPalmThePlayFingerIsLaidOverTheOther) {
  With({{"start.palmPlay.image", ""}});
  EXPECT_EQ(At(FingerBox(0).center()), QColor(250, 200, 40));
  EXPECT_EQ(At(QPoint(320, 250)), QColor(200, 180, 150));
}

TEST_F(StartSkin, AFingerReachesAsFarAsItIsDrawn) {
  for (int i = 0; i < 4; ++i) {
    const char* const names[] = {"fingerPlay", "fingerRePlay", "fingerEditor", "finger4"};
    EXPECT_EQ(Find<QWidget>(names[i]).geometry(), FingerBox(i));
  }
}

TEST_F(StartSkin, FingersHaveTheirWordsAsTooltips) {
  EXPECT_EQ(Find<QWidget>("fingerPlay").toolTip(), "Hrát");
  EXPECT_EQ(Find<QWidget>("fingerRePlay").toolTip(), "Záznam");
  EXPECT_EQ(Find<QWidget>("fingerEditor").toolTip(), "Editor");
  EXPECT_EQ(Find<QWidget>("finger4").toolTip(), "Text 111");
}

TEST_F(StartSkin, ButtonsHaveTheirWordsAsTooltips) {
  EXPECT_EQ(Find<QWidget>("close").toolTip(), "Zavřít");
  EXPECT_EQ(Find<QWidget>("help").toolTip(), "Nápověda");
  EXPECT_EQ(Find<QWidget>("changeskin").toolTip(), "Skin: obrázky, zvuky i jazyk hry");
  EXPECT_EQ(Find<QWidget>("addplayer").toolTip(), "Text 114");
  EXPECT_EQ(Find<QWidget>("play").toolTip(), "Hrát");
}

TEST_F(StartSkin, TheSelectedRowHasTheColoursOfTheSelectionAndTheOthersDoNot) {
  const QColor selected(0xC0, 0xA0, 0x00);
  const QColor ground(0x10, 0x20, 0x30);
  const auto colourOf = [this](int row) {
    const QRect box = Colls().PlaceOf(row).translated(Colls().pos());
    return At(box.topRight() + QPoint(-8, 2));
  };
  for (int row : {1, 3, 0}) {
    Colls().Select(row);
    for (int other = 0; other < 5; ++other) {
      EXPECT_EQ(colourOf(other), other == row ? selected : ground) << other << " of " << row;
    }
  }
}

TEST_F(StartSkin, NoRowHangsOverTheFrame) {
  const QColor frame(0x80, 0x40, 0x20);
  for (int row = 0; row < Colls().Count(); ++row) {
    Colls().Select(row);
    const QImage list = Colls().grab().toImage();
    for (int x = 0; x < list.width(); ++x) {
      for (int edge : {0, 1}) {
        ASSERT_EQ(list.pixelColor(x, edge), frame);
        ASSERT_EQ(list.pixelColor(x, list.height() - 1 - edge), frame);
      }
    }
    EXPECT_TRUE(Colls().rect().adjusted(2, 2, -2, -2).contains(Colls().PlaceOf(row))) << row;
  }
}

TEST_F(StartSkin, WithoutAnySkinTheScreenIsPlainAndWorks) {
  Skin bare;
  FrmStart2 start(bare, folder_.Paths(), settings_);
  const QSignalSpy opened(&start, &FrmStart2::OpenCollection);
  start.FrmLoad();
  QTest::qWait(20);
  EXPECT_GT(start.width(), 100);
  QTest::keyClick(&start, Qt::Key_Return);
  EXPECT_EQ(opened.count(), 1);
}

TEST_F(StartSkin, TheLitPalmShowsWithinTheShapeOfTheOther) {
  QImage wide(test::kPalm + QSize(100, 50), QImage::Format_RGB32);
  wide.fill(QColor(10, 200, 10));
  skin_.Picture("wide", wide);
  With({{"start.palmPlay.image", "wide"}});
  EXPECT_EQ(start_->size(), test::kPalm);
  EXPECT_FALSE(start_->mask().contains(QPoint(1, 1)));
  EXPECT_EQ(At(QPoint(320, 250)), QColor(10, 200, 10));
}

TEST_F(StartSkin, AButtonOutsideOfThePalmIsSeenAllTheSame) {
  QImage cut = test::Palm(QColor(200, 180, 150));
  QPainter(&cut).fillRect(0, 100, 60, 160, Qt::black);
  skin_.Picture("cut", cut);
  const QPoint outside(30, 210);
  With({{"start.palm.image", "cut"}});
  ASSERT_FALSE(start_->mask().contains(outside));
  With({{"start.palm.image", "cut"}, {"start.changeskin.left", "20"}, {"start.changeskin.top", "200"}});
  ASSERT_TRUE(Find<QWidget>("changeskin").geometry().contains(outside));
  EXPECT_TRUE(start_->mask().contains(outside));
  With({{"start.palm.image", "cut"}});
  EXPECT_FALSE(start_->mask().contains(outside));
}

TEST_F(StartSkin, WhateverNumbersItHasThePaletteIsAtHand) {
  for (const char* const value : {"0", "-32768", "32767", "4000", "-1"}) {
    SCOPED_TRACE(value);
    std::map<std::string, std::string> keys = test::StartKeys();
    for (auto& [key, present] : keys) {
      const std::string last = key.substr(key.rfind('.') + 1);
      if (std::set<std::string>{"left", "top", "width", "height", "lines", "size"}.contains(last))
        present = value;
    }
    for (const char* const size : {"start.palm.width", "start.palm.height"}) keys[size] = value;
    With(keys);
    EXPECT_TRUE(start_->isVisible());
    const QSize screen = start_->screen()->availableSize().expandedTo({800, 600});
    EXPECT_EQ(start_->size().boundedTo(screen), start_->size());
    EXPECT_EQ(start_->size().expandedTo({64, 64}), start_->size());
    if (value == std::string("-1")) continue;
    const auto& palette = Find<QWidget>("changeskin");
    EXPECT_TRUE(palette.isVisible());
    EXPECT_TRUE(start_->rect().contains(palette.geometry()));
    EXPECT_EQ(start_->childAt(palette.geometry().center()), &palette);
    EXPECT_TRUE(start_->rect().contains(Colls().geometry()));
    EXPECT_TRUE(start_->rect().contains(Plrs().geometry()));
  }
}

TEST_F(StartSkin, APictureWhoseFileHasChangedIsSeenWhenTheScreenComesBack) {
  start_->hide();
  skin_.Picture("small", Strips({Qt::cyan, Qt::green, Qt::blue}, {20, 20}));
  start_->show();
  EXPECT_EQ(Find<QWidget>("close").grab().toImage().pixelColor(10, 10), QColor(Qt::cyan));
}

TEST_F(StartSkin, AnotherSkinIsPutOnAtOnce) {
  skin_.File("../../Jiny/Menu/skindata.txt", "version.text=Jine\r\nstart.fingerPlay.text=Play\r\n");
  const QSignalSpy changed(start_.get(), &FrmStart2::SkinChanged);
  const test::DialogScript script = {[this](QWidget& dialog) {
    QTest::keyClick(dialog.findChild<QWidget*>("Combo1"), Qt::Key_Down);
    EXPECT_EQ(Find<QWidget>("fingerPlay").toolTip(), "Play") << "while the window is open";
    QTest::keyClick(&dialog, Qt::Key_Return);
  }};
  Key(Qt::Key_F2);
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(settings_.Skin, "Jiny");
}

// Who cannot see them is told what they are.
TEST_F(StartSkin, FingersAndButtonsAreReadAloudInTheirWords) {
  for (const char* name : {"fingerPlay", "fingerRePlay", "fingerEditor", "finger4", "close", "help",
                           "changeskin", "addplayer", "play"}) {
    const QWidget& part = Find<QWidget>(name);
    EXPECT_FALSE(part.accessibleName().isEmpty()) << name;
    EXPECT_EQ(part.accessibleName(), part.toolTip()) << name;
  }
}

}  // namespace
}  // namespace zorik
