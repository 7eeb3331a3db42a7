// The start screen as it opens: what is chosen, where its parts stand, and what its keys do and leave alone.
#include <QTranslator>

#include "screens/StartScreen.h"

namespace zorik {
namespace {

using test::Box;
using test::DialogScript;
using test::Press;
using test::Type;

class StartReady : public test::StartScreen {
 protected:
  void SetUp() override {
    for (const char* const name : {"a", "b", "c"}) Coll(std::string(name) + ".zk", name);
  }

  QStringList ChosenFingers() const {
    QStringList names;
    for (const auto* const finger : start_->findChildren<QAbstractButton*>()) {
      if (finger->isChecked()) names << finger->objectName();
    }
    return names;
  }

  // Whether the screen has a use for a key.
  bool Takes(Qt::Key key, const QString& text = {}, bool held = false) const {
    QKeyEvent event(QEvent::KeyPress, key, {}, text, held);
    event.accept();
    QApplication::sendEvent(start_.get(), &event);
    return event.isAccepted();
  }
};

TEST_F(StartReady, StandsInTheMiddleOfTheScreenWithPlayChosen) {
  Player("Adam");
  Load();
  const QPoint away = start_->geometry().center() - start_->screen()->availableGeometry().center();
  EXPECT_LE(std::max(std::abs(away.x()), std::abs(away.y())), 1);
  EXPECT_EQ(ChosenFingers(), QStringList{"fingerPlay"});
  EXPECT_TRUE(start_->isActiveWindow());
  EXPECT_FALSE(start_->windowTitle().isEmpty());
}

// The boxes for the lists in the drawing of the game's own skin are those of skins that tell no others.
TEST_F(StartReady, ASkinThatTellsNoPlacesHasItsListsWhereTheGamesOwnSkinHasThem) {
  Player("Adam");
  QImage palm({720, 520}, QImage::Format_RGB32);
  palm.fill(Qt::gray);
  skin_.Picture("palm", palm);
  std::map<std::string, std::string> away;
  for (const char* const list : {"start.caves", "start.players"}) {
    for (const char* const part : {".left", ".top", ".width", ".height"}) away[std::string(list) + part] = "";
  }
  away["start.caves.lines"] = "14";
  WearChanged(away);
  Load();
  EXPECT_EQ(Colls().geometry(), QRect(220, 200, 246, 14 * kRowHeight + 2 * 2));
  EXPECT_EQ(Plrs().geometry(), QRect(220, 412, 198, 20));
  away["start.caves.lines"] = "";
  away["start.caves.border.size"] = "";
  WearChanged(away);
  start_->SkinIt();
  EXPECT_EQ(Colls().height(), kRowHeight) << "one row without a frame";
}

TEST_F(StartReady, TheScrollButtonsAreSeenWhileAListIsLongerThanItsPlaceInTheSkin) {
  Player("Adam");
  Player("Eva");
  Load();
  const auto seen = [this] {
    return std::pair(Find<QWidget>("vscroll").isVisible(), Find<QWidget>("hscroll").isVisible());
  };
  EXPECT_EQ(seen(), std::pair(false, false));
  WearChanged({{"start.caves.height", "30"}});
  start_->SkinIt();
  EXPECT_EQ(seen(), std::pair(true, false));
  WearChanged({{"start.players.width", "40"}});
  start_->SkinIt();
  EXPECT_EQ(seen(), std::pair(false, true));
  WearChanged({});
  start_->SkinIt();
  EXPECT_EQ(seen(), std::pair(false, false));
}

TEST_F(StartReady, PlayersWhoFindNoRoomBringTheirScrollButton) {
  Player("Adam");
  Load();
  EXPECT_FALSE(Find<QWidget>("hscroll").isVisible());
  for (int i = 0; i < 9; ++i) Player("Hrac " + std::to_string(i));
  start_->FindPlrs();
  EXPECT_TRUE(Find<QWidget>("hscroll").isVisible());
  EXPECT_FALSE(Find<QWidget>("vscroll").isVisible()) << "there are three collections still";
}

TEST_F(StartReady, APlayerWhoComesFirstInTheListIsSelectedWhenAdded) {
  Player("Bára");
  Player("Cyril");
  Load();
  Key(Qt::Key_Right);
  ASSERT_EQ(start_->Player(), "Cyril");
  const DialogScript script = {Type("Adam"), Box("Text 114", "Hráč Adam byl přidán.")};
  Key(Qt::Key_Insert);
  EXPECT_EQ(start_->Player(), "Adam");
  EXPECT_EQ(Plrs().Count(), 3);
}

TEST_F(StartReady, ADoubleClickOnAPlayerPlays) {
  Player("Adam");
  Player("Eva");
  Load();
  const QPoint eva = Plrs().PlaceOf(1).center();
  QTest::mouseClick(Plrs().viewport(), Qt::LeftButton, {}, eva);
  QTest::mouseDClick(Plrs().viewport(), Qt::LeftButton, {}, eva);
  ASSERT_EQ(opened_->count(), 1);
  EXPECT_EQ(opened_->at(0), (QVariantList{At("Caves/a.zk"), "Eva"}));
}

TEST_F(StartReady, TheStatisticsAreThoseOfSomebody) {
  {
    const DialogScript script = {Press(Qt::Key_Escape)};  // the question for a player
    Load();
  }
  Key(Qt::Key_F3);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  Player("Adam");
  start_->FindPlrs();
  auto keys = test::StartKeys();
  keys.merge(std::map<std::string, std::string>{{"start.statistics.image", "small"},
                                                {"start.statistics.left", "300"},
                                                {"start.statistics.top", "100"}});
  WearKeys(keys);
  start_->SkinIt();
  EXPECT_TRUE(Find<QWidget>("statistics").toolTip().startsWith("Statistika"));
  QString opened;
  const DialogScript look = {[&opened](QWidget& dialog) {
    opened = dialog.objectName();
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }};
  Click("statistics");
  EXPECT_EQ(opened, "statistics");
}

TEST_F(StartReady, OnlyFourDigitsChooseAndAKeyWithoutAUseIsLeftToOthers) {
  Player("Adam");
  Load();
  EXPECT_TRUE(Takes(Qt::Key_B, "b"));
  EXPECT_EQ(Colls().Selected(), 1);
  EXPECT_TRUE(Takes(Qt::Key_Down, {}, true)) << "a key that stays down goes on";
  EXPECT_EQ(Colls().Selected(), 2);
  Key(Qt::Key_3);
  for (const Qt::Key digit : {Qt::Key_0, Qt::Key_5, Qt::Key_9}) {
    Key(digit);
    EXPECT_EQ(ChosenFingers(), QStringList{"fingerEditor"}) << digit;
  }
  for (const Qt::Key key : {Qt::Key_F9, Qt::Key_Escape}) EXPECT_FALSE(Takes(key)) << key;
}

TEST_F(StartReady, AKeyThatStaysDownGoesThroughThePlayers) {
  for (const char* const name : {"Adam", "Eva", "Ota"}) Player(name);
  Load();
  for (const char* const name : {"Eva", "Ota", "Ota"}) {
    EXPECT_TRUE(Takes(Qt::Key_Right, {}, true));
    EXPECT_EQ(start_->Player(), name);
  }
  for (const char* const name : {"Eva", "Adam", "Adam"}) {
    EXPECT_TRUE(Takes(Qt::Key_Left, {}, true));
    EXPECT_EQ(start_->Player(), name);
  }
  Takes(Qt::Key_2, "2", true);
  EXPECT_EQ(ChosenFingers(), QStringList{"fingerPlay"}) << "but chooses nothing else";
}

TEST_F(StartReady, StaysAsItWasScrolledWhenItComesBackFromTheTaskBar) {
  Player("Adam");
  for (char file = 'a'; file < 'o'; ++file) Coll(std::string(1, file) + ".zk", "Sbirka");
  Load().show();
  Colls().Scroll(6);
  const QRect first = Colls().PlaceOf(0);
  ASSERT_LT(first.bottom(), 0);
  QShowEvent back;
  QSpontaneKeyEvent::setSpontaneous(&back);
  static_cast<QObject&>(*start_).event(&back);
  EXPECT_EQ(Colls().PlaceOf(0), first);
  start_->hide();
  start_->show();
  EXPECT_NE(Colls().PlaceOf(0), first) << "what is opened anew shows what is selected";
}

TEST_F(StartReady, AFileFromOutsideBringsTheScreenToTheFront) {
  Player("Adam");
  folder_.File("jinde/x.zkr", "record");
  Load();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  start_->OpenFromOutside(At("jinde/x.zkr"));
  EXPECT_TRUE(QTest::qWaitForWindowActive(start_.get()));
  EXPECT_EQ(played_->count(), 1);
}

// Another window may come before this one was ever painted, and its text boxes have menus, too.
TEST_F(StartReady, HasItsFingersAndTheToolkitsWordsThoughItIsHiddenAtOnce) {
  Player("Adam");
  start_ = std::make_unique<FrmStart2>(skin_.Skin(), folder_.Paths(), settings_);
  start_->FrmLoad();
  start_->hide();
  EXPECT_EQ(start_->findChildren<QTranslator*>().size(), 1);
  EXPECT_EQ(Find<QWidget>("fingerRePlay").toolTip(), "Záznam");
  EXPECT_EQ(Find<QWidget>("fingerRePlay").geometry(), test::FingerBox(1));
  start_->show();
  QTest::qWait(20);
  EXPECT_EQ(start_->findChildren<QTranslator*>().size(), 1);
}

// Collections in the language of the skin come first.
TEST_F(StartReady, AnotherSkinsLanguagePutsItsCollectionsFirst) {
  Player("Adam");
  Coll("x-en.zk", "English");
  Load();
  ASSERT_EQ(Colls().Labels(), (QStringList{"a", "b", "c", "English"}));
  Key(Qt::Key_End);
  skin_.File("../../Jiny/Menu/skindata.txt", "language.code=en\r\nlanguage.text=English\r\n");
  const DialogScript script = {[](QWidget& dialog) {
    QTest::keyClick(dialog.findChild<QWidget*>("Combo1"), Qt::Key_Down);
    QTest::keyClick(&dialog, Qt::Key_Return);
  }};
  Key(Qt::Key_F2);
  EXPECT_EQ(Colls().Labels().first(), "English");
  EXPECT_EQ(Colls().Selected(), 0) << "the same collection stays selected";
}

}  // namespace
}  // namespace zorik
