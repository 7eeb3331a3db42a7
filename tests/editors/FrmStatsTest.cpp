#include <QMap>
#include <QTableWidget>
#include <set>

#include "editors/EditTiles.h"
#include "editors/EditorScreen.h"
#include "editors/FrmStats.h"
#include "editors/ToolNames.h"
#include "editors/ToolTable.h"

namespace zorik {
namespace {

using test::InDialogNamed;

class FrmStatsTest : public testing::Test, public test::EditorScreen {
 protected:
  QStringList Rows() const {
    QStringList rows;
    InDialogNamed dialog("frmStats", [&rows](QWidget& it) {
      EXPECT_EQ(it.windowTitle(), "Statistika");
      const auto& table = *it.findChild<QTableWidget*>("lstStats");
      for (int row = 0; row < table.rowCount(); ++row) {
        rows << table.item(row, 1)->text() + ": " + table.item(row, 2)->text();
      }
    });
    Action("mnuStats").trigger();
    EXPECT_TRUE(dialog.opened);
    return rows;
  }
};

TEST_F(FrmStatsTest, CountsEachObjectInTheOrderOfThePalette) {
  Open({"WWWWWW", "W12..W", "WRF$DW", "WR.$CW", "WWWWWW"});
  EXPECT_EQ(Rows(), QStringList({"Prázdno: 3", "Balvan: 2", "Drahokam: 1", "Zorík č. 1: 1", "Zorík č. 2: 1",
                                 "Ocel: 18", "Světluška vlevo: 1", "\"$\": 2", "\"C\": 1"}));
}

TEST_F(FrmStatsTest, CountsTheCaveAsItIsNow) {
  Open(test::Full(6, 5, ';'));
  Click(1, 1);
  EXPECT_EQ(Rows(), QStringList({"Hlína: 29", "Balvan: 1"}));
}

TEST_F(FrmStatsTest, CountsAllDogsAndAllLettersThatItDoesNotKnow) {
  Open({"WWWWWW", "W9...W", "W\xE9\xE9x.W", "W....W", "WWWWWW"});
  EXPECT_EQ(Rows(), QStringList({"Prázdno: 8", "Zorík č. 9: 1", "Ocel: 18", "\"x\": 1", "\"é\": 2"}));
}

TEST_F(FrmStatsTest, ShowsAPictureOfWhatHasATile) {
  Open({"WWWWWW", "W1...W", "W$...W", "W....W", "WWWWWW"});
  InDialogNamed dialog("frmStats", [](QWidget& it) {
    const auto& table = *it.findChild<QTableWidget*>("lstStats");
    ASSERT_EQ(table.rowCount(), 4);
    for (int row = 0; row < 4; ++row) EXPECT_EQ(table.item(row, 0)->icon().isNull(), row == 3) << row;
  });
  Action("mnuStats").trigger();
  EXPECT_TRUE(dialog.opened);
}

TEST_F(FrmStatsTest, TellsTheGemsThatAreThereThatCanComeToBeAndThatAreNeeded) {
  const auto said = [this] {
    QString text;
    const InDialogNamed dialog("frmStats",
                               [&text](QWidget& it) { text = it.findChild<QLabel*>("lblGems")->text(); });
    Action("mnuStats").trigger();
    return text;
  };
  Open({"WWWWWWWW", "W1;D;WWW", "W;D;;WDW", "W;;;TWWW", "WWWWWWWW"}, {.needed = 2});
  EXPECT_EQ(said(), "Drahokamy: 3 na začátku, získat jich lze 2, potřeba 2");
  Open({"WWWWWWWW", "W1;D;WWW", "W;A;;WDW", "W;;;TWWW", "WWWWWWWW"}, {.needed = 2});
  EXPECT_EQ(said(), "Drahokamy: 2 na začátku, získat jich lze bez omezení, potřeba 2");
}

TEST_F(FrmStatsTest, RemembersItsSize) {
  Open(test::Full(6, 5, ';'));
  {
    const InDialogNamed dialog("frmStats", [](QWidget& it) { it.resize(431, 322); });
    Action("mnuStats").trigger();
  }
  QSize size;
  const InDialogNamed dialog("frmStats", [&size](QWidget& it) { size = it.size(); });
  Action("mnuStats").trigger();
  EXPECT_EQ(size, QSize(431, 322));
}

TEST_F(FrmStatsTest, IsShutWithEnter) {
  Open(test::Full(6, 5, ';'));
  InDialogNamed dialog("frmStats", [](QWidget& it) { QTest::keyClick(it.focusWidget(), Qt::Key_Return); });
  QTest::keyClick(window.get(), Qt::Key_F7);
  EXPECT_TRUE(dialog.opened);
  EXPECT_FALSE(dialog.stayed);
}

TEST_F(FrmStatsTest, IsShutWithEsc) {
  Open(test::Full(6, 5, ';'));
  InDialogNamed dialog("frmStats", [](QWidget& it) { QTest::keyClick(&it, Qt::Key_Escape); });
  QTest::keyClick(window.get(), Qt::Key_F7);
  EXPECT_TRUE(dialog.opened);
  EXPECT_FALSE(dialog.stayed);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FrmStatsTest, ShowsEachDogWithItsNumber) {
  Open({"WWWWWW", "W12..W", "W....W", "W....W", "WWWWWW"});
  const InDialogNamed dialog("frmStats", [](QWidget& it) {
    const auto& table = *it.findChild<QTableWidget*>("lstStats");
    const auto picture = [&table](int row) { return table.item(row, 0)->icon().pixmap(26).toImage(); };
    ASSERT_EQ(table.item(1, 1)->text(), "Zorík č. 1");
    EXPECT_NE(picture(1), picture(2));
  });
  Action("mnuStats").trigger();
}

TEST_F(FrmStatsTest, ShowsEachObjectByItsTileOfThePalette) {
  const std::string letters = ".RD12WF";  // in the order of the palette
  Open({"WWWWWW", "W12..W", "WRF.DW", "WR..;W", "WWWWWW"});
  EditTiles tiles;
  tiles.Load(SkinPlaces{ZORIK_SKINS, "Default"}, "Classic");
  const InDialogNamed dialog("frmStats", [&](QWidget& it) {
    const auto& table = *it.findChild<QTableWidget*>("lstStats");
    std::set<std::string> seen;
    for (int row = 0; row < table.rowCount(); ++row) {
      const QImage shown =
          table.item(row, 0)->icon().pixmap(26).toImage().convertToFormat(QImage::Format_RGB32);
      for (const char letter : letters + ';') {
        const QImage& tile = tiles.Tile(ToolOfLetter(letter), ValueOf(letter), 26);
        if (shown == tile.convertToFormat(QImage::Format_RGB32) &&
            table.item(row, 1)->text() == NameOfLetter(skin, letter))
          seen.insert(std::string(1, letter));
      }
    }
    EXPECT_EQ(seen.size(), letters.size() + 1);
    EXPECT_EQ(table.rowCount(), static_cast<int>(letters.size()) + 1);
  });
  Action("mnuStats").trigger();
  EXPECT_TRUE(dialog.opened);
}

}  // namespace
}  // namespace zorik
