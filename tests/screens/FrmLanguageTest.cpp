#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include "screens/DialogScript.h"
#include "screens/FrmLanguage.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

using test::DialogScript;
using test::Press;

class FrmLanguageTest : public testing::Test {
 protected:
  void SetUp() override {
    skin_.Data("language.code=cs\nlanguage.text=Česky\n");
    skin_.File("../../English/Menu/skindata.txt", "language.code=en\r\nlanguage.text=English\r\n");
  }

  // What comes of the window, when the skin of this folder is worn.
  std::optional<QString> Asked(const std::string& worn, std::initializer_list<DialogScript::Act> acts) {
    SkinPlaces places = skin_.Places();
    places.Skin = worn;
    skin_.Skin().Apply(places);
    const DialogScript script(acts);
    return FrmLanguage(skin_.Skin()).AskSkin();
  }

  test::TestSkin skin_;
};

TEST_F(FrmLanguageTest, OffersEachLanguageByItsOwnName) {
  const auto look = [](QWidget& window) {
    QStringList names;
    for (const QPushButton* const button : window.findChildren<QPushButton*>())
      names.push_back(button->text());
    EXPECT_EQ(names, (QStringList{"Česky", "English"}));
    EXPECT_EQ(window.windowTitle(), "Zorík");
    QTest::keyClick(&window, Qt::Key_Escape);
  };
  Asked("Default", {look});
}

TEST_F(FrmLanguageTest, HasTheLanguageOfTheWornSkinChosen) {
  EXPECT_EQ(Asked("Default", {Press(Qt::Key_Return)}), "Default");
  EXPECT_EQ(Asked("English", {Press(Qt::Key_Return)}), "English");
}

TEST_F(FrmLanguageTest, TakesTheOtherOneByAClickAndByTheArrows) {
  const auto click = [](QWidget& window) { window.findChild<QPushButton*>("English")->click(); };
  EXPECT_EQ(Asked("Default", {click}), "English");
  const auto keys = [](QWidget& window) {
    QTest::keyClick(window.focusWidget(), Qt::Key_Left);
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
  };
  EXPECT_EQ(Asked("English", {keys}), "Default");
}

TEST_F(FrmLanguageTest, StaysWithTheWornSkinIfItIsClosed) {
  EXPECT_EQ(Asked("English", {Press(Qt::Key_Escape)}), "English");
}

TEST_F(FrmLanguageTest, DoesNotComeWhereThereIsNothingToChoose) {
  skin_.File("../../English/Menu/skindata.txt", "");
  EXPECT_EQ(Asked("Default", {}), std::nullopt);
}

}  // namespace
}  // namespace zorik
