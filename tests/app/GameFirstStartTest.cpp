#include <gtest/gtest.h>

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
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

  void Make(const char* desktop, const std::string& skins = ZORIK_BUILT_SKINS) {
    std::filesystem::create_directories(folder.Root() + "/Players/Ada");
    setenv("LC_ALL", desktop, 1);
    Paths paths = folder.Paths();
    paths.ShippedSkins = skins;
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

TEST_F(GameFirstStart, SaysThatTheLanguageCannotBeStoredAndSpeaksIt) {
  const QString file = QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").fileName();
  const QString place = QFileInfo(QFileInfo(file).path()).path();
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, "/dev/null");
  const auto english = [](QWidget& window) { window.findChild<QPushButton*>("English")->click(); };
  EXPECT_EQ(Begin("cs_CZ.UTF-8", {english, test::Box("Zorík", "The file could not be saved.")}), "Play");
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, place);
}

// Where there is one language nobody is asked for it.
TEST_F(GameFirstStart, AsksForNoLanguageWhereThereIsOne) {
  const std::filesystem::path one = folder.Root() + "/One";
  std::filesystem::create_directory(one);
  std::filesystem::create_directory_symlink(std::string(ZORIK_BUILT_SKINS) + "/Default", one / "Default");
  EXPECT_TRUE(StoreSkin("English"));
  Make("cs_CZ.UTF-8", one.string());
  const DialogScript nothing({});
  game->Begin(true);
  EXPECT_EQ(FindSett().Skin, "English") << "what is not asked is not stored";
}

// How the game window was left decides how it comes up the next time.
TEST_F(GameFirstStart, StoresAtTheDesktopsEndThatTheGameWindowFillsTheScreen) {
  Make("cs_CZ.UTF-8");
  QWidget* window = nullptr;
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (dynamic_cast<HraWindow*>(widget) != nullptr) window = widget;
  }
  ASSERT_NE(window, nullptr);
  const auto stored = [this](bool before) {
    StoreMaximized(before);
    game->EndByDesktop();
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik")
        .value("Maximized")
        .toInt();
  };
  EXPECT_EQ(stored(false), 1);
  window->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
  EXPECT_EQ(stored(true), 0);
  window->setWindowState(Qt::WindowNoState);
  EXPECT_EQ(stored(true), 0);
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QApplication::exec();  // the toolkit takes the end for lasting until it is run anew
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
