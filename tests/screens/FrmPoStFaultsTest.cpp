// What a selection screen meets that nobody has meant for it.
#include <gtest/gtest.h>

#include <QLabel>
#include <QSignalSpy>

#include "data/Result.h"
#include "screens/CaveList.h"
#include "screens/FrmPoSt.h"
#include "screens/PostScreen.h"

namespace zorik {
namespace {

class FrmPoStFaults : public testing::Test, public test::PostScreen {
 protected:
  CaveList& List() const { return *window->findChild<CaveList*>(); }
  CaveState State(int number) const { return List().Rows()[static_cast<std::size_t>(number - 1)].state; }

  // Opens the collection for another player than usual.
  void OpenFor(const QString& player) {
    window = std::make_unique<FrmPoSt>(skin, flow);
    ASSERT_TRUE(window->LoadColl(CollectionPath(), player));
  }
};

TEST_F(FrmPoStFaults, TakesARecordOfGarbageForNone) {
  for (const char* bytes : {"garbage", "", "\r\n\r\n\r\n", "\xFF\xFE\r\nx\r\ny"}) {
    Caves(2);
    ASSERT_TRUE(WriteWhole(RecordPath(1), bytes));
    Open();
    EXPECT_EQ(State(1), CaveState::Open);
    EXPECT_EQ(State(2), CaveState::Closed);
    EXPECT_EQ(Text("lblTotal"), "00000");
    EXPECT_FALSE(Shown("replay"));
    EXPECT_EQ(ReadStanding(flow.ChosenSlot()).Of, StandingRecord::Kind::Nothing);
    EXPECT_EQ(*ReadWhole(RecordPath(1)), bytes) << "it stays where it is";
  }
}

TEST_F(FrmPoStFaults, TakesTheRecordOfACaveThatHasChangedForNone) {
  Caves(2);
  Record(1, 10);
  const auto path = RecordPath(1);
  caves[0] = test::OneStepCave("c1", 51);
  folder.Collection("a.zk", "Sada", caves);
  Open();
  EXPECT_EQ(State(1), CaveState::Open);
  EXPECT_EQ(Text("lblTotal"), "00000");
  EXPECT_TRUE(ReadWhole(path)) << "it stays where it is";
}

TEST_F(FrmPoStFaults, TakesAFolderInThePlaceOfARecordForNone) {
  Caves(2);
  std::filesystem::create_directories(RecordPath(1));
  Open();
  EXPECT_EQ(State(1), CaveState::Open);
  EXPECT_FALSE(StoreRun({flow.ChosenSlot(), 0, "run"}));
}

TEST_F(FrmPoStFaults, KeepsTheRecordsOfPlayersWithOddNames) {
  Caves(2);
  for (const char* player : {"„Ďábel“ & <b>€%s<i>", "-rf", "J. R. {x}", "~", "'$HOME'", "a\u00A0b", "Ľ…ß™"}) {
    OpenFor(player);
    Chance chance(5);
    const std::string bytes = BuildRecordHead("Sada", 77, test::Bytes(player), chance) +
                              ScrambleText(caves[0] + "---01", chance) + "\r\nAAA\r\n";
    ASSERT_TRUE(StoreRun({flow.ChosenSlot(), 77, bytes})) << player;
    OpenFor(player);
    EXPECT_EQ(State(1), CaveState::Solved) << player;
    EXPECT_EQ(Text("lblTotal"), "00077") << player;
    const std::string path = folder.Root() + "/Players/" + player + "/Sada - c1.zkr";
    EXPECT_EQ(Label("lblRecord").toolTip().toStdString(), path);
    EXPECT_TRUE(std::filesystem::exists(path)) << player;
  }
}

TEST_F(FrmPoStFaults, ShowsATotalOfMoreThanFiveDigitsWhole) {
  Caves(11);
  Record(1, 99999);
  Record(2, 99999);
  Open();
  EXPECT_EQ(Text("lblTotal"), "199998");
  EXPECT_EQ(Label("lblTotal").toolTip(), "") << "nothing is left out";
  for (int i = 3; i <= 11; ++i) Record(i, 99999);
  Open();
  EXPECT_EQ(Text("lblTotal"), "1099989");
  EXPECT_EQ(Label("lblTotal").toolTip(), "");
  EXPECT_LE(Label("lblTotal").geometry().right(), Button("help").x());
}

TEST_F(FrmPoStFaults, ShortensANameThatIsTooLongBeforeTheSignOfTheTotal) {
  constexpr int kSign = 36;  // the cup that the skin's picture has there
  const std::string name = "Sada, " + std::string(150, 'w');
  folder.Collection("a.zk", name, {test::OneStepCave("a")});
  Open();
  EXPECT_EQ(Text("Label4").toStdString(), name);
  EXPECT_EQ(Label("Label4").toolTip().toStdString(), name);
  EXPECT_LE(Label("Label4").geometry().right(), Label("lblTotal").x() - kSign);
}

TEST_F(FrmPoStFaults, HasNoCaveToSendThePlayerToWhereNoneIsOpen) {
  Caves(2);
  std::vector<std::string> lines = PlainLines(*ReadWhole(CollectionPath().toStdString()));
  lines[0].pop_back();  // the mark of cave 1
  Chance chance;
  folder.File("Caves/a.zk", ScrambleLines(lines, chance));
  Open();
  EXPECT_EQ(Text("lblCaveName"), "(zamčeno)");
  EXPECT_EQ(Text("lblCaveDescription"), "Nejdříve musíš projít komnatu:\r\n");
  EXPECT_FALSE(Shown("play"));
  QSignalSpy played(window.get(), &FrmPoSt::PlayCave);
  Press(Qt::Key_Return);
  EXPECT_EQ(played.size(), 0);
}

TEST_F(FrmPoStFaults, OpensALetterWithoutRecordsToo) {
  Caves(3);
  Open();
  std::filesystem::remove_all(PlayerFolder());
  Press(Qt::Key_S);
  const QString path = QString::fromStdString(PlayerFolder() + "/temp.eml");
  EXPECT_EQ(openedFiles, QStringList({path}));
  const auto letter = ReadWhole(path.toStdString());
  ASSERT_TRUE(letter);
  EXPECT_TRUE(letter->ends_with("This is a multi-part message in MIME format.\r\n"));
}

TEST_F(FrmPoStFaults, NamesTheLetterThatCannotBeWritten) {
  Caves(1);
  Open();
  const std::string path = PlayerFolder() + "/temp.eml";
  std::filesystem::create_directories(path + "/full");
  QString said;
  const test::InDialog dialog([&said](QWidget& box) {
    said = box.findChild<QLabel*>("lblText")->text();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  Press(Qt::Key_S);
  EXPECT_TRUE(dialog.Opened());
  EXPECT_EQ(said.remove('\n').remove(' ').toStdString(), "Souborsenepodařilouložit." + path);
  EXPECT_EQ(openedFiles, QStringList());
}

TEST_F(FrmPoStFaults, PutsOddLettersOfAnAddressAndANameIntoALink) {
  EditedCollection collection;
  collection.Name = test::Bytes("Žluť & 100%?");
  collection.Author = "x";
  collection.Mail = "a&b?c=d@x.cz";
  collection.CaveList = {test::OneStepCave("a")};
  Chance chance;
  folder.File("Caves/a.zk", *BuildCollection(collection, chance));
  Open();
  QTest::mouseClick(&Label("Label3"), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(openedLinks.join(' ').toStdString(),
            "mailto:a%26b%3Fc%3Dd@x.cz?subject=Sada%20%27%C5%BDlu%C5%A5%20%26%20100%25%3F%27%20ze%20hry%20"
            "Zor%C3%ADk");
}

TEST_F(FrmPoStFaults, TellsWhenNoProgramTakesTheLetterToTheAuthor) {
  Caves(1);
  Open();
  nothingOpens = true;
  QString said;
  const test::InDialog dialog([&said](QWidget& box) {
    said = box.findChild<QLabel*>("lblText")->text().simplified();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  QTest::mouseClick(&Label("Label3"), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_TRUE(dialog.Opened());
  EXPECT_EQ(said, "Program pro tento soubor nebyl nalezen: jara@x.cz");
}

TEST_F(FrmPoStFaults, NeverShowsAButtonThatTheSkinGivesNoPlace) {
  const std::string file = folder.Root() + "/Skins/Default/Menu/skindata.txt";
  std::string table = *ReadWhole(file) + "\r\nselect:";
  for (const char* button : {"replay", "play", "congratulation", "vscroll"}) {
    table += std::string("\r\n") + button + ".left=-1";
    table += std::string("\r\n") + button + ".top=-1";
  }
  folder.File("Skins/Default/Menu/skindata.txt", table + "\r\n");
  ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins"}));
  Caves(40);
  for (int i = 1; i <= 40; ++i) Record(i, 1);
  Open();
  for (const char* button : {"replay", "play", "congratulation", "vscroll"}) {
    EXPECT_EQ(Button(button).pos(), QPoint(-1, -1));
    EXPECT_FALSE(Shown(button)) << button;
  }
  EXPECT_TRUE(Shown("send"));
}

}  // namespace
}  // namespace zorik
