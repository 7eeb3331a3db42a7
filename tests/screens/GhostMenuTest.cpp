#include <QFileInfo>
#include <QSettings>

#include "platform/Settings.h"
#include "screens/DialogScript.h"
#include "screens/GhostMenu.h"
#include "screens/PostMenu.h"

namespace zorik {
namespace {

class GhostMenu : public test::PostMenu {
 protected:
  GhostMenu() {
    Caves(2);
    Open();
    QObject::connect(window.get(), &FrmPoSt::GhostWanted,
                     [this](const QPoint& at) { AskForGhost(skin, flow, settings, *window, at); });
  }

  // A record of a cave by another player, in his folder.
  void RecordOf(const std::string& player, int number, int score) const {
    Chance chance(5);
    const std::string bytes = BuildRecordHead("Sada", score, player, chance) +
                              ScrambleText(caves[static_cast<std::size_t>(number - 1)] + "---00", chance) +
                              "\r\nAAA\r\n";
    folder.File(
        "Players/" + player + "/" + FileSystemName(RecordFileName("Sada", "c" + std::to_string(number))),
        bytes);
  }

  using PostMenu::Offered;
  QStringList Offered(int clicked) {
    return Offered(clicked, [this] { Press(Qt::Key_D); });
  }

  Settings settings;
};

TEST_F(GhostMenu, OffersNobodyAndThePlayersOwnRecordAndMarksWhatHolds) {
  const QStringList off{"*Bez ducha", "Duch: můj nejlepší záznam"};
  EXPECT_EQ(Offered(kNone), off);
  settings.Ghost = true;
  const QStringList on{"Bez ducha", "*Duch: můj nejlepší záznam"};
  EXPECT_EQ(Offered(kNone), on);
}

TEST_F(GhostMenu, OffersEveryPlayerWhoHasWonTheSelectedCave) {
  RecordOf("Bara", 1, 70);
  RecordOf("Cyril", 1, 90);
  RecordOf("Dana", 2, 10);
  const QStringList first{"*Bez ducha", "Duch: můj nejlepší záznam", "Duch: Cyril, bodů: 90",
                          "Duch: Bara, bodů: 70"};
  EXPECT_EQ(Offered(kNone), first);
}

TEST_F(GhostMenu, SwitchesTheGhostOnAndOffAndKeepsIt) {
  Offered(1);
  EXPECT_TRUE(settings.Ghost);
  EXPECT_TRUE(FindSett().Ghost) << "it is stored";
  Offered(0);
  EXPECT_FALSE(settings.Ghost);
  EXPECT_FALSE(FindSett().Ghost);
  Offered(kNone);
  EXPECT_FALSE(settings.Ghost) << "nothing was chosen";
}

TEST_F(GhostMenu, ChoosesAnotherPlayer) {
  RecordOf("Bara", 1, 70);
  Offered(2);
  EXPECT_TRUE(settings.Ghost);
  EXPECT_EQ(flow.ChosenGhost(), "Bara");
  const QStringList chosen{"Bez ducha", "Duch: můj nejlepší záznam", "*Duch: Bara, bodů: 70"};
  EXPECT_EQ(Offered(0), chosen);
  EXPECT_EQ(flow.ChosenGhost(), "Bara") << "the choice is still known when the ghost is switched off";
  flow.Choose(2);
  settings.Ghost = true;
  const QStringList own{"Bez ducha", "*Duch: můj nejlepší záznam"};
  EXPECT_EQ(Offered(1), own) << "Bara has not won this cave";
  EXPECT_EQ(flow.ChosenGhost(), "");
}

TEST_F(GhostMenu, TakesNoNameForAMnemonic) {
  RecordOf("A & B", 1, 5);
  EXPECT_EQ(Offered(kNone).last(), "Duch: A && B, bodů: 5");
}

TEST_F(GhostMenu, OpensByTheRightButtonOfTheMouse) {
  EXPECT_EQ(Offered(1,
                    [this] {
                      QContextMenuEvent wanted(QContextMenuEvent::Mouse, QPoint(100, 200),
                                               window->mapToGlobal(QPoint(100, 200)));
                      QApplication::sendEvent(List().viewport(), &wanted);
                    })
                .size(),
            2);
  EXPECT_TRUE(settings.Ghost);
}

TEST_F(GhostMenu, SaysSoWhenTheChoiceCannotBeStored) {
  const QString file = QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").fileName();
  const QString place = QFileInfo(QFileInfo(file).path()).path();
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, "/dev/null");
  {
    const test::DialogScript script = {test::Box("Zorík", "Soubor se nepodařilo uložit.")};
    Offered(1);
  }
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, place);
  EXPECT_TRUE(settings.Ghost) << "it holds as long as the game runs";
}

}  // namespace
}  // namespace zorik
