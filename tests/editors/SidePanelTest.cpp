#include <gtest/gtest.h>

#include <QLabel>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "editors/SidePanel.h"
#include "skin/Skin.h"

namespace zorik::test {
namespace {

class SidePanelTest : public ::testing::Test {
 protected:
  SidePanelTest() {
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").clear();
    Make();
  }

  void Make() {
    panel.reset();
    auto* const picture = new QLabel;
    picture->setMinimumSize(500, 300);
    panel = std::make_unique<SidePanel>(*picture, nullptr);
    picture_ = picture;
  }
  void AddPage() {
    page = new QLabel;
    panel->AddPage(*page, "caption.main.stats");
  }
  void Show(int width) const {
    panel->resize(width, 400);
    panel->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel.get()));
  }
  QTabWidget& Pages() const { return *panel->findChild<QTabWidget*>("pages"); }

  std::unique_ptr<SidePanel> panel;
  QLabel* page = nullptr;
  QLabel* picture_ = nullptr;
};

TEST_F(SidePanelTest, APictureWithoutAPageIsAlone) {
  Show(800);
  EXPECT_FALSE(Pages().isVisible());
  EXPECT_EQ(picture_->width(), 800);
}

TEST_F(SidePanelTest, APageStandsRightOfThePictureWithTheSkinsCaption) {
  AddPage();
  Skin skin;
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  panel->SetLW(skin);
  Show(800);
  EXPECT_TRUE(page->isVisible());
  EXPECT_GE(Pages().x(), picture_->width());
  EXPECT_EQ(Pages().tabText(0), "Statistics");
}

TEST_F(SidePanelTest, WhatASmallScreenLeavesIsEnough) {
  AddPage();
  Show(700);
  EXPECT_EQ(panel->width(), 700);
  EXPECT_GE(picture_->width(), 500);
  EXPECT_TRUE(page->isVisible());
}

TEST_F(SidePanelTest, AllThatAWindowGrowsByGoesToThePicture) {
  AddPage();
  Show(800);
  const int before = Pages().width();
  panel->resize(1100, 400);
  EXPECT_EQ(Pages().width(), before);
}

TEST_F(SidePanelTest, HiddenPagesStayHiddenTheNextTime) {
  AddPage();
  Show(800);
  panel->SetWanted(false);
  EXPECT_FALSE(Pages().isVisible());
  Make();
  AddPage();
  Show(800);
  EXPECT_FALSE(panel->IsWanted());
  EXPECT_FALSE(Pages().isVisible());
  panel->SetWanted(true);
  EXPECT_TRUE(page->isVisible());
}

TEST_F(SidePanelTest, ThePagesAreAsWideAsTheyWereLeft) {
  AddPage();
  Show(1000);
  panel->setSizes({620, 380});
  const int left = Pages().width();
  ASSERT_GT(left, 350);
  panel->hide();
  Make();
  AddPage();
  Show(1000);
  EXPECT_EQ(Pages().width(), left);
}

TEST_F(SidePanelTest, ThePagesAreNeitherTooNarrowNorTooWideHoweverTheyWereLeft) {
  const auto widthAfter = [this](int stored) {
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2")
        .setValue("Editors/SidePanelWidth", stored);
    Make();
    AddPage();
    Show(3000);
    return Pages().width();
  };
  const int least = widthAfter(-5), most = widthAfter(99'999);
  EXPECT_EQ(widthAfter(1), least);
  EXPECT_EQ(widthAfter(least), least);
  EXPECT_EQ(widthAfter(least + 1), least + 1);
  EXPECT_EQ(widthAfter(most - 1), most - 1);
  EXPECT_GE(least, 100) << "the words can be read";
  EXPECT_LE(most, 2000) << "the picture is seen";
  EXPECT_GT(most, 4 * least);
}

TEST_F(SidePanelTest, ThePagesCannotBePushedAway) {
  AddPage();
  Show(1000);
  panel->setSizes({995, 5});
  EXPECT_TRUE(page->isVisible());
  EXPECT_GE(Pages().width(), Pages().minimumSizeHint().width());
  EXPECT_GE(Pages().width(), 100);
  panel->setSizes({0, 1000});
  EXPECT_GE(picture_->width(), 500) << "nor the picture";
}

TEST_F(SidePanelTest, APageKeepsRoomForItsWidestWord) {
  AddPage();
  page->setMinimumWidth(191);
  Show(1000);
  panel->setSizes({999, 1});
  EXPECT_GE(page->width(), 191);
}

TEST_F(SidePanelTest, AWidthIsNotStoredOfPagesThatAreHidden) {
  AddPage();
  Show(1000);
  panel->setSizes({600, 400});
  const int left = Pages().width();
  panel->hide();
  Show(1000);
  panel->SetWanted(false);
  panel->hide();
  Make();
  AddPage();
  panel->SetWanted(true);
  Show(1000);
  EXPECT_EQ(Pages().width(), left);
}

TEST_F(SidePanelTest, EachPageHasItsOwnCaptionAndCanBeTurnedTo) {
  AddPage();
  auto* const other = new QLabel;
  panel->AddPage(*other, "caption.proof.page");
  Skin skin;
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  panel->SetLW(skin);
  Show(1000);
  EXPECT_EQ(Pages().tabText(0), skin.Caption("caption.main.stats"));
  EXPECT_EQ(Pages().tabText(1), skin.Caption("caption.proof.page"));
  EXPECT_TRUE(page->isVisible());
  panel->TurnTo(*other);
  EXPECT_TRUE(other->isVisible());
  EXPECT_FALSE(page->isVisible());
  EXPECT_EQ(Pages().tabBar()->focusPolicy(), Qt::TabFocus) << "a click leaves the keys to the picture";
  EXPECT_TRUE(Pages().documentMode()) << "without a frame";
  EXPECT_EQ(panel->orientation(), Qt::Horizontal);
}

}  // namespace
}  // namespace zorik::test
