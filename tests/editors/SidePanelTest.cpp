#include <gtest/gtest.h>

#include <QLabel>
#include <QSettings>
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

}  // namespace
}  // namespace zorik::test
