#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cstdlib>

#include "app/Game.h"
#include "data/Result.h"
#include "screens/DialogScript.h"
#include "screens/Folder.h"

namespace zorik {
namespace {

using test::DialogScript;
using test::Press;

constexpr int kPatience = 10000;  // milliseconds

// The game's first start on a desktop of this language, with the skins that come with the game.
class GameFirstStart : public testing::Test {
 protected:
  void TearDown() override {
    EXPECT_TRUE(StoreSkin("Default"));
    unsetenv("LC_ALL");
  }

  void Make(const char* desktop) {
    std::filesystem::create_directories(folder.Root() + "/Players/Ada");
    setenv("LC_ALL", desktop, 1);
    Paths paths = folder.Paths();
    paths.ShippedSkins = ZORIK_BUILT_SKINS;
    inbox = std::make_unique<Inbox>(InboxPlace(folder.Root()));
    game = std::make_unique<Game>(paths, Settings{.Sound = false}, *inbox);
  }

  // What the toe that plays is called then.
  QString Begin(const char* desktop, std::initializer_list<DialogScript::Act> acts) {
    Make(desktop);
    const DialogScript script(acts);
    game->Begin(true);
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (dynamic_cast<FrmStart2*>(widget) == nullptr) continue;
      const auto* const finger = widget->findChild<QWidget*>("fingerPlay");
      EXPECT_TRUE(QTest::qWaitFor([&] { return !finger->toolTip().isEmpty(); }, kPatience));
      return finger->toolTip();
    }
    return {};
  }

  test::Folder folder;
  std::unique_ptr<Inbox> inbox;
  std::unique_ptr<Game> game;
};

TEST_F(GameFirstStart, OffersTheLanguageOfTheDesktop) {
  EXPECT_EQ(Begin("de_DE.UTF-8", {Press(Qt::Key_Return)}), "Play");
  EXPECT_EQ(FindSett().Skin, "English");
}

TEST_F(GameFirstStart, OffersCzechWhereTheDesktopTellsNoLanguage) {
  EXPECT_EQ(Begin("C", {Press(Qt::Key_Return)}), "Hrát");
  EXPECT_EQ(FindSett().Skin, "Default");
}

TEST_F(GameFirstStart, TakesTheOtherLanguageIfThatIsChosen) {
  const auto czech = [](QWidget& window) { window.findChild<QPushButton*>("Default")->click(); };
  EXPECT_EQ(Begin("en_GB.UTF-8", {czech}), "Hrát");
  EXPECT_EQ(FindSett().Skin, "Default");
}

TEST_F(GameFirstStart, EndsIfTheDesktopEndsWhileItAsks) {
  Make("cs_CZ.UTF-8");
  const DialogScript script({[this](QWidget& /*window*/) { game->EndByDesktop(); }});
  constexpr int kStillRunning = 7;
  QTimer late;
  late.callOnTimeout([] { QCoreApplication::exit(kStillRunning); });
  late.start(kPatience);
  EXPECT_EQ(game->Run(true), EXIT_SUCCESS);
  // The toolkit takes the end for lasting until it is run anew.
  late.start(0);
  QApplication::exec();
}

TEST_F(GameFirstStart, TellsOnceWhatIsWrongWithTheSkinThatIsChosenAsItIs) {
  folder.File("Skins/Default/Menu/palm.bmp", "no picture");
  const auto read = [](QWidget& box) {
    const auto* const text = box.findChild<QLabel*>("lblText");
    ASSERT_NE(text, nullptr);
    EXPECT_TRUE(text->text().contains("palm.bmp")) << text->text().toStdString();
    QTest::keyClick(&box, Qt::Key_Return);
  };
  EXPECT_EQ(Begin("cs_CZ.UTF-8", {read, Press(Qt::Key_Return)}), "Hrát");
}

}  // namespace
}  // namespace zorik
